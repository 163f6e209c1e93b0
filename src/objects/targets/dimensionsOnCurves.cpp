// The insertion of dimensions on circles and arcs.

#include "objects/targets/dimensionsOnCurves.h"

#include "host/db/OdDbClasses.h"
#include "objects/targets/dimensionPoints.h"
#include "statements/LineEnd.h"

#include <vector>

using namespace inkmacro;

namespace {

enum class Shape
{
    Circle,
    Arc
};

/// One insertion call. In its literals `%0` is the call, and a VBA array ends in a value of suffix and number. Python
/// counts from 1: there the call is `%1`, the indentation `%2` and the line end `%3`.
struct CurveDimension
{
    const char* call;
    Shape shape; ///< of the curve that the call takes
    const char* basicSuffix;
    const Phrase& onVariable;
    const Phrase& onTemporary;
    bool briefArc = false;  ///< C++ and Basic have the temporary arc in the short form
    bool nameFirst = false; ///< the variable is a value ahead of the points, but not where C# or Python uses a variable
};

void fillArc(Fill& insertion, const OdDbArc& arc, bool brief)
{
    const double angles[] = {arc.startAngle(), arc.endAngle()};
    if (brief)
        insertion.shortPoint(arc.center()).shortReal(arc.radius()).shortReal(angles[0]).shortReal(angles[1]);
    else
        insertion.point(arc.center()).real(arc.radius()).real(angles[0]).real(angles[1]);
}

/// Raises OdError_NotThatKindOfClass for an object of another shape.
void fillShape(Fill& insertion, const CurveDimension& kind, Target target, const OdDbObject& object)
{
    if (kind.shape == Shape::Arc) {
        fillArc(insertion, *odrxCast<OdDbArc>(&object), kind.briefArc && (target == Target::Cpp || isBasic(target)));
        return;
    }
    const auto circle = odrxCast<OdDbCircle>(&object);
    insertion.point(circle->center()).real(circle->radius());
}

QString temporaryName(const CurveDimension& kind, const CFxString& name)
{
    return name.toQString() + (kind.shape == Shape::Circle ? "_associated_circle" : "_associated_arc");
}

} // namespace

static Statement insertOnCurve(Writer& writer, const CurveDimension& kind, const MeasuredCurve& curve,
                               const std::vector<OdGePoint3d>& points, const EscapedText& text, const CFxString& name)
{
    const Target target = writer.target;
    const bool temporary = curve.variable.isEmpty() || !kind.onVariable.has(target);
    const bool nameFirst = kind.nameFirst && (temporary || target == Target::Cpp);
    const QString curveName = temporary ? temporaryName(kind, name) : curve.variable;

    Fill insertion = writer.fillPlain(temporary ? kind.onTemporary : kind.onVariable);
    insertion.word(QLatin1String(kind.call)).indent(writer.IndentLevel).word(LineEnd).word(curveName);
    if (temporary)
        fillShape(insertion, kind, target, *curve.object);
    if (nameFirst)
        insertion.word(name);
    fillDimensionPoints(writer, insertion, points);
    insertion.text(text, Meaning::Text);
    if (target == Target::Vba)
        insertion.word(kind.basicSuffix + QString::number(++writer.UniqueCounter));
    if (!nameFirst)
        insertion.word(name);
    return insertion;
}

// The literals outside C++ and C# that angular dimensions and whole arcs have in common.

static constexpr char comOnArc[] = "%1{%2%1    double x, y, z;%2%1    VARIANT variant%4;%2"
                                   "%1    variant%4.vt = ( VT_ARRAY | VT_R8 );%2"
                                   "%1    variant%4.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2%5%2"
                                   "%1    %7=iwSketchManager->%0( %3,variant%4, L\"%6\");%2%1}%2";
static constexpr char comOnTemporaryArc[] =
    "%1ICircleArcPtr %3; %3 = iwSketchManager->InsertArc( %4, %5, %6, %7, %8, %9 );%2"
    "%1{%2%1    double x, y, z;%2%1    VARIANT variant%10;%2%1    variant%10.vt = ( VT_ARRAY | VT_R8 );%2"
    "%1    variant%10.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2%11%2"
    "%1    %13=iwSketchManager->%0( %3,variant%10, L\"%12\");%2%1    %3->put_Erased(true);%2%1}%2";
static constexpr char scriptOnArc[] = "%1var %8 = mSkMgr.%0(%3, new Array(%4,%5,%6), \"%7\");%2";
static constexpr char scriptOnTemporaryArc[] =
    "%1var %3 = mSkMgr.InsertArc(%4, %5, %6, %7, %8, %9);%2"
    "%1var %14 = mSkMgr.%0(%3, new Array(%10,%11,%12), \"%13\");%2%1%3.put_Erased( true );%2";
