// The search for the pieces of a trim, which the generated program makes when it runs. One frame a target, filled from
// one table of classes; in Python a function of the macro.

#include "targets/trimSearch.h"

#include "host/db/OdDbClassMap.h"
#include "statements/LineEnd.h"
#include "statements/arrays.h"
#include "statements/pythonLiterals.h"
#include "targets/objectTypes.h"

#include <QStringList>

#include <algorithm>
#include <string_view>

using namespace inkmacro;

namespace {

/// A point that an operation gives. The first is held against the numbers from 0 on, the second against those from 3.
struct ComparedPoint
{
    const char* operation;
    const char* local;
    int index; ///< of the vertex, or noIndex
};

constexpr int noIndex = -1;

/// What tells one piece of a class from another.
struct SearchedClass
{
    std::string_view name;
    std::vector<ComparedPoint> points;
    std::vector<const char*> properties; ///< held against the numbers from 3 on
    int axes = 3;                        ///< of the points that are compared: of two the height is not looked at
    bool tellsSuccess = false;           ///< in C++ the operations do
};

/// In the order of the names, in which the tests stand. Objects of other classes are not searched for: their variables
/// stay empty. Both polylines are one type to the host, so where both are searched for only the test in front is ever
/// reached.
const std::vector<SearchedClass>& searchedClasses()
{
    static const std::vector<SearchedClass> classes{
        {"AcDb2dPolyline", {{"GetVertexCoordinate", "first", 0}, {"GetVertexCoordinate", "second", 1}}, {}, 2},
        {"AcDb3dPolyline", {{"GetVertexCoordinate", "first", 0}, {"GetVertexCoordinate", "second", 1}}, {}, 3, true},
        {"AcDbArc", {{"GetCenter", "center", noIndex}}, {"Radius", "StartAngle", "EndAngle"}},
        {"AcDbEllipse", {{"GetCenter", "center", noIndex}}, {"MajorRadius", "MinorRadius"}},
        {"AcDbLine", {{"GetFirstPoint", "first", noIndex}, {"GetSecondPoint", "second", noIndex}}, {}},
        {"AcDbPolyline", {{"GetVertexCoordinate", "first", 0}, {"GetVertexCoordinate", "second", 1}}, {}, 2},
        {"AcDbRay", {{"GetBasePoint", "base", noIndex}, {"GetThroughPoint", "through", noIndex}}, {}},
        {"AcDbSpline",
         {{"GetControlPointCoordinate", "first", 0}, {"GetControlPointCoordinate", "second", 1}},
         {},
         3,
         true},
    };
    return classes;
}

/// A piece and its number in the search.
struct NumberedPiece
{
    std::size_t number;
    std::uint32_t ordinal;
};

/// The pieces of one class.
struct PiecesOfClass
{
    const SearchedClass& searched;
    const InterfaceType& type;
    QString stem;     ///< of the locals
    QString declared; ///< stem of the pieces' variables
    std::vector<NumberedPiece> pieces;
};

} // namespace

static std::vector<PiecesOfClass> byClass(Target target, const std::vector<TrimPiece>& pieces)
{
    std::vector<PiecesOfClass> classes;
    for (const SearchedClass& searched : searchedClasses()) {
        const OdRxClass* const cls = oddbClassByName(QString::fromLatin1(searched.name.data()));
        const InterfaceType& type = *FindInterface(cls);
        const QString stem = QString(type.name).toLower();
        PiecesOfClass found{
            searched, type, stem, target == Target::Cpp ? FindTypeNames(cls)->stem.toQString() : stem, {}};
        for (std::size_t i = 0; i < pieces.size(); ++i)
            if (FindInterface(pieces[i].entry.cls) == &type)
                found.pieces.push_back({i, pieces[i].entry.ordinal});
        if (!found.pieces.empty())
            classes.push_back(found);
    }
    return classes;
}

