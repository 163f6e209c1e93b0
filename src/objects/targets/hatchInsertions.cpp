// The insertion of hatches.

#include "objects/targets/hatchInsertions.h"

#include "statements/LineEnd.h"
#include "statements/arrays.h"

using namespace inkmacro;

/// The array has no number, so a second one in the same group of statements is declared again. It has to stay so. COM
/// declares its array with the call, and in Python it is an expression there.
static const Phrase entitiesHead{"EmitInsertHatchByEntities: array",
                                 {
                                     .cpp = "%1iwObjectPtrArray iwEntities;%2",
                                     .csharp = "%2DispatchWrapper[] iwEntities = new DispatchWrapper[%1];",
                                     .javascript = "%2var iwEntities = new Array(%1);",
                                     .vbNet = "%1Dim iwEntities As DispatchWrapper() = New DispatchWrapper(%3) {}%2",
                                     .vba = "%1Dim iwEntities(%3) As Object%2",
                                 }};

static const Phrase insertByEntities{
    "EmitInsertHatchByEntities",
    {
        .cpp = "%1iwSketchManager->InsertHatchByEntities(%2%1 iwEntities, %2%1 L\"%3\", %2%1 %4, %2%1 %5, %2%1 &%6 );"
               "%2",
        .cppCom = "%1VARIANT EntityArray%3;%2%1EntityArray%3.vt = ( VT_ARRAY | VT_DISPATCH );%2"
                  "%1EntityArray%3.parray = SafeArrayCreateVector( VT_DISPATCH, 0, %9);%2%4%2"
                  "%1%8=iwSketchManager->InsertHatchByEntities(EntityArray%3,L\"%5\",%6,%7 );%2",
        .csharp = "%1%6 = iwSketchManager.InsertHatchByEntities(%2%1 iwEntities, %2%1 \"%3\", %2%1 %4, %2%1 %5 );%2",
        .javascript = "%1%6 = mSkMgr.InsertHatchByEntities(iwEntities, \"%3\", %4, %5);%2",
        .vbNet = "%1%6 = iwSketchManager.InsertHatchByEntities( iwEntities, \"%3\", %4, %5 )%2",
        .vba = "%1Set %6 = iwSketchManager.InsertHatchByEntities( iwEntities, \"%3\", %4, %5 )%2",
        .python = "%1%6 = drawing.sketch.InsertHatchByEntities(objects(%7), %3, %4, %5)%2",
    }};
static const Mend declaredHatch(insertByEntities, Target::JavaScript, "the hatch's variable is not declared",
                                "%1var %6 = mSkMgr.InsertHatchByEntities(iwEntities, \"%3\", %4, %5);%2");

/// What an element of the array names. A region's variable is an array itself in VBA.
static std::vector<QString> elementWords(Target target, std::vector<QString> names)
{
    if (target == Target::Vba) {
        for (QString& name : names)
            if (name.contains(QLatin1String("region"), Qt::CaseInsensitive))
                name += QLatin1String("(0)");
    }
    return names;
}

static Statement entityArray(Writer& writer, const std::vector<QString>& names)
{
    const Statement lines =
        objectLines({writer, QStringLiteral("iwEntities"), 0, Brackets::Tight}, elementWords(writer.target, names));
    if (writer.target == Target::CSharp || writer.target == Target::JavaScript)
        return writer.fillPlain(entitiesHead).number(qulonglong{names.size()}).indent(writer.IndentLevel).str() +
               LineEnd + lines;
    return writer.fill(entitiesHead).number(arrayBound(writer, names.size())).str() + lines;
}

static Statement comInsertionByEntities(Writer& writer, const CFxString& hatch, const std::vector<QString>& names,
                                        const HatchPattern& pattern)
{
    const std::uint32_t number = ++writer.UniqueCounter;
    const Statement lines = objectLines({writer, "EntityArray" + QString::number(number), number}, names);
    return writer.fill(insertByEntities)
        .number(number)
        .word(lines)
        .text(pattern.name, Meaning::Text)
        .real(pattern.first, Meaning::Factor)
        .real(pattern.second, Meaning::Angle)
        .word(hatch)
        .number(qulonglong{names.size()});
}