static constexpr char vbNetOnArc[] = "%1%8 = iwSketchManager.%0( %3, new double(){%4,%5,%6}, \"%7\" )%2";
static constexpr char vbNetOnTemporaryArc[] =
    "%1Dim %3 As Inkwright.CircleArc%2%1%3 = iwSketchManager.InsertArc( %4, %5, %6, %7, %8, %9 )%2"
    "%1%14 = iwSketchManager.%0( %3, new double(){%10,%11,%12}, \"%13\" )%2%1%3.Erased = true%2";
static constexpr char vbaOnArc[] =
    "%1Dim dimPositionPoint%8(2) As Double%2%1dimPositionPoint%8(0) = %4%2%1dimPositionPoint%8(1) = %5%2"
    "%1dimPositionPoint%8(2) = %6%2%1Set %9 = iwSketchManager.%0( %3, dimPositionPoint%8, \"%7\" )%2";
static constexpr char vbaOnTemporaryArc[] =
    "%1Dim %3 As Inkwright.CircleArc%2%1Set %3 = iwSketchManager.InsertArc( %4, %5, %6, %7, %8, %9 )%2"
    "%1Dim dimPositionPoint%14(2) As Double%2%1dimPositionPoint%14(0) = %10%2%1dimPositionPoint%14(1) = %11%2"
    "%1dimPositionPoint%14(2) = %12%2%1Set %15 = iwSketchManager.%0( %3, dimPositionPoint%14, \"%13\" )%2"
    "%1%3.Erased = True%2";

static constexpr char pythonOnCurve[] = "%2%7 = drawing.sketch.%1(%4, reals(%5), %6)%3";
static constexpr char pythonByPoints[] = "%2%9 = drawing.sketch.%1(%4, reals(%5), reals(%6), reals(%7), %8)%3";
static constexpr char pythonOnTemporaryArc[] = "%2measured_arc = drawing.sketch.InsertArc(%5, %6, %7, %8)%3"
                                               "%2%11 = drawing.sketch.%1(measured_arc, reals(%9), %10)%3"
                                               "%2measured_arc.Erased = True%3";

static const Phrase angularOnArc{
    "EmitInsertAngularDimensionArc",
    {
        .cpp = "%1{%2%1    iwDoubleArray dimPositionPoint;%2"
               "%1    dimPositionPoint.add(%4); dimPositionPoint.add(%5); dimPositionPoint.add(%6);%2"
               "%1    iwSketchManager->%0( %3, dimPositionPoint, L\"%7\", &%8 );%2%1}%2",
        .cppCom = comOnArc,
        .csharp = "%1%8 = iwSketchManager.%0( %3, %2%1new double[]{%4,%5,%6}, \"%7\" );%2",
        .javascript = scriptOnArc,
        .vbNet = vbNetOnArc,
        .vba = vbaOnArc,
        .python = pythonOnCurve,
    }};

/// In C++ the plain text `&14` has to stay, so that the dimension's variable is not assigned there.
static const Phrase angularOnTemporaryArc{
    "EmitInsertAngularDimensionArc",
    {
        .cpp = "%1iwCircleArc_ptr %3;%2%1iwSketchManager->InsertArc(%4, %5, %6, %7, %8, %9, &%3);%2"
               "%1{%2%1    iwDoubleArray dimPositionPoint;%2"
               "%1    dimPositionPoint.add(%10); dimPositionPoint.add(%11); dimPositionPoint.add(%12);%2"
               "%1    iwSketchManager->%0( %3, dimPositionPoint, L\"%13\", &14 );%2%1    %3->put_Erased(true);%2%1}%2",
        .cppCom = comOnTemporaryArc,
        .csharp = "%1CircleArc %3 = iwSketchManager.InsertArc( %4, %5, %6, %7, %8, %9 );%2"
                  "%1%14 = iwSketchManager.%0( %3, %2%1new double[]{%10,%11,%12}, \"%13\" );%2%1%3.Erased = true;%2",
        .javascript = scriptOnTemporaryArc,
        .vbNet = vbNetOnTemporaryArc,
        .vba = vbaOnTemporaryArc,
        .python = pythonOnTemporaryArc,
    }};
static const Mend dimensionHandedOver(
    angularOnTemporaryArc, Target::Cpp,
    "the sign of a placeholder is missing, so the dimension's variable is not handed over",
    "%1iwCircleArc_ptr %3;%2%1iwSketchManager->InsertArc(%4, %5, %6, %7, %8, %9, &%3);%2"
    "%1{%2%1    iwDoubleArray dimPositionPoint;%2"
    "%1    dimPositionPoint.add(%10); dimPositionPoint.add(%11); dimPositionPoint.add(%12);%2"
    "%1    iwSketchManager->%0( %3, dimPositionPoint, L\"%13\", &%14 );%2%1    %3->put_Erased(true);%2%1}%2");

