#pragma once

#include "objects/losses.h"
#include "objects/properties.h"

/// One added object in the hands of its reader, with its records: what is read leaves the list.
class AddedObject
{
public:
    /// `consumed` receives what is read; null: nobody asks.
    AddedObject(Conversion& conversion, const RecordedObject& object, const OdDbObjectId& id, PropertyList& list,
                PropertyList* consumed)
        : conversion(conversion),
          writer(conversion.writer),
          object(object),
          name(object.name),
          id_(id),
          list_(list),
          consumed_(consumed)
    {
    }

    Conversion& conversion;
    Writer& writer;
    const RecordedObject& object;
    const CFxString& name; ///< its variable

    /// The object in the drawing, for what no record holds; null when it is not there. Raises
    /// OdError_NotThatKindOfClass when it is of another class.
    template<class T>
    OdSmartPtr<T> open() const
    {
        return odrxCast<T>(id_.openObject().get());
    }

    CFxVariant take(const PropertyTag& tag) { return FindProperty(conversion, tag, list_, consumed_); }
    OdGePoint3d takePoint(const PropertyTag& xTag, const PropertyTag& yTag, const PropertyTag& zTag)
    {
        // Their order counts.
        const double x = takeReal(xTag, 0.0);
        const double y = takeReal(yTag, 0.0);
        const double z = takeReal(zTag, 0.0);
        return {x, y, z};
    }
    OdGePoint3d takePoint(const PropertyTag& tag) { return takeForm(tag, CFxVariant::kPoint3d).GetPoint3d(); }
    CFxString takeText(const PropertyTag& tag) { return takeForm(tag, CFxVariant::kString).GetString(); }
    /// One that new objects need not have.
    CFxString takeOptionalText(const PropertyTag& tag)
    {
        const CFxVariant value = take(tag);
        return value.IsNull() ? CFxString() : formed(tag, value, CFxVariant::kString).GetString();
    }
    /// The points of a collection; none of a value that is no collection.
    OdArray<OdGePoint3d> takePoints(const PropertyTag& tag)
    {
        OdArray<OdGePoint3d> points;
        const CFxVariant value = takeForm(tag, CFxVariant::kCollection);
        for (const CFxVariantCollectionElement& element : value.GetCollection().GetCollectionDataForRead())
            points.append(element.GetValue()->GetPoint3d());
        return points;
    }
    double takeReal(const PropertyTag& tag, double whenMissing)
    {
        const CFxVariant value = takeForm(tag, CFxVariant::kDouble);
        return value.IsNull() ? whenMissing : value.GetDouble();
    }

    /// What no reader has taken yet.
    const PropertyList& rest() const { return list_; }
    CFxVariant valueOf(const CFxPropertyChanged& record) const { return record.GetValue(conversion.context); }

    /// Says that the object does not come into the macro; gives the statement that there is none.
    QString lost(const char* reason) const
    {
        LoseObject(object, reason);
        return {};
    }

private:
    /// Notes a value of another form, of which getters give a neutral one. Of an object that an action makes the action
    /// has the values.
    const CFxVariant& formed(const PropertyTag& tag, const CFxVariant& value, CFxVariant::Type form) const
    {
        if (!(value.IsNull() && IsMadeByAction(conversion, object)))
            AssumeUnlessFormed(object, tag.text(), value, form);
        return value;
    }
    CFxVariant takeForm(const PropertyTag& tag, CFxVariant::Type form) { return formed(tag, take(tag), form); }

    const OdDbObjectId id_;
    PropertyList& list_;
    PropertyList* consumed_;
};
