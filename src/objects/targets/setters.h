#pragma once

#include "host/db/OdCmColor.h"
#include "host/db/OdDbObjectId.h"
#include "statements/Writer.h"
#include "statements/enumerations.h"

Statement EmitSetProperty(Writer& writer, const CFxString& target, const CFxString& property,
                          const inkmacro::EscapedText& value, bool quoted,
                          inkmacro::Meaning meaning = inkmacro::Meaning::None);
Statement EmitSetDoubleProperty(Writer& writer, const CFxString& target, const CFxString& property, double value,
                                inkmacro::Meaning meaning = inkmacro::Meaning::None);
Statement EmitSetBoolProperty(Writer& writer, const CFxString& target, const CFxString& property, bool value);
/// A length, by number of a repeated property.
Statement EmitSetIndexedDouble(Writer& writer, const CFxString& target, const CFxString& operation, std::int32_t index,
                               double value);
/// The enumerator is told by the text that the property sheet shows.
Statement EmitSetEnumProperty(Writer& writer, const CFxString& target, const inkmacro::TextEnumeration& enumeration,
                              const CFxString& property, const CFxString& shownText);
/// The enumerator is told by the number that the drawing or the recording has for it.
Statement EmitSetEnumValue(Writer& writer, const CFxString& target, const inkmacro::ValueEnumeration& enumeration,
                           const CFxString& property, std::int32_t value);
Statement EmitSetEnumSuffix(Writer& writer, const CFxString& target, const inkmacro::ValueEnumeration& enumeration,
                            const CFxString& property, const char* suffix);
Statement EmitSetDecimalSeparator(Writer& writer, const CFxString& target, const CFxString& property,
                                  const CFxString& separator);
Statement EmitSetColor(Writer& writer, const CFxString& target, const CFxString& property, const OdCmColor& color);
Statement EmitSetLayer(Writer& writer, const CFxString& target, const CFxString& property, const OdDbObjectId& id);
Statement EmitSetLineStyle(Writer& writer, const CFxString& target, const CFxString& property, const OdDbObjectId& id);
/// `weight` is in hundredths of a millimetre, -1 by layer, -2 by block.
Statement EmitSetLineWeight(Writer& writer, const CFxString& target, const CFxString& property, int weight);
Statement EmitSetTransparency(Writer& writer, const CFxString& target, const OdCmTransparency& transparency);
