#pragma once

#include "view/Affine.h"

#include "host/db/OdDbDatabase.h"
#include "host/kernel/CFxVariant.h"

#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace inkmacro::view {

/// What an object is behind one step: its properties as the actions up to there have left them, and the data that its
/// drawing has. A property wins over the drawing, which tells the end.
class Values
{
public:
    virtual ~Values() = default;

    virtual const QString& className() const = 0;
    /// In the drawing; null when it does not tell the object.
    virtual const OdDbObject* drawn() const = 0;
    /// The value of the tag, of a repeated one that with the index; null when nothing has said it.
    virtual const CFxVariant* find(const QString& tag, int index = -1) const = 0;
    /// How many values a repeated tag has.
    virtual int count(const QString& tag) const = 0;
    /// By how much its properties lag behind; what is drawn of it is moved so.
    virtual const Affine& moved() const = 0;
    /// Gives the values of a repeated tag with their indexes, in the order in which they were said.
    using Visit = std::function<void(int index, const CFxVariant& value)>;
    virtual void visit(const QString& tag, const Visit& visit) const = 0;

    /// What the object at that handle is behind the same step; null when nobody speaks of it.
    virtual const Values* other(const OdDbHandle& handle) const = 0;
    /// The object of a table by its name, such as a style's.
    virtual const Values* named(const QString& className, const QString& name) const = 0;
    /// The number of the space that a block's name or handle means.
    virtual std::optional<std::uint16_t> spaceOf(const QString& block) const = 0;
    virtual std::optional<std::uint16_t> spaceOf(const OdDbHandle& block) const = 0;

    std::optional<double> number(const QString& tag, int index = -1) const;
    /// Also of an item or a list, of which it is the chosen word.
    std::optional<QString> text(const QString& tag, int index = -1) const;
    /// The number of an item, or of what is chosen in a list.
    std::optional<int> choice(const QString& tag) const;
    /// A point in one value, or of three tags that end in ` x`, ` y` and ` z`.
    std::optional<OdGePoint3d> point(const QString& tag, int index = -1) const;
    /// Of a list, and those of a repeated tag that ends in ` x`, ` y` or ` z`, which win.
    std::vector<OdGePoint3d> points(const QString& tag) const;
    OdDbHandle handle(const QString& tag) const;
    /// Of a word; false for none.
    bool isYes(const QString& tag) const;

    /// The drawing's object, when it is of that class.
    template<class Class>
    const Class* drawnAs() const
    {
        return dynamic_cast<const Class*>(drawn());
    }
};

/// Seen from above.
inline Point fromAbove(const OdGePoint3d& point)
{
    return {point.x, point.y};
}

/// Draws an object of one class as it is.
using Drawer = void (*)(const Values& values, Pen& pen);

} // namespace inkmacro::view
