// The option objects of a dimension style and what is set on them.

#include "objects/targets/dimensionOptions.h"

#include "targets/enumerations.h"

using namespace inkmacro;

static const Phrase getUserData{
    "EmitGetDimensionStyleUserData",
    {
        .cpp = "%1iwDimensionStyleUserData_ptr %3;%2%1%4->GetDimensionStyleUserData( &%3 );%2",
        .cppCom = "%1IDimensionStyleUserDataPtr %3 = %4->GetDimensionStyleUserData();%2",
        .csharp = "%1Inkwright.DimensionStyleUserData %3 = %4.GetDimensionStyleUserData();%2",
        .javascript = "%1var %3 = %4.GetDimensionStyleUserData();%2",
        .vbNet = "%1Dim %3 As Inkwright.DimensionStyleUserData = %4.GetDimensionStyleUserData()%2",
        .vba = "%1Dim %3 As Inkwright.DimensionStyleUserData%2%1Set %3 = %4.GetDimensionStyleUserData()%2",
    }};

QString EmitGetDimensionStyleUserData(Writer& writer, const CFxString& owner, CFxString& userData)
{
    userData = QStringLiteral("dimensionStyle%1").arg(++writer.UniqueCounter);
    return writer.fill(getUserData).text(userData).text(owner);
}

static const Phrase getDimensionOptions{
    "EmitGetOptions",
    {
        .cpp = "%1iwDimensionStyle%5Options_ptr %3;%2%1%4->GetDimensionStyle%5Options( &%3 );%2",
        .cppCom = "%1IDimensionStyle%5OptionsPtr %3 = %4->GetDimensionStyle%5Options();%2",
        .csharp = "%1DimensionStyle%5Options %3 = %4.GetDimensionStyle%5Options();%2",
        .javascript = "%1var %3 = %4.GetDimensionStyle%5Options();%2",
        .vbNet = "%1Dim %3 As Inkwright.DimensionStyle%5Options = %4.GetDimensionStyle%5Options()%2",
        .vba = "%1Dim %3 As Inkwright.DimensionStyle%5Options%2%1Set %3 = %4.GetDimensionStyle%5Options()%2",
    }};

static QString getOptions(Writer& writer, const char* kind, const char* stem, const CFxString& owner,
                          CFxString& options)
{
    options = stem + QString::number(++writer.UniqueCounter);
    return writer.fill(getDimensionOptions).text(options).text(owner).text(QLatin1String(kind));
}

QString EmitGetArrowsOptions(Writer& writer, const CFxString& owner, CFxString& options)
{
    return getOptions(writer, "Arrows", "arrowOptions", owner, options);
}

QString EmitGetLineOptions(Writer& writer, const CFxString& owner, CFxString& options)
{
    return getOptions(writer, "Line", "linesOptions", owner, options);
}

QString EmitGetTextOptions(Writer& writer, const CFxString& owner, CFxString& options)
{
    return getOptions(writer, "Text", "textOptions", owner, options);
}

QString EmitGetFitOptions(Writer& writer, const CFxString& owner, CFxString& options)
{
    return getOptions(writer, "Fit", "fitOptions", owner, options);
}

/// The name of a block stands behind the kind of arrow.
static const Phrase setArrow{"EmitSetArrow",
                             {
                                 .cpp = "%1%3->%4( %5, L\"%6\" );%2",
                                 .cppCom = "%1%3->%4( %5, L\"%6\" );%2",
                                 .csharp = "%1%3.%4( %5, \"%6\" );%2",
                                 .javascript = "%1%3.%4( \"%5\", \"%6\" );%2",
                                 .vbNet = "%1%3.%4( %5, \"%6\" )%2",
                                 .vba = "%1%3.%4 %5, \"%6\"%2",
                             }};

/// A leader's record does not tell the block of an arrow of one's own.
QString EmitSetLeaderArrow(Writer& writer, const CFxString& target, const CFxString& operation, std::int32_t arrow)
{
    const QString kind = EnumeratorByValue(writer.target, enums::dimensionArrowType, arrow);
    return writer.fill(setArrow).text(target).text(operation).text(kind).text(QString());
}

static const Phrase setDimensionScale{"EmitSetDimensionScale",
                                      {
                                          .cpp = "%1%3->%4( %5, %6 );%2",
                                          .cppCom = "%1%3->%4( %5, %6 );%2",
                                          .csharp = "%1%3.%4( %5, %6 );%2",
                                          .javascript = "%1%3.%4( \"%5\", %6 );%2",
                                          .vbNet = "%1%3.%4( %5, %6 )%2",
                                          .vba = "%1%3.%4 %5, %6%2",
                                      }};

QString EmitSetDimensionScale(Writer& writer, const CFxString& target, const CFxString& operation, std::int32_t scale,
                              double factor)
{
    const QString kind = EnumeratorByValue(writer.target, enums::dimensionScale, scale);
    return writer.fill(setDimensionScale).text(target).text(operation).text(kind).real(factor);
}
