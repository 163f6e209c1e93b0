// The backgrounds of named views. Their variables are numbered for the whole process, each kind for itself.

#include "objects/targets/viewBackgrounds.h"

#include "statements/counters.h"
#include "statements/wording.h"

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
    }};

Statement EmitImageBackground(Writer& writer, const CFxString& path, const CFxString& position,
                              const std::array<double, 4>& numbers, const CFxString& view)
{
    Fill statement = writer.fillIndented(imageBackground);
    statement.number(processCounters.of(writer.target).imageBackgrounds++).text(path);
    statement.text(enumeratorText(writer.target, "iwImageBackgroundPosition_e", position));
    for (const double number : numbers)
        statement.real(number);
    return statement.text(view);
}

/// The colors are made from any color and then set, where no call makes one from red, green and blue.
static const Phrase gradientBackground{
    "EmitGradientBackground",
    {
        .cpp = "%1iwColor_ptr TopColor%2;\n%1iwColor_ptr MiddleColor%2;\n%1iwColor_ptr BottomColor%2;\n"
               "%1m_pIwApp->GetRGBColor( %3, %4, %5, &TopColor%2 );\n"
               "%1m_pIwApp->GetRGBColor( %6, %7, %8, &MiddleColor%2 );\n"
               "%1m_pIwApp->GetRGBColor( %9, %10, %11, &BottomColor%2 );\n"
               "%1iwGradientBackground_ptr iwGradientBackground%2;\n"
               "%1iwViewManager->CreateGradientBackground( TopColor%2, MiddleColor%2, BottomColor%2, %13, %12, "
               "&iwGradientBackground%2 );\n"
               "%1%14->SetGradientBackground( iwGradientBackground%2 );\n\n",
        .cppCom = "%1IColorPtr TopColor%2;\n%1IColorPtr MiddleColor%2;\n%1IColorPtr BottomColor%2;\n"
                  "%1TopColor%2 = pConnection->m_IwApp->GetRGBColor( %3, %4, %5 );\n"
                  "%1MiddleColor%2 = pConnection->m_IwApp->GetRGBColor( %6, %7, %8 );\n"
                  "%1BottomColor%2 = pConnection->m_IwApp->GetRGBColor( %9, %10, %11 );\n"
                  "%1IGradientBackgroundPtr iwGradientBackground%2;\n"
                  "%1iwGradientBackground%2 = iwViewManager->CreateGradientBackground( TopColor%2, MiddleColor%2, "
                  "BottomColor%2, %13, %12 );\n"
                  "%1%14->SetGradientBackground( iwGradientBackground%2 );\n\n",
        .csharp = "%1Color topColor%2 = iwApp.GetColorByIndex( 1 );\n"
                  "%1Color middleColor%2 = iwApp.GetColorByIndex( 2 );\n"
                  "%1Color bottomColor%2 = iwApp.GetColorByIndex( 3 );\n"
                  "%1topColor%2.SetRGBColor( %3, %4, %5 );\n"
                  "%1middleColor%2.SetRGBColor( %6, %7, %8 );\n"
                  "%1bottomColor%2.SetRGBColor( %9, %10, %11 );\n"
                  "%1GradientBackground iwGradientBackground%2 = iwViewManager.CreateGradientBackground( topColor%2, "
                  "middleColor%2, bottomColor%2, %13, %12 );\n"
                  "%1%14.SetGradientBackground( iwGradientBackground%2 );\n\n",
        .javascript = "%1var topColor%2 = mApp.GetColorByIndex( 1 );\n"
                      "%1var middleColor%2 = mApp.GetColorByIndex( 2 );\n"
                      "%1var bottomColor%2 = mApp.GetColorByIndex( 3 );\n"
                      "%1topColor%2.SetRGBColor( %3, %4, %5 );\n"
                      "%1middleColor%2.SetRGBColor( %6, %7, %8 );\n"
                      "%1bottomColor%2.SetRGBColor( %9, %10, %11 );\n"
                      "%1var iwGradientBackground%2 = mViewManager.CreateGradientBackground( topColor%2, "
                      "middleColor%2, bottomColor%2, %13, %12 );\n"
                      "%1%14.SetGradientBackground( iwGradientBackground%2 );\n\n",
        .vbNet = "%1Dim topColor%2 As Inkwright.Color = iwApp.GetColorByIndex( 1 )\n"
                 "%1Dim middleColor%2 As Inkwright.Color = iwApp.GetColorByIndex( 2 )\n"
                 "%1Dim bottomColor%2 As Inkwright.Color = iwApp.GetColorByIndex( 3 )\n"
                 "%1topColor%2.SetRGBColor( %3, %4, %5 )\n"
                 "%1middleColor%2.SetRGBColor( %6, %7, %8 )\n"
                 "%1bottomColor%2.SetRGBColor( %9, %10, %11 )\n"
                 "%1Dim iwGradientBackground%2 As Inkwright.GradientBackground = "
                 "iwViewManager.CreateGradientBackground( topColor%2, middleColor%2, bottomColor%2, %13, %12 )\n"
                 "%1%14.SetGradientBackground( iwGradientBackground%2 )\n\n",
        .vba = "%1Dim topColor%2 As Inkwright.Color\n%1Dim middleColor%2 As Inkwright.Color\n"
               "%1Dim bottomColor%2 As Inkwright.Color\n%1Set topColor%2 = iwApp.GetColorByIndex( 1 )\n"
               "%1Set middleColor%2 = iwApp.GetColorByIndex( 2 )\n%1Set bottomColor%2 = iwApp.GetColorByIndex( 3 )\n"
               "%1topColor%2.SetRGBColor %3, %4, %5\n%1middleColor%2.SetRGBColor %6, %7, %8\n"
               "%1bottomColor%2.SetRGBColor %9, %10, %11\n"
               "%1Dim iwGradientBackground%2 As Inkwright.GradientBackground\n"
               "%1Set iwGradientBackground%2 = iwViewManager.CreateGradientBackground( topColor%2, middleColor%2, "
               "bottomColor%2, %13, %12 )\n"
               "%1%14.SetGradientBackground iwGradientBackground%2\n\n",
    }};

