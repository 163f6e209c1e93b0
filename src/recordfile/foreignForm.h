#pragma once

#include <QString>

#include <string_view>

namespace inkmacro {

/// Why a file that begins with these bytes is no text in UTF-8, when it has one of the forms that people take for it;
/// else empty.
QString foreignForm(std::string_view begin);

} // namespace inkmacro
