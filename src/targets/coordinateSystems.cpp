// Coordinate systems of the user.

#include "targets/coordinateSystems.h"

#include "statements/arrays.h"
#include "statements/wording.h"

using namespace inkmacro;

// Each statement fetches the manager anew. N is the marker of the number that keeps the locals apart.
#define INKMACRO_MANAGER_CPP(N)                                                                                        \
    "%1iwCustomCoordinateSystemManager_ptr iwCCSManager" N ";%2"                                                       \
    "%1iwDoc->GetCustomCoordinateSystemManager( &iwCCSManager" N " );%2"
#define INKMACRO_MANAGER_COM(N)                                                                                        \
    "%1ICustomCoordinateSystemManagerPtr iwCCSManager" N ";%2"                                                         \
    "%1iwCCSManager" N " = iwDoc->GetCustomCoordinateSystemManager();%2"
#define INKMACRO_MANAGER_CSHARP(N)                                                                                     \
    "%1CustomCoordinateSystemManager iwCustomCoordinateSystemMgr" N " = null;%2"                                       \
    "%1iwCustomCoordinateSystemMgr" N " = iwDoc.GetCustomCoordinateSystemManager();%2"
#define INKMACRO_MANAGER_SCRIPT(N)                                                                                     \
    "%1var iwCustomCoordinateSystemMgr" N " = null;%2"                                                                 \
    "%1iwCustomCoordinateSystemMgr" N " = mDoc.GetCustomCoordinateSystemManager();%2"
#define INKMACRO_MANAGER_VBNET(N)                                                                                      \
    "%1Dim iwCustomCoordinateSystemMgr" N " As Inkwright.CustomCoordinateSystemManager = Nothing%2"                    \
    "%1iwCustomCoordinateSystemMgr" N " = iwDoc.GetCustomCoordinateSystemManager()%2"
#define INKMACRO_MANAGER_VBA(N)                                                                                        \
    "%1Dim iwCustomCoordinateSystemMgr" N " As Inkwright.CustomCoordinateSystemManager%2"                              \
    "%1Set iwCustomCoordinateSystemMgr" N " = iwDoc.GetCustomCoordinateSystemManager()%2"

// What is done when there is a manager.
#define INKMACRO_IF_CPP(N, STATEMENTS) "%1if ( NULL != iwCCSManager" N " )%2%1{%2" STATEMENTS "%1}%2"
#define INKMACRO_IF_SCRIPT(N, STATEMENTS) "%1if ( null != iwCustomCoordinateSystemMgr" N " )%2%1{%2" STATEMENTS "%1}%2"
#define INKMACRO_IF_VBNET(N, STATEMENTS)                                                                               \
    "%1If iwCustomCoordinateSystemMgr" N " IsNot Nothing Then%2" STATEMENTS "%1End If%2"
#define INKMACRO_IF_VBA(N, STATEMENTS)                                                                                 \
    "%1If Not iwCustomCoordinateSystemMgr" N " Is Nothing Then%2" STATEMENTS "%1End If%2"

// A call of the manager without a result. WIDE, NARROW and BARE are its arguments in C++, in the others and in VBA.
#define INKMACRO_CALL_MANAGER(N, OPERATION, WIDE, NARROW, BARE)                                                        \
    {                                                                                                                  \
        .cpp = INKMACRO_MANAGER_CPP(N) INKMACRO_IF_CPP(N, "%1    iwCCSManager" N "->" OPERATION "(" WIDE ");%2"),      \
        .cppCom = INKMACRO_MANAGER_COM(N) INKMACRO_IF_CPP(N, "%1    iwCCSManager" N "->" OPERATION "(" WIDE ");%2"),   \
        .csharp = INKMACRO_MANAGER_CSHARP(N)                                                                           \
            INKMACRO_IF_SCRIPT(N, "%1    iwCustomCoordinateSystemMgr" N "." OPERATION "(" NARROW ");%2"),              \
        .javascript = INKMACRO_MANAGER_SCRIPT(N)                                                                       \
            INKMACRO_IF_SCRIPT(N, "%1    iwCustomCoordinateSystemMgr" N "." OPERATION "(" NARROW ");%2"),              \
        .vbNet = INKMACRO_MANAGER_VBNET(N)                                                                             \
            INKMACRO_IF_VBNET(N, "%1    iwCustomCoordinateSystemMgr" N "." OPERATION "(" NARROW ")%2"),                \
        .vba =                                                                                                         \
            INKMACRO_MANAGER_VBA(N) INKMACRO_IF_VBA(N, "%1    iwCustomCoordinateSystemMgr" N "." OPERATION BARE "%2"), \
    }

