    iwLine_ptr iwline1;
    iwLine_ptr iwline2;
    {
        iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 2.80000000000000, 0.00000000000000, 0.00000000000000, &iwline1 );
        iwColor_ptr iwColor1;
        m_pIwApp->GetColorByIndex( 256, &iwColor1 );
        iwline1->put_Color( iwColor1 );
        iwline1->put_LineScale( 1.00000000000000 );
        iwline1->put_LineWeight( iwLnWt_ByLayer );
        iwline1->put_Thickness( 0.00000000000000 );
        iwSketchManager->InsertLine( 0.00000000000000, 0.28000000000000, 0.00000000000000, 2.80000000000000, 0.28000000000000, 0.00000000000000, &iwline2 );
        iwColor_ptr iwColor2;
        m_pIwApp->GetColorByIndex( 256, &iwColor2 );
        iwline2->put_Color( iwColor2 );
        iwline2->put_LineScale( 1.00000000000000 );
        iwline2->put_LineWeight( iwLnWt_ByLayer );
        iwline2->put_Thickness( 0.00000000000000 );
    }
    iwShapeManager_ptr iwShapeManager;
    iwDoc->GetShapeManager( &iwShapeManager );
    iwShapeManager->Load( L"stairs.shx" );
        iwSketchManager->InsertLine( 1.40000000000000, 0.00000000000000, 0.00000000000000, 1.40000000000000, 0.28000000000000, 0.00000000000000, &iwline4 );
        iwColor_ptr iwColor1;
        m_pIwApp->GetColorByIndex( 256, &iwColor1 );
        iwline4->put_Color( iwColor1 );
        iwline4->put_LineScale( 1.00000000000000 );
        iwline4->put_LineWeight( iwLnWt_ByLayer );
        iwline4->put_Thickness( 0.00000000000000 );
    iwTextStyle_ptr iwtextstyle5;
    iwLine_ptr iwline6;
    {
        iwSketchManager->InsertLine( 1.40000000000000, 0.28000000000000, 0.00000000000000, 1.40000000000000, 0.56000000000000, 0.00000000000000, &iwline6 );
        iwColor_ptr iwColor1;
        m_pIwApp->GetColorByIndex( 256, &iwColor1 );
        iwline6->put_Color( iwColor1 );
        iwline6->put_LineScale( 1.00000000000000 );
        iwline6->put_LineWeight( iwLnWt_ByLayer );
        iwline6->put_Thickness( 0.00000000000000 );
    }
    iwNote_ptr iwnote7;
    iwLine_ptr iwline8;
    {
        iwStringArray strArray1;
        strArray1.add(L"");
        iwSketchManager->InsertNote( 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, strArray1, &iwnote7 );
        iwSketchManager->InsertLine( 3.00000000000000, 0.00000000000000, 0.00000000000000, 4.00000000000000, 1.00000000000000, 0.00000000000000, &iwline8 );
        iwColor_ptr iwColor2;
        m_pIwApp->GetColorByIndex( 256, &iwColor2 );
        iwline8->put_Color( iwColor2 );
        iwline8->put_LineScale( 1.00000000000000 );
        iwline8->put_LineWeight( iwLnWt_ByLayer );
        iwline8->put_Thickness( 0.00000000000000 );
    }
    iwLine_ptr iwline9;
    iwLine_ptr iwline10;
    {
        iwSketchManager->InsertLine( 5.00000000000000, 0.00000000000000, 0.00000000000000, 6.00000000000000, 0.00000000000000, 0.00000000000000, &iwline9 );
        iwColor_ptr iwColor1;
        m_pIwApp->GetColorByIndex( 256, &iwColor1 );
        iwline9->put_Color( iwColor1 );
        iwline9->put_LineScale( 1.00000000000000 );
        iwline9->put_LineWeight( iwLnWt_ByLayer );
        iwline9->put_Thickness( 0.00000000000000 );
    }
    iwLine_ptr iwline11;
    {
        iwSketchManager->InsertLine( 7.00000000000000, 0.00000000000000, 0.00000000000000, 8.00000000000000, 0.00000000000000, 0.00000000000000, &iwline11 );
        iwColor_ptr iwColor1;
        m_pIwApp->GetColorByIndex( 256, &iwColor1 );
        iwline11->put_Color( iwColor1 );
        iwline11->put_LineScale( 1.00000000000000 );
        iwline11->put_LineWeight( iwLnWt_ByLayer );
        iwline11->put_Thickness( 0.00000000000000 );
    }
    iwLayerManager_ptr iwLayerManager_1;
    iwDoc->GetLayerManager( &iwLayerManager_1 );
    iwLayer_ptr iwlayer13;
    iwLayerManager_1->GetLayer( L"0", &iwlayer13 );
    // AcDbLayerTableRecord object modified
    {
        iwlayer13->put_Frozen( true );
    }
    {
        iwLayerManager_ptr iwLayerManager_2;
        iwDoc->GetLayerManager( &iwLayerManager_2 );
        iwLayer_ptr iwlayer14;
        iwLayerManager_2->GetLayer( L"0", &iwlayer14 );
        // AcDbLayerTableRecord object modified
        {
            iwlayer14->put_Locked( true );
        }
        // AcDbLayerTableRecord object modified
        {
            iwlayer13->put_Frozen( false );
        }
    }
    {
        iwline1->put_Thickness( 2.00000000000000 );
    }
    {
        iwSetCommandOptionResult_e result;
        iwDocument_c* iwDoc;
        m_pIwApp->GetActiveDocument(&iwDoc);
        iwDoc->SetCommandOptionInt16(iwCommandOptionInt16_SetCVPORT, 2,&result);
    }
