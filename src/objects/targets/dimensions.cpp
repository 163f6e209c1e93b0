// The insertion of dimensions between points and between lines.

#include "objects/targets/dimensions.h"

#include "objects/targets/dimensionPoints.h"
#include "statements/LineEnd.h"
#include "statements/wording.h"

#include <optional>
#include <vector>

using namespace inkmacro;

namespace {

/// A kind of dimension between points.
struct PointDimension
{
    const Phrase& insertion;
    std::vector<const char*> scriptArrays; ///< what a page calls the arrays, one a point
    bool briefInCpp = false;               ///< the C++ add-in writes the first point in the short form
};

} // namespace

static const Fault kUndeclaredPoints{
    "EmitInsertAlignedDimension", {Target::JavaScript}, "the arrays of the dimension's points are not declared"};

/// A page fills its arrays in front of the call, which names them by the number that all have.
static Statement insertInPage(Writer& writer, const PointDimension& kind, const std::vector<OdGePoint3d>& points,
                              const EscapedText& text, const std::optional<Statement>& last, const CFxString& name)
{
    static const Template assigned("%1%0%3 = new Array(%4, %5, %6);%2");
    static const Template declared("%1var %0%3 = new Array(%4, %5, %6);%2");
    const std::uint32_t number = ++writer.UniqueCounter;
    const auto arrays = [&](const Template& words) {
        Statement statements;
        for (std::size_t i = 0; i < points.size(); ++i)
            statements += Fill(&words)
                              .word(QLatin1String(kind.scriptArrays[i]))
                              .indent(writer.IndentLevel)
                              .word(LineEnd)
                              .number(number)
                              .point(points[i])
                              .str();
        return statements;
    };
    Fill call = writer.fill(kind.insertion);
    call.word(name).text(text, Meaning::Text);
    if (last)
        call.word(*last);
    return writer.mended(arrays(assigned), kUndeclaredPoints, arrays(declared)) + call.number(number).str();
}

/// `last` is the argument behind the text, where the call takes one more.
static Statement insertOnPoints(Writer& writer, const PointDimension& kind, const std::vector<OdGePoint3d>& points,
                                const EscapedText& text, const std::optional<Statement>& last, const CFxString& name)
{
    if (writer.target == Target::JavaScript)
        return insertInPage(writer, kind, points, text, last, name);

    Fill call = writer.fill(kind.insertion);
    std::span<const OdGePoint3d> longPoints(points);
    if (writer.target == Target::Cpp && kind.briefInCpp) {
        call.shortPoint(longPoints.front());
        longPoints = longPoints.subspan(1);
    }
    fillDimensionPoints(writer, call, longPoints);
    call.text(text, Meaning::Text);
    if (last)
        call.word(*last);
    if (writer.target == Target::Vba)
        call.number(++writer.UniqueCounter);
    return call.word(name);
}