// A system of the manager is fetched into LOCAL and made the active one. NULL_WORD and NOTHING are what the local
// begins with, OUT, ARGUMENT and SCRIPT the arguments in C++, in the others and in pages.
#define INKMACRO_ACTIVATE_SYSTEM(N, LOCAL, NULL_WORD, NOTHING, OPERATION, OUT, ARGUMENT, SCRIPT)                       \
    {                                                                                                                  \
        .cpp = INKMACRO_MANAGER_CPP(N) "%1iwCustomCoordinateSystem_ptr " LOCAL N ";%2" INKMACRO_IF_CPP(                \
            N, "%1    iwCCSManager" N "->" OPERATION "( " OUT " );%2%1    " LOCAL N "->Activate();%2"),                \
        .cppCom =                                                                                                      \
            INKMACRO_MANAGER_COM(N) "%1ICustomCoordinateSystemPtr " LOCAL N                                            \
                                    ";%2" INKMACRO_IF_CPP(N, "%1    " LOCAL N " = iwCCSManager" N "->" OPERATION       \
                                                             "(" ARGUMENT ");%2%1    " LOCAL N "->Activate();%2"),     \
        .csharp = INKMACRO_MANAGER_CSHARP(N) "%1CustomCoordinateSystem " LOCAL N NULL_WORD ";%2" INKMACRO_IF_SCRIPT(   \
            N, "%1    " LOCAL N " = iwCustomCoordinateSystemMgr" N "." OPERATION "(" ARGUMENT ");%2%1    " LOCAL N     \
               ".Activate();%2"),                                                                                      \
        .javascript = INKMACRO_MANAGER_SCRIPT(N) "%1var " LOCAL N NULL_WORD ";%2" INKMACRO_IF_SCRIPT(                  \
            N, "%1    " LOCAL N " = iwCustomCoordinateSystemMgr" N "." OPERATION "(" SCRIPT ");%2%1    " LOCAL N       \
               ".Activate();%2"),                                                                                      \
        .vbNet =                                                                                                       \
            INKMACRO_MANAGER_VBNET(N) "%1Dim " LOCAL N " As Inkwright.CustomCoordinateSystem" NOTHING                  \
                                      "%2" INKMACRO_IF_VBNET(N, "%1    " LOCAL N " = iwCustomCoordinateSystemMgr" N    \
                                                                "." OPERATION "(" ARGUMENT ")%2%1    " LOCAL N         \
                                                                ".Activate()%2"),                                      \
        .vba = INKMACRO_MANAGER_VBA(N) "%1Dim " LOCAL N " As Inkwright.CustomCoordinateSystem%2" INKMACRO_IF_VBA(      \
            N, "%1    Set " LOCAL N " = iwCustomCoordinateSystemMgr" N "." OPERATION "(" ARGUMENT ")%2%1    " LOCAL N  \
               ".Activate%2"),                                                                                         \
    }

