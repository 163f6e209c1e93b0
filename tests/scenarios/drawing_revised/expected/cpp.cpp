    {
        iwLayerManager_ptr iwLayerManager_1;
        iwDoc->GetLayerManager( &iwLayerManager_1 );
        iwLayer_ptr iwlayer1;
        iwLayerManager_1->GetLayer( L"0", &iwlayer1 );
        // AcDbLayerTableRecord object modified
        {
            iwColor_ptr iwColor1;
            m_pIwApp->GetColorByIndex( 8, &iwColor1 );
            iwlayer1->put_Color( iwColor1 );
            iwlayer1->put_LineWeight( iwLnWt_035 );
        }
    }
    iwLayer_ptr iwlayer2;
    {
        iwLayerManager_ptr iwLayerManager1;
        iwDoc->GetLayerManager( &iwLayerManager1 );
        iwCreateObjectResult_e iwCreateObjectResult1;
        iwLayerManager1->CreateLayer( L"Walls new", &iwlayer2, &iwCreateObjectResult1 );
    }
    {
        // AcDbMText object modified
        iwNote_ptr iwnote3;
        iwleader4->GetNoteAnnotation( &iwnote3 );
        {
            iwnote3->put_Text( L"see detail B" );
        }
    }
    iwNote_ptr iwnote5;
    {
        iwStringArray strArray1;
        strArray1.add(L"Bath");
        iwSketchManager->InsertNote( 1.00000000000000, 3.00000000000000, 0.00000000000000, 5.00000000000000, 2.75000000000000, 0.00000000000000, strArray1, &iwnote5 );
        iwnote5->put_Width( 4.00000000000000 );
        iwnote5->put_TextStyle( L"Notes" );
        {
            iwnote5->put_Layer( L"Walls" );
        }
    }
    {
        iwObjectType_e type1;
        iwLayer_ptr iwlayer6;
        iwDoc->GetObjectByHandle(L"12", &type1, &iwlayer6);
        iwlayer6->put_Erased( true );
    }
