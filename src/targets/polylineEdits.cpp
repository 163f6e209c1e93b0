// Edits of polylines. In C++ each tells its success by a local, whose number is the last value of its literal.

#include "targets/polylineEdits.h"

using namespace inkmacro;

static Statement withSuccess(Writer& writer, Fill& statement)
{
    if (writer.target == Target::Cpp)
        statement.number(++writer.UniqueCounter);
    return statement;
}

static const Phrase reshape{"EmitPolylineFit",
                            {
                                .cpp = "%1bool Success%4;\n%1%2->%3( &Success%4 );\n",
                                .cppCom = "%1%2->%3();\n",
                                .csharp = "%1%2.%3();\n",
                                .javascript = "%1%2.%3();\n",
                                .vbNet = "%1%2.%3()\n",
                                .vba = "%1%2.%3\n",
                                .python = "%1%2.%3()\n",
                            }};

static Statement reshapePolyline(Writer& writer, const CFxString& polyline, const char* operation)
{
    return withSuccess(writer, writer.fillIndented(reshape).word(polyline).word(QLatin1String(operation)));
}

Statement EmitPolylineFit(Writer& writer, const CFxString& polyline)
{
    return reshapePolyline(writer, polyline, "Fit");
}

Statement EmitPolylineDecurve(Writer& writer, const CFxString& polyline)
{
    return reshapePolyline(writer, polyline, "Decurve");
}

Statement EmitPolylineSpline(Writer& writer, const CFxString& polyline)
{
    return reshapePolyline(writer, polyline, "Spline");
}

/// VBA has brackets here, with blanks inside. It has to stay so.
static const Phrase joinCurve{"EmitJoinPolyline",
                              {
                                  .cpp = "%1bool Success%6;%2%1%3->%4(%5, &Success%6);%2",
                                  .cppCom = "%1%3->%4(%5);%2",
                                  .csharp = "%1%3.%4(%5);%2",
                                  .javascript = "%1%3.%4(%5);%2",
                                  .vbNet = "%1%3.%4(%5)%2",
                                  .vba = "%1%3.%4( %5 )%2",
                                  .python = "%1%3.%4(%5)%2",
                              }};
static const Mend basicJoin(joinCurve, Target::Vba, "an object in parentheses stands for its default property",
                            "%1%3.%4 %5%2");

static Statement join(Writer& writer, const CFxString& polyline, const char* operation, const CFxString& other)
{
    return withSuccess(writer, writer.fill(joinCurve).word(polyline).word(QLatin1String(operation)).word(other));
}

Statement EmitJoinPolyline(Writer& writer, const CFxString& polyline, const CFxString& other)
{
    return join(writer, polyline, "JoinPolyLine", other);
}

Statement EmitJoinLine(Writer& writer, const CFxString& polyline, const CFxString& line)
{
    return join(writer, polyline, "JoinLine", line);
}

Statement EmitJoinCircleArc(Writer& writer, const CFxString& polyline, const CFxString& arc)
{
    return join(writer, polyline, "JoinCircleArc", arc);
}

// The piece is a local that nothing asks for, so Python has none.

static const Phrase splitPolyline3D{
    "EmitPolylineSplit",
    {
        .cpp = "%1bool Success%4;\n%1iwPolyLine3D_ptr splittedPolyline3D%4;\n"
               "%1%2->Split( %3, &splittedPolyline3D%4, &Success%4 );\n",
        .cppCom = "%1IPolyLine3DPtr splittedPolyline3D%4;\n%1%2->Split( %3, &splittedPolyline3D%4 );\n",
        .csharp = "%1PolyLine3D splittedPolyline3D%4;\n%1%2.Split( %3, out splittedPolyline3D%4 );\n",
        .javascript = "%1var splittedPolyline3D%4 = %2.Split( %3 );\n",
        .vbNet = "%1Dim splittedPolyline3D%4 As Inkwright.PolyLine3D\n%1%2.Split(%3, splittedPolyline3D%4)\n",
        .vba = "%1Dim splittedPolyline3D%4 As Inkwright.PolyLine3D\n%1%2.Split %3, splittedPolyline3D%4\n",
        .python = "%1%2.Split(%3)\n",
    }};