static const Phrase saveSystem{
    "EmitSaveCoordinateSystem",
    {
        .cpp =
            INKMACRO_MANAGER_CPP("%4") "%1iwCustomCoordinateSystem_ptr iwCustomCoordinateSystem%4;%2" INKMACRO_IF_CPP(
                "%4", "%1    iwCCSManager%4->SaveActiveViewAs( L\"%3\", &iwCustomCoordinateSystem%4 );%2"),
        .cppCom =
            INKMACRO_MANAGER_COM("%4") "%1ICustomCoordinateSystemPtr iwCustomCoordinateSystem%4;%2" INKMACRO_IF_CPP(
                "%4", "%1    iwCCSManager%4->SaveActiveViewAs( L\"%3\", &iwCustomCoordinateSystem%4 );%2"),
        .csharp =
            INKMACRO_MANAGER_CSHARP("%4") "%1CustomCoordinateSystem iwCustomCoordinateSystem%4 = null;%2" INKMACRO_IF_SCRIPT(
                "%4", "%1    iwCustomCoordinateSystemMgr%4.SaveActiveViewAs( \"%3\", out "
                      "iwCustomCoordinateSystem%4 );%2"),
        .javascript = INKMACRO_MANAGER_SCRIPT("%4") "%1var iwCustomCoordinateSystem%4 = null;%2" INKMACRO_IF_SCRIPT(
            "%4", "%1    iwCustomCoordinateSystem%4 = "
                  "iwCustomCoordinateSystemMgr%4.SaveActiveViewAs( \"%3\" );%2"),
        .vbNet =
            INKMACRO_MANAGER_VBNET("%4") "%1Dim iwCustomCoordinateSystem%4 As Inkwright.CustomCoordinateSystem = Nothing%2" INKMACRO_IF_VBNET(
                "%4", "%1    iwCustomCoordinateSystemMgr%4.SaveActiveViewAs( \"%3\", "
                      "iwCustomCoordinateSystem%4 )%2"),
        .vba =
            INKMACRO_MANAGER_VBA("%4") "%1Dim iwCustomCoordinateSystem%4 As Inkwright.CustomCoordinateSystem%2" INKMACRO_IF_VBA(
                "%4", "%1    iwCustomCoordinateSystemMgr%4.SaveActiveViewAs \"%3\", "
                      "iwCustomCoordinateSystem%4%2"),
    }};

Statement EmitSaveCoordinateSystem(Writer& writer, const CFxString& name)
{
    return writer.fill(saveSystem).text(name).number(++writer.UniqueCounter);
}

/// The manager is not asked for here, and a name that it does not know stops the macro.
static const Phrase restoreSystem{
    "EmitRestoreCoordinateSystem",
    {
        .cpp = INKMACRO_MANAGER_CPP(
            "%4") "%1iwCustomCoordinateSystem_ptr iwCustomCoordinateSystem%4;%2"
                  "%1iwCCSManager%4->GetNamedCustomCoordinateSystem( L\"%3\", &iwCustomCoordinateSystem%4);%2"
                  "%1iwCustomCoordinateSystem%4->Activate();%2",
        .cppCom = INKMACRO_MANAGER_COM(
            "%4") "%1ICustomCoordinateSystemPtr iwCustomCoordinateSystem%4;%2"
                  "%1iwCustomCoordinateSystem%4 = iwCCSManager%4->GetNamedCustomCoordinateSystem( L\"%3\");%2"
                  "%1iwCustomCoordinateSystem%4->Activate();%2",
        .csharp = INKMACRO_MANAGER_CSHARP(
            "%4") "%1CustomCoordinateSystem iwCustomCoordinateSystem%4;%2"
                  "%1iwCustomCoordinateSystem%4 = iwCustomCoordinateSystemMgr%4.GetNamedCustomCoordinateSystem( \"%3\");%2"
                  "%1iwCustomCoordinateSystem%4.Activate();%2",
        .javascript = INKMACRO_MANAGER_SCRIPT(
            "%4") "%1var iwCustomCoordinateSystem%4;%2"
                  "%1iwCustomCoordinateSystem%4 = iwCustomCoordinateSystemMgr%4.GetNamedCustomCoordinateSystem( \"%3\");%2"
                  "%1iwCustomCoordinateSystem%4.Activate();%2",
        .vbNet = INKMACRO_MANAGER_VBNET(
            "%4") "%1Dim iwCustomCoordinateSystem%4 As Inkwright.CustomCoordinateSystem%2"
                  "%1iwCustomCoordinateSystem%4 = iwCustomCoordinateSystemMgr%4.GetNamedCustomCoordinateSystem( \"%3\")%2"
                  "%1iwCustomCoordinateSystem%4.Activate()%2",
        .vba = INKMACRO_MANAGER_VBA(
            "%4") "%1Dim iwCustomCoordinateSystem%4 As Inkwright.CustomCoordinateSystem%2"
                  "%1Set iwCustomCoordinateSystem%4 = iwCustomCoordinateSystemMgr%4.GetNamedCustomCoordinateSystem( "
                  "\"%3\")%2%1iwCustomCoordinateSystem%4.Activate%2",
    }};

