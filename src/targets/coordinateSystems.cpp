// Coordinate systems of the user.

#include "targets/coordinateSystems.h"

#include "statements/arrays.h"
#include "statements/wording.h"

#include <QByteArray>

#include <array>

using namespace inkmacro;

namespace {

// In the words of this file `#` is the marker of the number that keeps the locals of one statement apart.

/// Each statement fetches the manager anew.
constexpr Words fetchedManager{
    .cpp = "%1iwCustomCoordinateSystemManager_ptr iwCCSManager#;%2"
           "%1iwDoc->GetCustomCoordinateSystemManager( &iwCCSManager# );%2",
    .cppCom = "%1ICustomCoordinateSystemManagerPtr iwCCSManager#;%2"
              "%1iwCCSManager# = iwDoc->GetCustomCoordinateSystemManager();%2",
    .csharp = "%1CustomCoordinateSystemManager iwCustomCoordinateSystemMgr# = null;%2"
              "%1iwCustomCoordinateSystemMgr# = iwDoc.GetCustomCoordinateSystemManager();%2",
    .javascript = "%1var iwCustomCoordinateSystemMgr# = null;%2"
                  "%1iwCustomCoordinateSystemMgr# = mDoc.GetCustomCoordinateSystemManager();%2",
    .vbNet = "%1Dim iwCustomCoordinateSystemMgr# As Inkwright.CustomCoordinateSystemManager = Nothing%2"
             "%1iwCustomCoordinateSystemMgr# = iwDoc.GetCustomCoordinateSystemManager()%2",
    .vba = "%1Dim iwCustomCoordinateSystemMgr# As Inkwright.CustomCoordinateSystemManager%2"
           "%1Set iwCustomCoordinateSystemMgr# = iwDoc.GetCustomCoordinateSystemManager()%2",
    .python = "%1systems = drawing.doc.GetCustomCoordinateSystemManager()%2",
};

/// The same in one statement, where the language has it. VBA cannot give a value in a declaration; that it is done here
/// has to stay so.
constexpr Words declaredManager{
    .cpp = fetchedManager.cpp,
    .cppCom = "%1ICustomCoordinateSystemManagerPtr iwCCSManager# = iwDoc->GetCustomCoordinateSystemManager();%2",
    .csharp = "%1CustomCoordinateSystemManager iwCustomCoordinateSystemMgr# = "
              "iwDoc.GetCustomCoordinateSystemManager();%2",
    .javascript = "%1var iwCustomCoordinateSystemMgr# = mDoc.GetCustomCoordinateSystemManager();%2",
    .vbNet = "%1Dim iwCustomCoordinateSystemMgr# As Inkwright.CustomCoordinateSystemManager = "
             "iwDoc.GetCustomCoordinateSystemManager()%2",
    .vba = "%1Dim iwCustomCoordinateSystemMgr# As Inkwright.CustomCoordinateSystemManager = Nothing%2"
           "%1Set iwCustomCoordinateSystemMgr# = iwDoc.GetCustomCoordinateSystemManager()%2",
    .python = "%1systems = drawing.doc.GetCustomCoordinateSystemManager()%2",
};

/// Around what is done when there is a manager. Python does not ask: what is asked of none stops it anyway, and says
/// where.
constexpr Words testBegin{
    .cpp = "%1if ( NULL != iwCCSManager# )%2%1{%2",
    .cppCom = "%1if ( NULL != iwCCSManager# )%2%1{%2",
    .csharp = "%1if ( null != iwCustomCoordinateSystemMgr# )%2%1{%2",
    .javascript = "%1if ( null != iwCustomCoordinateSystemMgr# )%2%1{%2",
    .vbNet = "%1If iwCustomCoordinateSystemMgr# IsNot Nothing Then%2",
    .vba = "%1If Not iwCustomCoordinateSystemMgr# Is Nothing Then%2",
};
constexpr Words testEnd{
    .cpp = "%1}%2",
    .cppCom = "%1}%2",
    .csharp = "%1}%2",
    .javascript = "%1}%2",
    .vbNet = "%1End If%2",
    .vba = "%1End If%2",
};

/// The literals of a statement put together of such words, one after the other.
class JoinedWords
{
public:
    JoinedWords(const char* number, std::initializer_list<Words> parts)
    {
        for (std::size_t i = 0; i < targetCount; ++i) {
            for (const Words& part : parts)
                texts_[i] += QByteArray(part.in(static_cast<Target>(i))); // a hole adds nothing
            texts_[i].replace('#', number);
        }
    }

