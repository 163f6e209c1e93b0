// The backgrounds of named views. Their variables are numbered for the whole process, each kind for itself.

#include "objects/targets/viewBackgrounds.h"

#include "statements/counters.h"
#include "statements/wording.h"
#include "targets/colors.h"

#include <algorithm>
#include <vector>

using namespace inkmacro;

static const Phrase imageBackground{
    "EmitImageBackground",
    {
        .cpp = "%1iwImageBackground_ptr iwImageBackground%2;\n"
               "%1iwViewManager->CreateImageBackground( L\"%3\", %4, %5, %6, %7, %8, &iwImageBackground%2 );\n"
               "%1%9->SetImageBackground( iwImageBackground%2 );\n\n",
        .cppCom = "%1IImageBackgroundPtr iwImageBackground%2;\n"
                  "%1iwImageBackground%2 = iwViewManager->CreateImageBackground( L\"%3\", %4, %5, %6, %7, %8 );\n"
                  "%1%9->SetImageBackground( iwImageBackground%2 );\n\n",
        .csharp = "%1ImageBackground iwImageBackground%2 = "
                  "iwViewManager.CreateImageBackground( \"%3\", %4, %5, %6, %7, %8 );\n"
                  "%1%9.SetImageBackground( iwImageBackground%2 );\n\n",
        .javascript = "%1var iwImageBackground%2 = "
                      "mViewManager.CreateImageBackground( \"%3\", \"%4\", %5, %6, %7, %8 );\n"
                      "%1%9.SetImageBackground( iwImageBackground%2 );\n\n",
        .vbNet = "%1Dim iwImageBackground%2 As Inkwright.ImageBackground = "
                 "iwViewManager.CreateImageBackground( \"%3\", %4, %5, %6, %7, %8 )\n"
                 "%1%9.SetImageBackground( iwImageBackground%2 )\n\n",
        .vba = "%1Dim iwImageBackground%2 As Inkwright.ImageBackground\n"
               "%1Set iwImageBackground%2 = iwViewManager.CreateImageBackground( \"%3\", %4, %5, %6, %7, %8 )\n"
               "%1%9.SetImageBackground iwImageBackground%2\n\n",
        .python = "%1background = drawing.views.CreateImageBackground(%3, %4, %5, %6, %7, %8)\n"
                  "%1%9.SetImageBackground(background)\n",
    }};

Statement EmitImageBackground(Writer& writer, const CFxString& path, const CFxString& position,
                              const std::array<double, 4>& numbers, const CFxString& view)
{
    Fill statement = writer.fillIndented(imageBackground);
    statement.number(processCounters.of(writer.target).imageBackgrounds++).text(path, Meaning::Text);
    statement.word(enumeratorText(writer.target, "iwImageBackgroundPosition_e", position));
    for (const double number : numbers)
        statement.real(number);
    return statement.word(view);
}

/// A page and the .NET targets declare a color where it is fetched. `%2` is its variable. In Python colors have none:
/// they stand in the calls.
static const Phrase declareColor{"background: declaration of a color",
                                 {
                                     .cpp = "%1iwColor_ptr %2;\n",
                                     .cppCom = "%1IColorPtr %2;\n",
                                     .vba = "%1Dim %2 As Inkwright.Color\n",
                                 }};

static const Phrase indexedColor{"background: color by index",
                                 {
                                     .cpp = "%1m_pIwApp->GetColorByIndex( %3, &%2 );\n",
                                     .cppCom = "%1%2 = pConnection->m_IwApp->GetColorByIndex( %3 );\n",
                                     .csharp = "%1Color %2 = iwApp.GetColorByIndex( %3 );\n",
                                     .javascript = "%1var %2 = mApp.GetColorByIndex( %3 );\n",
                                     .vbNet = "%1Dim %2 As Inkwright.Color = iwApp.GetColorByIndex( %3 )\n",
                                     .vba = "%1Set %2 = iwApp.GetColorByIndex( %3 )\n",
                                 }};