Statement EmitRestoreCoordinateSystem(Writer& writer, const CFxString& name)
{
    return writer.fill(restoreSystem).text(name).number(++writer.UniqueCounter);
}

static const Phrase removeSystem{
    "EmitRemoveCoordinateSystem",
    INKMACRO_CALL_MANAGER("%4", "RemoveCustomCoordinateSystem", " L\"%3\" ", " \"%3\" ", " \"%3\"")};

Statement EmitRemoveCoordinateSystem(Writer& writer, const CFxString& name)
{
    return writer.fill(removeSystem).text(name).number(++writer.UniqueCounter);
}

static const Phrase previousSystem{"EmitPreviousCoordinateSystem",
                                   INKMACRO_ACTIVATE_SYSTEM("%3", "iwPreviousCCS", "", "",
                                                            "GetPreviousCustomCoordinateSystem", "&iwPreviousCCS%3", "",
                                                            "")};

Statement EmitPreviousCoordinateSystem(Writer& writer)
{
    return writer.fill(previousSystem).number(++writer.UniqueCounter);
}

static const Phrase worldSystem{
    "EmitWorldCoordinateSystem",
    INKMACRO_ACTIVATE_SYSTEM("%3", "iwWorldCCS", "", "", "GetWorldCustomCoordinateSystem", "&iwWorldCCS%3", "", "")};

Statement EmitWorldCoordinateSystem(Writer& writer)
{
    return writer.fill(worldSystem).number(++writer.UniqueCounter);
}

static const Phrase defaultSystem{"EmitDefaultCoordinateSystem",
                                  INKMACRO_ACTIVATE_SYSTEM("%4", "iwCustomCoordinateSystem", " = null", " = Nothing",
                                                           "GetDefaultCustomCoordinateSystem",
                                                           "%3, &iwCustomCoordinateSystem%4", " %3 ", " \"%3\" ")};

Statement EmitDefaultCoordinateSystem(Writer& writer, const CFxString& enumerator)
{
    return writer.fill(defaultSystem)
        .text(enumeratorText(writer.target, "iwDefaultCustomCoordinateSystem_e", enumerator))
        .number(++writer.UniqueCounter);
}

static const Phrase alignToView{"EmitViewCoordinateSystem",
                                INKMACRO_CALL_MANAGER("%3", "AlignActiveCustomCoordinateSystemByView", "", "", "")};

Statement EmitViewCoordinateSystem(Writer& writer)
{
    return writer.fill(alignToView).number(++writer.UniqueCounter);
}

static const Phrase setOrigin{"EmitCoordinateSystemOrigin",
                              INKMACRO_CALL_MANAGER("%3", "SetActiveCustomCoordinateSystemOrigin", " %4, %5, %6  ",
                                                    " %4, %5, %6  ", " %4, %5, %6")};

Statement EmitCoordinateSystemOrigin(Writer& writer, const OdGePoint3d& origin)
{
    return writer.fill(setOrigin).number(++writer.UniqueCounter).shortPoint(origin);
}

