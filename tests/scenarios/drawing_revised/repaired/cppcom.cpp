    {
        // AcDbLayerTableRecord object modified
        ILayerManagerPtr iwLayerManager_1 = iwDoc->GetLayerManager();
        ILayerPtr layer1 = iwLayerManager_1->GetLayer( "Walls" );
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
        // AcDbTextStyleTableRecord object modified
        iwObjectType_e type2;
        ITextStylePtr textstyle3 = pConnection->m_IwApp->GetActiveDocument()->GetObjectByHandle(L"13", &type2);
        {
            iwCreateObjectResult_e result3;
            BSTR styleName3 = SysAllocString(L"Room names");
            result3 = textstyle3->Rename( styleName3 );
            textstyle3->put_Height( 0.25000000000000 );
        }
    }
    {
        // AcDbLine object modified
        iwObjectType_e type4;
        ILinePtr line4 = pConnection->m_IwApp->GetActiveDocument()->GetObjectByHandle(L"2A", &type4);
        line4->put_LineWeight( iwLnWt_050 );
        double getX5;
        double getY5;
        double getZ5;
        line4->GetSecondPoint( &getX5, &getY5, &getZ5 );
        getX5 = 7.50000000000000;
        line4->SetSecondPoint( getX5, getY5, getZ5 );
        // AcDbCircle object modified
        iwObjectType_e type6;
        ICirclePtr circle5 = pConnection->m_IwApp->GetActiveDocument()->GetObjectByHandle(L"2C", &type6);
        {
            circle5->put_Layer( _bstr_t(L"Walls existing") );
        }
        // AcDbText object modified
        iwObjectType_e type7;
        ISimpleNotePtr simplenote6 = pConnection->m_IwApp->GetActiveDocument()->GetObjectByHandle(L"2D", &type7);
        {
            simplenote6->put_Layer( _bstr_t(L"Rooms") );
            simplenote6->put_Contents( _bstr_t(L"Kitchen") );
            simplenote6->put_TextStyle( _bstr_t(L"Room names") );
        }
        // AcDbRotatedDimension object modified
        iwObjectType_e type8;
        IRotatedDimensionPtr rotateddimension7 = pConnection->m_IwApp->GetActiveDocument()->GetObjectByHandle(L"2F", &type8);
        {
            IGeneralDimensionPtr generalDimension9 = rotateddimension7->GetGeneralDimension();
            generalDimension9->put_Layer( _bstr_t(L"Rooms") );
            IGeneralDimensionPtr generalDimension10 = rotateddimension7->GetGeneralDimension();
            generalDimension10->put_TextOverride( _bstr_t(L"7.50") );
        }
    }
    {
        // AcDbPolyline object modified
        iwObjectType_e type11;
        IPolyLinePtr polyline8 = pConnection->m_IwApp->GetActiveDocument()->GetObjectByHandle(L"2B", &type11);
        {
            double X12;
            double Y12;
            polyline8->GetVertexCoordinate( 2, &X12, &Y12 );
            X12 = 7.50000000000000;
            polyline8->SetVertexCoordinate( 2, X12, Y12 );
        }
        // AcDbPolyline object modified
        {
            double X13;
            double Y13;
            polyline8->GetVertexCoordinate( 1, &X13, &Y13 );
            Y13 = 4.50000000000000;
            polyline8->SetVertexCoordinate( 1, X13, Y13 );
        }
    }
    {
        // AcDbBlockReference object modified
        iwObjectType_e type14;
        IBlockInstancePtr blockinstance9 = pConnection->m_IwApp->GetActiveDocument()->GetObjectByHandle(L"2E", &type14);
        {
            blockinstance9->put_Rotation( 1.57079632679490 );
            IAttributeInstancePtr *iwAttributes15 = NULL;
            int count15 = 0;
            TypeConverter::convertVariantArrayToPtrArray<IAttributeInstancePtr, IAttributeInstance>( blockinstance9->GetAttributeInstances(), iwAttributes15, count15 );
            for (int i = 0; i < count15; ++i)
            {
                if (iwAttributes15[i]->GetName() == _bstr_t(L"NUMBER"))
                    iwAttributes15[i]->put_Value( _bstr_t(L"D 02") );
            }
        }
    }
    {
        // AcDbHatch object modified
        iwObjectType_e type16;
        IHatchPtr hatch10 = pConnection->m_IwApp->GetActiveDocument()->GetObjectByHandle(L"30", &type16);
        {
            IHatchPatternPtr iwHatchPattern;
            iwHatchPattern = hatch10->GetHatchPattern();
            BSTR PatternName;
            double Angle;
            double Scale;
            iwHatchPatternType_e HatchPatternType;
            double Spacing;

            iwHatchPattern->GetHatchOrSolidData( &PatternName, &Angle, &Scale, &HatchPatternType, &Spacing );
            Scale = 2.00000000000000;
            PatternName = SysAllocString(L"BRICK");
            iwHatchPattern->SetHatchOrSolidData( PatternName, Angle, Scale, HatchPatternType, Spacing );

        }
    }
    {
        // AcDbTable object modified
        iwObjectType_e type17;
        ITablePtr table11 = pConnection->m_IwApp->GetActiveDocument()->GetObjectByHandle(L"31", &type17);
        {
            table11->InsertRow( 2, 0.50000000000000 );
            table11->SetText( 2, 0, L"Kitchen" );
            table11->SetText( 2, 0, L"Kitchen" );
            table11->SetRowHeightAt( 2, 0.50000000000000 );
        }
    }
    {
        // AcDbMText object modified
        iwObjectType_e type19;
        ILeaderPtr leader13 = pConnection->m_IwApp->GetActiveDocument()->GetObjectByHandle(L"33", &type19);
        INotePtr note12 = leader13->GetNoteAnnotation();
        {
            note12->put_Text( _bstr_t(L"see detail B") );
        }
    }
    INotePtr note14;
    {
        VARIANT strArray20;
        strArray20.vt = ( VT_ARRAY | VT_BSTR );
        strArray20.parray = SafeArrayCreateVector( VT_BSTR, 0, 1 );
        long rgIndices20;
        rgIndices20 = 0;
        BSTR str20;
        str20 = SysAllocString(L"Bath");
        SafeArrayPutElement( strArray20.parray, &rgIndices20, str20 );
        note14 = iwSketchManager->InsertNote( 1.00000000000000, 3.00000000000000, 0.00000000000000, 5.00000000000000, 2.75000000000000, 0.00000000000000, strArray20 );
        note14->put_Width( 4.00000000000000 );
        note14->put_TextStyle( _bstr_t(L"Room names") );
        {
            note14->put_Layer( _bstr_t(L"Walls existing") );
        }
    }
    iwObjectType_e type21;
    ICirclePtr circle15 = pConnection->m_IwApp->GetActiveDocument()->GetObjectByHandle(L"2C", &type21);
    {
        circle15->put_Radius( 0.75000000000000 );
    }
    {
        // AcDbRotatedDimension object modified
        iwObjectType_e type22;
        IRotatedDimensionPtr rotateddimension16 = pConnection->m_IwApp->GetActiveDocument()->GetObjectByHandle(L"2F", &type22);
        {
            IGeneralDimensionPtr generalDimension24 = rotateddimension16->GetGeneralDimension();
            generalDimension24->put_Erased( true );
        }
    }
    {
        ILayerManagerPtr iwLayerManager_2 = iwDoc->GetLayerManager();
        ILayerPtr layer17 = iwLayerManager_2->GetLayer( "Scrap" );
        ILayerManagerPtr iwLayerManager26 = iwDoc->GetLayerManager();
        BSTR layerName26;
        layer17->get_Name( &layerName26 );
        iwLayerManager26->RemoveLayer( layerName26 );
    }
