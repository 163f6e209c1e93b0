#pragma once

#include "statements/Writer.h"

/// An object that holds a part of what is set on a dimension, a leader, a dimension style or a curved text. A statement
/// fetches it from its owner into a variable of its own.
struct OptionObject
{
    const OptionObject* owner;     ///< null for one of the changed object itself
    const char* hostWord;          ///< its type; the host gets it by "Get" in front of that
    const char* stem;              ///< its variables' names without the number
    bool qualified = false;        ///< C# writes the type with its library in front
    bool writtenBack = false;      ///< the host gives a copy, which counts when it is handed back
    const char* local = "options"; ///< its variable in Python, where one kind of objects takes that of another
};

inline constexpr OptionObject generalDimension{nullptr, "GeneralDimension", "generalDimension", false,
                                               false,   "general"};

/// Of dimensions: what a dimension overrides of its style.
namespace dimensionOptions {

inline constexpr OptionObject userData{
    &generalDimension, "DimensionStyleUserData", "dimensionStyle", true, false, "data"};
inline constexpr OptionObject angular{&userData, "DimensionStyleAngularDimensionOptions", "angularDimensionOptions"};
inline constexpr OptionObject arrows{&userData, "DimensionStyleArrowsOptions", "arrowsOptions"};
inline constexpr OptionObject dual{&userData, "DimensionStyleDualDimensionOptions", "dualDimensionOptions"};
inline constexpr OptionObject linear{&userData, "DimensionStyleLinearDimensionOptions", "linearDimensionOptions"};
inline constexpr OptionObject radial{&userData, "DimensionStyleRadialDiameterDimensionOptions",
                                     "radialDiameterDimensionOptions"};
inline constexpr OptionObject fit{&userData, "DimensionStyleFitOptions", "fitOptions"};
inline constexpr OptionObject lines{&userData, "DimensionStyleLineOptions", "lineOptions"};
inline constexpr OptionObject text{&userData, "DimensionStyleTextOptions", "textOptions"};
inline constexpr OptionObject tolerance{&userData, "DimensionStyleToleranceOptions", "toleranceOptions"};

} // namespace dimensionOptions

/// Of dimension styles.
namespace styleOptions {

inline constexpr OptionObject arrows{nullptr, "DimensionStyleArrowsOptions", "arrowOptions"};
inline constexpr OptionObject angular{nullptr, "DimensionStyleAngularDimensionOptions", "angularOptions"};
inline constexpr OptionObject dual{nullptr, "DimensionStyleDualDimensionOptions", "dualOptions"};
inline constexpr OptionObject fit{nullptr, "DimensionStyleFitOptions", "fitOptions"};
inline constexpr OptionObject linear{nullptr, "DimensionStyleLinearDimensionOptions", "linearOptions"};
inline constexpr OptionObject lines{nullptr, "DimensionStyleLineOptions", "linesOptions"};
inline constexpr OptionObject radial{nullptr, "DimensionStyleRadialDiameterDimensionOptions", "radialDiameterOptions"};
inline constexpr OptionObject text{nullptr, "DimensionStyleTextOptions", "textOptions"};
inline constexpr OptionObject tolerance{nullptr, "DimensionStyleToleranceOptions", "toleranceOptions"};

} // namespace styleOptions

/// Of leaders and tolerances.
namespace leaderOptions {

inline constexpr OptionObject userData{nullptr, "DimensionStyleUserData", "dimensionStyle", true, false, "data"};
inline constexpr OptionObject arrows{&userData, "DimensionStyleArrowsOptions", "arrowOptions"};
inline constexpr OptionObject fit{&userData, "DimensionStyleFitOptions", "fitOptions"};
inline constexpr OptionObject lines{&userData, "DimensionStyleLineOptions", "linesOptions"};
inline constexpr OptionObject text{&userData, "DimensionStyleTextOptions", "textOptions"};

} // namespace leaderOptions

inline constexpr OptionObject curvedTextSettings{nullptr, "CurvedSettings", "curvedSettings", false, true, "settings"};

/// Fetches the object from the variable `owner` and gives its variable.
Statement EmitGetOptions(Writer& writer, const OptionObject& object, const CFxString& owner, CFxString& options);
/// Hands the object in the variable `options` back to its owner.
Statement EmitSetOptions(Writer& writer, const OptionObject& object, const CFxString& owner, const CFxString& options);
/// `arrow` is the drawing's number of a kind of arrow, `name` the block of one that is of one's own.
Statement EmitSetArrow(Writer& writer, const CFxString& target, const CFxString& operation, std::int32_t arrow,
                       const CFxString& name);
Statement EmitSetStyleArrow(Writer& writer, const CFxString& target, const CFxString& operation, std::int32_t arrow,
                            const CFxString& name);
/// `scale` is the drawing's number: 1 for the factor given, 2 for the scale of the sheet.
Statement EmitSetDimensionScale(Writer& writer, const CFxString& target, const CFxString& operation, std::int32_t scale,
                                double factor);
Statement EmitSetExtensionLineFixedLength(Writer& writer, const CFxString& target, bool fixed, double length);

// The host sets the kind of a center mark, a number of the drawing's, and its size together. On a dimension the
// generated program reads both, changes the one and writes them back.
Statement EmitSetCenterMarkKind(Writer& writer, const CFxString& target, const CFxString& operation, std::int32_t kind);
Statement EmitSetCenterMarkSize(Writer& writer, const CFxString& target, const CFxString& operation, double size);
Statement EmitSetStyleCenterMark(Writer& writer, const CFxString& target, const CFxString& operation, std::int32_t kind,
                                 double size);
