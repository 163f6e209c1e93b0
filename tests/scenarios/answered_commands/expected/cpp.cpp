    iwLayer_ptr iwlayer1;
    {
        iwLayerManager_ptr iwLayerManager1;
        iwDoc->GetLayerManager( &iwLayerManager1 );
        iwCreateObjectResult_e iwCreateObjectResult1;
        iwLayerManager1->CreateLayer( L"Holes", &iwlayer1, &iwCreateObjectResult1 );
    }
    iwPolyLine_ptr iwpolyline2;
    {
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

        Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(40.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(40.00000000000000);Coordinates1.add(30.00000000000000);
        Coordinates1.add(20.00000000000000);Coordinates1.add(45.00000000000000);
        Coordinates1.add(0.00000000000000);Coordinates1.add(35.00000000000000);
        Coordinates1.add(0.00000000000000);Coordinates1.add(30.00000000000000);
        Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);

        iwSketchManager->InsertPolyline2D( Coordinates1, false, &iwpolyline2 );
    }
    iwCircle_ptr iwcircle3;
    {
        iwSketchManager->InsertCircle( 20.00000000000000, 20.00000000000000, 0.00000000000000, 6.25000000000000, &iwcircle3 );
        {
            iwcircle3->put_Layer( L"Holes" );
        }
    }
    iwCircle_ptr iwcircle4;
    iwCircle_ptr iwcircle5;
    {
        iwSketchManager->InsertCircle( 30.00000000000000, 10.00000000000000, 0.00000000000000, 6.25000000000000, &iwcircle4 );
        iwSketchManager->InsertCircle( 10.00000000000000, 10.00000000000000, 0.00000000000000, 6.25000000000000, &iwcircle5 );
    }
    iwCircle_ptr iwcircle6;
    {
        iwSketchManager->InsertCircle( 5.00000000000000, 5.00000000000000, 213.36000000000001, 10.00000000000000, &iwcircle6 );
    }
    iwSimpleNote_ptr iwsimplenote7;
    {
        iwSketchManager->InsertSimpleNote( 5.00000000000000, -30.00000000000000, 0.00000000000000, 2.50000000000000, 0.00000000000000, L"Ø 12,5 "H7"
(4x)", &iwsimplenote7 );
        iwsimplenote7->SetAlignmentPoint( 0.00000000000000, 0.00000000000000, 0.00000000000000 );
        iwsimplenote7->SetPosition( 5.00000000000000, -30.00000000000000, 0.00000000000000 );
    }
    {
        // AcDbCircle object modified
        {
            double X1;
            double Y1;
            double Z1;
            iwcircle3->GetCenter( &X1, &Y1, &Z1 );
            Y1 = 18.50000000000000;
            iwcircle3->SetCenter( X1, Y1, Z1 );
            iwcircle3->put_Radius( 7.12500000000000 );
        }
    }
    iwCircleArc_ptr iwcirclearc8;
    {
        iwSketchManager->InsertArc( 0.00000000000000, 0.00000000000000, 0.00000000000000, 4.00000000000000, 0.50000000000000, 2.25000000000000, &iwcirclearc8 );
    }
