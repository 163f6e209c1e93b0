// Trim and extend: arrays of the edges, of the objects to change and of the points where the user picked those, the
// option of implied edges, and the call.

#include "targets/trim.h"

#include "targets/options.h"
#include "targets/pickedArrays.h"

/// The option raises the number between arrays and call, so the arrays' own is kept. It is the present one: it is not
/// raised for them.
static Statement cutByEdges(Writer& writer, const char* operation, std::int32_t edgeFlag,
                          const std::array<PickedArray, 3>& arrays)
{
    const std::uint32_t number = writer.UniqueCounter;
    const std::array<const char*, 3> names{arrays[0].name, arrays[1].name, arrays[2].name};
    Statement text = pickedArrays(writer, number, arrays);
    text += EmitCommandOptionInt16(writer, "iwCommandOptionInt16_EnblEdgeExtd", edgeFlag);
    return text += callWithPicked(writer, operation, number, names);
}

Statement EmitTrimEntities(Writer& writer, const std::vector<CFxString>& cutting, const std::vector<CFxString>& removed,
                         const OdArray<OdGePoint3d>& points, std::int32_t edgeFlag,
                         const std::vector<TrimPiece>& pieces)
{
    const Statement text = cutByEdges(
        writer, "TrimEntities", edgeFlag,
        {{{"CuttingEntitiesArray", cutting}, {"EntitiesToRemoveArray", removed}, {"PointOnEntityDblArray", points}}});
    return pieces.empty() ? text : text + trimSearch(writer, pieces);
}

Statement EmitExtendEntities(Writer& writer, const std::vector<CFxString>& boundary,
                           const std::vector<CFxString>& extended, const OdArray<OdGePoint3d>& points,
                           std::int32_t edgeFlag)
{
    return cutByEdges(writer, "ExtendEntities", edgeFlag,
                      {{{"BoundaryEntitiesArray", boundary},
                        {"EntitiesToExtendArray", extended},
                        {"PointOnEntityDblArray", points}}});
}