/// The three parts in the order of the host's call.
static Fill& putColor(Fill& statement, const OdCmColor& color)
{
    return statement.number(color.red()).number(color.green()).number(color.blue());
}

Statement EmitGradientBackground(Writer& writer, const OdCmColor& top, const OdCmColor& middle, const OdCmColor& bottom,
                                 double rotation, double height, const CFxString& view)
{
    Fill statement = writer.fillIndented(gradientBackground);
    statement.number(processCounters.of(writer.target).gradientBackgrounds++);
    for (const OdCmColor& color : {top, middle, bottom})
        putColor(statement, color);
    return statement.real(rotation).real(height).text(view);
}

static const Phrase solidBackground{
    "EmitSolidBackground",
    {
        .cpp = "%1iwColor_ptr SolidColor%2;\n%1m_pIwApp->GetRGBColor( %3, %4, %5, &SolidColor%2 );\n"
               "%1iwSolidBackground_ptr iwSolidBackground%2;\n"
               "%1iwViewManager->CreateSolidBackground( SolidColor%2, &iwSolidBackground%2 );\n"
               "%1%6->SetSolidBackground( iwSolidBackground%2 );\n\n",
        .cppCom = "%1IColorPtr SolidColor%2;\n"
                  "%1SolidColor%2 = pConnection->m_IwApp->GetRGBColor( %3, %4, %5 );\n"
                  "%1ISolidBackgroundPtr iwSolidBackground%2;\n"
                  "%1iwSolidBackground%2 = iwViewManager->CreateSolidBackground( SolidColor%2 );\n"
                  "%1%6->SetSolidBackground( iwSolidBackground%2 );\n\n",
        .csharp = "%1Color solidColor%2 = iwApp.GetColorByIndex( 3 );\n"
                  "%1solidColor%2.SetRGBColor( %3, %4, %5 );\n"
                  "%1SolidBackground iwSolidBackground%2 = iwViewManager.CreateSolidBackground( solidColor%2 );\n"
                  "%1%6.SetSolidBackground( iwSolidBackground%2 );\n\n",
        .javascript = "%1var solidColor%2 = mApp.GetColorByIndex( 3 );\n"
                      "%1solidColor%2.SetRGBColor( %3, %4, %5 );\n"
                      "%1var iwSolidBackground%2 = mViewManager.CreateSolidBackground( solidColor%2 );\n"
                      "%1%6.SetSolidBackground( iwSolidBackground%2 );\n\n",
        .vbNet = "%1Dim solidColor%2 As Inkwright.Color = iwApp.GetColorByIndex( 3 )\n"
                 "%1solidColor%2.SetRGBColor( %3, %4, %5 )\n"
                 "%1Dim iwSolidBackground%2 As Inkwright.SolidBackground = "
                 "iwViewManager.CreateSolidBackground( solidColor%2 )\n"
                 "%1%6.SetSolidBackground( iwSolidBackground%2 )\n\n",
        .vba = "%1Dim solidColor%2 As Inkwright.Color\n%1Set solidColor%2 = iwApp.GetColorByIndex( 3 )\n"
               "%1solidColor%2.SetRGBColor %3, %4, %5\n"
               "%1Dim iwSolidBackground%2 As Inkwright.SolidBackground\n"
               "%1Set iwSolidBackground%2 = iwViewManager.CreateSolidBackground( solidColor%2 )\n"
               "%1%6.SetSolidBackground iwSolidBackground%2\n\n",
    }};

Statement EmitSolidBackground(Writer& writer, const OdCmColor& color, const CFxString& view)
{
    Fill statement = writer.fillIndented(solidBackground);
    statement.number(processCounters.of(writer.target).solidBackgrounds++);
    return putColor(statement, color).text(view);
}