/// In C++ y is written twice and z never. It has to stay so.
static const Phrase alignToEntity{
    "EmitAlignCoordinateSystemToEntity",
    {
        .cpp = INKMACRO_MANAGER_CPP("%3") INKMACRO_IF_CPP(
            "%3", "%1    iwDoubleArray pointOnEntity%3;%2"
                  "%1    pointOnEntity%3.add(%5);pointOnEntity%3.add(%6);pointOnEntity%3.add(%6);%2"
                  "%1    iwCCSManager%3->AlignActiveCustomCoordinateSystemByEntity( %4, pointOnEntity%3 );%2"),
        .cppCom = INKMACRO_MANAGER_COM("%3") INKMACRO_IF_CPP(
            "%3", "%1    VARIANT pointOnEntity%3;%2%1    pointOnEntity%3.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1    pointOnEntity%3.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2%5"
                  "%1    iwCCSManager%3->AlignActiveCustomCoordinateSystemByEntity( %4, pointOnEntity%3 );%2"),
        .csharp = INKMACRO_MANAGER_CSHARP("%3")
            INKMACRO_IF_SCRIPT("%3", "%1    iwCustomCoordinateSystemMgr%3.AlignActiveCustomCoordinateSystemByEntity( "
                                     "%4, new double[]{%5,%6,%7} );%2"),
        .javascript = INKMACRO_MANAGER_SCRIPT("%3")
            INKMACRO_IF_SCRIPT("%3", "%1    iwCustomCoordinateSystemMgr%3.AlignActiveCustomCoordinateSystemByEntity( "
                                     "%4, new Array(%5,%6,%7) );%2"),
        .vbNet = INKMACRO_MANAGER_VBNET("%3")
            INKMACRO_IF_VBNET("%3", "%1    iwCustomCoordinateSystemMgr%3.AlignActiveCustomCoordinateSystemByEntity( "
                                    "%4, New Double(){%5,%6,%7} )%2"),
        .vba = INKMACRO_MANAGER_VBA("%3")
            INKMACRO_IF_VBA("%3", "%1    Dim pointOnEntity%3(2) As Double%2%1    pointOnEntity%3(0) = %5%2"
                                  "%1    pointOnEntity%3(1) = %6%2%1    pointOnEntity%3(2) = %7%2"
                                  "%1    iwCustomCoordinateSystemMgr%3.AlignActiveCustomCoordinateSystemByEntity %4, "
                                  "pointOnEntity%3%2"),
    }};
static const Mend pointWithZ(
    alignToEntity, Target::Cpp, "y is written twice and z never",
    INKMACRO_MANAGER_CPP("%3")
        INKMACRO_IF_CPP("%3",
                        "%1    iwDoubleArray pointOnEntity%3;%2"
                        "%1    pointOnEntity%3.add(%5);pointOnEntity%3.add(%6);pointOnEntity%3.add(%7);%2"
                        "%1    iwCCSManager%3->AlignActiveCustomCoordinateSystemByEntity( %4, pointOnEntity%3 );%2"));

Statement EmitAlignCoordinateSystemToEntity(Writer& writer, const CFxString& entity, const OdGePoint3d& point)
{
    const std::uint32_t number = ++writer.UniqueCounter;
    Fill statement = writer.fill(alignToEntity);
    statement.number(number).text(entity);
    if (writer.target != Target::CppCom)
        return statement.shortPoint(point);
    ArrayPlace place(writer, "pointOnEntity" + QString::number(number), number);
    place.indentation += QLatin1String("    ");
    return statement.text(comPointLines(place, point, NumberForm::Short, true));
}

static const Phrase alignZAxis{"EmitAlignCoordinateSystemZAxis",
                               INKMACRO_CALL_MANAGER("%3", "AlignActiveCustomCoordinateSystemZAxis",
                                                     " %4, %5, %6, %7, %8, %9 ", " %4, %5, %6, %7, %8, %9 ",
                                                     " %4, %5, %6, %7, %8, %9")};

Statement EmitAlignCoordinateSystemZAxis(Writer& writer, const OdGePoint3d& origin, const OdGePoint3d& onAxis)
{
    return writer.fill(alignZAxis).number(++writer.UniqueCounter).shortPoint(origin).shortPoint(onAxis);
}

