#pragma once

#include "statements/Writer.h"

Statement EmitCreateLayer(Writer& writer, const CFxString& layer, const CFxString& name);
/// What the statements of a layer work on: a page's variable of a new layer is a result that has the layer.
CFxString LayerOf(const CFxString& variable);