/// The names have no number, so one scope takes one search.
static const Phrase searchHead{
    "EmitTrimEntities: search",
    {
        .cpp = "%2%1iwSelectionManager_ptr iwSelectionManager;%2%1iwDoc->GetSelectionManager( &iwSelectionManager );%2"
               "%2%1iwSelectionFilter_ptr iwSelectionFilter;%2"
               "%1iwSelectionManager->GetSelectionFilter( &iwSelectionFilter );%2"
               "%1iwSelectionFilter->put_Active( false );%2%2"
               "%1iwSelectionManager->ClearSelections(iwSelectionSetType_Current);%2"
               "%1iwSelectionManager->ClearSelections(iwSelectionSetType_Previous);%2%2%1double epsi = 0.1;%2"
               "%1iwMathUtility_ptr iwMathUtility;%2%1m_pIwApp->GetMathUtility( &iwMathUtility );%2"
               "%1double selPts[%3];                //selection points%2"
               "%1double prop[%4];                  //properties%2",
        .cppCom = "%2%1ISelectionManagerPtr iwSelectionManager = iwDoc->GetSelectionManager();%2%2"
                  "%1iwSelectionManager->GetSelectionFilter()->put_Active( false );%2%2"
                  "%1iwSelectionManager->ClearSelections(iwSelectionSetType_Current);%2"
                  "%1iwSelectionManager->ClearSelections(iwSelectionSetType_Previous);%2%2%1double epsi = 0.1;%2"
                  "%1IMathUtilityPtr iwMathUtility = pConnection->m_IwApp->GetMathUtility();%2"
                  "%1double selPts[%3];                //selection points%2"
                  "%1double prop[%4];                  //properties%2",
        .csharp = "%2%1SelectionManager iwSelectionManager = iwDoc.GetSelectionManager();%2%2"
                  "%1iwSelectionManager.GetSelectionFilter().Active = false;%2%2"
                  "%1iwSelectionManager.ClearSelections(iwSelectionSetType_e.iwSelectionSetType_Current);%2"
                  "%1iwSelectionManager.ClearSelections(iwSelectionSetType_e.iwSelectionSetType_Previous);%2%2"
                  "%1double epsi = 0.1;%2%1MathUtility iwMathUtility = iwApp.GetMathUtility();%2"
                  "%1double[] selPts = new double[%3];                //selection points%2"
                  "%1double[] prop = new double[%4];                  //properties%2",
        .javascript = "%2%1var iwSelectionManager = mDoc.GetSelectionManager();%2%2"
                      "%1iwSelectionManager.GetSelectionFilter().put_Active(false);%2%2"
                      "%1iwSelectionManager.ClearSelections(\"iwSelectionSetType_Current\");%2"
                      "%1iwSelectionManager.ClearSelections(\"iwSelectionSetType_Previous\");%2%2"
                      "%1var epsi = 0.1;%2%1var iwMathUtility = mApp.GetMathUtility();%2"
                      "%1var selPts = new Array(%3);%2%1var prop = new Array(%4);%2",
        .vbNet = "%2%1Dim iwSelectionManager As Inkwright.SelectionManager = iwDoc.GetSelectionManager()%2%2"
                 "%1iwSelectionManager.GetSelectionFilter().Active = False%2%2"
                 "%1iwSelectionManager.ClearSelections(Inkwright.iwSelectionSetType_e.iwSelectionSetType_Current)%2"
                 "%1iwSelectionManager.ClearSelections(Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous)%2"
                 "%2%1Dim epsi As Double = 0.1%2%1Dim iwMathUtility As Inkwright.MathUtility = iwApp.GetMathUtility()%2"
                 "%1Dim selPts(%3) As Double                'selection points%2"
                 "%1Dim prop(%4) As Double                  'properties%2",
        .vba = "%2%1Dim iwSelectionManager As Inkwright.SelectionManager%2"
               "%1Set iwSelectionManager = iwDoc.GetSelectionManager()%2%2"
               "%1iwSelectionManager.GetSelectionFilter().Active = False%2%2"
               "%1iwSelectionManager.ClearSelections Inkwright.iwSelectionSetType_e.iwSelectionSetType_Current%2"
               "%1iwSelectionManager.ClearSelections Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous%2%2"
               "%1Dim epsi As Double%2%1epsi = 0.1%2%1Dim iwMathUtility As Inkwright.MathUtility%2"
               "%1Set iwMathUtility = iwApp.GetMathUtility()%2"
               "%1Dim selPts(%3) As Double                'selection points%2"
               "%1Dim prop(%4) As Double                  'properties%2",
    }};

