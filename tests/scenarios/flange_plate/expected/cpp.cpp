    iwLine_ptr iwline1;
    iwLine_ptr iwline2;
    iwLine_ptr iwline3;
    iwLine_ptr iwline4;
    {
        iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 120.00000000000000, 0.00000000000000, 0.00000000000000, &iwline1 );
        iwColor_ptr iwColor1;
        m_pIwApp->GetColorByIndex( 256, &iwColor1 );
        iwline1->put_Color( iwColor1 );
        iwline1->put_Layer( L"0" );
        iwline1->put_LineStyle( L"Continuous" );
        iwline1->put_LineScale( 1.00000000000000 );
        iwline1->put_LineWeight( iwLnWt_ByLayer );
        iwline1->put_Thickness( 0.00000000000000 );
        iwSketchManager->InsertLine( 120.00000000000000, 0.00000000000000, 0.00000000000000, 120.00000000000000, 80.50000000000000, 0.00000000000000, &iwline2 );
        iwColor_ptr iwColor2;
        m_pIwApp->GetColorByIndex( 256, &iwColor2 );
        iwline2->put_Color( iwColor2 );
        iwline2->put_Layer( L"0" );
        iwline2->put_LineStyle( L"Continuous" );
        iwline2->put_LineScale( 1.00000000000000 );
        iwline2->put_LineWeight( iwLnWt_ByLayer );
        iwline2->put_Thickness( 0.00000000000000 );
        iwSketchManager->InsertLine( 120.00000000000000, 80.50000000000000, 0.00000000000000, 0.00000000000000, 80.50000000000000, 0.00000000000000, &iwline3 );
        iwColor_ptr iwColor3;
        m_pIwApp->GetColorByIndex( 1, &iwColor3 );
        iwline3->put_Color( iwColor3 );
        iwline3->put_Layer( L"0" );
        iwline3->put_LineStyle( L"Continuous" );
        iwline3->put_LineScale( 1.00000000000000 );
        iwline3->put_LineWeight( iwLnWt_ByLayer );
        iwline3->put_Thickness( 0.00000000000000 );
        iwSketchManager->InsertLine( 0.00000000000000, 80.50000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, &iwline4 );
        iwColor_ptr iwColor4;
        m_pIwApp->GetRGBColor( 255, 128, 0, &iwColor4 );
        iwline4->put_Color( iwColor4 );
        iwline4->put_Layer( L"0" );
        iwline4->put_LineStyle( L"Continuous" );
        iwline4->put_LineScale( 1.00000000000000 );
        iwline4->put_LineWeight( iwLnWt_ByLayer );
        iwline4->put_Thickness( 0.00000000000000 );
    }
    iwCircle_ptr iwcircle5;
    iwCircle_ptr iwcircle6;
    {
        iwSketchManager->InsertCircle( 20.00000000000000, 20.00000000000000, 0.00000000000000, 6.25000000000000, &iwcircle5 );
        iwColor_ptr iwColor1;
        m_pIwApp->GetColorByIndex( 256, &iwColor1 );
        iwcircle5->put_Color( iwColor1 );
        iwcircle5->put_Layer( L"0" );
        iwcircle5->put_LineStyle( L"Continuous" );
        iwcircle5->put_LineScale( 1.00000000000000 );
        iwcircle5->put_LineWeight( iwLnWt_ByLayer );
        iwcircle5->put_Thickness( 0.00000000000000 );
        iwSketchManager->InsertCircle( 100.00000000000000, 20.00000000000000, 0.00000000000000, 1.00000000000000, &iwcircle6 );
        iwColor_ptr iwColor2;
        m_pIwApp->GetColorByIndex( 256, &iwColor2 );
        iwcircle6->put_Color( iwColor2 );
        iwcircle6->put_Layer( L"0" );
        iwcircle6->put_LineStyle( L"Continuous" );
        iwcircle6->put_LineScale( 1.00000000000000 );
        iwcircle6->put_LineWeight( iwLnWt_ByLayer );
        iwcircle6->put_Thickness( 0.00000000000000 );
    }
    iwCircleArc_ptr iwcirclearc7;
    iwCircleArc_ptr iwcirclearc8;
    {
        iwSketchManager->InsertArc( 60.00000000000000, 40.00000000000000, 0.00000000000000, 15.00000000000000, 0.78539816339745, 2.35619449019234, &iwcirclearc7 );
        iwSketchManager->InsertArc( 60.00000000000000, 40.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, &iwcirclearc8 );
    }
    iwEllipseArc_ptr iwellipsearc10;
    iwEllipseArc_ptr iwellipsearc11;
    {
        iwSketchManager->InsertEllipseDistanceToOtherAxis( 90.00000000000000, 40.00000000000000, 30.00000000000000, 40.00000000000000, 12.50000000000000, &iwellipsearc10 );
        iwSketchManager->InsertEllipseArcDistanceToOtherAxis( 60.10000000000000, 40.20000000000000, 59.90000000000000, 39.80000000000000, 1.00000000000000, 0.00000000000000, 6.28318530717958, &iwellipsearc11 );
    }
    iwPoint_ptr iwpoint12;
    iwPoint_ptr iwpoint13;
    {
        iwSketchManager->InsertPoint( -0.00000000000000, 0.00000000000000, 0.00000000000001, &iwpoint12 );
        iwSketchManager->InsertPoint( 0.00000000000000, 7.00000000000000, 0.00000000000000, &iwpoint13 );
    }
    iwRay_ptr iwray14;
    {
        iwSketchManager->InsertRay( 1.00000000000000, 2.00000000000000, 3.00000000000000, 4.00000000000000, 5.00000000000000, 6.00000000000000, &iwray14 );
    }
    iwInfiniteLine_ptr iwinfiniteline15;
    {
        iwSketchManager->InsertInfiniteLine( -1.00000000000000, -2.00000000000000, -3.00000000000000, 123456789.12345679104328, 0.00000000000000, 0.33333333333333, &iwinfiniteline15 );
    }
    iwCircle_ptr iwcircle16;
    iwSketchManager->InsertCircle( 10.06250000000000, 11.00003051757813, 0.00000000000000, 2.00000000000000, &iwcircle16 );
    iwColor_ptr iwColor1;
    m_pIwApp->GetColorByIndex( 256, &iwColor1 );
    iwcircle16->put_Color( iwColor1 );
    iwcircle16->put_Layer( L"0" );
    iwcircle16->put_LineStyle( L"Continuous" );
    iwcircle16->put_LineScale( 1.00000000000000 );
    iwcircle16->put_LineWeight( iwLnWt_ByLayer );
    iwcircle16->put_Thickness( 0.00000000000000 );
    // AcDbLine object modified
    {
        double getX2;
        double getY2;
        double getZ2;
        iwline1->GetSecondPoint( &getX2, &getY2, &getZ2 );
        getX2 = 130.00000000000000;
        iwline1->SetSecondPoint( getX2, getY2, getZ2 );
    }
    iwLine_ptr iwline18;
    iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.10000000000000, 0.20000000000000, 0.00000000000000, &iwline18 );
    iwColor_ptr iwColor3;
    m_pIwApp->GetColorByIndex( 256, &iwColor3 );
    iwline18->put_Color( iwColor3 );
    iwline18->put_Layer( L"0" );
    iwline18->put_LineStyle( L"Continuous" );
    iwline18->put_LineScale( 1.00000000000000 );
    iwline18->put_LineWeight( iwLnWt_ByLayer );
    iwline18->put_Thickness( 0.00000000000000 );
