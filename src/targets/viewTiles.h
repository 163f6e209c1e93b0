#pragma once

#include "statements/Writer.h"

/// The array of all tiles. `mode` and `applyTo` are enumerators, such as "iwViewTilesMode_4_Equal" and
/// "iwViewTilesApplyTo_Display".
Statement EmitInsertViewTiles(Writer& writer, const QString& tiles, const QString& mode, const QString& applyTo);
Statement EmitSelectViewTile(Writer& writer, const QString& tiles, std::size_t index, const CFxString& variable);
