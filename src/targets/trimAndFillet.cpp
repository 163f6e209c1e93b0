// Trim and extend: arrays of the edges, of the objects to change and of the points where the user picked those, the
// option of implied edges, and the call. Fillet and chamfer: the same of both sides of a corner.

#include "targets/trimAndFillet.h"

#include "statements/counters.h"
#include "targets/options.h"
#include "targets/pickedArrays.h"

using inkmacro::Meaning;

/// The option raises the number between arrays and call, so the arrays' own is kept. It is the present one: it is not
/// raised for them.
static Statement cutByEdges(Writer& writer, const char* operation, std::int32_t edgeFlag,
                            const std::array<PickedArray, 3>& arrays)
{
    const std::uint32_t number = writer.UniqueCounter;
    Statement text = pickedArrays(writer, number, arrays);
    text += EmitCommandOptionInt16(writer, "iwCommandOptionInt16_EnblEdgeExtd", edgeFlag);
    return text += callWithPicked(writer, operation, number, {&arrays[0], &arrays[1], &arrays[2]});
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

static Statement cutCorner(Writer& writer, const char* operation, std::uint32_t& counter, const CornerSide& first,
                           const CornerSide& second, const Statement& settings)
{
    const std::uint32_t number = counter++;
    const std::array<PickedArray, 4> arrays{{{"firstEntityArray", first.names},
                                             {"secondEntityArray", second.names},
                                             {"firstPointOnEntityDblArray", first.points},
                                             {"secondPointOnEntityDblArray", second.points}}};
    return pickedArrays(writer, number, arrays) + settings +
           callWithPicked(writer, operation, number, {&arrays[2], &arrays[0], &arrays[3], &arrays[1]});
}

Statement EmitFilletEntities(Writer& writer, const CornerSide& first, const CornerSide& second,
                             std::optional<double> radius)
{
    const Statement settings =
        radius ? EmitCommandOptionDouble(writer, "iwCommandOptionDouble_SetFltRad", *radius, Meaning::Length)
               : Statement();
    return cutCorner(writer, "FilletEntities", processCounters.fillets, first, second, settings);
}

Statement EmitChamferEntities(Writer& writer, const CornerSide& first, const CornerSide& second,
                              const ChamferSettings& settings)
{
    struct SizeOption
    {
        const char* name;
        Meaning meaning;
    };
    static constexpr std::array<SizeOption, 4> sizeOptions{{{"iwCommandOptionDouble_SetChmfDst1", Meaning::Length},
                                                            {"iwCommandOptionDouble_SetChmfDst2", Meaning::Length},
                                                            {"iwCommandOptionDouble_SetChmfLen", Meaning::Length},
                                                            {"iwCommandOptionDouble_SetChmfAng", Meaning::Angle}}};
    Statement options;
    for (std::size_t i = 0; settings.sizes && i < sizeOptions.size(); ++i)
        options += EmitCommandOptionDouble(writer, sizeOptions[i].name, (*settings.sizes)[i], sizeOptions[i].meaning);
    options += EmitCommandOptionInt16(writer, "iwCommandOptionInt16_EnblChmfAng", settings.byAngle);
    options += EmitCommandOptionInt16(writer, "iwCommandOptionInt16_EnblFltTrm", settings.trims);
    return cutCorner(writer, "ChamferEntities", processCounters.chamfers, first, second, options);
}
