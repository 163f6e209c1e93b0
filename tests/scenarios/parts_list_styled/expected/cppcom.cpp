    ITableStylePtr tablestyle1;
    {
        iwCreateObjectResult_e result1;
        BSTR tableStyleName1 = L"Parts";
        pConnection->m_IwApp->GetActiveDocument()->GetTableStyleManager()->CreateTableStyle( tableStyleName1, &tablestyle1, &result1 );
        tablestyle1->Activate();
        iwCreateObjectResult_e result2;
        BSTR styleName2 = L"Parts";
        result2 = tablestyle1->Rename( styleName2 );
    }
    ITableStylePtr tablestyle2;
    {
        iwCreateObjectResult_e result1;
        BSTR tableStyleName1 = L"Notes";
        pConnection->m_IwApp->GetActiveDocument()->GetTableStyleManager()->CreateTableStyle( tableStyleName1, &tablestyle2, &result1 );
        iwCreateObjectResult_e result2;
        BSTR styleName2 = L"Notes";
        result2 = tablestyle2->Rename( styleName2 );
    }
    IDimensionStylePtr dimensionstyle3;
    {
        iwCreateObjectResult_e result1;
        BSTR dimStyleName1 = L"Shop";
        pConnection->m_IwApp->GetActiveDocument()->GetDimensionStyleManager()->CreateDimensionStyle( dimStyleName1, &dimensionstyle3, &result1 );
    }
    IRichLineStylePtr richlinestyle4;
    {
        iwCreateObjectResult_e result1;
        BSTR richLineStyleName1 = L"Road";
        pConnection->m_IwApp->GetActiveDocument()->GetRichLineStyleManager()->CreateRichLineStyle( richLineStyleName1, &richlinestyle4, &result1 );
        richlinestyle4->Activate();
        richlinestyle4->DeleteLine(0);
        richlinestyle4->AddLine(0.50000000000000, pConnection->m_IwApp->GetColorByIndex( 2 ), L"Continuous");
        richlinestyle4->DeleteLine(1);
        richlinestyle4->AddLine(0.00000000000000, pConnection->m_IwApp->GetColorByIndex( 256 ), L"DASHED2");
        richlinestyle4->DeleteLine(2);
        richlinestyle4->AddLine(-0.50000000000000, pConnection->m_IwApp->GetColorByIndex( 0 ), L"");
    }
    ILineStylePtr linestyle5;
    {
        pConnection->m_IwApp->GetActiveDocument()->GetLineStyleManager()->LoadLineStyle( L"FENCE1", L"", &linestyle5 );
    }
    ITablePtr table7;
    {
        table7 = iwSketchManager->InsertTable(
         10.00000000000000, -2.50000000000000, 4, 3, 9.00000000000000, 25.50000000000000, (iwTableCellType_e)1, (iwTableCellType_e)2, (iwTableCellType_e)3 );
        table7->SetRowHeightAt( 0, 12.00000000000000 );
    }
    ITablePtr table8;
    {
        table8 = iwSketchManager->InsertTable(
         10.00000000000000, -2.50000000000000, 2, 2, 0.00000000000000, 30.00000000000000, (iwTableCellType_e)3, (iwTableCellType_e)3, (iwTableCellType_e)3 );
        table8->SetRowHeightAt( 0, 8.00000000000000 );
        table8->SetRowHeightAt( 1, 8.00000000000000 );
    }
