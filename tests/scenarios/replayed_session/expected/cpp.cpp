    iwLine_ptr iwline1;
    {
        iwMathUtility_ptr m_pMathUtil1;
        iwMathPlane_ptr plane1;
        m_pIwApp->GetMathUtility( &m_pMathUtil1 );
        m_pMathUtil1->CreateYZPlane( &plane1 );
        double x1 = 1.5, y1 = 2, z1 = 1.23457e+06;
        iwMathPoint_ptr basePoint1, defaultPoint1, resultPoint1;
        m_pMathUtil1->CreatePoint( x1, y1, z1, &defaultPoint1);
        m_pMathUtil1->CreatePoint( 0, 0, 0, &basePoint1 );
        iwPromptResultType_e result1;
        iwCommandMessage_c* cmdMesage1;
        m_pIwApp->GetCommandMessage(&cmdMesage1);
        iwString resultKeyword1;
        iwStringArray iwStringArray1;
        cmdMesage1->PromptForPointOrKeyword( L"Specify start point", L"Error message", iwStringArray1,
        iwStringArray1, 0, false, defaultPoint1, basePoint1, &resultKeyword1, &resultPoint1, plane1, &result1 );

        double x2 = 4, y2 = 3, z2 = 0;
        bool  result2;
        iwCommandMessage_c* cmdMesage2;
        m_pIwApp->GetCommandMessage(&cmdMesage2);
        cmdMesage2->PromptForPoint( L"Specify corner: ", &x2, &y2, &z2, &result2 );
        double x3 = 0, y3 = 0, z3 = 0;
        bool  result3;
        iwCommandMessage_c* cmdMesage3;
        m_pIwApp->GetCommandMessage(&cmdMesage3);
        cmdMesage3->PromptForPoint( L"Opposite", &x3, &y3, &z3, &result3 );
        iwSketchManager->InsertLine( 1.50000000000000, 2.00000000000000, 0.00000000000000, 4.00000000000000, 3.00000000000000, 0.00000000000000, &iwline1 );
        iwColor_ptr iwColor4;
        m_pIwApp->GetColorByIndex( 256, &iwColor4 );
        iwline1->put_Color( iwColor4 );
        iwline1->put_Layer( L"0" );
        iwline1->put_LineStyle( L"Continuous" );
        iwline1->put_LineScale( 1.00000000000000 );
        iwline1->put_LineWeight( iwLnWt_ByLayer );
        iwline1->put_Thickness( 0.00000000000000 );
    }
    {
        iwObjectType_e type1;
        iwObject_ptr object1;
        iwLongArray types1;
        types1.add(iwLineType);
        iwDoc->GetObjectByHandle(L"A0", &type1, &object1);
        types1.add(type1);
        iwObjectPtrArray entities1;
        entities1.add(iwline1);
        iwDoc->GetObjectByHandle(L"A0", &type1, &object1);
        entities1.add(object1);
        iwCommandMessage_c* cmdMesage1;
        m_pIwApp->GetCommandMessage(&cmdMesage1);
        cmdMesage1->PromptForSelection(false, L"Select Objects: ", L"");
        {
            iwSelectionManager_ptr iwSelectionMgr1;
            iwDoc->GetSelectionManager( &iwSelectionMgr1 );
            long count = 0;
            iwSelectionMgr1->GetSelectedObjectCount(iwSelectionSetType_Previous, &count);
            types1.clear();
            entities1.clear();
            for (long i = 0; i < count; ++i)
            {
                iwSelectionMgr1->GetSelectedObject(iwSelectionSetType_Previous, i, &type1, &object1);
                types1.add(type1);
                entities1.add(object1);
            }
        }
        double angle2 = 0.5;
        bool  result2;
        iwCommandMessage_c* cmdMesage2;
        m_pIwApp->GetCommandMessage(&cmdMesage2);
        cmdMesage2->PromptForAngle( L"Specify rotation angle", 0.5, &angle2, &result2 );
        double angle3 = 0;
        bool  result3;
        iwCommandMessage_c* cmdMesage3;
        m_pIwApp->GetCommandMessage(&cmdMesage3);
        cmdMesage3->PromptForAngle( L"Specify rotation angle", 0, &angle3, &result3 );
        double orient4 = 0.25;
        bool  result4;
        iwCommandMessage_c* cmdMesage4;
        m_pIwApp->GetCommandMessage(&cmdMesage4);
        cmdMesage4->PromptForOrientation( L"Specify orient: ", 0.25, &orient4, &result4 );
        double distance5 = 12.5;
        bool  result5;
        iwCommandMessage_c* cmdMesage5;
        m_pIwApp->GetCommandMessage(&cmdMesage5);
        cmdMesage5->PromptForDistance( L"Distance", 12.5, &distance5, &result5 );
        double distance6 = 1;
        bool  result6;
        iwCommandMessage_c* cmdMesage6;
        m_pIwApp->GetCommandMessage(&cmdMesage6);
        cmdMesage6->PromptForDistance( L"Distance", 1, &distance6, &result6 );
    }
    {
        double scale1 = 2;
        bool  result1;
        iwCommandMessage_c* cmdMesage1;
        m_pIwApp->GetCommandMessage(&cmdMesage1);
        cmdMesage1->PromptForDouble( L"Specify scale", 2, &scale1, &result1 );
        double scale2 = 1;
        bool  result2;
        iwCommandMessage_c* cmdMesage2;
        m_pIwApp->GetCommandMessage(&cmdMesage2);
        cmdMesage2->PromptForDouble( L"Specify scale: ", 1, &scale2, &result2 );
        iwString text3 = L"Part "A"";
        bool  result3;
        iwCommandMessage_c* cmdMesage3;
        m_pIwApp->GetCommandMessage(&cmdMesage3);
        cmdMesage3->PromptForString( true, L"Name:", L"Part "A"", &text3, &result3 );
        long color4 = 5;
        bool  result4;
        iwCommandMessage_c* cmdMesage4;
        m_pIwApp->GetCommandMessage(&cmdMesage4);
        cmdMesage4->PromptForInteger( L"Specify color: ", 5, &color4, &result4 );
        long integer5 = -3;
        bool  result5;
        iwCommandMessage_c* cmdMesage5;
        m_pIwApp->GetCommandMessage(&cmdMesage5);
        cmdMesage5->PromptForInteger( L"How many", -3, &integer5, &result5 );
        double real6 = 1e-07;
        bool  result6;
        iwCommandMessage_c* cmdMesage6;
        m_pIwApp->GetCommandMessage(&cmdMesage6);
        cmdMesage6->PromptForDouble( L"Ratio", 1e-07, &real6, &result6 );
    }
    iwCircle_ptr iwcircle2;
    {
        iwStringArray iwlocal0;
        iwStringArray iwglobal0;
        iwString keyword0 = L"Radius";
        iwlocal0.add(L"Radius");
        iwglobal0.add(L"_Radius");
        iwlocal0.add(L"Durchmesser");
        iwglobal0.add(L"_Diameter");

        iwString value1;
        iwString  ErrorMsg1;
        iwPromptResultType_e result1;
        iwCommandMessage_c* cmdMesage1;
        m_pIwApp->GetCommandMessage(&cmdMesage1);
        cmdMesage1->PromptForKeyword2(L"Options: Radius",ErrorMsg1,iwglobal0,iwlocal0,1, keyword0, &value1,&result1);
        iwStringArray iwlocal1;
        iwStringArray iwglobal1;
        iwString keyword1 = L"";

        iwString value2;
        iwString  ErrorMsg2;
        iwPromptResultType_e result2;
        iwCommandMessage_c* cmdMesage2;
        m_pIwApp->GetCommandMessage(&cmdMesage2);
        cmdMesage2->PromptForKeyword2(L"Go on?",ErrorMsg2,iwglobal1,iwlocal1,1, keyword1, &value2,&result2);
        iwSketchManager->InsertCircle( 1.00000000000000, 2.00000000000000, 0.00000000000000, 3.00000000000000, &iwcircle2 );
        iwColor_ptr iwColor3;
        m_pIwApp->GetColorByIndex( 256, &iwColor3 );
        iwcircle2->put_Color( iwColor3 );
        iwcircle2->put_Layer( L"0" );
        iwcircle2->put_LineStyle( L"Continuous" );
        iwcircle2->put_LineScale( 1.00000000000000 );
        iwcircle2->put_LineWeight( iwLnWt_ByLayer );
        iwcircle2->put_Thickness( 0.00000000000000 );
    }
    {
        iwSetCommandOptionResult_e result;
        iwDocument_c* iwDoc;
        m_pIwApp->GetActiveDocument(&iwDoc);
        iwDoc->SetCommandOptionBool(iwCommandOptionBool_EnblBnds, true,&result);
    }
    {
        iwSetCommandOptionResult_e result;
        iwDocument_c* iwDoc;
        m_pIwApp->GetActiveDocument(&iwDoc);
        iwDoc->SetCommandOptionDouble(iwCommandOptionDouble_SetFltRad, 2.5,&result);
    }
    {
        iwSetCommandOptionResult_e result;
        iwDocument_c* iwDoc;
        m_pIwApp->GetActiveDocument(&iwDoc);
        iwDoc->SetCommandOptionInt8(iwCommandOptionInt8_SetDmTolVJst, 1,&result);
    }
    {
        iwSetCommandOptionResult_e result;
        iwDocument_c* iwDoc;
        m_pIwApp->GetActiveDocument(&iwDoc);
        iwDoc->SetCommandOptionInt16(iwCommandOptionInt16_SetCVPORT, 2,&result);
    }
    {
        iwSetCommandOptionResult_e result;
        iwDocument_c* iwDoc;
        m_pIwApp->GetActiveDocument(&iwDoc);
        iwDoc->SetCommandOptionInt16(iwCommandOptionInt16_SetActLClr, 5,&result);
    }
    {
        iwSetCommandOptionResult_e result;
        iwDocument_c* iwDoc;
        m_pIwApp->GetActiveDocument(&iwDoc);
        iwDoc->SetCommandOptionInt16(iwCommandOptionInt16_SetActLClr, 0,&result);
    }
    {
        iwSetCommandOptionResult_e result;
        iwDocument_c* iwDoc;
        m_pIwApp->GetActiveDocument(&iwDoc);
        iwDoc->SetCommandOptionPoint2D(iwCommandOptionPoint2d_SetLIMMAX, 420, 297,&result);
    }
    {
        iwSetCommandOptionResult_e result;
        iwDocument_c* iwDoc;
        m_pIwApp->GetActiveDocument(&iwDoc);
        iwDoc->SetCommandOptionPoint3D(iwCommandOptionPoint3d_SetINSBASE, 1, 2, 3.5,&result);
    }
    {
        iwSetCommandOptionResult_e result;
        iwDocument_c* iwDoc;
        m_pIwApp->GetActiveDocument(&iwDoc);
        iwDoc->SetCommandOptionString(iwCommandOptionString_SetCLAYER, L"Walls",&result);
    }

    iwApplicationOptions_c* appOption1;
    m_pIwApp->GetApplicationOptions(&appOption1);
    appOption1->SetApplicationOptionBool(iwApplicationOptionBool_EnblEntSelPreSel, false);

    iwApplicationOptions_c* appOption2;
    m_pIwApp->GetApplicationOptions(&appOption2);
    appOption2->SetApplicationOptionDouble(iwApplicationOptionDouble_SetPOLARANG, 0.5);

    iwApplicationOptions_c* appOption3;
    m_pIwApp->GetApplicationOptions(&appOption3);
    appOption3->SetApplicationOptionInt16(iwApplicationOptionInt16_EnblEdgeExtd, 1);

    iwApplicationOptions_c* appOption4;
    m_pIwApp->GetApplicationOptions(&appOption4);
    appOption4->SetApplicationOptionInt32(iwApplicationOptionInt32_SetSvTm, 15);

    iwApplicationOptions_c* appOption5;
    m_pIwApp->GetApplicationOptions(&appOption5);
    appOption5->SetApplicationOptionString(iwApplicationOptionString_SetFONTALT, L"simplex.shx");
    {
        iwSetCommandOptionResult_e result;
        iwDocument_c* iwDoc;
        m_pIwApp->GetActiveDocument(&iwDoc);
        iwDoc->SetCommandOptionInt16(iwCommandOptionInt16_EnblChmfAng, 1,&result);
    }
    {
        {
            iwInterfaceFiles_ptr iwInterfaceFiles_0;
            m_pIwApp->GetInterfaceFiles( &iwInterfaceFiles_0 );
            iwInterfaceFiles_0->put_MenuFilesPath( L"C:\\menus\\my.cuix" );
        }

        {
            iwSystemFiles_ptr iwSystemFiles_0;
            m_pIwApp->GetSystemFiles( &iwSystemFiles_0 );
            iwStringArray sArrayFontsPaths_0;
            sArrayFontsPaths_0.add( L"C:\fonts" );
            sArrayFontsPaths_0.add( L"D:\more" );
            iwSystemFiles_0->put_FontsPaths( sArrayFontsPaths_0 );
        }

        {
            iwDrawingSupportFiles_ptr iwDrawingSupportFiles_0;
            m_pIwApp->GetDrawingSupportFiles( &iwDrawingSupportFiles_0 );
            iwDrawingSupportFiles_0->put_DrawingTemplateFilesPath( L"T:\\tpl" );
        }

        {
            iwDrawingSupportFiles_ptr iwDrawingSupportFiles_1;
            m_pIwApp->GetDrawingSupportFiles( &iwDrawingSupportFiles_1 );
        }

    }