Statement EmitInsertHatchByEntities(Writer& writer, const CFxString& hatch, const std::vector<BoundaryObject>& boundary,
                                    const HatchPattern& pattern, bool erase)
{
    const BoundaryEntities entities = EmitBoundaryEntities(writer, boundary);
    const bool erased = erase && !entities.erasure.isEmpty();
    const QString separator = erased ? QString(LineEnd) : QString();
    const Statement ending = erased ? entities.erasure + LineEnd : Statement();
    if (writer.target == Target::CppCom)
        return entities.insertion + separator + comInsertionByEntities(writer, hatch, entities.names, pattern) + ending;

    Fill insertion = writer.fill(insertByEntities);
    insertion.text(pattern.name, Meaning::Text);
    if (writer.target == Target::Cpp)
        insertion.shortReal(pattern.first).shortReal(pattern.second);
    else
        insertion.real(pattern.first, Meaning::Factor).real(pattern.second, Meaning::Angle);
    insertion.word(hatch);
    const Statement array = entityArray(writer, entities.names);
    if (!entitiesHead.has(writer.target))
        return entities.insertion + insertion.word(array).str() + (erased ? entities.erasure : Statement());
    return entities.insertion + array + separator + insertion.str() + ending;
}

/// COM declares one array of the two by another's name. It has to stay so.
static const Phrase insertByBoundary{
    "EmitInsertHatchByBoundary",
    {
        .cpp = "%1iwDoubleArray Coordinates%3;%2%1iwLongArray BoundaryPointCountLongArray%3;%2"
               "%1BoundaryPointCountLongArray%3.clear();%2%1Coordinates%3.clear();%2%2%4%2%5%2"
               "%1iwSketchManager->InsertHatchByBoundary( BoundaryPointCountLongArray%3, Coordinates%3, "
               "L\"%6\", %7, %8, &%9 );%2",
        .cppCom = "%1VARIANT variant%3,BoundaryPointCountLongArray%5;%2%1variant%3.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1FaceVerticesCountLongArray%5.vt = ( VT_ARRAY | VT_I4 );%2"
                  "%1variant%3.parray = SafeArrayCreateVector( VT_R8, 0, %11 );%2"
                  "%1FaceVerticesCountLongArray%5.parray = SafeArrayCreateVector( VT_I4, 0, %12 );%2%4%2%6%2"
                  "%1 %10=iwSketchManager->InsertHatchByBoundary( BoundaryPointCountLongArray%3, variant%3, "
                  "L\"%7\", %8, %9);%2",
        .csharp = "%1%8 = iwSketchManager.InsertHatchByBoundary(%2%1 new int[]{%3}, %2%1 new double[]{%4}, %2"
                  "%1 \"%5\", %2%1 %6, %2%1 %7 );%2",
        .javascript = "%1var %8 = mSkMgr.InsertHatchByBoundary(%2%1 %3, %2%1 %4, %2%1 \"%5\", %2%1 %6, %2%1 %7);%2",
        .vbNet = "%1Dim Coordinates%3(%4) As Double%2%1Dim BoundaryPointCountLongArray%3(%5) As Long%2%6%2%7%2"
                 "%1%11 = iwSketchManager.InsertHatchByBoundary( BoundaryPointCountLongArray%3, Coordinates%3, "
                 "\"%8\", %9, %10 )%2",
        .vba = "%1Dim Coordinates%3(%4) As Double%2%1Dim BoundaryPointCountLongArray%3(%5) As Long%2%6%2%7%2"
               "%1Set %11 = iwSketchManager.InsertHatchByBoundary( BoundaryPointCountLongArray%3, Coordinates%3, "
               "\"%8\", %9, %10 )%2",
        .python = "%1%8 = drawing.sketch.InsertHatchByBoundary(integers(%3), reals(%4), %5, %6, %7)%2",
    }};
static const Mend
    countsByTheirName(insertByBoundary, Target::CppCom, "an array is declared by one name and made by another",
                      "%1VARIANT variant%3,BoundaryPointCountLongArray%5;%2%1variant%3.vt = ( VT_ARRAY | VT_R8 );%2"
                      "%1BoundaryPointCountLongArray%5.vt = ( VT_ARRAY | VT_I4 );%2"
                      "%1variant%3.parray = SafeArrayCreateVector( VT_R8, 0, %11 );%2"
                      "%1BoundaryPointCountLongArray%5.parray = SafeArrayCreateVector( VT_I4, 0, %12 );%2%4%2%6%2"
                      "%1 %10=iwSketchManager->InsertHatchByBoundary( BoundaryPointCountLongArray%3, variant%3, "
                      "L\"%7\", %8, %9);%2");

