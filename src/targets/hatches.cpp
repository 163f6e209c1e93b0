// Hatches whose boundary is a polyline of their own, and the gradient of a new hatch.

#include "targets/hatches.h"

#include "statements/arrays.h"
#include "statements/wording.h"
#include "targets/colors.h"

#include <cmath>

using namespace inkmacro;

static const Phrase insertBoundaryPolyline{
    "EmitHatchBoundaryPolyline",
    {
        .cpp = "%2%1iwPolyLine_ptr %6;%2%1{%2%1    iwDoubleArray Coordinates%3;%2%1    Coordinates%3.clear();%2%2%4%2"
               "%1    iwSketchManager->InsertPolyline2D( Coordinates%3, %5, &%6 );%2%1}%2",
        .cppCom = "%2%1IPolyLinePtr %7;%2%1{%2%1    VARIANT variant%3;%2%1    variant%3.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1    variant%3.parray = SafeArrayCreateVector( VT_R8, 0, %6 );%2%4%2"
                  "%1    %7 = iwSketchManager->InsertPolyline2D( variant%3, %5);%2%1}%2",
        .csharp = "%2%1PolyLine %5;%2%1{%2"
                  "%1    %5 = iwSketchManager.InsertPolyline2D( new double[]{%3}, %4 );%2%1}%2",
        .javascript = "%1var %5 = mSkMgr.InsertPolyline2D(%3, %4);%2",
        .vbNet = "%1Dim %7 As Inkwright.PolyLine%2%1Dim Coordinates%3(%4) As Double%2%5%2"
                 "%1%7 = iwSketchManager.InsertPolyline2D( Coordinates%3, %6 )%2",
        .vba = "%1Dim %7 As Inkwright.PolyLine%2%1Dim Coordinates%3(%4) As Double%2%5%2"
               "%1Set %7 = iwSketchManager.InsertPolyline2D( Coordinates%3, %6 )%2",
        .python = "%1%5 = drawing.sketch.InsertPolyline2D(reals(%3), %4)%2",
    }};

CFxString HatchPolylineName(const Writer& writer, std::uint32_t number)
{
    return writer.target == Target::Python ? QStringLiteral("edge_1") : QStringLiteral("hatch_Polyline_%1").arg(number);
}

Statement EmitHatchBoundaryPolyline(Writer& writer, const CFxString& name, const OdArray<OdGePoint2d>& points,
                                    bool closed)
{
    return callWithArray(
        writer, insertBoundaryPolyline, coordinateArray(writer, planar(points), "polyPoints", NumberForm::Short),
        [&](Fill& call) { call.word(truthWord(writer.target, closed)); }, name);
}

static const Phrase setSegmentAngle{"EmitSetSegmentAngle",
                                    {
                                        .cpp = "%1bool bRet%3 = false;%2%1%4->SetSegmentAngle( %5, %6, &bRet%3 );%2",
                                        .cppCom = "%1%4->SetSegmentAngle( %5, %6 );%2",
                                        .csharp = "%1%3.SetSegmentAngle( %4, %5 );%2",
                                        .javascript = "%1%3.SetSegmentAngle(%4, %5);%2",
                                        .vbNet = "%1%3.SetSegmentAngle( %4, %5 )%2",
                                        .vba = "%1%3.SetSegmentAngle %4, %5%2",
                                        .python = "%1%3.SetSegmentAngle(%4, %5)%2",
                                    }};

Statement EmitSetSegmentAngle(Writer& writer, const CFxString& polyline, std::int32_t index, double angle)
{
    Fill statement = writer.fill(setSegmentAngle);
    if (writer.target == Target::Cpp)
        statement.number(++writer.UniqueCounter);
    return statement.word(polyline).number(index).shortReal(angle);
}

Statement EmitSetSegmentAngles(Writer& writer, const CFxString& polyline, const OdArray<double>& bulges)
{
    // A segment that is bent by no more than this is straight.
    constexpr double straight = 1e-10;
    Statement text;
    std::int32_t index = 0;
    for (const double bulge : bulges) {
        if (bulge > straight || bulge < -straight)
            text += EmitSetSegmentAngle(writer, polyline, index, 4 * std::atan(bulge));
        ++index;
    }
    return text;
}