static const Phrase insertAlignedDimension{
    "EmitInsertAlignedDimension",
    {
        .cpp = "%1iwDoubleArray Coordinates1,Coordinates2,Coordinates3;%2"
               "%1Coordinates1.clear();Coordinates2.clear();Coordinates3.clear(); %2"
               "%1Coordinates1.add(%3);Coordinates1.add(%4);Coordinates1.add(%5);%2"
               "%1Coordinates2.add(%6);Coordinates2.add(%7);Coordinates2.add(%8);%2"
               "%1Coordinates3.add(%9);Coordinates3.add(%10);Coordinates3.add(%11);%2"
               "%1iwSketchManager->InsertAlignedDimension( Coordinates1, Coordinates2, Coordinates3, "
               "L\"%12\", &%13 );%2",
        .cppCom = "%1double x, y, z;%2%1VARIANT variant%3,variant%5,variant%7;%2"
                  "%1variant%3.vt = ( VT_ARRAY | VT_R8 );%2%1variant%5.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1variant%7.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1variant%3.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2"
                  "%1variant%5.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2"
                  "%1variant%7.parray = SafeArrayCreateVector( VT_R8, 0, 3);%2%4%2%6%2%8%2"
                  "%1%10 = iwSketchManager->InsertAlignedDimension( variant%3, variant%5, variant%7, L\"%9\" );%2",
        .csharp = "%1%13 = iwSketchManager.InsertAlignedDimension( new double[]{%3,%4,%5}, new double[]{%6,%7,%8}, "
                  "new double[]{%9,%10,%11}, \"%12\" );%2",
        .javascript = "%1var %3 = mSkMgr.InsertAlignedDimension(ExtLineOne%5, ExtLineTwo%5, DimLine%5, \"%4\");%2",
        .vbNet = "%1%13 = iwSketchManager.InsertAlignedDimension( New double(){%3,%4,%5}, New double(){%6,%7,%8}, "
                 "new double(){%9,%10,%11}, \"%12\" )%2",
        .vba = "%1Dim extLine1Point%13(2) As Double%2%1extLine1Point%13(0) = %3%2%1extLine1Point%13(1) = %4%2"
               "%1extLine1Point%13(2) = %5%2"
               "%1Dim extLine2Point%13(2) As Double%2%1extLine2Point%13(0) = %6%2%1extLine2Point%13(1) = %7%2"
               "%1extLine2Point%13(2) = %8%2"
               "%1Dim dimLinePoint%13(2) As Double%2%1dimLinePoint%13(0) = %9%2%1dimLinePoint%13(1) = %10%2"
               "%1dimLinePoint%13(2) = %11%2"
               "%1Set %14 = iwSketchManager.InsertAlignedDimension( extLine1Point%13, extLine2Point%13, "
               "dimLinePoint%13, \"%12\" )%2",
        .python = "%1%7 = drawing.sketch.InsertAlignedDimension(reals(%3), reals(%4), reals(%5), %6)%2",
    }};

Statement EmitInsertAlignedDimension(Writer& writer, const OdGePoint3d& first, const OdGePoint3d& second,
                                     const OdGePoint3d& dimensionLine, const EscapedText& text, const CFxString& name)
{
    static const PointDimension kind{insertAlignedDimension, {"ExtLineOne", "ExtLineTwo", "DimLine"}};
    return insertOnPoints(writer, kind, {first, second, dimensionLine}, text, {}, name);
}

