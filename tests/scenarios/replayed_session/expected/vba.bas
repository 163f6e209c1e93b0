        Dim line1 As Inkwright.Line
        If 1 Then
            Dim m_pMathUtil1 As Inkwright.MathUtility
            Dim plane1 As Inkwright.MathPlane
            Set m_pMathUtil1 = iwApp.GetMathUtility()
            Set plane1 = m_pMathUtil1.CreateYZPlane()
            Dim IOPoint_x1 As Double, IOPoint_y1 As Double, IOPoint_z1 As Double
            IOPoint_x1 = 1.5
            IOPoint_y1 = 2
            IOPoint_z1 = 1.23457e+06
            Dim basePoint1 As Inkwright.MathPoint, defaultPoint1 As Inkwright.MathPoint, resultPoint1 As Inkwright.MathPoint
            Set defaultPoint1 = m_pMathUtil1.CreatePoint( IOPoint_x1, IOPoint_y1, IOPoint_z1)
            Set basePoint1 = m_pMathUtil1.CreatePoint( 0, 0, 0 )
            Dim cmdMesage1 As Inkwright.CommandMessage
            Set cmdMesage1 = iwApp.GetCommandMessage()
            Dim resultKeyword1 As String
            Dim iwStringArray1 As Variant
            cmdMesage1.PromptForPointOrKeyword "Specify start point", "Error message", iwStringArray1, iwStringArray1, 0, False, defaultPoint1, basePoint1, resultKeyword1, resultPoint1, plane1

            Dim IOCorner_x2 As Double, IOCorner_y2 As Double, IOCorner_z2 As Double
            IOCorner_x2 = 4
            IOCorner_y2 = 3
            IOCorner_z2 = 0
            iwApp.GetCommandMessage().PromptForPoint "Specify corner: ", IOCorner_x2, IOCorner_y2, IOCorner_z2
            Dim IOCorner_x3 As Double, IOCorner_y3 As Double, IOCorner_z3 As Double
            IOCorner_x3 = 0
            IOCorner_y3 = 0
            IOCorner_z3 = 0
            iwApp.GetCommandMessage().PromptForPoint "Opposite", IOCorner_x3, IOCorner_y3, IOCorner_z3
            Set line1 = iwSketchManager.InsertLine( 1.50000000000000, 2.00000000000000, 0.00000000000000, 4.00000000000000, 3.00000000000000, 0.00000000000000 )
            line1.Color = iwApp.GetColorByIndex( 256 )
            line1.Layer = "0"
            line1.LineStyle = "Continuous"
            line1.LineScale = 1.00000000000000
            line1.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            line1.Thickness = 0.00000000000000
        End If

        If 1 Then
            Dim type1 As Inkwright.iwObjectType_e
            Dim types1() As Inkwright.iwObjectType_e
            ReDim types1( 1 )
            types1( 0 ) = Inkwright.iwObjectType_e.iwLineType
            types1( 1 ) = iwApp.GetObjectType(iwApp.GetActiveDocument().GetObjectByHandle("A0", type1))
            Dim entities1() As Object
            ReDim entities1( 1 )
            Set entities1( 0 ) = line1
            Set entities1( 1 ) = iwApp.GetActiveDocument().GetObjectByHandle("A0", type1)
            iwApp.GetCommandMessage().PromptForSelection False, "Select Objects: ", ""
            If 1 Then
               Dim count1 As Integer
               count1 = iwApp.GetActiveDocument().GetSelectionManager().GetSelectedObjectCount(Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous)
                ReDim types1( count1 - 1 )
                ReDim entities1( count1 - 1 )
                Dim i1 As Integer
                For i1 = 0 To count1 - 1
                    Set entities1( i1 ) = iwApp.GetActiveDocument().GetSelectionManager().GetSelectedObject(Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous, i1, types1( i1 ))
                Next
            End If
            Dim IO_angle2 As Double2            IO_angle2 = 0.5
            iwApp.GetCommandMessage().PromptForAngle "Specify rotation angle", 0.5, IO_angle2
            Dim IO_angle3 As Double2            IO_angle3 = 0
            iwApp.GetCommandMessage().PromptForAngle "Specify rotation angle", 0, IO_angle3
            Dim IO_orient4 As Double
            IO_orient4 = 0.25
            iwApp.GetCommandMessage().PromptForOrientation "Specify orient: ", 0.25, IO_orient4
            Dim IO_distance5 As Double
            IO_distance5 = 12.5
            iwApp.GetCommandMessage().PromptForDistance "Distance", 12.5, IO_distance5
            Dim IO_distance6 As Double
            IO_distance6 = 1
            iwApp.GetCommandMessage().PromptForDistance "Distance", 1, IO_distance6
        End If

        If 1 Then
            Dim IO_scale1 As Double
            IO_scale1 = 2
            iwApp.GetCommandMessage().PromptForDouble "Specify scale", 2, IO_scale1
            Dim IO_scale2 As Double
            IO_scale2 = 1
            iwApp.GetCommandMessage().PromptForDouble "Specify scale: ", 1, IO_scale2
            Dim IO_text3 As String
            IO_text3 = "Part "A""
            iwApp.GetCommandMessage().PromptForString True, "Name:", "Part "A"", IO_text3
            Dim IO_color4 As Integer
            IO_color4 = 5
            iwApp.GetCommandMessage().PromptForInteger "Specify color: ", 5, IO_color4
            Dim IO_integer5 As Integer
            IO_integer5 = -3
            iwApp.GetCommandMessage().PromptForInteger "How many", -3, IO_integer5
            Dim IO_real6 As Double
            IO_real6 = 1e-07
            iwApp.GetCommandMessage().PromptForDouble "Ratio", 1e-07, IO_real6
        End If

        Dim circle2 As Inkwright.Circle
        If 1 Then
            Dim iwlocal0(2) As String
            Dim iwglobal0(2) As String
            Dim keyword0 As String
            keyword0 = "Radius"
            iwlocal0(0) = "Radius"
            iwglobal0(0) = "_Radius"
            iwlocal0(1) = "Durchmesser"
            iwglobal0(1) = "_Diameter"

            Dim value1 As String 
            Dim ErrorMsg1 As String
            ErrorMsg1 = ""
            iwApp.GetCommandMessage().PromptForKeyword2 "Options: Radius", ErrorMsg1, iwglobal0, iwlocal0, 1, keyword0, value1
            Dim iwlocal1(0) As String
            Dim iwglobal1(0) As String
            Dim keyword1 As String
            keyword1 = ""

            Dim value2 As String 
            Dim ErrorMsg2 As String
            ErrorMsg2 = ""
            iwApp.GetCommandMessage().PromptForKeyword2 "Go on?", ErrorMsg2, iwglobal1, iwlocal1, 1, keyword1, value2
            Set circle2 = iwSketchManager.InsertCircle( 1.00000000000000, 2.00000000000000, 0.00000000000000, 3.00000000000000 )
            circle2.Color = iwApp.GetColorByIndex( 256 )
            circle2.Layer = "0"
            circle2.LineStyle = "Continuous"
            circle2.LineScale = 1.00000000000000
            circle2.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            circle2.Thickness = 0.00000000000000
        End If

        If 1 Then
        Dim resultBool1 As Inkwright.iwSetCommandOptionResult_e 
        iwApp.GetActiveDocument().SetCommandOptionBool Inkwright.iwCommandOptionBool_e.iwCommandOptionBool_EnblBnds, True, resultBool1
        End If
        If 1 Then
        Dim resultDouble2 As Inkwright.iwSetCommandOptionResult_e 
        iwApp.GetActiveDocument().SetCommandOptionDouble Inkwright.iwCommandOptionDouble_e.iwCommandOptionDouble_SetFltRad, 2.5, resultDouble2
        End If
        If 1 Then
        Dim resultInt83 As Inkwright.iwSetCommandOptionResult_e 
        iwApp.GetActiveDocument().SetCommandOptionInt8 Inkwright.iwCommandOptionInt8_e.iwCommandOptionInt8_SetDmTolVJst, 1, resultInt83
        End If
        If 1 Then
        Dim resultInt164 As Inkwright.iwSetCommandOptionResult_e 
        iwApp.GetActiveDocument().SetCommandOptionInt16 Inkwright.iwCommandOptionInt16_e.iwCommandOptionInt16_SetCVPORT, 2, resultInt164
        End If
        If 1 Then
        Dim resultInt165 As Inkwright.iwSetCommandOptionResult_e 
        iwApp.GetActiveDocument().SetCommandOptionInt16 Inkwright.iwCommandOptionInt16_e.iwCommandOptionInt16_SetActLClr, 5, resultInt165
        End If
        If 1 Then
        Dim resultInt166 As Inkwright.iwSetCommandOptionResult_e 
        iwApp.GetActiveDocument().SetCommandOptionInt16 Inkwright.iwCommandOptionInt16_e.iwCommandOptionInt16_SetActLClr, 0, resultInt166
        End If
        If 1 Then
        Dim resultPoint2D7 As Inkwright.iwSetCommandOptionResult_e 
        iwApp.GetActiveDocument().SetCommandOptionPoint2D Inkwright.iwCommandOptionPoint2d_e.iwCommandOptionPoint2d_SetLIMMAX, 420, 297, resultPoint2D7
        End If
        If 1 Then
        Dim resultPoint3D8 As Inkwright.iwSetCommandOptionResult_e 
        iwApp.GetActiveDocument().SetCommandOptionPoint3D Inkwright.iwCommandOptionPoint3d_e.iwCommandOptionPoint3d_SetINSBASE, 1, 2, 3.5, resultPoint3D8
        End If
        If 1 Then
        Dim resultString9 As Inkwright.iwSetCommandOptionResult_e 
        iwApp.GetActiveDocument().SetCommandOptionString Inkwright.iwCommandOptionString_e.iwCommandOptionString_SetCLAYER, "Walls", resultString9
        End If

        iwApp.GetApplicationOptions().SetApplicationOptionBool Inkwright.iwApplicationOptionBool_e.iwApplicationOptionBool_EnblEntSelPreSel, False

        iwApp.GetApplicationOptions().SetApplicationOptionDouble Inkwright.iwApplicationOptionDouble_e.iwApplicationOptionDouble_SetPOLARANG, 0.5

        iwApp.GetApplicationOptions().SetApplicationOptionInt16 Inkwright.iwApplicationOptionInt16_e.iwApplicationOptionInt16_EnblEdgeExtd, 1

        iwApp.GetApplicationOptions().SetApplicationOptionInt32 Inkwright.iwApplicationOptionInt32_e.iwApplicationOptionInt32_SetSvTm, 15

        iwApp.GetApplicationOptions().SetApplicationOptionString Inkwright.iwApplicationOptionString_e.iwApplicationOptionString_SetFONTALT, "simplex.shx"
        If 1 Then
        Dim resultInt1610 As Inkwright.iwSetCommandOptionResult_e 
        iwApp.GetActiveDocument().SetCommandOptionInt16 Inkwright.iwCommandOptionInt16_e.iwCommandOptionInt16_EnblChmfAng, 1, resultInt1610
        End If
        If 1 Then
            If 1 Then
                Dim iwInterfaceFiles_0 As Inkwright.InterfaceFiles
                Set iwInterfaceFiles_0 = iwApp.GetInterfaceFiles()
                iwInterfaceFiles_0.MenuFilesPath = "C:\menus\my.cuix"
            End If


            If 1 Then
                Dim iwSystemFiles_0 As Inkwright.SystemFiles
                Set iwSystemFiles_0 = iwApp.GetSystemFiles()
                Dim sArrayFontsPaths_0(1) As String
                sArrayFontsPaths_0(0) = "C:\fonts"
                sArrayFontsPaths_0(1) = "D:\more"
                iwSystemFiles_0.FontsPaths = sArrayFontsPaths_0
            End If


            If 1 Then
                Dim iwDrawingSupportFiles_0 As Inkwright.DrawingSupportFiles
%11Set iwDrawingSupportFiles_0 = iwApp.GetDrawingSupportFiles()
                iwDrawingSupportFiles_0.DrawingTemplateFilesPath = "T:\tpl"
            End If


            If 1 Then
                Dim iwDrawingSupportFiles_1 As Inkwright.DrawingSupportFiles
%11Set iwDrawingSupportFiles_1 = iwApp.GetDrawingSupportFiles()
            End If


        End If

