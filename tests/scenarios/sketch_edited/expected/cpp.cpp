    iwLine_ptr iwline1;
    iwLine_ptr iwline2;
    iwLine_ptr iwline3;
    {
        iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 12.50000000000000, 0.00000000000000, 0.00000000000000, &iwline1 );
        iwColor_ptr iwColor1;
        m_pIwApp->GetColorByIndex( 256, &iwColor1 );
        iwline1->put_Color( iwColor1 );
        iwline1->put_Layer( L"0" );
        iwline1->put_LineStyle( L"Continuous" );
        iwline1->put_LineScale( 1.00000000000000 );
        iwline1->put_LineWeight( iwLnWt_ByLayer );
        iwline1->put_Thickness( 0.00000000000000 );
        iwSketchManager->InsertLine( 12.50000000000000, 0.00000000000000, 0.00000000000000, 12.50000000000000, 8.00000000000000, 0.00000000000000, &iwline2 );
        iwColor_ptr iwColor2;
        m_pIwApp->GetColorByIndex( 256, &iwColor2 );
        iwline2->put_Color( iwColor2 );
        iwline2->put_Layer( L"Walls" );
        iwline2->put_LineStyle( L"Continuous" );
        iwline2->put_LineScale( 1.00000000000000 );
        iwline2->put_LineWeight( iwLnWt_ByLayer );
        iwline2->put_Thickness( 0.00000000000000 );
        iwSketchManager->InsertLine( 12.50000000000000, 8.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, &iwline3 );
        iwColor_ptr iwColor3;
        m_pIwApp->GetColorByIndex( 1, &iwColor3 );
        iwline3->put_Color( iwColor3 );
        iwline3->put_Layer( L"0" );
        iwline3->put_LineStyle( L"DASHED2" );
        iwline3->put_LineScale( 1.00000000000000 );
        iwline3->put_LineWeight( iwLnWt_030 );
        iwline3->put_Thickness( 0.00000000000000 );
    }
    iwCircle_ptr iwcircle4;
    iwCircle_ptr iwcircle5;
    {
        iwSketchManager->InsertCircle( 6.00000000000000, 3.00000000000000, 0.00000000000000, 1.50000000000000, &iwcircle4 );
        iwColor_ptr iwColor1;
        m_pIwApp->GetRGBColor( 255, 128, 0, &iwColor1 );
        iwcircle4->put_Color( iwColor1 );
        iwcircle4->put_Layer( L"0" );
        iwcircle4->put_LineStyle( L"Continuous" );
        iwcircle4->put_LineScale( 1.00000000000000 );
        iwcircle4->put_LineWeight( iwLnWt_ByLayer );
        iwcircle4->put_Thickness( 0.00000000000000 );
        iwSketchManager->InsertCircle( 2.00000000000000, 2.00000000000000, 0.00000000000000, 0.25000000000000, &iwcircle5 );
        iwColor_ptr iwColor2;
        m_pIwApp->GetColorByIndex( 256, &iwColor2 );
        iwcircle5->put_Color( iwColor2 );
        iwcircle5->put_Layer( L"0" );
        iwcircle5->put_LineStyle( L"Continuous" );
        iwcircle5->put_LineScale( 1.00000000000000 );
        iwcircle5->put_LineWeight( iwLnWt_ByLayer );
        iwcircle5->put_Thickness( 0.00000000000000 );
    }
    iwCircleArc_ptr iwcirclearc6;
    {
        iwSketchManager->InsertArc( 6.00000000000000, 3.00000000000000, 0.00000000000000, 4.00000000000000, 0.00000000000000, 1.57079632679490, &iwcirclearc6 );
        iwColor_ptr iwColor1;
        m_pIwApp->GetColorByIndex( 256, &iwColor1 );
        iwcirclearc6->put_Color( iwColor1 );
        iwcirclearc6->put_Layer( L"0" );
        iwcirclearc6->put_LineStyle( L"Continuous" );
        iwcirclearc6->put_LineScale( 1.00000000000000 );
        iwcirclearc6->put_LineWeight( iwLnWt_ByLayer );
        iwcirclearc6->put_Thickness( 0.00000000000000 );
    }
    iwPoint_ptr iwpoint7;
    iwRay_ptr iwray8;
    iwInfiniteLine_ptr iwinfiniteline9;
    iwEllipseArc_ptr iwellipsearc10;
    {
        iwSketchManager->InsertPoint( 1.00000000000000, 2.00000000000000, 3.00000000000000, &iwpoint7 );
        iwColor_ptr iwColor1;
        m_pIwApp->GetColorByIndex( 256, &iwColor1 );
        iwpoint7->put_Color( iwColor1 );
        iwpoint7->put_Layer( L"0" );
        iwpoint7->put_LineStyle( L"Continuous" );
        iwpoint7->put_LineScale( 1.00000000000000 );
        iwpoint7->put_LineWeight( iwLnWt_ByLayer );
        iwpoint7->put_Thickness( 0.00000000000000 );
        iwSketchManager->InsertRay( 0.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 1.00000000000000, 0.00000000000000, &iwray8 );
        iwColor_ptr iwColor2;
        m_pIwApp->GetColorByIndex( 256, &iwColor2 );
        iwray8->put_Color( iwColor2 );
        iwray8->put_Layer( L"0" );
        iwray8->put_LineStyle( L"Continuous" );
        iwray8->put_LineScale( 1.00000000000000 );
        iwray8->put_LineWeight( iwLnWt_ByLayer );
        iwray8->put_Thickness( 0.00000000000000 );
        iwSketchManager->InsertInfiniteLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 0.00000000000000, &iwinfiniteline9 );
        iwColor_ptr iwColor3;
        m_pIwApp->GetColorByIndex( 256, &iwColor3 );
        iwinfiniteline9->put_Color( iwColor3 );
        iwinfiniteline9->put_Layer( L"0" );
        iwinfiniteline9->put_LineStyle( L"Continuous" );
        iwinfiniteline9->put_LineScale( 1.00000000000000 );
        iwinfiniteline9->put_LineWeight( iwLnWt_ByLayer );
        iwinfiniteline9->put_Thickness( 0.00000000000000 );
        iwSketchManager->InsertEllipseDistanceToOtherAxis( 3.00000000000000, 0.00000000000000, -3.00000000000000, 0.00000000000000, 1.00000000000000, &iwellipsearc10 );
        iwColor_ptr iwColor4;
        m_pIwApp->GetColorByIndex( 256, &iwColor4 );
        iwellipsearc10->put_Color( iwColor4 );
        iwellipsearc10->put_Layer( L"0" );
        iwellipsearc10->put_LineStyle( L"Continuous" );
        iwellipsearc10->put_LineScale( 1.00000000000000 );
        iwellipsearc10->put_LineWeight( iwLnWt_ByLayer );
        iwellipsearc10->put_Thickness( 0.00000000000000 );
    }
    {
        // AcDbLine object modified
        {
            iwline1->put_Layer( L"Hidden édges" );
        }
    }
    {
        // AcDbLine object modified
        iwColor_ptr iwColor1;
        m_pIwApp->GetColorByIndex( 5, &iwColor1 );
        iwline2->put_Color( iwColor1 );
        // AcDbLine object modified
        iwColor_ptr iwColor2;
        m_pIwApp->GetColorByIndex( 0, &iwColor2 );
        iwline3->put_Color( iwColor2 );
        iwline3->put_PrintStyle( L"Style_1" );
        iwTransparency_ptr iwTransparency0;
        iwline3->get_Transparency( &iwTransparency0 );
        iwTransparency0->SetByAlpha( 50 );
        iwline3->put_Transparency( iwTransparency0 );
    }
    {
        // AcDbLine object modified
        {
            double getX1;
            double getY1;
            double getZ1;
            iwline1->GetSecondPoint( &getX1, &getY1, &getZ1 );
            getX1 = 13.00000000000000;
            iwline1->SetSecondPoint( getX1, getY1, getZ1 );
            double getX2;
            double getY2;
            double getZ2;
            iwline1->GetSecondPoint( &getX2, &getY2, &getZ2 );
            getY2 = 0.50000000000000;
            iwline1->SetSecondPoint( getX2, getY2, getZ2 );
        }
        // AcDbLine object modified
        {
            double getX3;
            double getY3;
            double getZ3;
            iwline2->GetFirstPoint( &getX3, &getY3, &getZ3 );
            getX3 = 13.00000000000000;
            iwline2->SetFirstPoint( getX3, getY3, getZ3 );
        }
    }
    {
        // AcDbCircle object modified
        {
            iwcircle4->put_Radius( 2.00000000000000 );
            double X1;
            double Y1;
            double Z1;
            iwcircle4->GetCenter( &X1, &Y1, &Z1 );
            Y1 = 4.00000000000000;
            iwcircle4->SetCenter( X1, Y1, Z1 );
            iwcircle4->put_Radius( 2.00000000000000 );
            iwcircle4->put_Radius( 2.00000000000000 );
            iwcircle4->put_Radius( 2.00000000000000 );
        }
    }
    {
        // AcDbArc object modified
        {
            double X1;
            double Y1;
            double Z1;
            iwcirclearc6->GetCenter( &X1, &Y1, &Z1 );
            X1 = 7.00000000000000;
            iwcirclearc6->SetCenter( X1, Y1, Z1 );
            double X2;
            double Y2;
            double Z2;
            iwcirclearc6->GetCenter( &X2, &Y2, &Z2 );
            Y2 = 4.00000000000000;
            iwcirclearc6->SetCenter( X2, Y2, Z2 );
            iwcirclearc6->put_EndAngle( 3.00000000000000 );
            iwcirclearc6->put_StartAngle( 0.50000000000000 );
        }
        // AcDbPoint object modified
        {
            double getX3;
            double getY3;
            double getZ3;
            iwpoint7->GetPosition( &getX3, &getY3, &getZ3 );
            getZ3 = 0.00000000000000;
            iwpoint7->SetPosition( getX3, getY3, getZ3 );
        }
        // AcDbRay object modified
        {
            double X4;
            double Y4;
            double Z4;
            iwray8->GetBasePoint( &X4, &Y4, &Z4 );
            X4 = 1.00000000000000;
            iwray8->SetBasePoint( X4, Y4, Z4 );
            double X5;
            double Y5;
            double Z5;
            iwray8->GetThroughPoint( &X5, &Y5, &Z5 );
            Y5 = 2.00000000000000;
            iwray8->SetThroughPoint( X5, Y5, Z5 );
        }
        // AcDbXline object modified
        {
            double getX6;
            double getY6;
            double getZ6;
            iwinfiniteline9->GetFirstPoint( &getX6, &getY6, &getZ6 );
            getY6 = 1.00000000000000;
            iwinfiniteline9->SetFirstPoint( getX6, getY6, getZ6 );
            double getX7;
            double getY7;
            double getZ7;
            iwinfiniteline9->GetSecondPoint( &getX7, &getY7, &getZ7 );
            getX7 = 2.00000000000000;
            iwinfiniteline9->SetSecondPoint( getX7, getY7, getZ7 );
        }
        // AcDbEllipse object modified
        {
            iwellipsearc10->put_EndAngle( 3.00000000000000 );
            iwellipsearc10->put_MajorRadius( 3.50000000000000 );
        }
    }
    {
        // AcDbCircle object modified
        {
            iwTransparency_ptr iwTransparency1;
            iwcircle5->get_Transparency( &iwTransparency1 );
            iwTransparency1->SetByLayer();
            iwcircle5->put_Transparency( iwTransparency1 );
        }
        // AcDbCircle object modified
        {
            iwTransparency_ptr iwTransparency2;
            iwcircle4->get_Transparency( &iwTransparency2 );
            iwTransparency2->SetByBlock();
            iwcircle4->put_Transparency( iwTransparency2 );
        }
    }
    {
        // AcDbCircle object modified
        {
            iwcircle5->put_Erased( true );
        }
    }
    // AcDbLine object modified
    {
        iwline1->put_LineScale( 2.50000000000000 );
        iwline1->put_Thickness( 0.50000000000000 );
    }
    {
        double getX1;
        double getY1;
        double getZ1;
        iwline2->GetSecondPoint( &getX1, &getY1, &getZ1 );
        getY1 = 9.00000000000000;
        iwline2->SetSecondPoint( getX1, getY1, getZ1 );
    }