// Behind the fetched manager.
#define INKMACRO_ALIGN_TO_POINTS_VBA                                                                                   \
    INKMACRO_IF_VBA("_%3", "%1    Dim iwMathUtility_%3 As Inkwright.MathUtility%2"                                     \
                           "%1    Set iwMathUtility_%3 = iwApp.GetMathUtility()%2"                                     \
                           "%1    Dim Origin_%3 As Inkwright.MathPoint%2"                                              \
                           "%1    Set Origin_%3 = iwMathUtility_%3.CreatePoint( %4, %5, %6 )%2"                        \
                           "%1    Dim XAxisThroughPoint_%3 As Inkwright.MathPoint%2"                                   \
                           "%1    Set XAxisThroughPoint_%3 = iwMathUtility_%3.CreatePoint( %7, %8, %9 )%2"             \
                           "%1    Dim XYPlaneThroughPoint_%3 As Inkwright.MathPoint%2"                                 \
                           "%1    Set XYPlaneThroughPoint_%3 = iwMathUtility_%3.CreatePoint( %10, %11, %12 )%2"        \
                           "%1    iwCustomCoordinateSystemMgr_%3.AlignActiveCustomCoordinateSystemXYPlane Origin_%3, " \
                           "XAxisThroughPoint_%3, XYPlaneThroughPoint_%3%2")