    operator Words() const
    {
        const auto text = [&](Target target) { return texts_[static_cast<std::size_t>(target)].constData(); };
        return {.cpp = text(Target::Cpp),
                .cppCom = text(Target::CppCom),
                .csharp = text(Target::CSharp),
                .javascript = text(Target::JavaScript),
                .vbNet = text(Target::VbNet),
                .vba = text(Target::Vba),
                .python = text(Target::Python)};
    }

private:
    std::array<QByteArray, targetCount> texts_; ///< by target
};

} // namespace

static const JoinedWords saveSystemWords(
    "%4",
    {fetchedManager,
     {
         .cpp = "%1iwCustomCoordinateSystem_ptr iwCustomCoordinateSystem#;%2",
         .cppCom = "%1ICustomCoordinateSystemPtr iwCustomCoordinateSystem#;%2",
         .csharp = "%1CustomCoordinateSystem iwCustomCoordinateSystem# = null;%2",
         .javascript = "%1var iwCustomCoordinateSystem# = null;%2",
         .vbNet = "%1Dim iwCustomCoordinateSystem# As Inkwright.CustomCoordinateSystem = Nothing%2",
         .vba = "%1Dim iwCustomCoordinateSystem# As Inkwright.CustomCoordinateSystem%2",
     },
     testBegin,
     {
         .cpp = "%1    iwCCSManager#->SaveActiveViewAs( L\"%3\", &iwCustomCoordinateSystem# );%2",
         .cppCom = "%1    iwCCSManager#->SaveActiveViewAs( L\"%3\", &iwCustomCoordinateSystem# );%2",
         .csharp = "%1    iwCustomCoordinateSystemMgr#.SaveActiveViewAs( \"%3\", out iwCustomCoordinateSystem# );%2",
         .javascript = "%1    iwCustomCoordinateSystem# = iwCustomCoordinateSystemMgr#.SaveActiveViewAs( \"%3\" );%2",
         .vbNet = "%1    iwCustomCoordinateSystemMgr#.SaveActiveViewAs( \"%3\", iwCustomCoordinateSystem# )%2",
         .vba = "%1    iwCustomCoordinateSystemMgr#.SaveActiveViewAs \"%3\", iwCustomCoordinateSystem#%2",
         .python = "%1systems.SaveActiveViewAs(%3)%2",
     },
     testEnd});
static const Phrase saveSystem{"EmitSaveCoordinateSystem", saveSystemWords};

Statement EmitSaveCoordinateSystem(Writer& writer, const CFxString& name)
{
    return writer.fill(saveSystem).text(name, Meaning::Text).number(++writer.UniqueCounter);
}

