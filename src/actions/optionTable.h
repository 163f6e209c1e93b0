#pragma once

#include <QString>

#include <cstdint>
#include <span>

namespace inkmacro {

/// Types of an option's value, numbered as FindCommandOption and FindApplicationOption give them.
enum class OptionKind : std::int32_t
{
    Bool,
    Double,
    Int8,
    Int16,
    Int32,
    Point2d,
    Point3d,
    String
};

inline constexpr std::int32_t optionKindCount = 8;

/// Whose option a system variable is.
enum class OptionOwner
{
    Document,
    Application
};

/// A system variable that the host's interface has an option for.
struct OptionRow
{
    const char* variable;
    OptionKind kind;
    const char* name; ///< what the enumerator ends in; null: a verb and the variable's own name
    bool readOnly;    ///< the host alone changes the variable
};

std::span<const OptionRow> OptionRows(OptionOwner owner);

/// Null for another name; case counts.
const OptionRow* FindOption(OptionOwner owner, const QString& variable);

/// The type's word in the names of enumerations.
const char* OptionTypeName(OptionKind kind);
/// What the enumerators for that kind of option begin with, as "iwCommandOptionInt16_".
QString EnumeratorStem(OptionOwner owner, OptionKind kind);
/// The enumerator by which the interface knows the option, as the table says.
QString OptionEnumerator(OptionOwner owner, const OptionRow& row);

} // namespace inkmacro
