#include "recording.h"
#include "iwAddinConnection.h"
#include "iwCommandMessage_c.h"
#include "iwApplicationOptions_c.h"
#include "iwSheet_c.h"
#include "math.h"

CMacroCommand::CMacroCommand( iwApplication_c *pApp, const iwString & name )
    : m_pIwApp( pApp )
    , m_name( name )
    , m_pCmd( NULL )
{
    iwCreateCommandError_e Error;
    m_pIwApp->CreateCommand( MacroApplication::appID, name, &Error, &m_pCmd );
    if ( Error )
    {
        return;
    }

    RegisterCommandExecuteNotifyHook( m_pCmd );
}

CMacroCommand::~CMacroCommand()
{
    if ( m_pCmd )
    {
        UnRegisterCommandExecuteNotifyHook( m_pCmd );
    }
}

ImplementCommandExecuteNotifyHook(CMacroCommand)

bool CMacroCommand::ExecuteNotify(void)
{
    iwDocument_ptr iwDoc;
    m_pIwApp->GetActiveDocument( &iwDoc );
    if ( !iwDoc )
    {
        return false;
    }

    iwModel_ptr iwModel;
    iwDoc->GetModel( &iwModel );
    if ( !iwModel )
    {
        return false;
    }

    iwSketchManager_ptr iwSketchManager;
    iwModel->GetSketchManager( &iwSketchManager );
    if ( !iwSketchManager )
    {
        return false;
    }

    iwObjectPtrArray iwSheetsArray;
    iwDoc->GetSheets( &iwSheetsArray );
    iwSheet_ptr iwSheet = (iwSheet_c *)iwSheetsArray[1];
    if ( !iwSheet )
    {
        return false;
    }

    iwViewManager_ptr iwViewManager;
    iwDoc->GetViewManager( &iwViewManager );
    if ( !iwViewManager )
    {
        return false;
    }

    iwLine_ptr iwline1;
    iwLine_ptr iwline2;
    iwLine_ptr iwline3;
    iwLine_ptr iwline4;
    {
        iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 20.00000000000000, 0.00000000000000, 0.00000000000000, &iwline1 );
        iwSketchManager->InsertLine( 20.00000000000000, 0.00000000000000, 0.00000000000000, 20.00000000000000, 12.00000000000000, 0.00000000000000, &iwline2 );
        iwSketchManager->InsertLine( 20.00000000000000, 12.00000000000000, 0.00000000000000, 0.00000000000000, 12.00000000000000, 0.00000000000000, &iwline3 );
        iwSketchManager->InsertLine( 0.00000000000000, 12.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, &iwline4 );
    }
    iwLine_ptr iwline5;
    iwLine_ptr iwline6;
    {
        iwSketchManager->InsertLine( 8.00000000000000, -3.00000000000000, 0.00000000000000, 8.00000000000000, 15.00000000000000, 0.00000000000000, &iwline5 );
        iwSketchManager->InsertLine( 14.00000000000000, -3.00000000000000, 0.00000000000000, 14.00000000000000, 15.00000000000000, 0.00000000000000, &iwline6 );
    }
    iwCircle_ptr iwcircle7;
    {
        iwSketchManager->InsertCircle( 8.00000000000000, 6.00000000000000, 0.00000000000000, 3.00000000000000, &iwcircle7 );
    }
    {
    }
    iwLine_ptr iwline8;
    iwLine_ptr iwline9;
    iwCircleArc_ptr iwcirclearc10;
    iwPolyLine_ptr iwpolyline11;
    iwPolyLine_ptr iwpolyline12;
    iwEllipseArc_ptr iwellipsearc13;
    iwEllipseArc_ptr iwellipsearc14;
    iwPolyLine3D_ptr iwpolyline3d15;
    iwPolyLine3D_ptr iwpolyline3d16;
    iwSpline_ptr iwspline17;
    iwRay_ptr iwray18;
    {
        iwObjectPtrArray CuttingEntitiesArray0;
        iwObjectPtrArray EntitiesToRemoveArray0;
        iwDoubleArray PointOnEntityDblArray0;
        CuttingEntitiesArray0.add(iwline5);
        CuttingEntitiesArray0.add(iwline6);

        EntitiesToRemoveArray0.add(iwline1);
        EntitiesToRemoveArray0.add(iwline3);
        EntitiesToRemoveArray0.add(iwcircle7);
        EntitiesToRemoveArray0.add();
        EntitiesToRemoveArray0.add();
        EntitiesToRemoveArray0.add();
        EntitiesToRemoveArray0.add();
        EntitiesToRemoveArray0.add();

        PointOnEntityDblArray0.add(11);
        PointOnEntityDblArray0.add(0);
        PointOnEntityDblArray0.add(0);
        PointOnEntityDblArray0.add(11.25);
        PointOnEntityDblArray0.add(12);
        PointOnEntityDblArray0.add(0);
        PointOnEntityDblArray0.add(11);
        PointOnEntityDblArray0.add(6);
        PointOnEntityDblArray0.add(0);
        PointOnEntityDblArray0.add(11);
        PointOnEntityDblArray0.add(20);
        PointOnEntityDblArray0.add(0);
        PointOnEntityDblArray0.add(11);
        PointOnEntityDblArray0.add(32);
        PointOnEntityDblArray0.add(0);
        PointOnEntityDblArray0.add(11);
        PointOnEntityDblArray0.add(40);
        PointOnEntityDblArray0.add(1);
        PointOnEntityDblArray0.add(11);
        PointOnEntityDblArray0.add(51);
        PointOnEntityDblArray0.add(0);
        PointOnEntityDblArray0.add(8);
        PointOnEntityDblArray0.add(51);
        PointOnEntityDblArray0.add(0);

        {
            iwSetCommandOptionResult_e result;
            iwDocument_c* iwDoc;
            m_pIwApp->GetActiveDocument(&iwDoc);
            iwDoc->SetCommandOptionInt16(iwCommandOptionInt16_EnblEdgeExtd, 0,&result);
        }
        iwSketchManager->TrimEntities(CuttingEntitiesArray0, EntitiesToRemoveArray0, PointOnEntityDblArray0);

        iwSelectionManager_ptr iwSelectionManager;
        iwDoc->GetSelectionManager( &iwSelectionManager );

        iwSelectionFilter_ptr iwSelectionFilter;
        iwSelectionManager->GetSelectionFilter( &iwSelectionFilter );
        iwSelectionFilter->put_Active( false );

        iwSelectionManager->ClearSelections(iwSelectionSetType_Current);
        iwSelectionManager->ClearSelections(iwSelectionSetType_Previous);

        double epsi = 0.1;
        iwMathUtility_ptr iwMathUtility;
        m_pIwApp->GetMathUtility( &iwMathUtility );
        double selPts[33];                //selection points
        double prop[66];                  //properties
        selPts[0] = 14;
        selPts[1] = 0;
        selPts[2] = 0;
        selPts[3] = 8;
        selPts[4] = 12;
        selPts[5] = 0;
        selPts[6] = 8;
        selPts[7] = 9;
        selPts[8] = 0;
        selPts[9] = 0;
        selPts[10] = 20;
        selPts[11] = 0;
        selPts[12] = 14;
        selPts[13] = 20;
        selPts[14] = 0;
        selPts[15] = 5;
        selPts[16] = 30;
        selPts[17] = 0;
        selPts[18] = 17;
        selPts[19] = 30;
        selPts[20] = 0;
        selPts[21] = 14;
        selPts[22] = 40;
        selPts[23] = 1;
        selPts[24] = 8;
        selPts[25] = 40;
        selPts[26] = 1;
        selPts[27] = 14;
        selPts[28] = 50;
        selPts[29] = 0;
        selPts[30] = 14;
        selPts[31] = 60;
        selPts[32] = 0;
        prop[0] = 14;
        prop[1] = 0;
        prop[2] = 0;
        prop[3] = 20;
        prop[4] = 0;
        prop[5] = 0;
        prop[6] = 8;
        prop[7] = 12;
        prop[8] = 0;
        prop[9] = 0;
        prop[10] = 12;
        prop[11] = 0;
        prop[12] = 8;
        prop[13] = 6;
        prop[14] = 0;
        prop[15] = 3;
        prop[16] = 1.5708;
        prop[17] = 4.71239;
        prop[18] = 0;
        prop[19] = 20;
        prop[20] = 0;
        prop[21] = 8;
        prop[22] = 20;
        prop[23] = 0;
        prop[24] = 14;
        prop[25] = 20;
        prop[26] = 0;
        prop[27] = 20;
        prop[28] = 20;
        prop[29] = 0;
        prop[30] = 11;
        prop[31] = 30;
        prop[32] = 0;
        prop[33] = 6;
        prop[34] = 2;
        prop[35] = 0;
        prop[36] = 11;
        prop[37] = 30;
        prop[38] = 0;
        prop[39] = 6;
        prop[40] = 2;
        prop[41] = 0;
        prop[42] = 14;
        prop[43] = 40;
        prop[44] = 1;
        prop[45] = 20;
        prop[46] = 40;
        prop[47] = 1;
        prop[48] = 0;
        prop[49] = 40;
        prop[50] = 1;
        prop[51] = 8;
        prop[52] = 40;
        prop[53] = 1;
        prop[54] = 14;
        prop[55] = 50;
        prop[56] = 0;
        prop[57] = 16;
        prop[58] = 52;
        prop[59] = 0;
        prop[60] = 14;
        prop[61] = 60;
        prop[62] = 0;
        prop[63] = 15;
        prop[64] = 61.5;
        prop[65] = 0;
        iwpolyline3d15 = NULL;
        iwpolyline3d16 = NULL;
        iwcirclearc10 = NULL;
        iwellipsearc13 = NULL;
        iwellipsearc14 = NULL;
        iwline8 = NULL;
        iwline9 = NULL;
        iwpolyline11 = NULL;
        iwpolyline12 = NULL;
        iwray18 = NULL;
        iwspline17 = NULL;
        for (int iNewEnt = 0; iNewEnt < 11; iNewEnt++)
        {
            iwMathPoint_ptr firstPoint;
            iwMathUtility->CreatePoint(selPts[iNewEnt*3] + epsi, selPts[iNewEnt*3 + 1] + epsi, selPts[iNewEnt*3 + 2], &firstPoint);
            iwMathPoint_ptr secondPoint;
            iwMathUtility->CreatePoint(selPts[iNewEnt*3] - epsi, selPts[iNewEnt*3 + 1] - epsi, selPts[iNewEnt*3 + 2], &secondPoint);

            iwSelectionManager->SelectByWindow(firstPoint, secondPoint, true);

            long count = 0;
            iwSelectionManager->GetSelectedObjectCount(iwSelectionSetType_Previous, &count);

            for (int i = 0; i < count; i++)
            {
                iwObjectType_e retObjType;
                iwObject_c* obj = NULL;
                iwSelectionManager->GetSelectedObject(iwSelectionSetType_Previous, i, &retObjType, &obj);
                if (retObjType == iwPolyLine3DType)
        {
            iwPolyLine3D_c* polyline3d = (iwPolyLine3D_c*)obj;
            double firstX, firstY, firstZ, secondX, secondY, secondZ;
            bool bRetVal = false;
            polyline3d->GetVertexCoordinate(0, &firstX, &firstY, &firstZ, &bRetVal);
            polyline3d->GetVertexCoordinate(1, &secondX, &secondY, &secondZ, &bRetVal);
            if (fabs(firstX - prop[iNewEnt*6]) < epsi &&
                fabs(firstY - prop[iNewEnt*6 + 1]) < epsi &&
                fabs(firstZ - prop[iNewEnt*6 + 2]) < epsi &&
                fabs(secondX - prop[iNewEnt*6 + 3]) < epsi &&
                fabs(secondY - prop[iNewEnt*6 + 4]) < epsi &&
                fabs(secondZ - prop[iNewEnt*6 + 5]) < epsi )
            {
        if (iNewEnt == 7)
            iwpolyline3d15 = polyline3d;
        if (iNewEnt == 8)
            iwpolyline3d16 = polyline3d;
                break;
            }
        }
        else if (retObjType == iwCircleArcType)
        {
            iwCircleArc_c* circlearc = (iwCircleArc_c*)obj;
            double centerX, centerY, centerZ, radius, startAngle, endAngle;
            circlearc->GetCenter(&centerX, &centerY, &centerZ);
            circlearc->get_Radius( &radius );
            circlearc->get_StartAngle( &startAngle );
            circlearc->get_EndAngle( &endAngle );
            if (fabs(centerX - prop[iNewEnt*6]) < epsi &&
                fabs(centerY - prop[iNewEnt*6 + 1]) < epsi &&
                fabs(centerZ - prop[iNewEnt*6 + 2]) < epsi &&
                fabs(radius - prop[iNewEnt*6 + 3]) < epsi &&
                fabs(startAngle - prop[iNewEnt*6 + 4]) < epsi &&
                fabs(endAngle - prop[iNewEnt*6 + 5]) < epsi )
            {
        if (iNewEnt == 2)
            iwcirclearc10 = circlearc;
                break;
            }
        }
        else if (retObjType == iwEllipseArcType)
        {
            iwEllipseArc_c* ellipsearc = (iwEllipseArc_c*)obj;
            double centerX, centerY, centerZ, majorRadius, minorRadius;
            ellipsearc->GetCenter(&centerX, &centerY, &centerZ);
            ellipsearc->get_MajorRadius( &majorRadius );
            ellipsearc->get_MinorRadius( &minorRadius );
            if (fabs(centerX - prop[iNewEnt*6]) < epsi &&
                fabs(centerY - prop[iNewEnt*6 + 1]) < epsi &&
                fabs(centerZ - prop[iNewEnt*6 + 2]) < epsi &&
                fabs(majorRadius - prop[iNewEnt*6 + 3]) < epsi &&
                fabs(minorRadius - prop[iNewEnt*6 + 4]) < epsi )
            {
        if (iNewEnt == 5)
            iwellipsearc13 = ellipsearc;
        if (iNewEnt == 6)
            iwellipsearc14 = ellipsearc;
                break;
            }
        }
        else if (retObjType == iwLineType)
        {
            iwLine_c* line = (iwLine_c*)obj;
            double firstX, firstY, firstZ, secondX, secondY, secondZ;
            line->GetFirstPoint(&firstX, &firstY, &firstZ);
            line->GetSecondPoint(&secondX, &secondY, &secondZ);
            if (fabs(firstX - prop[iNewEnt*6]) < epsi &&
                fabs(firstY - prop[iNewEnt*6 + 1]) < epsi &&
                fabs(firstZ - prop[iNewEnt*6 + 2]) < epsi &&
                fabs(secondX - prop[iNewEnt*6 + 3]) < epsi &&
                fabs(secondY - prop[iNewEnt*6 + 4]) < epsi &&
                fabs(secondZ - prop[iNewEnt*6 + 5]) < epsi )
            {
        if (iNewEnt == 0)
            iwline8 = line;
        if (iNewEnt == 1)
            iwline9 = line;
                break;
            }
        }
        else if (retObjType == iwPolyLineType)
        {
            iwPolyLine_c* polyline = (iwPolyLine_c*)obj;
            double firstX, firstY, secondX, secondY;
            polyline->GetVertexCoordinate(0, &firstX, &firstY);
            polyline->GetVertexCoordinate(1, &secondX, &secondY);
            if (fabs(firstX - prop[iNewEnt*6]) < epsi &&
                fabs(firstY - prop[iNewEnt*6 + 1]) < epsi &&
                fabs(secondX - prop[iNewEnt*6 + 3]) < epsi &&
                fabs(secondY - prop[iNewEnt*6 + 4]) < epsi )
            {
        if (iNewEnt == 3)
            iwpolyline11 = polyline;
        if (iNewEnt == 4)
            iwpolyline12 = polyline;
                break;
            }
        }
        else if (retObjType == iwRayType)
        {
            iwRay_c* ray = (iwRay_c*)obj;
            double baseX, baseY, baseZ, throughX, throughY, throughZ;
            ray->GetBasePoint(&baseX, &baseY, &baseZ);
            ray->GetThroughPoint(&throughX, &throughY, &throughZ);
            if (fabs(baseX - prop[iNewEnt*6]) < epsi &&
                fabs(baseY - prop[iNewEnt*6 + 1]) < epsi &&
                fabs(baseZ - prop[iNewEnt*6 + 2]) < epsi &&
                fabs(throughX - prop[iNewEnt*6 + 3]) < epsi &&
                fabs(throughY - prop[iNewEnt*6 + 4]) < epsi &&
                fabs(throughZ - prop[iNewEnt*6 + 5]) < epsi )
            {
        if (iNewEnt == 10)
            iwray18 = ray;
                break;
            }
        }
        else if (retObjType == iwSplineType)
        {
            iwSpline_c* spline = (iwSpline_c*)obj;
            double firstX, firstY, firstZ, secondX, secondY, secondZ;
            bool bRetVal = false;
            spline->GetControlPointCoordinate(0, &firstX, &firstY, &firstZ, &bRetVal);
            spline->GetControlPointCoordinate(1, &secondX, &secondY, &secondZ, &bRetVal);
            if (fabs(firstX - prop[iNewEnt*6]) < epsi &&
                fabs(firstY - prop[iNewEnt*6 + 1]) < epsi &&
                fabs(firstZ - prop[iNewEnt*6 + 2]) < epsi &&
                fabs(secondX - prop[iNewEnt*6 + 3]) < epsi &&
                fabs(secondY - prop[iNewEnt*6 + 4]) < epsi &&
                fabs(secondZ - prop[iNewEnt*6 + 5]) < epsi )
            {
        if (iNewEnt == 9)
            iwspline17 = spline;
                break;
            }
        }

            }
            iwSelectionManager->ClearSelections(iwSelectionSetType_Previous);
        }

    }
    {
        // AcDbLine object modified
        {
            iwline8->put_Layer( L"Walls" );
        }
        // AcDbArc object modified
        {
            iwcirclearc10->put_Layer( L"Walls" );
        }
        // AcDbPolyline object modified
        {
            iwpolyline12->put_Layer( L"Walls" );
        }
    }
    {
        // AcDbEllipse object modified
        {
            iwellipsearc14->put_Layer( L"Axes" );
        }
        // AcDb3dPolyline object modified
        {
            iwpolyline3d15->put_Layer( L"Axes" );
        }
    }
    {
        iwline9->put_Erased( true );
    }
    {
        iwObjectPtrArray BoundaryEntitiesArray0;
        iwObjectPtrArray EntitiesToExtendArray0;
        iwDoubleArray PointOnEntityDblArray0;
        BoundaryEntitiesArray0.add(iwline6);

        EntitiesToExtendArray0.add(iwline1);
        EntitiesToExtendArray0.add(iwcirclearc10);

        PointOnEntityDblArray0.add(7.5);
        PointOnEntityDblArray0.add(0);
        PointOnEntityDblArray0.add(0);
        PointOnEntityDblArray0.add(8);
        PointOnEntityDblArray0.add(3);
        PointOnEntityDblArray0.add(0);

        {
            iwSetCommandOptionResult_e result;
            iwDocument_c* iwDoc;
            m_pIwApp->GetActiveDocument(&iwDoc);
            iwDoc->SetCommandOptionInt16(iwCommandOptionInt16_EnblEdgeExtd, 0,&result);
        }
        iwSketchManager->ExtendEntities(BoundaryEntitiesArray0, EntitiesToExtendArray0, PointOnEntityDblArray0);
    }
    {
        iwObjectPtrArray CuttingEntitiesArray0;
        iwObjectPtrArray EntitiesToRemoveArray0;
        iwDoubleArray PointOnEntityDblArray0;
        CuttingEntitiesArray0.add(iwline2);

        EntitiesToRemoveArray0.add(iwline5);

        PointOnEntityDblArray0.add(8);
        PointOnEntityDblArray0.add(14.5);
        PointOnEntityDblArray0.add(0);

        {
            iwSetCommandOptionResult_e result;
            iwDocument_c* iwDoc;
            m_pIwApp->GetActiveDocument(&iwDoc);
            iwDoc->SetCommandOptionInt16(iwCommandOptionInt16_EnblEdgeExtd, 0,&result);
        }
        iwSketchManager->TrimEntities(CuttingEntitiesArray0, EntitiesToRemoveArray0, PointOnEntityDblArray0);
    }
    {
        iwObjectPtrArray firstEntityArray0;
        iwObjectPtrArray secondEntityArray0;
        iwDoubleArray firstPointOnEntityDblArray0;
        iwDoubleArray secondPointOnEntityDblArray0;
        firstEntityArray0.add(iwline2);

        secondEntityArray0.add(iwline3);

        firstPointOnEntityDblArray0.add(20);
        firstPointOnEntityDblArray0.add(10);
        firstPointOnEntityDblArray0.add(0);

        secondPointOnEntityDblArray0.add(18);
        secondPointOnEntityDblArray0.add(12);
        secondPointOnEntityDblArray0.add(0);

        {
            iwSetCommandOptionResult_e result;
            iwDocument_c* iwDoc;
            m_pIwApp->GetActiveDocument(&iwDoc);
            iwDoc->SetCommandOptionDouble(iwCommandOptionDouble_SetFltRad, 2.5,&result);
        }
        iwSketchManager->FilletEntities(firstPointOnEntityDblArray0, firstEntityArray0, secondPointOnEntityDblArray0, secondEntityArray0);
    }
    {
        iwObjectPtrArray firstEntityArray1;
        iwObjectPtrArray secondEntityArray1;
        iwDoubleArray firstPointOnEntityDblArray1;
        iwDoubleArray secondPointOnEntityDblArray1;
        firstEntityArray1.add(iwcirclearc10);

        secondEntityArray1.add(iwpolyline12);

        firstPointOnEntityDblArray1.add(5);
        firstPointOnEntityDblArray1.add(6);
        firstPointOnEntityDblArray1.add(0);

        secondPointOnEntityDblArray1.add(15.5);
        secondPointOnEntityDblArray1.add(20);
        secondPointOnEntityDblArray1.add(0);

        {
            iwSetCommandOptionResult_e result;
            iwDocument_c* iwDoc;
            m_pIwApp->GetActiveDocument(&iwDoc);
            iwDoc->SetCommandOptionDouble(iwCommandOptionDouble_SetFltRad, 2.5,&result);
        }
        iwSketchManager->FilletEntities(firstPointOnEntityDblArray1, firstEntityArray1, secondPointOnEntityDblArray1, secondEntityArray1);
    }
    {
        iwObjectPtrArray firstEntityArray0;
        iwObjectPtrArray secondEntityArray0;
        iwDoubleArray firstPointOnEntityDblArray0;
        iwDoubleArray secondPointOnEntityDblArray0;
        firstEntityArray0.add(iwline4);

        secondEntityArray0.add(iwline1);

        firstPointOnEntityDblArray0.add(0);
        firstPointOnEntityDblArray0.add(1.25);
        firstPointOnEntityDblArray0.add(0);

        secondPointOnEntityDblArray0.add(1.5);
        secondPointOnEntityDblArray0.add(0);
        secondPointOnEntityDblArray0.add(0);

        {
            iwSetCommandOptionResult_e result;
            iwDocument_c* iwDoc;
            m_pIwApp->GetActiveDocument(&iwDoc);
            iwDoc->SetCommandOptionDouble(iwCommandOptionDouble_SetChmfDst1, 1.5,&result);
        }
        {
            iwSetCommandOptionResult_e result;
            iwDocument_c* iwDoc;
            m_pIwApp->GetActiveDocument(&iwDoc);
            iwDoc->SetCommandOptionDouble(iwCommandOptionDouble_SetChmfDst2, 2,&result);
        }
        {
            iwSetCommandOptionResult_e result;
            iwDocument_c* iwDoc;
            m_pIwApp->GetActiveDocument(&iwDoc);
            iwDoc->SetCommandOptionDouble(iwCommandOptionDouble_SetChmfLen, 3,&result);
        }
        {
            iwSetCommandOptionResult_e result;
            iwDocument_c* iwDoc;
            m_pIwApp->GetActiveDocument(&iwDoc);
            iwDoc->SetCommandOptionDouble(iwCommandOptionDouble_SetChmfAng, 0.785398,&result);
        }
        {
            iwSetCommandOptionResult_e result;
            iwDocument_c* iwDoc;
            m_pIwApp->GetActiveDocument(&iwDoc);
            iwDoc->SetCommandOptionInt16(iwCommandOptionInt16_EnblChmfAng, 1,&result);
        }
        {
            iwSetCommandOptionResult_e result;
            iwDocument_c* iwDoc;
            m_pIwApp->GetActiveDocument(&iwDoc);
            iwDoc->SetCommandOptionInt16(iwCommandOptionInt16_EnblFltTrm, 0,&result);
        }
        iwSketchManager->ChamferEntities(firstPointOnEntityDblArray0, firstEntityArray0, secondPointOnEntityDblArray0, secondEntityArray0);
    }
    return true;
}

const iwString &CMacroCommand::GetName() const
{
    return m_name;
}
