// The insertion of lines, circles, points, rays, arcs, infinite lines and ellipses.

#include "objects/targets/curves.h"

using namespace inkmacro;

/// By two points.
static const Phrase insertCurve{"EmitInsertLine",
                                {
                                    .cpp = "%1iwSketchManager->%3( %4, %5, %6, %7, %8, %9, &%10 );%2",
                                    .cppCom = "%1%10 = iwSketchManager->%3( %4, %5, %6, %7, %8, %9 );%2",
                                    .csharp = "%1%10 = iwSketchManager.%3( %4, %5, %6, %7, %8, %9 );%2",
                                    .javascript = "%1var %10 = mSkMgr.%3(%4, %5, %6, %7, %8, %9);%2",
                                    .vbNet = "%1%10 = iwSketchManager.%3( %4, %5, %6, %7, %8, %9 )%2",
                                    .vba = "%1Set %10 = iwSketchManager.%3( %4, %5, %6, %7, %8, %9 )%2",
                                    .python = "%1%6 = drawing.sketch.%3(%4, %5)%2",
                                }};

static Statement insertByPoints(Writer& writer, const char* operation, const OdGePoint3d& first,
                                const OdGePoint3d& second, const CFxString& name)
{
    return writer.fill(insertCurve).word(QLatin1String(operation)).point(first).point(second).word(name);
}

Statement EmitInsertLine(Writer& writer, const OdGePoint3d& start, const OdGePoint3d& end, const CFxString& name)
{
    return insertByPoints(writer, "InsertLine", start, end, name);
}

static const Phrase insertCircle{"EmitInsertCircle",
                                 {
                                     .cpp = "%1iwSketchManager->InsertCircle( %3, %4, %5, %6, &%7 );%2",
                                     .cppCom = "%1%7 = iwSketchManager->InsertCircle( %3, %4, %5, %6 );%2",
                                     .csharp = "%1%7 = iwSketchManager.InsertCircle( %3, %4, %5, %6 );%2",
                                     .javascript = "%1var %7 = mSkMgr.InsertCircle(%3, %4, %5, %6);%2",
                                     .vbNet = "%1%7 = iwSketchManager.InsertCircle( %3, %4, %5, %6 )%2",
                                     .vba = "%1Set %7 = iwSketchManager.InsertCircle( %3, %4, %5, %6 )%2",
                                     .python = "%1%5 = drawing.sketch.InsertCircle(%3, %4)%2",
                                 }};

Statement EmitInsertCircle(Writer& writer, const OdGePoint3d& center, double radius, const CFxString& name)
{
    return writer.fill(insertCircle).point(center).real(radius, Meaning::Length).word(name);
}

static const Phrase insertPoint{"EmitInsertPoint",
                                {
                                    .cpp = "%1iwSketchManager->InsertPoint( %3, %4, %5, &%6 );%2",
                                    .cppCom = "%1%6 = iwSketchManager->InsertPoint( %3, %4, %5 );%2",
                                    .csharp = "%1%6 = iwSketchManager.InsertPoint( %3, %4, %5 );%2",
                                    .javascript = "%1var %6 = mSkMgr.InsertPoint(%3, %4, %5);%2",
                                    .vbNet = "%1%6 = iwSketchManager.InsertPoint( %3, %4, %5 )%2",
                                    .vba = "%1Set %6 = iwSketchManager.InsertPoint( %3, %4, %5 )%2",
                                    .python = "%1%4 = drawing.sketch.InsertPoint(%3)%2",
                                }};

Statement EmitInsertPoint(Writer& writer, const OdGePoint3d& position, const CFxString& name)
{
    return writer.fill(insertPoint).point(position).word(name);
}

Statement EmitInsertRay(Writer& writer, const OdGePoint3d& base, const OdGePoint3d& second, const CFxString& name)
{
    return insertByPoints(writer, "InsertRay", base, second, name);
}

static const Phrase insertArc{"EmitInsertArc",
                              {
                                  .cpp = "%1iwSketchManager->InsertArc( %3, %4, %5, %6, %7, %8, &%9 );%2",
                                  .cppCom = "%1%9 = iwSketchManager->InsertArc( %3, %4, %5, %6, %7, %8 );%2",
                                  .csharp = "%1%9 = iwSketchManager.InsertArc( %3, %4, %5, %6, %7, %8 );%2",
                                  .javascript = "%1var %9 = mSkMgr.InsertArc(%3, %4, %5, %6, %7, %8);%2",
                                  .vbNet = "%1%9 = iwSketchManager.InsertArc( %3, %4, %5, %6, %7, %8 )%2",
                                  .vba = "%1Set %9 = iwSketchManager.InsertArc( %3, %4, %5, %6, %7, %8 )%2",
                                  .python = "%1%7 = drawing.sketch.InsertArc(%3, %4, %5, %6)%2",
                              }};

