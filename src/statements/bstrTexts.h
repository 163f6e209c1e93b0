#pragma once

#include "statements/Fault.h"

#include <QByteArray>

namespace inkmacro {

inline constexpr char literalIsNoBstr[] = "a literal is given where a BSTR belongs, which has its length in front";

/// The words of C++ COM with a BSTR made of each wide literal that a raw property is given or a local keeps. What a
/// local keeps outlives its statement.
QByteArray textsAsBstr(QByteArray words);

} // namespace inkmacro
