// What part of the drawing is in sight, and the tiles that the model's display is divided into.

#include "targets/display.h"

#include "statements/arrays.h"
#include "statements/wording.h"

using namespace inkmacro;

/// C++ declares the corners for all ranges, and hands them over empty where there are none.
static const Phrase declareCorners{"EmitZoom: corners", {.cpp = "%1iwDoubleArray lowerLeft_%3, upperRight_%3;%2"}};

static const Phrase zoomToRange{"EmitZoom",
                                {
                                    .cpp = "%1m_pIwApp->Zoom(%3, lowerLeft_%4, upperRight_%4);%2",
                                    .cppCom = "%1pConnection->m_IwApp->Zoom(%3, NULL, NULL);%2",
                                    .csharp = "%1iwApp.Zoom(%3, null, null);%2",
                                    .javascript = "%1mApp.Zoom(\"%3\", null, null);%2",
                                    .vbNet = "%1iwApp.Zoom(%3, Nothing, Nothing)%2",
                                    .vba = "%1iwApp.Zoom %3, Nothing, Nothing%2",
                                    .python = "%1drawing.app.Zoom(%3, pythoncom.Nothing, pythoncom.Nothing)%2",
                                }};

static Statement rangeWord(const Writer& writer, const CFxString& range)
{
    return enumeratorText(writer.target, "iwZoomRange_e", range);
}

Statement EmitZoom(Writer& writer, const CFxString& range)
{
    const std::uint32_t number = writer.target == Target::Cpp ? ++writer.UniqueCounter : 0;
    return writer.fill(declareCorners).number(number).str() +
           writer.fill(zoomToRange).word(rangeWord(writer, range)).number(number).str();
}

static const Phrase zoomToWindow{
    "EmitZoom",
    {
        .cpp = "%1lowerLeft_%10.add(%3);lowerLeft_%10.add(%4);lowerLeft_%10.add(%5);%2"
               "%1upperRight_%10.add(%6);upperRight_%10.add(%7);upperRight_%10.add(%8);%2"
               "%1m_pIwApp->Zoom(%9, lowerLeft_%10, upperRight_%10);%2",
        .cppCom = "%1VARIANT lowerLeft_%6;%2%1lowerLeft_%6.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1lowerLeft_%6.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2%3"
                  "%1VARIANT upperRight_%6;%2%1upperRight_%6.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1upperRight_%6.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2%4"
                  "%1pConnection->m_IwApp->Zoom(%5, lowerLeft_%6, upperRight_%6);%2",
        .csharp = "%1double[] lowerLeft_%10 = new double[] { %3, %4, %5 };%2"
                  "%1double[] upperRight_%10 = new double[] { %6, %7, %8 };%2"
                  "%1iwApp.Zoom(%9, lowerLeft_%10, upperRight_%10);%2",
        .javascript = "%1var lowerLeft_%10 = new Array(%3, %4, %5);%2%1var upperRight_%10 = new Array(%6, %7, %8);%2"
                      "%1mApp.Zoom(\"%9\", lowerLeft_%10, upperRight_%10);%2",
        .vbNet = "%1Dim lowerLeft_%10 As Double() = New Double() { %3, %4, %5 }%2"
                 "%1Dim upperRight_%10 As Double() = New Double() { %6, %7, %8 }%2"
                 "%1iwApp.Zoom(%9, lowerLeft_%10, upperRight_%10)%2",
        .vba = "%1Dim lowerLeft_%10(2) As Double%2"
               "%1lowerLeft_%10(0) = %3%2%1lowerLeft_%10(1) = %4%2%1lowerLeft_%10(2) = %5%2"
               "%1Dim upperRight_%10(2) As Double%2"
               "%1upperRight_%10(0) = %6%2%1upperRight_%10(1) = %7%2%1upperRight_%10(2) = %8%2"
               "%1iwApp.Zoom %9, lowerLeft_%10, upperRight_%10%2",
        .python = "%1drawing.app.Zoom(%5, reals(%3), reals(%4))%2",
    }};

Statement EmitZoom(Writer& writer, const CFxString& range, const OdGePoint3d& lowerLeft, const OdGePoint3d& upperRight)
{
    const std::uint32_t number = ++writer.UniqueCounter;
    Fill zoom = writer.fill(zoomToWindow);
    if (writer.target == Target::CppCom) {
        const auto corner = [&](const char* name, const OdGePoint3d& point) {
            return inOwnGroup({writer, name + QString::number(number), number}, [&](const ArrayPlace& place) {
                return comPointLines(place, point, NumberForm::Short, true);
            });
        };
        zoom.word(corner("lowerLeft_", lowerLeft)).word(corner("upperRight_", upperRight));
    } else {
        zoom.shortPoint(lowerLeft).shortPoint(upperRight);
    }
    zoom.word(rangeWord(writer, range)).number(number);
    return writer.fill(declareCorners).number(number).str() + zoom.str();
}

