#pragma once

#include "host/db/OdGe.h"
#include "statements/Writer.h"

QString EmitCommandOptionBool(Writer& writer, const CFxString& option, bool value);
QString EmitCommandOptionDouble(Writer& writer, const CFxString& option, double value);
QString EmitCommandOptionInt8(Writer& writer, const CFxString& option, std::int32_t value);
QString EmitCommandOptionInt16(Writer& writer, const CFxString& option, std::int32_t value);
QString EmitCommandOptionInt32(Writer& writer, const CFxString& option, std::int32_t value);
QString EmitCommandOptionPoint2D(Writer& writer, const CFxString& option, const OdGePoint2d& value);
QString EmitCommandOptionPoint3D(Writer& writer, const CFxString& option, const OdGePoint3d& value);
QString EmitCommandOptionString(Writer& writer, const CFxString& option, const CFxString& value);
QString EmitApplicationOptionBool(Writer& writer, const CFxString& option, bool value);
QString EmitApplicationOptionInt16(Writer& writer, const CFxString& option, std::int32_t value);
QString EmitApplicationOptionInt32(Writer& writer, const CFxString& option, std::int32_t value);
QString EmitApplicationOptionDouble(Writer& writer, const CFxString& option, double value);
QString EmitApplicationOptionString(Writer& writer, const CFxString& option, const CFxString& value);
