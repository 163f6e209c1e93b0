    iwLine_ptr iwline1;
    iwLine_ptr iwline2;
    iwLine_ptr iwline3;
    iwLine_ptr iwline4;
    {
        iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 20.00000000000000, 0.00000000000000, 0.00000000000000, &iwline1 );
        iwSketchManager->InsertLine( 20.00000000000000, 0.00000000000000, 0.00000000000000, 20.00000000000000, 12.00000000000000, 0.00000000000000, &iwline2 );
        iwSketchManager->InsertLine( 20.00000000000000, 12.00000000000000, 0.00000000000000, 0.00000000000000, 12.00000000000000, 0.00000000000000, &iwline3 );
        iwSketchManager->InsertLine( 0.00000000000000, 12.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, &iwline4 );
    }
    iwLine_ptr iwline5;
    iwLine_ptr iwline6;
    {
        iwSketchManager->InsertLine( 8.00000000000000, -3.00000000000000, 0.00000000000000, 8.00000000000000, 15.00000000000000, 0.00000000000000, &iwline5 );
        iwSketchManager->InsertLine( 14.00000000000000, -3.00000000000000, 0.00000000000000, 14.00000000000000, 15.00000000000000, 0.00000000000000, &iwline6 );
    }
    iwCircle_ptr iwcircle7;
    {
        iwSketchManager->InsertCircle( 8.00000000000000, 6.00000000000000, 0.00000000000000, 3.00000000000000, &iwcircle7 );
    }
    iwPolyLine_ptr iwpolyline8;
    {
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

        Coordinates1.add(0.00000000000000);Coordinates1.add(20.00000000000000);
        Coordinates1.add(20.00000000000000);Coordinates1.add(20.00000000000000);
        Coordinates1.add(20.00000000000000);Coordinates1.add(24.00000000000000);

        iwSketchManager->InsertPolyline2D( Coordinates1, false, &iwpolyline8 );
    }
    iwEllipseArc_ptr iwellipsearc9;
    {
        iwSketchManager->InsertEllipseDistanceToOtherAxis( 17.00000000000000, 30.00000000000000, 5.00000000000000, 30.00000000000000, 2.00000000000000, &iwellipsearc9 );
    }
    iwPolyLine3D_ptr iwpolyline3d10;
    {
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

        Coordinates1.add(0.00000000000000);Coordinates1.add(40.00000000000000);Coordinates1.add(1.00000000000000);
        Coordinates1.add(20.00000000000000);Coordinates1.add(40.00000000000000);Coordinates1.add(1.00000000000000);
        Coordinates1.add(20.00000000000000);Coordinates1.add(44.00000000000000);Coordinates1.add(3.00000000000000);

        iwSketchManager->InsertPolyline3D( Coordinates1, false, &iwpolyline3d10 );
    }
    iwSpline_ptr iwspline11;
    {
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

        Coordinates1.add(0.00000000000000);Coordinates1.add(50.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(10.00000000000000);Coordinates1.add(54.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(20.00000000000000);Coordinates1.add(50.00000000000000);Coordinates1.add(0.00000000000000);

        iwSketchManager->InsertSpline( Coordinates1, false, 1.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 0.00000000000000, 0.00000000000000, &iwspline11 );
    }
    iwInfiniteLine_ptr iwinfiniteline12;
    {
        iwSketchManager->InsertInfiniteLine( 14.00000000000000, 60.00000000000000, 0.00000000000000, 16.00000000000000, 63.00000000000000, 0.00000000000000, &iwinfiniteline12 );
    }
    {
    }
    iwLine_ptr iwline13;
    iwLine_ptr iwline14;
    iwCircleArc_ptr iwcirclearc15;
    iwPolyLine_ptr iwpolyline16;
    iwEllipseArc_ptr iwellipsearc17;
    iwPolyLine3D_ptr iwpolyline3d18;
    iwSpline_ptr iwspline19;
    iwRay_ptr iwray20;
    {
        iwObjectPtrArray CuttingEntitiesArray0;
        iwObjectPtrArray EntitiesToRemoveArray0;
        iwDoubleArray PointOnEntityDblArray0;
        CuttingEntitiesArray0.add(iwline5);
        CuttingEntitiesArray0.add(iwline6);

        EntitiesToRemoveArray0.add(iwline1);
        EntitiesToRemoveArray0.add(iwline3);
        EntitiesToRemoveArray0.add(iwcircle7);
        EntitiesToRemoveArray0.add(iwpolyline8);
        EntitiesToRemoveArray0.add(iwellipsearc9);
        EntitiesToRemoveArray0.add(iwpolyline3d10);
        EntitiesToRemoveArray0.add(iwspline11);
        EntitiesToRemoveArray0.add(iwinfiniteline12);

        PointOnEntityDblArray0.add(11);
        PointOnEntityDblArray0.add(0);
        PointOnEntityDblArray0.add(0);
        PointOnEntityDblArray0.add(11.25);
        PointOnEntityDblArray0.add(12);
        PointOnEntityDblArray0.add(0);
        PointOnEntityDblArray0.add(11);
        PointOnEntityDblArray0.add(6);
        PointOnEntityDblArray0.add(0);
        PointOnEntityDblArray0.add(11);
        PointOnEntityDblArray0.add(20);
        PointOnEntityDblArray0.add(0);
        PointOnEntityDblArray0.add(11);
        PointOnEntityDblArray0.add(32);
        PointOnEntityDblArray0.add(0);
        PointOnEntityDblArray0.add(11);
        PointOnEntityDblArray0.add(40);
        PointOnEntityDblArray0.add(1);
        PointOnEntityDblArray0.add(11);
        PointOnEntityDblArray0.add(51);
        PointOnEntityDblArray0.add(0);
        PointOnEntityDblArray0.add(8);
        PointOnEntityDblArray0.add(51);
        PointOnEntityDblArray0.add(0);

        {
            iwSetCommandOptionResult_e result;
            iwDocument_c* iwDoc;
            m_pIwApp->GetActiveDocument(&iwDoc);
            iwDoc->SetCommandOptionInt16(iwCommandOptionInt16_EnblEdgeExtd, 0,&result);
        }
        iwSketchManager->TrimEntities(CuttingEntitiesArray0, EntitiesToRemoveArray0, PointOnEntityDblArray0);

        iwSelectionManager_ptr iwSelectionManager;
        iwDoc->GetSelectionManager( &iwSelectionManager );

        iwSelectionFilter_ptr iwSelectionFilter;
        iwSelectionManager->GetSelectionFilter( &iwSelectionFilter );
        iwSelectionFilter->put_Active( false );

        iwSelectionManager->ClearSelections(iwSelectionSetType_Current);
        iwSelectionManager->ClearSelections(iwSelectionSetType_Previous);

        double epsi = 0.1;
        iwMathUtility_ptr iwMathUtility;
        m_pIwApp->GetMathUtility( &iwMathUtility );
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
        iwpolyline3d18 = NULL;
        iwcirclearc15 = NULL;
        iwellipsearc17 = NULL;
        iwline13 = NULL;
        iwline14 = NULL;
        iwpolyline16 = NULL;
        iwray20 = NULL;
        iwspline19 = NULL;
        for (int iNewEnt = 0; iNewEnt < 8; iNewEnt++)
        {
            iwMathPoint_ptr firstPoint;
            iwMathUtility->CreatePoint(selPts[iNewEnt*3] + epsi, selPts[iNewEnt*3 + 1] + epsi, selPts[iNewEnt*3 + 2], &firstPoint);
            iwMathPoint_ptr secondPoint;
            iwMathUtility->CreatePoint(selPts[iNewEnt*3] - epsi, selPts[iNewEnt*3 + 1] - epsi, selPts[iNewEnt*3 + 2], &secondPoint);

            iwSelectionManager->SelectByWindow(firstPoint, secondPoint, true);

            long count = 0;
            iwSelectionManager->GetSelectedObjectCount(iwSelectionSetType_Previous, &count);

            for (int i = 0; i < count; i++)
            {
                iwObjectType_e retObjType;
                iwObject_c* obj = NULL;
                iwSelectionManager->GetSelectedObject(iwSelectionSetType_Previous, i, &retObjType, &obj);
                if (retObjType == iwPolyLine3DType)
        {
            iwPolyLine3D_c* polyline3d = (iwPolyLine3D_c*)obj;
            double firstX, firstY, firstZ, secondX, secondY, secondZ;
            bool bRetVal = false;
            polyline3d->GetVertexCoordinate(0, &firstX, &firstY, &firstZ, &bRetVal);
            polyline3d->GetVertexCoordinate(1, &secondX, &secondY, &secondZ, &bRetVal);
            if (fabs(firstX - prop[iNewEnt*6]) < epsi &&
                fabs(firstY - prop[iNewEnt*6 + 1]) < epsi &&
                fabs(firstZ - prop[iNewEnt*6 + 2]) < epsi &&
                fabs(secondX - prop[iNewEnt*6 + 3]) < epsi &&
                fabs(secondY - prop[iNewEnt*6 + 4]) < epsi &&
                fabs(secondZ - prop[iNewEnt*6 + 5]) < epsi )
            {
        if (iNewEnt == 5)
            iwpolyline3d18 = polyline3d;
                break;
            }
        }
        else if (retObjType == iwCircleArcType)
        {
            iwCircleArc_c* circlearc = (iwCircleArc_c*)obj;
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
            iwcirclearc15 = circlearc;
                break;
            }
        }
        else if (retObjType == iwEllipseArcType)
        {
            iwEllipseArc_c* ellipsearc = (iwEllipseArc_c*)obj;
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
            iwellipsearc17 = ellipsearc;
                break;
            }
        }
        else if (retObjType == iwLineType)
        {
            iwLine_c* line = (iwLine_c*)obj;
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
            iwline13 = line;
        if (iNewEnt == 1)
            iwline14 = line;
                break;
            }
        }
        else if (retObjType == iwPolyLineType)
        {
            iwPolyLine_c* polyline = (iwPolyLine_c*)obj;
            double firstX, firstY, secondX, secondY;
            polyline->GetVertexCoordinate(0, &firstX, &firstY);
            polyline->GetVertexCoordinate(1, &secondX, &secondY);
            if (fabs(firstX - prop[iNewEnt*6]) < epsi &&
                fabs(firstY - prop[iNewEnt*6 + 1]) < epsi &&
                fabs(secondX - prop[iNewEnt*6 + 3]) < epsi &&
                fabs(secondY - prop[iNewEnt*6 + 4]) < epsi )
            {
        if (iNewEnt == 3)
            iwpolyline16 = polyline;
                break;
            }
        }
        else if (retObjType == iwRayType)
        {
            iwRay_c* ray = (iwRay_c*)obj;
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
            iwray20 = ray;
                break;
            }
        }
        else if (retObjType == iwSplineType)
        {
            iwSpline_c* spline = (iwSpline_c*)obj;
            double firstX, firstY, firstZ, secondX, secondY, secondZ;
            bool bRetVal = false;
            spline->GetControlPointCoordinate(0, &firstX, &firstY, &firstZ, &bRetVal);
            spline->GetControlPointCoordinate(1, &secondX, &secondY, &secondZ, &bRetVal);
            if (fabs(firstX - prop[iNewEnt*6]) < epsi &&
                fabs(firstY - prop[iNewEnt*6 + 1]) < epsi &&
                fabs(firstZ - prop[iNewEnt*6 + 2]) < epsi &&
                fabs(secondX - prop[iNewEnt*6 + 3]) < epsi &&
                fabs(secondY - prop[iNewEnt*6 + 4]) < epsi &&
                fabs(secondZ - prop[iNewEnt*6 + 5]) < epsi )
            {
        if (iNewEnt == 6)
            iwspline19 = spline;
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
            iwline13->put_Layer( L"Walls" );
        }
        // AcDbArc object modified
        {
            iwcirclearc15->put_Layer( L"Walls" );
        }
        // AcDbPolyline object modified
        {
            iwpolyline16->put_Layer( L"Walls" );
        }
    }
    {
        // AcDbEllipse object modified
        {
            iwellipsearc17->put_Layer( L"Axes" );
        }
        // AcDb3dPolyline object modified
        {
            iwpolyline3d18->put_Layer( L"Axes" );
        }
    }
    {
        iwline14->put_Erased( true );
    }
    {
        iwObjectPtrArray BoundaryEntitiesArray0;
        iwObjectPtrArray EntitiesToExtendArray0;
        iwDoubleArray PointOnEntityDblArray0;
        BoundaryEntitiesArray0.add(iwline6);

        EntitiesToExtendArray0.add(iwline1);
        EntitiesToExtendArray0.add(iwcirclearc15);

        PointOnEntityDblArray0.add(7.5);
        PointOnEntityDblArray0.add(0);
        PointOnEntityDblArray0.add(0);
        PointOnEntityDblArray0.add(8);
        PointOnEntityDblArray0.add(3);
        PointOnEntityDblArray0.add(0);

        {
            iwSetCommandOptionResult_e result;
            iwDocument_c* iwDoc;
            m_pIwApp->GetActiveDocument(&iwDoc);
            iwDoc->SetCommandOptionInt16(iwCommandOptionInt16_EnblEdgeExtd, 0,&result);
        }
        iwSketchManager->ExtendEntities(BoundaryEntitiesArray0, EntitiesToExtendArray0, PointOnEntityDblArray0);
    }
    {
        iwObjectPtrArray CuttingEntitiesArray0;
        iwObjectPtrArray EntitiesToRemoveArray0;
        iwDoubleArray PointOnEntityDblArray0;
        CuttingEntitiesArray0.add(iwline2);

        EntitiesToRemoveArray0.add(iwline5);

        PointOnEntityDblArray0.add(8);
        PointOnEntityDblArray0.add(14.5);
        PointOnEntityDblArray0.add(0);

        {
            iwSetCommandOptionResult_e result;
            iwDocument_c* iwDoc;
            m_pIwApp->GetActiveDocument(&iwDoc);
            iwDoc->SetCommandOptionInt16(iwCommandOptionInt16_EnblEdgeExtd, 0,&result);
        }
        iwSketchManager->TrimEntities(CuttingEntitiesArray0, EntitiesToRemoveArray0, PointOnEntityDblArray0);
    }
    {
        iwObjectPtrArray firstEntityArray0;
        iwObjectPtrArray secondEntityArray0;
        iwDoubleArray firstPointOnEntityDblArray0;
        iwDoubleArray secondPointOnEntityDblArray0;
        firstEntityArray0.add(iwline2);

        secondEntityArray0.add(iwline3);

        firstPointOnEntityDblArray0.add(20);
        firstPointOnEntityDblArray0.add(10);
        firstPointOnEntityDblArray0.add(0);

        secondPointOnEntityDblArray0.add(18);
        secondPointOnEntityDblArray0.add(12);
        secondPointOnEntityDblArray0.add(0);

        {
            iwSetCommandOptionResult_e result;
            iwDocument_c* iwDoc;
            m_pIwApp->GetActiveDocument(&iwDoc);
            iwDoc->SetCommandOptionDouble(iwCommandOptionDouble_SetFltRad, 2.5,&result);
        }
        iwSketchManager->FilletEntities(firstPointOnEntityDblArray0, firstEntityArray0, secondPointOnEntityDblArray0, secondEntityArray0);
    }
    {
        iwObjectPtrArray firstEntityArray1;
        iwObjectPtrArray secondEntityArray1;
        iwDoubleArray firstPointOnEntityDblArray1;
        iwDoubleArray secondPointOnEntityDblArray1;
        firstEntityArray1.add(iwcirclearc15);

        secondEntityArray1.add(iwpolyline16);

        firstPointOnEntityDblArray1.add(5);
        firstPointOnEntityDblArray1.add(6);
        firstPointOnEntityDblArray1.add(0);

        secondPointOnEntityDblArray1.add(15.5);
        secondPointOnEntityDblArray1.add(20);
        secondPointOnEntityDblArray1.add(0);

        {
            iwSetCommandOptionResult_e result;
            iwDocument_c* iwDoc;
            m_pIwApp->GetActiveDocument(&iwDoc);
            iwDoc->SetCommandOptionDouble(iwCommandOptionDouble_SetFltRad, 2.5,&result);
        }
        iwSketchManager->FilletEntities(firstPointOnEntityDblArray1, firstEntityArray1, secondPointOnEntityDblArray1, secondEntityArray1);
    }
    {
        iwObjectPtrArray firstEntityArray0;
        iwObjectPtrArray secondEntityArray0;
        iwDoubleArray firstPointOnEntityDblArray0;
        iwDoubleArray secondPointOnEntityDblArray0;
        firstEntityArray0.add(iwline4);

        secondEntityArray0.add(iwline1);

        firstPointOnEntityDblArray0.add(0);
        firstPointOnEntityDblArray0.add(1.25);
        firstPointOnEntityDblArray0.add(0);

        secondPointOnEntityDblArray0.add(1.5);
        secondPointOnEntityDblArray0.add(0);
        secondPointOnEntityDblArray0.add(0);

        {
            iwSetCommandOptionResult_e result;
            iwDocument_c* iwDoc;
            m_pIwApp->GetActiveDocument(&iwDoc);
            iwDoc->SetCommandOptionDouble(iwCommandOptionDouble_SetChmfDst1, 1.5,&result);
        }
        {
            iwSetCommandOptionResult_e result;
            iwDocument_c* iwDoc;
            m_pIwApp->GetActiveDocument(&iwDoc);
            iwDoc->SetCommandOptionDouble(iwCommandOptionDouble_SetChmfDst2, 2,&result);
        }
        {
            iwSetCommandOptionResult_e result;
            iwDocument_c* iwDoc;
            m_pIwApp->GetActiveDocument(&iwDoc);
            iwDoc->SetCommandOptionDouble(iwCommandOptionDouble_SetChmfLen, 3,&result);
        }
        {
            iwSetCommandOptionResult_e result;
            iwDocument_c* iwDoc;
            m_pIwApp->GetActiveDocument(&iwDoc);
            iwDoc->SetCommandOptionDouble(iwCommandOptionDouble_SetChmfAng, 0.785398,&result);
        }
        {
            iwSetCommandOptionResult_e result;
            iwDocument_c* iwDoc;
            m_pIwApp->GetActiveDocument(&iwDoc);
            iwDoc->SetCommandOptionInt16(iwCommandOptionInt16_EnblChmfAng, 1,&result);
        }
        {
            iwSetCommandOptionResult_e result;
            iwDocument_c* iwDoc;
            m_pIwApp->GetActiveDocument(&iwDoc);
            iwDoc->SetCommandOptionInt16(iwCommandOptionInt16_EnblFltTrm, 0,&result);
        }
        iwSketchManager->ChamferEntities(firstPointOnEntityDblArray0, firstEntityArray0, secondPointOnEntityDblArray0, secondEntityArray0);
    }