static const Phrase splitPolyline2D{
    "EmitPolylineSplit",
    {
        .cpp = "%1bool Success%4;\n%1iwPolyLine_ptr splittedPolyline%4;\n"
               "%1%2->Split( %3, &splittedPolyline%4, &Success%4 );\n",
        .cppCom = "%1IPolyLinePtr splittedPolyline%4;\n%1%2->Split( %3, &splittedPolyline%4 );\n",
        .csharp = "%1PolyLine splittedPolyline%4;\n%1%2.Split( %3, out splittedPolyline%4 );\n",
        .javascript = "%1var splittedPolyline%4 = %2.Split( %3 );\n",
        .vbNet = "%1Dim splittedPolyline%4 As Inkwright.PolyLine\n%1%2.Split(%3, splittedPolyline%4)\n",
        .vba = "%1Dim splittedPolyline%4 As Inkwright.PolyLine\n%1%2.Split %3, splittedPolyline%4\n",
        .python = "%1%2.Split(%3)\n",
    }};

Statement EmitPolylineSplit(Writer& writer, const CFxString& polyline, int vertex, bool spatial)
{
    return writer.fillIndented(spatial ? splitPolyline3D : splitPolyline2D)
        .word(polyline)
        .number(vertex, Meaning::Count)
        .number(++writer.UniqueCounter);
}

// Behind the arguments stands a blank in VBA. It has to stay so.

static const Phrase placeVertex3D{"EmitAddVertexAfter",
                                  {
                                      .cpp = "%1bool Success%8;\n%1%2->%3( %4, %5, %6, %7, &Success%8 );\n",
                                      .cppCom = "%1%2->%3( %4, %5, %6, %7 );\n",
                                      .csharp = "%1%2.%3( %4, %5, %6, %7 );\n",
                                      .javascript = "%1%2.%3( %4, %5, %6, %7 );\n",
                                      .vbNet = "%1%2.%3(%4, %5, %6, %7)\n",
                                      .vba = "%1%2.%3 %4, %5, %6, %7 \n",
                                      .python = "%1%2.%3(%4, %5)\n",
                                  }};

static const Phrase placeVertex2D{"EmitAddVertexAfter",
                                  {
                                      .cpp = "%1bool Success%7;\n%1%2->%3( %4, %5, %6, &Success%7 );\n",
                                      .cppCom = "%1%2->%3( %4, %5, %6 );\n",
                                      .csharp = "%1%2.%3( %4, %5, %6 );\n",
                                      .javascript = "%1%2.%3( %4, %5, %6 );\n",
                                      .vbNet = "%1%2.%3(%4, %5, %6)\n",
                                      .vba = "%1%2.%3 %4, %5, %6 \n",
                                      .python = "%1%2.%3(%4, %5)\n",
                                  }};

static Statement placeVertex(Writer& writer, const CFxString& polyline, const char* operation, int vertex,
                             const OdGePoint3d& point, bool spatial)
{
    Fill statement = writer.fillIndented(spatial ? placeVertex3D : placeVertex2D);
    statement.word(polyline).word(QLatin1String(operation)).number(vertex, Meaning::Count);
    return withSuccess(writer, spatial ? statement.shortPoint(point) : statement.shortPlanePoint(point));
}

Statement EmitAddVertexAfter(Writer& writer, const CFxString& polyline, int vertex, const OdGePoint3d& point,
                             bool spatial)
{
    return placeVertex(writer, polyline, "AddVertexAfter", vertex, point, spatial);
}

Statement EmitSetVertexCoordinate(Writer& writer, const CFxString& polyline, int vertex, const OdGePoint3d& point,
                                  bool spatial)
{
    return placeVertex(writer, polyline, "SetVertexCoordinate", vertex, point, spatial);
}