/// Where no call makes a color of red, green and blue, they are set on any color.
static const Phrase rgbColor{"background: RGB color",
                             {
                                 .cpp = "%1m_pIwApp->GetRGBColor( %3, %4, %5, &%2 );\n",
                                 .cppCom = "%1%2 = pConnection->m_IwApp->GetRGBColor( %3, %4, %5 );\n",
                                 .csharp = "%1%2.SetRGBColor( %3, %4, %5 );\n",
                                 .javascript = "%1%2.SetRGBColor( %3, %4, %5 );\n",
                                 .vbNet = "%1%2.SetRGBColor( %3, %4, %5 )\n",
                                 .vba = "%1%2.SetRGBColor %3, %4, %5\n",
                             }};

static const Fault kBlackBackground{
    "EmitSolidBackground",
    {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
    "a color by index, by layer or by block counts as black behind a view"};

namespace {

/// One color of a background.
struct BackgroundColor
{
    QString variable; ///< as C++ spells it; the other targets begin it with a small letter
    OdCmColor color;
    std::uint16_t any; ///< index of the color that red, green and blue are set on
};

bool isIndexed(const OdCmColor& color)
{
    return color.isByLayer() || color.isByBlock() || color.isByACI();
}

} // namespace

static Statement makeColors(Writer& writer, std::vector<BackgroundColor> colors)
{
    const bool isCpp = writer.target == Target::Cpp || writer.target == Target::CppCom;
    const auto keepsIndex = [&](const OdCmColor& color) { return isIndexed(color) && writer.repairs; };
    Statement text;
    for (BackgroundColor& one : colors) {
        if (!isCpp)
            one.variable[0] = one.variable[0].toLower();
        if (declareColor.has(writer.target))
            text += writer.fillIndented(declareColor).word(one.variable);
    }
    for (const auto& [variable, color, any] : colors)
        if (keepsIndex(color) || !isCpp)
            text += writer.fillIndented(indexedColor)
                        .word(variable)
                        .number(unsigned{keepsIndex(color) ? color.colorIndex() : any});
    for (const auto& [variable, color, any] : colors)
        if (!keepsIndex(color))
            text += writer.fillIndented(rgbColor)
                        .word(variable)
                        .number(color.red())
                        .number(color.green())
                        .number(color.blue());
    const bool isBlack = std::ranges::any_of(colors, isIndexed, &BackgroundColor::color);
    return isBlack ? writer.faulty(std::move(text), kBlackBackground) : text;
}

static const Phrase gradientBackground{
    "EmitGradientBackground",
    {
        .cpp = "%1iwGradientBackground_ptr iwGradientBackground%2;\n"
               "%1iwViewManager->CreateGradientBackground( TopColor%2, MiddleColor%2, BottomColor%2, %4, %3, "
               "&iwGradientBackground%2 );\n"
               "%1%5->SetGradientBackground( iwGradientBackground%2 );\n\n",
        .cppCom = "%1IGradientBackgroundPtr iwGradientBackground%2;\n"
                  "%1iwGradientBackground%2 = iwViewManager->CreateGradientBackground( TopColor%2, MiddleColor%2, "
                  "BottomColor%2, %4, %3 );\n"
                  "%1%5->SetGradientBackground( iwGradientBackground%2 );\n\n",
        .csharp = "%1GradientBackground iwGradientBackground%2 = iwViewManager.CreateGradientBackground( topColor%2, "
                  "middleColor%2, bottomColor%2, %4, %3 );\n"
                  "%1%5.SetGradientBackground( iwGradientBackground%2 );\n\n",
        .javascript = "%1var iwGradientBackground%2 = mViewManager.CreateGradientBackground( topColor%2, "
                      "middleColor%2, bottomColor%2, %4, %3 );\n"
                      "%1%5.SetGradientBackground( iwGradientBackground%2 );\n\n",
        .vbNet = "%1Dim iwGradientBackground%2 As Inkwright.GradientBackground = "
                 "iwViewManager.CreateGradientBackground( topColor%2, middleColor%2, bottomColor%2, %4, %3 )\n"
                 "%1%5.SetGradientBackground( iwGradientBackground%2 )\n\n",
        .vba = "%1Dim iwGradientBackground%2 As Inkwright.GradientBackground\n"
               "%1Set iwGradientBackground%2 = iwViewManager.CreateGradientBackground( topColor%2, middleColor%2, "
               "bottomColor%2, %4, %3 )\n"
               "%1%5.SetGradientBackground iwGradientBackground%2\n\n",
        .python = "%1background = drawing.views.CreateGradientBackground(%6, %7, %8, %4, %3)\n"
                  "%1%5.SetGradientBackground(background)\n",
    }};

Statement EmitGradientBackground(Writer& writer, const OdCmColor& top, const OdCmColor& middle, const OdCmColor& bottom,
                                 double rotation, double height, const CFxString& view)
{
    const std::uint32_t number = processCounters.of(writer.target).gradientBackgrounds++;
    const QString digits = QString::number(number);
    Statement colors = makeColors(
        writer,
        {{"TopColor" + digits, top, 1}, {"MiddleColor" + digits, middle, 2}, {"BottomColor" + digits, bottom, 3}});
    Fill background = writer.fillIndented(gradientBackground);
    background.number(number).real(rotation, Meaning::Angle).real(height).word(view);
    if (!indexedColor.has(writer.target))
        for (const OdCmColor& color : {top, middle, bottom})
            background.word(colorExpression(writer.target, color));
    return std::move(colors) + background.str();
}

static const Phrase solidBackground{
    "EmitSolidBackground",
    {
        .cpp = "%1iwSolidBackground_ptr iwSolidBackground%2;\n"
               "%1iwViewManager->CreateSolidBackground( SolidColor%2, &iwSolidBackground%2 );\n"
               "%1%3->SetSolidBackground( iwSolidBackground%2 );\n\n",
        .cppCom = "%1ISolidBackgroundPtr iwSolidBackground%2;\n"
                  "%1iwSolidBackground%2 = iwViewManager->CreateSolidBackground( SolidColor%2 );\n"
                  "%1%3->SetSolidBackground( iwSolidBackground%2 );\n\n",
        .csharp = "%1SolidBackground iwSolidBackground%2 = iwViewManager.CreateSolidBackground( solidColor%2 );\n"
                  "%1%3.SetSolidBackground( iwSolidBackground%2 );\n\n",
        .javascript = "%1var iwSolidBackground%2 = mViewManager.CreateSolidBackground( solidColor%2 );\n"
                      "%1%3.SetSolidBackground( iwSolidBackground%2 );\n\n",
        .vbNet = "%1Dim iwSolidBackground%2 As Inkwright.SolidBackground = "
                 "iwViewManager.CreateSolidBackground( solidColor%2 )\n"
                 "%1%3.SetSolidBackground( iwSolidBackground%2 )\n\n",
        .vba = "%1Dim iwSolidBackground%2 As Inkwright.SolidBackground\n"
               "%1Set iwSolidBackground%2 = iwViewManager.CreateSolidBackground( solidColor%2 )\n"
               "%1%3.SetSolidBackground iwSolidBackground%2\n\n",
        .python = "%1background = drawing.views.CreateSolidBackground(%4)\n"
                  "%1%3.SetSolidBackground(background)\n",
    }};

Statement EmitSolidBackground(Writer& writer, const OdCmColor& color, const CFxString& view)
{
    const std::uint32_t number = processCounters.of(writer.target).solidBackgrounds++;
    Fill background = writer.fillIndented(solidBackground);
    background.number(number).word(view);
    if (!indexedColor.has(writer.target))
        background.word(colorExpression(writer.target, color));
    return makeColors(writer, {{"SolidColor" + QString::number(number), color, 3}}) + background.str();
}
