// Setters that changed geometry needs beyond the general ones.

#include "objects/targets/geometrySetters.h"

using namespace inkmacro;

static const Phrase setIndexedDouble{"EmitSetIndexedDouble",
                                     {
                                         .cpp = "%1bool bRetVal%7 = false;%2%1%3->%4( %5, %6, &bRetVal%7 );%2",
                                         .cppCom = "%1%3->%4( %5, %6 );%2",
                                         .csharp = "%1%3.%4( %5, %6 );%2",
                                         .javascript = "%1%3.%4( %5, %6 );%2",
                                         .vbNet = "%1%3.%4( %5, %6 )%2",
                                         .vba = "%1%3.%4 %5, %6%2",
                                     }};

QString EmitSetIndexedDouble(Writer& writer, const CFxString& target, const CFxString& operation, std::int32_t index,
                             double value)
{
    // Only C++ has a local, and only a local uses up a number.
    const std::uint32_t suffix = writer.target == Target::Cpp ? ++writer.UniqueCounter : 0;
    return writer.fill(setIndexedDouble).text(target).text(operation).number(index).real(value).number(suffix);
}

/// Enumerators are texts to JavaScript.
static const Phrase setEnumeratorProperty{"EmitSetEnumProperty",
                                          {
                                              .cpp = "%1%3->put_%4( %5 );%2",
                                              .cppCom = "%1%3->put_%4( %5 );%2",
                                              .csharp = "%1%3.%4 = %5;%2",
                                              .javascript = "%1%3.put_%4( \"%5\" );%2",
                                              .vbNet = "%1%3.%4 = %5%2",
                                              .vba = "%1%3.%4 = %5%2",
                                          }};

QString setEnumerator(Writer& writer, const CFxString& target, const CFxString& property, const QString& enumerator)
{
    return writer.fill(setEnumeratorProperty).text(target).text(property).text(enumerator);
}

QString EmitSetEnumProperty(Writer& writer, const CFxString& target, const TextEnumeration& enumeration,
                            const CFxString& property, const CFxString& shownText)
{
    return setEnumerator(writer, target, property, EnumeratorByText(writer.target, enumeration, shownText));
}

QString EmitSetLeaderType(Writer& writer, const CFxString& target, const CFxString& property, std::int32_t type)
{
    return setEnumerator(writer, target, property, EnumeratorByValue(writer.target, enums::leaderType, type));
}
