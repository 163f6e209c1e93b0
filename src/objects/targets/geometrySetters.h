#pragma once

#include "targets/Writer.h"
#include "targets/enumerations.h"

QString EmitSetIndexedDouble(Writer& writer, const CFxString& target, const CFxString& operation, std::int32_t index,
                             double value);
/// The enumerator is told by the text that the property sheet shows.
QString EmitSetEnumProperty(Writer& writer, const CFxString& target, const inkmacro::TextEnumeration& enumeration,
                            const CFxString& property, const CFxString& shownText);
/// `enumerator` in the form of the target.
QString setEnumerator(Writer& writer, const CFxString& target, const CFxString& property, const QString& enumerator);
QString EmitSetLeaderType(Writer& writer, const CFxString& target, const CFxString& property, std::int32_t type);
