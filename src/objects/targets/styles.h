#pragma once

#include "host/db/OdCmColor.h"
#include "statements/Writer.h"

Statement EmitCreateTableStyle(Writer& writer, const CFxString& styleName, const CFxString& name);
Statement EmitCreateDimensionStyle(Writer& writer, const CFxString& styleName, const CFxString& name);
Statement EmitCreateRichLineStyle(Writer& writer, const CFxString& styleName, const CFxString& name);
Statement EmitLoadLineStyle(Writer& writer, const CFxString& styleName, const inkmacro::EscapedText& path,
                            const CFxString& name);

/// `activate`: makes it the current one again under its new name.
Statement EmitRenameStyle(Writer& writer, const CFxString& style, const CFxString& newName, bool activate);
Statement EmitRenameRichLineStyle(Writer& writer, const CFxString& style, const CFxString& newName);
Statement EmitRenameLayerOrGroup(Writer& writer, const CFxString& variable, const CFxString& newName);
/// Makes a style or a layer the current one.
Statement EmitActivateLayer(Writer& writer, const CFxString& variable);
/// Puts another line in the place of one of a rich line style. A color of red, green and blue counts as by block there,
/// but not in a repaired macro.
Statement EmitReplaceRichLineElement(Writer& writer, const CFxString& style, int index, double offset,
                                     const OdCmColor& color, const CFxString& lineStyle);

Statement EmitCreateLayer(Writer& writer, const CFxString& layer, const CFxString& name);
/// What the statements of a layer work on: a page's variable of a new layer is a result that has the layer.
CFxString LayerOf(const CFxString& variable);