/// The manager is not asked for here, and a name that it does not know stops the macro.
static const JoinedWords restoreSystemWords(
    "%4",
    {fetchedManager,
     {
         .cpp = "%1iwCustomCoordinateSystem_ptr iwCustomCoordinateSystem#;%2"
                "%1iwCCSManager#->GetNamedCustomCoordinateSystem( L\"%3\", &iwCustomCoordinateSystem#);%2"
                "%1iwCustomCoordinateSystem#->Activate();%2",
         .cppCom = "%1ICustomCoordinateSystemPtr iwCustomCoordinateSystem#;%2"
                   "%1iwCustomCoordinateSystem# = iwCCSManager#->GetNamedCustomCoordinateSystem( L\"%3\");%2"
                   "%1iwCustomCoordinateSystem#->Activate();%2",
         .csharp =
             "%1CustomCoordinateSystem iwCustomCoordinateSystem#;%2"
             "%1iwCustomCoordinateSystem# = iwCustomCoordinateSystemMgr#.GetNamedCustomCoordinateSystem( \"%3\");%2"
             "%1iwCustomCoordinateSystem#.Activate();%2",
         .javascript =
             "%1var iwCustomCoordinateSystem#;%2"
             "%1iwCustomCoordinateSystem# = iwCustomCoordinateSystemMgr#.GetNamedCustomCoordinateSystem( \"%3\");%2"
             "%1iwCustomCoordinateSystem#.Activate();%2",
         .vbNet = "%1Dim iwCustomCoordinateSystem# As Inkwright.CustomCoordinateSystem%2"
                  "%1iwCustomCoordinateSystem# = iwCustomCoordinateSystemMgr#.GetNamedCustomCoordinateSystem( \"%3\")%2"
                  "%1iwCustomCoordinateSystem#.Activate()%2",
         .vba =
             "%1Dim iwCustomCoordinateSystem# As Inkwright.CustomCoordinateSystem%2"
             "%1Set iwCustomCoordinateSystem# = iwCustomCoordinateSystemMgr#.GetNamedCustomCoordinateSystem( \"%3\")%2"
             "%1iwCustomCoordinateSystem#.Activate%2",
         .python = "%1system = systems.GetNamedCustomCoordinateSystem(%3)%2%1system.Activate()%2",
     }});
static const Phrase restoreSystem{"EmitRestoreCoordinateSystem", restoreSystemWords};

Statement EmitRestoreCoordinateSystem(Writer& writer, const CFxString& name)
{
    return writer.fill(restoreSystem).text(name, Meaning::Text).number(++writer.UniqueCounter);
}

static const JoinedWords
    removeSystemWords("%4",
                      {fetchedManager,
                       testBegin,
                       {
                           .cpp = "%1    iwCCSManager#->RemoveCustomCoordinateSystem( L\"%3\" );%2",
                           .cppCom = "%1    iwCCSManager#->RemoveCustomCoordinateSystem( L\"%3\" );%2",
                           .csharp = "%1    iwCustomCoordinateSystemMgr#.RemoveCustomCoordinateSystem( \"%3\" );%2",
                           .javascript = "%1    iwCustomCoordinateSystemMgr#.RemoveCustomCoordinateSystem( \"%3\" );%2",
                           .vbNet = "%1    iwCustomCoordinateSystemMgr#.RemoveCustomCoordinateSystem( \"%3\" )%2",
                           .vba = "%1    iwCustomCoordinateSystemMgr#.RemoveCustomCoordinateSystem \"%3\"%2",
                           .python = "%1systems.RemoveCustomCoordinateSystem(%3)%2",
                       },
                       testEnd});
static const Phrase removeSystem{"EmitRemoveCoordinateSystem", removeSystemWords};

Statement EmitRemoveCoordinateSystem(Writer& writer, const CFxString& name)
{
    return writer.fill(removeSystem).text(name, Meaning::Text).number(++writer.UniqueCounter);
}

