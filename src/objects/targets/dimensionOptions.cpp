// The option objects of a dimension style and what is set on them.

#include "frame/CFxConverterIWAPIImpl.h"
#include "objects/targets/PhrasedObjectConverter.h"
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

QString PhrasedObjectConverter::EmitGetDimensionStyleUserData(const CFxString& owner, CFxString& userData)
{
    userData = QStringLiteral("dimensionStyle%1").arg(++Driver().UniqueCounter);
    return fill(getUserData).text(userData).text(owner);
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

QString PhrasedObjectConverter::getOptions(const char* kind, const char* stem, const CFxString& owner,
                                           CFxString& options)
{
    options = stem + QString::number(++Driver().UniqueCounter);
    return fill(getDimensionOptions).text(options).text(owner).text(QLatin1String(kind));
}

QString PhrasedObjectConverter::EmitGetArrowsOptions(const CFxString& owner, CFxString& options)
{
    return getOptions("Arrows", "arrowOptions", owner, options);
}

QString PhrasedObjectConverter::EmitGetLineOptions(const CFxString& owner, CFxString& options)
{
    return getOptions("Line", "linesOptions", owner, options);
}

QString PhrasedObjectConverter::EmitGetTextOptions(const CFxString& owner, CFxString& options)
{
    return getOptions("Text", "textOptions", owner, options);
}

QString PhrasedObjectConverter::EmitGetFitOptions(const CFxString& owner, CFxString& options)
{
    return getOptions("Fit", "fitOptions", owner, options);
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
QString PhrasedObjectConverter::EmitSetLeaderArrow(const CFxString& target, const CFxString& operation,
                                                   std::int32_t arrow)
{
    const QString kind = EnumeratorByValue(target_, "iwDimensionArrowType", arrow);
    return fill(setArrow).text(target).text(operation).text(kind).text(QString());
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

QString PhrasedObjectConverter::EmitSetDimensionScale(const CFxString& target, const CFxString& operation,
                                                      std::int32_t scale, double factor)
{
    const QString kind = EnumeratorByValue(target_, "iwDimensionScale", scale);
    return fill(setDimensionScale).text(target).text(operation).text(kind).real(factor);
}
