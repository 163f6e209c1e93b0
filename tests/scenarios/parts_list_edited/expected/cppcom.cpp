    ITextStylePtr textstyle1;
    {
        iwCreateObjectResult_e result1;
        BSTR textStyleName1 = L"Titles";
        textstyle1 = pConnection->m_IwApp->GetActiveDocument()->GetTextStyleManager()->GetTextStyle( textStyleName1 );
        if (NULL == textstyle1)
        {
            pConnection->m_IwApp->GetActiveDocument()->GetTextStyleManager()->CreateTextStyle( textStyleName1, &textstyle1, &result1 );
        }
        textstyle1->put_Font( L"arial.ttf" );
    }
    ITableStylePtr tablestyle2;
    {
        iwCreateObjectResult_e result1;
        BSTR tableStyleName1 = L"Parts";
        pConnection->m_IwApp->GetActiveDocument()->GetTableStyleManager()->CreateTableStyle( tableStyleName1, &tablestyle2, &result1 );
        iwCreateObjectResult_e result2;
        BSTR styleName2 = L"Parts";
        result2 = tablestyle2->Rename( styleName2 );
    }
    ITablePtr table3;
    {
        table3 = iwSketchManager->InsertTable(
         10.00000000000000, 200.00000000000000, 3, 3, 9.00000000000000, 15.00000000000000, (iwTableCellType_e)1, (iwTableCellType_e)2, (iwTableCellType_e)3 );
        table3->SetRowHeightAt( 0, 12.00000000000000 );
    }
    {
        // AcDbTable object modified
        {
            table3->SetText( 0, 0, L"Bill of materials" );
            table3->SetText( 1, 0, L"No" );
            table3->SetText( 1, 1, L"Part" );
            table3->SetText( 1, 2, L"Drawing" );
            table3->SetText( 2, 0, L"1" );
            table3->SetText( 2, 1, L"{\\fArial;Bolt} M8" );
            table3->SetText( 2, 2, L"" );
        }
    }
    {
        // AcDbTable object modified
        {
            table3->InsertRow( 3, 9.00000000000000 );
            table3->InsertRow( 4, 9.00000000000000 );
            table3->SetText( 3, 0, L"2" );
            table3->SetText( 3, 1, L"Washer" );
            table3->SetText( 4, 0, L"3" );
            table3->SetText( 4, 1, L"Nut" );
            table3->SetText( 4, 2, L"D:\\parts\\nut.dwg" );
            table3->SetText( 3, 0, L"2" );
            table3->SetText( 3, 1, L"Washer" );
            table3->SetText( 3, 2, L"" );
            table3->SetText( 4, 0, L"3" );
            table3->SetText( 4, 1, L"Nut" );
            table3->SetText( 4, 2, L"D:\\parts\\nut.dwg" );
            table3->SetRowHeightAt( 3, 9.00000000000000 );
            table3->SetRowHeightAt( 4, 9.00000000000000 );
        }
    }
    {
        // AcDbTable object modified
        {
            table3->InsertColumn( 3, 20.00000000000000 );
            table3->SetText( 1, 3, L"Qty" );
            table3->SetText( 2, 3, L"8" );
            table3->SetText( 1, 3, L"Qty" );
            table3->SetText( 2, 3, L"8" );
            table3->SetColumnWidthAt( 3, 20.00000000000000 );
        }
    }
    {
        // AcDbTable object modified
        {
            table3->DeleteRow( 4 );
            table3->SetText( 3, 0, L"" );
            table3->SetRowHeightAt( 2, 12.00000000000000 );
        }
    }
    {
        // AcDbTable object modified
        {
            table3->DeleteColumn( 3 );
        }
    }
    {
        // AcDbTable object modified
        {
            double coef1 = 2.00000000000000;
            long lRowCount1 = 0;
            lRowCount1 = table3->TotalRowCount();
            for (long i = 0; i < lRowCount1; ++i)
            {
                double height = 0.0;
                height = table3->GetRowHeight(i);
                height *= coef1;
                table3->SetRowHeightAt(i, height);
            }
        }
    }
    {
        // AcDbTable object modified
        {
            double coef1 = 1.50000000000000;
            long lColumnCount1 = 0;
            lColumnCount1 = table3->TotalColumnCount();
            for (long i = 0; i < lColumnCount1; ++i)
            {
                double width = 0.0;
                width = table3->GetColumnWidth(i);
                width *= coef1;
                table3->SetColumnWidthAt(i, width);
            }
        }
    }
    {
        // AcDbTable object modified
        {
            table3->SetColumnWidthAt( 1, 40.00000000000000 );
        }
    }
    {
        // AcDbTable object modified
        {
            double X1;
            double Y1;
            double Z1;
            table3->GetPosition( &X1, &Y1, &Z1 );
            Y1 = 180.00000000000000;
            table3->SetPosition( X1, Y1, Z1 );
            
            ITableStyleManagerPtr iwTableStyleManager2;
            iwTableStyleManager2 = iwDoc->GetTableStyleManager();

            ITableStylePtr tableStyle2;
            tableStyle2 = iwTableStyleManager2->GetTableStyle( L"Parts" );

            table3->put_TableStyle( tableStyle2 );
            table3->put_Direction( iwTableDirection_BottomToTop );
        }
    }
    {
        // AcDbTableStyle object modified
        {
            iwCreateObjectResult_e result1;
            BSTR styleName1 = L"Parts lists";
            result1 = tablestyle2->Rename( styleName1 );
        }
    }
    {
        // AcDbTableStyle object modified
        {
             tablestyle2->SetAlignment(iwTableCellType_Data,iwTableCellAlignment_MiddleCenter);
             tablestyle2->SetTextHeight(iwTableCellType_Data,3.50000000000000);
             tablestyle2->SetTextStyle(iwTableCellType_Title,L"Titles");
        }
    }
    {
        // AcDbTableStyle object modified
        {
             tablestyle2->SetBackgroundColor(iwTableCellType_Header,pConnection->m_IwApp->GetColorByIndex( 8 ));
             tablestyle2->SetTextColor(iwTableCellType_Header,pConnection->m_IwApp->GetRGBColor( 20 ,40 ,60 ));
        }
    }
    {
        // AcDbTableStyle object modified
        {
             tablestyle2->SetHorizontalMargin(iwTableCellType_Data,1.50000000000000);
             tablestyle2->SetVerticalMargin(iwTableCellType_Data,0.75000000000000);
            tablestyle2->put_HeaderOrientation( iwTableHeaderOrientation_Down );
        }
    }
    {
        // AcDbTableStyle object modified
        {
             tablestyle2->SetBordersColor(iwTableCellType_Data,iwTableBordersLineType_VerticalInside,pConnection->m_IwApp->GetColorByIndex( 1 ));
             tablestyle2->SetBordersLineWeight(iwTableCellType_Title,iwTableBordersLineType_HorizontalBottom,iwLnWt_050);
        }
    }
    {
        // AcDbTextStyleTableRecord object modified
        {
            iwCreateObjectResult_e result1;
            BSTR styleName1 = L"Headings";
            result1 = textstyle1->Rename( styleName1 );
            textstyle1->put_Font( L"C:\\Fonts\\arialbd.ttf" );
            textstyle1->put_Angle( 0.25000000000000 );
            textstyle1->put_Height( 5.00000000000000 );
            textstyle1->put_Spacing( 1.10000000000000 );
            textstyle1->put_Backwards( false );
            textstyle1->put_UpsideDown( false );
            textstyle1->put_Vertical( true );
            textstyle1->put_BigFont( L"extfont.shx" );
        }
    }
    IAttributeDefinitionPtr attributedefinition4;
    {
        attributedefinition4 = iwSketchManager->InsertAttributeDefinition(  L"M8", L"SIZE", L"Size?", 1.00000000000000, 2.00000000000000, 0.00000000000000, L"", iwTextJustification_Left, 0.20000000000000, 0.00000000000000, false, false, false, false, false, false );
    }
    {
        // AcDbAttributeDefinition object modified
        {
            attributedefinition4->put_Angle( 0.10000000000000 );
            attributedefinition4->put_Height( 2.50000000000000 );
            attributedefinition4->put_Justification( iwTextJustification_Center );
            attributedefinition4->put_Caption( L"Size of the bolt?" );
            attributedefinition4->put_Rotation( 0.50000000000000 );
            attributedefinition4->put_Spacing( 0.90000000000000 );
            attributedefinition4->put_TextStyle( L"Headings" );
            attributedefinition4->put_Name( L"BOLT" );
            attributedefinition4->put_Value( L"M10" );
            double X1;
            double Y1;
            double Z1;
            attributedefinition4->GetPosition( &X1, &Y1, &Z1 );
            X1 = 3.00000000000000;
            attributedefinition4->SetPosition( X1, Y1, Z1 );
            
            double X2;
            double Y2;
            double Z2;
            attributedefinition4->GetAlignmentPoint( &X2, &Y2, &Z2 );
            Y2 = 4.00000000000000;
            attributedefinition4->SetAlignmentPoint( X2, Y2, Z2 );
            
            attributedefinition4->put_Backwards( true );
            attributedefinition4->put_Constant( false );
            attributedefinition4->put_Hidden( true );
            attributedefinition4->put_LockPosition( true );
            attributedefinition4->put_Preset( false );
            attributedefinition4->put_UpsideDown( false );
            attributedefinition4->put_Verify( true );
        }
    }
    ISimpleNotePtr simplenote5;
    {
         simplenote5=iwSketchManager->InsertSimpleNote( 1.00000000000000, 1.00000000000000, 0.00000000000000, 5.00000000000000, 0.10000000000000, L"Section A-A");
        simplenote5->SetAlignmentPoint( 0.00000000000000, 0.00000000000000, 0.00000000000000 );
        simplenote5->SetPosition( 1.00000000000000, 1.00000000000000, 0.00000000000000 );
    }
    {
        // AcDbText object modified
        {
            simplenote5->put_Angle( 0.20000000000000 );
            simplenote5->put_Contents( L"Section B-B" );
            simplenote5->put_Height( 7.00000000000000 );
            simplenote5->put_Rotation( 0.00000000000000 );
            simplenote5->put_Spacing( 1.20000000000000 );
            simplenote5->put_TextStyle( L"Headings" );
            double X1;
            double Y1;
            double Z1;
            simplenote5->GetPosition( &X1, &Y1, &Z1 );
            Z1 = 1.00000000000000;
            simplenote5->SetPosition( X1, Y1, Z1 );
            
            simplenote5->put_Backwards( false );
            simplenote5->put_UpsideDown( false );
            simplenote5->put_Justify( iwTextJustification_MiddleCenter );
            double X2;
            double Y2;
            double Z2;
            simplenote5->GetAlignmentPoint( &X2, &Y2, &Z2 );
            X2 = 2.00000000000000;
            simplenote5->SetAlignmentPoint( X2, Y2, Z2 );
            
        }
    }
    INotePtr note6;
    {
        VARIANT strArray1;
        strArray1.vt = ( VT_ARRAY | VT_BSTR );
        strArray1.parray = SafeArrayCreateVector( VT_BSTR, 0, 1 );
        long rgIndices1;
        rgIndices1 = 0;
        BSTR str1;
        str1 = SysAllocString(L"All parts galvanized");
        SafeArrayPutElement( strArray1.parray, &rgIndices1, str1 );
        note6 = iwSketchManager->InsertNote( 10.00000000000000, 20.00000000000000, 0.00000000000000, 70.00000000000000, 20.00000000000000, 0.00000000000000, strArray1 );
        note6->put_TextHeight( 2.50000000000000 );
        note6->put_Width( 60.00000000000000 );
    }
    {
        // AcDbMText object modified
        {
            note6->put_BackgroundMask( true );
            note6->put_BackgroundFillColor( pConnection->m_IwApp->GetColorByIndex( 2 ) );
            note6->put_UseDrawingBackgroundColor( false );
            note6->put_BackgroundBorderOffsetFactor( 1.50000000000000 );
            note6->put_Text( L"All parts\\Pzinc coated" );
            note6->put_Direction( iwNoteDirection_Horizontal );
            note6->put_Justify( iwNoteJustification_TopCenter );
            note6->put_LineSpaceDistance( 4.00000000000000 );
            note6->put_LineSpaceFactor( 1.25000000000000 );
            note6->put_LineSpacingStyle( iwNoteLineSpacingStyle_Exactly );
            note6->put_Rotation( 0.50000000000000 );
            note6->put_TextStyle( L"Headings" );
            note6->put_TextHeight( 3.00000000000000 );
            note6->put_Width( 80.00000000000000 );
            double getX1;
            double getY1;
            double getZ1;
            note6->GetPosition( &getX1, &getY1, &getZ1 );
            getX1 = 12.00000000000000;
            note6->SetPosition( getX1, getY1, getZ1 );
            double getX2;
            double getY2;
            double getZ2;
            note6->GetPosition( &getX2, &getY2, &getZ2 );
            getY2 = 22.00000000000000;
            note6->SetPosition( getX2, getY2, getZ2 );
        }
    }
    ICircleArcPtr circlearc7;
    IArcAlignedTextPtr arcalignedtext8;
    {
        circlearc7 = iwSketchManager->InsertArc( 0.00000000000000, 0.00000000000000, 0.00000000000000, 20.00000000000000, 0.00000000000000, 3.00000000000000 );
        arcalignedtext8 = iwSketchManager->InsertCurvedText( L"Round the bend", circlearc7 );
    }
    {
        // AcDbArcAlignedText object modified
        {
            arcalignedtext8->put_Contents( L"Turn here" );
            arcalignedtext8->put_Height( 4.00000000000000 );
            arcalignedtext8->put_WidthFactor( 0.80000000000000 );
            arcalignedtext8->put_CharSpacing( 0.10000000000000 );
            double X1;
            double Y1;
            double Z1;
            arcalignedtext8->GetCenter( &X1, &Y1, &Z1 );
            X1 = 1.00000000000000;
            arcalignedtext8->SetCenter( X1, Y1, Z1 );
            
            arcalignedtext8->put_StartAngle( 0.10000000000000 );
            arcalignedtext8->put_EndAngle( 2.90000000000000 );
            arcalignedtext8->put_ArcOffset( 2.00000000000000 );
            arcalignedtext8->put_LeftOffset( 1.00000000000000 );
            arcalignedtext8->put_RightOffset( 1.50000000000000 );
            ICurvedSettingsPtr curvedSettings2 = arcalignedtext8->GetCurvedSettings();
            curvedSettings2->put_Underlined( true );
            arcalignedtext8->SetCurvedSettings( curvedSettings2 );
            ICurvedSettingsPtr curvedSettings3 = arcalignedtext8->GetCurvedSettings();
            curvedSettings3->put_Flip( false );
            arcalignedtext8->SetCurvedSettings( curvedSettings3 );
            ICurvedSettingsPtr curvedSettings4 = arcalignedtext8->GetCurvedSettings();
            curvedSettings4->put_Alignment( iwArcTextAlignment_Center );
            arcalignedtext8->SetCurvedSettings( curvedSettings4 );
            ICurvedSettingsPtr curvedSettings5 = arcalignedtext8->GetCurvedSettings();
            curvedSettings5->put_TextSide( iwArcTextPosition_OnConvexSide );
            arcalignedtext8->SetCurvedSettings( curvedSettings5 );
            ICurvedSettingsPtr curvedSettings6 = arcalignedtext8->GetCurvedSettings();
            curvedSettings6->put_TextDirection( iwArcTextDirection_InwardToTheCenter );
            arcalignedtext8->SetCurvedSettings( curvedSettings6 );
            ICurvedSettingsPtr curvedSettings7 = arcalignedtext8->GetCurvedSettings();
            curvedSettings7->put_TextStyle( L"Headings" );
            arcalignedtext8->SetCurvedSettings( curvedSettings7 );
            ICurvedSettingsPtr curvedSettings8 = arcalignedtext8->GetCurvedSettings();
            curvedSettings8->put_Font( L"Arial" );
            arcalignedtext8->SetCurvedSettings( curvedSettings8 );
            ICurvedSettingsPtr curvedSettings9 = arcalignedtext8->GetCurvedSettings();
            BSTR Typeface;
            VARIANT_BOOL Bold = false;
            VARIANT_BOOL Italic = false;
            long Charset = 0;
            long PitchAndFamily = 0;
            curvedSettings9->GetFontParameters( &Typeface, &Bold, &Italic, &Charset, &PitchAndFamily);
            Bold = true;
            curvedSettings9->SetFontParameters( Typeface, Bold, Italic, Charset, PitchAndFamily);
            arcalignedtext8->SetCurvedSettings( curvedSettings9 );
        }
    }
    {
        // AcDbArcAlignedText object modified
        {
            ICurvedSettingsPtr curvedSettings1 = arcalignedtext8->GetCurvedSettings();
            BSTR Typeface;
            VARIANT_BOOL Bold = false;
            VARIANT_BOOL Italic = false;
            long Charset = 0;
            long PitchAndFamily = 0;
            curvedSettings1->GetFontParameters( &Typeface, &Bold, &Italic, &Charset, &PitchAndFamily);
            Italic = false;
            curvedSettings1->SetFontParameters( Typeface, Bold, Italic, Charset, PitchAndFamily);
            arcalignedtext8->SetCurvedSettings( curvedSettings1 );
        }
    }
    IBlockInstancePtr blockinstance9;
    {
         blockinstance9 = iwSketchManager->InsertBlock2(L"Balloon", 0.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 1.00000000000000, 1.00000000000000, 0.00000000000000 );
    }
    {
        // AcDbBlockReference object modified
        {
            double X1;
            double Y1;
            double Z1;
            blockinstance9->GetPosition( &X1, &Y1, &Z1 );
            Y1 = 30.00000000000000;
            blockinstance9->SetPosition( X1, Y1, Z1 );
            
            double X2;
            double Y2;
            double Z2;
            blockinstance9->GetScales( &X2, &Y2, &Z2 );
            X2 = 2.00000000000000;
            blockinstance9->SetScales( X2, Y2, Z2 );
            
            blockinstance9->put_Rotation( 0.50000000000000 );
            IAttributeInstancePtr *iwAttributes3 = NULL;
            int count3 = 0;
            TypeConverter::convertVariantArrayToPtrArray<IAttributeInstancePtr, IAttributeInstance>( blockinstance9->GetAttributeInstances(), iwAttributes3, count3 );
            for (int i = 0; i < count3; ++i)
            {
                if (iwAttributes3[i]->GetName() == _bstr_t(L"NO"))
                    iwAttributes3[i]->put_Value( L"3" );
            }
            IAttributeInstancePtr *iwAttributes4 = NULL;
            int count4 = 0;
            TypeConverter::convertVariantArrayToPtrArray<IAttributeInstancePtr, IAttributeInstance>( blockinstance9->GetAttributeInstances(), iwAttributes4, count4 );
            for (int i = 0; i < count4; ++i)
            {
                if (iwAttributes4[i]->GetName() == _bstr_t(L"NAME"))
                    iwAttributes4[i]->put_Value( L"Nut" );
            }
        }
    }
