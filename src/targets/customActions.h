#pragma once

#include "host/db/OdCmColor.h"
#include "host/db/OdGe.h"
#include "host/rx/OdArray.h"
#include "statements/Writer.h"

#include <vector>

Statement EmitInsertEmbeddedObject(Writer& writer, const CFxString& variable, const inkmacro::EscapedText& path,
                                   bool first, bool second);
Statement EmitEraseEntities(Writer& writer, const std::vector<CFxString>& names);
Statement EmitSetElementColor(Writer& writer, std::int32_t element, const OdCmColor& color);
Statement EmitActivate(Writer& writer, const CFxString& variable);
Statement EmitJoin(Writer& writer, const CFxString& variable, const CFxString& other);
Statement EmitExplode(Writer& writer, const CFxString& variable);
Statement EmitInsertViewport(Writer& writer, const CFxString& variable, const CFxString& sheetName,
                             const OdArray<OdGePoint3d>& points);

Statement EmitSetClipBoundary(Writer& writer, const CFxString& image, const OdArray<OdGePoint2d>& points);
Statement EmitRemoveClipBoundary(Writer& writer, const CFxString& image);
