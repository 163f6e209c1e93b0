    {
        // AcDbLayerTableRecord object modified
        iwLayerManager_ptr iwLayerManager_1;
        iwDoc->GetLayerManager( &iwLayerManager_1 );
        iwLayer_ptr iwlayer1;
        iwLayerManager_1->GetLayer( L"Walls", &iwlayer1 );
        {
            iwColor_ptr iwColor1;
            m_pIwApp->GetColorByIndex( 8, &iwColor1 );
            iwlayer1->put_Color( iwColor1 );
            iwlayer1->put_LineWeight( iwLnWt_035 );
            iwlayer1->Rename( L"Walls existing" );
        }
    }
    iwLayer_ptr iwlayer2;
    {
        iwLayerManager_ptr iwLayerManager2;
        iwDoc->GetLayerManager( &iwLayerManager2 );
        iwCreateObjectResult_e iwCreateObjectResult2;
        iwLayerManager2->CreateLayer( L"Walls new", &iwlayer2, &iwCreateObjectResult2 );
    }
    {
        // AcDbTextStyleTableRecord object modified
        iwObjectType_e type3;
        iwTextStyle_ptr iwtextstyle3;
        iwDoc->GetObjectByHandle(L"13", &type3, &iwtextstyle3);
        {
            iwCreateObjectResult_e result4;
            iwString styleName4 = L"Room names";
            iwtextstyle3->Rename( styleName4, &result4 );
            iwtextstyle3->put_Height( 0.25000000000000 );
        }
    }
    {
        // AcDbLine object modified
        iwObjectType_e type5;
        iwLine_ptr iwline4;
        iwDoc->GetObjectByHandle(L"2A", &type5, &iwline4);
        iwline4->put_LineWeight( iwLnWt_050 );
        double getX6;
        double getY6;
        double getZ6;
        iwline4->GetSecondPoint( &getX6, &getY6, &getZ6 );
        getX6 = 7.50000000000000;
        iwline4->SetSecondPoint( getX6, getY6, getZ6 );
        // AcDbCircle object modified
        iwObjectType_e type7;
        iwCircle_ptr iwcircle5;
        iwDoc->GetObjectByHandle(L"2C", &type7, &iwcircle5);
        {
            iwcircle5->put_Layer( L"Walls existing" );
        }
        // AcDbText object modified
        iwObjectType_e type8;
        iwSimpleNote_ptr iwsimplenote6;
        iwDoc->GetObjectByHandle(L"2D", &type8, &iwsimplenote6);
        {
            iwsimplenote6->put_Layer( L"Rooms" );
            iwsimplenote6->put_Contents( L"Kitchen" );
            iwsimplenote6->put_TextStyle( L"Room names" );
        }
        // AcDbRotatedDimension object modified
        iwObjectType_e type9;
        iwRotatedDimension_ptr iwrotateddimension7;
        iwDoc->GetObjectByHandle(L"2F", &type9, &iwrotateddimension7);
        {
            iwGeneralDimension_ptr generalDimension10;
            iwrotateddimension7->GetGeneralDimension( &generalDimension10 );
            generalDimension10->put_Layer( L"Rooms" );
            iwGeneralDimension_ptr generalDimension11;
            iwrotateddimension7->GetGeneralDimension( &generalDimension11 );
            generalDimension11->put_TextOverride( L"7.50" );
        }
    }
    {
        // AcDbPolyline object modified
        iwObjectType_e type12;
        iwPolyLine_ptr iwpolyline8;
        iwDoc->GetObjectByHandle(L"2B", &type12, &iwpolyline8);
        {
            double X;
            double Y;
            bool retVal = false;
            iwpolyline8->GetVertexCoordinate( 2, &X, &Y );
            X = 7.50000000000000;
            iwpolyline8->SetVertexCoordinate( 2, X, Y, &retVal );
        }
        // AcDbPolyline object modified
        {
            double X;
            double Y;
            bool retVal = false;
            iwpolyline8->GetVertexCoordinate( 1, &X, &Y );
            Y = 4.50000000000000;
            iwpolyline8->SetVertexCoordinate( 1, X, Y, &retVal );
        }
    }
    {
        // AcDbBlockReference object modified
        iwObjectType_e type13;
        iwBlockInstance_ptr iwblockinstance9;
        iwDoc->GetObjectByHandle(L"2E", &type13, &iwblockinstance9);
        {
            iwblockinstance9->put_Rotation( 1.57079632679490 );
            iwObjectPtrArray iwAttributes14;
            iwblockinstance9->GetAttributeInstances( &iwAttributes14 );
            for (int i = 0; i < (int)iwAttributes14.length(); ++i)
            {
                iwAttributeInstance_c* iwAttribute14 = (iwAttributeInstance_c*)iwAttributes14[i];
                iwString name14;
                iwAttribute14->get_Name( &name14 );
                if (name14 == L"NUMBER")
                    iwAttribute14->put_Value( L"D 02" );
            }
        }
    }
    {
        // AcDbHatch object modified
        iwObjectType_e type15;
        iwHatch_ptr iwhatch10;
        iwDoc->GetObjectByHandle(L"30", &type15, &iwhatch10);
        {
            iwHatchPattern_ptr iwHatchPattern;
            iwhatch10->GetHatchPattern( &iwHatchPattern );
            iwString PatternName;
            double Angle;
            double Scale;
            iwHatchPatternType_e HatchPatternType;
            double Spacing;

            iwHatchPattern->GetHatchOrSolidData( &PatternName, &Angle, &Scale, &HatchPatternType, &Spacing );
            Scale = 2.00000000000000;
            PatternName = L"BRICK";
            iwHatchPattern->SetHatchOrSolidData( PatternName, Angle, Scale, HatchPatternType, Spacing );
        }
    }
    {
        // AcDbTable object modified
        iwObjectType_e type16;
        iwTable_ptr iwtable11;
        iwDoc->GetObjectByHandle(L"31", &type16, &iwtable11);
        {
            bool bRetVal;
            iwtable11->InsertRow( 2, 0.50000000000000, &bRetVal );
            iwtable11->SetText( 2, 0, L"Kitchen" );
            iwtable11->SetText( 2, 0, L"Kitchen" );
            iwtable11->SetRowHeightAt( 2, 0.50000000000000 );
        }
    }
    {
        // AcDbMText object modified
        iwObjectType_e type18;
        iwLeader_ptr iwleader13;
        iwDoc->GetObjectByHandle(L"33", &type18, &iwleader13);
        iwNote_ptr iwnote12;
        iwleader13->GetNoteAnnotation( &iwnote12 );
        {
            iwnote12->put_Text( L"see detail B" );
        }
    }
    iwNote_ptr iwnote14;
    {
        iwStringArray strArray19;
        strArray19.add(L"Bath");
        iwSketchManager->InsertNote( 1.00000000000000, 3.00000000000000, 0.00000000000000, 5.00000000000000, 2.75000000000000, 0.00000000000000, strArray19, &iwnote14 );
        iwnote14->put_Width( 4.00000000000000 );
        iwnote14->put_TextStyle( L"Room names" );
        {
            iwnote14->put_Layer( L"Walls existing" );
        }
    }
    iwObjectType_e type20;
    iwCircle_ptr iwcircle15;
    iwDoc->GetObjectByHandle(L"2C", &type20, &iwcircle15);
    {
        iwcircle15->put_Radius( 0.75000000000000 );
    }
    {
        // AcDbRotatedDimension object modified
        iwObjectType_e type21;
        iwRotatedDimension_ptr iwrotateddimension16;
        iwDoc->GetObjectByHandle(L"2F", &type21, &iwrotateddimension16);
        {
            iwGeneralDimension_ptr generalDimension23;
            iwrotateddimension16->GetGeneralDimension( &generalDimension23 );
            generalDimension23->put_Erased( true );
        }
    }
    {
        iwLayerManager_ptr iwLayerManager_2;
        iwDoc->GetLayerManager( &iwLayerManager_2 );
        iwLayer_ptr iwlayer17;
        iwLayerManager_2->GetLayer( L"Scrap", &iwlayer17 );
        iwLayerManager_ptr iwLayerManager25;
        iwDoc->GetLayerManager( &iwLayerManager25 );
        iwString layerName25;
        iwlayer17->get_Name( &layerName25 );
        bool bResult25 = false;
        iwLayerManager25->RemoveLayer( layerName25, &bResult25 );
    }
