// Tolerances, leaders and what stands at a leader's end.

#include "objects/targets/leaders.h"

#include "statements/arrays.h"

using namespace inkmacro;

/// Where the values of the point stand, and whether an array of its own takes them, differs by target. In COM the
/// locals have no number, so they need a block.
static const Phrase insertTolerance{
    "EmitInsertTolerance",
    {
        .cpp = "%1iwDoubleArray Coordinates%3;%2%1Coordinates%3.clear();%2%2%4%2"
               "%1iwSketchManager->InsertTolerance( Coordinates%3, L\"%5\", &%6 );%2",
        .cppCom = "%1{%2%1    double x, y, z;%2%1    VARIANT variant%3;%2%1    variant%3.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1    variant%3.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2%4%2"
                  "%1    %6 = iwSketchManager->InsertTolerance( variant%3, L\"%5\" );%2%1}%2",
        .csharp = "%1%7 = iwSketchManager.InsertTolerance(%2%1 new double[]{%3,%4,%5}, %2%1 \"%6\" );%2",
        .javascript = "%1var %7 = mSkMgr.InsertTolerance(new Array(%3,%4,%5), \"%6\");%2",
        .vbNet = "%1%7 = iwSketchManager.InsertTolerance( New Double(){%3,%4,%5}, \"%6\" )%2",
        .vba = "%1Dim Coordinates%7(2) As Double%2%1Coordinates%7(0) = %3%2%1Coordinates%7(1) = %4%2"
               "%1Coordinates%7(2) = %5%2%1Set %8 = iwSketchManager.InsertTolerance( Coordinates%7, \"%6\" )%2",
        .python = "%1%5 = drawing.sketch.InsertTolerance(reals(%3), %4)%2",
    }};

Statement EmitInsertTolerance(Writer& writer, const OdGePoint3d& position, const EscapedText& text,
                              const CFxString& name)
{
    std::uint32_t& counter = writer.UniqueCounter;
    if (writer.target == Target::Cpp)
        return callWithArray(
            writer, insertTolerance, coordinateArray(writer, spatial({position}), nullptr),
            [&](Fill& call) { call.text(text, Meaning::Text); }, name);
    if (writer.target == Target::CppCom) {
        ++counter;
        const Statement point =
            comPointLines({writer, "variant" + QString::number(counter), counter}, position, NumberForm::Long, false);
        return writer.fill(insertTolerance).number(counter).word(point).text(text, Meaning::Text).word(name);
    }
    Fill statement = writer.fill(insertTolerance);
    statement.point(position).text(text, Meaning::Text);
    if (writer.target == Target::Vba)
        statement.number(++counter);
    return statement.word(name);
}

static const Phrase insertLeader{
    "EmitInsertLeader",
    {
        .cpp = "%1iwDoubleArray Coordinates%3;%2%1Coordinates%3.clear();%2%2%4%2"
               "%1iwSketchManager->InsertLeader( Coordinates%3, %5, L\"%6\", &%7 );%2",
        .cppCom = "%1VARIANT variant%3;%2%1variant%3.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1variant%3.parray = SafeArrayCreateVector( VT_R8, 0, %7 );%2%4%2"
                  "%1%8 = iwSketchManager->InsertLeader( variant%3, %5, L\"%6\" );%2",
        .csharp = "%1%6 = iwSketchManager.InsertLeader(%2%1 new double[]{%3},%2%1 %4,%2%1 \"%5\" );%2",
        .javascript = "%1var %6 = mSkMgr.InsertLeader(%3, %4, \"%5\");%2",
        .vbNet = "%1Dim Coordinates%3(%4) As Double%2%5%2"
                 "%1%8 = iwSketchManager.InsertLeader( Coordinates%3, %6, \"%7\" )%2",
        .vba = "%1Dim Coordinates%3(%4) As Double%2%5%2"
               "%1Set %8 = iwSketchManager.InsertLeader( Coordinates%3, %6, \"%7\" )%2",
        .python = "%1%6 = drawing.sketch.InsertLeader(reals(%3), %4, %5)%2",
    }};

Statement EmitInsertLeader(Writer& writer, const OdArray<OdGePoint3d>& vertices, double width, const EscapedText& text,
                           const CFxString& name)
{
    return callWithArray(
        writer, insertLeader, coordinateArray(writer, spatial(vertices), "leaderPoints"),
        [&](Fill& call) { call.real(width, Meaning::Length).text(text, Meaning::Text); }, name);
}

static const Phrase setToleranceAnnotation{"EmitSetAnnotation",
                                           {
                                               .cpp = "%1%3->SetToleranceAnnotation( L\"%4\" );%2",
                                               .cppCom = "%1%3->SetToleranceAnnotation( L\"%4\" );%2",
                                               .csharp = "%1%3.SetToleranceAnnotation( \"%4\" );%2",
                                               .javascript = "%1%3.SetToleranceAnnotation(\"%4\");%2",
                                               .vbNet = "%1%3.SetToleranceAnnotation( \"%4\" )%2",
                                               .vba = "%1%3.SetToleranceAnnotation \"%4\"%2",
                                               .python = "%1%3.SetToleranceAnnotation(%4)%2",
                                           }};

static const Phrase setBlockAnnotation{"EmitSetAnnotation",
                                       {
                                           .cpp = "%1%3->SetBlockAnnotation( L\"%4\" );%2",
                                           .cppCom = "%1%3->SetBlockAnnotation( L\"%4\" );%2",
                                           .csharp = "%1%3.SetBlockAnnotation( \"%4\" );%2",
                                           .javascript = "%1%3.SetBlockAnnotation(\"%4\");%2",
                                           .vbNet = "%1%3.SetBlockAnnotation( \"%4\" )%2",
                                           .vba = "%1%3.SetBlockAnnotation \"%4\"%2",
                                           .python = "%1%3.SetBlockAnnotation(%4)%2",
                                       }};

Statement EmitSetAnnotation(Writer& writer, const CFxString& leader, LeaderAnnotation kind, const EscapedText& text)
{
    const Phrase& words = kind == LeaderAnnotation::Tolerance ? setToleranceAnnotation : setBlockAnnotation;
    return writer.fill(words).word(leader).text(text, Meaning::Text);
}
