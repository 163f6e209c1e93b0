    iwLine_ptr iwline1;
    iwLine_ptr iwline2;
    {
        iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 120.00000000000000, 0.00000000000000, 0.00000000000000, &iwline1 );
        iwSketchManager->InsertLine( 120.00000000000000, 0.00000000000000, 0.00000000000000, 150.00000000000000, 60.00000000000000, 0.00000000000000, &iwline2 );
    }
    iwCircle_ptr iwcircle3;
    {
        iwSketchManager->InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000, &iwcircle3 );
    }
    iwCircleArc_ptr iwcirclearc4;
    {
        iwSketchManager->InsertArc( 90.00000000000000, 30.00000000000000, 0.00000000000000, 20.00000000000000, 0.00000000000000, 1.57079632679490, &iwcirclearc4 );
    }
    iwAlignedDimension_ptr iwaligneddimension5;
    {
        iwDoubleArray Coordinates1,Coordinates2,Coordinates3;
        Coordinates1.clear();Coordinates2.clear();Coordinates3.clear(); 
        Coordinates1.add(120.00000000000000);Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates2.add(150.00000000000000);Coordinates2.add(60.00000000000000);Coordinates2.add(0.00000000000000);
        Coordinates3.add(145.00000000000000);Coordinates3.add(25.00000000000000);Coordinates3.add(0.50000000000000);
        iwSketchManager->InsertAlignedDimension( Coordinates1, Coordinates2, Coordinates3, L"<> H7", &iwaligneddimension5 );
        iwGeneralDimension_ptr generalDimension1;
        iwaligneddimension5->GetGeneralDimension( &generalDimension1 );
        generalDimension1->put_TextRotation( 0.25000000000000 );
            iwGeneralDimension_ptr generalDimension2;
            iwaligneddimension5->GetGeneralDimension( &generalDimension2 );
        iwColor_ptr iwColor3;
        m_pIwApp->GetColorByIndex( 1, &iwColor3 );
        generalDimension2->put_Color( iwColor3 );
        generalDimension2->put_Layer( L"Dimensions" );
    }
    iwRotatedDimension_ptr iwrotateddimension6;
    {
        iwDoubleArray Coordinates1,Coordinates2,Coordinates3;
        Coordinates1.clear();Coordinates2.clear();Coordinates3.clear(); 
        Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates2.add(120.00000000000000);Coordinates2.add(0.00000000000000);Coordinates2.add(0.00000000000000);
        Coordinates3.add(60.00000000000000);Coordinates3.add(-15.00000000000000);Coordinates3.add(0.00000000000000);
        iwSketchManager->InsertRotatedDimension( Coordinates1, Coordinates2, Coordinates3, L"A\\B", 3.14159, &iwrotateddimension6 );
        {
            iwGeneralDimension_ptr generalDimension1;
            iwrotateddimension6->GetGeneralDimension( &generalDimension1 );
            generalDimension1->put_Layer( L"Dimensions" );
        }
    }
    iwOrdinateDimension_ptr iwordinatedimension7;
    {
        iwDoubleArray Coordinates1,Coordinates2;
        Coordinates1.clear();Coordinates2.clear(); 
        Coordinates1.add(30.00000000000000);Coordinates1.add(30.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates2.add(30.00000000000000);Coordinates2.add(80.00000000000000);Coordinates2.add(0.00000000000000);
        iwSketchManager->InsertOrdinateDimension( Coordinates1, Coordinates2, L"", iwOrdinateDimensionMeasure_UseXAxis, &iwordinatedimension7 );
        iwGeneralDimension_ptr generalDimension1;
        iwordinatedimension7->GetGeneralDimension( &generalDimension1 );
        generalDimension1->put_TextRotation( 1.50000000000000 );
        iwordinatedimension7->SetOriginPoint( 10.00000000000000, 5.00000000000000, 0.00000000000000 );
    }
    iwOrdinateDimension_ptr iwordinatedimension8;
    {
        iwDoubleArray Coordinates1,Coordinates2;
        Coordinates1.clear();Coordinates2.clear(); 
        Coordinates1.add(90.00000000000000);Coordinates1.add(30.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates2.add(160.00000000000000);Coordinates2.add(30.00000000000000);Coordinates2.add(0.00000000000000);
        iwSketchManager->InsertOrdinateDimension( Coordinates1, Coordinates2, L"", iwOrdinateDimensionMeasure_UseYAxis, &iwordinatedimension8 );
    }
    iwAngularDimension_ptr iwangulardimension9;
    {
        iwDoubleArray Coordinates1,Coordinates2,Coordinates3,Coordinates4;
        Coordinates1.clear();Coordinates2.clear();Coordinates3.clear();Coordinates4.clear(); 
        Coordinates1.add(90.1235);Coordinates1.add(30);Coordinates1.add(0);
        Coordinates2.add(110.00000000000000);Coordinates2.add(30.00000000000000);Coordinates2.add(0.00000000000000);
        Coordinates3.add(90.00000000000000);Coordinates3.add(50.00000000000000);Coordinates3.add(0.00000000000000);
        Coordinates4.add(105.00000000000000);Coordinates4.add(45.00000000000000);Coordinates4.add(0.00000000000000);
        iwSketchManager->InsertAngularDimension3Point( Coordinates1, Coordinates2, Coordinates3, Coordinates4, L"", &iwangulardimension9 );
    }
    iwAngularDimension_ptr iwangulardimension10;
    {
        {
            iwDoubleArray dimPositionPoint;
            dimPositionPoint.add(107.00000000000000); dimPositionPoint.add(47.00000000000000); dimPositionPoint.add(0.00000000000000);
            iwSketchManager->InsertAngularDimensionArc( iwcirclearc4, dimPositionPoint, L"", &iwangulardimension10 );
        }
    }
    iwAngularDimension_ptr iwangulardimension11;
    {
        iwCircleArc_ptr iwangulardimension11_associated_arc;
        iwSketchManager->InsertArc(200.00001250000000, 0.00000000000000, 0.00000000000000, 8.33333333330000, 0.10000000000000, 3.04159265358979, &iwangulardimension11_associated_arc);
        {
            iwDoubleArray dimPositionPoint;
            dimPositionPoint.add(200.00000000000000); dimPositionPoint.add(12.00000000000000); dimPositionPoint.add(0.00000000000000);
            iwSketchManager->InsertAngularDimensionArc( iwangulardimension11_associated_arc, dimPositionPoint, L"<>\\P(typ.)", &14 );
            iwangulardimension11_associated_arc->put_Erased(true);
        }
    }
    iwAngularDimension_ptr iwangulardimension12;
    {
        {
            iwDoubleArray dimPositionPoint;
            dimPositionPoint.add(100.00000000000000); dimPositionPoint.add(20.00000000000000); dimPositionPoint.add(0.00000000000000);
            iwSketchManager->InsertAngularDimension2Line(iwline1, iwline2, dimPositionPoint, L"<>", &iwangulardimension12);
        }
    }
    iwAngularDimension_ptr iwangulardimension13;
    {
        iwLine_ptr iwangulardimension13_associated_line2;
        iwSketchManager->InsertLine(0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 60.00000000000000, 0.00000000000000, &iwangulardimension13_associated_line2);
        {
            iwDoubleArray dimPositionPoint;
            dimPositionPoint.add(15.00000000000000); dimPositionPoint.add(15.00000000000000); dimPositionPoint.add(0.00000000000000);
            iwSketchManager->InsertAngularDimension2Line(iwline1, iwangulardimension13_associated_line2, dimPositionPoint, L"<>", &iwangulardimension13);
        }
        iwangulardimension13_associated_line2->put_Erased(true);
    }
    iwAngularDimension_ptr iwangulardimension14;
    {
        iwLine_ptr iwangulardimension14_associated_line1;
        iwSketchManager->InsertLine(1.00000000000000, 0.00000000000000, 0.00000000000000, 2.00000000000000, 0.00000000000000, 0.00000000000000, &iwangulardimension14_associated_line1);
        iwLine_ptr iwangulardimension14_associated_line2;
        iwSketchManager->InsertLine(1.00000000000000, 1.00000000000000, 0.00000000000000, 2.00000000000000, 3.00000000000000, 0.00000000000000, &iwangulardimension14_associated_line2);
        {
            iwDoubleArray dimPositionPoint;
            dimPositionPoint.add(5.00000000000000); dimPositionPoint.add(1.00000000000000); dimPositionPoint.add(0.00000000000000);
            iwSketchManager->InsertAngularDimension2Line(iwangulardimension14_associated_line1, iwangulardimension14_associated_line2, dimPositionPoint, L"<>", &iwangulardimension14);
        }
        iwangulardimension14_associated_line1->put_Erased(true);
        iwangulardimension14_associated_line2->put_Erased(true);
    }
    iwArcLengthDimension_ptr iwarclengthdimension15;
    {
        {
            iwDoubleArray firstPoint, secondPoint, dimensionPosition;
            firstPoint.add(110.00000000000000); firstPoint.add(30.00000000000000); firstPoint.add(0.00000000000000);
            secondPoint.add(90.00000000000000); secondPoint.add(50.00000000000000); secondPoint.add(0.00000000000000);
            dimensionPosition.add(110.00000000000000); dimensionPosition.add(55.00000000000000); dimensionPosition.add(0.00000000000000);
            iwSketchManager->InsertArcLengthDimensionPartial(iwcirclearc4, firstPoint, secondPoint, dimensionPosition, L"", &iwarclengthdimension15);
        }
    }
    iwArcLengthDimension_ptr iwarclengthdimension16;
    {
        iwCircleArc_ptr iwarclengthdimension16_associated_arc;
        iwSketchManager->InsertArc(200, 0, 0, 8.33333, 0.1, 3.04159, &iwarclengthdimension16_associated_arc);
        {
            iwDoubleArray firstPoint, secondPoint, dimensionPosition;
            firstPoint.add(110.00000000000000); firstPoint.add(30.00000000000000); firstPoint.add(0.00000000000000);
            secondPoint.add(90.00000000000000); secondPoint.add(50.00000000000000); secondPoint.add(0.00000000000000);
            dimensionPosition.add(110.00000000000000); dimensionPosition.add(55.00000000000000); dimensionPosition.add(0.00000000000000);
            iwSketchManager->InsertArcLengthDimensionPartial(iwarclengthdimension16_associated_arc, firstPoint, secondPoint, dimensionPosition, L"", &iwarclengthdimension16);
            iwarclengthdimension16_associated_arc->put_Erased(true);
        }
    }
    iwArcLengthDimension_ptr iwarclengthdimension17;
    {
        {
            iwDoubleArray dimensionPosition;
            dimensionPosition.add(110.00000000000000); dimensionPosition.add(55.00000000000000); dimensionPosition.add(0.00000000000000);
            iwSketchManager->InsertArcLengthDimension(iwcirclearc4, dimensionPosition, L"", &iwarclengthdimension17);
        }
    }
    iwArcLengthDimension_ptr iwarclengthdimension18;
    {
        iwCircleArc_ptr iwarclengthdimension18_associated_arc;
        iwSketchManager->InsertArc(1.00000000000000, 2.00000000000000, 3.00000000000000, 5.00000000000000, 0.25000000000000, 1.75000000000000, &iwarclengthdimension18_associated_arc);
        {
            iwDoubleArray dimensionPosition;
            dimensionPosition.add(110.00000000000000); dimensionPosition.add(55.00000000000000); dimensionPosition.add(0.00000000000000);
            iwSketchManager->InsertArcLengthDimension(iwarclengthdimension18_associated_arc, dimensionPosition, L"", &iwarclengthdimension18);
            iwarclengthdimension18_associated_arc->put_Erased(true);
        }
    }
    iwDiameterDimension_ptr iwdiameterdimension19;
    iwDiameterDimension_ptr iwdiameterdimension20;
    iwDiameterDimension_ptr iwdiameterdimension21;
    iwDiameterDimension_ptr iwdiameterdimension22;
    {
        {
            iwDoubleArray Coordinates1;
            Coordinates1.clear();

            Coordinates1.add(42.50000000000000);Coordinates1.add(30.00000000000000);Coordinates1.add(0.00000000000000);
            iwSketchManager->InsertDiameterDimensionCircle( iwcircle3, Coordinates1, L"<> H7", &iwdiameterdimension19 );
        }
        {
            iwDoubleArray Coordinates1;
            Coordinates1.clear();

            Coordinates1.add(3.00000000000000);Coordinates1.add(4.00000000000000);Coordinates1.add(0.00000000000000);
            iwCircle_ptr iwdiameterdimension20_associated_circle; iwSketchManager->InsertCircle( 0.00000000000000, 0.00000000000000, 0.00000000000000, 5.00000000000000 ,&iwdiameterdimension20_associated_circle );
            iwSketchManager->InsertDiameterDimensionCircle( iwdiameterdimension20_associated_circle, Coordinates1, L"" ,&iwdiameterdimension20 );
            iwdiameterdimension20_associated_circle->put_Erased(true);
        }
        {
            iwDoubleArray Coordinates1;
            Coordinates1.clear();

            Coordinates1.add(110.00000000000000);Coordinates1.add(30.00000000000000);Coordinates1.add(0.00000000000000);
            iwSketchManager->InsertDiameterDimensionArc( iwcirclearc4, Coordinates1, L"", &iwdiameterdimension21 );
        }
        {
            iwDoubleArray Coordinates1;
            Coordinates1.clear();

            Coordinates1.add(208.50000000000000);Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);
            iwCircleArc_ptr iwdiameterdimension22_associated_arc; iwSketchManager->InsertArc( 200.00001250000000, 0.00000000000000, 0.00000000000000, 8.33333333330000, 0.10000000000000, 3.04159265358979 ,&iwdiameterdimension22_associated_arc );
            iwSketchManager->InsertDiameterDimensionArc( iwdiameterdimension22_associated_arc, Coordinates1, L"", &iwdiameterdimension22 );
            iwdiameterdimension22_associated_arc->put_Erased(true);
        }
    }
    iwRadialDimension_ptr iwradialdimension23;
    iwRadialDimension_ptr iwradialdimension24;
    iwRadialDimension_ptr iwradialdimension25;
    iwRadialDimension_ptr iwradialdimension26;
    {
        {
            iwDoubleArray Coordinates1;
            Coordinates1.clear();

            Coordinates1.add(30.00000000000000);Coordinates1.add(42.50000000000000);Coordinates1.add(0.00000000000000);
            iwSketchManager->InsertRadialDimensionCircle( iwcircle3, Coordinates1, L"", &iwradialdimension23 );
        }
        {
            iwDoubleArray Coordinates1;
            Coordinates1.clear();

            Coordinates1.add(179.25000000000000);Coordinates1.add(30.00000000000000);Coordinates1.add(0.00000000000000);
            iwCircle_ptr iwradialdimension24_associated_circle; iwSketchManager->InsertCircle( 175.00000000000000, 30.00000000000000, 0.50000000000000, 4.25000000000000 ,&iwradialdimension24_associated_circle );
            iwSketchManager->InsertRadialDimensionCircle( iwradialdimension24_associated_circle, Coordinates1, L"R<>" ,&iwradialdimension24 );
            iwradialdimension24_associated_circle->put_Erased(true);
        }
        {
            iwDoubleArray Coordinates1;
            Coordinates1.clear();

            Coordinates1.add(90.00000000000000);Coordinates1.add(50.00000000000000);Coordinates1.add(0.00000000000000);
            iwSketchManager->InsertRadialDimensionArc( iwcirclearc4, Coordinates1, L"", &iwradialdimension25 );
        }
        {
            iwDoubleArray Coordinates1;
            Coordinates1.clear();

            Coordinates1.add(200.00000000000000);Coordinates1.add(8.30000000000000);Coordinates1.add(0.00000000000000);
            iwCircleArc_ptr iwradialdimension26_associated_arc; iwSketchManager->InsertArc( 200.00001250000000, 0.00000000000000, 0.00000000000000, 8.33333333330000, 0.10000000000000, 3.04159265358979 ,&iwradialdimension26_associated_arc );
            iwSketchManager->InsertRadialDimensionArc( iwradialdimension26_associated_arc, Coordinates1, L"", &iwradialdimension26 );
            iwradialdimension26_associated_arc->put_Erased(true);
        }
    }
    iwRadialDimension_ptr iwradialdimension28;
    {
        {
            iwDoubleArray Coordinates1;
            Coordinates1.clear();

            Coordinates1.add(7.00000000000000);Coordinates1.add(5.00000000000000);Coordinates1.add(0.00000000000000);
            iwCircle_ptr iwradialdimension28_associated_circle; iwSketchManager->InsertCircle( 5.00000000000000, 5.00000000000000, 0.00000000000000, 2.00000000000000 ,&iwradialdimension28_associated_circle );
            iwSketchManager->InsertRadialDimensionCircle( iwradialdimension28_associated_circle, Coordinates1, L"" ,&iwradialdimension28 );
            iwradialdimension28_associated_circle->put_Erased(true);
        }
    }
    iwJoggedDimension_ptr iwjoggeddimension29;
    {
        {
            iwDoubleArray Coordinates1,Coordinates2,Coordinates3;
            Coordinates1.clear();Coordinates2.clear();Coordinates3.clear();

            Coordinates1.add(10.00000000000000);Coordinates1.add(20.00000000000000);Coordinates1.add(0.00000000000000);
            Coordinates2.add(16.00000000000000);Coordinates2.add(26.00000000000000);Coordinates2.add(0.00000000000000);
            Coordinates3.add(17.50000000000000);Coordinates3.add(30.00000000000000);Coordinates3.add(0.00000000000000);
            iwSketchManager->InsertJoggedDimensionCircle( iwcircle3, Coordinates1, Coordinates2, Coordinates3, L"R<>", &iwjoggeddimension29 );
        }
    }
    iwJoggedDimension_ptr iwjoggeddimension30;
    {
        {
            iwDoubleArray Coordinates1,Coordinates2,Coordinates3;
            Coordinates1.clear();Coordinates2.clear();Coordinates3.clear();

            Coordinates1.add(10.00000000000000);Coordinates1.add(20.00000000000000);Coordinates1.add(0.00000000000000);
            Coordinates2.add(16.00000000000000);Coordinates2.add(26.00000000000000);Coordinates2.add(0.00000000000000);
            Coordinates3.add(17.50000000000000);Coordinates3.add(30.00000000000000);Coordinates3.add(0.00000000000000);
            iwCircle_ptr iwjoggeddimension30_associated_circle; iwSketchManager->InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000 ,&iwjoggeddimension30_associated_circle );
            iwSketchManager->InsertJoggedDimensionCircle( iwjoggeddimension30_associated_circle, Coordinates1, Coordinates2, Coordinates3, L"R<>" ,&iwjoggeddimension30 );
            iwjoggeddimension30_associated_circle->put_Erased(true);
        }
    }
    iwJoggedDimension_ptr iwjoggeddimension31;
    {
        {
            iwDoubleArray Coordinates1,Coordinates2,Coordinates3;
            Coordinates1.clear();Coordinates2.clear();Coordinates3.clear();

            Coordinates1.add(10.00000000000000);Coordinates1.add(20.00000000000000);Coordinates1.add(0.00000000000000);
            Coordinates2.add(16.00000000000000);Coordinates2.add(26.00000000000000);Coordinates2.add(0.00000000000000);
            Coordinates3.add(17.50000000000000);Coordinates3.add(30.00000000000000);Coordinates3.add(0.00000000000000);
            iwSketchManager->InsertJoggedDimensionArc( iwcirclearc4, Coordinates1, Coordinates2, Coordinates3, L"R<>", &iwjoggeddimension31 );
        }
    }
    iwJoggedDimension_ptr iwjoggeddimension32;
    {
        {
            iwDoubleArray Coordinates1,Coordinates2,Coordinates3;
            Coordinates1.clear();Coordinates2.clear();Coordinates3.clear();

            Coordinates1.add(10.00000000000000);Coordinates1.add(20.00000000000000);Coordinates1.add(0.00000000000000);
            Coordinates2.add(16.00000000000000);Coordinates2.add(26.00000000000000);Coordinates2.add(0.00000000000000);
            Coordinates3.add(17.50000000000000);Coordinates3.add(30.00000000000000);Coordinates3.add(0.00000000000000);
            iwCircleArc_ptr iwjoggeddimension32_associated_arc; iwSketchManager->InsertArc( 200.00001250000000, 0.00000000000000, 0.00000000000000, 8.33333333330000, 0.10000000000000, 3.04159265358979 ,&iwjoggeddimension32_associated_arc );
            iwSketchManager->InsertJoggedDimensionArc( iwjoggeddimension32_associated_arc, Coordinates1, Coordinates2, Coordinates3, L"R<>", &iwjoggeddimension32 );
            iwjoggeddimension32_associated_arc->put_Erased(true);
        }
    }
