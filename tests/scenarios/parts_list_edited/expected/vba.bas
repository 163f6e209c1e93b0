        Dim textstyle1 As Inkwright.TextStyle
        If 1 Then
            Dim result1 As Inkwright.iwCreateObjectResult_e
            Dim textStyleName1 As String
            textStyleName1 = "Titles"
            Set textstyle1 = iwApp.GetActiveDocument().GetTextStyleManager().GetTextStyle( textStyleName1 )
            If textstyle1 Is Nothing Then
                iwApp.GetActiveDocument().GetTextStyleManager().CreateTextStyle textStyleName1, textstyle1, result1
            End If
            textstyle1.Font = "arial.ttf"
        End If

        Dim tablestyle2 As Inkwright.TableStyle
        If 1 Then
            Dim result1 As Inkwright.iwCreateObjectResult_e
            Dim tableStyleName1 As String
            tableStyleName1 = "Parts"
            iwApp.GetActiveDocument().GetTableStyleManager().CreateTableStyle tableStyleName1, tablestyle2, result1
            Dim result2 As Inkwright.iwCreateObjectResult_e
            Dim styleName2 As String
            styleName2 = "Parts"
            result2 = tablestyle2.Rename( styleName2 )
        End If

        Dim table3 As Inkwright.Table
        If 1 Then
            Set table3 = iwSketchManager.InsertTable( 10.00000000000000, 200.00000000000000, 3, 3, 9.00000000000000, 15.00000000000000, 1, 2, 3 )
            table3.SetRowHeightAt 0, 12.00000000000000
        End If

        If 1 Then
            ' AcDbTable object modified
            If 1 Then
                table3.SetText 0, 0, "Bill of materials"
                table3.SetText 1, 0, "No"
                table3.SetText 1, 1, "Part"
                table3.SetText 1, 2, "Drawing"
                table3.SetText 2, 0, "1"
                table3.SetText 2, 1, "{\\fArial;Bolt} M8"
                table3.SetText 2, 2, ""
            End If

        End If

        If 1 Then
            ' AcDbTable object modified
            If 1 Then
                table3.InsertRow 3, 9.00000000000000
                table3.InsertRow 4, 9.00000000000000
                table3.SetText 3, 0, "2"
                table3.SetText 3, 1, "Washer"
                table3.SetText 4, 0, "3"
                table3.SetText 4, 1, "Nut"
                table3.SetText 4, 2, "D:\\parts\\nut.dwg"
                table3.SetText 3, 0, "2"
                table3.SetText 3, 1, "Washer"
                table3.SetText 3, 2, ""
                table3.SetText 4, 0, "3"
                table3.SetText 4, 1, "Nut"
                table3.SetText 4, 2, "D:\\parts\\nut.dwg"
                table3.SetRowHeightAt 3, 9.00000000000000
                table3.SetRowHeightAt 4, 9.00000000000000
            End If

        End If

        If 1 Then
            ' AcDbTable object modified
            If 1 Then
                table3.InsertColumn 3, 20.00000000000000
                table3.SetText 1, 3, "Qty"
                table3.SetText 2, 3, "8"
                table3.SetText 1, 3, "Qty"
                table3.SetText 2, 3, "8"
                table3.SetColumnWidthAt 3, 20.00000000000000
            End If

        End If

        If 1 Then
            ' AcDbTable object modified
            If 1 Then
                table3.DeleteRow 4
                table3.SetText 3, 0, ""
                table3.SetRowHeightAt 2, 12.00000000000000
            End If

        End If

        If 1 Then
            ' AcDbTable object modified
            If 1 Then
                table3.DeleteColumn 3
            End If

        End If

        If 1 Then
            ' AcDbTable object modified
            If 1 Then
                Dim coef1 As Double
                coef1 = 2.00000000000000
                Dim iRowCount1 As Integer
                iRowCount1 = table3.TotalRowCount()
                Dim i1 As Integer
                For i1 = 0 To iRowCount1 - 1
                    Dim height1 As Double
                    height1 = table3.GetRowHeight(i1)*coef1
                    table3.SetRowHeightAt i1, height1
                Next
            End If

        End If

        If 1 Then
            ' AcDbTable object modified
            If 1 Then
                Dim coef1 As Double
                coef1 = 1.50000000000000
                Dim iColumnCount1 As Integer
                iColumnCount1 = table3.TotalColumnCount()
                Dim i1 As Integer
                For i1 = 0 To iColumnCount1 - 1
                    Dim width1 As Double
                    width1 = table3.GetColumnWidth(i1)*coef1
                    table3.SetColumnWidthAt i1, width1
                Next
            End If

        End If

        If 1 Then
            ' AcDbTable object modified
            If 1 Then
                table3.SetColumnWidthAt 1, 40.00000000000000
            End If

        End If

        If 1 Then
            ' AcDbTable object modified
            If 1 Then
                Dim X1 As Double
                Dim Y1 As Double
                Dim Z1 As Double
                table3.GetPosition X1, Y1, Z1 
                Y1 = 180.00000000000000
                table3.SetPosition X1, Y1, Z1 
                Dim tablestylemgr2 As Inkwright.TableStyleManager
                Set tablestylemgr2 = iwDoc.GetTableStyleManager()
                table3.TableStyle = tablestylemgr2.GetTableStyle("Parts")
                 table3.Direction= Inkwright.iwTableDirection_e.iwTableDirection_BottomToTop
            End If

        End If

        If 1 Then
            ' AcDbTableStyle object modified
            If 1 Then
                Dim result1 As Inkwright.iwCreateObjectResult_e
                Dim styleName1 As String
                styleName1 = "Parts lists"
                result1 = tablestyle2.Rename( styleName1 )
            End If

        End If

        If 1 Then
            ' AcDbTableStyle object modified
            If 1 Then
                 tablestyle2.SetAlignment Inkwright.iwTableCellType_e.iwTableCellType_Data,Inkwright.iwTableCellAlignment_e.iwTableCellAlignment_MiddleCenter
                 tablestyle2.SetTextHeight Inkwright.iwTableCellType_e.iwTableCellType_Data,3.50000000000000
                 tablestyle2.SetTextStyle Inkwright.iwTableCellType_e.iwTableCellType_Title,"Titles"
            End If

        End If

        If 1 Then
            ' AcDbTableStyle object modified
            If 1 Then
                 tablestyle2.SetBackgroundColor Inkwright.iwTableCellType_e.iwTableCellType_Header,iwApp.GetColorByIndex( 8 )
                 tablestyle2.SetTextColor Inkwright.iwTableCellType_e.iwTableCellType_Header,iwApp.GetRGBColor( 20 ,40 ,60 )
            End If

        End If

        If 1 Then
            ' AcDbTableStyle object modified
            If 1 Then
                 tablestyle2.SetHorizontalMargin Inkwright.iwTableCellType_e.iwTableCellType_Data,1.50000000000000
                 tablestyle2.SetVerticalMargin Inkwright.iwTableCellType_e.iwTableCellType_Data,0.75000000000000
                 tablestyle2.HeaderOrientation = Inkwright.iwTableHeaderOrientation_e.iwTableHeaderOrientation_Down
            End If

        End If

        If 1 Then
            ' AcDbTableStyle object modified
            If 1 Then
                 tablestyle2.SetBordersColor Inkwright.iwTableCellType_e.iwTableCellType_Data,Inkwright.iwTableBordersLineType_e.iwTableBordersLineType_VerticalInside,iwApp.GetColorByIndex( 1 )
                 tablestyle2.SetBordersLineWeight Inkwright.iwTableCellType_e.iwTableCellType_Title,Inkwright.iwTableBordersLineType_e.iwTableBordersLineType_HorizontalBottom,Inkwright.iwLineWeight_e.iwLnWt_050
            End If

        End If

        If 1 Then
            ' AcDbTextStyleTableRecord object modified
            If 1 Then
                Dim result1 As Inkwright.iwCreateObjectResult_e
                Dim styleName1 As String
                styleName1 = "Headings"
                result1 = textstyle1.Rename( styleName1 )
                textstyle1.Font = "C:\\Fonts\\arialbd.ttf"
                textstyle1.Angle = 0.25000000000000
                textstyle1.Height = 5.00000000000000
                textstyle1.Spacing = 1.10000000000000
                textstyle1.Backwards = False
                textstyle1.UpsideDown = False
                textstyle1.Vertical = True
                textstyle1.BigFont = "extfont.shx"
            End If

        End If

        Dim attributedefinition4 As Inkwright.AttributeDefinition
        If 1 Then
            Set attributedefinition4 = iwSketchManager.InsertAttributeDefinition(  "M8", "SIZE", "Size?", 1.00000000000000, 2.00000000000000, 0.00000000000000, "", Inkwright.iwTextJustification_e.iwTextJustification_Left, 0.20000000000000, 0.00000000000000, False, False, False, False, False, False )
        End If

        If 1 Then
            ' AcDbAttributeDefinition object modified
            If 1 Then
                attributedefinition4.Angle = 0.10000000000000
                attributedefinition4.Height = 2.50000000000000
                attributedefinition4.Justification = Inkwright.iwTextJustification_e.iwTextJustification_Center
                attributedefinition4.Caption = "Size of the bolt?"
                attributedefinition4.Rotation = 0.50000000000000
                attributedefinition4.Spacing = 0.90000000000000
                attributedefinition4.TextStyle = "Headings"
                attributedefinition4.Name = "BOLT"
                attributedefinition4.Value = "M10"
                Dim X1 As Double
                Dim Y1 As Double
                Dim Z1 As Double
                attributedefinition4.GetPosition X1, Y1, Z1 
                X1 = 3.00000000000000
                attributedefinition4.SetPosition X1, Y1, Z1 
                Dim X2 As Double
                Dim Y2 As Double
                Dim Z2 As Double
                attributedefinition4.GetAlignmentPoint X2, Y2, Z2 
                Y2 = 4.00000000000000
                attributedefinition4.SetAlignmentPoint X2, Y2, Z2 
                attributedefinition4.Backwards = True
                attributedefinition4.Constant = False
                attributedefinition4.Hidden = True
                attributedefinition4.LockPosition = True
                attributedefinition4.Preset = False
                attributedefinition4.UpsideDown = False
                attributedefinition4.Verify = True
            End If

        End If

        Dim simplenote5 As Inkwright.SimpleNote
        If 1 Then
            Set simplenote5 = iwSketchManager.InsertSimpleNote( 1.00000000000000, 1.00000000000000, 0.00000000000000, 5.00000000000000, 0.10000000000000, "Section A-A" )
            simplenote5.SetAlignmentPoint 0.00000000000000, 0.00000000000000, 0.00000000000000
            simplenote5.SetPosition 1.00000000000000, 1.00000000000000, 0.00000000000000
        End If

        If 1 Then
            ' AcDbText object modified
            If 1 Then
                simplenote5.Angle = 0.20000000000000
                simplenote5.Contents = "Section B-B"
                simplenote5.Height = 7.00000000000000
                simplenote5.Rotation = 0.00000000000000
                simplenote5.Spacing = 1.20000000000000
                simplenote5.TextStyle = "Headings"
                Dim X1 As Double
                Dim Y1 As Double
                Dim Z1 As Double
                simplenote5.GetPosition X1, Y1, Z1 
                Z1 = 1.00000000000000
                simplenote5.SetPosition X1, Y1, Z1 
                simplenote5.Backwards = False
                simplenote5.UpsideDown = False
                simplenote5.Justify = Inkwright.iwTextJustification_e.iwTextJustification_MiddleCenter
                Dim X2 As Double
                Dim Y2 As Double
                Dim Z2 As Double
                simplenote5.GetAlignmentPoint X2, Y2, Z2 
                X2 = 2.00000000000000
                simplenote5.SetAlignmentPoint X2, Y2, Z2 
            End If

        End If

        Dim note6 As Inkwright.Note
        If 1 Then
            Dim strArray1(0) As String
            strArray1(0) = "All parts galvanized"
            Set note6 = iwSketchManager.InsertNote( 10.00000000000000, 20.00000000000000, 0.00000000000000, 70.00000000000000, 20.00000000000000, 0.00000000000000, strArray1 )
            note6.TextHeight = 2.50000000000000
            note6.Width = 60.00000000000000
        End If

        If 1 Then
            ' AcDbMText object modified
            If 1 Then
                note6.BackgroundMask = True
                note6.BackgroundFillColor = iwApp.GetColorByIndex( 2 )
                note6.UseDrawingBackgroundColor = False
                note6.BackgroundBorderOffsetFactor = 1.50000000000000
                note6.Text = "All parts\\Pzinc coated"
                note6.Direction = Inkwright.iwNoteDirection_e.iwNoteDirection_Horizontal
                note6.Justify = Inkwright.iwNoteJustification_e.iwNoteJustification_TopCenter
                note6.LineSpaceDistance = 4.00000000000000
                note6.LineSpaceFactor = 1.25000000000000
                note6.LineSpacingStyle = Inkwright.iwNoteLineSpacingStyle_e.iwNoteLineSpacingStyle_Exactly
                note6.Rotation = 0.50000000000000
                note6.TextStyle = "Headings"
                note6.TextHeight = 3.00000000000000
                note6.Width = 80.00000000000000
                Dim getX1 As Double
                Dim getY1 As Double
                Dim getZ1 As Double
                note6.GetPosition getX1, getY1, getZ1
                getX1 = 12.00000000000000
                note6.SetPosition getX1, getY1, getZ1
                Dim getX2 As Double
                Dim getY2 As Double
                Dim getZ2 As Double
                note6.GetPosition getX2, getY2, getZ2
                getY2 = 22.00000000000000
                note6.SetPosition getX2, getY2, getZ2
            End If

        End If

        Dim circlearc7 As Inkwright.CircleArc
        Dim arcalignedtext8 As Inkwright.ArcAlignedText
        If 1 Then
            Set circlearc7 = iwSketchManager.InsertArc( 0.00000000000000, 0.00000000000000, 0.00000000000000, 20.00000000000000, 0.00000000000000, 3.00000000000000 )
            Set arcalignedtext8 = iwSketchManager.InsertCurvedText( "Round the bend", circlearc7 )
        End If

        If 1 Then
            ' AcDbArcAlignedText object modified
            If 1 Then
                arcalignedtext8.Contents = "Turn here"
                arcalignedtext8.Height = 4.00000000000000
                arcalignedtext8.WidthFactor = 0.80000000000000
                arcalignedtext8.CharSpacing = 0.10000000000000
                Dim X1 As Double
                Dim Y1 As Double
                Dim Z1 As Double
                arcalignedtext8.GetCenter X1, Y1, Z1 
                X1 = 1.00000000000000
                arcalignedtext8.SetCenter X1, Y1, Z1 
                arcalignedtext8.StartAngle = 0.10000000000000
                arcalignedtext8.EndAngle = 2.90000000000000
                arcalignedtext8.ArcOffset = 2.00000000000000
                arcalignedtext8.LeftOffset = 1.00000000000000
                arcalignedtext8.RightOffset = 1.50000000000000
                Dim curvedSettings2 As Inkwright.CurvedSettings
                Set curvedSettings2 = arcalignedtext8.GetCurvedSettings()
                curvedSettings2.Underlined = True
                arcalignedtext8.SetCurvedSettings curvedSettings2
                Dim curvedSettings3 As Inkwright.CurvedSettings
                Set curvedSettings3 = arcalignedtext8.GetCurvedSettings()
                curvedSettings3.Flip = False
                arcalignedtext8.SetCurvedSettings curvedSettings3
                Dim curvedSettings4 As Inkwright.CurvedSettings
                Set curvedSettings4 = arcalignedtext8.GetCurvedSettings()
                curvedSettings4.Alignment = Inkwright.iwArcTextAlignment_e.iwArcTextAlignment_Center
                arcalignedtext8.SetCurvedSettings curvedSettings4
                Dim curvedSettings5 As Inkwright.CurvedSettings
                Set curvedSettings5 = arcalignedtext8.GetCurvedSettings()
                curvedSettings5.TextSide = Inkwright.iwArcTextPosition_e.iwArcTextPosition_OnConvexSide
                arcalignedtext8.SetCurvedSettings curvedSettings5
                Dim curvedSettings6 As Inkwright.CurvedSettings
                Set curvedSettings6 = arcalignedtext8.GetCurvedSettings()
                curvedSettings6.TextDirection = Inkwright.iwArcTextDirection_e.iwArcTextDirection_InwardToTheCenter
                arcalignedtext8.SetCurvedSettings curvedSettings6
                Dim curvedSettings7 As Inkwright.CurvedSettings
                Set curvedSettings7 = arcalignedtext8.GetCurvedSettings()
                curvedSettings7.TextStyle = "Headings"
                arcalignedtext8.SetCurvedSettings curvedSettings7
                Dim curvedSettings8 As Inkwright.CurvedSettings
                Set curvedSettings8 = arcalignedtext8.GetCurvedSettings()
                curvedSettings8.Font = "Arial"
                arcalignedtext8.SetCurvedSettings curvedSettings8
                Dim curvedSettings9 As Inkwright.CurvedSettings
                Set curvedSettings9 = arcalignedtext8.GetCurvedSettings()
                Dim Typeface As String
                Dim Bold As Boolean
                Bold = False
                Dim Italic As Boolean
                Italic = False
                Dim Charset As Integer
                Charset = 0
                Dim PitchAndFamily As Integer
                PitchAndFamily = 0
                curvedSettings9.GetFontParameters Typeface, Bold, Italic, Charset, PitchAndFamily
                Bold = True
                curvedSettings9.SetFontParameters Typeface, Bold, Italic, Charset, PitchAndFamily
                arcalignedtext8.SetCurvedSettings curvedSettings9
            End If

        End If

        If 1 Then
            ' AcDbArcAlignedText object modified
            If 1 Then
                Dim curvedSettings1 As Inkwright.CurvedSettings
                Set curvedSettings1 = arcalignedtext8.GetCurvedSettings()
                Dim Typeface As String
                Dim Bold As Boolean
                Bold = False
                Dim Italic As Boolean
                Italic = False
                Dim Charset As Integer
                Charset = 0
                Dim PitchAndFamily As Integer
                PitchAndFamily = 0
                curvedSettings1.GetFontParameters Typeface, Bold, Italic, Charset, PitchAndFamily
                Italic = False
                curvedSettings1.SetFontParameters Typeface, Bold, Italic, Charset, PitchAndFamily
                arcalignedtext8.SetCurvedSettings curvedSettings1
            End If

        End If

        Dim blockinstance9 As Inkwright.BlockInstance
        If 1 Then
            Set blockinstance9 = iwSketchManager.InsertBlock2( "Balloon", 0.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 1.00000000000000, 1.00000000000000, 0.00000000000000 )
        End If

        If 1 Then
            ' AcDbBlockReference object modified
            If 1 Then
                Dim X1 As Double
                Dim Y1 As Double
                Dim Z1 As Double
                blockinstance9.GetPosition X1, Y1, Z1 
                Y1 = 30.00000000000000
                blockinstance9.SetPosition X1, Y1, Z1 
                Dim X2 As Double
                Dim Y2 As Double
                Dim Z2 As Double
                blockinstance9.GetScales X2, Y2, Z2 
                X2 = 2.00000000000000
                blockinstance9.SetScales X2, Y2, Z2 
                blockinstance9.Rotation = 0.50000000000000
                Dim iwAttributes3 As Variant
                iwAttributes3 = blockinstance9.GetAttributeInstances()
                Dim iwAttribute3 As Variant
                For Each iwAttribute3 In iwAttributes3
                    If iwAttribute3.Name = "NO" Then
                        iwAttribute3.Value = "3"
                    End If
                Next
                Dim iwAttributes4 As Variant
                iwAttributes4 = blockinstance9.GetAttributeInstances()
                Dim iwAttribute4 As Variant
                For Each iwAttribute4 In iwAttributes4
                    If iwAttribute4.Name = "NAME" Then
                        iwAttribute4.Value = "Nut"
                    End If
                Next
            End If

        End If