Statement EmitInsertAngularDimensionArc(Writer& writer, const MeasuredCurve& arc, const OdGePoint3d& arcPoint,
                                        const EscapedText& text, const CFxString& name)
{
    static const CurveDimension kind{"InsertAngularDimensionArc", Shape::Arc, "_Arc", angularOnArc,
                                     angularOnTemporaryArc};
    return insertOnCurve(writer, kind, arc, {arcPoint}, text, name);
}

static const Phrase lengthOfArc{
    "EmitInsertArcLengthDimension",
    {
        .cpp = "%1{%2%1    iwDoubleArray dimensionPosition;%2"
               "%1    dimensionPosition.add(%4); dimensionPosition.add(%5); dimensionPosition.add(%6);%2"
               "%1    iwSketchManager->%0(%3, dimensionPosition, L\"%7\", &%8);%2%1}%2",
        .cppCom = comOnArc,
        .csharp = "%1%8 = iwSketchManager.%0( %3, new double[]{%4,%5,%6}, \"%7\" );%2",
        .javascript = scriptOnArc,
        .vbNet = vbNetOnArc,
        .vba = vbaOnArc,
        .python = pythonOnCurve,
    }};

static const Phrase lengthOfTemporaryArc{
    "EmitInsertArcLengthDimension",
    {
        .cpp = "%1iwCircleArc_ptr %3;%2%1iwSketchManager->InsertArc(%4, %5, %6, %7, %8, %9, &%3);%2"
               "%1{%2%1    iwDoubleArray dimensionPosition;%2"
               "%1    dimensionPosition.add(%10); dimensionPosition.add(%11); dimensionPosition.add(%12);%2"
               "%1    iwSketchManager->%0(%3, dimensionPosition, L\"%13\", &%14);%2%1    %3->put_Erased(true);%2%1}%2",
        .cppCom = comOnTemporaryArc,
        .csharp = "%1CircleArc %3 = iwSketchManager.InsertArc( %4, %5, %6, %7, %8, %9 );%2"
                  "%1%14 = iwSketchManager.%0( %3, new double[]{%10,%11,%12}, \"%13\" );%2%1%3.Erased = true;%2",
        .javascript = scriptOnTemporaryArc,
        .vbNet = vbNetOnTemporaryArc,
        .vba = vbaOnTemporaryArc,
        .python = pythonOnTemporaryArc,
    }};

static const Phrase partialLengthOfArc{
    "EmitInsertArcLengthDimension: part of an arc",
    {
        .cpp = "%1{%2%1    iwDoubleArray firstPoint, secondPoint, dimensionPosition;%2"
               "%1    firstPoint.add(%4); firstPoint.add(%5); firstPoint.add(%6);%2"
               "%1    secondPoint.add(%7); secondPoint.add(%8); secondPoint.add(%9);%2"
               "%1    dimensionPosition.add(%10); dimensionPosition.add(%11); dimensionPosition.add(%12);%2"
               "%1    iwSketchManager->%0(%3, firstPoint, secondPoint, dimensionPosition, L\"%13\", &%14);%2%1}%2",
        .cppCom = "%1{%2%1    double x, y, z;%2%1    VARIANT variant%4,variant%6,variant%8;%2"
                  "%1    variant%4.vt = ( VT_ARRAY | VT_R8 );%2%1    variant%6.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1    variant%8.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1    variant%4.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2"
                  "%1    variant%6.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2"
                  "%1    variant%8.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2%5%2%7%2%9%2"
                  "%1    %11=iwSketchManager->%0( %3,variant%4, variant%6, variant%8, L\"%10\");%2%1}%2",
        .csharp = "%1%14 = iwSketchManager.%0( %3, new double[]{%4,%5,%6}, new double[]{%7,%8,%9}, "
                  "new double[]{%10,%11,%12}, \"%13\" );%2",
        .javascript = "%1var %14 = mSkMgr.%0(%3, new Array(%4,%5,%6), new Array(%7,%8,%9), new Array(%10,%11,%12), "
                      "\"%13\");%2",
        .vbNet = "%1%14 = iwSketchManager.%0( %3, new double(){%4,%5,%6}, new double(){%7,%8,%9}, "
                 "new double(){%10,%11,%12}, \"%13\" )%2",
        .vba = "%1Dim extLine1Point%14(2) As Double%2%1extLine1Point%14(0) = %4%2%1extLine1Point%14(1) = %5%2"
               "%1extLine1Point%14(2) = %6%2"
               "%1Dim extLine2Point%14(2) As Double%2%1extLine2Point%14(0) = %7%2%1extLine2Point%14(1) = %8%2"
               "%1extLine2Point%14(2) = %9%2"
               "%1Dim dimPositionPoint%14(2) As Double%2%1dimPositionPoint%14(0) = %10%2"
               "%1dimPositionPoint%14(1) = %11%2%1dimPositionPoint%14(2) = %12%2"
               "%1Set %15 = iwSketchManager.%0( %3, extLine1Point%14, extLine2Point%14, dimPositionPoint%14, "
               "\"%13\" )%2",
        .python = pythonByPoints,
    }};