static const JoinedWords previousSystemWords(
    "%3",
    {fetchedManager,
     {
         .cpp = "%1iwCustomCoordinateSystem_ptr iwPreviousCCS#;%2",
         .cppCom = "%1ICustomCoordinateSystemPtr iwPreviousCCS#;%2",
         .csharp = "%1CustomCoordinateSystem iwPreviousCCS#;%2",
         .javascript = "%1var iwPreviousCCS#;%2",
         .vbNet = "%1Dim iwPreviousCCS# As Inkwright.CustomCoordinateSystem%2",
         .vba = "%1Dim iwPreviousCCS# As Inkwright.CustomCoordinateSystem%2",
     },
     testBegin,
     {
         .cpp = "%1    iwCCSManager#->GetPreviousCustomCoordinateSystem( &iwPreviousCCS# );%2"
                "%1    iwPreviousCCS#->Activate();%2",
         .cppCom = "%1    iwPreviousCCS# = iwCCSManager#->GetPreviousCustomCoordinateSystem();%2"
                   "%1    iwPreviousCCS#->Activate();%2",
         .csharp = "%1    iwPreviousCCS# = iwCustomCoordinateSystemMgr#.GetPreviousCustomCoordinateSystem();%2"
                   "%1    iwPreviousCCS#.Activate();%2",
         .javascript = "%1    iwPreviousCCS# = iwCustomCoordinateSystemMgr#.GetPreviousCustomCoordinateSystem();%2"
                       "%1    iwPreviousCCS#.Activate();%2",
         .vbNet = "%1    iwPreviousCCS# = iwCustomCoordinateSystemMgr#.GetPreviousCustomCoordinateSystem()%2"
                  "%1    iwPreviousCCS#.Activate()%2",
         .vba = "%1    Set iwPreviousCCS# = iwCustomCoordinateSystemMgr#.GetPreviousCustomCoordinateSystem()%2"
                "%1    iwPreviousCCS#.Activate%2",
         .python = "%1system = systems.GetPreviousCustomCoordinateSystem()%2%1system.Activate()%2",
     },
     testEnd});
static const Phrase previousSystem{"EmitPreviousCoordinateSystem", previousSystemWords};

Statement EmitPreviousCoordinateSystem(Writer& writer)
{
    return writer.fill(previousSystem).number(++writer.UniqueCounter);
}

static const JoinedWords worldSystemWords(
    "%3", {fetchedManager,
           {
               .cpp = "%1iwCustomCoordinateSystem_ptr iwWorldCCS#;%2",
               .cppCom = "%1ICustomCoordinateSystemPtr iwWorldCCS#;%2",
               .csharp = "%1CustomCoordinateSystem iwWorldCCS#;%2",
               .javascript = "%1var iwWorldCCS#;%2",
               .vbNet = "%1Dim iwWorldCCS# As Inkwright.CustomCoordinateSystem%2",
               .vba = "%1Dim iwWorldCCS# As Inkwright.CustomCoordinateSystem%2",
           },
           testBegin,
           {
               .cpp = "%1    iwCCSManager#->GetWorldCustomCoordinateSystem( &iwWorldCCS# );%2"
                      "%1    iwWorldCCS#->Activate();%2",
               .cppCom = "%1    iwWorldCCS# = iwCCSManager#->GetWorldCustomCoordinateSystem();%2"
                         "%1    iwWorldCCS#->Activate();%2",
               .csharp = "%1    iwWorldCCS# = iwCustomCoordinateSystemMgr#.GetWorldCustomCoordinateSystem();%2"
                         "%1    iwWorldCCS#.Activate();%2",
               .javascript = "%1    iwWorldCCS# = iwCustomCoordinateSystemMgr#.GetWorldCustomCoordinateSystem();%2"
                             "%1    iwWorldCCS#.Activate();%2",
               .vbNet = "%1    iwWorldCCS# = iwCustomCoordinateSystemMgr#.GetWorldCustomCoordinateSystem()%2"
                        "%1    iwWorldCCS#.Activate()%2",
               .vba = "%1    Set iwWorldCCS# = iwCustomCoordinateSystemMgr#.GetWorldCustomCoordinateSystem()%2"
                      "%1    iwWorldCCS#.Activate%2",
               .python = "%1system = systems.GetWorldCustomCoordinateSystem()%2%1system.Activate()%2",
           },
           testEnd});
static const Phrase worldSystem{"EmitWorldCoordinateSystem", worldSystemWords};

Statement EmitWorldCoordinateSystem(Writer& writer)
{
    return writer.fill(worldSystem).number(++writer.UniqueCounter);
}

