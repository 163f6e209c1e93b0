#include "dxf/EntityReader.h"

#include <cmath>
#include <numbers>

namespace inkmacro::dxf {

namespace {

constexpr int kEmbeddedObject = 101;
constexpr int kFirstExtendedData = 1000;
constexpr int kExtendedText = 1000;
constexpr int kApplication = 1001;
constexpr int kBrace = 1002;

} // namespace

void EntityReader::read(const Entity& entity)
{
    entity_ = &entity;
    groups_.clear();
    extendedData_.clear();
    taken_ = 0;
    GroupReader groups = drawing_.groups(entity);
    Group group;
    while (groups.next(group)) {
        if (group.code == kEmbeddedObject)
            break;
        if (group.code >= kFirstExtendedData)
            extendedData_.push_back(group);
        else
            groups_.push_back(group);
    }
}

std::span<const Group> EntityReader::takeList(std::string_view application, std::string_view text)
{
    const std::span<const Group> data(extendedData_);
    bool isOfIt = false;
    for (std::size_t i = 0; i + 1 < data.size(); ++i) {
        if (data[i].code == kApplication)
            isOfIt = data[i].word() == application;
        if (!isOfIt || !data[i].is(kExtendedText, text) || !data[i + 1].is(kBrace, "{"))
            continue;
        const std::size_t begin = i + 2;
        std::size_t end = begin;
        while (end < data.size() && !data[end].is(kBrace, "}"))
            ++end;
        const bool isFirst = data[i - 1].code == kApplication;
        taken_ += std::min(end + 1, data.size()) - i + (isFirst ? 1 : 0);
        return data.subspan(begin, end - begin);
    }
    return {};
}

const Group* EntityReader::find(int code) const
{
    for (const Group& group : groups_)
        if (group.code == code)
            return &group;
    return nullptr;
}

double EntityReader::realOf(const Group& group)
{
    const std::optional<double> number = group.real();
    if (!number)
        throw Lost{"a number cannot be read"};
    if (!std::isfinite(*number))
        throw Lost{kNotFinite};
    return *number;
}

qint64 EntityReader::integerOf(const Group& group)
{
    const std::optional<qint64> number = group.integer();
    if (!number)
        throw Lost{"a whole number cannot be read"};
    return *number;
}

double EntityReader::real(int code, double otherwise) const
{
    const Group* const group = find(code);
    return group ? realOf(*group) : otherwise;
}

qint64 EntityReader::integer(int code, qint64 otherwise) const
{
    const Group* const group = find(code);
    return group ? integerOf(*group) : otherwise;
}

QString EntityReader::text(int code) const
{
    const Group* const group = find(code);
    return group ? drawing_.text(*group) : QString();
}

OdGePoint3d EntityReader::point(int code) const
{
    // The oldest files have one elevation for all points of an entity.
    constexpr int elevation = 38;
    return {real(code), real(code + 10), has(code + 20) ? real(code + 20) : real(elevation)};
}

OdGeVector3d EntityReader::vector(int code) const
{
    return {real(code), real(code + 10), real(code + 20)};
}

double EntityReader::radians(int code, double otherwise) const
{
    const Group* const group = find(code);
    return group ? realOf(*group) * (std::numbers::pi / 180) : otherwise;
}

Direction EntityReader::direction() const
{
    constexpr int normal = 210;
    return has(normal) || has(normal + 10) || has(normal + 20) ? Direction(vector(normal)) : Direction();
}

} // namespace inkmacro::dxf