static const Phrase partialLengthOfTemporaryArc{
    "EmitInsertArcLengthDimension: part of an arc",
    {
        .cpp = "%1iwCircleArc_ptr %3;%2%1iwSketchManager->InsertArc(%4, %5, %6, %7, %8, %9, &%3);%2"
               "%1{%2%1    iwDoubleArray firstPoint, secondPoint, dimensionPosition;%2"
               "%1    firstPoint.add(%10); firstPoint.add(%11); firstPoint.add(%12);%2"
               "%1    secondPoint.add(%13); secondPoint.add(%14); secondPoint.add(%15);%2"
               "%1    dimensionPosition.add(%16); dimensionPosition.add(%17); dimensionPosition.add(%18);%2"
               "%1    iwSketchManager->%0(%3, firstPoint, secondPoint, dimensionPosition, L\"%19\", &%20);%2"
               "%1    %3->put_Erased(true);%2%1}%2",
        .cppCom = "%1ICircleArcPtr %3; %3 = iwSketchManager->InsertArc( %4, %5, %6, %7, %8, %9 );%2"
                  "%1{%2%1    double x, y, z;%2%1    VARIANT variant%10,variant%12,variant%14;%2"
                  "%1    variant%10.vt = ( VT_ARRAY | VT_R8 );%2%1    variant%12.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1    variant%14.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1    variant%10.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2"
                  "%1    variant%12.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2"
                  "%1    variant%14.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2%11%2%13%2%15%2"
                  "%1    %17=iwSketchManager->%0( %3,variant%10, variant%12, variant%14, L\"%16\");%2"
                  "%1    %3->put_Erased(true);%2%1}%2",
        .csharp = "%1CircleArc %3 = iwSketchManager.InsertArc( %4, %5, %6, %7, %8, %9 );%2"
                  "%1%20 = iwSketchManager.%0( %3, new double[]{%10,%11,%12}, new double[]{%13,%14,%15}, "
                  "new double[]{%16,%17,%18}, \"%19\" );%2%1%3.Erased = true;%2",
        .javascript = "%1var %3 = mSkMgr.InsertArc(%4, %5, %6, %7, %8, %9);%2"
                      "%1var %20 = mSkMgr.%0(%3, new Array(%10,%11,%12), new Array(%13,%14,%15), "
                      "new Array(%16,%17,%18), \"%19\");%2%1%3.put_Erased( true );%2",
        .vbNet = "%1Dim %3 As Inkwright.CircleArc%2%1%3 = iwSketchManager.InsertArc( %4, %5, %6, %7, %8, %9 )%2"
                 "%1%20 = iwSketchManager.%0( %3, new double(){%10,%11,%12}, new double(){%13,%14,%15}, "
                 "new double(){%16,%17,%18}, \"%19\" )%2%1%3.Erased = true%2",
        .vba = "%1Dim %3 As Inkwright.CircleArc%2%1Set %3 = iwSketchManager.InsertArc( %4, %5, %6, %7, %8, %9 )%2"
               "%1Dim extLine1Point%20(2) As Double%2%1extLine1Point%20(0) = %10%2%1extLine1Point%20(1) = %11%2"
               "%1extLine1Point%20(2) = %12%2"
               "%1Dim extLine2Point%20(2) As Double%2%1extLine2Point%20(0) = %13%2%1extLine2Point%20(1) = %14%2"
               "%1extLine2Point%20(2) = %15%2"
               "%1Dim dimPositionPoint%20(2) As Double%2%1dimPositionPoint%20(0) = %16%2"
               "%1dimPositionPoint%20(1) = %17%2%1dimPositionPoint%20(2) = %18%2"
               "%1Set %21 = iwSketchManager.%0( %3, extLine1Point%20, extLine2Point%20, dimPositionPoint%20, "
               "\"%19\" )%2%1%3.Erased = True%2",
        .python = "%2measured_arc = drawing.sketch.InsertArc(%5, %6, %7, %8)%3"
                  "%2%13 = drawing.sketch.%1(measured_arc, reals(%9), reals(%10), reals(%11), %12)%3"
                  "%2measured_arc.Erased = True%3",
    }};