static const Phrase selectionPoint{"EmitTrimEntities: search",
                                   {
                                       .cpp = "%1selPts[%4] = %3;%2",
                                       .cppCom = "%1selPts[%4] = %3;%2",
                                       .csharp = "%1selPts[%4] = %3;%2",
                                       .javascript = "%1selPts[%4] = %3;%2",
                                       .vbNet = "%1selPts(%4) = %3%2",
                                       .vba = "%1selPts(%4) = %3%2",
                                   }};

static const Phrase pieceNumber{"EmitTrimEntities: search",
                                {
                                    .cpp = "%1prop[%4] = %3;%2",
                                    .cppCom = "%1prop[%4] = %3;%2",
                                    .csharp = "%1prop[%4] = %3;%2",
                                    .javascript = "%1prop[%4] = %3;%2",
                                    .vbNet = "%1prop(%4) = %3%2",
                                    .vba = "%1prop(%4) = %3%2",
                                }};

static Statement numbersOf(Writer& writer, const std::vector<TrimPiece>& pieces)
{
    Statement places;
    Statement numbers;
    qulonglong nextPlace = 0;
    qulonglong nextNumber = 0;
    for (const TrimPiece& piece : pieces) {
        for (const double coordinate : {piece.place.x, piece.place.y, piece.place.z})
            places += writer.fill(selectionPoint).shortReal(coordinate).number(nextPlace++).str();
        for (const double number : piece.numbers)
            numbers += writer.fill(pieceNumber).shortReal(number).number(nextNumber++).str();
    }
    return writer.fill(searchHead).number(arrayBound(writer, nextPlace)).number(arrayBound(writer, nextNumber)).str() +
           places + numbers;
}

/// A page has no other declaration of the variable.
static const Phrase resetVariable{"EmitTrimEntities: search",
                                  {
                                      .cpp = "%1%3%4 = NULL;%2",
                                      .cppCom = "%1%3%4 = NULL;%2",
                                      .csharp = "%1%3%4 = null;%2",
                                      .javascript = "%1var %3%4 = null;%2",
                                      .vbNet = "%1%3%4 = Nothing%2",
                                      .vba = "%1Set %3%4 = Nothing%2",
                                  }};

static const Phrase assignVariable{"EmitTrimEntities: search",
                                   {
                                       .cpp = "%1if (iNewEnt == %3)%2%1    %4%5 = %6;%2",
                                       .cppCom = "%1if (iNewEnt == %3)%2%1    %4%5 = %6;%2",
                                       .csharp = "%1if (iNewEnt == %3)%2%1    %4%5 = %6;%2",
                                       .javascript = "%1if (iNewEnt == %3)%2%1    %4%5 = %6;%2",
                                       .vbNet = "%1If iNewEnt = %3 Then%2%1    %4%5 = %6%2%1End If%2",
                                       .vba = "%1If iNewEnt = %3 Then%2%1    Set %4%5 = %6%2%1End If%2",
                                   }};

