#include "dxf/EntityReader.h"

#include <cmath>
#include <numbers>

namespace inkmacro::dxf {

namespace {

constexpr int kEmbeddedObject = 101;
constexpr int kFirstExtendedData = 1000;

} // namespace

void EntityReader::read(const Entity& entity)
{
    entity_ = &entity;
    groups_.clear();
    hasExtendedData_ = false;
    GroupReader groups = drawing_.groups(entity);
    Group group;
    while (groups.next(group)) {
        if (group.code == kEmbeddedObject)
            break;
        if (group.code >= kFirstExtendedData)
            hasExtendedData_ = true;
        else
            groups_.push_back(group);
    }
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
        throw Lost{"a number is not finite"};
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
    return {real(code), real(code + 10), real(code + 20)};
}

OdGeVector3d EntityReader::vector(int code) const
{
    const OdGePoint3d end = point(code);
    return {end.x, end.y, end.z};
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
