    ILinePtr line1;
    ICirclePtr circle2;
    {
        line1 = iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 0.00000000000000, 0.00000000000000 );
        circle2 = iwSketchManager->InsertCircle( 0.50000000000000, 0.50000000000000, 0.00000000000000, 0.25000000000000 );
    }
    IBlockDefinitionPtr blockdefinition3;
    {

        VARIANT objects_1;
        objects_1.vt = ( VT_ARRAY | VT_DISPATCH );
        objects_1.parray = SafeArrayCreateVector( VT_DISPATCH, 0, 1 );
        long rgIndices1;
        rgIndices1 = 0;
        IDispatch* val1;
        val1 = line1;
        SafeArrayPutElement( objects_1.parray, &rgIndices1, (IDispatch*)(val1) );
        rgIndices1++;

        VARIANT objecttypes_1;
        objecttypes_1.vt = ( VT_ARRAY | VT_I4 );
        objecttypes_1.parray = SafeArrayCreateVector( VT_I4, 0, 1 );
        {
            long rgIndices1;
            rgIndices1 = 0;
            int val1;
            val1 = iwLineType;
            SafeArrayPutElement( objecttypes_1.parray, &rgIndices1, (int*)&(val1) );
            rgIndices1++;
        }

         blockdefinition3 = iwDoc->CreateBlockDefinition(
         L"Chair", 
         L"Swivel", 
         1.00000000000000, 
         2.00000000000000, 
         0.00000000000000, 
         objecttypes_1,  
         objects_1, 
         iwBlockDefinitionEntities_RemoveFromDrawing );
    }
    {
        // AcDbBlockTableRecord object modified
        {

            VARIANT objects_1;
            objects_1.vt = ( VT_ARRAY | VT_DISPATCH );
            objects_1.parray = SafeArrayCreateVector( VT_DISPATCH, 0, 2 );
            long rgIndices1;
            rgIndices1 = 0;
            IDispatch* val1;
            val1 = line1;
            SafeArrayPutElement( objects_1.parray, &rgIndices1, (IDispatch*)(val1) );
            rgIndices1++;
            val1 = circle2;
            SafeArrayPutElement( objects_1.parray, &rgIndices1, (IDispatch*)(val1) );
            rgIndices1++;

            VARIANT objecttypes_1;
            objecttypes_1.vt = ( VT_ARRAY | VT_I4 );
            objecttypes_1.parray = SafeArrayCreateVector( VT_I4, 0, 2 );
            {
                long rgIndices1;
                rgIndices1 = 0;
                int val1;
                val1 = iwLineType;
                SafeArrayPutElement( objecttypes_1.parray, &rgIndices1, (int*)&(val1) );
                rgIndices1++;
                val1 = iwCircleType;
                SafeArrayPutElement( objecttypes_1.parray, &rgIndices1, (int*)&(val1) );
                rgIndices1++;
            }

            BSTR blkName_1;
            blkName_1 = blockdefinition3->GetName();

             blockdefinition3 = iwDoc->CreateBlockDefinition(
             blkName_1, 
             L"Swivel with a seat", 
             1.00000000000000, 
             2.00000000000000, 
             0.00000000000000, 
             objecttypes_1,  
             objects_1, 
             iwBlockDefinitionEntities_RemoveFromDrawing );
        }
    }
    ILayerPtr layer4;
    {
        ILayerManagerPtr iwLayerManager1 = iwDoc->GetLayerManager();
        iwCreateObjectResult_e iwCreateObjectResult1;
        iwLayerManager1->CreateLayer( L"Furniture", &layer4, &iwCreateObjectResult1 );
        ILayerManagerPtr iwLayerManager_1 = iwDoc->GetLayerManager();
        ILayerPtr layer5 = iwLayerManager_1->GetLayer( "0" );
        // AcDbLayerTableRecord object modified
        {
            layer5->put_Description( L"Load bearing" );
            layer5->put_Color( pConnection->m_IwApp->GetColorByIndex( 3 ) );
            layer5->put_LineStyle( L"DASHED" );
            layer5->put_LineWeight( iwLnWt_035 );
            layer5->put_Frozen( false );
            layer5->put_Locked( true );
            layer5->put_Printable( true );
            layer5->put_Hidden( false );
            layer5->put_Shown( true );
            layer5->Rename("Outer walls");
            layer5->Activate();
            layer5->put_PrintStyle( L"Bold" );
            layer5->put_Transparency( 40 );
            layer5->put_FrozenInNewViewport( true );
        }
    }
    {
        // AcDbLayerTableRecord object modified
        {
            layer4->SetFrozenInViewport( false, iwSheet->GetActiveViewport() );
            layer4->SetColorInViewport( pConnection->m_IwApp->GetColorByIndex( 5 ), iwSheet->GetActiveViewport() );
            layer4->SetLineStyleInViewport( L"DASHED", iwSheet->GetActiveViewport() );
            layer4->SetLineWeigthInViewport( iwLnWt_025, iwSheet->GetActiveViewport() );
            layer4->SetTranparencyInViewport( 60, iwSheet->GetActiveViewport() );
            layer4->SetPrintStyleInViewport( L"Grey", iwSheet->GetActiveViewport() );
        }
        // AcDbLayerTableRecord object modified
        {
            layer4->SetColorInViewport( pConnection->m_IwApp->GetRGBColor( 200, 100, 50 ), iwSheet->GetActiveViewport() );
        }
    }
    IGroupPtr group6;
    {
        VARIANT EntityArray1;
        EntityArray1.vt = ( VT_ARRAY | VT_DISPATCH );
        EntityArray1.parray = SafeArrayCreateVector( VT_DISPATCH, 0, 1);
                long rgIndices1;
        rgIndices1 = 0;
        IDispatch* val1;
        val1 = circle2;
        SafeArrayPutElement( EntityArray1.parray, &rgIndices1, (IDispatch*)(val1) );
        rgIndices1++;

        iwDoc->CreateGroup("Seat", true, L"Chair and seat", EntityArray1 );
        // AcDbGroup object modified
        {
            group6->Rename("Seats");
            group6->put_Description( L"All seats" );
            group6->put_Selectable( false );
        }
    }
    {
        // AcDbLayout object modified
        {
            iwSheet = iwDoc->GetSheet(L"Ground floor");
            if (NULL != iwSheet)
            {
                 iwSheet->Activate();
                 iwSketchManager = iwSheet->GetSketchManager();
            }
            iwSheet->put_PrintStyleTable( "mono.ctb" );
        }
    }
    IViewTilePtr viewtile7;
    {
        // AcDbViewportTableRecord object modified
        {
            viewtile7->put_CCSPerViewTile( true );
            viewtile7->put_CSIconAtOrigin( false );
            viewtile7->put_CSIconIsOn( true );
        }
    }
