#pragma once

#include "host/kernel/CFxActions.h"
#include "view/Affine.h"
#include "view/Values.h"

namespace inkmacro::view {

class Objects;

/// What has been said of an object: a value of a tag, of a repeated one with an index from 0.
struct Property
{
    QString tag;
    int index = -1;
    CFxVariant value;
};
using Properties = std::vector<Property>;

/// One object of a recording or of its drawing, as the actions up to some step have left it.
class ObjectState final : public Values
{
public:
    /// `drawn` is null for one that the drawing does not tell. `objects` has to outlive this.
    ObjectState(Objects& objects, std::uint32_t number, const OdDbHandle& handle, const OdRxClass& cls,
                OdDbObjectPtr drawn);

    const QString& className() const override { return class_->name(); }
    const OdDbObject* drawn() const override { return drawn_.get(); }
    const CFxVariant* find(const QString& tag, int index = -1) const override;
    int count(const QString& tag) const override;
    void visit(const QString& tag, const Visit& visit) const override;
    const Values* other(const OdDbHandle& handle) const override;
    const Values* named(const QString& className, const QString& name) const override;
    std::optional<std::uint16_t> spaceOf(const QString& block) const override;
    std::optional<std::uint16_t> spaceOf(const OdDbHandle& block) const override;

    // Of properties.
    using Values::handle;
    using Values::number;

    std::uint32_t number() const { return number_; }
    const OdDbHandle& handle() const { return handle_; }
    const OdRxClass& cls() const { return *class_; }
    bool isEntity() const;

    /// Its properties are those of the action, which has to outlive this.
    void add(const CFxObjectAdded& action);
    /// It is as the other is now.
    void takeFrom(const ObjectState& original);
    /// The first of several records of one property counts.
    void change(const PropertyList& properties);
    void say(const QString& tag, int index, const CFxVariant& value);
    /// In the place of all points that the tag tells.
    void sayPoints(const QString& tag, const std::vector<OdGePoint3d>& points);
    /// As a repeated tag, in the place of all its values; other indexes have none.
    void sayNumbers(const QString& tag, const std::vector<double>& numbers);
    /// All values of a tag, repeated ones too.
    void unsay(const QString& tag);
    /// Moves it by more than what its properties tell.
    void transform(const Affine& by) { moved_ = by * moved_; }
    const Affine& moved() const override { return moved_; }
    /// Of the values that the changes replace those that nobody has told yet. False when there are none.
    bool takeFormer(const PropertyList& changes);
    /// What tells where it is and how it looks.
    struct Shape
    {
        Properties properties;
        Affine moved;
    };
    /// The application has made another shape of it, which the drawing tells. Gives the former one.
    Shape forgetShape();
    void restore(const Shape& shape);
    /// Behind a trim, for one.
    void setClass(const OdRxClass& cls) { class_ = &cls; }
    /// Whether its place is told by properties; else it is that of the drawing, which is the end.
    bool hasPlace() const;
    /// Lets go what can be read once more.
    void release();

    bool isThere = false;
    std::uint16_t layer = 0;
    std::uint16_t space = 0;
    OdCmColor color;
    std::size_t firstPrimitive = 0; ///< of those that stand for it now
    std::size_t primitives = 0;

private:
    void load() const;
    Property* findOwn(const QString& tag, int index);
    void set(const QString& tag, int index, const CFxVariant& value);
    void sayMeasured(const QString& tag, double value);
    Point placeOf(const QString& tag, int index) const;
    CFxVariant beforeMove(const QString& tag, const CFxVariant& value) const;

    Objects& objects_;
    const OdRxClass* class_;
    OdDbObjectPtr drawn_;
    OdDbHandle handle_;
    std::uint32_t number_;
    bool isChanged_ = false; ///< the properties are more than what the action tells
    mutable bool isLoaded_ = false;
    const CFxObjectAdded* added_ = nullptr;
    mutable Properties properties_;
    Affine moved_;
};

} // namespace inkmacro::view
