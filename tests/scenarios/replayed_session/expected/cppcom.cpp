    ILinePtr line1;
    {
        IMathUtilityPtr m_pMathUtil1;
        IMathPlanePtr plane1;
        m_pMathUtil1 = pConnection->m_IwApp->GetMathUtility();
        plane1 = m_pMathUtil1->CreateYZPlane();
        double x1 = 1.5, y1 = 2, z1 = 1.23457e+06;
        IMathPointPtr basePoint1, defaultPoint1, resultPoint1;
        defaultPoint1 = m_pMathUtil1->CreatePoint( x1, y1, z1);
        basePoint1 = m_pMathUtil1->CreatePoint( 0, 0, 0 );
        ICommandMessagePtr cmdMesage1;
        cmdMesage1 = pConnection->m_IwApp->GetCommandMessage();
        BSTR resultKeyword1;
        VARIANT iwStringArray1;
        iwStringArray1.vt = ( VT_ARRAY | VT_BSTR );
        iwStringArray1.parray = SafeArrayCreateVector( VT_BSTR, 0, 0 );
        cmdMesage1->PromptForPointOrKeyword( L"Specify start point", L"Error message", iwStringArray1,
        iwStringArray1, 0, false, defaultPoint1, basePoint1, &resultKeyword1, &resultPoint1, plane1 );

        double x2 = 4, y2 = 3, z2 = 0;
        pConnection->m_IwApp->GetCommandMessage()->PromptForPoint( L"Specify corner: ", &x2, &y2, &z2);
        double x3 = 0, y3 = 0, z3 = 0;
        pConnection->m_IwApp->GetCommandMessage()->PromptForPoint( L"Opposite", &x3, &y3, &z3);
        line1 = iwSketchManager->InsertLine( 1.50000000000000, 2.00000000000000, 0.00000000000000, 4.00000000000000, 3.00000000000000, 0.00000000000000 );
        line1->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        line1->put_Layer( L"0" );
        line1->put_LineStyle( L"Continuous" );
        line1->put_LineScale( 1.00000000000000 );
        line1->put_LineWeight( iwLnWt_ByLayer );
        line1->put_Thickness( 0.00000000000000 );
    }
    {
        iwObjectType_e type1;
        VARIANT types1;
        types1.vt = ( VT_ARRAY | VT_I4  );
        types1.parray = SafeArrayCreateVector( VT_I4 , 0, 2 );
        {
            long rgIndices1;
            rgIndices1 = 0;
            int val1;
            val1 = iwLineType;
            SafeArrayPutElement( types1.parray, &rgIndices1, (int*)&(val1) );
            rgIndices1++;
            val1 = pConnection->m_IwApp->GetObjectType(pConnection->m_IwApp->GetActiveDocument()->GetObjectByHandle(L"A0", &type1));
            SafeArrayPutElement( types1.parray, &rgIndices1, (int*)&(val1) );
            rgIndices1++;
        }
        VARIANT entities1;
        entities1.vt = ( VT_ARRAY | VT_DISPATCH  );
        entities1.parray = SafeArrayCreateVector( VT_DISPATCH , 0, 2 );
        long rgIndices1;
        rgIndices1 = 0;
        IDispatch* val1;
        val1 = line1;
        SafeArrayPutElement( entities1.parray, &rgIndices1, (IDispatch*)(val1) );
        rgIndices1++;
        val1 = pConnection->m_IwApp->GetActiveDocument()->GetObjectByHandle(L"A0", &type1);
        SafeArrayPutElement( entities1.parray, &rgIndices1, (IDispatch*)(val1) );
        rgIndices1++;
        pConnection->m_IwApp->GetCommandMessage()->PromptForSelection(false, L"Select Objects: ", L"");
        {
            long count = pConnection->m_IwApp->GetActiveDocument()->GetSelectionManager()->GetSelectedObjectCount(iwSelectionSetType_Previous);
            types1.parray = SafeArrayCreateVector( VT_I4 , 0, count );
            entities1.parray = SafeArrayCreateVector( VT_DISPATCH , 0, count );
            for (long i = 0; i < count; ++i)
            {
                IDispatch* object = pConnection->m_IwApp->GetActiveDocument()->GetSelectionManager()->GetSelectedObject(iwSelectionSetType_Previous, i, &type1);
                SafeArrayPutElement( types1.parray, &i, (int*)&(type1) );
                SafeArrayPutElement( entities1.parray, &i, (IDispatch*)(object) );
            }
        }
        double angle2 = 0.5;
        pConnection->m_IwApp->GetCommandMessage()->PromptForAngle( L"Specify rotation angle", 0.5, &angle2);
        double angle3 = 0;
        pConnection->m_IwApp->GetCommandMessage()->PromptForAngle( L"Specify rotation angle", 0, &angle3);
        double orient4 = 0.25;
        pConnection->m_IwApp->GetCommandMessage()->PromptForOrientation( L"Specify orient: ", 0.25, &orient4);
        double distance5 = 12.5;
        pConnection->m_IwApp->GetCommandMessage()->PromptForDistance( L"Distance", 12.5, &distance5);
        double distance6 = 1;
        pConnection->m_IwApp->GetCommandMessage()->PromptForDistance( L"Distance", 1, &distance6);
    }
    {
        double scale1 = 2;
        pConnection->m_IwApp->GetCommandMessage()->PromptForDouble( L"Specify scale", 2, &scale1);
        double scale2 = 1;
        pConnection->m_IwApp->GetCommandMessage()->PromptForDouble( L"Specify scale: ", 1, &scale2);
        BSTR text3 = L"Part "A"";
        pConnection->m_IwApp->GetCommandMessage()->PromptForString( true, L"Name:", L"Part "A"", &text3);
        long color4 = 5;
        pConnection->m_IwApp->GetCommandMessage()->PromptForInteger( L"Specify color: ", 5, &color4);
        long integer5 = -3;
        pConnection->m_IwApp->GetCommandMessage()->PromptForInteger( L"How many", -3, &integer5);
        double real6 = 1e-07;
        pConnection->m_IwApp->GetCommandMessage()->PromptForDouble( L"Ratio", 1e-07, &real6);
    }
    ICirclePtr circle2;
    {
        VARIANT iwlocal0;
        VARIANT iwglobal0;
        iwlocal0.vt = ( VT_ARRAY | VT_BSTR );
        iwlocal0.parray = SafeArrayCreateVector( VT_BSTR, 0, 2 );
        iwglobal0.vt = ( VT_ARRAY | VT_BSTR );
        iwglobal0.parray = SafeArrayCreateVector( VT_BSTR, 0, 2 );
        BSTR keyword0 = L"Radius";
        long index0 = 0;
        BSTR str0;
        str0 = SysAllocString(L"Radius");
        index0 = index0 + 1;
        SafeArrayPutElement( iwlocal0.parray, &index0, str0 );
        str0 = SysAllocString(L"_Radius");
        SafeArrayPutElement( iwglobal0.parray, &index0, str0 );
        str0 = SysAllocString(L"Durchmesser");
        index0 = index0 + 1;
        SafeArrayPutElement( iwlocal0.parray, &index0, str0 );
        str0 = SysAllocString(L"_Diameter");
        SafeArrayPutElement( iwglobal0.parray, &index0, str0 );

        BSTR value1;
        BSTR ErrorMsg1=L"";
        pConnection->m_IwApp->GetCommandMessage()->PromptForKeyword2( L"Options: Radius",ErrorMsg1,iwglobal0,iwlocal0,1, keyword0, &value1);
        VARIANT iwlocal1;
        VARIANT iwglobal1;
        iwlocal1.vt = ( VT_ARRAY | VT_BSTR );
        iwlocal1.parray = SafeArrayCreateVector( VT_BSTR, 0, 0 );
        iwglobal1.vt = ( VT_ARRAY | VT_BSTR );
        iwglobal1.parray = SafeArrayCreateVector( VT_BSTR, 0, 0 );
        BSTR keyword1 = L"";
        long index1 = 0;
        BSTR str1;

        BSTR value2;
        BSTR ErrorMsg2=L"";
        pConnection->m_IwApp->GetCommandMessage()->PromptForKeyword2( L"Go on?",ErrorMsg2,iwglobal1,iwlocal1,1, keyword1, &value2);
        circle2 = iwSketchManager->InsertCircle( 1.00000000000000, 2.00000000000000, 0.00000000000000, 3.00000000000000 );
        circle2->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        circle2->put_Layer( L"0" );
        circle2->put_LineStyle( L"Continuous" );
        circle2->put_LineScale( 1.00000000000000 );
        circle2->put_LineWeight( iwLnWt_ByLayer );
        circle2->put_Thickness( 0.00000000000000 );
    }
    {
        iwSetCommandOptionResult_e result;
        pConnection->m_IwApp->GetActiveDocument()->SetCommandOptionBool(iwCommandOptionBool_EnblBnds, true,&result);
    }
    {
        iwSetCommandOptionResult_e result;
        pConnection->m_IwApp->GetActiveDocument()->SetCommandOptionDouble(iwCommandOptionDouble_SetFltRad, 2.5,&result);
    }
    {
        iwSetCommandOptionResult_e result;
        pConnection->m_IwApp->GetActiveDocument()->SetCommandOptionInt8(iwCommandOptionInt8_SetDmTolVJst, 1,&result);
    }
    {
        iwSetCommandOptionResult_e result;
        pConnection->m_IwApp->GetActiveDocument()->SetCommandOptionInt16(iwCommandOptionInt16_SetCVPORT, 2,&result);
    }
    {
        iwSetCommandOptionResult_e result;
        pConnection->m_IwApp->GetActiveDocument()->SetCommandOptionInt16(iwCommandOptionInt16_SetActLClr, 5,&result);
    }
    {
        iwSetCommandOptionResult_e result;
        pConnection->m_IwApp->GetActiveDocument()->SetCommandOptionInt16(iwCommandOptionInt16_SetActLClr, 0,&result);
    }
    {
        iwSetCommandOptionResult_e result;
        pConnection->m_IwApp->GetActiveDocument()->SetCommandOptionPoint2D(iwCommandOptionPoint2d_SetLIMMAX, 420, 297,&result);
    }
    {
        iwSetCommandOptionResult_e result;
        pConnection->m_IwApp->GetActiveDocument()->SetCommandOptionPoint3D(iwCommandOptionPoint3d_SetINSBASE, 1, 2, 3.5,&result);
    }
    {
        iwSetCommandOptionResult_e result;
        pConnection->m_IwApp->GetActiveDocument()->SetCommandOptionString(iwCommandOptionString_SetCLAYER, L"Walls",&result);
    }

    pConnection->m_IwApp->GetApplicationOptions()->SetApplicationOptionBool(iwApplicationOptionBool_EnblEntSelPreSel, false);

    pConnection->m_IwApp->GetApplicationOptions()->SetApplicationOptionDouble(iwApplicationOptionDouble_SetPOLARANG, 0.5);

    pConnection->m_IwApp->GetApplicationOptions()->SetApplicationOptionInt16(iwApplicationOptionInt16_EnblEdgeExtd, 1);

    pConnection->m_IwApp->GetApplicationOptions()->SetApplicationOptionInt32(iwApplicationOptionInt32_SetSvTm, 15);

    pConnection->m_IwApp->GetApplicationOptions()->SetApplicationOptionString(iwApplicationOptionString_SetFONTALT, L"simplex.shx");
    {
        iwSetCommandOptionResult_e result;
        pConnection->m_IwApp->GetActiveDocument()->SetCommandOptionInt16(iwCommandOptionInt16_EnblChmfAng, 1,&result);
    }
    {
        {
            IInterfaceFilesPtr iwInterfaceFiles_0 = pConnection->m_IwApp->GetInterfaceFiles();
            iwInterfaceFiles_0->put_MenuFilesPath( L"C:\\menus\\my.cuix" );
        }

        {
            ISystemFilesPtr iwSystemFiles_0 = pConnection->m_IwApp->GetSystemFiles();
            VARIANT sArrayFontsPaths_0;
            sArrayFontsPaths_0.vt = ( VT_ARRAY | VT_BSTR );
            sArrayFontsPaths_0.parray = SafeArrayCreateVector( VT_BSTR, 0, 2 );
            long rgFontsPaths_0 = -1;
            rgFontsPaths_0 = 0;
            BSTR sFontsPaths_0 = SysAllocString( L"C:\fonts");
            SafeArrayPutElement( sArrayFontsPaths_0.parray, &rgFontsPaths_0, sFontsPaths_0 );
            rgFontsPaths_0 = 1;
            BSTR sFontsPaths_1 = SysAllocString( L"D:\more");
            SafeArrayPutElement( sArrayFontsPaths_0.parray, &rgFontsPaths_0, sFontsPaths_1 );
            iwSystemFiles_0->put_FontsPaths( sArrayFontsPaths_0 );
        }

        {
            IDrawingSupportFilesPtr iwDrawingSupportFiles_0 = pConnection->m_IwApp->GetDrawingSupportFiles();
            iwDrawingSupportFiles_0->put_DrawingTemplateFilesPath( L"T:\\tpl" );
        }

        {
            IDrawingSupportFilesPtr iwDrawingSupportFiles_1 = pConnection->m_IwApp->GetDrawingSupportFiles();
        }

    }
