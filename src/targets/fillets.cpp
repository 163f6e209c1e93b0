// Fillet and chamfer: arrays of the objects on both sides of a corner and of the points where the user picked them, the
// settings that were in force, and the call.

#include "targets/fillets.h"

#include "statements/counters.h"
#include "targets/options.h"
#include "targets/pickedArrays.h"

static Statement cutCorner(Writer& writer, const char* operation, std::uint32_t& counter, const CornerSide& first,
                         const CornerSide& second, const Statement& settings)
{
    const std::uint32_t number = counter++;
    const std::array<PickedArray, 4> arrays{{{"firstEntityArray", first.names},
                                             {"secondEntityArray", second.names},
                                             {"firstPointOnEntityDblArray", first.points},
                                             {"secondPointOnEntityDblArray", second.points}}};
    const std::array<const char*, 4> inCall{arrays[2].name, arrays[0].name, arrays[3].name, arrays[1].name};
    return pickedArrays(writer, number, arrays) + settings + callWithPicked(writer, operation, number, inCall);
}

Statement EmitFilletEntities(Writer& writer, const CornerSide& first, const CornerSide& second,
                           std::optional<double> radius)
{
    const Statement settings =
        radius ? EmitCommandOptionDouble(writer, "iwCommandOptionDouble_SetFltRad", *radius) : Statement();
    return cutCorner(writer, "FilletEntities", processCounters.fillets, first, second, settings);
}

Statement EmitChamferEntities(Writer& writer, const CornerSide& first, const CornerSide& second,
                            const ChamferSettings& settings)
{
    static constexpr std::array<const char*, 4> sizeOptions{
        "iwCommandOptionDouble_SetChmfDst1", "iwCommandOptionDouble_SetChmfDst2", "iwCommandOptionDouble_SetChmfLen",
        "iwCommandOptionDouble_SetChmfAng"};
    Statement options;
    for (std::size_t i = 0; settings.sizes && i < sizeOptions.size(); ++i)
        options += EmitCommandOptionDouble(writer, sizeOptions[i], (*settings.sizes)[i]);
    options += EmitCommandOptionInt16(writer, "iwCommandOptionInt16_EnblChmfAng", settings.byAngle);
    options += EmitCommandOptionInt16(writer, "iwCommandOptionInt16_EnblFltTrm", settings.trims);
    return cutCorner(writer, "ChamferEntities", processCounters.chamfers, first, second, options);
}
