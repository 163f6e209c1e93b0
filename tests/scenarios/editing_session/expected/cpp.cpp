    iwLine_ptr iwline1;
    iwLine_ptr iwline2;
    iwCircle_ptr iwcircle3;
    {
        iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 10.00000000000000, 0.00000000000000, 0.00000000000000, &iwline1 );
        iwColor_ptr iwColor1;
        m_pIwApp->GetColorByIndex( 256, &iwColor1 );
        iwline1->put_Color( iwColor1 );
        iwline1->put_Layer( L"0" );
        iwline1->put_LineStyle( L"Continuous" );
        iwline1->put_LineScale( 1.00000000000000 );
        iwline1->put_LineWeight( iwLnWt_ByLayer );
        iwline1->put_Thickness( 0.00000000000000 );
        iwSketchManager->InsertLine( 10.00000000000000, 0.00000000000000, 0.00000000000000, 10.00000000000000, 5.00000000000000, 0.00000000000000, &iwline2 );
        iwColor_ptr iwColor2;
        m_pIwApp->GetColorByIndex( 256, &iwColor2 );
        iwline2->put_Color( iwColor2 );
        iwline2->put_Layer( L"0" );
        iwline2->put_LineStyle( L"Continuous" );
        iwline2->put_LineScale( 1.00000000000000 );
        iwline2->put_LineWeight( iwLnWt_ByLayer );
        iwline2->put_Thickness( 0.00000000000000 );
        iwSketchManager->InsertCircle( 5.00000000000000, 2.50000000000000, 0.00000000000000, 1.00000000000000, &iwcircle3 );
        iwColor_ptr iwColor3;
        m_pIwApp->GetColorByIndex( 256, &iwColor3 );
        iwcircle3->put_Color( iwColor3 );
        iwcircle3->put_Layer( L"0" );
        iwcircle3->put_LineStyle( L"Continuous" );
        iwcircle3->put_LineScale( 1.00000000000000 );
        iwcircle3->put_LineWeight( iwLnWt_ByLayer );
        iwcircle3->put_Thickness( 0.00000000000000 );
    }
    iwLine_ptr iwline4;
    iwLine_ptr iwline5;
    {
        iwObjectPtrArray iwEntities0;
        iwLongArray types0;
        types0.add(iwLineType);
        iwEntities0.add(iwline1);
        types0.add(iwLineType);
        iwEntities0.add(iwline2);

        iwSketchManager->MirrorEntities(0, 5, 0, 10, 5, 0, false, types0, iwEntities0);
        iwSketchManager->InsertLine( 0.00000000000000, 10.00000000000000, 0.00000000000000, 10.00000000000000, 10.00000000000000, 0.00000000000000, &iwline4 );
        iwColor_ptr iwColor1;
        m_pIwApp->GetColorByIndex( 256, &iwColor1 );
        iwline4->put_Color( iwColor1 );
        iwline4->put_Layer( L"0" );
        iwline4->put_LineStyle( L"Continuous" );
        iwline4->put_LineScale( 1.00000000000000 );
        iwline4->put_LineWeight( iwLnWt_ByLayer );
        iwline4->put_Thickness( 0.00000000000000 );
        iwSketchManager->InsertLine( 10.00000000000000, 10.00000000000000, 0.00000000000000, 10.00000000000000, 5.00000000000000, 0.00000000000000, &iwline5 );
        iwColor_ptr iwColor2;
        m_pIwApp->GetColorByIndex( 256, &iwColor2 );
        iwline5->put_Color( iwColor2 );
        iwline5->put_Layer( L"0" );
        iwline5->put_LineStyle( L"Continuous" );
        iwline5->put_LineScale( 1.00000000000000 );
        iwline5->put_LineWeight( iwLnWt_ByLayer );
        iwline5->put_Thickness( 0.00000000000000 );
    }
    {
        iwObjectPtrArray iwEntities0;
        iwDoubleArray crossingBoxStartCorner0;
        iwDoubleArray crossingBoxEndCorner0;

        iwEntities0.add(iwline1);

        crossingBoxStartCorner0.add(9);crossingBoxStartCorner0.add(-1);crossingBoxStartCorner0.add(0);
        crossingBoxEndCorner0.add(11);crossingBoxEndCorner0.add(1);crossingBoxEndCorner0.add(0);

        iwSketchManager->StretchEntities(2.5, 0, 0, iwEntities0, crossingBoxStartCorner0, crossingBoxEndCorner0);
    }
    iwCircle_ptr iwcircle6;
    {
        iwObjectPtrArray iwEntities0;
        iwLongArray types0;
        types0.add(iwCircleType);
        iwEntities0.add(iwcircle3);
        iwObjectType_e iwTypeForCopy0;
        iwObject_ptr iwObjForCopy0;
        iwDoc->GetObjectByHandle(L"A0", &iwTypeForCopy0, &iwObjForCopy0);
        types0.add(iwTypeForCopy0);
        iwEntities0.add(iwObjForCopy0);

        iwSketchManager->CopyEntities(1, 0, 0, types0, iwEntities0);
        iwSketchManager->CopyEntities(2, 0, 0, types0, iwEntities0);
        iwSketchManager->CopyEntities(3, 0, 0, types0, iwEntities0);
        iwSketchManager->InsertCircle( 6.00000000000000, 2.50000000000000, 0.00000000000000, 1.00000000000000, &iwcircle6 );
        iwColor_ptr iwColor1;
        m_pIwApp->GetColorByIndex( 256, &iwColor1 );
        iwcircle6->put_Color( iwColor1 );
        iwcircle6->put_Layer( L"0" );
        iwcircle6->put_LineStyle( L"Continuous" );
        iwcircle6->put_LineScale( 1.00000000000000 );
        iwcircle6->put_LineWeight( iwLnWt_ByLayer );
        iwcircle6->put_Thickness( 0.00000000000000 );
    }
    {
        iwObjectPtrArray iwEntities0;
        iwEntities0.add(iwline2);
        iwEntities0.add(iwline4);

        iwSketchManager->MoveEntities(0, 0.125, 0, iwEntities0);
    }
    {
        iwObjectPtrArray iwEntities0;
        iwLongArray types0;
        types0.add(iwCircleType);
        iwEntities0.add(iwcircle3);

        iwSketchManager->RotateEntities(1, 2, 1.5708, types0, iwEntities0);
    }
    {
        iwObjectPtrArray iwEntities0;
        iwLongArray types0;
        types0.add(iwLineType);
        iwEntities0.add(iwline1);
        types0.add(iwCircleType);
        iwEntities0.add(iwcircle3);

        iwSketchManager->ScaleEntities(1, 2, 2, 3, types0, iwEntities0);
    }
    {
        iwSelectionManager_ptr iwSelectionMgr0;
        iwDoc->GetSelectionManager( &iwSelectionMgr0 );
        iwMathUtility_ptr iwMathUtility0;
        m_pIwApp->GetMathUtility( &iwMathUtility0 );
        iwMathPoint_ptr Point_0_1;
        iwMathUtility0->CreatePoint(1, 2, 0, &Point_0_1);
        iwSelectionMgr0->SelectByPoint(Point_0_1);
        long iCount0;
        iwSelectionMgr0->GetSelectedObjectCount(iwSelectionSetType_Previous, &iCount0);
        iwSelectionManager_ptr iwSelectionMgr1;
        iwDoc->GetSelectionManager( &iwSelectionMgr1 );
        iwMathUtility_ptr iwMathUtility1;
        m_pIwApp->GetMathUtility( &iwMathUtility1 );
        iwMathPoint_ptr Point_1_1;
        iwMathUtility1->CreatePoint(0, 0, 0, &Point_1_1);
        iwMathPoint_ptr Point_1_2;
        iwMathUtility1->CreatePoint(4, 3, 0, &Point_1_2);
        iwSelectionMgr1->SelectByWindow(Point_1_1, Point_1_2, false);
        long iCount1;
        iwSelectionMgr1->GetSelectedObjectCount(iwSelectionSetType_Previous, &iCount1);
        iwSelectionManager_ptr iwSelectionMgr2;
        iwDoc->GetSelectionManager( &iwSelectionMgr2 );
        iwMathUtility_ptr iwMathUtility2;
        m_pIwApp->GetMathUtility( &iwMathUtility2 );
        iwDoubleArray doubleArray2;
        doubleArray2.add(0);
        doubleArray2.add(0);
        doubleArray2.add(0);
        doubleArray2.add(4);
        doubleArray2.add(0);
        doubleArray2.add(0);
        doubleArray2.add(4);
        doubleArray2.add(3);
        doubleArray2.add(0);
        doubleArray2.add(0);
        doubleArray2.add(3);
        doubleArray2.add(0);
        doubleArray2.add(0);
        doubleArray2.add(0);
        doubleArray2.add(0);
        iwSelectionMgr2->SelectByPolygon(doubleArray2, true);
        long iCount2;
        iwSelectionMgr2->GetSelectedObjectCount(iwSelectionSetType_Previous, &iCount2);
        iwSelectionManager_ptr iwSelectionMgr3;
        iwDoc->GetSelectionManager( &iwSelectionMgr3 );
        iwMathUtility_ptr iwMathUtility3;
        m_pIwApp->GetMathUtility( &iwMathUtility3 );
        iwDoubleArray doubleArray3;
        doubleArray3.add(0);
        doubleArray3.add(0);
        doubleArray3.add(0);
        doubleArray3.add(1);
        doubleArray3.add(1);
        doubleArray3.add(0);
        iwSelectionMgr3->SelectByCrossline(doubleArray3);
        long iCount3;
        iwSelectionMgr3->GetSelectedObjectCount(iwSelectionSetType_Previous, &iCount3);
        iwSelectionManager_ptr iwSelectionMgr4;
        iwDoc->GetSelectionManager( &iwSelectionMgr4 );
        iwMathUtility_ptr iwMathUtility4;
        m_pIwApp->GetMathUtility( &iwMathUtility4 );
        iwMathPoint_ptr Point_4_1;
        iwMathUtility4->CreatePoint(1, 2.5, 0, &Point_4_1);
        iwMathPoint_ptr Point_4_2;
        iwMathUtility4->CreatePoint(5, 4, 0, &Point_4_2);
        iwSelectionMgr4->SelectByWindow(Point_4_1, Point_4_2, true);
        long iCount4;
        iwSelectionMgr4->GetSelectedObjectCount(iwSelectionSetType_Previous, &iCount4);
    }
    {
        iwSelectionManager_ptr iwSelectionMgr5;
        iwDoc->GetSelectionManager( &iwSelectionMgr5 );
        iwSelectionFilter_ptr selectionFilter5;
        iwSelectionMgr5->GetSelectionFilter( &selectionFilter5 );
        selectionFilter5->Clear();
        selectionFilter5->AddEntityType(iwLineType);
        selectionFilter5->AddEntityType(iwCircleType);

        selectionFilter5->put_Active( true );
        iwMathUtility_ptr iwMathUtility5;
        m_pIwApp->GetMathUtility( &iwMathUtility5 );
        iwMathPoint_ptr Point_5_1;
        iwMathUtility5->CreatePoint(0, 0, 0, &Point_5_1);
        iwMathPoint_ptr Point_5_2;
        iwMathUtility5->CreatePoint(1e+06, 1, 0, &Point_5_2);
        iwSelectionMgr5->SelectByWindow(Point_5_1, Point_5_2, false);
        long iCount5;
        iwSelectionMgr5->GetSelectedObjectCount(iwSelectionSetType_Previous, &iCount5);
        selectionFilter5->put_Active( false );
    }
    {
        iwObjectType_e type1;
        iwLine_ptr iwline7;
        iwDoc->GetObjectByHandle(L"A0", &type1, &iwline7);
        iwline1->Join( iwline7 );
    }
    {
        iwObjectType_e type1;
        iwLine_ptr iwline8;
        iwDoc->GetObjectByHandle(L"A0", &type1, &iwline8);
        iwline4->put_Erased( true );
        iwline8->put_Erased( true );
    }
    {
        iwObjectType_e type2;
        iwLeader_ptr iwleader10;
        iwDoc->GetObjectByHandle(L"62", &type2, &iwleader10);
        iwNote_ptr iwnote9;
        iwleader10->GetNoteAnnotation( &iwnote9 );
        iwnote9->put_Erased( true );
    }
    iwGroup_ptr iwgroup11;
    {
        iwObjectPtrArray entities1;
        iwDoc->CreateGroup( L"", false, L"", entities1, &iwgroup11 );

        iwObjectPtrArray entities2;
        bool hasEntity2 = false;
        iwgroup11->HasEntity(iwline1, &hasEntity2);
        if ( !hasEntity2 )
        {
            entities2.add(iwline1);
        }
        iwgroup11->HasEntity(iwline2, &hasEntity2);
        if ( !hasEntity2 )
        {
            entities2.add(iwline2);
        }

        iwgroup11->AddEntities(entities2);
    }
    {

        iwObjectPtrArray removeObject1;
        removeObject1.add(iwline2);

        iwgroup11->RemoveEntities(removeObject1);
    }
    {
        iwcircle3->Explode();
        iwObjectType_e type1;
        iwLine_ptr iwline12;
        iwDoc->GetObjectByHandle(L"A0", &type1, &iwline12);
        iwline12->Explode();
    }
    iwRegion_c* iwregion13;
    {

        iwObjectPtrArray entitiesArray1;
        entitiesArray1.add(iwline1);
        entitiesArray1.add(iwline2);
        entitiesArray1.add();
        iwObjectPtrArray regionArray1;
        iwSketchManager->InsertRegion(entitiesArray1, &regionArray1);
        iwregion13 = (iwRegion_c*)regionArray1[0];

    }
    iwEmbeddedObject_ptr iwembeddedobject14;
    {
        iwSketchManager->InsertEmbeddedObjectFromFile(
         L"C:\\data\\parts list.xls", 
         true, 
         false, 
         &iwembeddedobject14);
    }
    iwBlockInstance_ptr iwblockinstance15;
    {
         iwSketchManager->InsertBlock2(L"", 0.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 1.00000000000000, 1.00000000000000, 0.00000000000000, &iwblockinstance15 );
        iwObjectPtrArray iwAttributes1;
        iwblockinstance15->GetAttributeInstances( &iwAttributes1 );
        for (int i = 0; i < (int)iwAttributes1.length(); ++i)
        {
            iwAttributeInstance_c* iwAttribute1 = (iwAttributeInstance_c*)iwAttributes1[i];
            iwString name1;
            iwAttribute1->get_Name( &name1 );
            if (name1 == L"SIZE")
                iwAttribute1->put_Value( L"M8" );
        }
    }
    iwViewport_ptr iwviewport17;
    iwSheet_ptr sheetItem1;
    iwDoc->GetSheet(L"Layout1" , &sheetItem1);
    if (NULL != sheetItem1)
    {
        iwDoubleArray Coordinates1;
        Coordinates1.add(0);Coordinates1.add(0);Coordinates1.add(0);
        Coordinates1.add(4);Coordinates1.add(0);Coordinates1.add(0);
        Coordinates1.add(4);Coordinates1.add(3);Coordinates1.add(0);
        sheetItem1->InsertViewport( Coordinates1, &iwviewport17 );
    }
    {
        iwviewport17->Activate();
    }
    {
        iwApplicationOptions_c* appOption;
        m_pIwApp->GetApplicationOptions(&appOption);
        iwColor_ptr iwColor1;
        iwElementColor_e ElementOption;
        
        ElementOption = (iwElementColor_e)3;
        m_pIwApp->GetColorByIndex( 5, &iwColor1 );
        appOption->SetElementColor(ElementOption, iwColor1);
        ElementOption = (iwElementColor_e)4;
        m_pIwApp->GetRGBColor( 1, 2, 3, &iwColor1 );
        appOption->SetElementColor(ElementOption, iwColor1);
    }
    {
        {
            iwSetCommandOptionResult_e result;
            iwDocument_c* iwDoc;
            m_pIwApp->GetActiveDocument(&iwDoc);
            iwDoc->SetCommandOptionInt16(iwCommandOptionInt16_EnblChmfAng, 1,&result);
        }

        iwApplicationOptions_c* appOption1;
        m_pIwApp->GetApplicationOptions(&appOption1);
        appOption1->SetApplicationOptionInt16(iwApplicationOptionInt16_EnblChmfAng, 1);
        {
            iwSetCommandOptionResult_e result;
            iwDocument_c* iwDoc;
            m_pIwApp->GetActiveDocument(&iwDoc);
            iwDoc->SetCommandOptionString(iwCommandOptionString_SetCLAYER, L"Walls",&result);
        }
    }
    {
        iwModel->put_PrintStyle( L"monochrome.ctb" );
    }
    iwLine_ptr iwline18;
    iwLine_ptr iwline19;
    {
        iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 1.00000000000000, 0.00000000000000, &iwline18 );
        iwColor_ptr iwColor1;
        m_pIwApp->GetColorByIndex( 256, &iwColor1 );
        iwline18->put_Color( iwColor1 );
        iwline18->put_Layer( L"0" );
        iwline18->put_LineStyle( L"Continuous" );
        iwline18->put_LineScale( 1.00000000000000 );
        iwline18->put_LineWeight( iwLnWt_ByLayer );
        iwline18->put_Thickness( 0.00000000000000 );
    }
    {
        iwDoc->GetSheet(L"Layout1", &iwSheet);
        if (NULL != iwSheet)
        {
             iwSheet->Activate();
             iwSheet->GetSketchManager( &iwSketchManager );
        }
        iwSheet->put_PrintStyle( "monochrome.ctb" );
    }