static const JoinedWords defaultSystemWords(
    "%4",
    {fetchedManager,
     {
         .cpp = "%1iwCustomCoordinateSystem_ptr iwCustomCoordinateSystem#;%2",
         .cppCom = "%1ICustomCoordinateSystemPtr iwCustomCoordinateSystem#;%2",
         .csharp = "%1CustomCoordinateSystem iwCustomCoordinateSystem# = null;%2",
         .javascript = "%1var iwCustomCoordinateSystem# = null;%2",
         .vbNet = "%1Dim iwCustomCoordinateSystem# As Inkwright.CustomCoordinateSystem = Nothing%2",
         .vba = "%1Dim iwCustomCoordinateSystem# As Inkwright.CustomCoordinateSystem%2",
     },
     testBegin,
     {
         .cpp = "%1    iwCCSManager#->GetDefaultCustomCoordinateSystem( %3, &iwCustomCoordinateSystem# );%2"
                "%1    iwCustomCoordinateSystem#->Activate();%2",
         .cppCom = "%1    iwCustomCoordinateSystem# = iwCCSManager#->GetDefaultCustomCoordinateSystem( %3 );%2"
                   "%1    iwCustomCoordinateSystem#->Activate();%2",
         .csharp =
             "%1    iwCustomCoordinateSystem# = iwCustomCoordinateSystemMgr#.GetDefaultCustomCoordinateSystem( %3 );%2"
             "%1    iwCustomCoordinateSystem#.Activate();%2",
         .javascript =
             "%1    iwCustomCoordinateSystem# = iwCustomCoordinateSystemMgr#.GetDefaultCustomCoordinateSystem( \"%3\" );%2"
             "%1    iwCustomCoordinateSystem#.Activate();%2",
         .vbNet =
             "%1    iwCustomCoordinateSystem# = iwCustomCoordinateSystemMgr#.GetDefaultCustomCoordinateSystem( %3 )%2"
             "%1    iwCustomCoordinateSystem#.Activate()%2",
         .vba =
             "%1    Set iwCustomCoordinateSystem# = iwCustomCoordinateSystemMgr#.GetDefaultCustomCoordinateSystem( %3 )%2"
             "%1    iwCustomCoordinateSystem#.Activate%2",
         .python = "%1system = systems.GetDefaultCustomCoordinateSystem(%3)%2%1system.Activate()%2",
     },
     testEnd});
static const Phrase defaultSystem{"EmitDefaultCoordinateSystem", defaultSystemWords};

Statement EmitDefaultCoordinateSystem(Writer& writer, const CFxString& enumerator)
{
    return writer.fill(defaultSystem)
        .word(enumeratorText(writer.target, "iwDefaultCustomCoordinateSystem_e", enumerator))
        .number(++writer.UniqueCounter);
}

static const JoinedWords alignToViewWords(
    "%3", {fetchedManager,
           testBegin,
           {
               .cpp = "%1    iwCCSManager#->AlignActiveCustomCoordinateSystemByView();%2",
               .cppCom = "%1    iwCCSManager#->AlignActiveCustomCoordinateSystemByView();%2",
               .csharp = "%1    iwCustomCoordinateSystemMgr#.AlignActiveCustomCoordinateSystemByView();%2",
               .javascript = "%1    iwCustomCoordinateSystemMgr#.AlignActiveCustomCoordinateSystemByView();%2",
               .vbNet = "%1    iwCustomCoordinateSystemMgr#.AlignActiveCustomCoordinateSystemByView()%2",
               .vba = "%1    iwCustomCoordinateSystemMgr#.AlignActiveCustomCoordinateSystemByView%2",
               .python = "%1systems.AlignActiveCustomCoordinateSystemByView()%2",
           },
           testEnd});
static const Phrase alignToView{"EmitViewCoordinateSystem", alignToViewWords};

Statement EmitViewCoordinateSystem(Writer& writer)
{
    return writer.fill(alignToView).number(++writer.UniqueCounter);
}

