        Dim line1 As Inkwright.Line
        If 1 Then
            Dim m_pMathUtil1 As Inkwright.MathUtility 
            Dim plane1 As Inkwright.MathPlane
            m_pMathUtil1 = iwApp.GetMathUtility()
            plane1 = m_pMathUtil1.CreateYZPlane()
            Dim x1 As Double = 1.5, y1 As Double = 2, z1 As Double = 1.23457e+06
            Dim basePoint1 As Inkwright.MathPoint, defaultPoint1 As Inkwright.MathPoint, resultPoint1 As Inkwright.MathPoint
            defaultPoint1 = m_pMathUtil1.CreatePoint( x1, y1, z1)
            basePoint1 = m_pMathUtil1.CreatePoint( 0, 0, 0 )
            Dim cmdMesage1 As Inkwright.CommandMessage
            cmdMesage1 = iwApp.GetCommandMessage()
            Dim resultKeyword1 As String
            Dim iwStringArray1 As Object = New Object()
            cmdMesage1.PromptForPointOrKeyword( "Specify start point", "Error message", iwStringArray1, iwStringArray1, 0, False, defaultPoint1, basePoint1, resultKeyword1, resultPoint1, plane1 )

            Dim x2 As Double = 4, y2 As Double = 3, z2 As Double = 0
            iwApp.GetCommandMessage().PromptForPoint("Specify corner: ", x2, y2, z2)
            Dim x3 As Double = 0, y3 As Double = 0, z3 As Double = 0
            iwApp.GetCommandMessage().PromptForPoint("Opposite", x3, y3, z3)
            line1 = iwSketchManager.InsertLine( 1.50000000000000, 2.00000000000000, 0.00000000000000, 4.00000000000000, 3.00000000000000, 0.00000000000000 )
            line1.Color = iwApp.GetColorByIndex( 256 )
            line1.Layer = "0"
            line1.LineStyle = "Continuous"
            line1.LineScale = 1.00000000000000
            line1.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            line1.Thickness = 0.00000000000000
        End If

        If 1 Then
            Dim type1 As Inkwright.iwObjectType_e
            Dim types1 As Inkwright.iwObjectType_e() = New Inkwright.iwObjectType_e( 1 ) {}
            types1( 0 ) = Inkwright.iwObjectType_e.iwLineType
            types1( 1 ) = iwApp.GetObjectType(iwApp.GetActiveDocument().GetObjectByHandle("A0", type1))
            Dim entities1 As Object() = New Object( 1 ) {}
            entities1( 0 ) = line1
            entities1( 1 ) = iwApp.GetActiveDocument().GetObjectByHandle("A0", type1)
            iwApp.GetCommandMessage().PromptForSelection(False, "Select Objects: ", "")
            If 1 Then
               Dim count As Integer = iwApp.GetActiveDocument().GetSelectionManager().GetSelectedObjectCount(Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous)
                types1 = New Inkwright.iwObjectType_e( count - 1 ) {}
                entities1 = New Object( count - 1 ) {}
                For i As Integer = 0 To count - 1
                    entities1( i ) = iwApp.GetActiveDocument().GetSelectionManager().GetSelectedObject(Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous, i, types1( i ))
                Next
            End If
            Dim angle2 As Double = 0.5
            iwApp.GetCommandMessage().PromptForAngle("Specify rotation angle", 0.5, angle2)
            Dim angle3 As Double = 0
            iwApp.GetCommandMessage().PromptForAngle("Specify rotation angle", 0, angle3)
            Dim orient4 As Double = 0.25
            iwApp.GetCommandMessage().PromptForOrientation("Specify orient: ", 0.25, orient4)
            Dim distance5 As Double = 12.5
            iwApp.GetCommandMessage().PromptForDistance("Distance", 12.5, distance5)
            Dim distance6 As Double = 1
            iwApp.GetCommandMessage().PromptForDistance("Distance", 1, distance6)
        End If

        If 1 Then
            Dim scale1 As Double = 2
            iwApp.GetCommandMessage().PromptForDouble("Specify scale", 2, scale1)
            Dim scale2 As Double = 1
            iwApp.GetCommandMessage().PromptForDouble("Specify scale: ", 1, scale2)
            Dim text3 As String = "Part "A""
            iwApp.GetCommandMessage().PromptForString( True, "Name:", "Part "A"", text3)
            Dim color4 As Integer = 5
            iwApp.GetCommandMessage().PromptForInteger("Specify color: ", 5, color4)
            Dim integer5 As Integer = -3
            iwApp.GetCommandMessage().PromptForInteger("How many", -3, integer5)
            Dim real6 As Double = 1e-07
            iwApp.GetCommandMessage().PromptForDouble("Ratio", 1e-07, real6)
        End If

        Dim circle2 As Inkwright.Circle
        If 1 Then
            Dim iwlocal0(2) As String
            Dim iwglobal0(2) As String
            Dim keyword0 As String  = "Radius"
            iwlocal0(0) = "Radius"
            iwglobal0(0) = "_Radius"
            iwlocal0(1) = "Durchmesser"
            iwglobal0(1) = "_Diameter"

            Dim value1 As String 
            Dim ErrorMsg1 As String =""
            iwApp.GetCommandMessage().PromptForKeyword2("Options: Radius",ErrorMsg1,iwglobal0,iwlocal0,1, keyword0, value1)
            Dim iwlocal1(0) As String
            Dim iwglobal1(0) As String
            Dim keyword1 As String  = ""

            Dim value2 As String 
            Dim ErrorMsg2 As String =""
            iwApp.GetCommandMessage().PromptForKeyword2("Go on?",ErrorMsg2,iwglobal1,iwlocal1,1, keyword1, value2)
            circle2 = iwSketchManager.InsertCircle( 1.00000000000000, 2.00000000000000, 0.00000000000000, 3.00000000000000 )
            circle2.Color = iwApp.GetColorByIndex( 256 )
            circle2.Layer = "0"
            circle2.LineStyle = "Continuous"
            circle2.LineScale = 1.00000000000000
            circle2.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            circle2.Thickness = 0.00000000000000
        End If

        If 1 Then
            Dim result1 As Inkwright.iwSetCommandOptionResult_e 
            iwApp.GetActiveDocument().SetCommandOptionBool(Inkwright.iwCommandOptionBool_e.iwCommandOptionBool_EnblBnds, True,result1)
        End If
        If 1 Then
            Dim result2 As Inkwright.iwSetCommandOptionResult_e 
            iwApp.GetActiveDocument().SetCommandOptionDouble(Inkwright.iwCommandOptionDouble_e.iwCommandOptionDouble_SetFltRad, 2.5,result2)
        End If
        If 1 Then
            Dim result3 As Inkwright.iwSetCommandOptionResult_e 
            iwApp.GetActiveDocument().SetCommandOptionInt8(Inkwright.iwCommandOptionInt8_e.iwCommandOptionInt8_SetDmTolVJst, 1,result3)
        End If
        If 1 Then
            Dim result4 As Inkwright.iwSetCommandOptionResult_e 
            iwApp.GetActiveDocument().SetCommandOptionInt16(Inkwright.iwCommandOptionInt16_e.iwCommandOptionInt16_SetCVPORT, 2,result4)
        End If
        If 1 Then
            Dim result5 As Inkwright.iwSetCommandOptionResult_e 
            iwApp.GetActiveDocument().SetCommandOptionInt16(Inkwright.iwCommandOptionInt16_e.iwCommandOptionInt16_SetActLClr, 5,result5)
        End If
        If 1 Then
            Dim result6 As Inkwright.iwSetCommandOptionResult_e 
            iwApp.GetActiveDocument().SetCommandOptionInt16(Inkwright.iwCommandOptionInt16_e.iwCommandOptionInt16_SetActLClr, 0,result6)
        End If
        If 1 Then
            Dim result7 As Inkwright.iwSetCommandOptionResult_e 
            iwApp.GetActiveDocument().SetCommandOptionPoint2D(Inkwright.iwCommandOptionPoint2d_e.iwCommandOptionPoint2d_SetLIMMAX, 420, 297,result7)
        End If
        If 1 Then
            Dim result8 As Inkwright.iwSetCommandOptionResult_e 
            iwApp.GetActiveDocument().SetCommandOptionPoint3D(Inkwright.iwCommandOptionPoint3d_e.iwCommandOptionPoint3d_SetINSBASE, 1, 2, 3.5,result8)
        End If
        If 1 Then
            Dim result9 As Inkwright.iwSetCommandOptionResult_e 
            iwApp.GetActiveDocument().SetCommandOptionString(Inkwright.iwCommandOptionString_e.iwCommandOptionString_SetCLAYER, "Walls",result9)
        End If

        iwApp.GetApplicationOptions().SetApplicationOptionBool(Inkwright.iwApplicationOptionBool_e.iwApplicationOptionBool_EnblEntSelPreSel, False)

        iwApp.GetApplicationOptions().SetApplicationOptionDouble(Inkwright.iwApplicationOptionDouble_e.iwApplicationOptionDouble_SetPOLARANG, 0.5)

        iwApp.GetApplicationOptions().SetApplicationOptionInt16(Inkwright.iwApplicationOptionInt16_e.iwApplicationOptionInt16_EnblEdgeExtd, 1)

        iwApp.GetApplicationOptions().SetApplicationOptionInt32(Inkwright.iwApplicationOptionInt32_e.iwApplicationOptionInt32_SetSvTm, 15)

        iwApp.GetApplicationOptions().SetApplicationOptionString(Inkwright.iwApplicationOptionString_e.iwApplicationOptionString_SetFONTALT, "simplex.shx")
        If 1 Then
            Dim result10 As Inkwright.iwSetCommandOptionResult_e 
            iwApp.GetActiveDocument().SetCommandOptionInt16(Inkwright.iwCommandOptionInt16_e.iwCommandOptionInt16_EnblChmfAng, 1,result10)
        End If
        If 1 Then
            If 1 Then
                Dim iwInterfaceFiles_0 As Inkwright.InterfaceFiles = iwApp.GetInterfaceFiles()
                iwInterfaceFiles_0.MenuFilesPath = "C:\menus\my.cuix"
            End If


            If 1 Then
                Dim iwSystemFiles_0 As Inkwright.SystemFiles = iwApp.GetSystemFiles()
                Dim sFontsPaths_0 As String = "C:\fonts"
                Dim sFontsPaths_1 As String = "D:\more"
                Dim sArrayFontsPaths_0 As String() = New String() { sFontsPaths_0, sFontsPaths_1 }
                iwSystemFiles_0.FontsPaths = sArrayFontsPaths_0
            End If


            If 1 Then
                Dim iwDrawingSupportFiles_0 As Inkwright.DrawingSupportFiles = iwApp.GetDrawingSupportFiles()
                iwDrawingSupportFiles_0.DrawingTemplateFilesPath = "T:\tpl"
            End If


            If 1 Then
                Dim iwDrawingSupportFiles_1 As Inkwright.DrawingSupportFiles = iwApp.GetDrawingSupportFiles()
            End If


        End If

