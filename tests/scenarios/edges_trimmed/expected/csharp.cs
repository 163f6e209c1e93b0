            Line line1;
            Line line2;
            Line line3;
            Line line4;
            {
                line1 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 20.00000000000000, 0.00000000000000, 0.00000000000000 );
                line2 = iwSketchManager.InsertLine( 20.00000000000000, 0.00000000000000, 0.00000000000000, 20.00000000000000, 12.00000000000000, 0.00000000000000 );
                line3 = iwSketchManager.InsertLine( 20.00000000000000, 12.00000000000000, 0.00000000000000, 0.00000000000000, 12.00000000000000, 0.00000000000000 );
                line4 = iwSketchManager.InsertLine( 0.00000000000000, 12.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000 );
            }
            Line line5;
            Line line6;
            {
                line5 = iwSketchManager.InsertLine( 8.00000000000000, -3.00000000000000, 0.00000000000000, 8.00000000000000, 15.00000000000000, 0.00000000000000 );
                line6 = iwSketchManager.InsertLine( 14.00000000000000, -3.00000000000000, 0.00000000000000, 14.00000000000000, 15.00000000000000, 0.00000000000000 );
            }
            Circle circle7;
            {
                circle7 = iwSketchManager.InsertCircle( 8.00000000000000, 6.00000000000000, 0.00000000000000, 3.00000000000000 );
            }
            PolyLine polyline8;
            {
                polyline8 = iwSketchManager.InsertPolyline2D(
                 new double[]{0.00000000000000,20.00000000000000,20.00000000000000,20.00000000000000,20.00000000000000,24.00000000000000},
                 false );
            }
            EllipseArc ellipsearc9;
            {
                ellipsearc9 = iwSketchManager.InsertEllipseDistanceToOtherAxis( 17.00000000000000, 30.00000000000000, 5.00000000000000, 30.00000000000000, 2.00000000000000 );
            }
            PolyLine3D polyline3d10;
            {
                polyline3d10 = iwSketchManager.InsertPolyline3D(
                 new double[]{0.00000000000000,40.00000000000000,1.00000000000000,20.00000000000000,40.00000000000000,1.00000000000000,20.00000000000000,44.00000000000000,3.00000000000000},
                 false );
            }
            Spline spline11;
            {
                spline11 = iwSketchManager.InsertSpline(
                 new double[]{0.00000000000000,50.00000000000000,0.00000000000000,10.00000000000000,54.00000000000000,0.00000000000000,20.00000000000000,50.00000000000000,0.00000000000000}, 
                 false, 
                 1.00000000000000, 
                 0.00000000000000, 
                 0.00000000000000, 
                 1.00000000000000, 
                 0.00000000000000, 
                 0.00000000000000 );
            }
            InfiniteLine infiniteline12;
            {
                infiniteline12 = iwSketchManager.InsertInfiniteLine( 14.00000000000000, 60.00000000000000, 0.00000000000000, 16.00000000000000, 63.00000000000000, 0.00000000000000 );
            }
            {
            }
            Line line13;
            Line line14;
            CircleArc circlearc15;
            PolyLine polyline16;
            EllipseArc ellipsearc17;
            PolyLine3D polyline3d18;
            Spline spline19;
            Ray ray20;
            {
                DispatchWrapper[] CuttingEntitiesArray0;
                DispatchWrapper[] EntitiesToRemoveArray0;
                double[] PointOnEntityDblArray0;
                CuttingEntitiesArray0 = new DispatchWrapper[2];
                EntitiesToRemoveArray0 = new DispatchWrapper[8];
                PointOnEntityDblArray0 = new double[24];

                CuttingEntitiesArray0[0] = new DispatchWrapper(line5);
                CuttingEntitiesArray0[1] = new DispatchWrapper(line6);

                EntitiesToRemoveArray0[0] = new DispatchWrapper(line1);
                EntitiesToRemoveArray0[1] = new DispatchWrapper(line3);
                EntitiesToRemoveArray0[2] = new DispatchWrapper(circle7);
                EntitiesToRemoveArray0[3] = new DispatchWrapper(polyline8);
                EntitiesToRemoveArray0[4] = new DispatchWrapper(ellipsearc9);
                EntitiesToRemoveArray0[5] = new DispatchWrapper(polyline3d10);
                EntitiesToRemoveArray0[6] = new DispatchWrapper(spline11);
                EntitiesToRemoveArray0[7] = new DispatchWrapper(infiniteline12);

                PointOnEntityDblArray0[0] = 11;
                PointOnEntityDblArray0[1] = 0;
                PointOnEntityDblArray0[2] = 0;
                PointOnEntityDblArray0[3] = 11.25;
                PointOnEntityDblArray0[4] = 12;
                PointOnEntityDblArray0[5] = 0;
                PointOnEntityDblArray0[6] = 11;
                PointOnEntityDblArray0[7] = 6;
                PointOnEntityDblArray0[8] = 0;
                PointOnEntityDblArray0[9] = 11;
                PointOnEntityDblArray0[10] = 20;
                PointOnEntityDblArray0[11] = 0;
                PointOnEntityDblArray0[12] = 11;
                PointOnEntityDblArray0[13] = 32;
                PointOnEntityDblArray0[14] = 0;
                PointOnEntityDblArray0[15] = 11;
                PointOnEntityDblArray0[16] = 40;
                PointOnEntityDblArray0[17] = 1;
                PointOnEntityDblArray0[18] = 11;
                PointOnEntityDblArray0[19] = 51;
                PointOnEntityDblArray0[20] = 0;
                PointOnEntityDblArray0[21] = 8;
                PointOnEntityDblArray0[22] = 51;
                PointOnEntityDblArray0[23] = 0;

                {
                    iwSetCommandOptionResult_e result1;
                    iwApp.GetActiveDocument().SetCommandOptionInt16(iwCommandOptionInt16_e.iwCommandOptionInt16_EnblEdgeExtd, 0, out result1);
                }
                iwApp.GetActiveDocument().GetModel().GetSketchManager().TrimEntities(CuttingEntitiesArray0, EntitiesToRemoveArray0, PointOnEntityDblArray0);

                SelectionManager iwSelectionManager = iwDoc.GetSelectionManager();

                iwSelectionManager.GetSelectionFilter().Active = false;

                iwSelectionManager.ClearSelections(iwSelectionSetType_e.iwSelectionSetType_Current);
                iwSelectionManager.ClearSelections(iwSelectionSetType_e.iwSelectionSetType_Previous);

                double epsi = 0.1;
                MathUtility iwMathUtility = iwApp.GetMathUtility();
                double[] selPts = new double[24];                //selection points
                double[] prop = new double[48];                  //properties
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
                polyline3d18 = null;
                circlearc15 = null;
                ellipsearc17 = null;
                line13 = null;
                line14 = null;
                polyline16 = null;
                ray20 = null;
                spline19 = null;
                for (int iNewEnt = 0; iNewEnt < 8; iNewEnt++)
                {
                    MathPoint firstPoint = iwMathUtility.CreatePoint(selPts[iNewEnt*3] + epsi, selPts[iNewEnt*3 + 1] + epsi, selPts[iNewEnt*3 + 2]);
                    MathPoint secondPoint = iwMathUtility.CreatePoint(selPts[iNewEnt*3] - epsi, selPts[iNewEnt*3 + 1] - epsi, selPts[iNewEnt*3 + 2]);

                    iwSelectionManager.SelectByWindow(firstPoint, secondPoint, true);

                    long count = iwSelectionManager.GetSelectedObjectCount(iwSelectionSetType_e.iwSelectionSetType_Previous);

                    for (int i = 0; i < count; i++)
                    {
                        iwObjectType_e retObjType;
                        Object obj = iwSelectionManager.GetSelectedObject(iwSelectionSetType_e.iwSelectionSetType_Previous, i, out retObjType);
                        if (retObjType == iwObjectType_e.iwPolyLine3DType)
                {
                    PolyLine3D polyline3d = (PolyLine3D)obj;
                    double firstX, firstY, firstZ, secondX, secondY, secondZ;
                    polyline3d.GetVertexCoordinate(0, out firstX, out firstY, out firstZ);
                    polyline3d.GetVertexCoordinate(1, out secondX, out secondY, out secondZ);
                    if (Math.Abs(firstX - prop[iNewEnt*6]) < epsi &&
                        Math.Abs(firstY - prop[iNewEnt*6 + 1]) < epsi &&
                        Math.Abs(firstZ - prop[iNewEnt*6 + 2]) < epsi &&
                        Math.Abs(secondX - prop[iNewEnt*6 + 3]) < epsi &&
                        Math.Abs(secondY - prop[iNewEnt*6 + 4]) < epsi &&
                        Math.Abs(secondZ - prop[iNewEnt*6 + 5]) < epsi )
                    {
                if (iNewEnt == 5)
                    polyline3d18 = polyline3d;
                        break;
                    }
                }
                else if (retObjType == iwObjectType_e.iwCircleArcType)
                {
                    CircleArc circlearc = (CircleArc)obj;
                    double centerX, centerY, centerZ;
                    circlearc.GetCenter(out centerX, out centerY, out centerZ);
                    if (Math.Abs(centerX - prop[iNewEnt*6]) < epsi &&
                        Math.Abs(centerY - prop[iNewEnt*6 + 1]) < epsi &&
                        Math.Abs(centerZ - prop[iNewEnt*6 + 2]) < epsi &&
                        Math.Abs(circlearc.Radius - prop[iNewEnt*6 + 3]) < epsi &&
                        Math.Abs(circlearc.StartAngle - prop[iNewEnt*6 + 4]) < epsi &&
                        Math.Abs(circlearc.EndAngle - prop[iNewEnt*6 + 5]) < epsi )
                    {
                if (iNewEnt == 2)
                    circlearc15 = circlearc;
                        break;
                    }
                }
                else if (retObjType == iwObjectType_e.iwEllipseArcType)
                {
                    EllipseArc ellipsearc = (EllipseArc)obj;
                    double centerX, centerY, centerZ;
                    ellipsearc.GetCenter(out centerX, out centerY, out centerZ);
                    if (Math.Abs(centerX - prop[iNewEnt*6]) < epsi &&
                        Math.Abs(centerY - prop[iNewEnt*6 + 1]) < epsi &&
                        Math.Abs(centerZ - prop[iNewEnt*6 + 2]) < epsi &&
                        Math.Abs(ellipsearc.MajorRadius - prop[iNewEnt*6 + 3]) < epsi &&
                        Math.Abs(ellipsearc.MinorRadius - prop[iNewEnt*6 + 4]) < epsi )
                    {
                if (iNewEnt == 4)
                    ellipsearc17 = ellipsearc;
                        break;
                    }
                }
                else if (retObjType == iwObjectType_e.iwLineType)
                {
                    Line line = (Line)obj;
                    double firstX, firstY, firstZ, secondX, secondY, secondZ;
                    line.GetFirstPoint(out firstX, out firstY, out firstZ);
                    line.GetSecondPoint(out secondX, out secondY, out secondZ);
                    if (Math.Abs(firstX - prop[iNewEnt*6]) < epsi &&
                        Math.Abs(firstY - prop[iNewEnt*6 + 1]) < epsi &&
                        Math.Abs(firstZ - prop[iNewEnt*6 + 2]) < epsi &&
                        Math.Abs(secondX - prop[iNewEnt*6 + 3]) < epsi &&
                        Math.Abs(secondY - prop[iNewEnt*6 + 4]) < epsi &&
                        Math.Abs(secondZ - prop[iNewEnt*6 + 5]) < epsi )
                    {
                if (iNewEnt == 0)
                    line13 = line;
                if (iNewEnt == 1)
                    line14 = line;
                        break;
                    }
                }
                else if (retObjType == iwObjectType_e.iwPolyLineType)
                {
                    PolyLine polyline = (PolyLine)obj;
                    double firstX, firstY, secondX, secondY;
                    polyline.GetVertexCoordinate(0, out firstX, out firstY);
                    polyline.GetVertexCoordinate(1, out secondX, out secondY);
                    if (Math.Abs(firstX - prop[iNewEnt*6]) < epsi &&
                        Math.Abs(firstY - prop[iNewEnt*6 + 1]) < epsi &&
                        Math.Abs(secondX - prop[iNewEnt*6 + 3]) < epsi &&
                        Math.Abs(secondY - prop[iNewEnt*6 + 4]) < epsi )
                    {
                if (iNewEnt == 3)
                    polyline16 = polyline;
                        break;
                    }
                }
                else if (retObjType == iwObjectType_e.iwRayType)
                {
                    Ray ray = (Ray)obj;
                    double baseX, baseY, baseZ, throughX, throughY, throughZ;
                    ray.GetBasePoint(out baseX, out baseY, out baseZ);
                    ray.GetThroughPoint(out throughX, out throughY, out throughZ);
                    if (Math.Abs(baseX - prop[iNewEnt*6]) < epsi &&
                        Math.Abs(baseY - prop[iNewEnt*6 + 1]) < epsi &&
                        Math.Abs(baseZ - prop[iNewEnt*6 + 2]) < epsi &&
                        Math.Abs(throughX - prop[iNewEnt*6 + 3]) < epsi &&
                        Math.Abs(throughY - prop[iNewEnt*6 + 4]) < epsi &&
                        Math.Abs(throughZ - prop[iNewEnt*6 + 5]) < epsi )
                    {
                if (iNewEnt == 7)
                    ray20 = ray;
                        break;
                    }
                }
                else if (retObjType == iwObjectType_e.iwSplineType)
                {
                    Spline spline = (Spline)obj;
                    double firstX, firstY, firstZ, secondX, secondY, secondZ;
                    spline.GetControlPointCoordinate(0, out firstX, out firstY, out firstZ);
                    spline.GetControlPointCoordinate(1, out secondX, out secondY, out secondZ);
                    if (Math.Abs(firstX - prop[iNewEnt*6]) < epsi &&
                        Math.Abs(firstY - prop[iNewEnt*6 + 1]) < epsi &&
                        Math.Abs(firstZ - prop[iNewEnt*6 + 2]) < epsi &&
                        Math.Abs(secondX - prop[iNewEnt*6 + 3]) < epsi &&
                        Math.Abs(secondY - prop[iNewEnt*6 + 4]) < epsi &&
                        Math.Abs(secondZ - prop[iNewEnt*6 + 5]) < epsi )
                    {
                if (iNewEnt == 6)
                    spline19 = spline;
                        break;
                    }
                }

                    }
                    iwSelectionManager.ClearSelections(iwSelectionSetType_e.iwSelectionSetType_Previous);
                }

            }
            {
                // AcDbLine object modified
                {
                    line13.Layer = "Walls";
                }
                // AcDbArc object modified
                {
                    circlearc15.Layer = "Walls";
                }
                // AcDbPolyline object modified
                {
                    polyline16.Layer = "Walls";
                }
            }
            {
                // AcDbEllipse object modified
                {
                    ellipsearc17.Layer = "Axes";
                }
                // AcDb3dPolyline object modified
                {
                    polyline3d18.Layer = "Axes";
                }
            }
            {
                line14.Erased = true;
            }
            {
                DispatchWrapper[] BoundaryEntitiesArray0;
                DispatchWrapper[] EntitiesToExtendArray0;
                double[] PointOnEntityDblArray0;
                BoundaryEntitiesArray0 = new DispatchWrapper[1];
                EntitiesToExtendArray0 = new DispatchWrapper[2];
                PointOnEntityDblArray0 = new double[6];

                BoundaryEntitiesArray0[0] = new DispatchWrapper(line6);

                EntitiesToExtendArray0[0] = new DispatchWrapper(line1);
                EntitiesToExtendArray0[1] = new DispatchWrapper(circlearc15);

                PointOnEntityDblArray0[0] = 7.5;
                PointOnEntityDblArray0[1] = 0;
                PointOnEntityDblArray0[2] = 0;
                PointOnEntityDblArray0[3] = 8;
                PointOnEntityDblArray0[4] = 3;
                PointOnEntityDblArray0[5] = 0;

                {
                    iwSetCommandOptionResult_e result1;
                    iwApp.GetActiveDocument().SetCommandOptionInt16(iwCommandOptionInt16_e.iwCommandOptionInt16_EnblEdgeExtd, 0, out result1);
                }
                iwApp.GetActiveDocument().GetModel().GetSketchManager().ExtendEntities(BoundaryEntitiesArray0, EntitiesToExtendArray0, PointOnEntityDblArray0);
            }
            {
                DispatchWrapper[] CuttingEntitiesArray0;
                DispatchWrapper[] EntitiesToRemoveArray0;
                double[] PointOnEntityDblArray0;
                CuttingEntitiesArray0 = new DispatchWrapper[1];
                EntitiesToRemoveArray0 = new DispatchWrapper[1];
                PointOnEntityDblArray0 = new double[3];

                CuttingEntitiesArray0[0] = new DispatchWrapper(line2);

                EntitiesToRemoveArray0[0] = new DispatchWrapper(line5);

                PointOnEntityDblArray0[0] = 8;
                PointOnEntityDblArray0[1] = 14.5;
                PointOnEntityDblArray0[2] = 0;

                {
                    iwSetCommandOptionResult_e result1;
                    iwApp.GetActiveDocument().SetCommandOptionInt16(iwCommandOptionInt16_e.iwCommandOptionInt16_EnblEdgeExtd, 0, out result1);
                }
                iwApp.GetActiveDocument().GetModel().GetSketchManager().TrimEntities(CuttingEntitiesArray0, EntitiesToRemoveArray0, PointOnEntityDblArray0);
            }
            {
                DispatchWrapper[] firstEntityArray0;
                DispatchWrapper[] secondEntityArray0;
                double[] firstPointOnEntityDblArray0;
                double[] secondPointOnEntityDblArray0;
                firstEntityArray0 = new DispatchWrapper[1];
                secondEntityArray0 = new DispatchWrapper[1];
                firstPointOnEntityDblArray0 = new double[3];
                secondPointOnEntityDblArray0 = new double[3];

                firstEntityArray0[0] = new DispatchWrapper(line2);

                secondEntityArray0[0] = new DispatchWrapper(line3);

                firstPointOnEntityDblArray0[0] = 20;
                firstPointOnEntityDblArray0[1] = 10;
                firstPointOnEntityDblArray0[2] = 0;

                secondPointOnEntityDblArray0[0] = 18;
                secondPointOnEntityDblArray0[1] = 12;
                secondPointOnEntityDblArray0[2] = 0;

                {
                    iwSetCommandOptionResult_e result1;
                    iwApp.GetActiveDocument().SetCommandOptionDouble(iwCommandOptionDouble_e.iwCommandOptionDouble_SetFltRad, 2.5, out result1);
                }
                iwApp.GetActiveDocument().GetModel().GetSketchManager().FilletEntities(firstPointOnEntityDblArray0, firstEntityArray0, secondPointOnEntityDblArray0, secondEntityArray0);
            }
            {
                DispatchWrapper[] firstEntityArray1;
                DispatchWrapper[] secondEntityArray1;
                double[] firstPointOnEntityDblArray1;
                double[] secondPointOnEntityDblArray1;
                firstEntityArray1 = new DispatchWrapper[1];
                secondEntityArray1 = new DispatchWrapper[1];
                firstPointOnEntityDblArray1 = new double[3];
                secondPointOnEntityDblArray1 = new double[3];

                firstEntityArray1[0] = new DispatchWrapper(circlearc15);

                secondEntityArray1[0] = new DispatchWrapper(polyline16);

                firstPointOnEntityDblArray1[0] = 5;
                firstPointOnEntityDblArray1[1] = 6;
                firstPointOnEntityDblArray1[2] = 0;

                secondPointOnEntityDblArray1[0] = 15.5;
                secondPointOnEntityDblArray1[1] = 20;
                secondPointOnEntityDblArray1[2] = 0;

                {
                    iwSetCommandOptionResult_e result1;
                    iwApp.GetActiveDocument().SetCommandOptionDouble(iwCommandOptionDouble_e.iwCommandOptionDouble_SetFltRad, 2.5, out result1);
                }
                iwApp.GetActiveDocument().GetModel().GetSketchManager().FilletEntities(firstPointOnEntityDblArray1, firstEntityArray1, secondPointOnEntityDblArray1, secondEntityArray1);
            }
            {
                DispatchWrapper[] firstEntityArray0;
                DispatchWrapper[] secondEntityArray0;
                double[] firstPointOnEntityDblArray0;
                double[] secondPointOnEntityDblArray0;
                firstEntityArray0 = new DispatchWrapper[1];
                secondEntityArray0 = new DispatchWrapper[1];
                firstPointOnEntityDblArray0 = new double[3];
                secondPointOnEntityDblArray0 = new double[3];

                firstEntityArray0[0] = new DispatchWrapper(line4);

                secondEntityArray0[0] = new DispatchWrapper(line1);

                firstPointOnEntityDblArray0[0] = 0;
                firstPointOnEntityDblArray0[1] = 1.25;
                firstPointOnEntityDblArray0[2] = 0;

                secondPointOnEntityDblArray0[0] = 1.5;
                secondPointOnEntityDblArray0[1] = 0;
                secondPointOnEntityDblArray0[2] = 0;

                {
                    iwSetCommandOptionResult_e result1;
                    iwApp.GetActiveDocument().SetCommandOptionDouble(iwCommandOptionDouble_e.iwCommandOptionDouble_SetChmfDst1, 1.5, out result1);
                }
                {
                    iwSetCommandOptionResult_e result2;
                    iwApp.GetActiveDocument().SetCommandOptionDouble(iwCommandOptionDouble_e.iwCommandOptionDouble_SetChmfDst2, 2, out result2);
                }
                {
                    iwSetCommandOptionResult_e result3;
                    iwApp.GetActiveDocument().SetCommandOptionDouble(iwCommandOptionDouble_e.iwCommandOptionDouble_SetChmfLen, 3, out result3);
                }
                {
                    iwSetCommandOptionResult_e result4;
                    iwApp.GetActiveDocument().SetCommandOptionDouble(iwCommandOptionDouble_e.iwCommandOptionDouble_SetChmfAng, 0.785398, out result4);
                }
                {
                    iwSetCommandOptionResult_e result5;
                    iwApp.GetActiveDocument().SetCommandOptionInt16(iwCommandOptionInt16_e.iwCommandOptionInt16_EnblChmfAng, 1, out result5);
                }
                {
                    iwSetCommandOptionResult_e result6;
                    iwApp.GetActiveDocument().SetCommandOptionInt16(iwCommandOptionInt16_e.iwCommandOptionInt16_EnblFltTrm, 0, out result6);
                }
                iwApp.GetActiveDocument().GetModel().GetSketchManager().ChamferEntities(firstPointOnEntityDblArray0, firstEntityArray0, secondPointOnEntityDblArray0, secondEntityArray0);
            }