/// `%9` is the interface's name, in VBA all declarations. The blanks in front of the first test are those of the loop,
/// all other lines stand at the statement's own level.
static const Phrase testOfClass{
    "EmitTrimEntities: search",
    {
        .cpp = "%4if (retObjType == %5)%2%1{%2%1    iw%9_c* %6 = (iw%9_c*)obj;%2%7%1    if (%8 )%2%1    {%2%3"
               "%1        break;%2%1    }%2%1}%2",
        .cppCom = "%4if (retObjType == %5)%2%1{%2%1    I%9Ptr %6 = obj;%2%7%1    if (%8 )%2%1    {%2%3"
                  "%1        break;%2%1    }%2%1}%2",
        .csharp = "%4if (retObjType == %5)%2%1{%2%1    %9 %6 = (%9)obj;%2%7%1    if (%8 )%2%1    {%2%3"
                  "%1        break;%2%1    }%2%1}%2",
        .javascript = "%4if (retObjType == %5)%2%1{%2%1    var %6 = obj;%2%7%1    if (%8 )%2%1    {%2%3"
                      "%1        break;%2%1    }%2%1}%2",
        .vbNet = "%4If retObjType = %5 Then%2%1    Dim %6 As Inkwright.%9 = obj%2%7%1    If %8 Then%2%3"
                 "%1        Exit For%2%1    End If%2",
        .vba = "%4If retObjType = %5 Then%2%9%1    Set %6 = obj%2%7%1    If %8 Then%2%3%1        Exit For%2"
               "%1    End If%2",
    }};

static const Phrase otherClass{"EmitTrimEntities: search",
                               {
                                   .cpp = "%1else ",
                                   .cppCom = "%1else ",
                                   .csharp = "%1else ",
                                   .javascript = "%1else ",
                                   .vbNet = "%1Else",
                                   .vba = "%1Else",
                               }};

/// One for all tests of Basic.
static const Phrase endOfTests{"EmitTrimEntities: end of tests",
                               {
                                   .vbNet = "%1End If%2",
                                   .vba = "%1End If%2",
                               }};

/// Several names in one line, but for Basic.
static const Phrase declareNumbers{"EmitTrimEntities: locals",
                                   {
                                       .cpp = "%1    double %3;%2",
                                       .cppCom = "%1    double %3;%2",
                                       .csharp = "%1    double %3;%2",
                                       .vbNet = "%1    Dim %3 As Double%2",
                                       .vba = "%1    Dim %3 As Double%2",
                                   }};

static const Phrase declareObject{"EmitTrimEntities: local of the object",
                                  {
                                      .vba = "%1    Dim %3 As Inkwright.%4%2",
                                  }};

static const Phrase declareSuccess{"EmitTrimEntities: success",
                                   {
                                       .cpp = "%1    bool bRetVal = false;%2",
                                   }};

static const Phrase askForPoint{"EmitTrimEntities: search",
                                {
                                    .cpp = "%1    %3->%4(%5);%2",
                                    .cppCom = "%1    %3->%4(%5);%2",
                                    .csharp = "%1    %3.%4(%5);%2",
                                    .javascript = "%1    var %6 = %3.%4(%5);%2",
                                    .vbNet = "%1    %3.%4(%5)%2",
                                    .vba = "%1    %3.%4 %5%2",
                                }};

/// Elsewhere a property stands in the comparison itself.
static const Phrase askForProperty{"EmitTrimEntities: property into a local",
                                   {
                                       .cpp = "%1    %3->get_%4( &%5 );%2",
                                       .cppCom = "%1    %3->get_%4( &%5 );%2",
                                   }};

static const Phrase property{"EmitTrimEntities: property",
                             {
                                 .csharp = "%1.%2",
                                 .javascript = "%1.get_%2()",
                                 .vbNet = "%1.%2",
                                 .vba = "%1.%2",
                             }};

static const Phrase comparison{"EmitTrimEntities: search",
                               {
                                   .cpp = "fabs(%1 - prop[iNewEnt*6%2]) < epsi",
                                   .cppCom = "fabs(%1 - prop[iNewEnt*6%2]) < epsi",
                                   .csharp = "Math.Abs(%1 - prop[iNewEnt*6%2]) < epsi",
                                   .javascript = "Math.abs(%1 - prop[iNewEnt*6%2]) < epsi",
                                   .vbNet = "Math.Abs(%1 - prop(iNewEnt*6%2)) < epsi",
                                   .vba = "Abs(%1 - prop(iNewEnt*6%2)) < epsi",
                               }};