static const Phrase insertAngularDimension3Point{
    "EmitInsertAngularDimension3Point",
    {
        .cpp = "%1iwDoubleArray Coordinates1,Coordinates2,Coordinates3,Coordinates4;%2"
               "%1Coordinates1.clear();Coordinates2.clear();Coordinates3.clear();Coordinates4.clear(); %2"
               "%1Coordinates1.add(%3);Coordinates1.add(%4);Coordinates1.add(%5);%2"
               "%1Coordinates2.add(%6);Coordinates2.add(%7);Coordinates2.add(%8);%2"
               "%1Coordinates3.add(%9);Coordinates3.add(%10);Coordinates3.add(%11);%2"
               "%1Coordinates4.add(%12);Coordinates4.add(%13);Coordinates4.add(%14);%2"
               "%1iwSketchManager->InsertAngularDimension3Point( Coordinates1, Coordinates2, Coordinates3, "
               "Coordinates4, L\"%15\", &%16 );%2",
        .cppCom = "%1double x, y, z;%2%1VARIANT variant%3,variant%5,variant%7,variant%9;%2"
                  "%1variant%3.vt = ( VT_ARRAY | VT_R8 );%2%1variant%5.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1variant%7.vt = ( VT_ARRAY | VT_R8 );%2%1variant%9.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1variant%3.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2"
                  "%1variant%5.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2"
                  "%1variant%7.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2"
                  "%1variant%9.parray = SafeArrayCreateVector( VT_R8, 0, 3);%2%4%2%6%2%8%2%10%2"
                  "%1%12 = iwSketchManager->InsertAngularDimension3Point( variant%3, variant%5, variant%7, variant%9, "
                  "L\"%11\" );%2",
        .csharp = "%1%16 = iwSketchManager.InsertAngularDimension3Point(%2%1new double[]{%3,%4,%5},%2"
                  "%1new double[]{%6,%7,%8},%2%1new double[]{%9,%10,%11},%2%1new double[]{%12,%13,%14}, \"%15\" );%2",
        .javascript = "%1var %3 = mSkMgr.InsertAngularDimension3Point(CenterPoint%5, ExtLineOne%5, ExtLineTwo%5, "
                      "DimLine%5, \"%4\");%2",
        .vbNet = "%1%16 = iwSketchManager.InsertAngularDimension3Point( New double(){%3,%4,%5}, "
                 "New double(){%6,%7,%8}, New double(){%9,%10,%11}, new double(){%12,%13,%14}, \"%15\" )%2",
        .vba = "%1Dim centerPoint_3Point%16(2) As Double%2%1centerPoint_3Point%16(0) = %3%2"
               "%1centerPoint_3Point%16(1) = %4%2%1centerPoint_3Point%16(2) = %5%2"
               "%1Dim extLine1Point_3Point%16(2) As Double%2%1extLine1Point_3Point%16(0) = %6%2"
               "%1extLine1Point_3Point%16(1) = %7%2%1extLine1Point_3Point%16(2) = %8%2"
               "%1Dim extLine2Point_3Point%16(2) As Double%2%1extLine2Point_3Point%16(0) = %9%2"
               "%1extLine2Point_3Point%16(1) = %10%2%1extLine2Point_3Point%16(2) = %11%2"
               "%1Dim dimPositionPoint_3Point%16(2) As Double%2%1dimPositionPoint_3Point%16(0) = %12%2"
               "%1dimPositionPoint_3Point%16(1) = %13%2%1dimPositionPoint_3Point%16(2) = %14%2"
               "%1Set %17 = iwSketchManager.InsertAngularDimension3Point( centerPoint_3Point%16, "
               "extLine1Point_3Point%16, extLine2Point_3Point%16, dimPositionPoint_3Point%16, \"%15\" )%2",
        .python = "%1%8 = drawing.sketch.InsertAngularDimension3Point(reals(%3), reals(%4), reals(%5), "
                  "reals(%6), %7)%2",
    }};

Statement EmitInsertAngularDimension3Point(Writer& writer, const OdGePoint3d& center, const OdGePoint3d& first,
                                           const OdGePoint3d& second, const OdGePoint3d& arcPoint,
                                           const EscapedText& text, const CFxString& name)
{
    static const PointDimension kind{
        insertAngularDimension3Point, {"CenterPoint", "ExtLineOne", "ExtLineTwo", "DimLine"}, true};
    return insertOnPoints(writer, kind, {center, first, second, arcPoint}, text, {}, name);
}