Statement EmitInsertArcLengthDimension(Writer& writer, const MeasuredCurve& arc, const OdGePoint3d& first,
                                       const OdGePoint3d& second, bool partial, const OdGePoint3d& arcPoint,
                                       const EscapedText& text, const CFxString& name)
{
    static const CurveDimension whole{"InsertArcLengthDimension", Shape::Arc, "_ArcLen", lengthOfArc,
                                      lengthOfTemporaryArc};
    static const CurveDimension part{"InsertArcLengthDimensionPartial", Shape::Arc, "_ArcLen", partialLengthOfArc,
                                     partialLengthOfTemporaryArc,       true};
    return partial ? insertOnCurve(writer, part, arc, {first, second, arcPoint}, text, name)
                   : insertOnCurve(writer, whole, arc, {arcPoint}, text, name);
}

/// Only C++, C# and Python use a variable of the macro; the others make a curve of their own each time.
static const Phrase radialOnCurve{"EmitInsertDiameterDimension: on a variable",
                                  {
                                      .cpp = "%1{%2%1    iwDoubleArray Coordinates1;%2%1    Coordinates1.clear();%2%2"
                                             "%1    Coordinates1.add(%5);Coordinates1.add(%6);Coordinates1.add(%7);%2"
                                             "%1    iwSketchManager->%0( %3, Coordinates1, L\"%8\", &%4 );%2%1}%2",
                                      .csharp = "%1%8 = iwSketchManager.%0( %3, new double[]{%4,%5,%6}, \"%7\" );%2",
                                      .python = pythonOnCurve,
                                  }};

static const Phrase radialOnTemporaryCircle{
    "EmitInsertDiameterDimension",
    {
        .cpp = "%1{%2%1    iwDoubleArray Coordinates1;%2%1    Coordinates1.clear();%2%2"
               "%1    Coordinates1.add(%9);Coordinates1.add(%10);Coordinates1.add(%11);%2"
               "%1    iwCircle_ptr %3; iwSketchManager->InsertCircle( %4, %5, %6, %7 ,&%3 );%2"
               "%1    iwSketchManager->%0( %3, Coordinates1, L\"%12\" ,&%8 );%2"
               "%1    %3->put_Erased(true);%2%1}%2",
        .cppCom = "%1ICirclePtr %3; %3 =iwSketchManager->InsertCircle( %4, %5, %6, %7);%2"
                  "%1{%2%1    double x, y, z;%2%1    VARIANT variant%9;%2"
                  "%1    variant%9.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1    variant%9.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2%10%2"
                  "%1    %8=iwSketchManager->%0( %3, variant%9, L\"%11\" );%2%1    %3->put_Erased(true);%2%1}%2",
        .csharp = "%1Circle %3 = iwSketchManager.InsertCircle( %4, %5, %6, %7 );%2"
                  "%1%8 = iwSketchManager.%0( %3, new double[]{%9,%10,%11}, \"%12\" );%2%1%3.Erased = true;%2",
        .javascript = "%1var %3 = mSkMgr.InsertCircle( %4, %5, %6, %7 );%2"
                      "%1var %8 = mSkMgr.%0(%3, new Array(%9,%10,%11), \"%12\");%2%1%3.put_Erased(true);%2",
        .vbNet = "%1Dim %3 As Inkwright.Circle%2%1%3 = iwSketchManager.InsertCircle( %4, %5, %6, %7 )%2"
                 "%1%8 = iwSketchManager.%0( %3, new double(){%9,%10,%11}, \"%12\" )%2%1%3.Erased = true%2",
        .vba = "%1Dim %3 As Inkwright.Circle%2%1Set %3 = iwSketchManager.InsertCircle( %4, %5, %6, %7 )%2"
               "%1Dim dimPositionPoint%13(2) As Double%2%1dimPositionPoint%13(0) = %9%2"
               "%1dimPositionPoint%13(1) = %10%2%1dimPositionPoint%13(2) = %11%2"
               "%1Set %8 = iwSketchManager.%0( %3, dimPositionPoint%13, \"%12\" )%2%1%3.Erased = True%2",
        .python = "%2measured_circle = drawing.sketch.InsertCircle(%5, %6)%3"
                  "%2%7 = drawing.sketch.%1(measured_circle, reals(%8), %9)%3"
                  "%2measured_circle.Erased = True%3",
    }};

