#pragma once

#include "host/db/OdGe.h"
#include "statements/Writer.h"

Statement EmitCommandOptionBool(Writer& writer, const CFxString& option, bool value);
Statement EmitCommandOptionDouble(Writer& writer, const CFxString& option, double value,
                                  inkmacro::Meaning meaning = inkmacro::Meaning::None);
Statement EmitCommandOptionInt8(Writer& writer, const CFxString& option, std::int32_t value);
Statement EmitCommandOptionInt16(Writer& writer, const CFxString& option, std::int32_t value);
Statement EmitCommandOptionInt32(Writer& writer, const CFxString& option, std::int32_t value);
Statement EmitCommandOptionPoint2D(Writer& writer, const CFxString& option, const OdGePoint2d& value);
Statement EmitCommandOptionPoint3D(Writer& writer, const CFxString& option, const OdGePoint3d& value);
Statement EmitCommandOptionString(Writer& writer, const CFxString& option, const CFxString& value);
Statement EmitApplicationOptionBool(Writer& writer, const CFxString& option, bool value);
Statement EmitApplicationOptionInt16(Writer& writer, const CFxString& option, std::int32_t value);
Statement EmitApplicationOptionInt32(Writer& writer, const CFxString& option, std::int32_t value);
Statement EmitApplicationOptionDouble(Writer& writer, const CFxString& option, double value);
Statement EmitApplicationOptionString(Writer& writer, const CFxString& option, const CFxString& value);
