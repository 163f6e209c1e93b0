// The insertion of lines, circles, points, rays, arcs, infinite lines and ellipses.

#include "objects/targets/curves.h"

using namespace inkmacro;

/// By six numbers.
static const Phrase insertCurve{"EmitInsertLine",
                                {
                                    .cpp = "%1iwSketchManager->%3( %4, %5, %6, %7, %8, %9, &%10 );%2",
                                    .cppCom = "%1%10 = iwSketchManager->%3( %4, %5, %6, %7, %8, %9 );%2",
                                    .csharp = "%1%10 = iwSketchManager.%3( %4, %5, %6, %7, %8, %9 );%2",
                                    .javascript = "%1var %10 = mSkMgr.%3(%4, %5, %6, %7, %8, %9);%2",
                                    .vbNet = "%1%10 = iwSketchManager.%3( %4, %5, %6, %7, %8, %9 )%2",
                                    .vba = "%1Set %10 = iwSketchManager.%3( %4, %5, %6, %7, %8, %9 )%2",
                                }};

static Statement insertByPoints(Writer& writer, const char* operation, const OdGePoint3d& first,
                                const OdGePoint3d& second, const CFxString& name)
{
    return writer.fill(insertCurve).text(QLatin1String(operation)).point(first).point(second).text(name);
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
                                 }};

Statement EmitInsertCircle(Writer& writer, const OdGePoint3d& center, double radius, const CFxString& name)
{
    return writer.fill(insertCircle).point(center).real(radius).text(name);
}

static const Phrase insertPoint{"EmitInsertPoint",
                                {
                                    .cpp = "%1iwSketchManager->InsertPoint( %3, %4, %5, &%6 );%2",
                                    .cppCom = "%1%6 = iwSketchManager->InsertPoint( %3, %4, %5 );%2",
                                    .csharp = "%1%6 = iwSketchManager.InsertPoint( %3, %4, %5 );%2",
                                    .javascript = "%1var %6 = mSkMgr.InsertPoint(%3, %4, %5);%2",
                                    .vbNet = "%1%6 = iwSketchManager.InsertPoint( %3, %4, %5 )%2",
                                    .vba = "%1Set %6 = iwSketchManager.InsertPoint( %3, %4, %5 )%2",
                                }};

Statement EmitInsertPoint(Writer& writer, const OdGePoint3d& position, const CFxString& name)
{
    return writer.fill(insertPoint).point(position).text(name);
}

Statement EmitInsertRay(Writer& writer, const OdGePoint3d& base, const OdGePoint3d& second, const CFxString& name)
{
    return insertByPoints(writer, "InsertRay", base, second, name);
}

Statement EmitInsertArc(Writer& writer, const OdGePoint3d& center, double radius, double startAngle, double endAngle,
                        const CFxString& name)
{
    return writer.fill(insertCurve)
        .text(QLatin1String("InsertArc"))
        .point(center)
        .real(radius)
        .real(startAngle)
        .real(endAngle)
        .text(name);
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
    }};

Statement EmitInsertEllipseArc(Writer& writer, const OdGePoint3d& axisStart, const OdGePoint3d& axisEnd,
                               double otherAxisDistance, double startAngle, double endAngle, const CFxString& name)
{
    return writer.fill(insertEllipseArc)
        .real(axisStart.x)
        .real(axisStart.y)
        .real(axisEnd.x)
        .real(axisEnd.y)
        .real(otherAxisDistance)
        .real(startAngle)
        .real(endAngle)
        .text(name);
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
    }};

Statement EmitInsertEllipse(Writer& writer, const OdGePoint3d& axisStart, const OdGePoint3d& axisEnd,
                            double otherAxisDistance, const CFxString& name)
{
    return writer.fill(insertEllipse)
        .real(axisStart.x)
        .real(axisStart.y)
        .real(axisEnd.x)
        .real(axisEnd.y)
        .real(otherAxisDistance)
        .text(name);
}
