#pragma once

#include "objects/CFxConverterIWAPIObject.h"

/// One added object in the hands of its reader, with its records: what is read leaves the list.
class AddedObject
{
public:
    /// `consumed` receives what is read; null: nobody asks.
    AddedObject(CFxConverterIWAPIObject& converter, Writer& writer, CFxValueContext context, const OdDbObjectId& id,
                const CFxString& name, PropertyList& list, PropertyList* consumed)
        : converter(converter), writer(writer), name(name), id_(id), list_(list), context_(context), consumed_(consumed)
    {
    }

    CFxConverterIWAPIObject& converter;
    Writer& writer;
    const CFxString name; ///< its variable

    /// The object in the drawing, for what no record holds; null when it is not there. Raises
    /// OdError_NotThatKindOfClass when it is of another class.
    template<class T>
    OdSmartPtr<T> open() const
    {
        return odrxCast<T>(id_.openObject().get());
    }

    CFxVariant take(const PropertyTag& tag) { return converter.FindProperty(tag, list_, context_, consumed_); }
    OdGePoint3d takePoint(const PropertyTag& xTag, const PropertyTag& yTag, const PropertyTag& zTag)
    {
        return converter.FindPoint(xTag, yTag, zTag, list_, context_, consumed_);
    }
    OdGePoint3d takePoint(const PropertyTag& tag) { return take(tag).GetPoint3d(); }
    CFxString takeText(const PropertyTag& tag) { return take(tag).GetString(); }
    /// The points of a collection; none of a value that is no collection.
    OdArray<OdGePoint3d> takePoints(const PropertyTag& tag)
    {
        OdArray<OdGePoint3d> points;
        const CFxVariant value = take(tag);
        for (const CFxVariantCollectionElement& element : value.GetCollection().GetCollectionDataForRead())
            points.append(element.GetValue()->GetPoint3d());
        return points;
    }
    double takeReal(const PropertyTag& tag, double whenMissing)
    {
        const CFxVariant value = take(tag);
        return value.IsNull() ? whenMissing : value.GetDouble();
    }

    /// What no reader has taken yet.
    const PropertyList& rest() const { return list_; }
    CFxVariant valueOf(const CFxPropertyChanged& record) const { return record.GetValue(context_); }

    /// Says that the object does not come into the macro; gives the statement that there is none.
    QString lost(const char* reason) const
    {
        converter.LoseObject(reason);
        return {};
    }

private:
    const OdDbObjectId id_;
    PropertyList& list_;
    CFxValueContext context_;
    PropertyList* consumed_;
};
