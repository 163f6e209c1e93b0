// The option objects of a dimension style and what is set on them.

#include "objects/targets/dimensionOptions.h"

#include "targets/enumerations.h"

using namespace inkmacro;

static const Phrase getOptions{"EmitGetOptions",
                               {
                                   .cpp = "%1iw%5_ptr %3;%2%1%4->Get%5( &%3 );%2",
                                   .cppCom = "%1I%5Ptr %3 = %4->Get%5();%2",
                                   .csharp = "%1%6%5 %3 = %4.Get%5();%2",
                                   .javascript = "%1var %3 = %4.Get%5();%2",
                                   .vbNet = "%1Dim %3 As Inkwright.%5 = %4.Get%5()%2",
                                   .vba = "%1Dim %3 As Inkwright.%5%2%1Set %3 = %4.Get%5()%2",
                               }};

QString EmitGetOptions(Writer& writer, const OptionObject& object, const CFxString& owner, CFxString& options)
{
    options = object.stem + QString::number(++writer.UniqueCounter);
    const QLatin1String library(object.qualified ? "Inkwright." : "");
    return writer.fill(getOptions).text(options).text(owner).text(QLatin1String(object.hostWord)).text(library);
}

static const Phrase setOptions{"EmitSetOptions",
                               {
                                   .cpp = "%1%3->Set%5( %4 );%2",
                                   .cppCom = "%1%3->Set%5( %4 );%2",
                                   .csharp = "%1%3.Set%5( %4 );%2",
                                   .javascript = "%1%3.Set%5( %4 );%2",
                                   .vbNet = "%1%3.Set%5( %4 )%2",
                                   .vba = "%1%3.Set%5 %4%2",
                               }};

QString EmitSetOptions(Writer& writer, const OptionObject& object, const CFxString& owner, const CFxString& options)
{
    return writer.fill(setOptions).text(owner).text(options).text(QLatin1String(object.hostWord));
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
