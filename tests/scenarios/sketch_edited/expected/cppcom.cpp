    ILinePtr line1;
    ILinePtr line2;
    ILinePtr line3;
    {
        line1 = iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 12.50000000000000, 0.00000000000000, 0.00000000000000 );
        line1->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        line1->put_Layer( L"0" );
        line1->put_LineStyle( L"Continuous" );
        line1->put_LineScale( 1.00000000000000 );
        line1->put_LineWeight( iwLnWt_ByLayer );
        line1->put_Thickness( 0.00000000000000 );
        line2 = iwSketchManager->InsertLine( 12.50000000000000, 0.00000000000000, 0.00000000000000, 12.50000000000000, 8.00000000000000, 0.00000000000000 );
        line2->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        line2->put_Layer( L"Walls" );
        line2->put_LineStyle( L"Continuous" );
        line2->put_LineScale( 1.00000000000000 );
        line2->put_LineWeight( iwLnWt_ByLayer );
        line2->put_Thickness( 0.00000000000000 );
        line3 = iwSketchManager->InsertLine( 12.50000000000000, 8.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000 );
        line3->put_Color( pConnection->m_IwApp->GetColorByIndex( 1 ) );
        line3->put_Layer( L"0" );
        line3->put_LineStyle( L"DASHED2" );
        line3->put_LineScale( 1.00000000000000 );
        line3->put_LineWeight( iwLnWt_030 );
        line3->put_Thickness( 0.00000000000000 );
    }
    ICirclePtr circle4;
    ICirclePtr circle5;
    {
        circle4 = iwSketchManager->InsertCircle( 6.00000000000000, 3.00000000000000, 0.00000000000000, 1.50000000000000 );
        circle4->put_Color( pConnection->m_IwApp->GetRGBColor( 255, 128, 0 ) );
        circle4->put_Layer( L"0" );
        circle4->put_LineStyle( L"Continuous" );
        circle4->put_LineScale( 1.00000000000000 );
        circle4->put_LineWeight( iwLnWt_ByLayer );
        circle4->put_Thickness( 0.00000000000000 );
        circle5 = iwSketchManager->InsertCircle( 2.00000000000000, 2.00000000000000, 0.00000000000000, 0.25000000000000 );
        circle5->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        circle5->put_Layer( L"0" );
        circle5->put_LineStyle( L"Continuous" );
        circle5->put_LineScale( 1.00000000000000 );
        circle5->put_LineWeight( iwLnWt_ByLayer );
        circle5->put_Thickness( 0.00000000000000 );
    }
    ICircleArcPtr circlearc6;
    {
        circlearc6 = iwSketchManager->InsertArc( 6.00000000000000, 3.00000000000000, 0.00000000000000, 4.00000000000000, 0.00000000000000, 1.57079632679490 );
        circlearc6->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        circlearc6->put_Layer( L"0" );
        circlearc6->put_LineStyle( L"Continuous" );
        circlearc6->put_LineScale( 1.00000000000000 );
        circlearc6->put_LineWeight( iwLnWt_ByLayer );
        circlearc6->put_Thickness( 0.00000000000000 );
    }
    IPointPtr point7;
    IRayPtr ray8;
    IInfiniteLinePtr infiniteline9;
    IEllipseArcPtr ellipsearc10;
    {
        point7 = iwSketchManager->InsertPoint( 1.00000000000000, 2.00000000000000, 3.00000000000000 );
        point7->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        point7->put_Layer( L"0" );
        point7->put_LineStyle( L"Continuous" );
        point7->put_LineScale( 1.00000000000000 );
        point7->put_LineWeight( iwLnWt_ByLayer );
        point7->put_Thickness( 0.00000000000000 );
        ray8 = iwSketchManager->InsertRay( 0.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 1.00000000000000, 0.00000000000000 );
        ray8->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        ray8->put_Layer( L"0" );
        ray8->put_LineStyle( L"Continuous" );
        ray8->put_LineScale( 1.00000000000000 );
        ray8->put_LineWeight( iwLnWt_ByLayer );
        ray8->put_Thickness( 0.00000000000000 );
        infiniteline9 = iwSketchManager->InsertInfiniteLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 0.00000000000000 );
        infiniteline9->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        infiniteline9->put_Layer( L"0" );
        infiniteline9->put_LineStyle( L"Continuous" );
        infiniteline9->put_LineScale( 1.00000000000000 );
        infiniteline9->put_LineWeight( iwLnWt_ByLayer );
        infiniteline9->put_Thickness( 0.00000000000000 );
        ellipsearc10 = iwSketchManager->InsertEllipseDistanceToOtherAxis( 3.00000000000000, 0.00000000000000, -3.00000000000000, 0.00000000000000, 1.00000000000000 );
        ellipsearc10->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        ellipsearc10->put_Layer( L"0" );
        ellipsearc10->put_LineStyle( L"Continuous" );
        ellipsearc10->put_LineScale( 1.00000000000000 );
        ellipsearc10->put_LineWeight( iwLnWt_ByLayer );
        ellipsearc10->put_Thickness( 0.00000000000000 );
    }
    {
        // AcDbLine object modified
        {
            line1->put_Layer( L"Hidden édges" );
        }
    }
    {
        // AcDbLine object modified
        line2->put_Color( pConnection->m_IwApp->GetColorByIndex( 5 ) );
        // AcDbLine object modified
        line3->put_Color( pConnection->m_IwApp->GetColorByIndex( 0 ) );
        line3->put_PrintStyle( L"Style_1" );
        ITransparencyPtr iwTransparency0;
        line3->get_Transparency( &iwTransparency0 );
        iwTransparency0->SetByAlpha( 50 );
        line3->put_Transparency( iwTransparency0 );
    }
    {
        // AcDbLine object modified
        {
            double getX1;
            double getY1;
            double getZ1;
            line1->GetSecondPoint( &getX1, &getY1, &getZ1 );
            getX1 = 13.00000000000000;
            line1->SetSecondPoint( getX1, getY1, getZ1 );
            double getX2;
            double getY2;
            double getZ2;
            line1->GetSecondPoint( &getX2, &getY2, &getZ2 );
            getY2 = 0.50000000000000;
            line1->SetSecondPoint( getX2, getY2, getZ2 );
        }
        // AcDbLine object modified
        {
            double getX3;
            double getY3;
            double getZ3;
            line2->GetFirstPoint( &getX3, &getY3, &getZ3 );
            getX3 = 13.00000000000000;
            line2->SetFirstPoint( getX3, getY3, getZ3 );
        }
    }
    {
        // AcDbCircle object modified
        {
            circle4->put_Radius( 2.00000000000000 );
            double X1;
            double Y1;
            double Z1;
            circle4->GetCenter( &X1, &Y1, &Z1 );
            Y1 = 4.00000000000000;
            circle4->SetCenter( X1, Y1, Z1 );
            
            circle4->put_Radius( 2.00000000000000 );
            circle4->put_Radius( 2.00000000000000 );
            circle4->put_Radius( 2.00000000000000 );
        }
    }
    {
        // AcDbArc object modified
        {
            double X1;
            double Y1;
            double Z1;
            circlearc6->GetCenter( &X1, &Y1, &Z1 );
            X1 = 7.00000000000000;
            circlearc6->SetCenter( X1, Y1, Z1 );
            
            double X2;
            double Y2;
            double Z2;
            circlearc6->GetCenter( &X2, &Y2, &Z2 );
            Y2 = 4.00000000000000;
            circlearc6->SetCenter( X2, Y2, Z2 );
            
            circlearc6->put_EndAngle( 3.00000000000000 );
            circlearc6->put_StartAngle( 0.50000000000000 );
        }
        // AcDbPoint object modified
        {
            double getX3;
            double getY3;
            double getZ3;
            point7->GetPosition( &getX3, &getY3, &getZ3 );
            getZ3 = 0.00000000000000;
            point7->SetPosition( getX3, getY3, getZ3 );
        }
        // AcDbRay object modified
        {
            double X4;
            double Y4;
            double Z4;
            ray8->GetBasePoint( &X4, &Y4, &Z4 );
            X4 = 1.00000000000000;
            ray8->SetBasePoint( X4, Y4, Z4 );
            
            double X5;
            double Y5;
            double Z5;
            ray8->GetThroughPoint( &X5, &Y5, &Z5 );
            Y5 = 2.00000000000000;
            ray8->SetThroughPoint( X5, Y5, Z5 );
            
        }
        // AcDbXline object modified
        {
            double getX6;
            double getY6;
            double getZ6;
            infiniteline9->GetFirstPoint( &getX6, &getY6, &getZ6 );
            getY6 = 1.00000000000000;
            infiniteline9->SetFirstPoint( getX6, getY6, getZ6 );
            double getX7;
            double getY7;
            double getZ7;
            infiniteline9->GetSecondPoint( &getX7, &getY7, &getZ7 );
            getX7 = 2.00000000000000;
            infiniteline9->SetSecondPoint( getX7, getY7, getZ7 );
        }
        // AcDbEllipse object modified
        {
            ellipsearc10->put_EndAngle( 3.00000000000000 );
            ellipsearc10->put_MajorRadius( 3.50000000000000 );
        }
    }
    {
        // AcDbCircle object modified
        {
            ITransparencyPtr iwTransparency1;
            circle5->get_Transparency( &iwTransparency1 );
            iwTransparency1->SetByLayer();
            circle5->put_Transparency( iwTransparency1 );
        }
        // AcDbCircle object modified
        {
            ITransparencyPtr iwTransparency2;
            circle4->get_Transparency( &iwTransparency2 );
            iwTransparency2->SetByBlock();
            circle4->put_Transparency( iwTransparency2 );
        }
    }
    {
        // AcDbCircle object modified
        {
            circle5->put_Erased( true );
        }
    }
    // AcDbLine object modified
    {
        line1->put_LineScale( 2.50000000000000 );
        line1->put_Thickness( 0.50000000000000 );
    }
    {
        double getX1;
        double getY1;
        double getZ1;
        line2->GetSecondPoint( &getX1, &getY1, &getZ1 );
        getY1 = 9.00000000000000;
        line2->SetSecondPoint( getX1, getY1, getZ1 );
    }
