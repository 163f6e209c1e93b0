#pragma once

#include <QString>

#include <simdjson.h>

#include <string_view>

namespace inkmacro::recordfile {

/// Says for a person what is wrong with a line that the parser refused, and in which column.
QString explainFault(simdjson::error_code code, std::string_view line);

} // namespace inkmacro::recordfile
