        Dim line1 As Inkwright.Line
        Dim circle2 As Inkwright.Circle
        If 1 Then
            Set line1 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 0.00000000000000, 0.00000000000000 )
            Set circle2 = iwSketchManager.InsertCircle( 0.50000000000000, 0.50000000000000, 0.00000000000000, 0.25000000000000 )
        End If

        Dim blockdefinition3 As Inkwright.BlockDefinition
        If 1 Then

            Dim objects_1( 0 ) As Object
            Set objects_1( 0 ) = line1

            Dim objecttypes_1( 0 ) As iwObjectType_e
            objecttypes_1( 0 ) = Inkwright.iwObjectType_e.iwLineType

             Set blockdefinition3 = iwDoc.CreateBlockDefinition( "Chair", "Swivel", 1.00000000000000, 2.00000000000000, 0.00000000000000, objecttypes_1, objects_1, Inkwright.iwBlockDefinitionEntities_e.iwBlockDefinitionEntities_RemoveFromDrawing )
        End If

        If 1 Then
            ' AcDbBlockTableRecord object modified
            If 1 Then

                Dim objects_1( 1 ) As Object
                Set objects_1( 0 ) = line1
                Set objects_1( 1 ) = circle2

                Dim objecttypes_1( 1 ) As iwObjectType_e
                objecttypes_1( 0 ) = Inkwright.iwObjectType_e.iwLineType
                objecttypes_1( 1 ) = Inkwright.iwObjectType_e.iwCircleType

                Dim blkName_1 As String
                blkName_1 = blockdefinition3.GetName()

                 Set blockdefinition3 = iwDoc.CreateBlockDefinition( blkName_1, "Swivel with a seat", 1.00000000000000, 2.00000000000000, 0.00000000000000, objecttypes_1, objects_1, Inkwright.iwBlockDefinitionEntities_e.iwBlockDefinitionEntities_RemoveFromDrawing )
            End If

        End If

        Dim layer4 As Inkwright.Layer
        If 1 Then
            Dim iwLayerManager1 As Inkwright.LayerManager
            Set iwLayerManager1 = iwDoc.GetLayerManager()
            Dim iwCreateObjectResult1 As Inkwright.iwCreateObjectResult_e
            iwLayerManager1.CreateLayer "Furniture", layer4, iwCreateObjectResult1
            Dim iwLayerManager_1 As Inkwright.LayerManager
            Set iwLayerManager_1  = iwDoc.GetLayerManager()
            Dim layer5 As Inkwright.Layer
            Set layer5  = iwLayerManager_1.GetLayer( "0" )
            ' AcDbLayerTableRecord object modified
            If 1 Then
                layer5.Description = "Load bearing"
                layer5.Color = iwApp.GetColorByIndex( 3 )
                layer5.LineStyle = "DASHED"
                layer5.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_035
                layer5.Frozen = False
                layer5.Locked = True
                layer5.Printable = True
                layer5.Hidden = False
                layer5.Shown = True
                layer5.Rename( "Outer walls" ) 
                layer5.Activate
                layer5.PrintStyle = "Bold"
                layer5.Transparency = 40
                layer5.FrozenInNewViewport = True
            End If

        End If

        If 1 Then
            ' AcDbLayerTableRecord object modified
            If 1 Then
                layer4.SetFrozenInViewport False, iwSheet.GetActiveViewport()
                layer4.SetColorInViewport iwApp.GetColorByIndex( 5 ), iwSheet.GetActiveViewport()
                layer4.SetLineStyleInViewport "DASHED", iwSheet.GetActiveViewport()
                layer4.SetLineWeigthInViewport Inkwright.iwLineWeight_e.iwLnWt_025, iwSheet.GetActiveViewport()
                layer4.SetTranparencyInViewport 60, iwSheet.GetActiveViewport()
                layer4.SetPrintStyleInViewport "Grey", iwSheet.GetActiveViewport()
            End If

            ' AcDbLayerTableRecord object modified
            If 1 Then
                layer4.SetColorInViewport iwApp.GetRGBColor( 200, 100, 50 ), iwSheet.GetActiveViewport()
            End If

        End If

        Dim group6 As Inkwright.Group
        If 1 Then
            Dim entities(0) As Object
            Set entities(0) = circle2
            Set group6 = iwDoc.CreateGroup( "Seat", True, "Chair and seat", entities )
            ' AcDbGroup object modified
            If 1 Then
                group6.Rename( "Seats" ) 
                group6.Description = "All seats"
                group6.Selectable = False
            End If

        End If

        If 1 Then
            ' AcDbLayout object modified
            If 1 Then
                Set iwSheet = iwDoc.GetSheet("Ground floor")
                If Not iwSheet Is Nothing Then
                     iwSheet.Activate
                     Set iwSketchManager = iwSheet.GetSketchManager()
                End If
                iwSheet.PrintStyleTable = "mono.ctb"
            End If

        End If

        Dim viewtile7 As Inkwright.ViewTile
        If 1 Then
            ' AcDbViewportTableRecord object modified
            If 1 Then
                viewtile7.CCSPerViewTile = True
                viewtile7.CSIconAtOrigin = False
                viewtile7.CSIconIsOn = True
            End If

        End If