/// VBA cannot give a value in a declaration; that it is done here has to stay so.
static const Phrase alignPlane{
    "EmitThreePointCoordinateSystem",
    {
        .cpp = INKMACRO_MANAGER_CPP("_%3") INKMACRO_IF_CPP(
            "_%3", "%1    iwMathUtility_ptr iwMathUtility_%3;%2%1    m_pIwApp->GetMathUtility( &iwMathUtility_%3 );%2"
                   "%1    iwMathPoint_ptr Origin_%3;%2"
                   "%1    iwMathUtility_%3->CreatePoint( %4, %5, %6, &Origin_%3 );%2"
                   "%1    iwMathPoint_ptr XAxisThroughPoint_%3;%2"
                   "%1    iwMathUtility_%3->CreatePoint( %7, %8, %9, &XAxisThroughPoint_%3 );%2"
                   "%1    iwMathPoint_ptr XYPlaneThroughPoint_%3;%2"
                   "%1    iwMathUtility_%3->CreatePoint( %10, %11, %12, &XYPlaneThroughPoint_%3 );%2"
                   "%1    iwCCSManager_%3->AlignActiveCustomCoordinateSystemXYPlane( Origin_%3, XAxisThroughPoint_%3, "
                   "XYPlaneThroughPoint_%3 );%2"),
        .cppCom =
            "%1ICustomCoordinateSystemManagerPtr iwCCSManager_%3 = iwDoc->GetCustomCoordinateSystemManager();%2" INKMACRO_IF_CPP(
                "_%3", "%1    IMathUtilityPtr iwMathUtility_%3 = pConnection->m_IwApp->GetMathUtility();%2"
                       "%1    IMathPointPtr Origin_%3 = iwMathUtility_%3->CreatePoint( %4, %5, %6 );%2"
                       "%1    IMathPointPtr XAxisThroughPoint_%3 = iwMathUtility_%3->CreatePoint( %7, %8, %9 );%2"
                       "%1    IMathPointPtr XYPlaneThroughPoint_%3 = iwMathUtility_%3->CreatePoint( %10, %11, %12 );%2"
                       "%1    iwCCSManager_%3->AlignActiveCustomCoordinateSystemXYPlane( Origin_%3, "
                       "XAxisThroughPoint_%3, XYPlaneThroughPoint_%3 );%2"),
        .csharp =
            "%1CustomCoordinateSystemManager iwCustomCoordinateSystemMgr_%3 = "
            "iwDoc.GetCustomCoordinateSystemManager();%2" INKMACRO_IF_SCRIPT(
                "_%3", "%1    MathUtility iwMathUtility_%3 = iwApp.GetMathUtility();%2"
                       "%1    MathPoint Origin_%3 = iwMathUtility_%3.CreatePoint( %4, %5, %6 );%2"
                       "%1    MathPoint XAxisThroughPoint_%3 = iwMathUtility_%3.CreatePoint( %7, %8, %9 );%2"
                       "%1    MathPoint XYPlaneThroughPoint_%3 = iwMathUtility_%3.CreatePoint( %10, %11, %12 );%2"
                       "%1    iwCustomCoordinateSystemMgr_%3.AlignActiveCustomCoordinateSystemXYPlane( Origin_%3, "
                       "XAxisThroughPoint_%3, XYPlaneThroughPoint_%3 );%2"),
        .javascript =
            "%1var iwCustomCoordinateSystemMgr_%3 = mDoc.GetCustomCoordinateSystemManager();%2" INKMACRO_IF_SCRIPT(
                "_%3", "%1    var iwMathUtility_%3 = mApp.GetMathUtility();%2"
                       "%1    var Origin_%3 = iwMathUtility_%3.CreatePoint( %4, %5, %6 );%2"
                       "%1    var XAxisThroughPoint_%3 = iwMathUtility_%3.CreatePoint( %7, %8, %9 );%2"
                       "%1    var XYPlaneThroughPoint_%3 = iwMathUtility_%3.CreatePoint( %10, %11, %12 );%2"
                       "%1    iwCustomCoordinateSystemMgr_%3.AlignActiveCustomCoordinateSystemXYPlane( Origin_%3, "
                       "XAxisThroughPoint_%3, XYPlaneThroughPoint_%3 );%2"),
        .vbNet =
            "%1Dim iwCustomCoordinateSystemMgr_%3 As Inkwright.CustomCoordinateSystemManager = "
            "iwDoc.GetCustomCoordinateSystemManager()%2" INKMACRO_IF_VBNET(
                "_%3", "%1    Dim iwMathUtility_%3 As Inkwright.MathUtility = iwApp.GetMathUtility()%2"
                       "%1    Dim Origin_%3 As Inkwright.MathPoint = iwMathUtility_%3.CreatePoint( %4, %5, %6 )%2"
                       "%1    Dim XAxisThroughPoint_%3 As Inkwright.MathPoint = iwMathUtility_%3.CreatePoint( %7, %8, "
                       "%9 )%2%1    Dim XYPlaneThroughPoint_%3 As Inkwright.MathPoint = "
                       "iwMathUtility_%3.CreatePoint( %10, %11, %12 )%2"
                       "%1    iwCustomCoordinateSystemMgr_%3.AlignActiveCustomCoordinateSystemXYPlane( Origin_%3, "
                       "XAxisThroughPoint_%3, XYPlaneThroughPoint_%3 )%2"),
        .vba =
            "%1Dim iwCustomCoordinateSystemMgr_%3 As Inkwright.CustomCoordinateSystemManager = Nothing%2"
            "%1Set iwCustomCoordinateSystemMgr_%3 = iwDoc.GetCustomCoordinateSystemManager()%2" INKMACRO_ALIGN_TO_POINTS_VBA,
    }};
static const Mend basicAlignment(
    alignPlane, Target::Vba, "a declaration has no value in this language",
    "%1Dim iwCustomCoordinateSystemMgr_%3 As Inkwright.CustomCoordinateSystemManager%2"
    "%1Set iwCustomCoordinateSystemMgr_%3 = iwDoc.GetCustomCoordinateSystemManager()%2" INKMACRO_ALIGN_TO_POINTS_VBA);

Statement EmitThreePointCoordinateSystem(Writer& writer, const OdGePoint3d& origin, const OdGePoint3d& onXAxis,
                                       const OdGePoint3d& onPlane)
{
    return writer.fill(alignPlane)
        .number(++writer.UniqueCounter)
        .shortPoint(origin)
        .shortPoint(onXAxis)
        .shortPoint(onPlane);
}
