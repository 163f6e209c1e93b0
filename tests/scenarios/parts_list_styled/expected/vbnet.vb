        Dim tablestyle1 As Inkwright.TableStyle
        If 1 Then
            Dim result1 As Inkwright.iwCreateObjectResult_e
            Dim tableStyleName1 As String = "Parts"
            iwApp.GetActiveDocument().GetTableStyleManager().CreateTableStyle( tableStyleName1, tablestyle1, result1 )
            tablestyle1.Activate()
            Dim result2 As Inkwright.iwCreateObjectResult_e
            Dim styleName2 As String = "Parts"
            result2 = tablestyle1.Rename( styleName2 )
        End If

        Dim tablestyle2 As Inkwright.TableStyle
        If 1 Then
            Dim result1 As Inkwright.iwCreateObjectResult_e
            Dim tableStyleName1 As String = "Notes"
            iwApp.GetActiveDocument().GetTableStyleManager().CreateTableStyle( tableStyleName1, tablestyle2, result1 )
            Dim result2 As Inkwright.iwCreateObjectResult_e
            Dim styleName2 As String = "Notes"
            result2 = tablestyle2.Rename( styleName2 )
        End If

        Dim dimensionstyle3 As Inkwright.DimensionStyle
        If 1 Then
            Dim result1 As Inkwright.iwCreateObjectResult_e
            Dim dimStyleName1 As String = "Shop"
            iwApp.GetActiveDocument().GetDimensionStyleManager().CreateDimensionStyle( dimStyleName1, dimensionstyle3, result1 )
        End If

        Dim richlinestyle4 As Inkwright.RichLineStyle
        If 1 Then
            Dim result1 As Inkwright.iwCreateObjectResult_e
            Dim richLineStyleName1 As String = "Road"
            iwApp.GetActiveDocument().GetRichLineStyleManager().CreateRichLineStyle( richLineStyleName1, richlinestyle4, result1 )
            richlinestyle4.Activate()
            richlinestyle4.DeleteLine(0)
            richlinestyle4.AddLine(0.50000000000000, iwApp.GetColorByIndex( 2 ), "Continuous")
            richlinestyle4.DeleteLine(1)
            richlinestyle4.AddLine(0.00000000000000, iwApp.GetColorByIndex( 256 ), "DASHED2")
            richlinestyle4.DeleteLine(2)
            richlinestyle4.AddLine(-0.50000000000000, iwApp.GetColorByIndex( 0 ), "")
        End If

        Dim linestyle5 As Inkwright.LineStyle
        If 1 Then
            iwApp.GetActiveDocument().GetLineStyleManager().LoadLineStyle( "FENCE1","", linestyle5 )
        End If

        Dim table7 As Inkwright.Table
        If 1 Then
            table7 = iwSketchManager.InsertTable( 10.00000000000000, -2.50000000000000, 4, 3, 9.00000000000000, 25.50000000000000, 1, 2, 3 )
            table7.SetRowHeightAt( 0, 12.00000000000000 )
        End If

        Dim table8 As Inkwright.Table
        If 1 Then
            table8 = iwSketchManager.InsertTable( 10.00000000000000, -2.50000000000000, 2, 2, 0.00000000000000, 30.00000000000000, 3, 3, 3 )
            table8.SetRowHeightAt( 0, 8.00000000000000 )
            table8.SetRowHeightAt( 1, 8.00000000000000 )
        End If

