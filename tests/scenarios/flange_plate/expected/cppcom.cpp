    ILinePtr line1;
    ILinePtr line2;
    ILinePtr line3;
    ILinePtr line4;
    {
        line1 = iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 120.00000000000000, 0.00000000000000, 0.00000000000000 );
        line1->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        line1->put_Layer( L"0" );
        line1->put_LineStyle( L"Continuous" );
        line1->put_LineScale( 1.00000000000000 );
        line1->put_LineWeight( iwLnWt_ByLayer );
        line1->put_Thickness( 0.00000000000000 );
        line2 = iwSketchManager->InsertLine( 120.00000000000000, 0.00000000000000, 0.00000000000000, 120.00000000000000, 80.50000000000000, 0.00000000000000 );
        line2->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        line2->put_Layer( L"0" );
        line2->put_LineStyle( L"Continuous" );
        line2->put_LineScale( 1.00000000000000 );
        line2->put_LineWeight( iwLnWt_ByLayer );
        line2->put_Thickness( 0.00000000000000 );
        line3 = iwSketchManager->InsertLine( 120.00000000000000, 80.50000000000000, 0.00000000000000, 0.00000000000000, 80.50000000000000, 0.00000000000000 );
        line3->put_Color( pConnection->m_IwApp->GetColorByIndex( 1 ) );
        line3->put_Layer( L"0" );
        line3->put_LineStyle( L"Continuous" );
        line3->put_LineScale( 1.00000000000000 );
        line3->put_LineWeight( iwLnWt_ByLayer );
        line3->put_Thickness( 0.00000000000000 );
        line4 = iwSketchManager->InsertLine( 0.00000000000000, 80.50000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000 );
        line4->put_Color( pConnection->m_IwApp->GetRGBColor( 255, 128, 0 ) );
        line4->put_Layer( L"0" );
        line4->put_LineStyle( L"Continuous" );
        line4->put_LineScale( 1.00000000000000 );
        line4->put_LineWeight( iwLnWt_ByLayer );
        line4->put_Thickness( 0.00000000000000 );
    }
    ICirclePtr circle5;
    ICirclePtr circle6;
    {
        circle5 = iwSketchManager->InsertCircle( 20.00000000000000, 20.00000000000000, 0.00000000000000, 6.25000000000000 );
        circle5->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        circle5->put_Layer( L"0" );
        circle5->put_LineStyle( L"Continuous" );
        circle5->put_LineScale( 1.00000000000000 );
        circle5->put_LineWeight( iwLnWt_ByLayer );
        circle5->put_Thickness( 0.00000000000000 );
        circle6 = iwSketchManager->InsertCircle( 100.00000000000000, 20.00000000000000, 0.00000000000000, 1.00000000000000 );
        circle6->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        circle6->put_Layer( L"0" );
        circle6->put_LineStyle( L"Continuous" );
        circle6->put_LineScale( 1.00000000000000 );
        circle6->put_LineWeight( iwLnWt_ByLayer );
        circle6->put_Thickness( 0.00000000000000 );
    }
    ICircleArcPtr circlearc7;
    ICircleArcPtr circlearc8;
    {
        circlearc7 = iwSketchManager->InsertArc( 60.00000000000000, 40.00000000000000, 0.00000000000000, 15.00000000000000, 0.78539816339745, 2.35619449019234 );
        circlearc8 = iwSketchManager->InsertArc( 60.00000000000000, 40.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000 );
    }
    IEllipseArcPtr ellipsearc10;
    IEllipseArcPtr ellipsearc11;
    {
        ellipsearc10 = iwSketchManager->InsertEllipseDistanceToOtherAxis( 90.00000000000000, 40.00000000000000, 30.00000000000000, 40.00000000000000, 12.50000000000000 );
        ellipsearc11 = iwSketchManager->InsertEllipseArcDistanceToOtherAxis( 60.10000000000000, 40.20000000000000, 59.90000000000000, 39.80000000000000, 1.00000000000000, 0.00000000000000, 6.28318530717958 );
    }
    IPointPtr point12;
    IPointPtr point13;
    {
        point12 = iwSketchManager->InsertPoint( -0.00000000000000, 0.00000000000000, 0.00000000000001 );
        point13 = iwSketchManager->InsertPoint( 0.00000000000000, 7.00000000000000, 0.00000000000000 );
    }
    IRayPtr ray14;
    {
        ray14 = iwSketchManager->InsertRay( 1.00000000000000, 2.00000000000000, 3.00000000000000, 4.00000000000000, 5.00000000000000, 6.00000000000000 );
    }
    IInfiniteLinePtr infiniteline15;
    {
        infiniteline15 = iwSketchManager->InsertInfiniteLine( -1.00000000000000, -2.00000000000000, -3.00000000000000, 123456789.12345679104328, 0.00000000000000, 0.33333333333333 );
    }
    ICirclePtr circle16;
    circle16 = iwSketchManager->InsertCircle( 10.06250000000000, 11.00003051757813, 0.00000000000000, 2.00000000000000 );
    circle16->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
    circle16->put_Layer( L"0" );
    circle16->put_LineStyle( L"Continuous" );
    circle16->put_LineScale( 1.00000000000000 );
    circle16->put_LineWeight( iwLnWt_ByLayer );
    circle16->put_Thickness( 0.00000000000000 );
    // AcDbLine object modified
    {
        double getX1;
        double getY1;
        double getZ1;
        line1->GetSecondPoint( &getX1, &getY1, &getZ1 );
        getX1 = 130.00000000000000;
        line1->SetSecondPoint( getX1, getY1, getZ1 );
    }
    ILinePtr line18;
    line18 = iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.10000000000000, 0.20000000000000, 0.00000000000000 );
    line18->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
    line18->put_Layer( L"0" );
    line18->put_LineStyle( L"Continuous" );
    line18->put_LineScale( 1.00000000000000 );
    line18->put_LineWeight( iwLnWt_ByLayer );
    line18->put_Thickness( 0.00000000000000 );