static const Phrase nextComparison{"EmitTrimEntities: search",
                                   {
                                       .cpp = " &&%2%1        ",
                                       .cppCom = " &&%2%1        ",
                                       .csharp = " &&%2%1        ",
                                       .javascript = " &&%2%1        ",
                                       .vbNet = " AndAlso _%2%1        ",
                                       .vba = " And _%2%1        ",
                                   }};

namespace {

/// What a test asks of an object: the locals that the answers go to, the calls, and what is compared.
struct Questions
{
    QStringList locals;
    Statement calls;
    std::vector<Statement> comparisons;
};

} // namespace

static Statement compared(Writer& writer, const Statement& value, int number)
{
    const QString offset = number == 0 ? QString() : " + " + QString::number(number);
    return writer.fillPlain(comparison).word(value).word(offset);
}

/// How a call names the local that it gives an answer to.
static QString outArgument(Target target, const QString& local)
{
    if (target == Target::CSharp)
        return "out " + local;
    return isBasic(target) ? local : '&' + local;
}

static void askPoint(Writer& writer, const PiecesOfClass& of, const ComparedPoint& point, int firstNumber,
                     Questions& questions)
{
    const Target target = writer.target;
    QStringList arguments;
    if (point.index != noIndex)
        arguments.append(QString::number(point.index));
    for (int axis = 0; axis < of.searched.axes; ++axis) {
        const char letter = "XYZ"[axis];
        if (target == Target::JavaScript) {
            questions.comparisons.push_back(
                compared(writer, QLatin1String(point.local) + QString('.') + letter, firstNumber + axis));
            continue;
        }
        const QString local = QString(point.local) + letter;
        questions.locals.append(local);
        arguments.append(outArgument(target, local));
        questions.comparisons.push_back(compared(writer, local, firstNumber + axis));
    }
    if (target == Target::Cpp && of.searched.tellsSuccess)
        arguments.append("&bRetVal");
    questions.calls += writer.fill(askForPoint)
                           .word(of.stem)
                           .word(QLatin1String(point.operation))
                           .word(arguments.join(QLatin1String(", ")))
                           .word(QLatin1String(point.local))
                           .str();
}

static void askProperty(Writer& writer, const PiecesOfClass& of, const char* name, int number, Questions& questions)
{
    if (property.has(writer.target)) {
        const Statement value = writer.fillPlain(property).word(of.stem).word(QLatin1String(name));
        questions.comparisons.push_back(compared(writer, value, number));
        return;
    }
    const QString local = QChar(name[0]).toLower() + QString(name + 1);
    questions.locals.append(local);
    questions.calls += writer.fill(askForProperty).word(of.stem).word(QLatin1String(name)).word(local).str();
    questions.comparisons.push_back(compared(writer, local, number));
}

static Questions questionsOf(Writer& writer, const PiecesOfClass& of)
{
    Questions questions;
    int number = 0;
    for (const ComparedPoint& point : of.searched.points) {
        askPoint(writer, of, point, number, questions);
        number += 3;
    }
    for (const char* const name : of.searched.properties)
        askProperty(writer, of, name, number++, questions);
    return questions;
}

static std::vector<Statement> declarationsOf(Writer& writer, const PiecesOfClass& of, const QStringList& locals)
{
    std::vector<Statement> lines{writer.fill(declareObject).word(of.stem).word(QLatin1String(of.type.name)).str()};
    if (!isBasic(writer.target))
        lines.push_back(writer.fill(declareNumbers).word(locals.join(QLatin1String(", "))));
    else
        for (const QString& local : locals)
            lines.push_back(writer.fill(declareNumbers).word(local));
    if (of.searched.tellsSuccess)
        lines.push_back(writer.fill(declareSuccess));
    return lines;
}

static Statement joined(const std::vector<Statement>& statements, const Statement& separator)
{
    Statement text;
    for (const Statement& statement : statements) {
        if (&statement != &statements.front())
            text += separator;
        text += statement;
    }
    return text;
}

