#pragma once

#include "host/db/OdCmColor.h"
#include "host/db/OdGe.h"
#include "host/rx/OdArray.h"
#include "statements/Writer.h"

#include <vector>

QString EmitInsertEmbeddedObject(Writer& writer, const CFxString& variable, const CFxString& path, bool first,
                                 bool second);
QString EmitEraseEntities(Writer& writer, const std::vector<CFxString>& names);
QString EmitSetElementColor(Writer& writer, std::int32_t element, const OdCmColor& color);
QString EmitActivate(Writer& writer, const CFxString& variable);
QString EmitJoin(Writer& writer, const CFxString& variable, const CFxString& other);
QString EmitExplode(Writer& writer, const CFxString& variable);
QString EmitInsertViewport(Writer& writer, const CFxString& variable, const CFxString& sheetName,
                           const OdArray<OdGePoint3d>& points);