static const Phrase insertViewTiles{
    "EmitInsertViewTiles",
    {
        .cpp = "%1iwObjectPtrArray %5;%2%1iwModel->InsertViewTiles(%3, %4, &%5);%2%1iwModel->GetViewTiles(&%5);%2%2",
        .cppCom = "%1_variant_t variant_%5 = iwModel->InsertViewTiles(%3, %4);%2"
                  "%1variant_%5 = iwModel->GetViewTiles();%2%1IViewTilePtr *%5 = NULL;%2%1int count_%5 = 0;%2"
                  "%1TypeConverter::convertVariantArrayToPtrArray<IViewTilePtr, IViewTile>( variant_%5, %5, count_%5 "
                  ");%2%2",
        .csharp = "%1object[] %5 = (object[])iwModel.InsertViewTiles(%3, %4);%2"
                  "%1%5 = (object[])iwModel.GetViewTiles();%2%2",
        .javascript = "%1var %5 = mModel.InsertViewTiles( \"%3\", \"%4\" );%2%1%5 = mModel.GetViewTiles();%2%2",
        .vbNet = "%1Dim %5 As Object() = iwModel.InsertViewTiles(%3, %4)%2%1%5 = iwModel.GetViewTiles()%2%2",
        .vba = "%1Dim %5 As Variant%2%1%5 = iwModel.InsertViewTiles(%3, %4)%2%1%5 = iwModel.GetViewTiles()%2%2",
        .python = "%1drawing.model.InsertViewTiles(%3, %4)%2",
    }};

Statement EmitInsertViewTiles(Writer& writer, const QString& tiles, const QString& mode, const QString& applyTo)
{
    return writer.fill(insertViewTiles)
        .word(enumeratorText(writer.target, "iwViewTilesMode_e", mode))
        .word(enumeratorText(writer.target, "iwViewTilesApplyTo_e", applyTo))
        .word(tiles);
}

static const Fault kOtherTile{"EmitSelectViewTile",
                              {Target::Cpp, Target::CppCom},
                              "a tile gets a second variable, and the one that is declared for it stays empty"};
static const Fault kTileAgain{
    "EmitSelectViewTile", {Target::CSharp, Target::VbNet, Target::Vba}, "a tile is declared a second time"};

/// Declares the variable.
static const Phrase selectViewTile{"EmitSelectViewTile",
                                   {
                                       .cpp = "%1iwViewTile_c* %5 =(iwViewTile_c*)%3[%4];%2",
                                       .cppCom = "%1IViewTilePtr %5 = %3[%4];%2",
                                       .csharp = "%1Inkwright.ViewTile %5 =(Inkwright.ViewTile)%3[%4];%2",
                                       .javascript = "%1var %5 = %3[%4];%2",
                                       .vbNet = "%1Dim %5 As Inkwright.ViewTile = %3(%4)%2",
                                       .vba = "%1Dim %5 As Inkwright.ViewTile%2%1Set %5 = %3(%4)%2",
                                   }};

/// The words of a repaired macro.
static const Phrase assignViewTile{"EmitSelectViewTile: declared tile",
                                   {
                                       .cpp = "%1%5 = (iwViewTile_c*)%3[%4];%2",
                                       .cppCom = "%1%5 = %3[%4];%2",
                                       .csharp = "%1%5 = (Inkwright.ViewTile)%3[%4];%2",
                                       .javascript = "%1var %5 = %3[%4];%2",
                                       .vbNet = "%1%5 = %3(%4)%2",
                                       .vba = "%1Set %5 = %3(%4)%2",
                                       .python = "%1%5 = drawing.model.GetViewTiles()[%4]%2",
                                   }};

Statement EmitSelectViewTile(Writer& writer, const QString& tiles, std::size_t index, const CFxString& variable,
                             bool isDeclared)
{
    const auto filled = [&](const Phrase& words) {
        return writer.fill(words).word(tiles).number(qulonglong{index}).word(variable).str();
    };
    if (writer.repairs)
        return isDeclared ? filled(assignViewTile) : Statement();
    const bool cpp = writer.target == Target::Cpp || writer.target == Target::CppCom;
    return isDeclared && writer.target != Target::JavaScript
               ? writer.faulty(filled(selectViewTile), cpp ? kOtherTile : kTileAgain)
               : filled(selectViewTile);
}
