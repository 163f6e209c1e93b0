// Rich lines, polylines and splines.

#include "objects/targets/polylines.h"

#include "statements/arrays.h"
#include "statements/enumerations.h"
#include "statements/wording.h"

using namespace inkmacro;

static const Phrase insertRichLine{
    "EmitInsertRichLine",
    {
        .cpp = "%1iwDoubleArray Coordinates%3;%2%1Coordinates%3.clear();%2%2%4%2"
               "%1iwSketchManager->InsertRichLine( Coordinates%3, %5, %6, L\"%7\", %8, &%9 );%2",
        .cppCom = "%1VARIANT variant%3;%2%1variant%3.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1variant%3.parray = SafeArrayCreateVector( VT_R8, 0, %9 );%2%4%2"
                  "%1%10 = iwSketchManager->InsertRichLine( variant%3, %5, %6, L\"%7\", %8 );%2",
        .csharp = "%1%8 = iwSketchManager.InsertRichLine(%2%1 new double[]{%3},%2%1 %4,%2%1 %5,%2%1 \"%6\",%2"
                  "%1 %7 );%2",
        .javascript = "%1var %8 = mSkMgr.InsertRichLine(%3, \"%4\", %5, \"%6\", %7);%2",
        .vbNet = "%1Dim Coordinates%3(%4) As Double%2%5%2"
                 "%1%10 = iwSketchManager.InsertRichLine( Coordinates%3, %6, %7, \"%8\", %9 )%2",
        .vba = "%1Dim Coordinates%3(%4) As Double%2%5%2"
               "%1Set %10 = iwSketchManager.InsertRichLine( Coordinates%3, %6, %7, \"%8\", %9 )%2",
        .python = "%1%8 = drawing.sketch.InsertRichLine(reals(%3), %4, %5, %6, %7)%2",
    }};

/// The rows of the texts behind the default stand in the order of the drawing's numbers, from 1.
static QString justificationWord(Target target, int justification)
{
    const TextEnumeration& enumeration = enums::richLineJustification;
    const bool known = justification > 0 && justification <= static_cast<int>(enumeration.rows.size());
    const char* const suffix = known ? enumeration.rows.begin()[justification - 1].suffix : enumeration.defaultSuffix;
    return enumeratorText(target, QString(enumeration.name) + "_e", QString(enumeration.name) + '_' + suffix);
}

Statement EmitInsertRichLine(Writer& writer, const OdArray<OdGePoint3d>& vertices, int justification, double scale,
                             const CFxString& style, bool closed, const CFxString& name)
{
    const QString justificationText = justificationWord(writer.target, justification);
    const QString closedText = truthWord(writer.target, closed);
    return callWithArray(
        writer, insertRichLine, coordinateArray(writer, spatial(vertices), "points"),
        [&](Fill& call) {
            call.word(justificationText).real(scale, Meaning::Factor).text(style, Meaning::Text).word(closedText);
        },
        name);
}

static const Phrase insertPolyline3D{
    "EmitInsertPolyline3D",
    {
        .cpp = "%1iwDoubleArray Coordinates%3;%2%1Coordinates%3.clear();%2%2%4%2"
               "%1iwSketchManager->InsertPolyline3D( Coordinates%3, %5, &%6 );%2",
        .cppCom = "%1VARIANT variant%3;%2%1variant%3.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1variant%3.parray = SafeArrayCreateVector( VT_R8, 0, %6 );%2%4%2"
                  "%1%7 = iwSketchManager->InsertPolyline3D( variant%3, %5 );%2",
        .csharp = "%1%5 = iwSketchManager.InsertPolyline3D(%2%1 new double[]{%3},%2%1 %4 );%2",
        .javascript = "%1var %5 = mSkMgr.InsertPolyline3D(%3, %4);%2",
        .vbNet = "%1Dim Coordinates%3(%4) As Double%2%5%2"
                 "%1%7 = iwSketchManager.InsertPolyline3D( Coordinates%3, %6 )%2",
        .vba = "%1Dim Coordinates%3(%4) As Double%2%5%2"
               "%1Set %7 = iwSketchManager.InsertPolyline3D( Coordinates%3, %6 )%2",
        .python = "%1%5 = drawing.sketch.InsertPolyline3D(reals(%3), %4)%2",
    }};

