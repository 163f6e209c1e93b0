#pragma once

#include "dxf/Drawing.h"
#include "dxf/DrawnObject.h"
#include "dxf/directions.h"

namespace inkmacro::dxf {

/// The groups of one entity, by their codes. What is asked for and is no finite number throws Lost.
class EntityReader
{
public:
    /// Drawing and entity have to outlive this. Embedded objects are left out.
    explicit EntityReader(Drawing& drawing) : drawing_(drawing) {}
    /// Begins anew, with the room that it has.
    void read(const Entity& entity);

    const Entity& entity() const { return *entity_; }
    /// Without the data of other applications.
    const std::vector<Group>& groups() const { return groups_; }
    const std::vector<Group>& extendedData() const { return extendedData_; }
    /// Other than what was taken of it.
    bool hasExtendedData() const { return taken_ < extendedData_.size(); }
    /// Of the extended data of that application, what stands in braces behind that text. Valid until the next read.
    std::span<const Group> takeList(std::string_view application, std::string_view text);

    /// The first of that code; null for none.
    const Group* find(int code) const;
    bool has(int code) const { return find(code); }
    double real(int code, double otherwise = 0.0) const;
    qint64 integer(int code, qint64 otherwise = 0) const;
    QString text(int code) const;
    /// Of the code and those 10 and 20 above it; what is missing is 0, or the entity's elevation.
    OdGePoint3d point(int code) const;
    OdGeVector3d vector(int code) const;
    double radians(int code, double otherwise = 0.0) const; ///< of what the file has in degrees
    Direction direction() const;

    Drawing& drawing() const { return drawing_; }

    static double realOf(const Group& group);
    static qint64 integerOf(const Group& group);

private:
    Drawing& drawing_;
    const Entity* entity_ = nullptr;
    std::vector<Group> groups_;
    std::vector<Group> extendedData_;
    std::size_t taken_ = 0; ///< groups of the extended data
};

} // namespace inkmacro::dxf
