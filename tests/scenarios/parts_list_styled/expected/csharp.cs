            TableStyle tablestyle1;
            {
                iwCreateObjectResult_e result1;
                string tableStyleName1 = "Parts";
                iwApp.GetActiveDocument().GetTableStyleManager().CreateTableStyle( tableStyleName1, out tablestyle1, out result1 );
                tablestyle1.Activate();
                iwCreateObjectResult_e result2;
                string styleName2 = "Parts";
                result2 = tablestyle1.Rename( styleName2 );
            }
            TableStyle tablestyle2;
            {
                iwCreateObjectResult_e result1;
                string tableStyleName1 = "Notes";
                iwApp.GetActiveDocument().GetTableStyleManager().CreateTableStyle( tableStyleName1, out tablestyle2, out result1 );
                iwCreateObjectResult_e result2;
                string styleName2 = "Notes";
                result2 = tablestyle2.Rename( styleName2 );
            }
            DimensionStyle dimensionstyle3;
            {
                iwCreateObjectResult_e result1;
                string dimStyleName1 = "Shop";
                iwApp.GetActiveDocument().GetDimensionStyleManager().CreateDimensionStyle( dimStyleName1, out dimensionstyle3, out result1 );
            }
            RichLineStyle richlinestyle4;
            {
                iwCreateObjectResult_e result1;
                string richLineStyleName1 = "Road";
                iwApp.GetActiveDocument().GetRichLineStyleManager().CreateRichLineStyle( richLineStyleName1, out richlinestyle4, out result1 );
                richlinestyle4.Activate();
                richlinestyle4.DeleteLine(0);
                richlinestyle4.AddLine(0.50000000000000, iwApp.GetColorByIndex( 2 ), "Continuous");
                richlinestyle4.DeleteLine(1);
                richlinestyle4.AddLine(0.00000000000000, iwApp.GetColorByIndex( 256 ), "DASHED2");
                richlinestyle4.DeleteLine(2);
                richlinestyle4.AddLine(-0.50000000000000, iwApp.GetColorByIndex( 0 ), "");
            }
            LineStyle linestyle5;
            {
                iwApp.GetActiveDocument().GetLineStyleManager().LoadLineStyle( "FENCE1","", out linestyle5 );
            }
            Table table7;
            {
                table7 = iwSketchManager.InsertTable(
                 10.00000000000000, -2.50000000000000, 4, 3, 9.00000000000000, 25.50000000000000, (iwTableCellType_e)1, (iwTableCellType_e)2, (iwTableCellType_e)3 );
                table7.SetRowHeightAt( 0, 12.00000000000000 );
            }
            Table table8;
            {
                table8 = iwSketchManager.InsertTable(
                 10.00000000000000, -2.50000000000000, 2, 2, 0.00000000000000, 30.00000000000000, (iwTableCellType_e)3, (iwTableCellType_e)3, (iwTableCellType_e)3 );
                table8.SetRowHeightAt( 0, 8.00000000000000 );
                table8.SetRowHeightAt( 1, 8.00000000000000 );
            }