static const JoinedWords setOriginWords(
    "%3",
    {fetchedManager,
     testBegin,
     {
         .cpp = "%1    iwCCSManager#->SetActiveCustomCoordinateSystemOrigin( %4, %5, %6  );%2",
         .cppCom = "%1    iwCCSManager#->SetActiveCustomCoordinateSystemOrigin( %4, %5, %6  );%2",
         .csharp = "%1    iwCustomCoordinateSystemMgr#.SetActiveCustomCoordinateSystemOrigin( %4, %5, %6  );%2",
         .javascript = "%1    iwCustomCoordinateSystemMgr#.SetActiveCustomCoordinateSystemOrigin( %4, %5, %6  );%2",
         .vbNet = "%1    iwCustomCoordinateSystemMgr#.SetActiveCustomCoordinateSystemOrigin( %4, %5, %6  )%2",
         .vba = "%1    iwCustomCoordinateSystemMgr#.SetActiveCustomCoordinateSystemOrigin %4, %5, %6%2",
         .python = "%1systems.SetActiveCustomCoordinateSystemOrigin(%4)%2",
     },
     testEnd});
static const Phrase setOrigin{"EmitCoordinateSystemOrigin", setOriginWords};

Statement EmitCoordinateSystemOrigin(Writer& writer, const OdGePoint3d& origin)
{
    return writer.fill(setOrigin).number(++writer.UniqueCounter).shortPoint(origin);
}

/// In C++ y is written twice and z never. It has to stay so.
static const JoinedWords alignToEntityWords(
    "%3",
    {fetchedManager,
     testBegin,
     {
         .cpp = "%1    iwDoubleArray pointOnEntity#;%2"
                "%1    pointOnEntity#.add(%5);pointOnEntity#.add(%6);pointOnEntity#.add(%6);%2"
                "%1    iwCCSManager#->AlignActiveCustomCoordinateSystemByEntity( %4, pointOnEntity# );%2",
         .cppCom = "%1    VARIANT pointOnEntity#;%2%1    pointOnEntity#.vt = ( VT_ARRAY | VT_R8 );%2"
                   "%1    pointOnEntity#.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2%5"
                   "%1    iwCCSManager#->AlignActiveCustomCoordinateSystemByEntity( %4, pointOnEntity# );%2",
         .csharp =
             "%1    iwCustomCoordinateSystemMgr#.AlignActiveCustomCoordinateSystemByEntity( %4, new double[]{%5,%6,%7} );%2",
         .javascript =
             "%1    iwCustomCoordinateSystemMgr#.AlignActiveCustomCoordinateSystemByEntity( %4, new Array(%5,%6,%7) );%2",
         .vbNet =
             "%1    iwCustomCoordinateSystemMgr#.AlignActiveCustomCoordinateSystemByEntity( %4, New Double(){%5,%6,%7} )%2",
         .vba = "%1    Dim pointOnEntity#(2) As Double%2%1    pointOnEntity#(0) = %5%2"
                "%1    pointOnEntity#(1) = %6%2%1    pointOnEntity#(2) = %7%2"
                "%1    iwCustomCoordinateSystemMgr#.AlignActiveCustomCoordinateSystemByEntity %4, "
                "pointOnEntity#%2",
         .python = "%1systems.AlignActiveCustomCoordinateSystemByEntity(%4, reals(%5))%2",
     },
     testEnd});
static const Phrase alignToEntity{"EmitAlignCoordinateSystemToEntity", alignToEntityWords};

static QByteArray withZ(QByteArray words)
{
    return words.replace("(%6);%2", "(%7);%2");
}
static const Mend pointWithZ(alignToEntity, Target::Cpp, "y is written twice and z never", withZ);

Statement EmitAlignCoordinateSystemToEntity(Writer& writer, const CFxString& entity, const OdGePoint3d& point)
{
    const std::uint32_t number = ++writer.UniqueCounter;
    Fill statement = writer.fill(alignToEntity);
    statement.number(number).word(entity);
    if (writer.target != Target::CppCom)
        return statement.shortPoint(point);
    ArrayPlace place(writer, "pointOnEntity" + QString::number(number), number);
    place.indentation += QLatin1String("    ");
    return statement.word(comPointLines(place, point, NumberForm::Short, true));
}

