    ILinePtr line1;
    ILinePtr line2;
    ICirclePtr circle3;
    {
        line1 = iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 10.00000000000000, 0.00000000000000, 0.00000000000000 );
        line1->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        line1->put_Layer( L"0" );
        line1->put_LineStyle( L"Continuous" );
        line1->put_LineScale( 1.00000000000000 );
        line1->put_LineWeight( iwLnWt_ByLayer );
        line1->put_Thickness( 0.00000000000000 );
        line2 = iwSketchManager->InsertLine( 10.00000000000000, 0.00000000000000, 0.00000000000000, 10.00000000000000, 5.00000000000000, 0.00000000000000 );
        line2->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        line2->put_Layer( L"0" );
        line2->put_LineStyle( L"Continuous" );
        line2->put_LineScale( 1.00000000000000 );
        line2->put_LineWeight( iwLnWt_ByLayer );
        line2->put_Thickness( 0.00000000000000 );
        circle3 = iwSketchManager->InsertCircle( 5.00000000000000, 2.50000000000000, 0.00000000000000, 1.00000000000000 );
        circle3->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        circle3->put_Layer( L"0" );
        circle3->put_LineStyle( L"Continuous" );
        circle3->put_LineScale( 1.00000000000000 );
        circle3->put_LineWeight( iwLnWt_ByLayer );
        circle3->put_Thickness( 0.00000000000000 );
    }
    ILinePtr line4;
    ILinePtr line5;
    {
        VARIANT objects0;
        objects0.vt = ( VT_ARRAY | VT_DISPATCH  );
        objects0.parray = SafeArrayCreateVector( VT_DISPATCH , 0, 2 );
        VARIANT types0;
        types0.vt = ( VT_ARRAY | VT_I4  );
        types0.parray = SafeArrayCreateVector( VT_I4 , 0, 2 );
        long rgIndices0;
        rgIndices0 = 0;
        IDispatch* val0;
        val0 = line1;
        SafeArrayPutElement( objects0.parray, &rgIndices0, (IDispatch*)(val0) );
        rgIndices0++;
        val0 = line2;
        SafeArrayPutElement( objects0.parray, &rgIndices0, (IDispatch*)(val0) );
        rgIndices0++;
        {
            long rgIndices0;
            rgIndices0 = 0;
            int val0;
            val0 = iwLineType;
            SafeArrayPutElement( types0.parray, &rgIndices0, (int*)&(val0) );
            rgIndices0++;
            val0 = iwLineType;
            SafeArrayPutElement( types0.parray, &rgIndices0, (int*)&(val0) );
            rgIndices0++;
        }

        iwSketchManager->MirrorEntities(0, 5, 0, 10, 5, 0, false, types0, objects0);
        line4 = iwSketchManager->InsertLine( 0.00000000000000, 10.00000000000000, 0.00000000000000, 10.00000000000000, 10.00000000000000, 0.00000000000000 );
        line4->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        line4->put_Layer( L"0" );
        line4->put_LineStyle( L"Continuous" );
        line4->put_LineScale( 1.00000000000000 );
        line4->put_LineWeight( iwLnWt_ByLayer );
        line4->put_Thickness( 0.00000000000000 );
        line5 = iwSketchManager->InsertLine( 10.00000000000000, 10.00000000000000, 0.00000000000000, 10.00000000000000, 5.00000000000000, 0.00000000000000 );
        line5->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        line5->put_Layer( L"0" );
        line5->put_LineStyle( L"Continuous" );
        line5->put_LineScale( 1.00000000000000 );
        line5->put_LineWeight( iwLnWt_ByLayer );
        line5->put_Thickness( 0.00000000000000 );
    }
    {
        VARIANT objects0;
        objects0.vt = ( VT_ARRAY | VT_DISPATCH  );
        objects0.parray = SafeArrayCreateVector( VT_DISPATCH , 0, 1 );
        VARIANT crossingBoxStartCorner0;
        crossingBoxStartCorner0.vt = ( VT_ARRAY | VT_R8 );
        crossingBoxStartCorner0.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        VARIANT crossingBoxEndCorner0;
        crossingBoxEndCorner0.vt = ( VT_ARRAY | VT_R8 );
        crossingBoxEndCorner0.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        long rgIndices0;
        rgIndices0 = 0;
        IDispatch* val0;
        val0 = line1;
        SafeArrayPutElement( objects0.parray, &rgIndices0, (IDispatch*)(val0) );
        rgIndices0++;

        {
            long rgIndices0;
            rgIndices0 = 0;
            double x, y, z;
            x=9; y=-1; z=0;
            SafeArrayPutElement( crossingBoxStartCorner0.parray, &rgIndices0, (double*)&(x) );
            rgIndices0=1;
            SafeArrayPutElement( crossingBoxStartCorner0.parray, &rgIndices0, (double*)&(y) );
            rgIndices0=2;
            SafeArrayPutElement( crossingBoxStartCorner0.parray, &rgIndices0, (double*)&(z) );
        }
        {
            long rgIndices0;
            rgIndices0 = 0;
            double x, y, z;
            x=11; y=1; z=0;
            SafeArrayPutElement( crossingBoxEndCorner0.parray, &rgIndices0, (double*)&(x) );
            rgIndices0=1;
            SafeArrayPutElement( crossingBoxEndCorner0.parray, &rgIndices0, (double*)&(y) );
            rgIndices0=2;
            SafeArrayPutElement( crossingBoxEndCorner0.parray, &rgIndices0, (double*)&(z) );
        }

        iwSketchManager->StretchEntities(2.5, 0, 0, objects0, crossingBoxStartCorner0, crossingBoxEndCorner0);
    }
    ICirclePtr circle6;
    {
        VARIANT objects0;
        objects0.vt = ( VT_ARRAY | VT_DISPATCH  );
        objects0.parray = SafeArrayCreateVector( VT_DISPATCH , 0, 2 );
        VARIANT types0;
        types0.vt = ( VT_ARRAY | VT_I4  );
        types0.parray = SafeArrayCreateVector( VT_I4 , 0, 2 );
        iwObjectType_e iwTypeForCopy0;
        IDispatchPtr iwObjForCopy0 = pConnection->m_IwApp->GetActiveDocument()->GetObjectByHandle(L"A0", &iwTypeForCopy0);
        long rgIndices0;
        rgIndices0 = 0;
        IDispatch* val0;
        val0 = circle3;
        SafeArrayPutElement( objects0.parray, &rgIndices0, (IDispatch*)(val0) );
        rgIndices0++;
        val0 = iwObjForCopy0;
        SafeArrayPutElement( objects0.parray, &rgIndices0, (IDispatch*)(val0) );
        rgIndices0++;
        {
            long rgIndices0;
            rgIndices0 = 0;
            int val0;
            val0 = iwCircleType;
            SafeArrayPutElement( types0.parray, &rgIndices0, (int*)&(val0) );
            rgIndices0++;
            val0 = iwTypeForCopy0;
            SafeArrayPutElement( types0.parray, &rgIndices0, (int*)&(val0) );
            rgIndices0++;
        }

        iwSketchManager->CopyEntities(1, 0, 0, types0, objects0);
        iwSketchManager->CopyEntities(2, 0, 0, types0, objects0);
        iwSketchManager->CopyEntities(3, 0, 0, types0, objects0);
        circle6 = iwSketchManager->InsertCircle( 6.00000000000000, 2.50000000000000, 0.00000000000000, 1.00000000000000 );
        circle6->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        circle6->put_Layer( L"0" );
        circle6->put_LineStyle( L"Continuous" );
        circle6->put_LineScale( 1.00000000000000 );
        circle6->put_LineWeight( iwLnWt_ByLayer );
        circle6->put_Thickness( 0.00000000000000 );
    }
    {
        VARIANT objects0;
        objects0.vt = ( VT_ARRAY | VT_DISPATCH  );
        objects0.parray = SafeArrayCreateVector( VT_DISPATCH , 0, 2 );
        long rgIndices0;
        rgIndices0 = 0;
        IDispatch* val0;
        val0 = line2;
        SafeArrayPutElement( objects0.parray, &rgIndices0, (IDispatch*)(val0) );
        rgIndices0++;
        val0 = line4;
        SafeArrayPutElement( objects0.parray, &rgIndices0, (IDispatch*)(val0) );
        rgIndices0++;

        iwSketchManager->MoveEntities(0, 0.125, 0, objects0);
    }
    {
        VARIANT objects0;
        objects0.vt = ( VT_ARRAY | VT_DISPATCH  );
        objects0.parray = SafeArrayCreateVector( VT_DISPATCH , 0, 1 );
        VARIANT types0;
        types0.vt = ( VT_ARRAY | VT_I4  );
        types0.parray = SafeArrayCreateVector( VT_I4 , 0, 1 );
        long rgIndices0;
        rgIndices0 = 0;
        IDispatch* val0;
        val0 = circle3;
        SafeArrayPutElement( objects0.parray, &rgIndices0, (IDispatch*)(val0) );
        rgIndices0++;
        {
            long rgIndices0;
            rgIndices0 = 0;
            int val0;
            val0 = iwCircleType;
            SafeArrayPutElement( types0.parray, &rgIndices0, (int*)&(val0) );
            rgIndices0++;
        }

        iwSketchManager->RotateEntities(1, 2, 1.5708, types0, objects0);
    }
    {
        VARIANT objects0;
        objects0.vt = ( VT_ARRAY | VT_DISPATCH  );
        objects0.parray = SafeArrayCreateVector( VT_DISPATCH , 0, 2 );
        VARIANT types0;
        types0.vt = ( VT_ARRAY | VT_I4  );
        types0.parray = SafeArrayCreateVector( VT_I4 , 0, 2 );
        long rgIndices0;
        rgIndices0 = 0;
        IDispatch* val0;
        val0 = line1;
        SafeArrayPutElement( objects0.parray, &rgIndices0, (IDispatch*)(val0) );
        rgIndices0++;
        val0 = circle3;
        SafeArrayPutElement( objects0.parray, &rgIndices0, (IDispatch*)(val0) );
        rgIndices0++;
        {
            long rgIndices0;
            rgIndices0 = 0;
            int val0;
            val0 = iwLineType;
            SafeArrayPutElement( types0.parray, &rgIndices0, (int*)&(val0) );
            rgIndices0++;
            val0 = iwCircleType;
            SafeArrayPutElement( types0.parray, &rgIndices0, (int*)&(val0) );
            rgIndices0++;
        }

        iwSketchManager->ScaleEntities(1, 2, 2, 3, types0, objects0);
    }
    {
        iwObjectType_e type1;
        ILinePtr line7 = pConnection->m_IwApp->GetActiveDocument()->GetObjectByHandle(L"A0", &type1);
        line1->Join( line7 );
    }
    {
        iwObjectType_e type1;
        ILinePtr line8 = pConnection->m_IwApp->GetActiveDocument()->GetObjectByHandle(L"A0", &type1);
        line4->put_Erased( true );
        line8->put_Erased( true );
    }
    {
        iwObjectType_e type2;
        ILeaderPtr leader10 = pConnection->m_IwApp->GetActiveDocument()->GetObjectByHandle(L"62", &type2);
        INotePtr note9 = leader10->GetNoteAnnotation();
        note9->put_Erased( true );
    }
    IGroupPtr group11;
    {
        VARIANT EntityArray1;
        EntityArray1.vt = ( VT_ARRAY | VT_DISPATCH );
        EntityArray1.parray = SafeArrayCreateVector( VT_DISPATCH, 0, 0);
                long rgIndices1;
        rgIndices1 = 0;
        IDispatch* val1;

        iwDoc->CreateGroup("", false, L"", EntityArray1 );

        if ( !group11->HasEntity(line1) )
        {
            VARIANT entities2;
            entities2.vt = ( VT_ARRAY | VT_DISPATCH );
            entities2.parray = SafeArrayCreateVector( VT_DISPATCH, 0, 1 );
            long rgIndices2;
            rgIndices2 = 0;
            IDispatch* val2;
            val2 = line1;
            SafeArrayPutElement( entities2.parray, &rgIndices2, (IDispatch*)(val2) );
            group11->AddEntities(entities2);
        }
        if ( !group11->HasEntity(line2) )
        {
            VARIANT entities2;
            entities2.vt = ( VT_ARRAY | VT_DISPATCH );
            entities2.parray = SafeArrayCreateVector( VT_DISPATCH, 0, 1 );
            long rgIndices2;
            rgIndices2 = 0;
            IDispatch* val2;
            val2 = line2;
            SafeArrayPutElement( entities2.parray, &rgIndices2, (IDispatch*)(val2) );
            group11->AddEntities(entities2);
        }

    }
    {

        VARIANT removeObject1;
        removeObject1.vt = ( VT_ARRAY | VT_DISPATCH );
        removeObject1.parray = SafeArrayCreateVector( VT_DISPATCH, 0, 1 );
        long rgIndices1;
        rgIndices1 = 0;
        IDispatch* val1;
        val1 = line2;
        SafeArrayPutElement( removeObject1.parray, &rgIndices1, (IDispatch*)(val1) );
        rgIndices1++;

        group11->RemoveEntities(removeObject1);
    }
    {
        circle3->Explode();
        iwObjectType_e type1;
        ILinePtr line12 = pConnection->m_IwApp->GetActiveDocument()->GetObjectByHandle(L"A0", &type1);
        line12->Explode();
    }
    IRegionPtr region13;
    {

        VARIANT entitiesArray1;
        entitiesArray1.vt = ( VT_ARRAY | VT_DISPATCH );
        entitiesArray1.parray = SafeArrayCreateVector( VT_DISPATCH, 0, 3 );
        long rgIndices1;
        rgIndices1 = 0;
        IDispatch* val1;
        val1 = line1;
        SafeArrayPutElement( entitiesArray1.parray, &rgIndices1, (IDispatch*)(val1) );
        rgIndices1++;
        val1 = line2;
        SafeArrayPutElement( entitiesArray1.parray, &rgIndices1, (IDispatch*)(val1) );
        rgIndices1++;
        val1 = ;
        SafeArrayPutElement( entitiesArray1.parray, &rgIndices1, (IDispatch*)(val1) );
        rgIndices1++;
        VARIANT regionArray1;
        iwSketchManager->InsertRegion(entitiesArray1, &regionArray1);
        IRegionPtr *iwRegions1 = NULL;
        int count1 = 0;
        TypeConverter::convertVariantArrayToPtrArray<IRegionPtr, IRegion>( regionArray1, iwRegions1, count1 );
        region13 = iwRegions1[0];

    }
    IEmbeddedObjectPtr embeddedobject14;
    {
        embeddedobject14 = iwSketchManager->InsertEmbeddedObjectFromFile(
         L"C:\\data\\parts list.xls", 
         true, 
         false);
    }
    IBlockInstancePtr blockinstance15;
    {
         blockinstance15 = iwSketchManager->InsertBlock2(L"", 0.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 1.00000000000000, 1.00000000000000, 0.00000000000000 );
        IAttributeInstancePtr *iwAttributes1 = NULL;
        int count1 = 0;
        TypeConverter::convertVariantArrayToPtrArray<IAttributeInstancePtr, IAttributeInstance>( blockinstance15->GetAttributeInstances(), iwAttributes1, count1 );
        for (int i = 0; i < count1; ++i)
        {
            if (iwAttributes1[i]->GetName() == _bstr_t(L"SIZE"))
                iwAttributes1[i]->put_Value( L"M8" );
        }
    }
    IViewportPtr viewport17;
    ISheetPtr sheetsArray1 = iwDoc->GetSheet(L"Layout1");
    if (NULL != sheetsArray1)
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 9 );
        long rgIndices1;
        rgIndices1 = -1;
        double x_1, y_1, z_1;
        x_1=0; y_1=0; z_1=0;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=4; y_1=0; z_1=0;
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=4; y_1=3; z_1=0;
        rgIndices1=6;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=7;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=8;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        viewport17 = sheetsArray1->InsertViewport( variant1 );
    }
    {
        viewport17->Activate();
    }
    {
        IApplicationOptionsPtr appOption;
        appOption = pConnection->m_IwApp->GetApplicationOptions();
        IColorPtr iwColor1;
        iwElementColor_e ElementOption;
        
        ElementOption = (iwElementColor_e)3;
        iwColor1 = pConnection->m_IwApp->GetColorByIndex( 5 );
        appOption.SetElementColor(ElementOption, iwColor1);
        ElementOption = (iwElementColor_e)4;
        iwColor1 = pConnection->m_IwApp->GetRGBColor( 1, 2, 3 );
        appOption.SetElementColor(ElementOption, iwColor1);
    }
    {
        {
            iwSetCommandOptionResult_e result;
            pConnection->m_IwApp->GetActiveDocument()->SetCommandOptionInt16(iwCommandOptionInt16_EnblChmfAng, 1,&result);
        }

        pConnection->m_IwApp->GetApplicationOptions()->SetApplicationOptionInt16(iwApplicationOptionInt16_EnblChmfAng, 1);
        {
            iwSetCommandOptionResult_e result;
            pConnection->m_IwApp->GetActiveDocument()->SetCommandOptionString(iwCommandOptionString_SetCLAYER, L"Walls",&result);
        }
    }
    {
        iwModel->put_PrintStyle( L"monochrome.ctb" );
    }
    ILinePtr line18;
    ILinePtr line19;
    {
        line18 = iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 1.00000000000000, 0.00000000000000 );
        line18->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        line18->put_Layer( L"0" );
        line18->put_LineStyle( L"Continuous" );
        line18->put_LineScale( 1.00000000000000 );
        line18->put_LineWeight( iwLnWt_ByLayer );
        line18->put_Thickness( 0.00000000000000 );
    }
    {
        iwSheet = iwDoc->GetSheet(L"Layout1");
        if (NULL != iwSheet)
        {
             iwSheet->Activate();
             iwSketchManager = iwSheet->GetSketchManager();
        }
        iwSheet->put_PrintStyle( "monochrome.ctb" );
    }
