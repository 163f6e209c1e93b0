// Colors within calls.

#include "targets/colors.h"

using namespace inkmacro;

static const Phrase colorByIndex{"color",
                                 {
                                     .cppCom = "pConnection->m_IwApp->GetColorByIndex( %1 )",
                                     .csharp = "iwApp.GetColorByIndex( %1 )",
                                     .javascript = "mApp.GetColorByIndex(%1)",
                                     .vbNet = "iwApp.GetColorByIndex( %1 )",
                                     .vba = "iwApp.GetColorByIndex( %1 )",
                                     .python = "drawing.app.GetColorByIndex(%1)",
                                 }};

static const Phrase colorByRgb{"color",
                               {
                                   .cppCom = "pConnection->m_IwApp->GetRGBColor( %1 ,%2 ,%3 )",
                                   .csharp = "iwApp.GetRGBColor( %1 ,%2 ,%3 )",
                                   .javascript = "mApp.GetRGBColor(%1 ,%2 ,%3)",
                                   .vbNet = "iwApp.GetRGBColor( %1 ,%2 ,%3 )",
                                   .vba = "iwApp.GetRGBColor( %1 ,%2 ,%3 )",
                                   .python = "drawing.app.GetRGBColor(%1, %2, %3)",
                               }};

QString colorExpression(Target target, const OdCmColor& color)
{
    if (color.isByBlock() || color.isByLayer() || color.isByACI())
        return Fill(colorByIndex.in(target)).number(color.colorIndex()).str().text();
    return Fill(colorByRgb.in(target)).number(color.red()).number(color.green()).number(color.blue()).str().text();
}

static const Fault kBlackGradient{
    "EmitHatchGradient",
    {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
    "a color by layer or by block counts as black in a gradient"};

static bool isInherited(const OdCmColor& color)
{
    return color.isByLayer() || color.isByBlock();
}

OdCmColor gradientColor(const Writer& writer, const OdCmColor& color)
{
    if (isInherited(color) && writer.repairs)
        return OdCmColor::byIndex(color.colorIndex());
    return color.isByACI() ? color : OdCmColor::byRgb(color.red(), color.green(), color.blue());
}

Statement notingBlack(const Writer& writer, const Statement& statement, const OdCmColor& color)
{
    return isInherited(color) ? writer.faulty(statement, kBlackGradient) : statement;
}
