    iwLine_ptr iwline1;
    iwCircle_ptr iwcircle2;
    {
        iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 0.00000000000000, 0.00000000000000, &iwline1 );
        iwSketchManager->InsertCircle( 0.50000000000000, 0.50000000000000, 0.00000000000000, 0.25000000000000, &iwcircle2 );
    }
    iwBlockDefinition_ptr iwblockdefinition3;
    {

        iwObjectPtrArray objects_1;
        objects_1.add(iwline1);

        iwLongArray objecttypes_1;
        objecttypes_1.add(iwLineType);

         iwDoc->CreateBlockDefinition(
         L"Chair", 
         L"Swivel", 
         1.00000000000000, 
         2.00000000000000, 
         0.00000000000000, 
         objecttypes_1,  
         objects_1, 
         iwBlockDefinitionEntities_RemoveFromDrawing ,&iwblockdefinition3 );
    }
    {
        // AcDbBlockTableRecord object modified
        {

            iwObjectPtrArray objects_1;
            objects_1.add(iwline1);
            objects_1.add(iwcircle2);

            iwLongArray objecttypes_1;
            objecttypes_1.add(iwLineType);
            objecttypes_1.add(iwCircleType);

            iwString blkName_1;
            iwblockdefinition3->GetName( &blkName_1);

             iwDoc->CreateBlockDefinition(
             blkName_1, 
             L"Swivel with a seat", 
             1.00000000000000, 
             2.00000000000000, 
             0.00000000000000, 
             objecttypes_1,  
             objects_1, 
             iwBlockDefinitionEntities_RemoveFromDrawing ,&iwblockdefinition3 );
        }
    }
    iwLayer_ptr iwlayer4;
    {
        iwLayerManager_ptr iwLayerManager1;
        iwDoc->GetLayerManager( &iwLayerManager1 );
        iwCreateObjectResult_e iwCreateObjectResult1;
        iwLayerManager1->CreateLayer( L"Furniture", &iwlayer4, &iwCreateObjectResult1 );
        iwLayerManager_ptr iwLayerManager_1;
        iwDoc->GetLayerManager( &iwLayerManager_1 );
        iwLayer_ptr iwlayer5;
        iwLayerManager_1->GetLayer( L"0", &iwlayer5 );
        // AcDbLayerTableRecord object modified
        {
            iwlayer5->put_Description( L"Load bearing" );
            iwColor_ptr iwColor2;
            m_pIwApp->GetColorByIndex( 3, &iwColor2 );
            iwlayer5->put_Color( iwColor2 );
            iwlayer5->put_LineStyle( L"DASHED" );
            iwlayer5->put_LineWeight( iwLnWt_035 );
            iwlayer5->put_Frozen( false );
            iwlayer5->put_Locked( true );
            iwlayer5->put_Printable( true );
            iwlayer5->put_Hidden( false );
            iwlayer5->put_Shown( true );
            bool bRes3;
            iwlayer5->Activate( &bRes3 );
            iwlayer5->put_PrintStyle( L"Bold" );
            iwlayer5->put_Transparency( 40 );
            iwlayer5->put_FrozenInNewViewport( true );
        }
    }
    {
        // AcDbLayerTableRecord object modified
        {
            iwViewport_ptr viewportViewPortOverride1;
            iwSheet->GetActiveViewport( &viewportViewPortOverride1 );
            iwlayer4->SetFrozenInViewport( false, viewportViewPortOverride1 );
            iwViewport_ptr viewportViewPortOverride2;
            iwSheet->GetActiveViewport( &viewportViewPortOverride2 );
            iwColor_ptr iwColorViewPortOverride2;
            m_pIwApp->GetColorByIndex( 5, &iwColorViewPortOverride2 );
            iwlayer4->SetColorInViewport( iwColorViewPortOverride2, viewportViewPortOverride2 );
            iwViewport_ptr viewportViewPortOverride3;
            iwSheet->GetActiveViewport( &viewportViewPortOverride3 );
            iwlayer4->SetLineStyleInViewport( L"DASHED", viewportViewPortOverride3 );
            iwViewport_ptr viewportViewPortOverride4;
            iwSheet->GetActiveViewport( &viewportViewPortOverride4 );
            iwlayer4->SetLineWeigthInViewport( iwLnWt_025, viewportViewPortOverride4 );
            iwViewport_ptr viewportViewPortOverride5;
            iwSheet->GetActiveViewport( &viewportViewPortOverride5 );
            iwlayer4->SetTranparencyInViewport( 60, viewportViewPortOverride5 );
            iwViewport_ptr viewportViewPortOverride6;
            iwSheet->GetActiveViewport( &viewportViewPortOverride6 );
            iwlayer4->SetPrintStyleInViewport( L"Grey", viewportViewPortOverride6 );
        }
        // AcDbLayerTableRecord object modified
        {
            iwViewport_ptr viewportViewPortOverride7;
            iwSheet->GetActiveViewport( &viewportViewPortOverride7 );
            iwColor_ptr iwColorViewPortOverride7;
            m_pIwApp->GetRGBColor( 200, 100, 50, &iwColorViewPortOverride7 );
            iwlayer4->SetColorInViewport( iwColorViewPortOverride7, viewportViewPortOverride7 );
        }
    }
    iwGroup_ptr iwgroup6;
    {
        iwObjectPtrArray entities1;
        entities1.add(iwcircle2);
        iwDoc->CreateGroup( L"Seat", true, L"Chair and seat", entities1, &iwgroup6 );
        // AcDbGroup object modified
        {
            iwgroup6->put_Description( L"All seats" );
            iwgroup6->put_Selectable( false );
        }
    }
    {
        // AcDbLayout object modified
        {
            iwDoc->GetSheet(L"Ground floor", &iwSheet);
            if (NULL != iwSheet)
            {
                 iwSheet->Activate();
                 iwSheet->GetSketchManager( &iwSketchManager );
            }
            iwSheet->put_PrintStyleTable( "mono.ctb" );
        }
    }
    iwViewTile_c* iwviewtile7;
    {
        // AcDbViewportTableRecord object modified
        {
            iwviewtile7->put_CCSPerViewTile( true );
            iwviewtile7->put_CSIconAtOrigin( false );
            iwviewtile7->put_CSIconIsOn( true );
        }
    }