static Statement sectionOf(Writer& writer, const PiecesOfClass& of, bool first, std::vector<Statement>& declared)
{
    Statement assignments;
    for (const auto& [number, ordinal] : of.pieces)
        assignments += writer.fill(assignVariable)
                           .number(qulonglong{number})
                           .word(of.declared)
                           .number(ordinal)
                           .word(of.stem)
                           .str();

    const Questions questions = questionsOf(writer, of);
    std::vector<Statement> declarations = declarationsOf(writer, of, questions.locals);
    const bool vba = writer.target == Target::Vba;
    if (vba) {
        // One scope a procedure: what a test in front has declared is there already.
        std::erase_if(declarations,
                      [&](const Statement& line) { return std::ranges::find(declared, line) != declared.end(); });
        declared.insert(declared.end(), declarations.begin(), declarations.end());
    }
    const Statement lines = joined(declarations, {});
    return writer.fill(testOfClass)
        .word(assignments)
        .word(first ? Statement() : writer.fillIndented(otherClass).str())
        .word(objectTypeWord(writer.target, of.type.enumerator))
        .word(of.stem)
        .word(vba ? questions.calls : lines + questions.calls)
        .word(joined(questions.comparisons, writer.fill(nextComparison)))
        .word(vba ? lines : Statement(QString(of.type.name)));
}

