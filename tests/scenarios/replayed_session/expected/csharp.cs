            iwSetCommandOptionResult_e result;
            Line line1;
            {
                MathUtility m_pMathUtil1;
                MathPlane plane1;
                m_pMathUtil1 = iwApp.GetMathUtility();
                plane1 = m_pMathUtil1.CreateYZPlane();
                double x1 = 1.5, y1 = 2, z1 = 1.23457e+06;
                MathPoint basePoint1, defaultPoint1, resultPoint1;
                defaultPoint1 = m_pMathUtil1.CreatePoint( x1, y1, z1);
                basePoint1 = m_pMathUtil1.CreatePoint( 0, 0, 0 );
                CommandMessage cmdMesage1;
                cmdMesage1 = iwApp.GetCommandMessage();
                String resultKeyword1;
                object iwStringArray1 = new object();
                cmdMesage1.PromptForPointOrKeyword( "Specify start point", "Error message", iwStringArray1,
                iwStringArray1, 0, false, defaultPoint1, basePoint1, out resultKeyword1, out resultPoint1, plane1 );

                double x2 = 4, y2 = 3, z2 = 0;
                iwApp.GetCommandMessage().PromptForPoint("Specify corner: ", out x2,out  y2,out z2);
                double x3 = 0, y3 = 0, z3 = 0;
                iwApp.GetCommandMessage().PromptForPoint("Opposite", out x3,out  y3,out z3);
                line1 = iwSketchManager.InsertLine( 1.50000000000000, 2.00000000000000, 0.00000000000000, 4.00000000000000, 3.00000000000000, 0.00000000000000 );
                line1.Color = iwApp.GetColorByIndex( 256 );
                line1.Layer = "0";
                line1.LineStyle = "Continuous";
                line1.LineScale = 1.00000000000000;
                line1.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                line1.Thickness = 0.00000000000000;
            }
            {
                iwObjectType_e type1;
                iwObjectType_e[] types1 =
                {
                iwObjectType_e.iwLineType,
                iwApp.GetObjectType(iwApp.GetActiveDocument().GetObjectByHandle("A0", out type1)),
                };
                object[] entities1 =
                {
                line1,
                iwApp.GetActiveDocument().GetObjectByHandle("A0", out type1),
                };
                iwApp.GetCommandMessage().PromptForSelection(false, "Select Objects: ", "");
                {
                   int count = iwApp.GetActiveDocument().GetSelectionManager().GetSelectedObjectCount(iwSelectionSetType_e.iwSelectionSetType_Previous);
                    types1 = new iwObjectType_e[count];
                    entities1 = new object[count];
                    for (int i = 0; i < count; ++i)
                    {
                        entities1[i] = iwApp.GetActiveDocument().GetSelectionManager().GetSelectedObject(iwSelectionSetType_e.iwSelectionSetType_Previous, i, out types1[i]);
                    }
                }
                double angle2 = 0.5;
                iwApp.GetCommandMessage().PromptForAngle("Specify rotation angle", 0.5, out angle2);
                double angle3 = 0;
                iwApp.GetCommandMessage().PromptForAngle("Specify rotation angle", 0, out angle3);
                double orient4 = 0.25;
                iwApp.GetCommandMessage().PromptForOrientation("Specify orient: ", 0.25, out orient4);
                double distance5 = 12.5;
                iwApp.GetCommandMessage().PromptForDistance("Distance", 12.5, out distance5);
                double distance6 = 1;
                iwApp.GetCommandMessage().PromptForDistance("Distance", 1, out distance6);
            }
            {
                double scale1 = 2;
                iwApp.GetCommandMessage().PromptForDouble("Specify scale", 2,out scale1);
                double scale2 = 1;
                iwApp.GetCommandMessage().PromptForDouble("Specify scale: ", 1,out scale2);
                string text3 = "Part "A"";
                iwApp.GetCommandMessage().PromptForString( true, "Name:", "Part "A"", out text3);
                int color4 = 5;
                iwApp.GetCommandMessage().PromptForInteger("Specify color: ", 5, out color4);
                int integer5 = -3;
                iwApp.GetCommandMessage().PromptForInteger("How many", -3, out integer5);
                double real6 = 1e-07;
                iwApp.GetCommandMessage().PromptForDouble("Ratio", 1e-07, out real6);
            }
            Circle circle2;
            {
                object[] iwlocal0 = new string[2];
                object[] iwglobal0 = new string[2];
                String keyword0 = "Radius";
                iwlocal0[0] = "Radius";
                iwglobal0[0] = "_Radius";
                iwlocal0[1] = "Durchmesser";
                iwglobal0[1] = "_Diameter";

                string value1;
                string ErrorMsg1="";
                iwApp.GetCommandMessage().PromptForKeyword2("Options: Radius",ErrorMsg1,iwglobal0,iwlocal0,1, keyword0, out value1);
                object[] iwlocal1 = new string[0];
                object[] iwglobal1 = new string[0];
                String keyword1 = "";

                string value2;
                string ErrorMsg2="";
                iwApp.GetCommandMessage().PromptForKeyword2("Go on?",ErrorMsg2,iwglobal1,iwlocal1,1, keyword1, out value2);
                circle2 = iwSketchManager.InsertCircle( 1.00000000000000, 2.00000000000000, 0.00000000000000, 3.00000000000000 );
                circle2.Color = iwApp.GetColorByIndex( 256 );
                circle2.Layer = "0";
                circle2.LineStyle = "Continuous";
                circle2.LineScale = 1.00000000000000;
                circle2.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                circle2.Thickness = 0.00000000000000;
            }
            {
                iwSetCommandOptionResult_e result1;
                iwApp.GetActiveDocument().SetCommandOptionBool(iwCommandOptionBool_e.iwCommandOptionBool_EnblBnds, true, out result1);
            }
            {
                iwSetCommandOptionResult_e result2;
                iwApp.GetActiveDocument().SetCommandOptionDouble(iwCommandOptionDouble_e.iwCommandOptionDouble_SetFltRad, 2.5, out result2);
            }
            {
                iwSetCommandOptionResult_e result3;
                iwApp.GetActiveDocument().SetCommandOptionInt8(iwCommandOptionInt8_e.iwCommandOptionInt8_SetDmTolVJst, 1, out result3);
            }
            {
                iwSetCommandOptionResult_e result4;
                iwApp.GetActiveDocument().SetCommandOptionInt16(iwCommandOptionInt16_e.iwCommandOptionInt16_SetCVPORT, 2, out result4);
            }
            {
                iwSetCommandOptionResult_e result5;
                iwApp.GetActiveDocument().SetCommandOptionInt16(iwCommandOptionInt16_e.iwCommandOptionInt16_SetActLClr, 5, out result5);
            }
            {
                iwSetCommandOptionResult_e result6;
                iwApp.GetActiveDocument().SetCommandOptionInt16(iwCommandOptionInt16_e.iwCommandOptionInt16_SetActLClr, 0, out result6);
            }
            {
                iwSetCommandOptionResult_e result7;
                iwApp.GetActiveDocument().SetCommandOptionPoint2D(iwCommandOptionPoint2d_e.iwCommandOptionPoint2d_SetLIMMAX, 420, 297, out result7);
            }
            {
                iwSetCommandOptionResult_e result8;
                iwApp.GetActiveDocument().SetCommandOptionPoint3D(iwCommandOptionPoint3d_e.iwCommandOptionPoint3d_SetINSBASE, 1, 2, 3.5, out result8);
            }
            {
                iwSetCommandOptionResult_e result9;
                iwApp.GetActiveDocument().SetCommandOptionString(iwCommandOptionString_e.iwCommandOptionString_SetCLAYER, "Walls", out result9);
            }

            iwApp.GetApplicationOptions().SetApplicationOptionBool(iwApplicationOptionBool_e.iwApplicationOptionBool_EnblEntSelPreSel, false);

            iwApp.GetApplicationOptions().SetApplicationOptionDouble(iwApplicationOptionDouble_e.iwApplicationOptionDouble_SetPOLARANG, 0.5);

            iwApp.GetApplicationOptions().SetApplicationOptionInt16(iwApplicationOptionInt16_e.iwApplicationOptionInt16_EnblEdgeExtd, 1);

            iwApp.GetApplicationOptions().SetApplicationOptionInt32(iwApplicationOptionInt32_e.iwApplicationOptionInt32_SetSvTm, 15);

            iwApp.GetApplicationOptions().SetApplicationOptionString(iwApplicationOptionString_e.iwApplicationOptionString_SetFONTALT, "simplex.shx");
            {
                iwSetCommandOptionResult_e result10;
                iwApp.GetActiveDocument().SetCommandOptionInt16(iwCommandOptionInt16_e.iwCommandOptionInt16_EnblChmfAng, 1, out result10);
            }
            {
                {
                    InterfaceFiles iwInterfaceFiles_0 = iwApp.GetInterfaceFiles();
                    iwInterfaceFiles_0.MenuFilesPath = "C:\\menus\\my.cuix";
                }

                {
                    SystemFiles iwSystemFiles_0 = iwApp.GetSystemFiles();
                    string sFontsPaths_0 = "C:\fonts";
                    string sFontsPaths_1 = "D:\more";
                    string[] sArrayFontsPaths_0 = new string[] { sFontsPaths_0, sFontsPaths_1 };
                    iwSystemFiles_0.FontsPaths = sArrayFontsPaths_0;
                }

                {
                    DrawingSupportFiles iwDrawingSupportFiles_0 = iwApp.GetDrawingSupportFiles();
                    iwDrawingSupportFiles_0.DrawingTemplateFilesPath = "T:\\tpl";
                }

                {
                    DrawingSupportFiles iwDrawingSupportFiles_1 = iwApp.GetDrawingSupportFiles();
                }

            }