static const Phrase insertOrdinateDimension{
    "EmitInsertOrdinateDimension",
    {
        .cpp = "%1iwDoubleArray Coordinates1,Coordinates2;%2%1Coordinates1.clear();Coordinates2.clear(); %2"
               "%1Coordinates1.add(%3);Coordinates1.add(%4);Coordinates1.add(%5);%2"
               "%1Coordinates2.add(%6);Coordinates2.add(%7);Coordinates2.add(%8);%2"
               "%1iwSketchManager->InsertOrdinateDimension( Coordinates1, Coordinates2, L\"%9\", %10, &%11 );%2",
        .cppCom = "%1double x, y, z;%2%1VARIANT variant%3,variant%5;%2"
                  "%1variant%3.vt = ( VT_ARRAY | VT_R8 );%2%1variant%5.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1variant%3.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2"
                  "%1variant%5.parray = SafeArrayCreateVector( VT_R8, 0, 3);%2%4%2%6%2"
                  "%1%9 = iwSketchManager->InsertOrdinateDimension( variant%3, variant%5, L\"%7\", %8 );%2",
        .csharp = "%1%11 = iwSketchManager.InsertOrdinateDimension(%2%1new double[]{%3,%4,%5},%2"
                  "%1new double[]{%6,%7,%8},%2%1\"%9\", %10 );%2",
        .javascript = "%1var %3 = mSkMgr.InsertOrdinateDimension(ExtLineOne%6, ExtLineTwo%6, \"%4\", \"%5\");%2",
        .vbNet = "%1%11 = iwSketchManager.InsertOrdinateDimension( New double(){%3,%4,%5}, new double(){%6,%7,%8}, "
                 "\"%9\", %10 )%2",
        .vba = "%1Dim extLine1Point_Ord%11(2) As Double%2%1extLine1Point_Ord%11(0) = %3%2"
               "%1extLine1Point_Ord%11(1) = %4%2%1extLine1Point_Ord%11(2) = %5%2"
               "%1Dim extLine2Point_Ord%11(2) As Double%2%1extLine2Point_Ord%11(0) = %6%2"
               "%1extLine2Point_Ord%11(1) = %7%2%1extLine2Point_Ord%11(2) = %8%2"
               "%1Set %12 = iwSketchManager.InsertOrdinateDimension( extLine1Point_Ord%11, extLine2Point_Ord%11, "
               "\"%9\", %10 )%2",
        .python = "%1%7 = drawing.sketch.InsertOrdinateDimension(reals(%3), reals(%4), %5, %6)%2",
    }};

Statement EmitInsertOrdinateDimension(Writer& writer, const OdGePoint3d& point, const OdGePoint3d& leaderEnd,
                                      bool usesXAxis, const EscapedText& text, const CFxString& name)
{
    static const PointDimension kind{insertOrdinateDimension, {"ExtLineOne", "ExtLineTwo"}};
    const QString measure = usesXAxis ? "iwOrdinateDimensionMeasure_UseXAxis" : "iwOrdinateDimensionMeasure_UseYAxis";
    return insertOnPoints(writer, kind, {point, leaderEnd}, text,
                          enumeratorText(writer.target, "iwOrdinateDimensionMeasure_e", measure), name);
}

static const Phrase insertRotatedDimension{
    "EmitInsertRotatedDimension",
    {
        .cpp = "%1iwDoubleArray Coordinates1,Coordinates2,Coordinates3;%2"
               "%1Coordinates1.clear();Coordinates2.clear();Coordinates3.clear(); %2"
               "%1Coordinates1.add(%3);Coordinates1.add(%4);Coordinates1.add(%5);%2"
               "%1Coordinates2.add(%6);Coordinates2.add(%7);Coordinates2.add(%8);%2"
               "%1Coordinates3.add(%9);Coordinates3.add(%10);Coordinates3.add(%11);%2"
               "%1iwSketchManager->InsertRotatedDimension( Coordinates1, Coordinates2, Coordinates3, "
               "L\"%12\", %13, &%14 );%2",
        .cppCom = "%1double x, y, z;%2%1VARIANT variant%3,variant%5,variant%7;%2"
                  "%1variant%3.vt = ( VT_ARRAY | VT_R8 );%2%1variant%5.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1variant%7.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1variant%3.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2"
                  "%1variant%5.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2"
                  "%1variant%7.parray = SafeArrayCreateVector( VT_R8, 0, 3);%2%4%2%6%2%8%2"
                  "%1%11 = iwSketchManager->InsertRotatedDimension( variant%3, variant%5, variant%7, "
                  "L\"%9\", %10 );%2",
        .csharp = "%1%14 = iwSketchManager.InsertRotatedDimension(%2%1new double[]{%3,%4,%5},%2"
                  "%1new double[]{%6,%7,%8},%2%1new double[]{%9,%10,%11},%2%1\"%12\", %13 );%2",
        .javascript = "%1var %3 = mSkMgr.InsertRotatedDimension(ExtLineOne%6, ExtLineTwo%6, DimLine%6, \"%4\", %5);%2",
        .vbNet = "%1%14 = iwSketchManager.InsertRotatedDimension( New double(){%3,%4,%5}, New double(){%6,%7,%8}, "
                 "new double(){%9,%10,%11}, \"%12\", %13 )%2",
        .vba = "%1Dim extLine1Point_Rot%14(2) As Double%2%1extLine1Point_Rot%14(0) = %3%2"
               "%1extLine1Point_Rot%14(1) = %4%2%1extLine1Point_Rot%14(2) = %5%2"
               "%1Dim extLine2Point_Rot%14(2) As Double%2%1extLine2Point_Rot%14(0) = %6%2"
               "%1extLine2Point_Rot%14(1) = %7%2%1extLine2Point_Rot%14(2) = %8%2"
               "%1Dim dimLinePoint_Rot%14(2) As Double%2%1dimLinePoint_Rot%14(0) = %9%2"
               "%1dimLinePoint_Rot%14(1) = %10%2%1dimLinePoint_Rot%14(2) = %11%2"
               "%1Set %15 = iwSketchManager.InsertRotatedDimension( extLine1Point_Rot%14, extLine2Point_Rot%14, "
               "dimLinePoint_Rot%14, \"%12\", %13 )%2",
        .python = "%1%8 = drawing.sketch.InsertRotatedDimension(reals(%3), reals(%4), reals(%5), %6, "
                  "%7)%2",
    }};

