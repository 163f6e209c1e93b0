#pragma once

#include "recordfile/valueForms.h"

namespace inkmacro::recordfile {

/// How deep commands may stand in one another, so that a damaged file cannot exhaust the stack.
inline constexpr int kDeepestCommand = 200;

/// An action, or a null pointer for an empty place: an object with one key, which tells the kind.
template<>
struct Form<OdRxObjectPtr>
{
    static OdRxObjectPtr read(const Json& json);
    static void write(JsonOut& out, const OdRxObjectPtr& action);
    static QJsonObject schema(SchemaDefinitions& definitions);
};

/// All kinds; null comes last.
std::span<const Choice<OdRxObjectPtr>> actionChoices();

} // namespace inkmacro::recordfile
