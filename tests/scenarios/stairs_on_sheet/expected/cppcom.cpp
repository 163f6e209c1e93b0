    ILinePtr line1;
    ILinePtr line2;
    {
        line1 = iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 2.80000000000000, 0.00000000000000, 0.00000000000000 );
        line1->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        line1->put_LineScale( 1.00000000000000 );
        line1->put_LineWeight( iwLnWt_ByLayer );
        line1->put_Thickness( 0.00000000000000 );
        line2 = iwSketchManager->InsertLine( 0.00000000000000, 0.28000000000000, 0.00000000000000, 2.80000000000000, 0.28000000000000, 0.00000000000000 );
        line2->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        line2->put_LineScale( 1.00000000000000 );
        line2->put_LineWeight( iwLnWt_ByLayer );
        line2->put_Thickness( 0.00000000000000 );
    }
    IShapeManagerPtr iwShapeManager = iwDoc->GetShapeManager();
    iwShapeManager->Load( L"stairs.shx" );
        line4 = iwSketchManager->InsertLine( 1.40000000000000, 0.00000000000000, 0.00000000000000, 1.40000000000000, 0.28000000000000, 0.00000000000000 );
        line4->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        line4->put_LineScale( 1.00000000000000 );
        line4->put_LineWeight( iwLnWt_ByLayer );
        line4->put_Thickness( 0.00000000000000 );
    ITextStylePtr textstyle5;
    ILinePtr line6;
    {
        line6 = iwSketchManager->InsertLine( 1.40000000000000, 0.28000000000000, 0.00000000000000, 1.40000000000000, 0.56000000000000, 0.00000000000000 );
        line6->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        line6->put_LineScale( 1.00000000000000 );
        line6->put_LineWeight( iwLnWt_ByLayer );
        line6->put_Thickness( 0.00000000000000 );
    }
    INotePtr note7;
    ILinePtr line8;
    {
        VARIANT strArray1;
        strArray1.vt = ( VT_ARRAY | VT_BSTR );
        strArray1.parray = SafeArrayCreateVector( VT_BSTR, 0, 1 );
        long rgIndices1;
        rgIndices1 = 0;
        BSTR str1;
        str1 = SysAllocString(L"");
        SafeArrayPutElement( strArray1.parray, &rgIndices1, str1 );
        note7 = iwSketchManager->InsertNote( 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, strArray1 );
        line8 = iwSketchManager->InsertLine( 3.00000000000000, 0.00000000000000, 0.00000000000000, 4.00000000000000, 1.00000000000000, 0.00000000000000 );
        line8->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        line8->put_LineScale( 1.00000000000000 );
        line8->put_LineWeight( iwLnWt_ByLayer );
        line8->put_Thickness( 0.00000000000000 );
    }
    ILinePtr line9;
    ILinePtr line10;
    {
        line9 = iwSketchManager->InsertLine( 5.00000000000000, 0.00000000000000, 0.00000000000000, 6.00000000000000, 0.00000000000000, 0.00000000000000 );
        line9->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        line9->put_LineScale( 1.00000000000000 );
        line9->put_LineWeight( iwLnWt_ByLayer );
        line9->put_Thickness( 0.00000000000000 );
    }
    ILinePtr line11;
    {
        line11 = iwSketchManager->InsertLine( 7.00000000000000, 0.00000000000000, 0.00000000000000, 8.00000000000000, 0.00000000000000, 0.00000000000000 );
        line11->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        line11->put_LineScale( 1.00000000000000 );
        line11->put_LineWeight( iwLnWt_ByLayer );
        line11->put_Thickness( 0.00000000000000 );
    }
    ILayerManagerPtr iwLayerManager_1 = iwDoc->GetLayerManager();
    ILayerPtr layer13 = iwLayerManager_1->GetLayer( "0" );
    // AcDbLayerTableRecord object modified
    {
        layer13->put_Frozen( true );
    }
    {
        ILayerManagerPtr iwLayerManager_2 = iwDoc->GetLayerManager();
        ILayerPtr layer14 = iwLayerManager_2->GetLayer( "0" );
        // AcDbLayerTableRecord object modified
        {
            layer14->put_Locked( true );
        }
        // AcDbLayerTableRecord object modified
        {
            layer13->put_Frozen( false );
        }
    }
    {
        line1->put_Thickness( 2.00000000000000 );
    }
    {
        iwSetCommandOptionResult_e result;
        pConnection->m_IwApp->GetActiveDocument()->SetCommandOptionInt16(iwCommandOptionInt16_SetCVPORT, 2,&result);
    }