/// The box around the piece's place is as wide as the comparison is exact.
static const Phrase searchLoop{
    "EmitTrimEntities: search",
    {
        .cpp =
            "%1for (int iNewEnt = 0; iNewEnt < %3; iNewEnt++)%2%1{%2%1    iwMathPoint_ptr firstPoint;%2"
            "%1    iwMathUtility->CreatePoint(selPts[iNewEnt*3] + epsi, selPts[iNewEnt*3 + 1] + epsi, "
            "selPts[iNewEnt*3 + 2], &firstPoint);%2%1    iwMathPoint_ptr secondPoint;%2"
            "%1    iwMathUtility->CreatePoint(selPts[iNewEnt*3] - epsi, selPts[iNewEnt*3 + 1] - epsi, "
            "selPts[iNewEnt*3 + 2], &secondPoint);%2%2"
            "%1    iwSelectionManager->SelectByWindow(firstPoint, secondPoint, true);%2%2%1    long count = 0;%2"
            "%1    iwSelectionManager->GetSelectedObjectCount(iwSelectionSetType_Previous, &count);%2%2"
            "%1    for (int i = 0; i < count; i++)%2%1    {%2%1        iwObjectType_e retObjType;%2"
            "%1        iwObject_c* obj = NULL;%2"
            "%1        iwSelectionManager->GetSelectedObject(iwSelectionSetType_Previous, i, &retObjType, &obj);%2"
            "%1        %4%2%1    }%2%1    iwSelectionManager->ClearSelections(iwSelectionSetType_Previous);%2%1}%2%2",
        .cppCom = "%1for (int iNewEnt = 0; iNewEnt < %3; iNewEnt++)%2%1{%2"
                  "%1    IMathPointPtr firstPoint = iwMathUtility->CreatePoint(selPts[iNewEnt*3] + epsi, "
                  "selPts[iNewEnt*3 + 1] + epsi, selPts[iNewEnt*3 + 2]);%2"
                  "%1    IMathPointPtr secondPoint = iwMathUtility->CreatePoint(selPts[iNewEnt*3] - epsi, "
                  "selPts[iNewEnt*3 + 1] - epsi, selPts[iNewEnt*3 + 2]);%2%2"
                  "%1    iwSelectionManager->SelectByWindow(firstPoint, secondPoint, true);%2%2"
                  "%1    long count = iwSelectionManager->GetSelectedObjectCount(iwSelectionSetType_Previous);%2%2"
                  "%1    for (int i = 0; i < count; i++)%2%1    {%2%1        iwObjectType_e retObjType;%2"
                  "%1        IDispatchPtr obj = iwSelectionManager->GetSelectedObject(iwSelectionSetType_Previous, i, "
                  "&retObjType);%2%1        %4%2%1    }%2"
                  "%1    iwSelectionManager->ClearSelections(iwSelectionSetType_Previous);%2%1}%2%2",
        .csharp = "%1for (int iNewEnt = 0; iNewEnt < %3; iNewEnt++)%2%1{%2"
                  "%1    MathPoint firstPoint = iwMathUtility.CreatePoint(selPts[iNewEnt*3] + epsi, "
                  "selPts[iNewEnt*3 + 1] + epsi, selPts[iNewEnt*3 + 2]);%2"
                  "%1    MathPoint secondPoint = iwMathUtility.CreatePoint(selPts[iNewEnt*3] - epsi, "
                  "selPts[iNewEnt*3 + 1] - epsi, selPts[iNewEnt*3 + 2]);%2%2"
                  "%1    iwSelectionManager.SelectByWindow(firstPoint, secondPoint, true);%2%2"
                  "%1    long count = iwSelectionManager.GetSelectedObjectCount("
                  "iwSelectionSetType_e.iwSelectionSetType_Previous);%2%2"
                  "%1    for (int i = 0; i < count; i++)%2%1    {%2%1        iwObjectType_e retObjType;%2"
                  "%1        Object obj = iwSelectionManager.GetSelectedObject("
                  "iwSelectionSetType_e.iwSelectionSetType_Previous, i, out retObjType);%2%1        %4%2%1    }%2"
                  "%1    iwSelectionManager.ClearSelections(iwSelectionSetType_e.iwSelectionSetType_Previous);%2"
                  "%1}%2%2",
        .javascript = "%1for (var iNewEnt = 0; iNewEnt < %3; iNewEnt++)%2%1{%2"
                      "%1    var firstPoint = iwMathUtility.CreatePoint(selPts[iNewEnt*3] + epsi, "
                      "selPts[iNewEnt*3 + 1] + epsi, selPts[iNewEnt*3 + 2]);%2"
                      "%1    var secondPoint = iwMathUtility.CreatePoint(selPts[iNewEnt*3] - epsi, "
                      "selPts[iNewEnt*3 + 1] - epsi, selPts[iNewEnt*3 + 2]);%2%2"
                      "%1    iwSelectionManager.SelectByWindow(firstPoint, secondPoint, true);%2%2"
                      "%1    var count = iwSelectionManager.GetSelectedObjectCount("
                      "\"iwSelectionSetType_Previous\");%2%2"
                      "%1    for (var i = 0; i < count; i++)%2%1    {%2"
                      "%1        var results = iwSelectionManager.GetSelectedObject("
                      "\"iwSelectionSetType_Previous\", i);%2"
                      "%1        var obj = results[0];%2%1        var retObjType = results[1];%2%1        %4%2%1    }%2"
                      "%1    iwSelectionManager.ClearSelections(\"iwSelectionSetType_Previous\");%2%1}%2%2",
        .vbNet = "%1For iNewEnt As Integer = 0 To %3 - 1%2"
                 "%1    Dim firstPoint As Inkwright.MathPoint = iwMathUtility.CreatePoint(selPts(iNewEnt*3) + epsi, "
                 "selPts(iNewEnt*3 + 1) + epsi, selPts(iNewEnt*3 + 2))%2"
                 "%1    Dim secondPoint As Inkwright.MathPoint = iwMathUtility.CreatePoint(selPts(iNewEnt*3) - epsi, "
                 "selPts(iNewEnt*3 + 1) - epsi, selPts(iNewEnt*3 + 2))%2%2"
                 "%1    iwSelectionManager.SelectByWindow(firstPoint, secondPoint, True)%2%2"
                 "%1    Dim count As Integer = iwSelectionManager.GetSelectedObjectCount("
                 "Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous)%2%2"
                 "%1    For i As Integer = 0 To count - 1%2"
                 "%1        Dim retObjType As Inkwright.iwObjectType_e%2"
                 "%1        Dim obj As Object = iwSelectionManager.GetSelectedObject("
                 "Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous, i, retObjType)%2%1        %4%2"
                 "%1    Next%2"
                 "%1    iwSelectionManager.ClearSelections(Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous)"
                 "%2%1Next%2%2",
        .vba = "%1Dim iNewEnt As Integer%2%1For iNewEnt = 0 To %3 - 1%2"
               "%1    Dim firstPoint As Inkwright.MathPoint%2"
               "%1    Set firstPoint = iwMathUtility.CreatePoint(selPts(iNewEnt*3) + epsi, "
               "selPts(iNewEnt*3 + 1) + epsi, selPts(iNewEnt*3 + 2))%2"
               "%1    Dim secondPoint As Inkwright.MathPoint%2"
               "%1    Set secondPoint = iwMathUtility.CreatePoint(selPts(iNewEnt*3) - epsi, "
               "selPts(iNewEnt*3 + 1) - epsi, selPts(iNewEnt*3 + 2))%2%2"
               "%1    iwSelectionManager.SelectByWindow firstPoint, secondPoint, True%2%2"
               "%1    Dim count As Integer%2%1    count = iwSelectionManager.GetSelectedObjectCount("
               "Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous)%2%2"
               "%1    Dim i As Integer%2%1    For i = 0 To count - 1%2"
               "%1        Dim retObjType As Inkwright.iwObjectType_e%2%1        Dim obj As Object%2"
               "%1        Set obj = iwSelectionManager.GetSelectedObject("
               "Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous, i, retObjType)%2%1        %4%2"
               "%1    Next%2"
               "%1    iwSelectionManager.ClearSelections Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous%2"
               "%1Next%2%2",
    }};