/// In a page this insertion alone goes by the sketch manager's name of the other targets, which no page knows. It has
/// to stay so.
static const Phrase hatchByPolyline{
    "EmitHatchByPolyline",
    {
        .cpp = "%2%1iwObjectPtrArray iwEntities;%2%1iwEntities.add( %6 );%2"
               "%1iwSketchManager->InsertHatchByEntities(%2%1 iwEntities, %2%1 L\"%3\", %2%1 %4, %2%1 %5, &%7 );%2",
        .cppCom = "%1VARIANT EntityArray%3;%2%1EntityArray%3.vt = ( VT_ARRAY | VT_DISPATCH );%2"
                  "%1EntityArray%3.parray = SafeArrayCreateVector( VT_DISPATCH, 0, 1);%2"
                  "%1long rgIndices%3;%2%1rgIndices%3 = 0;%2%1long rgIndice%3;%2%1rgIndice%3 = 0;%2"
                  "%1IDispatch* val%3;%2%1val%3 = %4;%2"
                  "%1SafeArrayPutElement( EntityArray%3.parray, &rgIndices%3, (IDispatch*)(val%3) );%2"
                  "%1%8 = iwSketchManager->InsertHatchByEntities( EntityArray%3, L\"%5\", %6, %7 );%2",
        .csharp = "%2%1DispatchWrapper[] iwEntities = new DispatchWrapper[1];%2"
                  "%1iwEntities[0] = new DispatchWrapper( %6 );%2"
                  "%1%7 = iwSketchManager.InsertHatchByEntities(%2%1 iwEntities, %2%1 \"%3\", %2%1 %4, %2%1 %5 );%2",
        .javascript = "%2%1var iwEntities = new Array(1);%2%1iwEntities[0] = %6;%2"
                      "%1%7 = iwSketchManager.InsertHatchByEntities(%2%1 iwEntities, %2%1 \"%3\", %2%1 %4, %2%1 %5 );"
                      "%2",
        .vbNet = "%2%1Dim iwEntities As DispatchWrapper() = New DispatchWrapper(0) {}%2"
                 "%1iwEntities(0) = New DispatchWrapper( %6 )%2"
                 "%1%7 = iwSketchManager.InsertHatchByEntities( iwEntities, \"%3\", %4, %5 )%2",
        .vba = "%2%1Dim iwEntities(0) As Object%2%1Set iwEntities(0) = %6%2"
               "%1Set %7 = iwSketchManager.InsertHatchByEntities( iwEntities, \"%3\", %4, %5 )%2",
        .python = "%1%7 = drawing.sketch.InsertHatchByEntities(objects(%6), %3, %4, %5)%2",
    }};
static const Mend hatchInPage(
    hatchByPolyline, Target::JavaScript,
    "the page has no iwSketchManager, its sketch manager is mSkMgr, and the hatch's variable is not declared",
    "%2%1var iwEntities = new Array(1);%2%1iwEntities[0] = %6;%2"
    "%1var %7 = mSkMgr.InsertHatchByEntities(%2%1 iwEntities, %2%1 \"%3\", %2%1 %4, %2%1 %5 );%2");

static const Phrase eraseBoundaryPolyline{"EmitHatchByPolyline: erasure",
                                          {
                                              .cpp = "%2%1%3->put_Erased( %4 );%2",
                                              .cppCom = "%2%1%3->put_Erased( %4 );%2",
                                              .csharp = "%2%1%3.Erased = %4;%2",
                                              .javascript = "%2%1%3.put_Erased( %4 );%2",
                                              .vbNet = "%2%1%3.Erased = %4%2",
                                              .vba = "%2%1%3.Erased = %4%2",
                                              .python = "%1%3.Erased = %4%2",
                                          }};

Statement EmitHatchByPolyline(Writer& writer, const CFxString& hatch, const CFxString& polyline,
                              const HatchPattern& pattern, bool erase)
{
    Fill insertion = writer.fill(hatchByPolyline);
    // COM fills its array before the call, the others name the polyline's place in it after the pattern.
    if (writer.target == Target::CppCom)
        insertion.number(++writer.UniqueCounter).word(polyline);
    insertion.text(pattern.name, Meaning::Text);
    if (writer.target == Target::Cpp)
        insertion.shortReal(pattern.first).shortReal(pattern.second);
    else
        insertion.real(pattern.first, Meaning::Factor).real(pattern.second, Meaning::Angle);
    if (writer.target != Target::CppCom)
        insertion.word(polyline);
    Statement statement = insertion.word(hatch);
    if (!erase)
        return statement;
    return statement + writer.fill(eraseBoundaryPolyline).word(polyline).word(truthWord(writer.target, true)).str();
}