Statement EmitInsertArc(Writer& writer, const OdGePoint3d& center, double radius, double startAngle, double endAngle,
                        const CFxString& name)
{
    return writer.fill(insertArc)
        .point(center)
        .real(radius, Meaning::Length)
        .real(startAngle, Meaning::Angle)
        .real(endAngle, Meaning::Angle)
        .word(name);
}

Statement EmitInsertInfiniteLine(Writer& writer, const OdGePoint3d& base, const OdGePoint3d& second,
                                 const CFxString& name)
{
    return insertByPoints(writer, "InsertInfiniteLine", base, second, name);
}

static const Phrase insertEllipseArc{
    "EmitInsertEllipseArc",
    {
        .cpp = "%1iwSketchManager->InsertEllipseArcDistanceToOtherAxis( %3, %4, %5, %6, %7, %8, %9, &%10 );%2",
        .cppCom = "%1%10 = iwSketchManager->InsertEllipseArcDistanceToOtherAxis( %3, %4, %5, %6, %7, %8, %9 );%2",
        .csharp = "%1%10 = iwSketchManager.InsertEllipseArcDistanceToOtherAxis( %3, %4, %5, %6, %7, %8, %9 );%2",
        .javascript = "%1var %10 = mSkMgr.InsertEllipseArcDistanceToOtherAxis(%3, %4, %5, %6, %7, %8, %9);%2",
        .vbNet = "%1%10 = iwSketchManager.InsertEllipseArcDistanceToOtherAxis( %3, %4, %5, %6, %7, %8, %9 )%2",
        .vba = "%1Set %10 = iwSketchManager.InsertEllipseArcDistanceToOtherAxis( %3, %4, %5, %6, %7, %8, %9 )%2",
        .python = "%1%8 = drawing.sketch.InsertEllipseArcDistanceToOtherAxis(%3, %4, %5, %6, %7)%2",
    }};

Statement EmitInsertEllipseArc(Writer& writer, const OdGePoint3d& axisStart, const OdGePoint3d& axisEnd,
                               double otherAxisDistance, double startAngle, double endAngle, const CFxString& name)
{
    return writer.fill(insertEllipseArc)
        .planePoint(axisStart)
        .planePoint(axisEnd)
        .real(otherAxisDistance, Meaning::Length)
        .real(startAngle, Meaning::Angle)
        .real(endAngle, Meaning::Angle)
        .word(name);
}

static const Phrase insertEllipse{
    "EmitInsertEllipse",
    {
        .cpp = "%1iwSketchManager->InsertEllipseDistanceToOtherAxis( %3, %4, %5, %6, %7, &%8 );%2",
        .cppCom = "%1%8 = iwSketchManager->InsertEllipseDistanceToOtherAxis( %3, %4, %5, %6, %7 );%2",
        .csharp = "%1%8 = iwSketchManager.InsertEllipseDistanceToOtherAxis( %3, %4, %5, %6, %7 );%2",
        .javascript = "%1var %8 = mSkMgr.InsertEllipseDistanceToOtherAxis(%3, %4, %5, %6, %7);%2",
        .vbNet = "%1%8 = iwSketchManager.InsertEllipseDistanceToOtherAxis( %3, %4, %5, %6, %7 )%2",
        .vba = "%1Set %8 = iwSketchManager.InsertEllipseDistanceToOtherAxis( %3, %4, %5, %6, %7 )%2",
        .python = "%1%6 = drawing.sketch.InsertEllipseDistanceToOtherAxis(%3, %4, %5)%2",
    }};

Statement EmitInsertEllipse(Writer& writer, const OdGePoint3d& axisStart, const OdGePoint3d& axisEnd,
                            double otherAxisDistance, const CFxString& name)
{
    return writer.fill(insertEllipse)
        .planePoint(axisStart)
        .planePoint(axisEnd)
        .real(otherAxisDistance, Meaning::Length)
        .word(name);
}