static const Phrase straighten{"EmitPolylineStraighten",
                               {
                                   .cpp = "%1bool Success%5;\n%1%2->Straighten( %3, %4, &Success%5 );\n",
                                   .cppCom = "%1%2->Straighten( %3, %4 );\n",
                                   .csharp = "%1%2.Straighten( %3, %4 );\n",
                                   .javascript = "%1%2.Straighten( %3, %4 );\n",
                                   .vbNet = "%1%2.Straighten(%3, %4)\n",
                                   .vba = "%1%2.Straighten %3, %4 \n",
                                   .python = "%1%2.Straighten(%3, %4)\n",
                               }};

Statement EmitPolylineStraighten(Writer& writer, const CFxString& polyline, int first, int last)
{
    return withSuccess(
        writer,
        writer.fillIndented(straighten).word(polyline).number(first, Meaning::Count).number(last, Meaning::Count));
}

/// C++ declares its local and does not use it. It has to stay so.
static const Phrase setWidths{"EmitPolylineWidth",
                              {
                                  .cpp = "%1bool Success%6;\n%1%2->SetSegmentStartWidth( %3, %4 );\n"
                                         "%1%2->SetSegmentEndWidth( %3, %5 );\n",
                                  .cppCom = "%1%2->SetSegmentStartWidth( %3, %4 );\n"
                                            "%1%2->SetSegmentEndWidth( %3, %5 );\n",
                                  .csharp = "%1%2.SetSegmentStartWidth( %3, %4 );\n"
                                            "%1%2.SetSegmentEndWidth( %3, %5 );\n",
                                  .javascript = "%1%2.SetSegmentStartWidth( %3, %4 );\n"
                                                "%1%2.SetSegmentEndWidth( %3, %5 );\n",
                                  .vbNet = "%1%2.SetSegmentStartWidth(%3, %4)\n"
                                           "%1%2.SetSegmentEndWidth(%3, %5)\n",
                                  .vba = "%1%2.SetSegmentStartWidth %3, %4 \n"
                                         "%1%2.SetSegmentEndWidth %3, %5 \n",
                                  .python = "%1%2.SetSegmentStartWidth(%3, %4)\n"
                                            "%1%2.SetSegmentEndWidth(%3, %5)\n",
                              }};
static const Mend widthsWithSuccess(setWidths, Target::Cpp,
                                    "the local that tells the success is declared and not handed over",
                                    "%1bool Success%6;\n%1%2->SetSegmentStartWidth( %3, %4, &Success%6 );\n"
                                    "%1%2->SetSegmentEndWidth( %3, %5, &Success%6 );\n");

Statement EmitPolylineWidth(Writer& writer, const CFxString& polyline, int segment, double start, double end)
{
    return withSuccess(writer, writer.fillIndented(setWidths)
                                   .word(polyline)
                                   .number(segment, Meaning::Count)
                                   .shortReal(start, Meaning::Length)
                                   .shortReal(end, Meaning::Length));
}

/// VBA has brackets here. It has to stay so.
static const Phrase deleteVertex{"EmitDeleteVertex",
                                 {
                                     .cpp = "%1bool Success%4;\n%1%2->DeleteVertex( %3, &Success%4 );\n",
                                     .cppCom = "%1%2->DeleteVertex( %3 );\n",
                                     .csharp = "%1%2.DeleteVertex( %3 );\n",
                                     .javascript = "%1%2.DeleteVertex( %3 );\n",
                                     .vbNet = "%1%2.DeleteVertex(%3)\n",
                                     .vba = "%1%2.DeleteVertex( %3 )\n",
                                     .python = "%1%2.DeleteVertex(%3)\n",
                                 }};

Statement EmitDeleteVertex(Writer& writer, const CFxString& polyline, int vertex)
{
    return withSuccess(writer, writer.fillIndented(deleteVertex).word(polyline).number(vertex, Meaning::Count));
}
