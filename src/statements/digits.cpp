#include "statements/digits.h"

#include <array>
#include <charconv>
#include <cmath>

namespace inkmacro {

const Fault kSixDigits{"FormatShort",
                       {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
                       "a number that has more than six digits is rounded to them"};

/// What the form of FormatLong would lose too does not count.
bool losesDigits(double value)
{
    constexpr double lastLongDecimal = 1e-14;
    constexpr int digitsBehindTheFirst = 5;
    std::array<char, 32> digits;
    // Room for a number of so many digits there always is.
    const char* const end =
        std::to_chars(digits.begin(), digits.end(), value, std::chars_format::scientific, digitsBehindTheFirst).ptr;
    double rounded = value;
    std::from_chars(digits.begin(), end, rounded);
    return std::fabs(rounded - value) > lastLongDecimal;
}

} // namespace inkmacro
