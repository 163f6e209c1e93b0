#pragma once

#include "host/db/OdGe.h"
#include "host/rx/OdArray.h"
#include "targets/Writer.h"

#include <cstdint>

namespace inkmacro {

/// The points of one insertion call in the form of a target. Script needs an array in front of the call, the inline
/// list of C# stands within it, the others fill an array of that number by statements at the head of the literal.
struct CoordinateArray
{
    Target target;
    std::uint32_t number = 0; ///< keeps the array apart from others; none in C#
    int doubles = 0;          ///< how many there are
    QString before{};         ///< statements in front of the call
    QString words{};          ///< the list, the name of the array or the statements that fill it

    /// The values that the literal of a call has at its head.
    Fill& open(Fill& statement) const
    {
        if (target == Target::CSharp || target == Target::JavaScript)
            return statement.text(words);
        statement.number(number);
        if (target == Target::VbNet || target == Target::Vba)
            statement.number(doubles - 1);
        return statement.text(words);
    }
    /// The value behind the call's own values, before the variable.
    Fill& close(Fill& statement) const { return target == Target::CppCom ? statement.number(doubles) : statement; }
};

} // namespace inkmacro

/// `scriptName` is what a script calls the array.
inkmacro::CoordinateArray coordinates(Writer& writer, const OdArray<OdGePoint3d>& points, const char* scriptName);
/// The statements that fill the array of one COM point. The statement declares `x`, `y` and `z`.
QString comPoint(Writer& writer, std::uint32_t number, const OdGePoint3d& point);
