// The tiles that the model's display is divided into.

#include "targets/viewTiles.h"

#include "statements/wording.h"

using namespace inkmacro;

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
    }};

Statement EmitInsertViewTiles(Writer& writer, const QString& tiles, const QString& mode, const QString& applyTo)
{
    return writer.fill(insertViewTiles)
        .text(enumeratorText(writer.target, "iwViewTilesMode_e", mode))
        .text(enumeratorText(writer.target, "iwViewTilesApplyTo_e", applyTo))
        .text(tiles);
}

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

Statement EmitSelectViewTile(Writer& writer, const QString& tiles, std::size_t index, const CFxString& variable)
{
    return writer.fill(selectViewTile).text(tiles).number(qulonglong{index}).text(variable);
}