/// A search that is a function of the macro: it is handed the function that tells the numbers of an object of the
/// class.
static const Phrase findPiece{"EmitTrimEntities: piece",
                              {
                                  .python = "%1drawing.%3 = find_piece(drawing, %4, (%5), %6_numbers, (%7))%2",
                              }};

/// The numbers that are held against those of an object of the class.
static QString comparedNumbers(const SearchedClass& searched, const TrimPiece& piece)
{
    QStringList numbers;
    std::size_t first = 0;
    const auto add = [&](int count) {
        for (int i = 0; i < count; ++i)
            numbers.append(pythonReal(piece.numbers[first + static_cast<std::size_t>(i)]));
    };
    for (std::size_t i = 0; i < searched.points.size(); ++i, first += 3)
        add(searched.axes);
    add(static_cast<int>(searched.properties.size()));
    return numbers.join(QLatin1String(", "));
}

/// A statement a piece.
static Statement searchesFor(Writer& writer, const std::vector<TrimPiece>& pieces)
{
    Statement text;
    for (const TrimPiece& piece : pieces) {
        const auto searched = std::ranges::find_if(searchedClasses(), [&](const SearchedClass& candidate) {
            return FindInterface(oddbClassByName(QString::fromLatin1(candidate.name.data()))) ==
                   FindInterface(piece.entry.cls);
        });
        if (searched == searchedClasses().end())
            continue;
        const InterfaceType& type = *FindInterface(piece.entry.cls);
        text += writer.fill(findPiece)
                    .word(NumberedVariable(piece.entry.cls, piece.entry.ordinal))
                    .word(objectTypeWord(writer.target, type.enumerator))
                    .shortVector({piece.place.x, piece.place.y, piece.place.z})
                    .word(QString(type.name).toLower())
                    .word(comparedNumbers(*searched, piece))
                    .str();
    }
    return text;
}

Statement trimSearch(Writer& writer, const std::vector<TrimPiece>& pieces)
{
    if (findPiece.has(writer.target))
        return searchesFor(writer, pieces);
    const std::vector<PiecesOfClass> classes = byClass(writer.target, pieces);
    Statement resets;
    Statement sections;
    std::vector<Statement> declared;
    for (const PiecesOfClass& of : classes) {
        for (const NumberedPiece& piece : of.pieces)
            resets += writer.fill(resetVariable).word(of.declared).number(piece.ordinal).str();
        sections += sectionOf(writer, of, sections.isEmpty(), declared);
    }
    if (!sections.isEmpty())
        sections += writer.fill(endOfTests).str();
    return numbersOf(writer, pieces) + resets +
           writer.fill(searchLoop).number(qulonglong{pieces.size()}).word(sections).str();
}
