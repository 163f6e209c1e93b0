#pragma once

#include "dxf/kinds.h"

#include <array>

namespace inkmacro::dxf {

/// Variables that dimensions are drawn with, by the codes that they have in the table of styles.
class DimensionVariables
{
public:
    /// Of a record of that table.
    explicit DimensionVariables(const EntityReader& style) : own_(style.groups()) {}
    /// That the entity has in place of those of its style, which may be null and has to outlive this.
    DimensionVariables(EntityReader& entity, const std::vector<Group>* style);

    bool isEmpty() const { return own_.empty(); }
    /// Of the style's too.
    const Group* find(int code) const;
    double real(int code, double otherwise = 0.0) const;
    qint64 integer(int code, qint64 otherwise = 0) const;
    bool isOn(int code) const { return integer(code) != 0; }

    /// Null for what the style's record says.
    const Group* own(int code) const { return find(own_, code); }
    bool hasOwn(std::initializer_list<int> codes) const;
    const std::vector<Group>& own() const { return own_; }

private:
    static const Group* find(const std::vector<Group>& groups, int code);

    std::vector<Group> own_;
    const std::vector<Group>* style_ = nullptr;
};

/// A color number, of dimensions, as a value.
CFxVariant dimensionColor(const Group& group);
/// What the group that holds the handle of a block says of arrows; null for one that is a block of its own.
CFxVariant dimensionArrow(const Group& group, Surroundings& around);

/// Sets the dimension's style, and what it has in place of the style's.
void takeDimensionStyle(EntityReader& entity, Surroundings& around, DrawnObject& object);
/// The style's name that the entity has; null for one that the drawing lacks, which is told.
QString dimensionStyleName(const EntityReader& entity, Surroundings& around, DrawnObject& object);
/// The angle at which a jogged dimension bends, in radians.
double jogAngle(const Group& group);

} // namespace inkmacro::dxf
