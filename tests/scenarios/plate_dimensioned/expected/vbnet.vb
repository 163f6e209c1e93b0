        Dim line1 As Inkwright.Line
        Dim line2 As Inkwright.Line
        If 1 Then
            line1 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 120.00000000000000, 0.00000000000000, 0.00000000000000 )
            line2 = iwSketchManager.InsertLine( 120.00000000000000, 0.00000000000000, 0.00000000000000, 150.00000000000000, 60.00000000000000, 0.00000000000000 )
        End If

        Dim circle3 As Inkwright.Circle
        If 1 Then
            circle3 = iwSketchManager.InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000 )
        End If

        Dim circlearc4 As Inkwright.CircleArc
        If 1 Then
            circlearc4 = iwSketchManager.InsertArc( 90.00000000000000, 30.00000000000000, 0.00000000000000, 20.00000000000000, 0.00000000000000, 1.57079632679490 )
        End If

        Dim aligneddimension5 As Inkwright.AlignedDimension
        If 1 Then
            aligneddimension5 = iwSketchManager.InsertAlignedDimension( New double(){120.00000000000000,0.00000000000000,0.00000000000000}, New double(){150.00000000000000,60.00000000000000,0.00000000000000}, new double(){145.00000000000000,25.00000000000000,0.50000000000000}, "<> H7" )
            Dim generalDimension1 As Inkwright.GeneralDimension = aligneddimension5.GetGeneralDimension()
            generalDimension1.TextRotation = 0.25000000000000
                Dim generalDimension2 As Inkwright.GeneralDimension = aligneddimension5.GetGeneralDimension()
            generalDimension2.Color = iwApp.GetColorByIndex( 1 )
            generalDimension2.Layer = "Dimensions"
        End If

        Dim rotateddimension6 As Inkwright.RotatedDimension
        If 1 Then
            rotateddimension6 = iwSketchManager.InsertRotatedDimension( New double(){0.00000000000000,0.00000000000000,0.00000000000000}, New double(){120.00000000000000,0.00000000000000,0.00000000000000}, new double(){60.00000000000000,-15.00000000000000,0.00000000000000}, "A\\B", 3.14159265358979 )
            If 1 Then
                Dim generalDimension1 As Inkwright.GeneralDimension = rotateddimension6.GetGeneralDimension()
                generalDimension1.Layer = "Dimensions"
            End If

        End If

        Dim ordinatedimension7 As Inkwright.OrdinateDimension
        If 1 Then
            ordinatedimension7 = iwSketchManager.InsertOrdinateDimension( New double(){30.00000000000000,30.00000000000000,0.00000000000000}, new double(){30.00000000000000,80.00000000000000,0.00000000000000}, "", Inkwright.iwOrdinateDimensionMeasure_e.iwOrdinateDimensionMeasure_UseXAxis )
            Dim generalDimension1 As Inkwright.GeneralDimension = ordinatedimension7.GetGeneralDimension()
            generalDimension1.TextRotation = 1.50000000000000
            ordinatedimension7.SetOriginPoint( 10.00000000000000, 5.00000000000000, 0.00000000000000 )
        End If

        Dim ordinatedimension8 As Inkwright.OrdinateDimension
        If 1 Then
            ordinatedimension8 = iwSketchManager.InsertOrdinateDimension( New double(){90.00000000000000,30.00000000000000,0.00000000000000}, new double(){160.00000000000000,30.00000000000000,0.00000000000000}, "", Inkwright.iwOrdinateDimensionMeasure_e.iwOrdinateDimensionMeasure_UseYAxis )
        End If

        Dim angulardimension9 As Inkwright.AngularDimension
        If 1 Then
            angulardimension9 = iwSketchManager.InsertAngularDimension3Point( New double(){90.12345678900000,30.00000000000000,0.00000000000000}, New double(){110.00000000000000,30.00000000000000,0.00000000000000}, New double(){90.00000000000000,50.00000000000000,0.00000000000000}, new double(){105.00000000000000,45.00000000000000,0.00000000000000}, "" )
        End If

        Dim angulardimension10 As Inkwright.AngularDimension
        If 1 Then
            angulardimension10 = iwSketchManager.InsertAngularDimensionArc( circlearc4, new double(){107.00000000000000,47.00000000000000,0.00000000000000}, "" )
        End If

        Dim angulardimension11 As Inkwright.AngularDimension
        If 1 Then
            Dim angulardimension11_associated_arc As Inkwright.CircleArc
            angulardimension11_associated_arc = iwSketchManager.InsertArc( 200.00001250000000, 0.00000000000000, 0.00000000000000, 8.33333333330000, 0.10000000000000, 3.04159265358979 )
            angulardimension11 = iwSketchManager.InsertAngularDimensionArc( angulardimension11_associated_arc, new double(){200.00000000000000,12.00000000000000,0.00000000000000}, "<>\\P(typ.)" )
            angulardimension11_associated_arc.Erased = true
        End If

        Dim angulardimension12 As Inkwright.AngularDimension
        If 1 Then
            angulardimension12 = iwSketchManager.InsertAngularDimension2Line( line1, line2, new double(){100.00000000000000,20.00000000000000,0.00000000000000}, "<>" )
        End If

        Dim angulardimension13 As Inkwright.AngularDimension
        If 1 Then
            Dim angulardimension13_associated_line2 As Inkwright.Line
            angulardimension13_associated_line2 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 60.00000000000000, 0.00000000000000 )
            angulardimension13 = iwSketchManager.InsertAngularDimension2Line( line1, angulardimension13_associated_line2, new double(){15.00000000000000,15.00000000000000,0.00000000000000}, "<>" )
            angulardimension13_associated_line2.Erased = true
        End If

        Dim angulardimension14 As Inkwright.AngularDimension
        If 1 Then
            Dim angulardimension14_associated_line1 As Inkwright.Line
            angulardimension14_associated_line1 = iwSketchManager.InsertLine( 1.00000000000000, 0.00000000000000, 0.00000000000000, 2.00000000000000, 0.00000000000000, 0.00000000000000 )
            Dim angulardimension14_associated_line2 As Inkwright.Line
            angulardimension14_associated_line2 = iwSketchManager.InsertLine( 1.00000000000000, 1.00000000000000, 0.00000000000000, 2.00000000000000, 3.00000000000000, 0.00000000000000 )
            angulardimension14 = iwSketchManager.InsertAngularDimension2Line( angulardimension14_associated_line1, angulardimension14_associated_line2, new double(){5.00000000000000,1.00000000000000,0.00000000000000}, "<>" )
            angulardimension14_associated_line1.Erased = true
            angulardimension14_associated_line2.Erased = true
        End If

        Dim arclengthdimension15 As Inkwright.ArcLengthDimension
        If 1 Then
            arclengthdimension15 = iwSketchManager.InsertArcLengthDimensionPartial( circlearc4, new double(){110.00000000000000,30.00000000000000,0.00000000000000}, new double(){90.00000000000000,50.00000000000000,0.00000000000000}, new double(){110.00000000000000,55.00000000000000,0.00000000000000}, "" )
        End If

        Dim arclengthdimension16 As Inkwright.ArcLengthDimension
        If 1 Then
            Dim arclengthdimension16_associated_arc As Inkwright.CircleArc
            arclengthdimension16_associated_arc = iwSketchManager.InsertArc( 200, 0, 0, 8.33333, 0.1, 3.04159 )
            arclengthdimension16 = iwSketchManager.InsertArcLengthDimensionPartial( arclengthdimension16_associated_arc, new double(){110.00000000000000,30.00000000000000,0.00000000000000}, new double(){90.00000000000000,50.00000000000000,0.00000000000000}, new double(){110.00000000000000,55.00000000000000,0.00000000000000}, "" )
            arclengthdimension16_associated_arc.Erased = true
        End If

        Dim arclengthdimension17 As Inkwright.ArcLengthDimension
        If 1 Then
            arclengthdimension17 = iwSketchManager.InsertArcLengthDimension( circlearc4, new double(){110.00000000000000,55.00000000000000,0.00000000000000}, "" )
        End If

        Dim arclengthdimension18 As Inkwright.ArcLengthDimension
        If 1 Then
            Dim arclengthdimension18_associated_arc As Inkwright.CircleArc
            arclengthdimension18_associated_arc = iwSketchManager.InsertArc( 1.00000000000000, 2.00000000000000, 3.00000000000000, 5.00000000000000, 0.25000000000000, 1.75000000000000 )
            arclengthdimension18 = iwSketchManager.InsertArcLengthDimension( arclengthdimension18_associated_arc, new double(){110.00000000000000,55.00000000000000,0.00000000000000}, "" )
            arclengthdimension18_associated_arc.Erased = true
        End If

        Dim diameterdimension19 As Inkwright.DiameterDimension
        Dim diameterdimension20 As Inkwright.DiameterDimension
        Dim diameterdimension21 As Inkwright.DiameterDimension
        Dim diameterdimension22 As Inkwright.DiameterDimension
        If 1 Then
            Dim diameterdimension19_associated_circle As Inkwright.Circle
            diameterdimension19_associated_circle = iwSketchManager.InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000 )
            diameterdimension19 = iwSketchManager.InsertDiameterDimensionCircle( diameterdimension19_associated_circle, new double(){42.50000000000000,30.00000000000000,0.00000000000000}, "<> H7" )
            diameterdimension19_associated_circle.Erased = true
            Dim diameterdimension20_associated_circle As Inkwright.Circle
            diameterdimension20_associated_circle = iwSketchManager.InsertCircle( 0.00000000000000, 0.00000000000000, 0.00000000000000, 5.00000000000000 )
            diameterdimension20 = iwSketchManager.InsertDiameterDimensionCircle( diameterdimension20_associated_circle, new double(){3.00000000000000,4.00000000000000,0.00000000000000}, "" )
            diameterdimension20_associated_circle.Erased = true
            Dim diameterdimension21_associated_arc As Inkwright.CircleArc
            diameterdimension21_associated_arc = iwSketchManager.InsertArc( 90.00000000000000, 30.00000000000000, 0.00000000000000, 20.00000000000000, 0.00000000000000, 1.57079632679490 )
            diameterdimension21 = iwSketchManager.InsertDiameterDimensionArc( diameterdimension21_associated_arc, new double(){110.00000000000000,30.00000000000000,0.00000000000000}, "" )
            diameterdimension21_associated_arc.Erased = true
            Dim diameterdimension22_associated_arc As Inkwright.CircleArc
            diameterdimension22_associated_arc = iwSketchManager.InsertArc( 200.00001250000000, 0.00000000000000, 0.00000000000000, 8.33333333330000, 0.10000000000000, 3.04159265358979 )
            diameterdimension22 = iwSketchManager.InsertDiameterDimensionArc( diameterdimension22_associated_arc, new double(){208.50000000000000,0.00000000000000,0.00000000000000}, "" )
            diameterdimension22_associated_arc.Erased = true
        End If

        Dim radialdimension23 As Inkwright.RadialDimension
        Dim radialdimension24 As Inkwright.RadialDimension
        Dim radialdimension25 As Inkwright.RadialDimension
        Dim radialdimension26 As Inkwright.RadialDimension
        If 1 Then
            Dim radialdimension23_associated_circle As Inkwright.Circle
            radialdimension23_associated_circle = iwSketchManager.InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000 )
            radialdimension23 = iwSketchManager.InsertRadialDimensionCircle( radialdimension23_associated_circle, new double(){30.00000000000000,42.50000000000000,0.00000000000000}, "" )
            radialdimension23_associated_circle.Erased = true
            Dim radialdimension24_associated_circle As Inkwright.Circle
            radialdimension24_associated_circle = iwSketchManager.InsertCircle( 175.00000000000000, 30.00000000000000, 0.50000000000000, 4.25000000000000 )
            radialdimension24 = iwSketchManager.InsertRadialDimensionCircle( radialdimension24_associated_circle, new double(){179.25000000000000,30.00000000000000,0.00000000000000}, "R<>" )
            radialdimension24_associated_circle.Erased = true
            Dim radialdimension25_associated_arc As Inkwright.CircleArc
            radialdimension25_associated_arc = iwSketchManager.InsertArc( 90.00000000000000, 30.00000000000000, 0.00000000000000, 20.00000000000000, 0.00000000000000, 1.57079632679490 )
            radialdimension25 = iwSketchManager.InsertRadialDimensionArc( radialdimension25_associated_arc, new double(){90.00000000000000,50.00000000000000,0.00000000000000}, "" )
            radialdimension25_associated_arc.Erased = true
            Dim radialdimension26_associated_arc As Inkwright.CircleArc
            radialdimension26_associated_arc = iwSketchManager.InsertArc( 200.00001250000000, 0.00000000000000, 0.00000000000000, 8.33333333330000, 0.10000000000000, 3.04159265358979 )
            radialdimension26 = iwSketchManager.InsertRadialDimensionArc( radialdimension26_associated_arc, new double(){200.00000000000000,8.30000000000000,0.00000000000000}, "" )
            radialdimension26_associated_arc.Erased = true
        End If

        Dim radialdimension28 As Inkwright.RadialDimension
        If 1 Then
            Dim radialdimension28_associated_circle As Inkwright.Circle
            radialdimension28_associated_circle = iwSketchManager.InsertCircle( 5.00000000000000, 5.00000000000000, 0.00000000000000, 2.00000000000000 )
            radialdimension28 = iwSketchManager.InsertRadialDimensionCircle( radialdimension28_associated_circle, new double(){7.00000000000000,5.00000000000000,0.00000000000000}, "" )
            radialdimension28_associated_circle.Erased = true
        End If

        Dim joggeddimension29 As Inkwright.JoggedDimension
        If 1 Then
            Dim joggeddimension29_associated_circle As Inkwright.Circle
            joggeddimension29_associated_circle = iwSketchManager.InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000 )
            joggeddimension29 = iwSketchManager.InsertJoggedDimensionCircle( joggeddimension29_associated_circle, new double(){10.00000000000000,20.00000000000000,0.00000000000000}, new double(){16.00000000000000,26.00000000000000,0.00000000000000}, new double(){17.50000000000000,30.00000000000000,0.00000000000000}, "R<>" )
            joggeddimension29_associated_circle.Erased = true
        End If

        Dim joggeddimension30 As Inkwright.JoggedDimension
        If 1 Then
            Dim joggeddimension30_associated_circle As Inkwright.Circle
            joggeddimension30_associated_circle = iwSketchManager.InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000 )
            joggeddimension30 = iwSketchManager.InsertJoggedDimensionCircle( joggeddimension30_associated_circle, new double(){10.00000000000000,20.00000000000000,0.00000000000000}, new double(){16.00000000000000,26.00000000000000,0.00000000000000}, new double(){17.50000000000000,30.00000000000000,0.00000000000000}, "R<>" )
            joggeddimension30_associated_circle.Erased = true
        End If

        Dim joggeddimension31 As Inkwright.JoggedDimension
        If 1 Then
            Dim joggeddimension31_associated_arc As Inkwright.CircleArc
            joggeddimension31_associated_arc = iwSketchManager.InsertArc( 90.00000000000000, 30.00000000000000, 0.00000000000000, 20.00000000000000, 0.00000000000000, 1.57079632679490 )
            joggeddimension31 = iwSketchManager.InsertJoggedDimensionArc( joggeddimension31_associated_arc, new double(){10.00000000000000,20.00000000000000,0.00000000000000}, new double(){16.00000000000000,26.00000000000000,0.00000000000000}, new double(){17.50000000000000,30.00000000000000,0.00000000000000}, "R<>" )
            joggeddimension31_associated_arc.Erased = true
        End If

        Dim joggeddimension32 As Inkwright.JoggedDimension
        If 1 Then
            Dim joggeddimension32_associated_arc As Inkwright.CircleArc
            joggeddimension32_associated_arc = iwSketchManager.InsertArc( 200.00001250000000, 0.00000000000000, 0.00000000000000, 8.33333333330000, 0.10000000000000, 3.04159265358979 )
            joggeddimension32 = iwSketchManager.InsertJoggedDimensionArc( joggeddimension32_associated_arc, new double(){10.00000000000000,20.00000000000000,0.00000000000000}, new double(){16.00000000000000,26.00000000000000,0.00000000000000}, new double(){17.50000000000000,30.00000000000000,0.00000000000000}, "R<>" )
            joggeddimension32_associated_arc.Erased = true
        End If

