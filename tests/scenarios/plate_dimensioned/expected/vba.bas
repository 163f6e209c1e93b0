        Dim line1 As Inkwright.Line
        Dim line2 As Inkwright.Line
        If 1 Then
            Set line1 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 120.00000000000000, 0.00000000000000, 0.00000000000000 )
            Set line2 = iwSketchManager.InsertLine( 120.00000000000000, 0.00000000000000, 0.00000000000000, 150.00000000000000, 60.00000000000000, 0.00000000000000 )
        End If

        Dim circle3 As Inkwright.Circle
        If 1 Then
            Set circle3 = iwSketchManager.InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000 )
        End If

        Dim circlearc4 As Inkwright.CircleArc
        If 1 Then
            Set circlearc4 = iwSketchManager.InsertArc( 90.00000000000000, 30.00000000000000, 0.00000000000000, 20.00000000000000, 0.00000000000000, 1.57079632679490 )
        End If

        Dim aligneddimension5 As Inkwright.AlignedDimension
        If 1 Then
            Dim extLine1Point1(2) As Double
            extLine1Point1(0) = 120.00000000000000
            extLine1Point1(1) = 0.00000000000000
            extLine1Point1(2) = 0.00000000000000
            Dim extLine2Point1(2) As Double
            extLine2Point1(0) = 150.00000000000000
            extLine2Point1(1) = 60.00000000000000
            extLine2Point1(2) = 0.00000000000000
            Dim dimLinePoint1(2) As Double
            dimLinePoint1(0) = 145.00000000000000
            dimLinePoint1(1) = 25.00000000000000
            dimLinePoint1(2) = 0.50000000000000
            Set aligneddimension5 = iwSketchManager.InsertAlignedDimension( extLine1Point1, extLine2Point1, dimLinePoint1, "<> H7" )
            Dim generalDimension2 As Inkwright.GeneralDimension
            Set generalDimension2 = aligneddimension5.GetGeneralDimension()
            generalDimension2.TextRotation = 0.25000000000000
                Dim generalDimension3 As Inkwright.GeneralDimension
                Set generalDimension3 = aligneddimension5.GetGeneralDimension()
            generalDimension3.Color = iwApp.GetColorByIndex( 1 )
            generalDimension3.Layer = "Dimensions"
        End If

        Dim rotateddimension6 As Inkwright.RotatedDimension
        If 1 Then
            Dim extLine1Point_Rot1(2) As Double
            extLine1Point_Rot1(0) = 0.00000000000000
            extLine1Point_Rot1(1) = 0.00000000000000
            extLine1Point_Rot1(2) = 0.00000000000000
            Dim extLine2Point_Rot1(2) As Double
            extLine2Point_Rot1(0) = 120.00000000000000
            extLine2Point_Rot1(1) = 0.00000000000000
            extLine2Point_Rot1(2) = 0.00000000000000
            Dim dimLinePoint_Rot1(2) As Double
            dimLinePoint_Rot1(0) = 60.00000000000000
            dimLinePoint_Rot1(1) = -15.00000000000000
            dimLinePoint_Rot1(2) = 0.00000000000000
            Set rotateddimension6 = iwSketchManager.InsertRotatedDimension( extLine1Point_Rot1, extLine2Point_Rot1, dimLinePoint_Rot1, "A\\B", 3.14159265358979 )
            If 1 Then
                Dim generalDimension2 As Inkwright.GeneralDimension
                Set generalDimension2 = rotateddimension6.GetGeneralDimension()
                generalDimension2.Layer = "Dimensions"
            End If

        End If

        Dim ordinatedimension7 As Inkwright.OrdinateDimension
        If 1 Then
            Dim extLine1Point_Ord1(2) As Double
            extLine1Point_Ord1(0) = 30.00000000000000
            extLine1Point_Ord1(1) = 30.00000000000000
            extLine1Point_Ord1(2) = 0.00000000000000
            Dim extLine2Point_Ord1(2) As Double
            extLine2Point_Ord1(0) = 30.00000000000000
            extLine2Point_Ord1(1) = 80.00000000000000
            extLine2Point_Ord1(2) = 0.00000000000000
            Set ordinatedimension7 = iwSketchManager.InsertOrdinateDimension( extLine1Point_Ord1, extLine2Point_Ord1, "", Inkwright.iwOrdinateDimensionMeasure_e.iwOrdinateDimensionMeasure_UseXAxis )
            Dim generalDimension2 As Inkwright.GeneralDimension
            Set generalDimension2 = ordinatedimension7.GetGeneralDimension()
            generalDimension2.TextRotation = 1.50000000000000
            ordinatedimension7.SetOriginPoint 10.00000000000000, 5.00000000000000, 0.00000000000000
        End If

        Dim ordinatedimension8 As Inkwright.OrdinateDimension
        If 1 Then
            Dim extLine1Point_Ord1(2) As Double
            extLine1Point_Ord1(0) = 90.00000000000000
            extLine1Point_Ord1(1) = 30.00000000000000
            extLine1Point_Ord1(2) = 0.00000000000000
            Dim extLine2Point_Ord1(2) As Double
            extLine2Point_Ord1(0) = 160.00000000000000
            extLine2Point_Ord1(1) = 30.00000000000000
            extLine2Point_Ord1(2) = 0.00000000000000
            Set ordinatedimension8 = iwSketchManager.InsertOrdinateDimension( extLine1Point_Ord1, extLine2Point_Ord1, "", Inkwright.iwOrdinateDimensionMeasure_e.iwOrdinateDimensionMeasure_UseYAxis )
        End If

        Dim angulardimension9 As Inkwright.AngularDimension
        If 1 Then
            Dim centerPoint_3Point1(2) As Double
            centerPoint_3Point1(0) = 90.12345678900000
            centerPoint_3Point1(1) = 30.00000000000000
            centerPoint_3Point1(2) = 0.00000000000000
            Dim extLine1Point_3Point1(2) As Double
            extLine1Point_3Point1(0) = 110.00000000000000
            extLine1Point_3Point1(1) = 30.00000000000000
            extLine1Point_3Point1(2) = 0.00000000000000
            Dim extLine2Point_3Point1(2) As Double
            extLine2Point_3Point1(0) = 90.00000000000000
            extLine2Point_3Point1(1) = 50.00000000000000
            extLine2Point_3Point1(2) = 0.00000000000000
            Dim dimPositionPoint_3Point1(2) As Double
            dimPositionPoint_3Point1(0) = 105.00000000000000
            dimPositionPoint_3Point1(1) = 45.00000000000000
            dimPositionPoint_3Point1(2) = 0.00000000000000
            Set angulardimension9 = iwSketchManager.InsertAngularDimension3Point( centerPoint_3Point1, extLine1Point_3Point1, extLine2Point_3Point1, dimPositionPoint_3Point1, "" )
        End If

        Dim angulardimension10 As Inkwright.AngularDimension
        If 1 Then
            Dim dimPositionPoint_Arc1(2) As Double
            dimPositionPoint_Arc1(0) = 107.00000000000000
            dimPositionPoint_Arc1(1) = 47.00000000000000
            dimPositionPoint_Arc1(2) = 0.00000000000000
            Set angulardimension10 = iwSketchManager.InsertAngularDimensionArc( circlearc4, dimPositionPoint_Arc1, "" )
        End If

        Dim angulardimension11 As Inkwright.AngularDimension
        If 1 Then
            Dim angulardimension11_associated_arc As Inkwright.CircleArc
            Set angulardimension11_associated_arc = iwSketchManager.InsertArc( 200.00001250000000, 0.00000000000000, 0.00000000000000, 8.33333333330000, 0.10000000000000, 3.04159265358979 )
            Dim dimPositionPoint_Arc1(2) As Double
            dimPositionPoint_Arc1(0) = 200.00000000000000
            dimPositionPoint_Arc1(1) = 12.00000000000000
            dimPositionPoint_Arc1(2) = 0.00000000000000
            Set angulardimension11 = iwSketchManager.InsertAngularDimensionArc( angulardimension11_associated_arc, dimPositionPoint_Arc1, "<>\\P(typ.)" )
            angulardimension11_associated_arc.Erased = True
        End If

        Dim angulardimension12 As Inkwright.AngularDimension
        If 1 Then
            Dim dimPositionPoint_2Line1(2) As Double
            dimPositionPoint_2Line1(0) = 100.00000000000000
            dimPositionPoint_2Line1(1) = 20.00000000000000
            dimPositionPoint_2Line1(2) = 0.00000000000000
            Set angulardimension12 = iwSketchManager.InsertAngularDimension2Line( line1, line2, dimPositionPoint_2Line1, "<>" )
        End If

        Dim angulardimension13 As Inkwright.AngularDimension
        If 1 Then
            Dim angulardimension13_associated_line2 As Inkwright.Line
            Set angulardimension13_associated_line2 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 60.00000000000000, 0.00000000000000 )
            Dim dimPositionPoint_2Line1(2) As Double
            dimPositionPoint_2Line1(0) = 15.00000000000000
            dimPositionPoint_2Line1(1) = 15.00000000000000
            dimPositionPoint_2Line1(2) = 0.00000000000000
            Set angulardimension13 = iwSketchManager.InsertAngularDimension2Line( line1, angulardimension13_associated_line2, dimPositionPoint_2Line1, "<>" )
            angulardimension13_associated_line2.Erased = True
        End If

        Dim angulardimension14 As Inkwright.AngularDimension
        If 1 Then
            Dim angulardimension14_associated_line1 As Inkwright.Line
            Set angulardimension14_associated_line1 = iwSketchManager.InsertLine( 1.00000000000000, 0.00000000000000, 0.00000000000000, 2.00000000000000, 0.00000000000000, 0.00000000000000 )
            Dim angulardimension14_associated_line2 As Inkwright.Line
            Set angulardimension14_associated_line2 = iwSketchManager.InsertLine( 1.00000000000000, 1.00000000000000, 0.00000000000000, 2.00000000000000, 3.00000000000000, 0.00000000000000 )
            Dim dimPositionPoint_2Line1(2) As Double
            dimPositionPoint_2Line1(0) = 5.00000000000000
            dimPositionPoint_2Line1(1) = 1.00000000000000
            dimPositionPoint_2Line1(2) = 0.00000000000000
            Set angulardimension14 = iwSketchManager.InsertAngularDimension2Line( angulardimension14_associated_line1, angulardimension14_associated_line2, dimPositionPoint_2Line1, "<>" )
            angulardimension14_associated_line1.Erased = True
            angulardimension14_associated_line2.Erased = True
        End If

        Dim arclengthdimension15 As Inkwright.ArcLengthDimension
        If 1 Then
            Dim extLine1Point_ArcLen1(2) As Double
            extLine1Point_ArcLen1(0) = 110.00000000000000
            extLine1Point_ArcLen1(1) = 30.00000000000000
            extLine1Point_ArcLen1(2) = 0.00000000000000
            Dim extLine2Point_ArcLen1(2) As Double
            extLine2Point_ArcLen1(0) = 90.00000000000000
            extLine2Point_ArcLen1(1) = 50.00000000000000
            extLine2Point_ArcLen1(2) = 0.00000000000000
            Dim dimPositionPoint_ArcLen1(2) As Double
            dimPositionPoint_ArcLen1(0) = 110.00000000000000
            dimPositionPoint_ArcLen1(1) = 55.00000000000000
            dimPositionPoint_ArcLen1(2) = 0.00000000000000
            Set arclengthdimension15 = iwSketchManager.InsertArcLengthDimensionPartial( circlearc4, extLine1Point_ArcLen1, extLine2Point_ArcLen1, dimPositionPoint_ArcLen1, "" )
        End If

        Dim arclengthdimension16 As Inkwright.ArcLengthDimension
        If 1 Then
            Dim arclengthdimension16_associated_arc As Inkwright.CircleArc
            Set arclengthdimension16_associated_arc = iwSketchManager.InsertArc( 200, 0, 0, 8.33333, 0.1, 3.04159 )
            Dim extLine1Point_ArcLen1(2) As Double
            extLine1Point_ArcLen1(0) = 110.00000000000000
            extLine1Point_ArcLen1(1) = 30.00000000000000
            extLine1Point_ArcLen1(2) = 0.00000000000000
            Dim extLine2Point_ArcLen1(2) As Double
            extLine2Point_ArcLen1(0) = 90.00000000000000
            extLine2Point_ArcLen1(1) = 50.00000000000000
            extLine2Point_ArcLen1(2) = 0.00000000000000
            Dim dimPositionPoint_ArcLen1(2) As Double
            dimPositionPoint_ArcLen1(0) = 110.00000000000000
            dimPositionPoint_ArcLen1(1) = 55.00000000000000
            dimPositionPoint_ArcLen1(2) = 0.00000000000000
            Set arclengthdimension16 = iwSketchManager.InsertArcLengthDimensionPartial( arclengthdimension16_associated_arc, extLine1Point_ArcLen1, extLine2Point_ArcLen1, dimPositionPoint_ArcLen1, "" )
            arclengthdimension16_associated_arc.Erased = True
        End If

        Dim arclengthdimension17 As Inkwright.ArcLengthDimension
        If 1 Then
            Dim dimPositionPoint_ArcLen1(2) As Double
            dimPositionPoint_ArcLen1(0) = 110.00000000000000
            dimPositionPoint_ArcLen1(1) = 55.00000000000000
            dimPositionPoint_ArcLen1(2) = 0.00000000000000
            Set arclengthdimension17 = iwSketchManager.InsertArcLengthDimension( circlearc4, dimPositionPoint_ArcLen1, "" )
        End If

        Dim arclengthdimension18 As Inkwright.ArcLengthDimension
        If 1 Then
            Dim arclengthdimension18_associated_arc As Inkwright.CircleArc
            Set arclengthdimension18_associated_arc = iwSketchManager.InsertArc( 1.00000000000000, 2.00000000000000, 3.00000000000000, 5.00000000000000, 0.25000000000000, 1.75000000000000 )
            Dim dimPositionPoint_ArcLen1(2) As Double
            dimPositionPoint_ArcLen1(0) = 110.00000000000000
            dimPositionPoint_ArcLen1(1) = 55.00000000000000
            dimPositionPoint_ArcLen1(2) = 0.00000000000000
            Set arclengthdimension18 = iwSketchManager.InsertArcLengthDimension( arclengthdimension18_associated_arc, dimPositionPoint_ArcLen1, "" )
            arclengthdimension18_associated_arc.Erased = True
        End If

        Dim diameterdimension19 As Inkwright.DiameterDimension
        Dim diameterdimension20 As Inkwright.DiameterDimension
        Dim diameterdimension21 As Inkwright.DiameterDimension
        Dim diameterdimension22 As Inkwright.DiameterDimension
        If 1 Then
            Dim diameterdimension19_associated_circle As Inkwright.Circle
            Set diameterdimension19_associated_circle = iwSketchManager.InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000 )
            Dim dimPositionPoint_Dia1(2) As Double
            dimPositionPoint_Dia1(0) = 42.50000000000000
            dimPositionPoint_Dia1(1) = 30.00000000000000
            dimPositionPoint_Dia1(2) = 0.00000000000000
            Set diameterdimension19 = iwSketchManager.InsertDiameterDimensionCircle( diameterdimension19_associated_circle, dimPositionPoint_Dia1, "<> H7" )
            diameterdimension19_associated_circle.Erased = True
            Dim diameterdimension20_associated_circle As Inkwright.Circle
            Set diameterdimension20_associated_circle = iwSketchManager.InsertCircle( 0.00000000000000, 0.00000000000000, 0.00000000000000, 5.00000000000000 )
            Dim dimPositionPoint_Dia3(2) As Double
            dimPositionPoint_Dia3(0) = 3.00000000000000
            dimPositionPoint_Dia3(1) = 4.00000000000000
            dimPositionPoint_Dia3(2) = 0.00000000000000
            Set diameterdimension20 = iwSketchManager.InsertDiameterDimensionCircle( diameterdimension20_associated_circle, dimPositionPoint_Dia3, "" )
            diameterdimension20_associated_circle.Erased = True
            Dim diameterdimension21_associated_arc As Inkwright.CircleArc
            Set diameterdimension21_associated_arc = iwSketchManager.InsertArc( 90.00000000000000, 30.00000000000000, 0.00000000000000, 20.00000000000000, 0.00000000000000, 1.57079632679490 )
            Dim dimPositionPoint_Dia5(2) As Double
            dimPositionPoint_Dia5(0) = 110.00000000000000
            dimPositionPoint_Dia5(1) = 30.00000000000000
            dimPositionPoint_Dia5(2) = 0.00000000000000
            Set diameterdimension21 = iwSketchManager.InsertDiameterDimensionArc( diameterdimension21_associated_arc, dimPositionPoint_Dia5, "" )
            diameterdimension21_associated_arc.Erased = True
            Dim diameterdimension22_associated_arc As Inkwright.CircleArc
            Set diameterdimension22_associated_arc = iwSketchManager.InsertArc( 200.00001250000000, 0.00000000000000, 0.00000000000000, 8.33333333330000, 0.10000000000000, 3.04159265358979 )
            Dim dimPositionPoint_Dia7(2) As Double
            dimPositionPoint_Dia7(0) = 208.50000000000000
            dimPositionPoint_Dia7(1) = 0.00000000000000
            dimPositionPoint_Dia7(2) = 0.00000000000000
            Set diameterdimension22 = iwSketchManager.InsertDiameterDimensionArc( diameterdimension22_associated_arc, dimPositionPoint_Dia7, "" )
            diameterdimension22_associated_arc.Erased = True
        End If

        Dim radialdimension23 As Inkwright.RadialDimension
        Dim radialdimension24 As Inkwright.RadialDimension
        Dim radialdimension25 As Inkwright.RadialDimension
        Dim radialdimension26 As Inkwright.RadialDimension
        If 1 Then
            Dim radialdimension23_associated_circle As Inkwright.Circle
            Set radialdimension23_associated_circle = iwSketchManager.InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000 )
            Dim dimPositionPoint_Rad1(2) As Double
            dimPositionPoint_Rad1(0) = 30.00000000000000
            dimPositionPoint_Rad1(1) = 42.50000000000000
            dimPositionPoint_Rad1(2) = 0.00000000000000
            Set radialdimension23 = iwSketchManager.InsertRadialDimensionCircle( radialdimension23_associated_circle, dimPositionPoint_Rad1, "" )
            radialdimension23_associated_circle.Erased = True
            Dim radialdimension24_associated_circle As Inkwright.Circle
            Set radialdimension24_associated_circle = iwSketchManager.InsertCircle( 175.00000000000000, 30.00000000000000, 0.50000000000000, 4.25000000000000 )
            Dim dimPositionPoint_Rad3(2) As Double
            dimPositionPoint_Rad3(0) = 179.25000000000000
            dimPositionPoint_Rad3(1) = 30.00000000000000
            dimPositionPoint_Rad3(2) = 0.00000000000000
            Set radialdimension24 = iwSketchManager.InsertRadialDimensionCircle( radialdimension24_associated_circle, dimPositionPoint_Rad3, "R<>" )
            radialdimension24_associated_circle.Erased = True
            Dim radialdimension25_associated_arc As Inkwright.CircleArc
            Set radialdimension25_associated_arc = iwSketchManager.InsertArc( 90.00000000000000, 30.00000000000000, 0.00000000000000, 20.00000000000000, 0.00000000000000, 1.57079632679490 )
            Dim dimPositionPoint_Rad5(2) As Double
            dimPositionPoint_Rad5(0) = 90.00000000000000
            dimPositionPoint_Rad5(1) = 50.00000000000000
            dimPositionPoint_Rad5(2) = 0.00000000000000
            Set radialdimension25 = iwSketchManager.InsertRadialDimensionArc( radialdimension25_associated_arc, dimPositionPoint_Rad5, "" )
            radialdimension25_associated_arc.Erased = True
            Dim radialdimension26_associated_arc As Inkwright.CircleArc
            Set radialdimension26_associated_arc = iwSketchManager.InsertArc( 200.00001250000000, 0.00000000000000, 0.00000000000000, 8.33333333330000, 0.10000000000000, 3.04159265358979 )
            Dim dimPositionPoint_Rad7(2) As Double
            dimPositionPoint_Rad7(0) = 200.00000000000000
            dimPositionPoint_Rad7(1) = 8.30000000000000
            dimPositionPoint_Rad7(2) = 0.00000000000000
            Set radialdimension26 = iwSketchManager.InsertRadialDimensionArc( radialdimension26_associated_arc, dimPositionPoint_Rad7, "" )
            radialdimension26_associated_arc.Erased = True
        End If

        Dim radialdimension28 As Inkwright.RadialDimension
        If 1 Then
            Dim radialdimension28_associated_circle As Inkwright.Circle
            Set radialdimension28_associated_circle = iwSketchManager.InsertCircle( 5.00000000000000, 5.00000000000000, 0.00000000000000, 2.00000000000000 )
            Dim dimPositionPoint_Rad1(2) As Double
            dimPositionPoint_Rad1(0) = 7.00000000000000
            dimPositionPoint_Rad1(1) = 5.00000000000000
            dimPositionPoint_Rad1(2) = 0.00000000000000
            Set radialdimension28 = iwSketchManager.InsertRadialDimensionCircle( radialdimension28_associated_circle, dimPositionPoint_Rad1, "" )
            radialdimension28_associated_circle.Erased = True
        End If

        Dim joggeddimension29 As Inkwright.JoggedDimension
        If 1 Then
            Dim joggeddimension29_associated_circle As Inkwright.Circle
            Set joggeddimension29_associated_circle = iwSketchManager.InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000 )
            Dim centerPoint_Jog1(2) As Double
            centerPoint_Jog1(0) = 10.00000000000000
            centerPoint_Jog1(1) = 20.00000000000000
            centerPoint_Jog1(2) = 0.00000000000000
            Dim jogPoint_Jog1(2) As Double
            jogPoint_Jog1(0) = 16.00000000000000
            jogPoint_Jog1(1) = 26.00000000000000
            jogPoint_Jog1(2) = 0.00000000000000
            Dim dimPositionPoint_Jog1(2) As Double
            dimPositionPoint_Jog1(0) = 17.50000000000000
            dimPositionPoint_Jog1(1) = 30.00000000000000
            dimPositionPoint_Jog1(2) = 0.00000000000000
            Set joggeddimension29 = iwSketchManager.InsertJoggedDimensionCircle( joggeddimension29_associated_circle, centerPoint_Jog1, jogPoint_Jog1, dimPositionPoint_Jog1, "R<>" )
            joggeddimension29_associated_circle.Erased = True
        End If

        Dim joggeddimension30 As Inkwright.JoggedDimension
        If 1 Then
            Dim joggeddimension30_associated_circle As Inkwright.Circle
            Set joggeddimension30_associated_circle = iwSketchManager.InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000 )
            Dim centerPoint_Jog1(2) As Double
            centerPoint_Jog1(0) = 10.00000000000000
            centerPoint_Jog1(1) = 20.00000000000000
            centerPoint_Jog1(2) = 0.00000000000000
            Dim jogPoint_Jog1(2) As Double
            jogPoint_Jog1(0) = 16.00000000000000
            jogPoint_Jog1(1) = 26.00000000000000
            jogPoint_Jog1(2) = 0.00000000000000
            Dim dimPositionPoint_Jog1(2) As Double
            dimPositionPoint_Jog1(0) = 17.50000000000000
            dimPositionPoint_Jog1(1) = 30.00000000000000
            dimPositionPoint_Jog1(2) = 0.00000000000000
            Set joggeddimension30 = iwSketchManager.InsertJoggedDimensionCircle( joggeddimension30_associated_circle, centerPoint_Jog1, jogPoint_Jog1, dimPositionPoint_Jog1, "R<>" )
            joggeddimension30_associated_circle.Erased = True
        End If

        Dim joggeddimension31 As Inkwright.JoggedDimension
        If 1 Then
            Dim joggeddimension31_associated_arc As Inkwright.CircleArc
            Set joggeddimension31_associated_arc = iwSketchManager.InsertArc( 90.00000000000000, 30.00000000000000, 0.00000000000000, 20.00000000000000, 0.00000000000000, 1.57079632679490 )
            Dim centerPoint_Jog1(2) As Double
            centerPoint_Jog1(0) = 10.00000000000000
            centerPoint_Jog1(1) = 20.00000000000000
            centerPoint_Jog1(2) = 0.00000000000000
            Dim jogPoint_Jog1(2) As Double
            jogPoint_Jog1(0) = 16.00000000000000
            jogPoint_Jog1(1) = 26.00000000000000
            jogPoint_Jog1(2) = 0.00000000000000
            Dim dimPositionPoint_Jog1(2) As Double
            dimPositionPoint_Jog1(0) = 17.50000000000000
            dimPositionPoint_Jog1(1) = 30.00000000000000
            dimPositionPoint_Jog1(2) = 0.00000000000000
            Set joggeddimension31 = iwSketchManager.InsertJoggedDimensionArc( joggeddimension31_associated_arc, centerPoint_Jog1, jogPoint_Jog1, dimPositionPoint_Jog1, "R<>" )
            joggeddimension31_associated_arc.Erased = True
        End If

        Dim joggeddimension32 As Inkwright.JoggedDimension
        If 1 Then
            Dim joggeddimension32_associated_arc As Inkwright.CircleArc
            Set joggeddimension32_associated_arc = iwSketchManager.InsertArc( 200.00001250000000, 0.00000000000000, 0.00000000000000, 8.33333333330000, 0.10000000000000, 3.04159265358979 )
            Dim centerPoint_Jog1(2) As Double
            centerPoint_Jog1(0) = 10.00000000000000
            centerPoint_Jog1(1) = 20.00000000000000
            centerPoint_Jog1(2) = 0.00000000000000
            Dim jogPoint_Jog1(2) As Double
            jogPoint_Jog1(0) = 16.00000000000000
            jogPoint_Jog1(1) = 26.00000000000000
            jogPoint_Jog1(2) = 0.00000000000000
            Dim dimPositionPoint_Jog1(2) As Double
            dimPositionPoint_Jog1(0) = 17.50000000000000
            dimPositionPoint_Jog1(1) = 30.00000000000000
            dimPositionPoint_Jog1(2) = 0.00000000000000
            Set joggeddimension32 = iwSketchManager.InsertJoggedDimensionArc( joggeddimension32_associated_arc, centerPoint_Jog1, jogPoint_Jog1, dimPositionPoint_Jog1, "R<>" )
            joggeddimension32_associated_arc.Erased = True
        End If

