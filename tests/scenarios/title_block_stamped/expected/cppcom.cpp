    ILayerPtr layer1;
    {
        ILayerManagerPtr iwLayerManager1 = iwDoc->GetLayerManager();
        iwCreateObjectResult_e iwCreateObjectResult1;
        iwLayerManager1->CreateLayer( L"Frame", &layer1, &iwCreateObjectResult1 );
        layer1->Activate();
    }
    ILinePtr line2;
    ILinePtr line3;
    {
        line2 = iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 180.00000000000000, 0.00000000000000, 0.00000000000000 );
        line3 = iwSketchManager->InsertLine( 0.00000000000000, 55.00000000000000, 0.00000000000000, 180.00000000000000, 55.00000000000000, 0.00000000000000 );
    }
    ICirclePtr circle4;
    {
        circle4 = iwSketchManager->InsertCircle( 160.00000000000000, 40.00000000000000, 0.00000000000000, 6.00000000000000 );
    }
    IAttributeDefinitionPtr attributedefinition5;
    {
        attributedefinition5 = iwSketchManager->InsertAttributeDefinition(  L"", L"DRAWN", L"Drawn by?", 100.00000000000000, 40.00000000000000, 0.00000000000000, L"", iwTextJustification_Left, 3.50000000000000, 0.00000000000000, false, false, false, false, false, false );
    }
    ILeaderPtr leader6;
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 6 );
        long rgIndices1;
        rgIndices1 = -1;
        double x_1, y_1, z_1;
        x_1=1.00000000000000; y_1=1.00000000000000; z_1=0.00000000000000;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=5.00000000000000; y_1=5.00000000000000; z_1=0.00000000000000;
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );

        leader6 = iwSketchManager->InsertLeader( variant1, 12.50000000000000, L"Scale" );
        INotePtr note7 = leader6->GetNoteAnnotation();
        note7->put_BackgroundMask( false );
        note7->put_UseDrawingBackgroundColor( false );
        note7->put_BackgroundBorderOffsetFactor( 1.50000000000000 );
        note7->put_LineSpaceDistance( 0.00000000000000 );
        note7->put_LineSpaceFactor( 1.00000000000000 );
        note7->put_Rotation( 0.00000000000000 );
        note7->put_TextHeight( 0.00000000000000 );
        note7->put_Width( 0.00000000000000 );
        note7->put_Justify( iwNoteJustification_TopLeft );
    }
    IHatchPtr hatch8;
    IBlockDefinitionPtr blockdefinition9;
    {
        INotePtr note10 = leader6->GetNoteAnnotation();


                iwObjectType_e type2;
        ILeaderPtr leader11 = pConnection->m_IwApp->GetActiveDocument()->GetObjectByHandle(L"3B", &type2);
        INotePtr note12 = leader11->GetNoteAnnotation();

        IArcLengthDimensionPtr arcLengthDimension_0;
        ICircleArcPtr arcLengthDimension_0_associated_arc; arcLengthDimension_0_associated_arc = iwSketchManager->InsertArc( 170.00000000000000, 10.00000000000000, 0.00000000000000, 8.48528137423857, 0.25000000000000, 1.25000000000000 );
        {
            double x, y, z;
            VARIANT variant4;
            variant4.vt = ( VT_ARRAY | VT_R8 );
            variant4.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        long rgIndices4;
        rgIndices4 = 0;
        x=176.00000000000000; y=16.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant4.parray, &rgIndices4, (double*)&(x) );
        rgIndices4=1;
        SafeArrayPutElement( variant4.parray, &rgIndices4, (double*)&(y) );
        rgIndices4=2;
        SafeArrayPutElement( variant4.parray, &rgIndices4, (double*)&(z) );

            arcLengthDimension_0=iwSketchManager->InsertArcLengthDimension( arcLengthDimension_0_associated_arc,variant4, L"\\A1;<>");
            arcLengthDimension_0_associated_arc->put_Erased(true);
        }

        VARIANT variant5,BoundaryPointCountLongArray5;
        variant5.vt = ( VT_ARRAY | VT_R8 );
        FaceVerticesCountLongArray5.vt = ( VT_ARRAY | VT_I4 );
        variant5.parray = SafeArrayCreateVector( VT_R8, 0, 16 );
        FaceVerticesCountLongArray5.parray = SafeArrayCreateVector( VT_I4, 0, 2 );
        long rgIndices5;
        rgIndices5 = -1;
        double x, y;
        x=0.00000000000000; y=0.00000000000000;
        rgIndices5=0;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(x) );
        rgIndices5=1;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(y) );
        x=9.00000000000000; y=0.00000000000000;
        rgIndices5=2;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(x) );
        rgIndices5=3;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(y) );
        x=9.00000000000000; y=4.00000000000000;
        rgIndices5=4;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(x) );
        rgIndices5=5;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(y) );
        x=2.00000000000000; y=1.00000000000000;
        rgIndices5=6;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(x) );
        rgIndices5=7;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(y) );
        x=3.00000000000000; y=1.00000000000000;
        rgIndices5=8;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(x) );
        rgIndices5=9;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(y) );
        x=3.00000000000000; y=2.00000000000000;
        rgIndices5=10;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(x) );
        rgIndices5=11;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(y) );
        x=2.00000000000000; y=2.00000000000000;
        rgIndices5=12;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(x) );
        rgIndices5=13;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(y) );
        x=0.00000000000000; y=0.00000000000000;
        rgIndices5=14;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(x) );
        rgIndices5=15;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(y) );

        long rgIndices5;
        rgIndices5 = 0;
        int val5;
        val5 = 3;
        SafeArrayPutElement( BoundaryPointCountLongArray5.parray, &rgIndices5, (int*)&(val5) );
        rgIndices5++;
        val5 = 4;
        SafeArrayPutElement( BoundaryPointCountLongArray5.parray, &rgIndices5, (int*)&(val5) );
        rgIndices5++;

         hatch8=iwSketchManager->InsertHatchByBoundary( BoundaryPointCountLongArray5, variant5, L"ANSI31", 2.50000000000000, 0.75000000000000);

        ICircleArcPtr arc_0;
        arc_0 = iwSketchManager->InsertArc( 170.00000000000000, 10.00000000000000, 0.00000000000000, 7.50000000000000, 0.00000000000000, 1.50000000000000 );


        VARIANT objects_6;
        objects_6.vt = ( VT_ARRAY | VT_DISPATCH );
        objects_6.parray = SafeArrayCreateVector( VT_DISPATCH, 0, 9 );
        long rgIndices6;
        rgIndices6 = 0;
        IDispatch* val6;
        val6 = line2;
        SafeArrayPutElement( objects_6.parray, &rgIndices6, (IDispatch*)(val6) );
        rgIndices6++;
        val6 = line3;
        SafeArrayPutElement( objects_6.parray, &rgIndices6, (IDispatch*)(val6) );
        rgIndices6++;
        val6 = circle4;
        SafeArrayPutElement( objects_6.parray, &rgIndices6, (IDispatch*)(val6) );
        rgIndices6++;
        val6 = attributedefinition5;
        SafeArrayPutElement( objects_6.parray, &rgIndices6, (IDispatch*)(val6) );
        rgIndices6++;
        val6 = note10;
        SafeArrayPutElement( objects_6.parray, &rgIndices6, (IDispatch*)(val6) );
        rgIndices6++;
        val6 = note12;
        SafeArrayPutElement( objects_6.parray, &rgIndices6, (IDispatch*)(val6) );
        rgIndices6++;
        val6 = arcLengthDimension_0;
        SafeArrayPutElement( objects_6.parray, &rgIndices6, (IDispatch*)(val6) );
        rgIndices6++;
        val6 = hatch8;
        SafeArrayPutElement( objects_6.parray, &rgIndices6, (IDispatch*)(val6) );
        rgIndices6++;
        val6 = arc_0;
        SafeArrayPutElement( objects_6.parray, &rgIndices6, (IDispatch*)(val6) );
        rgIndices6++;

        VARIANT objecttypes_6;
        objecttypes_6.vt = ( VT_ARRAY | VT_I4 );
        objecttypes_6.parray = SafeArrayCreateVector( VT_I4, 0, 9 );
        {
            long rgIndices6;
            rgIndices6 = 0;
            int val6;
            val6 = iwLineType;
            SafeArrayPutElement( objecttypes_6.parray, &rgIndices6, (int*)&(val6) );
            rgIndices6++;
            val6 = iwLineType;
            SafeArrayPutElement( objecttypes_6.parray, &rgIndices6, (int*)&(val6) );
            rgIndices6++;
            val6 = iwCircleType;
            SafeArrayPutElement( objecttypes_6.parray, &rgIndices6, (int*)&(val6) );
            rgIndices6++;
            val6 = iwSimpleNoteType;
            SafeArrayPutElement( objecttypes_6.parray, &rgIndices6, (int*)&(val6) );
            rgIndices6++;
            val6 = iwNoteType;
            SafeArrayPutElement( objecttypes_6.parray, &rgIndices6, (int*)&(val6) );
            rgIndices6++;
            val6 = iwNoteType;
            SafeArrayPutElement( objecttypes_6.parray, &rgIndices6, (int*)&(val6) );
            rgIndices6++;
            val6 = iwArcLengthDimensionType;
            SafeArrayPutElement( objecttypes_6.parray, &rgIndices6, (int*)&(val6) );
            rgIndices6++;
            val6 = iwHatchType;
            SafeArrayPutElement( objecttypes_6.parray, &rgIndices6, (int*)&(val6) );
            rgIndices6++;
            val6 = iwCircleArcType;
            SafeArrayPutElement( objecttypes_6.parray, &rgIndices6, (int*)&(val6) );
            rgIndices6++;
        }

         blockdefinition9 = iwDoc->CreateBlockDefinition(
         L"TITLE", 
         L"A3 frame\nmetric", 
         180.00000000000000, 
         0.00000000000000, 
         0.00000000000000, 
         objecttypes_6,  
         objects_6, 
         iwBlockDefinitionEntities_RemoveFromDrawing );
    }
    ILinePtr line13;
    {
        line13 = iwSketchManager->InsertLine( 10.00000000000000, 95.00000000000000, 0.00000000000000, 20.00000000000000, 95.00000000000000, 0.00000000000000 );
    }
    IBlockInstancePtr blockinstance14;
    {
         blockinstance14 = iwSketchManager->InsertBlock2(L"TITLE", 400.00000000000000, 10.00000000000000, 0.00000000000000, 1.25000000000000, 0.75000000000000, 1.00000000000000, 0.25000000000000 );
        IAttributeInstancePtr *iwAttributes1 = NULL;
        int count1 = 0;
        TypeConverter::convertVariantArrayToPtrArray<IAttributeInstancePtr, IAttributeInstance>( blockinstance14->GetAttributeInstances(), iwAttributes1, count1 );
        for (int i = 0; i < count1; ++i)
        {
            if (iwAttributes1[i]->GetName() == _bstr_t(L"DRAWN"))
                iwAttributes1[i]->put_Value( L"M. Weber" );
        }
        IAttributeInstancePtr *iwAttributes2 = NULL;
        int count2 = 0;
        TypeConverter::convertVariantArrayToPtrArray<IAttributeInstancePtr, IAttributeInstance>( blockinstance14->GetAttributeInstances(), iwAttributes2, count2 );
        for (int i = 0; i < count2; ++i)
        {
            if (iwAttributes2[i]->GetName() == _bstr_t(L"DATE"))
                iwAttributes2[i]->put_Value( L"2024-05-17" );
        }
    }
    IBlockInstancePtr blockinstance15;
    {
        IBlockDefinitionPtr blockinstance15Def;
        ICircleArcPtr arc_1;
        arc_1 = iwSketchManager->InsertArc( 10.00000000000000, 100.00000000000000, 0.00000000000000, 5.00000000000000, 0.00000000000000, 2.00000000000000 );

        ICircleArcPtr arc_2;
        arc_2 = iwSketchManager->InsertArc( 20.00000000000000, 100.00000000000000, 0.00000000000000, 5.00000000000000, 1.00000000000000, 3.00000000000000 );


        VARIANT objects_1;
        objects_1.vt = ( VT_ARRAY | VT_DISPATCH );
        objects_1.parray = SafeArrayCreateVector( VT_DISPATCH, 0, 3 );
        long rgIndices1;
        rgIndices1 = 0;
        IDispatch* val1;
        val1 = line13;
        SafeArrayPutElement( objects_1.parray, &rgIndices1, (IDispatch*)(val1) );
        rgIndices1++;
        val1 = arc_1;
        SafeArrayPutElement( objects_1.parray, &rgIndices1, (IDispatch*)(val1) );
        rgIndices1++;
        val1 = arc_2;
        SafeArrayPutElement( objects_1.parray, &rgIndices1, (IDispatch*)(val1) );
        rgIndices1++;

        VARIANT objecttypes_1;
        objecttypes_1.vt = ( VT_ARRAY | VT_I4 );
        objecttypes_1.parray = SafeArrayCreateVector( VT_I4, 0, 3 );
        {
            long rgIndices1;
            rgIndices1 = 0;
            int val1;
            val1 = iwLineType;
            SafeArrayPutElement( objecttypes_1.parray, &rgIndices1, (int*)&(val1) );
            rgIndices1++;
            val1 = iwCircleArcType;
            SafeArrayPutElement( objecttypes_1.parray, &rgIndices1, (int*)&(val1) );
            rgIndices1++;
            val1 = iwCircleArcType;
            SafeArrayPutElement( objecttypes_1.parray, &rgIndices1, (int*)&(val1) );
            rgIndices1++;
        }

         blockinstance15Def = iwDoc->CreateBlockDefinition(
         L"*U", 
         L"Rev A\nchecked", 
         10.00000000000000, 
         100.00000000000000, 
         0.00000000000000, 
         objecttypes_1,  
         objects_1, 
         iwBlockDefinitionEntities_RemoveFromDrawing );

         BSTR blockinstance15Name;

         blockinstance15Name = blockinstance15Def->GetName();
         blockinstance15 = iwSketchManager->InsertBlock2(blockinstance15Name, 10.00000000000000, 100.00000000000000, 0.00000000000000, 1.00000000000000, 1.00000000000000, 1.00000000000000, 0.00000000000000 );
         ICustomDataPtr iwCustomData;
         iwCustomData = blockinstance15->GetCustomData(L"PE_CLOUD");
         iwCustomData->Empty();
         long count;
         count = iwCustomData->GetDataCount();
         iwCustomData->InsertStringData(count, 1000, L"REV A");
         count = iwCustomData->GetDataCount();
         iwCustomData->InsertDoubleData(count, 1041, 2.50000000000000);
         count = iwCustomData->GetDataCount();
         iwCustomData->InsertPointData(count, 1011, 10.00000000000000, 100.00000000000000, 0.50000000000000);
         blockinstance15->SetCustomData(L"PE_CLOUD", iwCustomData);
    }
    IBlockInstancePtr blockinstance16;
    {
         blockinstance16 = iwSketchManager->InsertExternalReference(  L"../refs/site.dwg", 20.00000000000000, 30.00000000000000, 0.00000000000000, 0.50000000000000, 0.25000000000000 );
    }
    IReferenceImagePtr referenceimage17;
    {
        referenceimage17 = iwSketchManager->InsertPicture( L"C:\logos\weber.png", 300.00000000000000, 20.00000000000000, 0.00000000000000, 0.37500000000000, 1.50000000000000 );
    }
    IShapePtr shape18;
    {
        shape18 = iwSketchManager->InsertShape( L"ARROW", 330.00000000000000, 25.00000000000000, 0.00000000000000, 4.50000000000000, 0.87500000000000 );
    }
    ILinePtr line19;
    IGroupPtr group20;
    {
        line19 = iwSketchManager->InsertLine( 300.00000000000000, 10.00000000000000, 0.00000000000000, 390.00000000000000, 10.00000000000000, 0.00000000000000 );
        VARIANT EntityArray1;
        EntityArray1.vt = ( VT_ARRAY | VT_DISPATCH );
        EntityArray1.parray = SafeArrayCreateVector( VT_DISPATCH, 0, 2);
                long rgIndices1;
        rgIndices1 = 0;
        IDispatch* val1;
        val1 = referenceimage17;
        SafeArrayPutElement( EntityArray1.parray, &rgIndices1, (IDispatch*)(val1) );
        rgIndices1++;
        val1 = line19;
        SafeArrayPutElement( EntityArray1.parray, &rgIndices1, (IDispatch*)(val1) );
        rgIndices1++;

        iwDoc->CreateGroup("LOGO", true, L"Logo and line", EntityArray1 );
    }
    IGroupPtr group21;
    {
        VARIANT EntityArray1;
        EntityArray1.vt = ( VT_ARRAY | VT_DISPATCH );
        EntityArray1.parray = SafeArrayCreateVector( VT_DISPATCH, 0, 1);
                long rgIndices1;
        rgIndices1 = 0;
        IDispatch* val1;
        val1 = shape18;
        SafeArrayPutElement( EntityArray1.parray, &rgIndices1, (IDispatch*)(val1) );
        rgIndices1++;

        iwDoc->CreateGroup("*A1", false, L"", EntityArray1 );
    }
    IViewportPtr viewport22;
    {
        ISheetPtr sheetItem1 = iwDoc->GetSheet(L"A3");
        if (NULL != sheetItem1)
        {
            ICirclePtr circle_0;
        circle_0 = iwSketchManager->InsertCircle( 210.00000000000000, 148.50000000000000, 0.00000000000000, 60.00000000000000 );
            viewport22 = sheetItem1->InsertViewportByEntity( circle_0 );
        }
    }
    IViewportPtr viewport23;
    {
        ISheetPtr sheetItem1 = iwDoc->GetSheet(L"A3");
        if (NULL != sheetItem1)
        {
            
            viewport23 = sheetItem1->InsertViewportByEntity( circle4 );
        }
    }
    IViewportPtr viewport24;
    {
        ISheetPtr sheetItem1 = iwDoc->GetSheet(L"A3");
        if (NULL != sheetItem1)
        {
            IPolyLinePtr pLine_0;
        VARIANT variant0;
        variant0.vt = ( VT_ARRAY | VT_R8 );
        variant0.parray = SafeArrayCreateVector( VT_R8, 0, 6 );
        long rgIndices0;
        rgIndices0 = -1;
        double x, y;
        x=250.00000000000000; y=150.00000000000000;
        rgIndices0=0;
        SafeArrayPutElement( variant0.parray, &rgIndices0, (double*)&(x) );
        rgIndices0=1;
        SafeArrayPutElement( variant0.parray, &rgIndices0, (double*)&(y) );
        x=330.00000000000000; y=150.00000000000000;
        rgIndices0=2;
        SafeArrayPutElement( variant0.parray, &rgIndices0, (double*)&(x) );
        rgIndices0=3;
        SafeArrayPutElement( variant0.parray, &rgIndices0, (double*)&(y) );
        x=330.00000000000000; y=220.00000000000000;
        rgIndices0=4;
        SafeArrayPutElement( variant0.parray, &rgIndices0, (double*)&(x) );
        rgIndices0=5;
        SafeArrayPutElement( variant0.parray, &rgIndices0, (double*)&(y) );

        pLine_0=iwSketchManager->InsertPolyline2D( variant0, true);

            viewport24 = sheetItem1->InsertViewportByEntity( pLine_0 );
        }
    }
    IViewportPtr viewport25;
    {
        ISheetPtr sheetItem1 = iwDoc->GetSheet(L"A3");
        if (NULL != sheetItem1)
        {
            IPolyLine3DPtr pLine_1;
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 9 );
        long rgIndices1;
        rgIndices1 = -1;
        double x_1, y_1, z_1;
        x_1=30.00000000000000; y_1=200.00000000000000; z_1=0.00000000000000;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=80.00000000000000; y_1=200.00000000000000; z_1=0.00000000000000;
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=80.00000000000000; y_1=240.00000000000000; z_1=1.00000000000000;
        rgIndices1=6;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=7;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=8;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );

        pLine_1=iwSketchManager->InsertPolyline3D( variant1, false);

            viewport25 = sheetItem1->InsertViewportByEntity( pLine_1 );
        }
    }
    IViewportPtr viewport26;
    {
        ISheetPtr sheetItem1 = iwDoc->GetSheet(L"A3");
        if (NULL != sheetItem1)
        {
            IEllipseArcPtr ellipse_0;
        ellipse_0 = iwSketchManager->InsertEllipseDistanceToOtherAxis( 145.00000000000000, 220.00000000000000, 95.00000000000000, 220.00000000000000, 13.00000000000000 );
            viewport26 = sheetItem1->InsertViewportByEntity( ellipse_0 );
        }
    }
    IViewportPtr viewport27;
    {
        ISheetPtr sheetItem1 = iwDoc->GetSheet(L"A3");
        if (NULL != sheetItem1)
        {
            IEllipseArcPtr ellipse_1;
        ellipse_1 = iwSketchManager->InsertEllipseArcDistanceToOtherAxis( 320.00000000000000, 80.00000000000000, 320.00000000000000, 40.00000000000000, 10.00000000000000, 0.50000000000000, 4.00000000000000 );
            viewport27 = sheetItem1->InsertViewportByEntity( ellipse_1 );
        }
    }
