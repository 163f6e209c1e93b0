    {
        ILayerManagerPtr iwLayerManager_1 = iwDoc->GetLayerManager();
        ILayerPtr layer1 = iwLayerManager_1->GetLayer( "0" );
        // AcDbLayerTableRecord object modified
        {
            layer1->put_Color( pConnection->m_IwApp->GetColorByIndex( 8 ) );
            layer1->put_LineWeight( iwLnWt_035 );
            layer1->Rename("Walls existing");
        }
    }
    ILayerPtr layer2;
    {
        ILayerManagerPtr iwLayerManager1 = iwDoc->GetLayerManager();
        iwCreateObjectResult_e iwCreateObjectResult1;
        iwLayerManager1->CreateLayer( L"Walls new", &layer2, &iwCreateObjectResult1 );
    }
    {
        // AcDbMText object modified
        INotePtr note3 = leader4->GetNoteAnnotation();
        {
            note3->put_Text( L"see detail B" );
        }
    }
    INotePtr note5;
    {
        VARIANT strArray1;
        strArray1.vt = ( VT_ARRAY | VT_BSTR );
        strArray1.parray = SafeArrayCreateVector( VT_BSTR, 0, 1 );
        long rgIndices1;
        rgIndices1 = 0;
        BSTR str1;
        str1 = SysAllocString(L"Bath");
        SafeArrayPutElement( strArray1.parray, &rgIndices1, str1 );
        note5 = iwSketchManager->InsertNote( 1.00000000000000, 3.00000000000000, 0.00000000000000, 5.00000000000000, 2.75000000000000, 0.00000000000000, strArray1 );
        note5->put_Width( 4.00000000000000 );
        note5->put_TextStyle( L"Notes" );
        {
            note5->put_Layer( L"Walls" );
        }
    }
    {
        iwObjectType_e type1;
        ILayerPtr layer6 = pConnection->m_IwApp->GetActiveDocument()->GetObjectByHandle(L"12", &type1);
        layer6->put_Erased( true );
    }