Statement EmitInsertRotatedDimension(Writer& writer, const OdGePoint3d& first, const OdGePoint3d& second,
                                     const OdGePoint3d& dimensionLine, double rotation, const EscapedText& text,
                                     const CFxString& name)
{
    static const PointDimension kind{insertRotatedDimension, {"ExtLineOne", "ExtLineTwo", "DimLine"}};
    static const Template number("%1");
    const Statement angle = writer.target == Target::Cpp ? writer.fill(number).shortReal(rotation, Meaning::Angle)
                                                         : writer.fill(number).real(rotation, Meaning::Angle);
    return insertOnPoints(writer, kind, {first, second, dimensionLine}, text, angle, name);
}

/// COM draws its lines within the insertion.
static const Phrase insertTemporaryLine{
    "EmitInsertAngularDimension2Line: temporary line",
    {
        .cpp = "%1iwLine_ptr %3;%2%1iwSketchManager->InsertLine(%4, %5, %6, %7, %8, %9, &%3);%2",
        .csharp = "%1Line %3 = iwSketchManager.InsertLine( %4, %5, %6, %7, %8, %9 );%2",
        .javascript = "%1var %3 = mSkMgr.InsertLine(%4, %5, %6, %7, %8, %9);%2",
        .vbNet = "%1Dim %3 As Inkwright.Line%2%1%3 = iwSketchManager.InsertLine( %4, %5, %6, %7, %8, %9 )%2",
        .vba = "%1Dim %3 As Inkwright.Line%2%1Set %3 = iwSketchManager.InsertLine( %4, %5, %6, %7, %8, %9 )%2",
        .python = "%1%3 = drawing.sketch.InsertLine(%4, %5)%2",
    }};

static const Phrase eraseTemporaryLine{"EmitInsertAngularDimension2Line: erasure of a line",
                                       {
                                           .cpp = "%1%3->put_Erased(true);%2",
                                           .csharp = "%1%3.Erased = true;%2",
                                           .javascript = "%1%3.put_Erased(true);%2",
                                           .vbNet = "%1%3.Erased = true%2",
                                           .vba = "%1%3.Erased = True%2",
                                           .python = "%1%3.Erased = True%2",
                                       }};

