#include "targets/digits.h"

#include "targets/Fill.h"

#include <cmath>

namespace inkmacro {

const Fault kSixDigits{"FormatShort",
                       {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
                       "a number that has more than six digits is rounded to them"};

/// What the form of FormatLong would lose too does not count.
bool losesDigits(double value)
{
    constexpr double lastLongDecimal = 1e-14;
    return std::fabs(FormatShort(value).toDouble() - value) > lastLongDecimal;
}

} // namespace inkmacro
