#pragma once

#include "view/Picture.h"

#include <QByteArray>

namespace inkmacro::view {

/// What a space shows behind the last step, as a file of SVG: the same primitives, in colors for light and for dark.
QByteArray svgOf(const Picture& picture, std::uint16_t space, const QString& title);

} // namespace inkmacro::view