static const Phrase radialOnTemporaryArc{
    "EmitInsertDiameterDimension",
    {
        .cpp = "%1{%2%1    iwDoubleArray Coordinates1;%2%1    Coordinates1.clear();%2%2"
               "%1    Coordinates1.add(%11);Coordinates1.add(%12);Coordinates1.add(%13);%2"
               "%1    iwCircleArc_ptr %3; iwSketchManager->InsertArc( %4, %5, %6, %7, %8, %9 ,&%3 );%2"
               "%1    iwSketchManager->%0( %3, Coordinates1, L\"%14\", &%10 );%2"
               "%1    %3->put_Erased(true);%2%1}%2",
        .cppCom = "%1ICircleArcPtr %3; %3 = iwSketchManager->InsertArc( %4, %5, %6, %7, %8, %9 );%2"
                  "%1{%2%1    double x, y, z;%2%1    VARIANT variant%11;%2"
                  "%1    variant%11.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1    variant%11.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2%12%2"
                  "%1    %10=iwSketchManager->%0( %3,variant%11, L\"%14\");%2%1    %3->put_Erased(true);%2%1}%2",
        .csharp = "%1CircleArc %3 = iwSketchManager.InsertArc( %4, %5, %6, %7, %8, %9 );%2"
                  "%1%10 = iwSketchManager.%0( %3, new double[]{%11,%12,%13}, \"%14\" );%2%1%3.Erased = true;%2",
        .javascript = "%1var %3 = mSkMgr.InsertArc(%4, %5, %6, %7, %8, %9);%2"
                      "%1var %10 = mSkMgr.%0(%3, new Array(%11,%12,%13), \"%14\");%2%1%3.put_Erased( true );%2",
        .vbNet = "%1Dim %3 As Inkwright.CircleArc%2%1%3 = iwSketchManager.InsertArc( %4, %5, %6, %7, %8, %9 )%2"
                 "%1%10 = iwSketchManager.%0( %3, new double(){%11,%12,%13}, \"%14\" )%2%1%3.Erased = true%2",
        .vba = "%1Dim %3 As Inkwright.CircleArc%2%1Set %3 = iwSketchManager.InsertArc( %4, %5, %6, %7, %8, %9 )%2"
               "%1Dim dimPositionPoint%15(2) As Double%2%1dimPositionPoint%15(0) = %11%2"
               "%1dimPositionPoint%15(1) = %12%2%1dimPositionPoint%15(2) = %13%2"
               "%1Set %10 = iwSketchManager.%0( %3, dimPositionPoint%15, \"%14\" )%2%1%3.Erased = True%2",
        .python = "%2measured_arc = drawing.sketch.InsertArc(%5, %6, %7, %8)%3"
                  "%2%9 = drawing.sketch.%1(measured_arc, reals(%10), %11)%3"
                  "%2measured_arc.Erased = True%3",
    }};

/// One of the two, after the class of the curve.
static Statement insertRadial(Writer& writer, const CurveDimension& onCircle, const CurveDimension& onArc,
                              const MeasuredCurve& curve, const std::vector<OdGePoint3d>& points,
                              const EscapedText& text, const CFxString& name)
{
    if (odrxQuery<OdDbCircle>(curve.object.get()))
        return insertOnCurve(writer, onCircle, curve, points, text, name);
    if (odrxQuery<OdDbArc>(curve.object.get()))
        return insertOnCurve(writer, onArc, curve, points, text, name);
    return {};
}

Statement EmitInsertDiameterDimension(Writer& writer, const MeasuredCurve& curve, const OdGePoint3d& chordPoint,
                                      const EscapedText& text, const CFxString& name)
{
    static const CurveDimension onCircle{"InsertDiameterDimensionCircle", Shape::Circle, "_Dia", radialOnCurve,
                                         radialOnTemporaryCircle,         false,         true};
    static const CurveDimension onArc{"InsertDiameterDimensionArc", Shape::Arc, "_Dia", radialOnCurve,
                                      radialOnTemporaryArc,         false,      true};
    return insertRadial(writer, onCircle, onArc, curve, {chordPoint}, text, name);
}

Statement EmitInsertRadialDimension(Writer& writer, const MeasuredCurve& curve, const OdGePoint3d& chordPoint,
                                    const EscapedText& text, const CFxString& name)
{
    static const CurveDimension onCircle{"InsertRadialDimensionCircle", Shape::Circle, "_Rad", radialOnCurve,
                                         radialOnTemporaryCircle,       false,         true};
    static const CurveDimension onArc{"InsertRadialDimensionArc", Shape::Arc, "_Rad", radialOnCurve,
                                      radialOnTemporaryArc,       false,      true};
    return insertRadial(writer, onCircle, onArc, curve, {chordPoint}, text, name);
}

static const Phrase joggedOnCurve{
    "EmitInsertJoggedDimension: on a variable",
    {
        .cpp = "%1{%2%1    iwDoubleArray Coordinates1,Coordinates2,Coordinates3;%2"
               "%1    Coordinates1.clear();Coordinates2.clear();Coordinates3.clear();%2%2"
               "%1    Coordinates1.add(%5);Coordinates1.add(%6);Coordinates1.add(%7);%2"
               "%1    Coordinates2.add(%8);Coordinates2.add(%9);Coordinates2.add(%10);%2"
               "%1    Coordinates3.add(%11);Coordinates3.add(%12);Coordinates3.add(%13);%2"
               "%1    iwSketchManager->%0( %3, Coordinates1, Coordinates2, Coordinates3, L\"%14\", &%4 );%2%1}%2",
        .csharp = "%1%14 = iwSketchManager.%0( %3, new double[]{%4,%5,%6}, new double[]{%7,%8,%9}, "
                  "new double[]{%10,%11,%12}, \"%13\" );%2",
        .python = pythonByPoints,
    }};

