    ILinePtr line1;
    ILinePtr line2;
    ILinePtr line3;
    ILinePtr line4;
    {
        line1 = iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 20.00000000000000, 0.00000000000000, 0.00000000000000 );
        line2 = iwSketchManager->InsertLine( 20.00000000000000, 0.00000000000000, 0.00000000000000, 20.00000000000000, 12.00000000000000, 0.00000000000000 );
        line3 = iwSketchManager->InsertLine( 20.00000000000000, 12.00000000000000, 0.00000000000000, 0.00000000000000, 12.00000000000000, 0.00000000000000 );
        line4 = iwSketchManager->InsertLine( 0.00000000000000, 12.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000 );
    }
    ILinePtr line5;
    ILinePtr line6;
    {
        line5 = iwSketchManager->InsertLine( 8.00000000000000, -3.00000000000000, 0.00000000000000, 8.00000000000000, 15.00000000000000, 0.00000000000000 );
        line6 = iwSketchManager->InsertLine( 14.00000000000000, -3.00000000000000, 0.00000000000000, 14.00000000000000, 15.00000000000000, 0.00000000000000 );
    }
    ICirclePtr circle7;
    {
        circle7 = iwSketchManager->InsertCircle( 8.00000000000000, 6.00000000000000, 0.00000000000000, 3.00000000000000 );
    }
    IPolyLinePtr polyline8;
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 6 );
        long rgIndices1;
        rgIndices1 = -1;
        double x, y;
        x=0.00000000000000; y=20.00000000000000;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=20.00000000000000; y=20.00000000000000;
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=20.00000000000000; y=24.00000000000000;
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );

        polyline8=iwSketchManager->InsertPolyline2D( variant1, false);
    }
    IEllipseArcPtr ellipsearc9;
    {
        ellipsearc9 = iwSketchManager->InsertEllipseDistanceToOtherAxis( 17.00000000000000, 30.00000000000000, 5.00000000000000, 30.00000000000000, 2.00000000000000 );
    }
    IPolyLine3DPtr polyline3d10;
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 9 );
        long rgIndices1;
        rgIndices1 = -1;
        double x_1, y_1, z_1;
        x_1=0.00000000000000; y_1=40.00000000000000; z_1=1.00000000000000;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=20.00000000000000; y_1=40.00000000000000; z_1=1.00000000000000;
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=20.00000000000000; y_1=44.00000000000000; z_1=3.00000000000000;
        rgIndices1=6;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=7;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=8;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );

        polyline3d10 = iwSketchManager->InsertPolyline3D( variant1, false );
    }
    ISplinePtr spline11;
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 9 );
        long rgIndices1;
        rgIndices1 = -1;
        double x_1, y_1, z_1;
        x_1=0.00000000000000; y_1=50.00000000000000; z_1=0.00000000000000;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=10.00000000000000; y_1=54.00000000000000; z_1=0.00000000000000;
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=20.00000000000000; y_1=50.00000000000000; z_1=0.00000000000000;
        rgIndices1=6;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=7;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=8;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );

        spline11 = iwSketchManager->InsertSpline( variant1, false, 1.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 0.00000000000000, 0.00000000000000 );
    }
    IInfiniteLinePtr infiniteline12;
    {
        infiniteline12 = iwSketchManager->InsertInfiniteLine( 14.00000000000000, 60.00000000000000, 0.00000000000000, 16.00000000000000, 63.00000000000000, 0.00000000000000 );
    }
    {
    }
    ILinePtr line13;
    ILinePtr line14;
    ICircleArcPtr circlearc15;
    IPolyLinePtr polyline16;
    IEllipseArcPtr ellipsearc17;
    IPolyLine3DPtr polyline3d18;
    ISplinePtr spline19;
    IRayPtr ray20;
    {
        VARIANT CuttingEntitiesArray0;
        CuttingEntitiesArray0.vt = ( VT_ARRAY | VT_DISPATCH  );
        CuttingEntitiesArray0.parray = SafeArrayCreateVector( VT_DISPATCH , 0, 2 );
        VARIANT EntitiesToRemoveArray0;
        EntitiesToRemoveArray0.vt = ( VT_ARRAY | VT_DISPATCH  );
        EntitiesToRemoveArray0.parray = SafeArrayCreateVector( VT_DISPATCH , 0, 8 );
        VARIANT PointOnEntityDblArray0;
        PointOnEntityDblArray0.vt = ( VT_ARRAY | VT_R8 );
        PointOnEntityDblArray0.parray = SafeArrayCreateVector( VT_R8, 0, 24 );
        long rgIndices0;
        rgIndices0 = 0;
        IDispatch* val0;
        val0 = line5;
        SafeArrayPutElement( CuttingEntitiesArray0.parray, &rgIndices0, (IDispatch*)(val0) );
        rgIndices0++;
        val0 = line6;
        SafeArrayPutElement( CuttingEntitiesArray0.parray, &rgIndices0, (IDispatch*)(val0) );
        rgIndices0++;

        {
            long rgIndices0;
            rgIndices0 = 0;
            IDispatch* val0;
            val0 = line1;
            SafeArrayPutElement( EntitiesToRemoveArray0.parray, &rgIndices0, (IDispatch*)(val0) );
            rgIndices0++;
            val0 = line3;
            SafeArrayPutElement( EntitiesToRemoveArray0.parray, &rgIndices0, (IDispatch*)(val0) );
            rgIndices0++;
            val0 = circle7;
            SafeArrayPutElement( EntitiesToRemoveArray0.parray, &rgIndices0, (IDispatch*)(val0) );
            rgIndices0++;
            val0 = polyline8;
            SafeArrayPutElement( EntitiesToRemoveArray0.parray, &rgIndices0, (IDispatch*)(val0) );
            rgIndices0++;
            val0 = ellipsearc9;
            SafeArrayPutElement( EntitiesToRemoveArray0.parray, &rgIndices0, (IDispatch*)(val0) );
            rgIndices0++;
            val0 = polyline3d10;
            SafeArrayPutElement( EntitiesToRemoveArray0.parray, &rgIndices0, (IDispatch*)(val0) );
            rgIndices0++;
            val0 = spline11;
            SafeArrayPutElement( EntitiesToRemoveArray0.parray, &rgIndices0, (IDispatch*)(val0) );
            rgIndices0++;
            val0 = infiniteline12;
            SafeArrayPutElement( EntitiesToRemoveArray0.parray, &rgIndices0, (IDispatch*)(val0) );
            rgIndices0++;
        }

        {
            long rgIndices0;
            rgIndices0 = -1;
            double x_0, y_0, z_0;
            x_0=11; y_0=0; z_0=0;
            rgIndices0=0;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(x_0) );
            rgIndices0=1;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(y_0) );
            rgIndices0=2;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(z_0) );
            x_0=11.25; y_0=12; z_0=0;
            rgIndices0=3;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(x_0) );
            rgIndices0=4;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(y_0) );
            rgIndices0=5;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(z_0) );
            x_0=11; y_0=6; z_0=0;
            rgIndices0=6;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(x_0) );
            rgIndices0=7;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(y_0) );
            rgIndices0=8;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(z_0) );
            x_0=11; y_0=20; z_0=0;
            rgIndices0=9;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(x_0) );
            rgIndices0=10;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(y_0) );
            rgIndices0=11;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(z_0) );
            x_0=11; y_0=32; z_0=0;
            rgIndices0=12;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(x_0) );
            rgIndices0=13;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(y_0) );
            rgIndices0=14;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(z_0) );
            x_0=11; y_0=40; z_0=1;
            rgIndices0=15;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(x_0) );
            rgIndices0=16;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(y_0) );
            rgIndices0=17;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(z_0) );
            x_0=11; y_0=51; z_0=0;
            rgIndices0=18;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(x_0) );
            rgIndices0=19;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(y_0) );
            rgIndices0=20;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(z_0) );
            x_0=8; y_0=51; z_0=0;
            rgIndices0=21;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(x_0) );
            rgIndices0=22;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(y_0) );
            rgIndices0=23;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(z_0) );
        }

        {
            iwSetCommandOptionResult_e result;
            pConnection->m_IwApp->GetActiveDocument()->SetCommandOptionInt16(iwCommandOptionInt16_EnblEdgeExtd, 0,&result);
        }
        iwSketchManager->TrimEntities(CuttingEntitiesArray0, EntitiesToRemoveArray0, PointOnEntityDblArray0);

        ISelectionManagerPtr iwSelectionManager = iwDoc->GetSelectionManager();

        iwSelectionManager->GetSelectionFilter()->put_Active( false );

        iwSelectionManager->ClearSelections(iwSelectionSetType_Current);
        iwSelectionManager->ClearSelections(iwSelectionSetType_Previous);

        double epsi = 0.1;
        IMathUtilityPtr iwMathUtility = pConnection->m_IwApp->GetMathUtility();
        double selPts[24];                //selection points
        double prop[48];                  //properties
        selPts[0] = 14;
        selPts[1] = 0;
        selPts[2] = 0;
        selPts[3] = 8;
        selPts[4] = 12;
        selPts[5] = 0;
        selPts[6] = 8;
        selPts[7] = 9;
        selPts[8] = 0;
        selPts[9] = 14;
        selPts[10] = 20;
        selPts[11] = 0;
        selPts[12] = 17;
        selPts[13] = 30;
        selPts[14] = 0;
        selPts[15] = 14;
        selPts[16] = 40;
        selPts[17] = 1;
        selPts[18] = 14;
        selPts[19] = 50;
        selPts[20] = 0;
        selPts[21] = 14;
        selPts[22] = 60;
        selPts[23] = 0;
        prop[0] = 14;
        prop[1] = 0;
        prop[2] = 0;
        prop[3] = 20;
        prop[4] = 0;
        prop[5] = 0;
        prop[6] = 8;
        prop[7] = 12;
        prop[8] = 0;
        prop[9] = 0;
        prop[10] = 12;
        prop[11] = 0;
        prop[12] = 8;
        prop[13] = 6;
        prop[14] = 0;
        prop[15] = 3;
        prop[16] = 1.5708;
        prop[17] = 4.71239;
        prop[18] = 14;
        prop[19] = 20;
        prop[20] = 0;
        prop[21] = 20;
        prop[22] = 20;
        prop[23] = 0;
        prop[24] = 11;
        prop[25] = 30;
        prop[26] = 0;
        prop[27] = 6;
        prop[28] = 2;
        prop[29] = 0;
        prop[30] = 14;
        prop[31] = 40;
        prop[32] = 1;
        prop[33] = 20;
        prop[34] = 40;
        prop[35] = 1;
        prop[36] = 14;
        prop[37] = 50;
        prop[38] = 0;
        prop[39] = 16;
        prop[40] = 52;
        prop[41] = 0;
        prop[42] = 14;
        prop[43] = 60;
        prop[44] = 0;
        prop[45] = 15;
        prop[46] = 61.5;
        prop[47] = 0;
        polyline3d18 = NULL;
        circlearc15 = NULL;
        ellipsearc17 = NULL;
        line13 = NULL;
        line14 = NULL;
        polyline16 = NULL;
        ray20 = NULL;
        spline19 = NULL;
        for (int iNewEnt = 0; iNewEnt < 8; iNewEnt++)
        {
            IMathPointPtr firstPoint = iwMathUtility->CreatePoint(selPts[iNewEnt*3] + epsi, selPts[iNewEnt*3 + 1] + epsi, selPts[iNewEnt*3 + 2]);
            IMathPointPtr secondPoint = iwMathUtility->CreatePoint(selPts[iNewEnt*3] - epsi, selPts[iNewEnt*3 + 1] - epsi, selPts[iNewEnt*3 + 2]);

            iwSelectionManager->SelectByWindow(firstPoint, secondPoint, true);

            long count = iwSelectionManager->GetSelectedObjectCount(iwSelectionSetType_Previous);

            for (int i = 0; i < count; i++)
            {
                iwObjectType_e retObjType;
                IDispatchPtr obj = iwSelectionManager->GetSelectedObject(iwSelectionSetType_Previous, i, &retObjType);
                if (retObjType == iwPolyLine3DType)
        {
            IPolyLine3DPtr polyline3d = obj;
            double firstX, firstY, firstZ, secondX, secondY, secondZ;
            polyline3d->GetVertexCoordinate(0, &firstX, &firstY, &firstZ);
            polyline3d->GetVertexCoordinate(1, &secondX, &secondY, &secondZ);
            if (fabs(firstX - prop[iNewEnt*6]) < epsi &&
                fabs(firstY - prop[iNewEnt*6 + 1]) < epsi &&
                fabs(firstZ - prop[iNewEnt*6 + 2]) < epsi &&
                fabs(secondX - prop[iNewEnt*6 + 3]) < epsi &&
                fabs(secondY - prop[iNewEnt*6 + 4]) < epsi &&
                fabs(secondZ - prop[iNewEnt*6 + 5]) < epsi )
            {
        if (iNewEnt == 5)
            polyline3d18 = polyline3d;
                break;
            }
        }
        else if (retObjType == iwCircleArcType)
        {
            ICircleArcPtr circlearc = obj;
            double centerX, centerY, centerZ, radius, startAngle, endAngle;
            circlearc->GetCenter(&centerX, &centerY, &centerZ);
            circlearc->get_Radius( &radius );
            circlearc->get_StartAngle( &startAngle );
            circlearc->get_EndAngle( &endAngle );
            if (fabs(centerX - prop[iNewEnt*6]) < epsi &&
                fabs(centerY - prop[iNewEnt*6 + 1]) < epsi &&
                fabs(centerZ - prop[iNewEnt*6 + 2]) < epsi &&
                fabs(radius - prop[iNewEnt*6 + 3]) < epsi &&
                fabs(startAngle - prop[iNewEnt*6 + 4]) < epsi &&
                fabs(endAngle - prop[iNewEnt*6 + 5]) < epsi )
            {
        if (iNewEnt == 2)
            circlearc15 = circlearc;
                break;
            }
        }
        else if (retObjType == iwEllipseArcType)
        {
            IEllipseArcPtr ellipsearc = obj;
            double centerX, centerY, centerZ, majorRadius, minorRadius;
            ellipsearc->GetCenter(&centerX, &centerY, &centerZ);
            ellipsearc->get_MajorRadius( &majorRadius );
            ellipsearc->get_MinorRadius( &minorRadius );
            if (fabs(centerX - prop[iNewEnt*6]) < epsi &&
                fabs(centerY - prop[iNewEnt*6 + 1]) < epsi &&
                fabs(centerZ - prop[iNewEnt*6 + 2]) < epsi &&
                fabs(majorRadius - prop[iNewEnt*6 + 3]) < epsi &&
                fabs(minorRadius - prop[iNewEnt*6 + 4]) < epsi )
            {
        if (iNewEnt == 4)
            ellipsearc17 = ellipsearc;
                break;
            }
        }
        else if (retObjType == iwLineType)
        {
            ILinePtr line = obj;
            double firstX, firstY, firstZ, secondX, secondY, secondZ;
            line->GetFirstPoint(&firstX, &firstY, &firstZ);
            line->GetSecondPoint(&secondX, &secondY, &secondZ);
            if (fabs(firstX - prop[iNewEnt*6]) < epsi &&
                fabs(firstY - prop[iNewEnt*6 + 1]) < epsi &&
                fabs(firstZ - prop[iNewEnt*6 + 2]) < epsi &&
                fabs(secondX - prop[iNewEnt*6 + 3]) < epsi &&
                fabs(secondY - prop[iNewEnt*6 + 4]) < epsi &&
                fabs(secondZ - prop[iNewEnt*6 + 5]) < epsi )
            {
        if (iNewEnt == 0)
            line13 = line;
        if (iNewEnt == 1)
            line14 = line;
                break;
            }
        }
        else if (retObjType == iwPolyLineType)
        {
            IPolyLinePtr polyline = obj;
            double firstX, firstY, secondX, secondY;
            polyline->GetVertexCoordinate(0, &firstX, &firstY);
            polyline->GetVertexCoordinate(1, &secondX, &secondY);
            if (fabs(firstX - prop[iNewEnt*6]) < epsi &&
                fabs(firstY - prop[iNewEnt*6 + 1]) < epsi &&
                fabs(secondX - prop[iNewEnt*6 + 3]) < epsi &&
                fabs(secondY - prop[iNewEnt*6 + 4]) < epsi )
            {
        if (iNewEnt == 3)
            polyline16 = polyline;
                break;
            }
        }
        else if (retObjType == iwRayType)
        {
            IRayPtr ray = obj;
            double baseX, baseY, baseZ, throughX, throughY, throughZ;
            ray->GetBasePoint(&baseX, &baseY, &baseZ);
            ray->GetThroughPoint(&throughX, &throughY, &throughZ);
            if (fabs(baseX - prop[iNewEnt*6]) < epsi &&
                fabs(baseY - prop[iNewEnt*6 + 1]) < epsi &&
                fabs(baseZ - prop[iNewEnt*6 + 2]) < epsi &&
                fabs(throughX - prop[iNewEnt*6 + 3]) < epsi &&
                fabs(throughY - prop[iNewEnt*6 + 4]) < epsi &&
                fabs(throughZ - prop[iNewEnt*6 + 5]) < epsi )
            {
        if (iNewEnt == 7)
            ray20 = ray;
                break;
            }
        }
        else if (retObjType == iwSplineType)
        {
            ISplinePtr spline = obj;
            double firstX, firstY, firstZ, secondX, secondY, secondZ;
            spline->GetControlPointCoordinate(0, &firstX, &firstY, &firstZ);
            spline->GetControlPointCoordinate(1, &secondX, &secondY, &secondZ);
            if (fabs(firstX - prop[iNewEnt*6]) < epsi &&
                fabs(firstY - prop[iNewEnt*6 + 1]) < epsi &&
                fabs(firstZ - prop[iNewEnt*6 + 2]) < epsi &&
                fabs(secondX - prop[iNewEnt*6 + 3]) < epsi &&
                fabs(secondY - prop[iNewEnt*6 + 4]) < epsi &&
                fabs(secondZ - prop[iNewEnt*6 + 5]) < epsi )
            {
        if (iNewEnt == 6)
            spline19 = spline;
                break;
            }
        }

            }
            iwSelectionManager->ClearSelections(iwSelectionSetType_Previous);
        }

    }
    {
        // AcDbLine object modified
        {
            line13->put_Layer( L"Walls" );
        }
        // AcDbArc object modified
        {
            circlearc15->put_Layer( L"Walls" );
        }
        // AcDbPolyline object modified
        {
            polyline16->put_Layer( L"Walls" );
        }
    }
    {
        // AcDbEllipse object modified
        {
            ellipsearc17->put_Layer( L"Axes" );
        }
        // AcDb3dPolyline object modified
        {
            polyline3d18->put_Layer( L"Axes" );
        }
    }
    {
        line14->put_Erased( true );
    }
    {
        VARIANT BoundaryEntitiesArray0;
        BoundaryEntitiesArray0.vt = ( VT_ARRAY | VT_DISPATCH  );
        BoundaryEntitiesArray0.parray = SafeArrayCreateVector( VT_DISPATCH , 0, 1 );
        VARIANT EntitiesToExtendArray0;
        EntitiesToExtendArray0.vt = ( VT_ARRAY | VT_DISPATCH  );
        EntitiesToExtendArray0.parray = SafeArrayCreateVector( VT_DISPATCH , 0, 2 );
        VARIANT PointOnEntityDblArray0;
        PointOnEntityDblArray0.vt = ( VT_ARRAY | VT_R8 );
        PointOnEntityDblArray0.parray = SafeArrayCreateVector( VT_R8, 0, 6 );
        long rgIndices0;
        rgIndices0 = 0;
        IDispatch* val0;
        val0 = line6;
        SafeArrayPutElement( BoundaryEntitiesArray0.parray, &rgIndices0, (IDispatch*)(val0) );
        rgIndices0++;

        {
            long rgIndices0;
            rgIndices0 = 0;
            IDispatch* val0;
            val0 = line1;
            SafeArrayPutElement( EntitiesToExtendArray0.parray, &rgIndices0, (IDispatch*)(val0) );
            rgIndices0++;
            val0 = circlearc15;
            SafeArrayPutElement( EntitiesToExtendArray0.parray, &rgIndices0, (IDispatch*)(val0) );
            rgIndices0++;
        }

        {
            long rgIndices0;
            rgIndices0 = -1;
            double x_0, y_0, z_0;
            x_0=7.5; y_0=0; z_0=0;
            rgIndices0=0;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(x_0) );
            rgIndices0=1;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(y_0) );
            rgIndices0=2;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(z_0) );
            x_0=8; y_0=3; z_0=0;
            rgIndices0=3;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(x_0) );
            rgIndices0=4;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(y_0) );
            rgIndices0=5;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(z_0) );
        }

        {
            iwSetCommandOptionResult_e result;
            pConnection->m_IwApp->GetActiveDocument()->SetCommandOptionInt16(iwCommandOptionInt16_EnblEdgeExtd, 0,&result);
        }
        iwSketchManager->ExtendEntities(BoundaryEntitiesArray0, EntitiesToExtendArray0, PointOnEntityDblArray0);
    }
    {
        VARIANT CuttingEntitiesArray0;
        CuttingEntitiesArray0.vt = ( VT_ARRAY | VT_DISPATCH  );
        CuttingEntitiesArray0.parray = SafeArrayCreateVector( VT_DISPATCH , 0, 1 );
        VARIANT EntitiesToRemoveArray0;
        EntitiesToRemoveArray0.vt = ( VT_ARRAY | VT_DISPATCH  );
        EntitiesToRemoveArray0.parray = SafeArrayCreateVector( VT_DISPATCH , 0, 1 );
        VARIANT PointOnEntityDblArray0;
        PointOnEntityDblArray0.vt = ( VT_ARRAY | VT_R8 );
        PointOnEntityDblArray0.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        long rgIndices0;
        rgIndices0 = 0;
        IDispatch* val0;
        val0 = line2;
        SafeArrayPutElement( CuttingEntitiesArray0.parray, &rgIndices0, (IDispatch*)(val0) );
        rgIndices0++;

        {
            long rgIndices0;
            rgIndices0 = 0;
            IDispatch* val0;
            val0 = line5;
            SafeArrayPutElement( EntitiesToRemoveArray0.parray, &rgIndices0, (IDispatch*)(val0) );
            rgIndices0++;
        }

        {
            long rgIndices0;
            rgIndices0 = -1;
            double x_0, y_0, z_0;
            x_0=8; y_0=14.5; z_0=0;
            rgIndices0=0;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(x_0) );
            rgIndices0=1;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(y_0) );
            rgIndices0=2;
            SafeArrayPutElement( PointOnEntityDblArray0.parray, &rgIndices0, (double*)&(z_0) );
        }

        {
            iwSetCommandOptionResult_e result;
            pConnection->m_IwApp->GetActiveDocument()->SetCommandOptionInt16(iwCommandOptionInt16_EnblEdgeExtd, 0,&result);
        }
        iwSketchManager->TrimEntities(CuttingEntitiesArray0, EntitiesToRemoveArray0, PointOnEntityDblArray0);
    }
    {
        VARIANT firstEntityArray0;
        firstEntityArray0.vt = ( VT_ARRAY | VT_DISPATCH  );
        firstEntityArray0.parray = SafeArrayCreateVector( VT_DISPATCH , 0, 1 );
        VARIANT secondEntityArray0;
        secondEntityArray0.vt = ( VT_ARRAY | VT_DISPATCH  );
        secondEntityArray0.parray = SafeArrayCreateVector( VT_DISPATCH , 0, 1 );
        VARIANT firstPointOnEntityDblArray0;
        firstPointOnEntityDblArray0.vt = ( VT_ARRAY | VT_R8 );
        firstPointOnEntityDblArray0.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        VARIANT secondPointOnEntityDblArray0;
        secondPointOnEntityDblArray0.vt = ( VT_ARRAY | VT_R8 );
        secondPointOnEntityDblArray0.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        long rgIndices0;
        rgIndices0 = 0;
        IDispatch* val0;
        val0 = line2;
        SafeArrayPutElement( firstEntityArray0.parray, &rgIndices0, (IDispatch*)(val0) );
        rgIndices0++;

        {
            long rgIndices0;
            rgIndices0 = 0;
            IDispatch* val0;
            val0 = line3;
            SafeArrayPutElement( secondEntityArray0.parray, &rgIndices0, (IDispatch*)(val0) );
            rgIndices0++;
        }

        {
            long rgIndices0;
            rgIndices0 = -1;
            double x_0, y_0, z_0;
            x_0=20; y_0=10; z_0=0;
            rgIndices0=0;
            SafeArrayPutElement( firstPointOnEntityDblArray0.parray, &rgIndices0, (double*)&(x_0) );
            rgIndices0=1;
            SafeArrayPutElement( firstPointOnEntityDblArray0.parray, &rgIndices0, (double*)&(y_0) );
            rgIndices0=2;
            SafeArrayPutElement( firstPointOnEntityDblArray0.parray, &rgIndices0, (double*)&(z_0) );
        }

        {
            long rgIndices0;
            rgIndices0 = -1;
            double x_0, y_0, z_0;
            x_0=18; y_0=12; z_0=0;
            rgIndices0=0;
            SafeArrayPutElement( secondPointOnEntityDblArray0.parray, &rgIndices0, (double*)&(x_0) );
            rgIndices0=1;
            SafeArrayPutElement( secondPointOnEntityDblArray0.parray, &rgIndices0, (double*)&(y_0) );
            rgIndices0=2;
            SafeArrayPutElement( secondPointOnEntityDblArray0.parray, &rgIndices0, (double*)&(z_0) );
        }

        {
            iwSetCommandOptionResult_e result;
            pConnection->m_IwApp->GetActiveDocument()->SetCommandOptionDouble(iwCommandOptionDouble_SetFltRad, 2.5,&result);
        }
        iwSketchManager->FilletEntities(firstPointOnEntityDblArray0, firstEntityArray0, secondPointOnEntityDblArray0, secondEntityArray0);
    }
    {
        VARIANT firstEntityArray1;
        firstEntityArray1.vt = ( VT_ARRAY | VT_DISPATCH  );
        firstEntityArray1.parray = SafeArrayCreateVector( VT_DISPATCH , 0, 1 );
        VARIANT secondEntityArray1;
        secondEntityArray1.vt = ( VT_ARRAY | VT_DISPATCH  );
        secondEntityArray1.parray = SafeArrayCreateVector( VT_DISPATCH , 0, 1 );
        VARIANT firstPointOnEntityDblArray1;
        firstPointOnEntityDblArray1.vt = ( VT_ARRAY | VT_R8 );
        firstPointOnEntityDblArray1.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        VARIANT secondPointOnEntityDblArray1;
        secondPointOnEntityDblArray1.vt = ( VT_ARRAY | VT_R8 );
        secondPointOnEntityDblArray1.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        long rgIndices1;
        rgIndices1 = 0;
        IDispatch* val1;
        val1 = circlearc15;
        SafeArrayPutElement( firstEntityArray1.parray, &rgIndices1, (IDispatch*)(val1) );
        rgIndices1++;

        {
            long rgIndices1;
            rgIndices1 = 0;
            IDispatch* val1;
            val1 = polyline16;
            SafeArrayPutElement( secondEntityArray1.parray, &rgIndices1, (IDispatch*)(val1) );
            rgIndices1++;
        }

        {
            long rgIndices1;
            rgIndices1 = -1;
            double x_1, y_1, z_1;
            x_1=5; y_1=6; z_1=0;
            rgIndices1=0;
            SafeArrayPutElement( firstPointOnEntityDblArray1.parray, &rgIndices1, (double*)&(x_1) );
            rgIndices1=1;
            SafeArrayPutElement( firstPointOnEntityDblArray1.parray, &rgIndices1, (double*)&(y_1) );
            rgIndices1=2;
            SafeArrayPutElement( firstPointOnEntityDblArray1.parray, &rgIndices1, (double*)&(z_1) );
        }

        {
            long rgIndices1;
            rgIndices1 = -1;
            double x_1, y_1, z_1;
            x_1=15.5; y_1=20; z_1=0;
            rgIndices1=0;
            SafeArrayPutElement( secondPointOnEntityDblArray1.parray, &rgIndices1, (double*)&(x_1) );
            rgIndices1=1;
            SafeArrayPutElement( secondPointOnEntityDblArray1.parray, &rgIndices1, (double*)&(y_1) );
            rgIndices1=2;
            SafeArrayPutElement( secondPointOnEntityDblArray1.parray, &rgIndices1, (double*)&(z_1) );
        }

        {
            iwSetCommandOptionResult_e result;
            pConnection->m_IwApp->GetActiveDocument()->SetCommandOptionDouble(iwCommandOptionDouble_SetFltRad, 2.5,&result);
        }
        iwSketchManager->FilletEntities(firstPointOnEntityDblArray1, firstEntityArray1, secondPointOnEntityDblArray1, secondEntityArray1);
    }
    {
        VARIANT firstEntityArray0;
        firstEntityArray0.vt = ( VT_ARRAY | VT_DISPATCH  );
        firstEntityArray0.parray = SafeArrayCreateVector( VT_DISPATCH , 0, 1 );
        VARIANT secondEntityArray0;
        secondEntityArray0.vt = ( VT_ARRAY | VT_DISPATCH  );
        secondEntityArray0.parray = SafeArrayCreateVector( VT_DISPATCH , 0, 1 );
        VARIANT firstPointOnEntityDblArray0;
        firstPointOnEntityDblArray0.vt = ( VT_ARRAY | VT_R8 );
        firstPointOnEntityDblArray0.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        VARIANT secondPointOnEntityDblArray0;
        secondPointOnEntityDblArray0.vt = ( VT_ARRAY | VT_R8 );
        secondPointOnEntityDblArray0.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        long rgIndices0;
        rgIndices0 = 0;
        IDispatch* val0;
        val0 = line4;
        SafeArrayPutElement( firstEntityArray0.parray, &rgIndices0, (IDispatch*)(val0) );
        rgIndices0++;

        {
            long rgIndices0;
            rgIndices0 = 0;
            IDispatch* val0;
            val0 = line1;
            SafeArrayPutElement( secondEntityArray0.parray, &rgIndices0, (IDispatch*)(val0) );
            rgIndices0++;
        }

        {
            long rgIndices0;
            rgIndices0 = -1;
            double x_0, y_0, z_0;
            x_0=0; y_0=1.25; z_0=0;
            rgIndices0=0;
            SafeArrayPutElement( firstPointOnEntityDblArray0.parray, &rgIndices0, (double*)&(x_0) );
            rgIndices0=1;
            SafeArrayPutElement( firstPointOnEntityDblArray0.parray, &rgIndices0, (double*)&(y_0) );
            rgIndices0=2;
            SafeArrayPutElement( firstPointOnEntityDblArray0.parray, &rgIndices0, (double*)&(z_0) );
        }

        {
            long rgIndices0;
            rgIndices0 = -1;
            double x_0, y_0, z_0;
            x_0=1.5; y_0=0; z_0=0;
            rgIndices0=0;
            SafeArrayPutElement( secondPointOnEntityDblArray0.parray, &rgIndices0, (double*)&(x_0) );
            rgIndices0=1;
            SafeArrayPutElement( secondPointOnEntityDblArray0.parray, &rgIndices0, (double*)&(y_0) );
            rgIndices0=2;
            SafeArrayPutElement( secondPointOnEntityDblArray0.parray, &rgIndices0, (double*)&(z_0) );
        }

        {
            iwSetCommandOptionResult_e result;
            pConnection->m_IwApp->GetActiveDocument()->SetCommandOptionDouble(iwCommandOptionDouble_SetChmfDst1, 1.5,&result);
        }
        {
            iwSetCommandOptionResult_e result;
            pConnection->m_IwApp->GetActiveDocument()->SetCommandOptionDouble(iwCommandOptionDouble_SetChmfDst2, 2,&result);
        }
        {
            iwSetCommandOptionResult_e result;
            pConnection->m_IwApp->GetActiveDocument()->SetCommandOptionDouble(iwCommandOptionDouble_SetChmfLen, 3,&result);
        }
        {
            iwSetCommandOptionResult_e result;
            pConnection->m_IwApp->GetActiveDocument()->SetCommandOptionDouble(iwCommandOptionDouble_SetChmfAng, 0.785398,&result);
        }
        {
            iwSetCommandOptionResult_e result;
            pConnection->m_IwApp->GetActiveDocument()->SetCommandOptionInt16(iwCommandOptionInt16_EnblChmfAng, 1,&result);
        }
        {
            iwSetCommandOptionResult_e result;
            pConnection->m_IwApp->GetActiveDocument()->SetCommandOptionInt16(iwCommandOptionInt16_EnblFltTrm, 0,&result);
        }
        iwSketchManager->ChamferEntities(firstPointOnEntityDblArray0, firstEntityArray0, secondPointOnEntityDblArray0, secondEntityArray0);
    }
