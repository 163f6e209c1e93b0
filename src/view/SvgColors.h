#pragma once

#include "view/Picture.h"
#include "view/palette.h"

#include <map>

namespace inkmacro::view {

/// The colors of a picture as classes, which have one color for light and one for dark paper each.
class SvgColors
{
public:
    /// The picture has to outlive this.
    explicit SvgColors(const Picture& picture) : picture_(picture) {}

    /// The class of a primitive; empty for one that has the color of the reference that it is drawn by.
    QByteArray classOf(const Primitive& primitive);
    /// The rules of the classes that were asked for, and of the paper.
    QByteArray rules() const;

private:
    QByteArray numbered(Rgb color);

    const Picture& picture_;
    std::map<std::uint32_t, int> numbers_; ///< of classes, by red, green and blue
};

} // namespace inkmacro::view
