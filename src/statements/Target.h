#pragma once

#include <cstddef>

namespace inkmacro {

/// A language that macros are written in. The values are the language codes that the host passes in.
enum class Target : unsigned char
{
    Cpp,
    CSharp,
    JavaScript,
    VbNet,
    CppCom,
    Vba,
    Python
};

inline constexpr std::size_t targetCount = 7;

constexpr bool isBasic(Target target)
{
    return target == Target::VbNet || target == Target::Vba;
}

/// Whether the application's own recorder writes the language, with the faults that it has. Of any other there is only
/// the macro without faults.
constexpr bool isRecorders(Target target)
{
    return target != Target::Python;
}

/// Whether what is declared within a group of statements is not seen behind it.
constexpr bool hidesInBlocks(Target target)
{
    return target != Target::JavaScript && target != Target::Vba && target != Target::Python;
}

} // namespace inkmacro
