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
    Vba
};

inline constexpr std::size_t targetCount = 6;

constexpr bool isBasic(Target target)
{
    return target == Target::VbNet || target == Target::Vba;
}

} // namespace inkmacro