static const Phrase insertAngularDimension2Line{
    "EmitInsertAngularDimension2Line",
    {
        .cpp = "%1{%2%1    iwDoubleArray dimPositionPoint;%2"
               "%1    dimPositionPoint.add(%5); dimPositionPoint.add(%6); dimPositionPoint.add(%7);%2"
               "%1    iwSketchManager->InsertAngularDimension2Line(%3, %4, dimPositionPoint, L\"%8\", &%9);%2%1}%2",
        .cppCom = "%1{%2%1    ILinePtr iwLine1,iwLine2;%2%1    double x, y, z;%2%1    VARIANT variant%3;%2"
                  "%1    variant%3.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1    variant%3.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2%1%4%2"
                  "%1    iwLine1 =iwSketchManager->InsertLine( %5, %6, %7, %8, %9, %10);%2"
                  "%1    iwLine2 = iwSketchManager->InsertLine(  %11, %12, %13, %14, %15, %16 );%2"
                  "%1    %18=iwSketchManager->InsertAngularDimension2Line( iwLine1, iwLine2, variant%3, "
                  "L\"%17\" );%2%1}%2",
        .csharp = "%1%9 = iwSketchManager.InsertAngularDimension2Line( %3, %4, new double[]{%5,%6,%7}, \"%8\" );%2",
        .javascript = "%1%9 = mSkMgr.InsertAngularDimension2Line(%3, %4, new Array(%5,%6,%7), \"%8\");%2",
        .vbNet = "%1%9 = iwSketchManager.InsertAngularDimension2Line( %3, %4, new double(){%5,%6,%7}, \"%8\" )%2",
        .vba = "%1Dim dimPositionPoint_2Line%10(2) As Double%2%1dimPositionPoint_2Line%10(0) = %5%2"
               "%1dimPositionPoint_2Line%10(1) = %6%2%1dimPositionPoint_2Line%10(2) = %7%2"
               "%1Set %9 = iwSketchManager.InsertAngularDimension2Line( %3, %4, dimPositionPoint_2Line%10, "
               "\"%8\" )%2",
        .python = "%1%7 = drawing.sketch.InsertAngularDimension2Line(%3, %4, reals(%5), %6)%2",
    }};
static const Mend declaredAngularDimension2Line(
    insertAngularDimension2Line, Target::JavaScript, "the dimension's variable is not declared",
    "%1var %9 = mSkMgr.InsertAngularDimension2Line(%3, %4, new Array(%5,%6,%7), \"%8\");%2");

bool MeasuresFromVariables(const Writer& writer)
{
    return writer.target != Target::CppCom;
}

/// Draws both lines in the block of the dimension.
static Statement insertWithOwnLines(Writer& writer, const DimensionLine& first, const DimensionLine& second,
                                    const OdGePoint3d& arcPoint, const EscapedText& text, const CFxString& name)
{
    Fill insertion = writer.fill(insertAngularDimension2Line);
    fillDimensionPoints(writer, insertion, {&arcPoint, 1});
    return insertion.point(first.start)
        .point(first.end)
        .point(second.start)
        .point(second.end)
        .text(text, Meaning::Text)
        .word(name);
}

Statement EmitInsertAngularDimension2Line(Writer& writer, const DimensionLine& first, const DimensionLine& second,
                                          const OdGePoint3d& arcPoint, const EscapedText& text, const CFxString& name)
{
    if (!MeasuresFromVariables(writer))
        return insertWithOwnLines(writer, first, second, arcPoint, text, name);

    Statement creation;
    Statement erasure;
    const auto nameOf = [&](const DimensionLine& line, const char* suffix, const char* local) {
        if (!line.variable.isEmpty())
            return line.variable;
        // What the macro draws for a moment only is nothing of the drawing that its functions share.
        QString temporary = writer.target == Target::Python ? QString(local) : name.toQString() + suffix;
        creation += writer.fill(insertTemporaryLine).word(temporary).point(line.start).point(line.end).str();
        erasure += writer.fill(eraseTemporaryLine).word(temporary).str();
        return temporary;
    };
    const QString firstName = nameOf(first, "_associated_line1", "first_line");
    const QString secondName = nameOf(second, "_associated_line2", "second_line");
    Fill insertion = writer.fill(insertAngularDimension2Line);
    insertion.word(firstName).word(secondName).point(arcPoint).text(text, Meaning::Text).word(name);
    if (writer.target == Target::Vba)
        insertion.number(++writer.UniqueCounter);
    return creation + insertion.str() + erasure;
}
