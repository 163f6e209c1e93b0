#pragma once

#include "host/db/OdCmColor.h"
#include "statements/Writer.h"

#include <optional>

/// What a change gives a hatch anew of its pattern; what it does not give stays as it is. The type is the word of the
/// property sheet, the angle in radians.
struct HatchPatternChange
{
    std::optional<CFxString> name;
    std::optional<double> angle;
    std::optional<double> scale;
    std::optional<double> spacing;
    std::optional<CFxString> type;

    bool isEmpty() const { return !name && !angle && !scale && !spacing && !type; }
};

/// The same of its gradient.
struct HatchGradientChange
{
    std::optional<OdCmColor> first;
    std::optional<OdCmColor> second;
    std::optional<bool> centered;
    std::optional<double> angle;

    bool isEmpty() const { return !first && !second && !centered && !angle; }
};

/// `pattern` is set to the variable that the hatch's pattern object is fetched into.
Statement EmitGetHatchPattern(Writer& writer, const CFxString& hatch, CFxString& pattern);
/// `code` is 1 for the normal way, 2 for the outer boundaries alone, 3 to ignore inner ones.
Statement EmitHatchRegionDetection(Writer& writer, const CFxString& pattern, std::int32_t code);
// The generated program reads what the pattern has, overrides what has changed and writes it back.
Statement EmitSetHatchData(Writer& writer, const CFxString& pattern, const HatchPatternChange& change);
Statement EmitHatchGradientData(Writer& writer, const CFxString& pattern, const HatchGradientChange& change);