static const JoinedWords alignZAxisWords(
    "%3",
    {fetchedManager,
     testBegin,
     {
         .cpp = "%1    iwCCSManager#->AlignActiveCustomCoordinateSystemZAxis( %4, %5, %6, %7, %8, %9 );%2",
         .cppCom = "%1    iwCCSManager#->AlignActiveCustomCoordinateSystemZAxis( %4, %5, %6, %7, %8, %9 );%2",
         .csharp =
             "%1    iwCustomCoordinateSystemMgr#.AlignActiveCustomCoordinateSystemZAxis( %4, %5, %6, %7, %8, %9 );%2",
         .javascript =
             "%1    iwCustomCoordinateSystemMgr#.AlignActiveCustomCoordinateSystemZAxis( %4, %5, %6, %7, %8, %9 );%2",
         .vbNet =
             "%1    iwCustomCoordinateSystemMgr#.AlignActiveCustomCoordinateSystemZAxis( %4, %5, %6, %7, %8, %9 )%2",
         .vba = "%1    iwCustomCoordinateSystemMgr#.AlignActiveCustomCoordinateSystemZAxis %4, %5, %6, %7, %8, %9%2",
         .python = "%1systems.AlignActiveCustomCoordinateSystemZAxis(%4, %5)%2",
     },
     testEnd});
static const Phrase alignZAxis{"EmitAlignCoordinateSystemZAxis", alignZAxisWords};

Statement EmitAlignCoordinateSystemZAxis(Writer& writer, const OdGePoint3d& origin, const OdGePoint3d& onAxis)
{
    return writer.fill(alignZAxis).number(++writer.UniqueCounter).shortPoint(origin).shortPoint(onAxis);
}