static const Phrase joggedOnTemporaryCircle{
    "EmitInsertJoggedDimension",
    {
        .cpp = "%1{%2%1    iwDoubleArray Coordinates1,Coordinates2,Coordinates3;%2"
               "%1    Coordinates1.clear();Coordinates2.clear();Coordinates3.clear();%2%2"
               "%1    Coordinates1.add(%9);Coordinates1.add(%10);Coordinates1.add(%11);%2"
               "%1    Coordinates2.add(%12);Coordinates2.add(%13);Coordinates2.add(%14);%2"
               "%1    Coordinates3.add(%15);Coordinates3.add(%16);Coordinates3.add(%17);%2"
               "%1    iwCircle_ptr %3; iwSketchManager->InsertCircle( %4, %5, %6, %7 ,&%3 );%2"
               "%1    iwSketchManager->%0( %3, Coordinates1, Coordinates2, Coordinates3, L\"%18\" ,&%8 );%2"
               "%1    %3->put_Erased(true);%2%1}%2",
        .cppCom = "%1ICirclePtr %3; %3 =iwSketchManager->InsertCircle( %4, %5, %6, %7);%2"
                  "%1{%2%1    double x, y, z;%2%1    VARIANT variant%9,variant%11,variant%13;%2"
                  "%1    variant%9.vt = ( VT_ARRAY | VT_R8 );%2%1    variant%11.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1    variant%13.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1    variant%9.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2"
                  "%1    variant%11.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2"
                  "%1    variant%13.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2%10%2%12%2%14%2"
                  "%1    %8=iwSketchManager->%0( %3, variant%9, variant%11, variant%13, L\"%15\" );%2"
                  "%1    %3->put_Erased(true);%2%1}%2",
        .csharp = "%1Circle %3 = iwSketchManager.InsertCircle( %4, %5, %6, %7 );%2"
                  "%1%8 = iwSketchManager.%0( %3, new double[]{%9,%10,%11}, new double[]{%12,%13,%14}, "
                  "new double[]{%15,%16,%17}, \"%18\" );%2%1%3.Erased = true;%2",
        .javascript = "%1var %3 = mSkMgr.InsertCircle( %4, %5, %6, %7 );%2"
                      "%1var %8 = mSkMgr.%0(%3, new Array(%9,%10,%11), new Array(%12,%13,%14), "
                      "new Array(%15,%16,%17), \"%18\");%2%1%3.put_Erased (true);%2",
        .vbNet = "%1Dim %3 As Inkwright.Circle%2%1%3 = iwSketchManager.InsertCircle( %4, %5, %6, %7 )%2"
                 "%1%8 = iwSketchManager.%0( %3, new double(){%9,%10,%11}, new double(){%12,%13,%14}, "
                 "new double(){%15,%16,%17}, \"%18\" )%2%1%3.Erased = true%2",
        .vba = "%1Dim %3 As Inkwright.Circle%2%1Set %3 = iwSketchManager.InsertCircle( %4, %5, %6, %7 )%2"
               "%1Dim centerPoint%19(2) As Double%2%1centerPoint%19(0) = %9%2%1centerPoint%19(1) = %10%2"
               "%1centerPoint%19(2) = %11%2"
               "%1Dim jogPoint%19(2) As Double%2%1jogPoint%19(0) = %12%2%1jogPoint%19(1) = %13%2"
               "%1jogPoint%19(2) = %14%2"
               "%1Dim dimPositionPoint%19(2) As Double%2%1dimPositionPoint%19(0) = %15%2"
               "%1dimPositionPoint%19(1) = %16%2%1dimPositionPoint%19(2) = %17%2"
               "%1Set %8 = iwSketchManager.%0( %3, centerPoint%19, jogPoint%19, dimPositionPoint%19, \"%18\" )%2"
               "%1%3.Erased = True%2",
        .python = "%2measured_circle = drawing.sketch.InsertCircle(%5, %6)%3"
                  "%2%7 = drawing.sketch.%1(measured_circle, reals(%8), reals(%9), reals(%10), %11)%3"
                  "%2measured_circle.Erased = True%3",
    }};

