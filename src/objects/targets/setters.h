#pragma once

#include "host/db/OdCmColor.h"
#include "host/db/OdDbObjectId.h"
#include "statements/Writer.h"
#include "statements/enumerations.h"

QString EmitSetProperty(Writer& writer, const CFxString& target, const CFxString& property, const CFxString& value,
                        bool quoted);
QString EmitSetDoubleProperty(Writer& writer, const CFxString& target, const CFxString& property, double value);
QString EmitSetBoolProperty(Writer& writer, const CFxString& target, const CFxString& property, bool value);
QString EmitSetIndexedDouble(Writer& writer, const CFxString& target, const CFxString& operation, std::int32_t index,
                             double value);
/// The enumerator is told by the text that the property sheet shows.
QString EmitSetEnumProperty(Writer& writer, const CFxString& target, const inkmacro::TextEnumeration& enumeration,
                            const CFxString& property, const CFxString& shownText);
/// The enumerator is told by the number that the drawing or the recording has for it.
QString EmitSetEnumValue(Writer& writer, const CFxString& target, const inkmacro::ValueEnumeration& enumeration,
                         const CFxString& property, std::int32_t value);
QString EmitSetEnumSuffix(Writer& writer, const CFxString& target, const inkmacro::ValueEnumeration& enumeration,
                          const CFxString& property, const char* suffix);
QString EmitSetDecimalSeparator(Writer& writer, const CFxString& target, const CFxString& property,
                                const CFxString& separator);
QString EmitSetColor(Writer& writer, const CFxString& target, const CFxString& property, const OdCmColor& color);
QString EmitSetLayer(Writer& writer, const CFxString& target, const CFxString& property, const OdDbObjectId& id);
QString EmitSetLineStyle(Writer& writer, const CFxString& target, const CFxString& property, const OdDbObjectId& id);
/// `weight` is in hundredths of a millimetre, -1 by layer, -2 by block.
QString EmitSetLineWeight(Writer& writer, const CFxString& target, const CFxString& property, int weight);
QString EmitSetTransparency(Writer& writer, const CFxString& target, const OdCmTransparency& transparency);