// The C++ add-in takes each color into a variable of its own; the others have the color among the call's arguments.

static const Phrase firstIndexedColor{
    "EmitHatchGradient: indexed color",
    {.cpp = "%2%1iwColor_ptr iwColor1%3;%2%1m_pIwApp->GetColorByIndex( %4, &iwColor1%3 );%2%2"}};
static const Phrase secondIndexedColor{
    "EmitHatchGradient: indexed color",
    {.cpp = "%2%1iwColor_ptr iwColor2%3;%2%1m_pIwApp->GetColorByIndex( %4, &iwColor2%3 );%2%2"}};
static const Phrase firstRgbColor{
    "EmitHatchGradient: true color",
    {.cpp = "%2%1iwColor_ptr iwColor1%3;%2%1m_pIwApp->GetRGBColor( %4, %5, %6, &iwColor1%3 );%2%2"}};
static const Phrase secondRgbColor{
    "EmitHatchGradient: true color",
    {.cpp = "%2%1iwColor_ptr iwColor2%3;%2%1m_pIwApp->GetRGBColor( %4, %5, %6, &iwColor2%3 );%2%2"}};

/// Takes the color into its variable. Empty in all targets but C++.
static Statement takeColor(Writer& writer, const Phrase& indexed, const Phrase& rgb, const OdCmColor& color)
{
    Fill statement = writer.fill(color.isByACI() ? indexed : rgb);
    statement.number(writer.UniqueCounter);
    if (color.isByACI())
        return statement.number(color.colorIndex());
    return statement.number(color.red()).number(color.green()).number(color.blue());
}

static const Phrase setGradient{
    "EmitHatchGradient",
    {
        .cpp = "%1iwHatchPattern_ptr iwHatchPattern%3;%2%1%6->GetHatchPattern( &iwHatchPattern%3 );%2"
               "%1iwHatchPattern%3->SetGradientData( iwColor1%3, iwColor2%3, %4, %5);%2",
        .cppCom = "%2%1IHatchPatternPtr hatchPattern%3 = %8->GetHatchPattern();%2"
                  "%1hatchPattern%3->SetGradientData( %4, %5, %6, %7);%2",
        .csharp = "%2%1HatchPattern hatchPattern%3 = %8.GetHatchPattern();%2"
                  "%1hatchPattern%3.SetGradientData( %4, %5, %6, %7);%2",
        .javascript = "%2%1var hatchPattern%3 = %8.GetHatchPattern();%2"
                      "%1hatchPattern%3.SetGradientData( %4, %5, %6, %7);%2",
        .vbNet = "%2%1Dim hatchPattern%3 As Inkwright.HatchPattern%2%1hatchPattern%3 = %8.GetHatchPattern()%2"
                 "%1hatchPattern%3.SetGradientData( %4, %5, %6, %7)%2",
        .vba = "%2%1Dim hatchPattern%3 As Inkwright.HatchPattern%2%1hatchPattern%3 = %8.GetHatchPattern()%2"
               "%1hatchPattern%3.SetGradientData %4, %5, %6, %7%2",
        .python = "%1pattern = %8.GetHatchPattern()%2%1pattern.SetGradientData(%4, %5, %6, %7)%2",
    }};
static const Mend
    basicGradient(setGradient, Target::Vba, "an object is assigned without Set",
                  "%2%1Dim hatchPattern%3 As Inkwright.HatchPattern%2%1Set hatchPattern%3 = %8.GetHatchPattern()%2"
                  "%1hatchPattern%3.SetGradientData %4, %5, %6, %7%2");

Statement EmitHatchGradient(Writer& writer, const CFxString& hatch, const HatchGradient& gradient)
{
    const OdCmColor first = gradientColor(writer, gradient.first);
    const OdCmColor second = gradientColor(writer, gradient.second);
    Fill call = writer.fill(setGradient);
    call.number(++writer.UniqueCounter);
    if (writer.target != Target::Cpp)
        call.word(colorExpression(writer.target, first)).word(colorExpression(writer.target, second));
    call.word(truthWord(writer.target, gradient.centered)).real(gradient.angle, Meaning::Angle).word(hatch);
    const Statement text = takeColor(writer, firstIndexedColor, firstRgbColor, first) +
                           takeColor(writer, secondIndexedColor, secondRgbColor, second) + call.str();
    return notingBlack(writer, notingBlack(writer, text, gradient.first), gradient.second);
}
