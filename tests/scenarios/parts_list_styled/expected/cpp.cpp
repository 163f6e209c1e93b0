    iwTableStyle_ptr iwtablestyle1;
    {
        iwCreateObjectResult_e result1;
        iwString tableStyleName1 = L"Parts";
        iwTableStyleManager_ptr TableStyleManager1;
        iwDoc->GetTableStyleManager(&TableStyleManager1);
        TableStyleManager1->CreateTableStyle( tableStyleName1, &iwtablestyle1, &result1 );
        bool bRes2;
        iwtablestyle1->Activate( &bRes2 );
        iwCreateObjectResult_e result3;
        iwString styleName3 = L"Parts";
        iwtablestyle1->Rename( styleName3, &result3 );
    }
    iwTableStyle_ptr iwtablestyle2;
    {
        iwCreateObjectResult_e result1;
        iwString tableStyleName1 = L"Notes";
        iwTableStyleManager_ptr TableStyleManager1;
        iwDoc->GetTableStyleManager(&TableStyleManager1);
        TableStyleManager1->CreateTableStyle( tableStyleName1, &iwtablestyle2, &result1 );
        iwCreateObjectResult_e result2;
        iwString styleName2 = L"Notes";
        iwtablestyle2->Rename( styleName2, &result2 );
    }
    iwDimensionStyle_ptr iwdimensionstyle3;
    {
        iwCreateObjectResult_e result1;
        iwString dimStyleName1 = L"Shop";
        iwDimensionStyleManager_ptr DimensionStyleManager1;
        iwDoc->GetDimensionStyleManager(&DimensionStyleManager1);
        DimensionStyleManager1->CreateDimensionStyle( dimStyleName1, &iwdimensionstyle3, &result1 );
    }
    iwRichLineStyle_ptr iwrichlinestyle4;
    {
        iwCreateObjectResult_e result1;
        iwString richLineStyleName1 = L"Road";
        iwRichLineStyleManager_ptr RichLineStyleManager1;
        iwDoc->GetRichLineStyleManager(&RichLineStyleManager1);
        RichLineStyleManager1->CreateRichLineStyle( richLineStyleName1, &iwrichlinestyle4, &result1 );
        bool bRes2;
        iwrichlinestyle4->Activate( &bRes2 );
    }
    iwLineStyle_ptr iwlinestyle5;
    {
        iwCreateObjectResult_e result1;
        iwLineStyleManager_ptr LineStyleManager1;
        iwDoc->GetLineStyleManager(&LineStyleManager1);
        LineStyleManager1->LoadLineStyle( L"FENCE1",L"", &iwlinestyle5 , &result1);
    }
    iwTable_ptr iwtable7;
    {
        iwSketchManager->InsertTable(
         10.00000000000000, -2.50000000000000, 4, 3, 9.00000000000000, 25.50000000000000, (iwTableCellType_e)1, (iwTableCellType_e)2, (iwTableCellType_e)3, &iwtable7 );
        iwtable7->SetRowHeightAt( 0, 12.00000000000000 );
    }
    iwTable_ptr iwtable8;
    {
        iwSketchManager->InsertTable(
         10.00000000000000, -2.50000000000000, 2, 2, 0.00000000000000, 30.00000000000000, (iwTableCellType_e)3, (iwTableCellType_e)3, (iwTableCellType_e)3, &iwtable8 );
        iwtable8->SetRowHeightAt( 0, 8.00000000000000 );
        iwtable8->SetRowHeightAt( 1, 8.00000000000000 );
    }