static const Phrase joggedOnTemporaryArc{
    "EmitInsertJoggedDimension",
    {
        .cpp = "%1{%2%1    iwDoubleArray Coordinates1,Coordinates2,Coordinates3;%2"
               "%1    Coordinates1.clear();Coordinates2.clear();Coordinates3.clear();%2%2"
               "%1    Coordinates1.add(%11);Coordinates1.add(%12);Coordinates1.add(%13);%2"
               "%1    Coordinates2.add(%14);Coordinates2.add(%15);Coordinates2.add(%16);%2"
               "%1    Coordinates3.add(%17);Coordinates3.add(%18);Coordinates3.add(%19);%2"
               "%1    iwCircleArc_ptr %3; iwSketchManager->InsertArc( %4, %5, %6, %7, %8, %9 ,&%3 );%2"
               "%1    iwSketchManager->%0( %3, Coordinates1, Coordinates2, Coordinates3, L\"%20\", &%10 );%2"
               "%1    %3->put_Erased(true);%2%1}%2",
        .cppCom = "%1ICircleArcPtr %3; %3 = iwSketchManager->InsertArc( %4, %5, %6, %7, %8, %9 );%2"
                  "%1{%2%1    double x, y, z;%2%1    VARIANT variant%11,variant%13,variant%15;%2"
                  "%1    variant%11.vt = ( VT_ARRAY | VT_R8 );%2%1    variant%13.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1    variant%15.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1    variant%11.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2"
                  "%1    variant%13.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2"
                  "%1    variant%15.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2%12%2%14%2%16%2"
                  "%1    %10=iwSketchManager->%0( %3,variant%11, variant%13, variant%15, L\"%17\");%2"
                  "%1    %3->put_Erased(true);%2%1}%2",
        .csharp = "%1CircleArc %3 = iwSketchManager.InsertArc( %4, %5, %6, %7, %8, %9 );%2"
                  "%1%10 = iwSketchManager.%0( %3, new double[]{%11,%12,%13}, new double[]{%14,%15,%16}, "
                  "new double[]{%17,%18,%19}, \"%20\" );%2%1%3.Erased = true;%2",
        .javascript = "%1var %3 = mSkMgr.InsertArc(%4, %5, %6, %7, %8, %9);%2"
                      "%1var %10 = mSkMgr.%0(%3, new Array(%11,%12,%13), new Array(%14,%15,%16), "
                      "new Array(%17,%18,%19), \"%20\");%2%1%3.put_Erased( true );%2",
        .vbNet = "%1Dim %3 As Inkwright.CircleArc%2%1%3 = iwSketchManager.InsertArc( %4, %5, %6, %7, %8, %9 )%2"
                 "%1%10 = iwSketchManager.%0( %3, new double(){%11,%12,%13}, new double(){%14,%15,%16}, "
                 "new double(){%17,%18,%19}, \"%20\" )%2%1%3.Erased = true%2",
        .vba = "%1Dim %3 As Inkwright.CircleArc%2%1Set %3 = iwSketchManager.InsertArc( %4, %5, %6, %7, %8, %9 )%2"
               "%1Dim centerPoint%21(2) As Double%2%1centerPoint%21(0) = %11%2%1centerPoint%21(1) = %12%2"
               "%1centerPoint%21(2) = %13%2"
               "%1Dim jogPoint%21(2) As Double%2%1jogPoint%21(0) = %14%2%1jogPoint%21(1) = %15%2"
               "%1jogPoint%21(2) = %16%2"
               "%1Dim dimPositionPoint%21(2) As Double%2%1dimPositionPoint%21(0) = %17%2"
               "%1dimPositionPoint%21(1) = %18%2%1dimPositionPoint%21(2) = %19%2"
               "%1Set %10 = iwSketchManager.%0( %3, centerPoint%21, jogPoint%21, dimPositionPoint%21, \"%20\" )%2"
               "%1%3.Erased = True%2",
        .python = "%2measured_arc = drawing.sketch.InsertArc(%5, %6, %7, %8)%3"
                  "%2%9 = drawing.sketch.%1(measured_arc, reals(%10), reals(%11), reals(%12), %13)%3"
                  "%2measured_arc.Erased = True%3",
    }};

Statement EmitInsertJoggedDimension(Writer& writer, const MeasuredCurve& curve, const OdGePoint3d& centerOverride,
                                    const OdGePoint3d& jog, const OdGePoint3d& position, const EscapedText& text,
                                    const CFxString& name)
{
    static const CurveDimension onCircle{"InsertJoggedDimensionCircle", Shape::Circle, "_Jog", joggedOnCurve,
                                         joggedOnTemporaryCircle,       false,         true};
    static const CurveDimension onArc{"InsertJoggedDimensionArc", Shape::Arc, "_Jog", joggedOnCurve,
                                      joggedOnTemporaryArc,       false,      true};
    return insertRadial(writer, onCircle, onArc, curve, {centerOverride, jog, position}, text, name);
}
