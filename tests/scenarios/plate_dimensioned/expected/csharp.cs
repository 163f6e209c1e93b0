            Line line1;
            Line line2;
            {
                line1 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 120.00000000000000, 0.00000000000000, 0.00000000000000 );
                line2 = iwSketchManager.InsertLine( 120.00000000000000, 0.00000000000000, 0.00000000000000, 150.00000000000000, 60.00000000000000, 0.00000000000000 );
            }
            Circle circle3;
            {
                circle3 = iwSketchManager.InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000 );
            }
            CircleArc circlearc4;
            {
                circlearc4 = iwSketchManager.InsertArc( 90.00000000000000, 30.00000000000000, 0.00000000000000, 20.00000000000000, 0.00000000000000, 1.57079632679490 );
            }
            AlignedDimension aligneddimension5;
            {
                aligneddimension5 = iwSketchManager.InsertAlignedDimension( new double[]{120.00000000000000,0.00000000000000,0.00000000000000}, new double[]{150.00000000000000,60.00000000000000,0.00000000000000}, new double[]{145.00000000000000,25.00000000000000,0.50000000000000}, "<> H7" );
                GeneralDimension generalDimension1 = aligneddimension5.GetGeneralDimension();
                generalDimension1.TextRotation = 0.25000000000000;
                    GeneralDimension generalDimension2 = aligneddimension5.GetGeneralDimension();
                generalDimension2.Color = iwApp.GetColorByIndex( 1 );
                generalDimension2.Layer = "Dimensions";
            }
            RotatedDimension rotateddimension6;
            {
                rotateddimension6 = iwSketchManager.InsertRotatedDimension(
                new double[]{0.00000000000000,0.00000000000000,0.00000000000000},
                new double[]{120.00000000000000,0.00000000000000,0.00000000000000},
                new double[]{60.00000000000000,-15.00000000000000,0.00000000000000},
                "A\\B", 3.14159265358979 );
                {
                    GeneralDimension generalDimension1 = rotateddimension6.GetGeneralDimension();
                    generalDimension1.Layer = "Dimensions";
                }
            }
            OrdinateDimension ordinatedimension7;
            {
                ordinatedimension7 = iwSketchManager.InsertOrdinateDimension(
                new double[]{30.00000000000000,30.00000000000000,0.00000000000000},
                new double[]{30.00000000000000,80.00000000000000,0.00000000000000},
                "", iwOrdinateDimensionMeasure_e.iwOrdinateDimensionMeasure_UseXAxis );
                GeneralDimension generalDimension1 = ordinatedimension7.GetGeneralDimension();
                generalDimension1.TextRotation = 1.50000000000000;
                ordinatedimension7.SetOriginPoint( 10.00000000000000, 5.00000000000000, 0.00000000000000 );
            }
            OrdinateDimension ordinatedimension8;
            {
                ordinatedimension8 = iwSketchManager.InsertOrdinateDimension(
                new double[]{90.00000000000000,30.00000000000000,0.00000000000000},
                new double[]{160.00000000000000,30.00000000000000,0.00000000000000},
                "", iwOrdinateDimensionMeasure_e.iwOrdinateDimensionMeasure_UseYAxis );
            }
            AngularDimension angulardimension9;
            {
                angulardimension9 = iwSketchManager.InsertAngularDimension3Point(
                new double[]{90.12345678900000,30.00000000000000,0.00000000000000},
                new double[]{110.00000000000000,30.00000000000000,0.00000000000000},
                new double[]{90.00000000000000,50.00000000000000,0.00000000000000},
                new double[]{105.00000000000000,45.00000000000000,0.00000000000000}, "" );
            }
            AngularDimension angulardimension10;
            {
                angulardimension10 = iwSketchManager.InsertAngularDimensionArc( circlearc4, 
                new double[]{107.00000000000000,47.00000000000000,0.00000000000000}, "" );
            }
            AngularDimension angulardimension11;
            {
                CircleArc angulardimension11_associated_arc = iwSketchManager.InsertArc( 200.00001250000000, 0.00000000000000, 0.00000000000000, 8.33333333330000, 0.10000000000000, 3.04159265358979 );
                angulardimension11 = iwSketchManager.InsertAngularDimensionArc( angulardimension11_associated_arc, 
                new double[]{200.00000000000000,12.00000000000000,0.00000000000000}, "<>\\P(typ.)" );
                angulardimension11_associated_arc.Erased = true;
            }
            AngularDimension angulardimension12;
            {
                angulardimension12 = iwSketchManager.InsertAngularDimension2Line( line1, line2, new double[]{100.00000000000000,20.00000000000000,0.00000000000000}, "<>" );
            }
            AngularDimension angulardimension13;
            {
                Line angulardimension13_associated_line2 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 60.00000000000000, 0.00000000000000 );
                angulardimension13 = iwSketchManager.InsertAngularDimension2Line( line1, angulardimension13_associated_line2, new double[]{15.00000000000000,15.00000000000000,0.00000000000000}, "<>" );
                angulardimension13_associated_line2.Erased = true;
            }
            AngularDimension angulardimension14;
            {
                Line angulardimension14_associated_line1 = iwSketchManager.InsertLine( 1.00000000000000, 0.00000000000000, 0.00000000000000, 2.00000000000000, 0.00000000000000, 0.00000000000000 );
                Line angulardimension14_associated_line2 = iwSketchManager.InsertLine( 1.00000000000000, 1.00000000000000, 0.00000000000000, 2.00000000000000, 3.00000000000000, 0.00000000000000 );
                angulardimension14 = iwSketchManager.InsertAngularDimension2Line( angulardimension14_associated_line1, angulardimension14_associated_line2, new double[]{5.00000000000000,1.00000000000000,0.00000000000000}, "<>" );
                angulardimension14_associated_line1.Erased = true;
                angulardimension14_associated_line2.Erased = true;
            }
            ArcLengthDimension arclengthdimension15;
            {
                arclengthdimension15 = iwSketchManager.InsertArcLengthDimensionPartial( circlearc4, new double[]{110.00000000000000,30.00000000000000,0.00000000000000}, new double[]{90.00000000000000,50.00000000000000,0.00000000000000}, new double[]{110.00000000000000,55.00000000000000,0.00000000000000}, "" );
            }
            ArcLengthDimension arclengthdimension16;
            {
                CircleArc arclengthdimension16_associated_arc = iwSketchManager.InsertArc( 200.00001250000000, 0.00000000000000, 0.00000000000000, 8.33333333330000, 0.10000000000000, 3.04159265358979 );
                arclengthdimension16 = iwSketchManager.InsertArcLengthDimensionPartial( arclengthdimension16_associated_arc, new double[]{110.00000000000000,30.00000000000000,0.00000000000000}, new double[]{90.00000000000000,50.00000000000000,0.00000000000000}, new double[]{110.00000000000000,55.00000000000000,0.00000000000000}, "" );
                arclengthdimension16_associated_arc.Erased = true;
            }
            ArcLengthDimension arclengthdimension17;
            {
                arclengthdimension17 = iwSketchManager.InsertArcLengthDimension( circlearc4, new double[]{110.00000000000000,55.00000000000000,0.00000000000000}, "" );
            }
            ArcLengthDimension arclengthdimension18;
            {
                CircleArc arclengthdimension18_associated_arc = iwSketchManager.InsertArc( 1.00000000000000, 2.00000000000000, 3.00000000000000, 5.00000000000000, 0.25000000000000, 1.75000000000000 );
                arclengthdimension18 = iwSketchManager.InsertArcLengthDimension( arclengthdimension18_associated_arc, new double[]{110.00000000000000,55.00000000000000,0.00000000000000}, "" );
                arclengthdimension18_associated_arc.Erased = true;
            }
            DiameterDimension diameterdimension19;
            DiameterDimension diameterdimension20;
            DiameterDimension diameterdimension21;
            DiameterDimension diameterdimension22;
            {
                diameterdimension19 = iwSketchManager.InsertDiameterDimensionCircle( circle3, new double[]{42.50000000000000,30.00000000000000,0.00000000000000}, "<> H7" );
                Circle diameterdimension20_associated_circle = iwSketchManager.InsertCircle( 0.00000000000000, 0.00000000000000, 0.00000000000000, 5.00000000000000 );
                diameterdimension20 = iwSketchManager.InsertDiameterDimensionCircle( diameterdimension20_associated_circle, new double[]{3.00000000000000,4.00000000000000,0.00000000000000}, "" );
                diameterdimension20_associated_circle.Erased = true;
                diameterdimension21 = iwSketchManager.InsertDiameterDimensionArc( circlearc4, new double[]{110.00000000000000,30.00000000000000,0.00000000000000}, "" );
                CircleArc diameterdimension22_associated_arc = iwSketchManager.InsertArc( 200.00001250000000, 0.00000000000000, 0.00000000000000, 8.33333333330000, 0.10000000000000, 3.04159265358979 );
                diameterdimension22 = iwSketchManager.InsertDiameterDimensionArc( diameterdimension22_associated_arc, new double[]{208.50000000000000,0.00000000000000,0.00000000000000}, "" );
                diameterdimension22_associated_arc.Erased = true;
            }
            RadialDimension radialdimension23;
            RadialDimension radialdimension24;
            RadialDimension radialdimension25;
            RadialDimension radialdimension26;
            {
                radialdimension23 = iwSketchManager.InsertRadialDimensionCircle( circle3, new double[]{30.00000000000000,42.50000000000000,0.00000000000000}, "" );
                Circle radialdimension24_associated_circle = iwSketchManager.InsertCircle( 175.00000000000000, 30.00000000000000, 0.50000000000000, 4.25000000000000 );
                radialdimension24 = iwSketchManager.InsertRadialDimensionCircle( radialdimension24_associated_circle, new double[]{179.25000000000000,30.00000000000000,0.00000000000000}, "R<>" );
                radialdimension24_associated_circle.Erased = true;
                radialdimension25 = iwSketchManager.InsertRadialDimensionArc( circlearc4, new double[]{90.00000000000000,50.00000000000000,0.00000000000000}, "" );
                CircleArc radialdimension26_associated_arc = iwSketchManager.InsertArc( 200.00001250000000, 0.00000000000000, 0.00000000000000, 8.33333333330000, 0.10000000000000, 3.04159265358979 );
                radialdimension26 = iwSketchManager.InsertRadialDimensionArc( radialdimension26_associated_arc, new double[]{200.00000000000000,8.30000000000000,0.00000000000000}, "" );
                radialdimension26_associated_arc.Erased = true;
            }
            RadialDimension radialdimension28;
            {
                Circle radialdimension28_associated_circle = iwSketchManager.InsertCircle( 5.00000000000000, 5.00000000000000, 0.00000000000000, 2.00000000000000 );
                radialdimension28 = iwSketchManager.InsertRadialDimensionCircle( radialdimension28_associated_circle, new double[]{7.00000000000000,5.00000000000000,0.00000000000000}, "" );
                radialdimension28_associated_circle.Erased = true;
            }
            JoggedDimension joggeddimension29;
            {
                joggeddimension29 = iwSketchManager.InsertJoggedDimensionCircle( circle3, new double[]{10.00000000000000,20.00000000000000,0.00000000000000}, new double[]{16.00000000000000,26.00000000000000,0.00000000000000}, new double[]{17.50000000000000,30.00000000000000,0.00000000000000}, "R<>" );
            }
            JoggedDimension joggeddimension30;
            {
                Circle joggeddimension30_associated_circle = iwSketchManager.InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000 );
                joggeddimension30 = iwSketchManager.InsertJoggedDimensionCircle( joggeddimension30_associated_circle, new double[]{10.00000000000000,20.00000000000000,0.00000000000000}, new double[]{16.00000000000000,26.00000000000000,0.00000000000000}, new double[]{17.50000000000000,30.00000000000000,0.00000000000000}, "R<>" );
                joggeddimension30_associated_circle.Erased = true;
            }
            JoggedDimension joggeddimension31;
            {
                joggeddimension31 = iwSketchManager.InsertJoggedDimensionArc( circlearc4, new double[]{10.00000000000000,20.00000000000000,0.00000000000000}, new double[]{16.00000000000000,26.00000000000000,0.00000000000000}, new double[]{17.50000000000000,30.00000000000000,0.00000000000000}, "R<>" );
            }
            JoggedDimension joggeddimension32;
            {
                CircleArc joggeddimension32_associated_arc = iwSketchManager.InsertArc( 200.00001250000000, 0.00000000000000, 0.00000000000000, 8.33333333330000, 0.10000000000000, 3.04159265358979 );
                joggeddimension32 = iwSketchManager.InsertJoggedDimensionArc( joggeddimension32_associated_arc, new double[]{10.00000000000000,20.00000000000000,0.00000000000000}, new double[]{16.00000000000000,26.00000000000000,0.00000000000000}, new double[]{17.50000000000000,30.00000000000000,0.00000000000000}, "R<>" );
                joggeddimension32_associated_arc.Erased = true;
            }