static const JoinedWords alignPlaneWords(
    "_%3",
    {declaredManager,
     testBegin,
     {
         .cpp = "%1    iwMathUtility_ptr iwMathUtility#;%2%1    m_pIwApp->GetMathUtility( &iwMathUtility# );%2"
                "%1    iwMathPoint_ptr Origin#;%2"
                "%1    iwMathUtility#->CreatePoint( %4, %5, %6, &Origin# );%2"
                "%1    iwMathPoint_ptr XAxisThroughPoint#;%2"
                "%1    iwMathUtility#->CreatePoint( %7, %8, %9, &XAxisThroughPoint# );%2"
                "%1    iwMathPoint_ptr XYPlaneThroughPoint#;%2"
                "%1    iwMathUtility#->CreatePoint( %10, %11, %12, &XYPlaneThroughPoint# );%2"
                "%1    iwCCSManager#->AlignActiveCustomCoordinateSystemXYPlane( Origin#, XAxisThroughPoint#, "
                "XYPlaneThroughPoint# );%2",
         .cppCom = "%1    IMathUtilityPtr iwMathUtility# = pConnection->m_IwApp->GetMathUtility();%2"
                   "%1    IMathPointPtr Origin# = iwMathUtility#->CreatePoint( %4, %5, %6 );%2"
                   "%1    IMathPointPtr XAxisThroughPoint# = iwMathUtility#->CreatePoint( %7, %8, %9 );%2"
                   "%1    IMathPointPtr XYPlaneThroughPoint# = iwMathUtility#->CreatePoint( %10, %11, %12 );%2"
                   "%1    iwCCSManager#->AlignActiveCustomCoordinateSystemXYPlane( Origin#, XAxisThroughPoint#, "
                   "XYPlaneThroughPoint# );%2",
         .csharp =
             "%1    MathUtility iwMathUtility# = iwApp.GetMathUtility();%2"
             "%1    MathPoint Origin# = iwMathUtility#.CreatePoint( %4, %5, %6 );%2"
             "%1    MathPoint XAxisThroughPoint# = iwMathUtility#.CreatePoint( %7, %8, %9 );%2"
             "%1    MathPoint XYPlaneThroughPoint# = iwMathUtility#.CreatePoint( %10, %11, %12 );%2"
             "%1    iwCustomCoordinateSystemMgr#.AlignActiveCustomCoordinateSystemXYPlane( Origin#, XAxisThroughPoint#, "
             "XYPlaneThroughPoint# );%2",
         .javascript =
             "%1    var iwMathUtility# = mApp.GetMathUtility();%2"
             "%1    var Origin# = iwMathUtility#.CreatePoint( %4, %5, %6 );%2"
             "%1    var XAxisThroughPoint# = iwMathUtility#.CreatePoint( %7, %8, %9 );%2"
             "%1    var XYPlaneThroughPoint# = iwMathUtility#.CreatePoint( %10, %11, %12 );%2"
             "%1    iwCustomCoordinateSystemMgr#.AlignActiveCustomCoordinateSystemXYPlane( Origin#, XAxisThroughPoint#, "
             "XYPlaneThroughPoint# );%2",
         .vbNet =
             "%1    Dim iwMathUtility# As Inkwright.MathUtility = iwApp.GetMathUtility()%2"
             "%1    Dim Origin# As Inkwright.MathPoint = iwMathUtility#.CreatePoint( %4, %5, %6 )%2"
             "%1    Dim XAxisThroughPoint# As Inkwright.MathPoint = iwMathUtility#.CreatePoint( %7, %8, %9 )%2"
             "%1    Dim XYPlaneThroughPoint# As Inkwright.MathPoint = iwMathUtility#.CreatePoint( %10, %11, %12 )%2"
             "%1    iwCustomCoordinateSystemMgr#.AlignActiveCustomCoordinateSystemXYPlane( Origin#, XAxisThroughPoint#, "
             "XYPlaneThroughPoint# )%2",
         .vba =
             "%1    Dim iwMathUtility# As Inkwright.MathUtility%2"
             "%1    Set iwMathUtility# = iwApp.GetMathUtility()%2"
             "%1    Dim Origin# As Inkwright.MathPoint%2"
             "%1    Set Origin# = iwMathUtility#.CreatePoint( %4, %5, %6 )%2"
             "%1    Dim XAxisThroughPoint# As Inkwright.MathPoint%2"
             "%1    Set XAxisThroughPoint# = iwMathUtility#.CreatePoint( %7, %8, %9 )%2"
             "%1    Dim XYPlaneThroughPoint# As Inkwright.MathPoint%2"
             "%1    Set XYPlaneThroughPoint# = iwMathUtility#.CreatePoint( %10, %11, %12 )%2"
             "%1    iwCustomCoordinateSystemMgr#.AlignActiveCustomCoordinateSystemXYPlane Origin#, XAxisThroughPoint#, "
             "XYPlaneThroughPoint#%2",
         .python = "%1utility = drawing.app.GetMathUtility()%2%1first = utility.CreatePoint(%4)%2"
                   "%1second = utility.CreatePoint(%5)%2%1third = utility.CreatePoint(%6)%2"
                   "%1systems.AlignActiveCustomCoordinateSystemXYPlane(first, second, third)%2",
     },
     testEnd});
static const Phrase alignPlane{"EmitThreePointCoordinateSystem", alignPlaneWords};

static QByteArray withoutValue(QByteArray words)
{
    return words.replace(" = Nothing%2", "%2");
}
static const Mend basicAlignment(alignPlane, Target::Vba, "a declaration has no value in this language", withoutValue);

Statement EmitThreePointCoordinateSystem(Writer& writer, const OdGePoint3d& origin, const OdGePoint3d& onXAxis,
                                         const OdGePoint3d& onPlane)
{
    return writer.fill(alignPlane)
        .number(++writer.UniqueCounter)
        .shortPoint(origin)
        .shortPoint(onXAxis)
        .shortPoint(onPlane);
}
