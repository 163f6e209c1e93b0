    iwLine_ptr iwline1;
    iwSpline_ptr iwspline2;
    {
        iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 40.00000000000000, 0.00000000000000, 0.00000000000000, &iwline1 );
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

        Coordinates1.add(0.00000000000000);Coordinates1.add(60.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(10.00000000000000);Coordinates1.add(65.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(20.00000000000000);Coordinates1.add(60.00000000000000);Coordinates1.add(0.00000000000000);

        iwSketchManager->InsertSpline( Coordinates1, false, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, &iwspline2 );
    }
    iwHatch_ptr iwhatch3;
    {
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

        Coordinates1.add(2.00000000000000);Coordinates1.add(1.00000000000000);
        Coordinates1.add(30.00000000000000);Coordinates1.add(12.50000000000000);

        iwSketchManager->InsertHatchByInternalPoints( Coordinates1, L"ANSI31", 1.50000000000000, 0.78539816339745, &iwhatch3 );
        iwHatchPattern_ptr iwHatchPattern;
        iwhatch3->GetHatchPattern( &iwHatchPattern );

        iwHatchPattern->put_InternalRegionDetection( iwHatchPatternInternalRegionDetection_Outer );
        double x2, y2;
        iwHatchPattern->GetOrigin( &x2, &y2 );
        iwHatchPattern->SetOrigin( 4.00000000000000, y2 );
        double x3, y3;
        iwHatchPattern->GetOrigin( &x3, &y3 );
        iwHatchPattern->SetOrigin( x3, -2.50000000000000 );
        iwColor_ptr iwColor4;
        m_pIwApp->GetColorByIndex( 3, &iwColor4 );
        iwhatch3->put_Color( iwColor4 );
        iwhatch3->put_Layer( L"Planting" );
    }
    iwHatch_ptr iwhatch4;
    {
        iwCircle_ptr hatchCircle_0;
        iwSketchManager->InsertCircle( 10.00000000000000, 10.00000000000000, 0.00000000000000, 2.50000000000000, &hatchCircle_0 );
        iwTable_ptr hatchTable_0;
        iwSketchManager->InsertTable(
         60.00000000000000, 20.00000000000000, 3, 2, 10.00000000000000, 25.00000000000000, (iwTableCellType_e)1, (iwTableCellType_e)2, (iwTableCellType_e)3, &hatchTable_0 );
        iwRegion_ptr hatchRegion_0;
        iwCircle_ptr circle_0;
        iwSketchManager->InsertCircle( 90.00000000000000, 10.00000000000000, 0.00000000000000, 1.00000000000000, &circle_0 );
        iwEllipseArc_ptr ellipse_0;
        iwSketchManager->InsertEllipseDistanceToOtherAxis( 93.00000000000000, 20.00000000000000, 87.00000000000000, 20.00000000000000, 1.00000000000000, &ellipse_0 );
        iwCircleArc_ptr arc_0;
        iwSketchManager->InsertArc( 90.00000000000000, 30.00000000000000, 0.00000000000000, 2.00000000000000, 0.00000000000000, 1.50000000000000, &arc_0 );
        iwLine_ptr line_0;
        iwSketchManager->InsertLine( 90.00000000000000, 40.00000000000000, 0.00000000000000, 95.00000000000000, 40.00000000000000, 0.00000000000000, &line_0 );

        iwObjectPtrArray entitiesArray1;
        entitiesArray1.add(circle_0);
        entitiesArray1.add(ellipse_0);
        entitiesArray1.add(arc_0);
        entitiesArray1.add(line_0);
        iwObjectPtrArray regionArray1;
        iwSketchManager->InsertRegion(entitiesArray1, &regionArray1);
        hatchRegion_0 = (iwRegion_c*)regionArray1[0];

        iwBlockInstance_ptr hatchBlkRef_0;
         iwSketchManager->InsertExternalReference(  L"Tree", 5.00000000000000, 30.00000000000000, 0.00000000000000, 1.00000000000000, 2.00000000000000 ,&hatchBlkRef_0);
        iwBlockInstance_ptr hatchBlkRef_1;
         iwSketchManager->InsertExternalReference(  L"survey.dwg", 15.00000000000000, 30.00000000000000, 1.00000000000000, 1.00000000000000, 1.00000000000000 ,&hatchBlkRef_1);
        iwPolygonMesh_ptr hatchPolygonMesh_0;
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

        Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(1.00000000000000);Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(2.00000000000000);Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(0.00000000000000);Coordinates1.add(1.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(1.00000000000000);Coordinates1.add(1.00000000000000);Coordinates1.add(0.50000000000000);
        Coordinates1.add(2.00000000000000);Coordinates1.add(1.00000000000000);Coordinates1.add(0.00000000000000);

        iwSketchManager->InsertPolygonMesh( 2, 3, Coordinates1, &hatchPolygonMesh_0 );
        iwPolyFaceMesh_ptr hatchPolyFaceMesh_0;
        iwDoubleArray Coordinates2;
        iwLongArray FaceVerticesCountLongArray2;
        iwLongArray FaceVerticesLongArray2;

        Coordinates2.clear();
        FaceVerticesCountLongArray2.clear();
        FaceVerticesLongArray2.clear();

        Coordinates2.add(0.00000000000000);Coordinates2.add(0.00000000000000);Coordinates2.add(0.00000000000000);
        Coordinates2.add(1.00000000000000);Coordinates2.add(0.00000000000000);Coordinates2.add(0.00000000000000);
        Coordinates2.add(1.00000000000000);Coordinates2.add(1.00000000000000);Coordinates2.add(0.00000000000000);
        Coordinates2.add(0.00000000000000);Coordinates2.add(1.00000000000000);Coordinates2.add(0.00000000000000);
        Coordinates2.add(0.50000000000000);Coordinates2.add(0.50000000000000);Coordinates2.add(1.00000000000000);

        FaceVerticesCountLongArray2.add(4);
        FaceVerticesCountLongArray2.add(3);

        FaceVerticesLongArray2.add(1);
        FaceVerticesLongArray2.add(2);
        FaceVerticesLongArray2.add(3);
        FaceVerticesLongArray2.add(4);
        FaceVerticesLongArray2.add(1);
        FaceVerticesLongArray2.add(2);
        FaceVerticesLongArray2.add(5);

        iwSketchManager->InsertPolyFaceMesh( 5, Coordinates2, FaceVerticesCountLongArray2, FaceVerticesLongArray2, &hatchPolyFaceMesh_0 );
        iwSolid_ptr hatchSolid_0;
        iwDoubleArray Coordinates3;
        Coordinates3.clear();

        Coordinates3.add(0.00000000000000);Coordinates3.add(40.00000000000000);Coordinates3.add(0.00000000000000);
        Coordinates3.add(5.00000000000000);Coordinates3.add(40.00000000000000);Coordinates3.add(0.00000000000000);
        Coordinates3.add(0.00000000000000);Coordinates3.add(45.00000000000000);Coordinates3.add(0.00000000000000);
        Coordinates3.add(5.00000000000000);Coordinates3.add(45.00000000000000);Coordinates3.add(0.00000000000000);

        iwSketchManager->InsertSolid( Coordinates3, &hatchSolid_0 );
        iwPolyLine3D_ptr hatchPolyLine3D_0;
        iwDoubleArray Coordinates4;
        Coordinates4.clear();

        Coordinates4.add(0.00000000000000);Coordinates4.add(0.00000000000000);Coordinates4.add(0.00000000000000);
        Coordinates4.add(3.00000000000000);Coordinates4.add(0.00000000000000);Coordinates4.add(1.00000000000000);
        Coordinates4.add(3.00000000000000);Coordinates4.add(3.00000000000000);Coordinates4.add(2.00000000000000);

        iwSketchManager->InsertPolyline3D( Coordinates4, true, &hatchPolyLine3D_0 );
        iwCircleArc_ptr hatchArc_0;
        iwSketchManager->InsertArc( 20.00000000000000, 10.00000000000000, 0.00000000000000, 4.00000000000000, 0.50000000000000, 2.25000000000000, &hatchArc_0 );
        iwPolyLine_ptr hatchPolyline_0;
        iwDoubleArray Coordinates5;
        Coordinates5.clear();

        Coordinates5.add(0.00000000000000);Coordinates5.add(0.00000000000000);
        Coordinates5.add(12.50000000000000);Coordinates5.add(0.00000000000000);
        Coordinates5.add(12.50000000000000);Coordinates5.add(8.00000000000000);
        Coordinates5.add(0.00000000000000);Coordinates5.add(8.00000000000000);

        iwSketchManager->InsertPolyline2D( Coordinates5, true, &hatchPolyline_0 );
        bool bRet6 = false;
        hatchPolyline_0->SetSegmentAngle( 1, 3.14159, &bRet6 );
        bool bRet7 = false;
        hatchPolyline_0->SetSegmentAngle( 3, -1.5708, &bRet7 );
        iwEllipseArc_ptr hatcEllipse_0;
        iwSketchManager->InsertEllipseDistanceToOtherAxis( 36.00000000000000, 10.00000000000000, 24.00000000000000, 10.00000000000000, 5.00000000000000, &hatcEllipse_0 );
        iwEllipseArc_ptr hatcEllipse_1;
        iwSketchManager->InsertEllipseArcDistanceToOtherAxis( 45.00000000000000, 16.00000000000000, 45.00000000000000, 4.00000000000000, 2.00000000000000, 0.00000000000000, 6.28318530717959, &hatcEllipse_1 );
        iwLine_ptr hatchLine_0;
        iwSketchManager->InsertLine( 40.00000000000000, 0.00000000000000, 0.00000000000000, 40.00000000000000, 25.00000000000000, 0.00000000000000, &hatchLine_0 );
        iwLine_ptr hatchLine_1;
        iwSketchManager->InsertLine( 40.00000000000000, 25.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, &hatchLine_1 );
        iwFace_ptr hatchFace_0;
        iwDoubleArray Coordinates8;
        Coordinates8.clear();

        Coordinates8.add(0.00000000000000);Coordinates8.add(0.00000000000000);Coordinates8.add(0.00000000000000);
        Coordinates8.add(1.00000000000000);Coordinates8.add(0.00000000000000);Coordinates8.add(0.00000000000000);
        Coordinates8.add(1.00000000000000);Coordinates8.add(1.00000000000000);Coordinates8.add(0.00000000000000);
        Coordinates8.add(0.00000000000000);Coordinates8.add(1.00000000000000);Coordinates8.add(0.00000000000000);

         iwSketchManager->InsertFace(
         Coordinates8,
         true,
         true,
         false ,true ,&hatchFace_0);
        iwRichLine_ptr hatchRichLine_0;
        iwDoubleArray Coordinates9;
        Coordinates9.clear();

        Coordinates9.add(0.00000000000000);Coordinates9.add(50.00000000000000);Coordinates9.add(0.00000000000000);
        Coordinates9.add(20.00000000000000);Coordinates9.add(50.00000000000000);Coordinates9.add(0.00000000000000);

        iwSketchManager->InsertRichLine( Coordinates9, iwRichLineJustification_Zero, 0.75000000000000, L"Wall", false, &hatchRichLine_0 );
        iwLeader_ptr hatchLeader_0;
        iwDoubleArray Coordinates10;
        Coordinates10.clear();

        Coordinates10.add(70.00000000000000);Coordinates10.add(10.00000000000000);Coordinates10.add(0.00000000000000);
        Coordinates10.add(75.00000000000000);Coordinates10.add(15.00000000000000);Coordinates10.add(0.00000000000000);

        iwSketchManager->InsertLeader( Coordinates10, 12.50000000000000, L"\fArial;Lawn", &hatchLeader_0 );
        iwLeader_ptr hatchLeader_1;
        iwDoubleArray Coordinates11;
        Coordinates11.clear();

        Coordinates11.add(80.00000000000000);Coordinates11.add(10.00000000000000);Coordinates11.add(0.00000000000000);
        Coordinates11.add(85.00000000000000);Coordinates11.add(15.00000000000000);Coordinates11.add(0.00000000000000);

        iwSketchManager->InsertLeader( Coordinates11, 0.00000000000000, L"", &hatchLeader_1 );
        iwObjectPtrArray iwEntities;
        iwEntities.add(iwline1);
        iwEntities.add(hatchCircle_0);
        iwEntities.add(hatchTable_0);
        iwEntities.add(hatchRegion_0);
        iwEntities.add(hatchBlkRef_0);
        iwEntities.add(hatchBlkRef_1);
        iwEntities.add(hatchPolygonMesh_0);
        iwEntities.add(hatchPolyFaceMesh_0);
        iwEntities.add(hatchSolid_0);
        iwEntities.add(hatchPolyLine3D_0);
        iwEntities.add(hatchArc_0);
        iwEntities.add(hatchPolyline_0);
        iwEntities.add(hatcEllipse_0);
        iwEntities.add(hatcEllipse_1);
        iwEntities.add(hatchLine_0);
        iwEntities.add(hatchLine_1);
        iwEntities.add(hatchFace_0);
        iwEntities.add(hatchRichLine_0);
        iwEntities.add(hatchLeader_0);
        iwEntities.add(hatchLeader_1);

        iwSketchManager->InsertHatchByEntities(
         iwEntities, 
         L"AR-CONC", 
         1.23457e+06, 
         0, 
         &iwhatch4 );
        hatchCircle_0->put_Erased( true );
        hatchTable_0->put_Erased( true );
        hatchRegion_1->put_Erased( true );
        hatchBlkRef_0->put_Erased( true );
        hatchBlkRef_1->put_Erased( true );
        hatchPolygonMesh_0->put_Erased( true );
        hatchPolyFaceMesh_0->put_Erased( true );
        hatchSolid_0->put_Erased( true );
        hatchPolyLine3D_0->put_Erased( true );
        hatchArc_0->put_Erased( true );
        hatchPolyline_0->put_Erased( true );
        hatcEllipse_0->put_Erased( true );
        hatcEllipse_1->put_Erased( true );
        hatchLine_0->put_Erased( true );
        hatchLine_1->put_Erased( true );
        hatchFace_0->put_Erased( true );
        hatchRichLine_0->put_Erased( true );
        hatchLeader_0->put_Erased( true );
        hatchLeader_1->put_Erased( true );

        iwHatchPattern_ptr iwHatchPattern;
        iwhatch4->GetHatchPattern( &iwHatchPattern );
        double x12, y12;
        iwHatchPattern->GetOrigin( &x12, &y12 );
        iwHatchPattern->SetOrigin( 1.00000000000000, y12 );
        iwColor_ptr iwColor13;
        m_pIwApp->GetColorByIndex( 3, &iwColor13 );
        iwhatch4->put_Color( iwColor13 );
        iwhatch4->put_Layer( L"Planting" );
    }
    iwHatch_ptr iwhatch5;
    {
        iwCircle_ptr hatchCircle_1;
        iwSketchManager->InsertCircle( 10.00000000000000, 10.00000000000000, 0.00000000000000, 2.50000000000000, &hatchCircle_1 );
        iwObjectPtrArray iwEntities;
        iwEntities.add(iwline1);
        iwEntities.add(hatchCircle_1);
        iwSketchManager->InsertHatchByEntities(
         iwEntities, 
         L"GRASS", 
         0.1, 
         0.25, 
         &iwhatch5 );

        iwColor_ptr iwColor11;
        m_pIwApp->GetColorByIndex( 3, &iwColor11 );


        iwColor_ptr iwColor21;
        m_pIwApp->GetRGBColor( 12, 200, 255, &iwColor21 );

        iwHatchPattern_ptr iwHatchPattern1;
        iwhatch5->GetHatchPattern( &iwHatchPattern1 );
        iwHatchPattern1->SetGradientData( iwColor11, iwColor21, true, 0.50000000000000);
    }
    iwHatch_ptr iwhatch6;
    {
        iwObjectPtrArray iwEntities;
        iwSketchManager->InsertHatchByEntities(
         iwEntities, 
         L"SOLID", 
         1, 
         0, 
         &iwhatch6 );
    }
    iwHatch_ptr iwhatch7;
    {

        iwPolyLine_ptr hatch_Polyline_0;
        {
            iwDoubleArray Coordinates1;
            Coordinates1.clear();

        Coordinates1.add(0);Coordinates1.add(0);
        Coordinates1.add(12.5);Coordinates1.add(0);
        Coordinates1.add(12.5);Coordinates1.add(8.12346);
        Coordinates1.add(0);Coordinates1.add(8);

            iwSketchManager->InsertPolyline2D( Coordinates1, true, &hatch_Polyline_0 );
        }
        bool bRet2 = false;
        hatch_Polyline_0->SetSegmentAngle( 1, 3.14159, &bRet2 );
        bool bRet3 = false;
        hatch_Polyline_0->SetSegmentAngle( 3, -1.5708, &bRet3 );

        iwObjectPtrArray iwEntities;
        iwEntities.add( hatch_Polyline_0 );
        iwSketchManager->InsertHatchByEntities(
         iwEntities, 
         L"GRAVEL", 
         2, 
         0, &iwhatch7 );

        hatch_Polyline_0->put_Erased( true );

        iwColor_ptr iwColor14;
        m_pIwApp->GetRGBColor( 255, 0, 0, &iwColor14 );


        iwColor_ptr iwColor24;
        m_pIwApp->GetColorByIndex( 7, &iwColor24 );

        iwHatchPattern_ptr iwHatchPattern4;
        iwhatch7->GetHatchPattern( &iwHatchPattern4 );
        iwHatchPattern4->SetGradientData( iwColor14, iwColor24, false, 1.25000000000000);
    }
    iwHatch_ptr iwhatch8;
    {

        iwPolyLine_ptr hatch_Polyline_1;
        {
            iwDoubleArray Coordinates1;
            Coordinates1.clear();

        Coordinates1.add(0);Coordinates1.add(0);
        Coordinates1.add(4);Coordinates1.add(0);
        Coordinates1.add(4);Coordinates1.add(3);

            iwSketchManager->InsertPolyline2D( Coordinates1, true, &hatch_Polyline_1 );
        }

        iwObjectPtrArray iwEntities;
        iwEntities.add( hatch_Polyline_1 );
        iwSketchManager->InsertHatchByEntities(
         iwEntities, 
         L"GRAVEL", 
         2, 
         0, &iwhatch8 );
    }
    iwHatch_ptr iwhatch9;
    {
        iwDoubleArray Coordinates1;
        iwLongArray BoundaryPointCountLongArray1;
        BoundaryPointCountLongArray1.clear();
        Coordinates1.clear();

        Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(20.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(20.00000000000000);Coordinates1.add(10.00000000000000);
        Coordinates1.add(0.00000000000000);Coordinates1.add(10.00000000000000);
        Coordinates1.add(5.00000000000000);Coordinates1.add(5.00000000000000);
        Coordinates1.add(8.00000000000000);Coordinates1.add(5.00000000000000);
        Coordinates1.add(8.00000000000000);Coordinates1.add(8.00000000000000);
        Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);

        BoundaryPointCountLongArray1.add(4);
        BoundaryPointCountLongArray1.add(3);

        iwSketchManager->InsertHatchByBoundary( BoundaryPointCountLongArray1, Coordinates1, L"BRICK", 0.75000000000000, 1.57079632679490, &iwhatch9 );

        iwColor_ptr iwColor12;
        m_pIwApp->GetRGBColor( 0, 0, 0, &iwColor12 );


        iwColor_ptr iwColor22;
        m_pIwApp->GetColorByIndex( 1, &iwColor22 );

        iwHatchPattern_ptr iwHatchPattern2;
        iwhatch9->GetHatchPattern( &iwHatchPattern2 );
        iwHatchPattern2->SetGradientData( iwColor12, iwColor22, false, 0.00000000000000);
        iwHatchPattern_ptr iwHatchPattern;
        iwhatch9->GetHatchPattern( &iwHatchPattern );

        iwHatchPattern->put_InternalRegionDetection( iwHatchPatternInternalRegionDetection_Ignore );
    }
    iwHatch_ptr iwhatch11;
    {
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

        Coordinates1.add(50.00000000000000);Coordinates1.add(5.00000000000000);

        iwSketchManager->InsertHatchByInternalPoints( Coordinates1, L"CROSS", 1.00000000000000, 0.00000000000000, &iwhatch11 );

        iwColor_ptr iwColor12;
        m_pIwApp->GetColorByIndex( 5, &iwColor12 );


        iwColor_ptr iwColor22;
        m_pIwApp->GetColorByIndex( 6, &iwColor22 );

        iwHatchPattern_ptr iwHatchPattern2;
        iwhatch11->GetHatchPattern( &iwHatchPattern2 );
        iwHatchPattern2->SetGradientData( iwColor12, iwColor22, true, 0.12500000000000);
    }
    {
        // AcDbHatch object modified
        {
            iwHatchPattern_ptr iwHatchPattern;
            iwhatch3->GetHatchPattern( &iwHatchPattern );
            iwString PatternName;
            double Angle;
            double Scale;
            iwHatchPatternType_e HatchPatternType;
            double Spacing;

            iwHatchPattern->GetHatchOrSolidData( &PatternName, &Angle, &Scale, &HatchPatternType, &Spacing );
            Angle = 0.50000000000000;
            Scale = 3.00000000000000;
            Spacing = 1.25000000000000;
            PatternName = L"ANSI37";
            HatchPatternType = iwHatchPatternType_Predefined;
            iwHatchPattern->SetHatchOrSolidData( PatternName, Angle, Scale, HatchPatternType, Spacing );
        }
    }
    {
        // AcDbHatch object modified
        {
            iwHatchPattern_ptr iwHatchPattern;
            iwhatch5->GetHatchPattern( &iwHatchPattern );

            iwColor_ptr color1;
            iwColor_ptr color2;
            bool bCentered;
            double gradientAngle;

            iwHatchPattern->GetGradientData( &color1, &color2, &bCentered, &gradientAngle);
            m_pIwApp->GetColorByIndex( 2, &color1 );            m_pIwApp->GetRGBColor( 1 ,2 ,3, &color2 );            gradientAngle = 
;            bCentered = 
;
            iwHatchPattern->SetGradientData(color1, color2, bCentered, gradientAngle);
        }
    }
    {
        // AcDbHatch object modified
        iwColor_ptr iwColor1;
        m_pIwApp->GetColorByIndex( 1, &iwColor1 );
        iwhatch4->put_Color( iwColor1 );
        iwHatchPattern_ptr iwHatchPattern;
        iwhatch4->GetHatchPattern( &iwHatchPattern );
        iwString PatternName;
        double Angle;
        double Scale;
        iwHatchPatternType_e HatchPatternType;
        double Spacing;

        iwHatchPattern->GetHatchOrSolidData( &PatternName, &Angle, &Scale, &HatchPatternType, &Spacing );
        HatchPatternType = iwHatchPatternType_Custom;
        iwHatchPattern->SetHatchOrSolidData( PatternName, Angle, Scale, HatchPatternType, Spacing );

        iwColor_ptr color1;
        iwColor_ptr color2;
        bool bCentered;
        double gradientAngle;

        iwHatchPattern->GetGradientData( &color1, &color2, &bCentered, &gradientAngle);
        bCentered = 
;
        iwHatchPattern->SetGradientData(color1, color2, bCentered, gradientAngle);

        iwHatchPattern->put_InternalRegionDetection( iwHatchPatternInternalRegionDetection_Ignore );
        double x2, y2;
        iwHatchPattern->GetOrigin( &x2, &y2 );
        iwHatchPattern->SetOrigin( x2, 7.00000000000000 );
    }
    {
        iwHatchPattern_ptr iwHatchPattern;
        iwhatch9->GetHatchPattern( &iwHatchPattern );
        iwString PatternName;
        double Angle;
        double Scale;
        iwHatchPatternType_e HatchPatternType;
        double Spacing;

        iwHatchPattern->GetHatchOrSolidData( &PatternName, &Angle, &Scale, &HatchPatternType, &Spacing );
        Scale = 2.50000000000000;
        iwHatchPattern->SetHatchOrSolidData( PatternName, Angle, Scale, HatchPatternType, Spacing );
    }
