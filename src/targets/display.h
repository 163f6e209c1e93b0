#pragma once

#include "host/db/OdGe.h"
#include "statements/Writer.h"

// `range` is an enumerator, such as "iwZoomRange_Fit".

Statement EmitZoom(Writer& writer, const CFxString& range);
Statement EmitZoom(Writer& writer, const CFxString& range, const OdGePoint3d& lowerLeft, const OdGePoint3d& upperRight);

/// The array of all tiles. `mode` and `applyTo` are enumerators, such as "iwViewTilesMode_4_Equal" and
/// "iwViewTilesApplyTo_Display".
Statement EmitInsertViewTiles(Writer& writer, const QString& tiles, const QString& mode, const QString& applyTo);
/// A repaired macro gives the tile to the variable that is declared for it, and to none where nothing can name it.
Statement EmitSelectViewTile(Writer& writer, const QString& tiles, std::size_t index, const CFxString& variable,
                             bool isDeclared);
