#pragma once

#include "objects/CFxConverterIWAPIObject.h"

/// The records of one added object in the hands of its reader: what is read leaves the list and is remembered.
class AddedProperties
{
public:
    AddedProperties(CFxConverterIWAPIObject& converter, PropertyList& list, CFxValueContext context)
        : converter_(converter), list_(list), context_(context)
    {
    }

    CFxVariant take(const CFxString& tag) { return converter_.FindProperty(tag, list_, context_, &consumed_); }
    OdGePoint3d takePoint(const CFxString& xTag, const CFxString& yTag, const CFxString& zTag)
    {
        return converter_.FindPoint(xTag, yTag, zTag, list_, context_, &consumed_);
    }
    OdGePoint3d takePoint(const CFxString& tag) { return take(tag).GetPoint3d(); }
    CFxString takeText(const CFxString& tag) { return take(tag).GetString(); }
    /// The points of a collection; none of a value that is no collection.
    OdArray<OdGePoint3d> takePoints(const CFxString& tag)
    {
        OdArray<OdGePoint3d> points;
        const CFxVariant value = take(tag);
        for (const CFxVariantCollectionElement& element : value.GetCollection().GetCollectionDataForRead())
            points.append(element.GetValue()->GetPoint3d());
        return points;
    }
    double takeReal(const CFxString& tag, double whenMissing)
    {
        const CFxVariant value = take(tag);
        return value.IsNull() ? whenMissing : value.GetDouble();
    }

    const PropertyList& consumed() const { return consumed_; }

private:
    CFxConverterIWAPIObject& converter_;
    PropertyList& list_;
    CFxValueContext context_;
    PropertyList consumed_;
};
