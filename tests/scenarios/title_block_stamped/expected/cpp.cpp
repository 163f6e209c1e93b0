    iwLayer_ptr iwlayer1;
    {
        iwLayerManager_ptr iwLayerManager1;
        iwDoc->GetLayerManager( &iwLayerManager1 );
        iwCreateObjectResult_e iwCreateObjectResult1;
        iwLayerManager1->CreateLayer( L"Frame", &iwlayer1, &iwCreateObjectResult1 );
        bool bRes2;
        iwlayer1->Activate( &bRes2 );
    }
    iwLine_ptr iwline2;
    iwLine_ptr iwline3;
    {
        iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 180.00000000000000, 0.00000000000000, 0.00000000000000, &iwline2 );
        iwSketchManager->InsertLine( 0.00000000000000, 55.00000000000000, 0.00000000000000, 180.00000000000000, 55.00000000000000, 0.00000000000000, &iwline3 );
    }
    iwCircle_ptr iwcircle4;
    {
        iwSketchManager->InsertCircle( 160.00000000000000, 40.00000000000000, 0.00000000000000, 6.00000000000000, &iwcircle4 );
    }
    iwAttributeDefinition_ptr iwattributedefinition5;
    {
        iwSketchManager->InsertAttributeDefinition(  L"", L"DRAWN", L"Drawn by?", 100.00000000000000, 40.00000000000000, 0.00000000000000, L"", iwTextJustification_Left, 3.50000000000000, 0.00000000000000, false, false, false, false, false, false, &iwattributedefinition5 );
    }
    iwLeader_ptr iwleader6;
    {
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

        Coordinates1.add(1.00000000000000);Coordinates1.add(1.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(5.00000000000000);Coordinates1.add(5.00000000000000);Coordinates1.add(0.00000000000000);

        iwSketchManager->InsertLeader( Coordinates1, 12.50000000000000, L"Scale", &iwleader6 );
        iwNote_ptr iwnote7;
        iwleader6->GetNoteAnnotation( &iwnote7 );
        iwnote7->put_BackgroundMask( false );
        iwnote7->put_UseDrawingBackgroundColor( false );
        iwnote7->put_BackgroundBorderOffsetFactor( 1.50000000000000 );
        iwnote7->put_LineSpaceDistance( 0.00000000000000 );
        iwnote7->put_LineSpaceFactor( 1.00000000000000 );
        iwnote7->put_Rotation( 0.00000000000000 );
        iwnote7->put_TextHeight( 0.00000000000000 );
        iwnote7->put_Width( 0.00000000000000 );
        iwnote7->put_Justify( iwNoteJustification_TopLeft );
    }
    iwHatch_ptr iwhatch8;
    iwBlockDefinition_ptr iwblockdefinition9;
    {
        iwNote_ptr iwnote10;
        iwleader6->GetNoteAnnotation( &iwnote10 );


                iwObjectType_e type2;
        iwLeader_ptr iwleader11;
        iwDoc->GetObjectByHandle(L"3B", &type2, &iwleader11);
        iwNote_ptr iwnote12;
        iwleader11->GetNoteAnnotation( &iwnote12 );

        iwArcLengthDimension_ptr arcLengthDimension_0;
        iwCircleArc_ptr arcLengthDimension_0_associated_arc;
        iwSketchManager->InsertArc(170.00000000000000, 10.00000000000000, 0.00000000000000, 8.48528137423857, 0.25000000000000, 1.25000000000000, &arcLengthDimension_0_associated_arc);
        {
            iwDoubleArray dimensionPosition;
            dimensionPosition.add(176.00000000000000); dimensionPosition.add(16.00000000000000); dimensionPosition.add(0.00000000000000);
            iwSketchManager->InsertArcLengthDimension(arcLengthDimension_0_associated_arc, dimensionPosition, L"\\A1;<>", &arcLengthDimension_0);
            arcLengthDimension_0_associated_arc->put_Erased(true);
        }

        iwDoubleArray Coordinates4;
        iwLongArray BoundaryPointCountLongArray4;
        BoundaryPointCountLongArray4.clear();
        Coordinates4.clear();

        Coordinates4.add(0.00000000000000);Coordinates4.add(0.00000000000000);
        Coordinates4.add(9.00000000000000);Coordinates4.add(0.00000000000000);
        Coordinates4.add(9.00000000000000);Coordinates4.add(4.00000000000000);
        Coordinates4.add(2.00000000000000);Coordinates4.add(1.00000000000000);
        Coordinates4.add(3.00000000000000);Coordinates4.add(1.00000000000000);
        Coordinates4.add(3.00000000000000);Coordinates4.add(2.00000000000000);
        Coordinates4.add(2.00000000000000);Coordinates4.add(2.00000000000000);
        Coordinates4.add(0.00000000000000);Coordinates4.add(0.00000000000000);

        BoundaryPointCountLongArray4.add(3);
        BoundaryPointCountLongArray4.add(4);

        iwSketchManager->InsertHatchByBoundary( BoundaryPointCountLongArray4, Coordinates4, L"ANSI31", 2.50000000000000, 0.75000000000000, &iwhatch8 );

        iwCircleArc_ptr arc_0;
        iwSketchManager->InsertArc( 170.00000000000000, 10.00000000000000, 0.00000000000000, 7.50000000000000, 0.00000000000000, 1.50000000000000, &arc_0 );


        iwObjectPtrArray objects_5;
        objects_5.add(iwline2);
        objects_5.add(iwline3);
        objects_5.add(iwcircle4);
        objects_5.add(iwattributedefinition5);
        objects_5.add(iwnote10);
        objects_5.add(iwnote12);
        objects_5.add(arcLengthDimension_0);
        objects_5.add(iwhatch8);
        objects_5.add(arc_0);

        iwLongArray objecttypes_5;
        objecttypes_5.add(iwLineType);
        objecttypes_5.add(iwLineType);
        objecttypes_5.add(iwCircleType);
        objecttypes_5.add(iwSimpleNoteType);
        objecttypes_5.add(iwNoteType);
        objecttypes_5.add(iwNoteType);
        objecttypes_5.add(iwArcLengthDimensionType);
        objecttypes_5.add(iwHatchType);
        objecttypes_5.add(iwCircleArcType);

         iwDoc->CreateBlockDefinition(
         L"TITLE", 
         L"A3 frame\nmetric", 
         180.00000000000000, 
         0.00000000000000, 
         0.00000000000000, 
         objecttypes_5,  
         objects_5, 
         iwBlockDefinitionEntities_RemoveFromDrawing ,&iwblockdefinition9 );
    }
    iwLine_ptr iwline13;
    {
        iwSketchManager->InsertLine( 10.00000000000000, 95.00000000000000, 0.00000000000000, 20.00000000000000, 95.00000000000000, 0.00000000000000, &iwline13 );
    }
    iwBlockInstance_ptr iwblockinstance14;
    {
         iwSketchManager->InsertBlock2(L"TITLE", 400.00000000000000, 10.00000000000000, 0.00000000000000, 1.25000000000000, 0.75000000000000, 1.00000000000000, 0.25000000000000, &iwblockinstance14 );
        iwObjectPtrArray iwAttributes1;
        iwblockinstance14->GetAttributeInstances( &iwAttributes1 );
        for (int i = 0; i < (int)iwAttributes1.length(); ++i)
        {
            iwAttributeInstance_c* iwAttribute1 = (iwAttributeInstance_c*)iwAttributes1[i];
            iwString name1;
            iwAttribute1->get_Name( &name1 );
            if (name1 == L"DRAWN")
                iwAttribute1->put_Value( L"M. Weber" );
        }
        iwObjectPtrArray iwAttributes2;
        iwblockinstance14->GetAttributeInstances( &iwAttributes2 );
        for (int i = 0; i < (int)iwAttributes2.length(); ++i)
        {
            iwAttributeInstance_c* iwAttribute2 = (iwAttributeInstance_c*)iwAttributes2[i];
            iwString name2;
            iwAttribute2->get_Name( &name2 );
            if (name2 == L"DATE")
                iwAttribute2->put_Value( L"2024-05-17" );
        }
    }
    iwBlockInstance_ptr iwblockinstance15;
    {
        iwBlockDefinition_ptr iwblockinstance15Def;
        iwCircleArc_ptr arc_1;
        iwSketchManager->InsertArc( 10.00000000000000, 100.00000000000000, 0.00000000000000, 5.00000000000000, 0.00000000000000, 2.00000000000000, &arc_1 );

        iwCircleArc_ptr arc_2;
        iwSketchManager->InsertArc( 20.00000000000000, 100.00000000000000, 0.00000000000000, 5.00000000000000, 1.00000000000000, 3.00000000000000, &arc_2 );


        iwObjectPtrArray objects_1;
        objects_1.add(iwline13);
        objects_1.add(arc_1);
        objects_1.add(arc_2);

        iwLongArray objecttypes_1;
        objecttypes_1.add(iwLineType);
        objecttypes_1.add(iwCircleArcType);
        objecttypes_1.add(iwCircleArcType);

         iwDoc->CreateBlockDefinition(
         L"*U", 
         L"Rev A\nchecked", 
         10.00000000000000, 
         100.00000000000000, 
         0.00000000000000, 
         objecttypes_1,  
         objects_1, 
         iwBlockDefinitionEntities_RemoveFromDrawing ,&iwblockinstance15Def );

         iwString iwblockinstance15Name;

         iwblockinstance15Def->GetName(&iwblockinstance15Name);
         iwSketchManager->InsertBlock2(iwblockinstance15Name, 10.00000000000000, 100.00000000000000, 0.00000000000000, 1.00000000000000, 1.00000000000000, 1.00000000000000, 0.00000000000000, &iwblockinstance15 );
         iwCustomData_ptr iwCustomData;
         iwblockinstance15->GetCustomData(L"PE_CLOUD", &iwCustomData);
         iwCustomData->Empty();
         long count;
         iwCustomData->GetDataCount(&count);
         iwCustomData->InsertStringData(count, 1000, L"REV A");
         iwCustomData->GetDataCount(&count);
         iwCustomData->InsertDoubleData(count, 1041, 2.50000000000000);
         iwCustomData->GetDataCount(&count);
         iwCustomData->InsertPointData(count, 1011, 10.00000000000000, 100.00000000000000, 0.50000000000000);
         iwblockinstance15->SetCustomData(L"PE_CLOUD", iwCustomData);
    }
    iwBlockInstance_ptr iwblockinstance16;
    {
         iwSketchManager->InsertExternalReference(  L"../refs/site.dwg", 20.00000000000000, 30.00000000000000, 0.00000000000000, 0.50000000000000, 0.25000000000000 ,&iwblockinstance16);
    }
    iwReferenceImage_ptr iwreferenceimage17;
    {
        iwSketchManager->InsertPicture( L"C:\logos\weber.png", 300.00000000000000, 20.00000000000000, 0.00000000000000, 0.37500000000000, 1.50000000000000, &iwreferenceimage17 );
    }
    iwShape_ptr iwshape18;
    {
        iwSketchManager->InsertShape( L"ARROW", 330.00000000000000, 25.00000000000000, 0.00000000000000, 4.50000000000000, 0.87500000000000, &iwshape18 );
    }
    iwLine_ptr iwline19;
    iwGroup_ptr iwgroup20;
    {
        iwSketchManager->InsertLine( 300.00000000000000, 10.00000000000000, 0.00000000000000, 390.00000000000000, 10.00000000000000, 0.00000000000000, &iwline19 );
        iwObjectPtrArray entities1;
        entities1.add(iwreferenceimage17);
        entities1.add(iwline19);
        iwDoc->CreateGroup( L"LOGO", true, L"Logo and line", entities1, &iwgroup20 );
    }
    iwGroup_ptr iwgroup21;
    {
        iwObjectPtrArray entities1;
        entities1.add(iwshape18);
        iwDoc->CreateGroup( L"*A1", false, L"", entities1, &iwgroup21 );
    }
    iwViewport_ptr iwviewport22;
    {
        iwSheet_ptr sheetItem1;
        iwDoc->GetSheet(L"A3" , &sheetItem1);
        if (NULL != sheetItem1)
        {
            iwCircle_ptr circle_0;
        iwSketchManager->InsertCircle( 210.00000000000000, 148.50000000000000, 0.00000000000000, 60.00000000000000, &circle_0 );
            iwObjectPtrArray iwObjectEntity;
            iwObjectEntity.add( circle_0 );
            iwObject* iwObj = (iwObject*)iwObjectEntity[0];
            sheetItem1->InsertViewportByEntity( iwObj, &iwviewport22 );
        }
    }
    iwViewport_ptr iwviewport23;
    {
        iwSheet_ptr sheetItem1;
        iwDoc->GetSheet(L"A3" , &sheetItem1);
        if (NULL != sheetItem1)
        {
            
            iwObjectPtrArray iwObjectEntity;
            iwObjectEntity.add( iwcircle4 );
            iwObject* iwObj = (iwObject*)iwObjectEntity[0];
            sheetItem1->InsertViewportByEntity( iwObj, &iwviewport23 );
        }
    }
    iwViewport_ptr iwviewport24;
    {
        iwSheet_ptr sheetItem1;
        iwDoc->GetSheet(L"A3" , &sheetItem1);
        if (NULL != sheetItem1)
        {
            iwPolyLine_ptr pLine_0;
        iwDoubleArray Coordinates0;
        Coordinates0.clear();
        Coordinates0.add(250.00000000000000);Coordinates0.add(150.00000000000000);
        Coordinates0.add(330.00000000000000);Coordinates0.add(150.00000000000000);
        Coordinates0.add(330.00000000000000);Coordinates0.add(220.00000000000000);

        iwSketchManager->InsertPolyline2D( Coordinates0, true, &pLine_0 );

            iwObjectPtrArray iwObjectEntity;
            iwObjectEntity.add( pLine_0 );
            iwObject* iwObj = (iwObject*)iwObjectEntity[0];
            sheetItem1->InsertViewportByEntity( iwObj, &iwviewport24 );
        }
    }
    iwViewport_ptr iwviewport25;
    {
        iwSheet_ptr sheetItem1;
        iwDoc->GetSheet(L"A3" , &sheetItem1);
        if (NULL != sheetItem1)
        {
            iwPolyLine3D_ptr pLine_1;
        iwDoubleArray Coordinates1;
        Coordinates1.clear();
        Coordinates1.add(30.00000000000000);Coordinates1.add(200.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(80.00000000000000);Coordinates1.add(200.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(80.00000000000000);Coordinates1.add(240.00000000000000);Coordinates1.add(1.00000000000000);

        iwSketchManager->InsertPolyline3D( Coordinates1, false, &pLine_1 );

            iwObjectPtrArray iwObjectEntity;
            iwObjectEntity.add( pLine_1 );
            iwObject* iwObj = (iwObject*)iwObjectEntity[0];
            sheetItem1->InsertViewportByEntity( iwObj, &iwviewport25 );
        }
    }
    iwViewport_ptr iwviewport26;
    {
        iwSheet_ptr sheetItem1;
        iwDoc->GetSheet(L"A3" , &sheetItem1);
        if (NULL != sheetItem1)
        {
            iwEllipseArc_ptr ellipse_0;
        iwSketchManager->InsertEllipseDistanceToOtherAxis( 145.00000000000000, 220.00000000000000, 95.00000000000000, 220.00000000000000, 13.00000000000000, &ellipse_0 );
            iwObjectPtrArray iwObjectEntity;
            iwObjectEntity.add( ellipse_0 );
            iwObject* iwObj = (iwObject*)iwObjectEntity[0];
            sheetItem1->InsertViewportByEntity( iwObj, &iwviewport26 );
        }
    }
    iwViewport_ptr iwviewport27;
    {
        iwSheet_ptr sheetItem1;
        iwDoc->GetSheet(L"A3" , &sheetItem1);
        if (NULL != sheetItem1)
        {
            iwEllipseArc_ptr ellipse_1;
        iwSketchManager->InsertEllipseArcDistanceToOtherAxis( 320.00000000000000, 80.00000000000000, 320.00000000000000, 40.00000000000000, 10.00000000000000, 0.50000000000000, 4.00000000000000, &ellipse_1 );
            iwObjectPtrArray iwObjectEntity;
            iwObjectEntity.add( ellipse_1 );
            iwObject* iwObj = (iwObject*)iwObjectEntity[0];
            sheetItem1->InsertViewportByEntity( iwObj, &iwviewport27 );
        }
    }
