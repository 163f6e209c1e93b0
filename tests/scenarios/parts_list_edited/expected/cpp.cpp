    iwTextStyle_ptr iwtextstyle1;
    {
        iwCreateObjectResult_e result1;
        iwString textStyleName1 = L"Titles";
        iwTextStyleManager_ptr TextStyleManager1;
        iwDoc->GetTextStyleManager(&TextStyleManager1);
        TextStyleManager1->GetTextStyle( textStyleName1, &iwtextstyle1 );
        if ( !iwtextstyle1 )
        {
            TextStyleManager1->CreateTextStyle( textStyleName1, &iwtextstyle1, &result1 );
        }
        iwtextstyle1->put_Font( L"arial.ttf" );
    }
    iwTableStyle_ptr iwtablestyle2;
    {
        iwCreateObjectResult_e result1;
        iwString tableStyleName1 = L"Parts";
        iwTableStyleManager_ptr TableStyleManager1;
        iwDoc->GetTableStyleManager(&TableStyleManager1);
        TableStyleManager1->CreateTableStyle( tableStyleName1, &iwtablestyle2, &result1 );
        iwCreateObjectResult_e result2;
        iwString styleName2 = L"Parts";
        iwtablestyle2->Rename( styleName2, &result2 );
    }
    iwTable_ptr iwtable3;
    {
        iwSketchManager->InsertTable(
         10.00000000000000, 200.00000000000000, 3, 3, 9.00000000000000, 15.00000000000000, (iwTableCellType_e)1, (iwTableCellType_e)2, (iwTableCellType_e)3, &iwtable3 );
        iwtable3->SetRowHeightAt( 0, 12.00000000000000 );
    }
    {
        // AcDbTable object modified
        {
            iwtable3->SetText( 0, 0, L"Bill of materials" );
            iwtable3->SetText( 1, 0, L"No" );
            iwtable3->SetText( 1, 1, L"Part" );
            iwtable3->SetText( 1, 2, L"Drawing" );
            iwtable3->SetText( 2, 0, L"1" );
            iwtable3->SetText( 2, 1, L"{\\fArial;Bolt} M8" );
            iwtable3->SetText( 2, 2, L"" );
        }
    }
    {
        // AcDbTable object modified
        {
            bool bRetVal;
            iwtable3->InsertRow( 3, 9.00000000000000, &bRetVal );
            bool bRetVal;
            iwtable3->InsertRow( 4, 9.00000000000000, &bRetVal );
            iwtable3->SetText( 3, 0, L"2" );
            iwtable3->SetText( 3, 1, L"Washer" );
            iwtable3->SetText( 4, 0, L"3" );
            iwtable3->SetText( 4, 1, L"Nut" );
            iwtable3->SetText( 4, 2, L"D:\\parts\\nut.dwg" );
            iwtable3->SetText( 3, 0, L"2" );
            iwtable3->SetText( 3, 1, L"Washer" );
            iwtable3->SetText( 3, 2, L"" );
            iwtable3->SetText( 4, 0, L"3" );
            iwtable3->SetText( 4, 1, L"Nut" );
            iwtable3->SetText( 4, 2, L"D:\\parts\\nut.dwg" );
            iwtable3->SetRowHeightAt( 3, 9.00000000000000 );
            iwtable3->SetRowHeightAt( 4, 9.00000000000000 );
        }
    }
    {
        // AcDbTable object modified
        {
            bool bRetVal;
            iwtable3->InsertColumn( 3, 20.00000000000000, &bRetVal );
            iwtable3->SetText( 1, 3, L"Qty" );
            iwtable3->SetText( 2, 3, L"8" );
            iwtable3->SetText( 1, 3, L"Qty" );
            iwtable3->SetText( 2, 3, L"8" );
            iwtable3->SetColumnWidthAt( 3, 20.00000000000000 );
        }
    }
    {
        // AcDbTable object modified
        {
            bool bRetVal;
            iwtable3->DeleteRow( 4, &bRetVal );
            iwtable3->SetText( 3, 0, L"" );
            iwtable3->SetRowHeightAt( 2, 12.00000000000000 );
        }
    }
    {
        // AcDbTable object modified
        {
            bool bRetVal;
            iwtable3->DeleteColumn( 3, &bRetVal );
        }
    }
    {
        // AcDbTable object modified
        {
            double coef1 = 2.00000000000000;
            long lRowCount1 = 0;
            iwtable3->TotalRowCount( &lRowCount1 );
            for (long i = 0; i < lRowCount1; ++i)
            {
                double height = 0.0;
                iwtable3->GetRowHeight(i, &height);
                height *= coef1;
                iwtable3->SetRowHeightAt(i, height);
            }
        }
    }
    {
        // AcDbTable object modified
        {
            double coef1 = 1.50000000000000;
            long lColumnCount1 = 0;
            iwtable3->TotalColumnCount( &lColumnCount1 );
            for (long i = 0; i < lColumnCount1; ++i)
            {
                double width = 0.0;
                iwtable3->GetColumnWidth(i, &width);
                width *= coef1;
                iwtable3->SetColumnWidthAt(i, width);
            }
        }
    }
    {
        // AcDbTable object modified
        {
            iwtable3->SetColumnWidthAt( 1, 40.00000000000000 );
        }
    }
    {
        // AcDbTable object modified
        {
            double X1;
            double Y1;
            double Z1;
            iwtable3->GetPosition( &X1, &Y1, &Z1 );
            Y1 = 180.00000000000000;
            iwtable3->SetPosition( X1, Y1, Z1 );
            iwTableStyleManager_ptr iwTableStyleManager2;
            iwDoc->GetTableStyleManager( &iwTableStyleManager2 );

            iwTableStyle_ptr tableStyle2;
            iwTableStyleManager2->GetTableStyle( L"Parts", &tableStyle2 );

            iwtable3->put_TableStyle( tableStyle2 );
            iwtable3->put_Direction( iwTableDirection_BottomToTop );
        }
    }
    {
        // AcDbTableStyle object modified
        {
            iwCreateObjectResult_e result1;
            iwString styleName1 = L"Parts lists";
            iwtablestyle2->Rename( styleName1, &result1 );
        }
    }
    {
        // AcDbTableStyle object modified
        {
            iwtablestyle2->put_HeaderOrientation( iwTableHeaderOrientation_Down );
        }
    }
    {
        // AcDbTableStyle object modified
        {
             iwtablestyle2->SetBordersLineWeight(iwTableCellType_Title,iwTableBordersLineType_HorizontalBottom,iwLnWt_050);
        }
    }
    {
        // AcDbTextStyleTableRecord object modified
        {
            iwCreateObjectResult_e result1;
            iwString styleName1 = L"Headings";
            iwtextstyle1->Rename( styleName1, &result1 );
            iwtextstyle1->put_Font( L"C:\\Fonts\\arialbd.ttf" );
            iwtextstyle1->put_Angle( 0.25000000000000 );
            iwtextstyle1->put_Height( 5.00000000000000 );
            iwtextstyle1->put_Spacing( 1.10000000000000 );
            iwtextstyle1->put_Backwards( false );
            iwtextstyle1->put_UpsideDown( false );
            iwtextstyle1->put_Vertical( true );
            iwtextstyle1->put_BigFont( L"extfont.shx" );
        }
    }
    iwAttributeDefinition_ptr iwattributedefinition4;
    {
        iwSketchManager->InsertAttributeDefinition(  L"M8", L"SIZE", L"Size?", 1.00000000000000, 2.00000000000000, 0.00000000000000, L"", iwTextJustification_Left, 0.20000000000000, 0.00000000000000, false, false, false, false, false, false, &iwattributedefinition4 );
    }
    {
        // AcDbAttributeDefinition object modified
        {
            iwattributedefinition4->put_Angle( 0.10000000000000 );
            iwattributedefinition4->put_Height( 2.50000000000000 );
            iwattributedefinition4->put_Justification( iwTextJustification_Center );
            iwattributedefinition4->put_Caption( L"Size of the bolt?" );
            iwattributedefinition4->put_Rotation( 0.50000000000000 );
            iwattributedefinition4->put_Spacing( 0.90000000000000 );
            iwattributedefinition4->put_TextStyle( L"Headings" );
            iwattributedefinition4->put_Name( L"BOLT" );
            iwattributedefinition4->put_Value( L"M10" );
            double X1;
            double Y1;
            double Z1;
            iwattributedefinition4->GetPosition( &X1, &Y1, &Z1 );
            X1 = 3.00000000000000;
            iwattributedefinition4->SetPosition( X1, Y1, Z1 );
            double X2;
            double Y2;
            double Z2;
            iwattributedefinition4->GetAlignmentPoint( &X2, &Y2, &Z2 );
            Y2 = 4.00000000000000;
            iwattributedefinition4->SetAlignmentPoint( X2, Y2, Z2 );
            iwattributedefinition4->put_Backwards( true );
            iwattributedefinition4->put_Constant( false );
            iwattributedefinition4->put_Hidden( true );
            iwattributedefinition4->put_LockPosition( true );
            iwattributedefinition4->put_Preset( false );
            iwattributedefinition4->put_UpsideDown( false );
            iwattributedefinition4->put_Verify( true );
        }
    }
    iwSimpleNote_ptr iwsimplenote5;
    {
        iwSketchManager->InsertSimpleNote( 1.00000000000000, 1.00000000000000, 0.00000000000000, 5.00000000000000, 0.10000000000000, L"Section A-A", &iwsimplenote5 );
        iwsimplenote5->SetAlignmentPoint( 0.00000000000000, 0.00000000000000, 0.00000000000000 );
        iwsimplenote5->SetPosition( 1.00000000000000, 1.00000000000000, 0.00000000000000 );
    }
    {
        // AcDbText object modified
        {
            iwsimplenote5->put_Angle( 0.20000000000000 );
            iwsimplenote5->put_Contents( L"Section B-B" );
            iwsimplenote5->put_Height( 7.00000000000000 );
            iwsimplenote5->put_Rotation( 0.00000000000000 );
            iwsimplenote5->put_Spacing( 1.20000000000000 );
            iwsimplenote5->put_TextStyle( L"Headings" );
            double X1;
            double Y1;
            double Z1;
            iwsimplenote5->GetPosition( &X1, &Y1, &Z1 );
            Z1 = 1.00000000000000;
            iwsimplenote5->SetPosition( X1, Y1, Z1 );
            iwsimplenote5->put_Backwards( false );
            iwsimplenote5->put_UpsideDown( false );
            iwsimplenote5->put_Justify( iwTextJustification_MiddleCenter );
            double X2;
            double Y2;
            double Z2;
            iwsimplenote5->GetAlignmentPoint( &X2, &Y2, &Z2 );
            X2 = 2.00000000000000;
            iwsimplenote5->SetAlignmentPoint( X2, Y2, Z2 );
        }
    }
    iwNote_ptr iwnote6;
    {
        iwStringArray strArray1;
        strArray1.add(L"All parts galvanized");
        iwSketchManager->InsertNote( 10.00000000000000, 20.00000000000000, 0.00000000000000, 70.00000000000000, 20.00000000000000, 0.00000000000000, strArray1, &iwnote6 );
        iwnote6->put_TextHeight( 2.50000000000000 );
        iwnote6->put_Width( 60.00000000000000 );
    }
    {
        // AcDbMText object modified
        {
            iwnote6->put_BackgroundMask( true );
            iwColor_ptr iwColor1;
            m_pIwApp->GetColorByIndex( 2, &iwColor1 );
            iwnote6->put_BackgroundFillColor( iwColor1 );
            iwnote6->put_UseDrawingBackgroundColor( false );
            iwnote6->put_BackgroundBorderOffsetFactor( 1.50000000000000 );
            iwnote6->put_Text( L"All parts\\Pzinc coated" );
            iwnote6->put_Direction( iwNoteDirection_Horizontal );
            iwnote6->put_Justify( iwNoteJustification_TopCenter );
            iwnote6->put_LineSpaceDistance( 4.00000000000000 );
            iwnote6->put_LineSpaceFactor( 1.25000000000000 );
            iwnote6->put_LineSpacingStyle( iwNoteLineSpacingStyle_Exactly );
            iwnote6->put_Rotation( 0.50000000000000 );
            iwnote6->put_TextStyle( L"Headings" );
            iwnote6->put_TextHeight( 3.00000000000000 );
            iwnote6->put_Width( 80.00000000000000 );
            double getX2;
            double getY2;
            double getZ2;
            iwnote6->GetPosition( &getX2, &getY2, &getZ2 );
            getX2 = 12.00000000000000;
            iwnote6->SetPosition( getX2, getY2, getZ2 );
            double getX3;
            double getY3;
            double getZ3;
            iwnote6->GetPosition( &getX3, &getY3, &getZ3 );
            getY3 = 22.00000000000000;
            iwnote6->SetPosition( getX3, getY3, getZ3 );
        }
    }
    iwCircleArc_ptr iwcirclearc7;
    iwArcAlignedText_ptr iwarcalignedtext8;
    {
        iwSketchManager->InsertArc( 0.00000000000000, 0.00000000000000, 0.00000000000000, 20.00000000000000, 0.00000000000000, 3.00000000000000, &iwcirclearc7 );
        iwSketchManager->InsertCurvedText( L"Round the bend", iwcirclearc7, &iwarcalignedtext8 );
    }
    {
        // AcDbArcAlignedText object modified
        {
            iwarcalignedtext8->put_Contents( L"Turn here" );
            iwarcalignedtext8->put_Height( 4.00000000000000 );
            iwarcalignedtext8->put_WidthFactor( 0.80000000000000 );
            iwarcalignedtext8->put_CharSpacing( 0.10000000000000 );
            double X1;
            double Y1;
            double Z1;
            iwarcalignedtext8->GetCenter( &X1, &Y1, &Z1 );
            X1 = 1.00000000000000;
            iwarcalignedtext8->SetCenter( X1, Y1, Z1 );
            iwarcalignedtext8->put_StartAngle( 0.10000000000000 );
            iwarcalignedtext8->put_EndAngle( 2.90000000000000 );
            iwarcalignedtext8->put_ArcOffset( 2.00000000000000 );
            iwarcalignedtext8->put_LeftOffset( 1.00000000000000 );
            iwarcalignedtext8->put_RightOffset( 1.50000000000000 );
            iwCurvedSettings_ptr curvedSettings2;
            iwarcalignedtext8->GetCurvedSettings( &curvedSettings2 );
            curvedSettings2->put_Underlined( true );
            iwarcalignedtext8->SetCurvedSettings( curvedSettings2 );
            iwCurvedSettings_ptr curvedSettings3;
            iwarcalignedtext8->GetCurvedSettings( &curvedSettings3 );
            curvedSettings3->put_Flip( false );
            iwarcalignedtext8->SetCurvedSettings( curvedSettings3 );
            iwCurvedSettings_ptr curvedSettings4;
            iwarcalignedtext8->GetCurvedSettings( &curvedSettings4 );
            curvedSettings4->put_Alignment( iwArcTextAlignment_Center );
            iwarcalignedtext8->SetCurvedSettings( curvedSettings4 );
            iwCurvedSettings_ptr curvedSettings5;
            iwarcalignedtext8->GetCurvedSettings( &curvedSettings5 );
            curvedSettings5->put_TextSide( iwArcTextPosition_OnConvexSide );
            iwarcalignedtext8->SetCurvedSettings( curvedSettings5 );
            iwCurvedSettings_ptr curvedSettings6;
            iwarcalignedtext8->GetCurvedSettings( &curvedSettings6 );
            curvedSettings6->put_TextDirection( iwArcTextDirection_InwardToTheCenter );
            iwarcalignedtext8->SetCurvedSettings( curvedSettings6 );
            iwCurvedSettings_ptr curvedSettings7;
            iwarcalignedtext8->GetCurvedSettings( &curvedSettings7 );
            curvedSettings7->put_TextStyle( L"Headings" );
            iwarcalignedtext8->SetCurvedSettings( curvedSettings7 );
            iwCurvedSettings_ptr curvedSettings8;
            iwarcalignedtext8->GetCurvedSettings( &curvedSettings8 );
            curvedSettings8->put_Font( L"Arial" );
            iwarcalignedtext8->SetCurvedSettings( curvedSettings8 );
            iwCurvedSettings_ptr curvedSettings9;
            iwarcalignedtext8->GetCurvedSettings( &curvedSettings9 );
            iwString Typeface;
            bool Bold = false;
            bool Italic = false;
            long Charset = 0;
            long PitchAndFamily = 0;
            curvedSettings9->GetFontParameters( &Typeface, &Bold, &Italic, &Charset, &PitchAndFamily);
            Bold = true;
            curvedSettings9->SetFontParameters( Typeface, Bold, Italic, Charset, PitchAndFamily);
            iwarcalignedtext8->SetCurvedSettings( curvedSettings9 );
        }
    }
    {
        // AcDbArcAlignedText object modified
        {
            iwCurvedSettings_ptr curvedSettings1;
            iwarcalignedtext8->GetCurvedSettings( &curvedSettings1 );
            iwString Typeface;
            bool Bold = false;
            bool Italic = false;
            long Charset = 0;
            long PitchAndFamily = 0;
            curvedSettings1->GetFontParameters( &Typeface, &Bold, &Italic, &Charset, &PitchAndFamily);
            Italic = false;
            curvedSettings1->SetFontParameters( Typeface, Bold, Italic, Charset, PitchAndFamily);
            iwarcalignedtext8->SetCurvedSettings( curvedSettings1 );
        }
    }
    iwBlockInstance_ptr iwblockinstance9;
    {
         iwSketchManager->InsertBlock2(L"Balloon", 0.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 1.00000000000000, 1.00000000000000, 0.00000000000000, &iwblockinstance9 );
    }
    {
        // AcDbBlockReference object modified
        {
            double X1;
            double Y1;
            double Z1;
            iwblockinstance9->GetPosition( &X1, &Y1, &Z1 );
            Y1 = 30.00000000000000;
            iwblockinstance9->SetPosition( X1, Y1, Z1 );
            double X2;
            double Y2;
            double Z2;
            iwblockinstance9->GetScales( &X2, &Y2, &Z2 );
            X2 = 2.00000000000000;
            iwblockinstance9->SetScales( X2, Y2, Z2 );
            iwblockinstance9->put_Rotation( 0.50000000000000 );
            iwObjectPtrArray iwAttributes3;
            iwblockinstance9->GetAttributeInstances( &iwAttributes3 );
            for (int i = 0; i < (int)iwAttributes3.length(); ++i)
            {
                iwAttributeInstance_c* iwAttribute3 = (iwAttributeInstance_c*)iwAttributes3[i];
                iwString name3;
                iwAttribute3->get_Name( &name3 );
                if (name3 == L"NO")
                    iwAttribute3->put_Value( L"3" );
            }
            iwObjectPtrArray iwAttributes4;
            iwblockinstance9->GetAttributeInstances( &iwAttributes4 );
            for (int i = 0; i < (int)iwAttributes4.length(); ++i)
            {
                iwAttributeInstance_c* iwAttribute4 = (iwAttributeInstance_c*)iwAttributes4[i];
                iwString name4;
                iwAttribute4->get_Name( &name4 );
                if (name4 == L"NAME")
                    iwAttribute4->put_Value( L"Nut" );
            }
        }
    }