/// In COM the assignment stands without blanks, other than in space. It has to stay so.
static const Phrase insertPolyline2D{
    "EmitInsertPolyline2D",
    {
        .cpp = "%1iwDoubleArray Coordinates%3;%2%1Coordinates%3.clear();%2%2%4%2"
               "%1iwSketchManager->InsertPolyline2D( Coordinates%3, %5, &%6 );%2",
        .cppCom = "%1VARIANT variant%3;%2%1variant%3.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1variant%3.parray = SafeArrayCreateVector( VT_R8, 0, %6 );%2%4%2"
                  "%1%7=iwSketchManager->InsertPolyline2D( variant%3, %5);%2",
        .csharp = "%1%5 = iwSketchManager.InsertPolyline2D(%2%1 new double[]{%3},%2%1 %4 );%2",
        .javascript = "%1var %5 = mSkMgr.InsertPolyline2D(%3, %4);%2",
        .vbNet = "%1Dim Coordinates%3(%4) As Double%2%5%2"
                 "%1%7 = iwSketchManager.InsertPolyline2D( Coordinates%3, %6 )%2",
        .vba = "%1Dim Coordinates%3(%4) As Double%2%5%2"
               "%1Set %7 = iwSketchManager.InsertPolyline2D( Coordinates%3, %6 )%2",
        .python = "%1%5 = drawing.sketch.InsertPolyline2D(reals(%3), %4)%2",
    }};

static Statement insertPolyline(Writer& writer, const Phrase& phrase, const Coordinates& vertices, const char* script,
                                bool closed, const CFxString& name)
{
    const QString closedText = truthWord(writer.target, closed);
    return callWithArray(
        writer, phrase, coordinateArray(writer, vertices, script), [&](Fill& call) { call.word(closedText); }, name);
}

Statement EmitInsertPolyline3D(Writer& writer, const OdArray<OdGePoint3d>& vertices, bool closed, const CFxString& name)
{
    return insertPolyline(writer, insertPolyline3D, spatial(vertices), "points", closed, name);
}

Statement EmitInsertPolyline2D(Writer& writer, const OdArray<OdGePoint2d>& vertices, bool closed, const CFxString& name)
{
    return insertPolyline(writer, insertPolyline2D, planar(vertices), "polyPoints", closed, name);
}

/// In Basic the comma ahead of the start tangent's Z has its blank in front. It has to stay so.
static const Phrase insertSpline{
    "EmitInsertSpline",
    {
        .cpp = "%1iwDoubleArray Coordinates%3;%2%1Coordinates%3.clear();%2%2%4%2"
               "%1iwSketchManager->InsertSpline( Coordinates%3, %5, %6, %7, %8, %9, %10, %11, &%12 );%2",
        .cppCom = "%1VARIANT variant%3;%2%1variant%3.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1variant%3.parray = SafeArrayCreateVector( VT_R8, 0, %12 );%2%4%2"
                  "%1%13 = iwSketchManager->InsertSpline( variant%3, %5, %6, %7, %8, %9, %10, %11 );%2",
        .csharp = "%1%11 = iwSketchManager.InsertSpline(%2%1 new double[]{%3}, %2%1 %4, %2%1 %5, %2%1 %6, %2%1 %7, %2"
                  "%1 %8, %2%1 %9, %2%1 %10 );%2",
        .javascript = "%1var %11 = mSkMgr.InsertSpline(%3, %4, %5, %6, %7, %8, %9, %10);%2",
        .vbNet = "%1Dim Coordinates%3(%4) As Double%2%5%2"
                 "%1%13 = iwSketchManager.InsertSpline( Coordinates%3, %6, %7, %8 ,%9, %10, %11, %12 )%2",
        .vba = "%1Dim Coordinates%3(%4) As Double%2%5%2"
               "%1Set %13 = iwSketchManager.InsertSpline( Coordinates%3, %6, %7, %8 ,%9, %10, %11, %12 )%2",
        .python = "%1%11 = drawing.sketch.InsertSpline(reals(%3), %4, %5, %6, %7, %8, %9, %10)%2",
    }};

Statement EmitInsertSpline(Writer& writer, const OdArray<OdGePoint3d>& fitPoints, bool closed,
                           const OdGePoint3d& startTangent, const OdGePoint3d& endTangent, const CFxString& name)
{
    const QString closedText = truthWord(writer.target, closed);
    return callWithArray(
        writer, insertSpline, coordinateArray(writer, spatial(fitPoints), "points"),
        [&](Fill& call) {
            call.word(closedText);
            // Directions, which no point that the user gives takes the place of.
            for (const OdGePoint3d& tangent : {startTangent, endTangent})
                call.real(tangent.x).real(tangent.y).real(tangent.z);
        },
        name);
}
