#include "view/Picture.h"

#include "view/Extents.h"
#include "view/Pen.h"

#include <algorithm>
#include <limits>

namespace inkmacro::view {

std::size_t StyleHash::operator()(const Style& style) const
{
    const OdCmColor& color = style.color;
    const quint64 bits = quint64{color.red()} << 40 | quint64{color.green()} << 32 | quint64{color.blue()} << 24 |
                         quint64{color.colorIndex()} << 8 | quint64{color.isByACI()} << 2 |
                         static_cast<quint64>(style.role);
    return std::hash<quint64>()(bits ^ quint64{style.layer} * 0x9E3779B97F4A7C15U);
}

std::uint16_t Picture::styleNumber(const Style& style)
{
    if (const auto found = styleNumbers_.find(style); found != styleNumbers_.end())
        return found->second;
    constexpr std::size_t most = std::numeric_limits<std::uint16_t>::max();
    if (styles.size() == most)
        return most - 1;
    const auto number = static_cast<std::uint16_t>(styles.size());
    styles.push_back(style);
    styleNumbers_.emplace(style, number);
    return number;
}

std::uint32_t Picture::textNumber(const QString& text)
{
    const auto found = textNumbers_.constFind(text);
    if (found != textNumbers_.constEnd())
        return *found;
    const auto number = static_cast<std::uint32_t>(texts.size());
    texts.push_back(text);
    textNumbers_.insert(text, number);
    return number;
}

void Picture::addRemark(std::uint32_t object, const QString& text)
{
    std::uint16_t& remark = objects[object].remark;
    QString whole = text;
    if (remark != 0) {
        const QString& former = remarks[remark - 1U];
        if (former.split("; ").contains(text))
            return;
        whole = former + "; " + text;
    }
    const auto found = remarkNumbers_.constFind(whole);
    if (found != remarkNumbers_.constEnd()) {
        remark = *found;
    } else if (remarks.size() < std::numeric_limits<std::uint16_t>::max()) {
        remarks.push_back(whole);
        remark = static_cast<std::uint16_t>(remarks.size());
        remarkNumbers_.insert(whole, remark);
    }
}

std::optional<Box> boxOf(const Primitive& primitive, const Picture& picture)
{
    return Extents(picture).boxOf(primitive);
}

std::optional<Box> extentsOf(std::uint16_t space, const Picture& picture)
{
    return Extents(picture).of(space);
}

} // namespace inkmacro::view