/// The values that the arrays have at the head of the call.
static void openLoops(Fill& call, const ArrayArgument& points, const ArrayArgument& counts)
{
    switch (points.target) {
    case Target::Cpp:
        call.number(points.number).word(points.words).word(counts.words);
        break;
    case Target::CppCom:
        call.number(points.number).word(points.words).number(counts.number).word(counts.words);
        break;
    case Target::CSharp:
    case Target::JavaScript:
    case Target::Python:
        call.word(counts.words).word(points.words);
        break;
    case Target::VbNet:
    case Target::Vba:
        call.number(points.number).number(points.highestIndex()).number(counts.highestIndex());
        call.word(points.words).word(counts.words);
        break;
    }
}

Statement EmitInsertHatchByBoundary(Writer& writer, const CFxString& hatch, const OdArray<int>& counts,
                                    const OdArray<OdGePoint2d>& points, const HatchPattern& pattern)
{
    const ArrayArgument coordinates =
        coordinateArray(writer, planar(points), "hatchPoints", NumberForm::Long, Brackets::Spaced);
    const ArrayArgument loops = integerArray(writer, {counts.begin(), counts.end()}, coordinates.number,
                                             "BoundaryPointCountLongArray", "boundaryPointsCount", Brackets::Spaced);
    Fill call = writer.fill(insertByBoundary);
    openLoops(call, coordinates, loops);
    call.text(pattern.name, Meaning::Text)
        .real(pattern.first, Meaning::Factor)
        .real(pattern.second, Meaning::Angle)
        .word(hatch);
    return coordinates.before + loops.before + loops.close(coordinates.close(call)).str();
}

static const Phrase insertByInternalPoints{
    "EmitInsertHatchByInternalPoints",
    {
        .cpp = "%1iwDoubleArray Coordinates%3;%2%1Coordinates%3.clear();%2%2%4%2"
               "%1iwSketchManager->InsertHatchByInternalPoints( Coordinates%3, L\"%5\", %6, %7, &%8 );%2",
        .cppCom = "%1VARIANT variant%3;%2%1variant%3.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1variant%3.parray = SafeArrayCreateVector( VT_R8, 0, %9 );%2%4%2"
                  "%1%8=iwSketchManager->InsertHatchByInternalPoints( variant%3, L\"%5\", %6, %7);%2",
        .csharp = "%1%7 = iwSketchManager.InsertHatchByInternalPoints(%2%1 new double[]{%3}, %2%1 \"%4\", %2%1 %5, %2"
                  "%1 %6 );%2",
        .javascript = "%1var %7 = mSkMgr.InsertHatchByInternalPoints(%3, \"%4\", %5, %6);%2",
        .vbNet = "%1Dim Coordinates%3(%4) As Double%2%5%2"
                 "%1%9 = iwSketchManager.InsertHatchByInternalPoints( Coordinates%3, \"%6\", %7, %8 )%2",
        .vba = "%1Dim Coordinates%3(%4) As Double%2%5%2"
               "%1Set %9 = iwSketchManager.InsertHatchByInternalPoints( Coordinates%3, \"%6\", %7, %8 )%2",
        .python = "%1%7 = drawing.sketch.InsertHatchByInternalPoints(reals(%3), %4, %5, %6)%2",
    }};

Statement EmitInsertHatchByInternalPoints(Writer& writer, const CFxString& hatch, const OdArray<OdGePoint2d>& points,
                                          const HatchPattern& pattern)
{
    const ArrayArgument coordinates =
        coordinateArray(writer, planar(points), "hatchPointsInter", NumberForm::Long, Brackets::Spaced);
    Fill call = writer.fill(insertByInternalPoints);
    coordinates.open(call)
        .text(pattern.name, Meaning::Text)
        .real(pattern.first, Meaning::Factor)
        .real(pattern.second, Meaning::Angle)
        .word(hatch);
    return coordinates.before + coordinates.close(call).str();
}
