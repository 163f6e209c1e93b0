#pragma once

#include "statements/Writer.h"

QString EmitCreateTableStyle(Writer& writer, const CFxString& styleName, const CFxString& name);
QString EmitCreateDimensionStyle(Writer& writer, const CFxString& styleName, const CFxString& name);
QString EmitCreateRichLineStyle(Writer& writer, const CFxString& styleName, const CFxString& name);
QString EmitLoadLineStyle(Writer& writer, const CFxString& styleName, const CFxString& path, const CFxString& name);

/// `activate`: makes it the current one again under its new name.
QString EmitRenameStyle(Writer& writer, const CFxString& style, const CFxString& newName, bool activate);
/// Of rich line styles, layers and groups.
QString EmitRenameRichLineStyle(Writer& writer, const CFxString& style, const CFxString& newName);
/// Makes a style or a layer the current one.
QString EmitActivateLayer(Writer& writer, const CFxString& variable);
/// Puts another line in the place of one of a rich line style. `color` is an index.
QString EmitReplaceRichLineElement(Writer& writer, const CFxString& style, int index, double offset, int color,
                                   const CFxString& lineStyle);
