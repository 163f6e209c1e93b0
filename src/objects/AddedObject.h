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

    // What is taken when the tag is missing stands behind it; a value that is asked for by its form is null then, and
    // nothing is done.
    CFxVariant take(const PropertyTag& tag, const ValueForm& form) { return take(tag, form, {}); }
    OdGePoint3d takePoint(const PropertyTag& xTag, const PropertyTag& yTag, const PropertyTag& zTag)
    {
        noteAsked(xTag, forms::number, "0");
        noteAsked(yTag, forms::number, "0");
        noteAsked(zTag, forms::number, "0");
        return FindPoint(conversion, xTag, yTag, zTag, list_, consumed_);
    }
    OdGePoint3d takePoint(const PropertyTag& tag) { return take(tag, forms::point, "the origin").GetPoint3d(); }
    CFxString takeText(const PropertyTag& tag) { return take(tag, forms::text, "empty text").GetString(); }
    /// Of a plain text or the chosen one of several items.
    CFxString takeWord(const PropertyTag& tag) { return wordOf(take(tag, forms::word, "empty text")); }
    std::int32_t takeInteger(const PropertyTag& tag) { return take(tag, forms::whole, "0").GetInt32(); }
    /// A number that is not 0.
    bool takeFlag(const PropertyTag& tag)
    {
        static const inkmacro::ValueEnumeration answers{"", 0, {"No", "Yes"}};
        return take(tag, forms::number.with(answers), "0").GetInt32() != 0;
    }
    /// The points of a collection; none of a value that is no collection.
    OdArray<OdGePoint3d> takePoints(const PropertyTag& tag)
    {
        OdArray<OdGePoint3d> points;
        const CFxVariant value = take(tag, forms::points, "no points");
        for (const CFxVariantCollectionElement& element : value.GetCollection().GetCollectionDataForRead())
            points.append(element.GetValue()->GetPoint3d());
        return points;
    }
    double takeReal(const PropertyTag& tag, double whenMissing)
    {
        if (conversion.asked)
            noteAsked(tag, forms::number, QString::number(whenMissing));
        const CFxVariant value = FindProperty(conversion, tag, list_, consumed_);
        return value.IsNull() ? whenMissing : value.GetDouble();
    }
    /// `whenMissing` is for people.
    CFxVariant take(const PropertyTag& tag, const ValueForm& form, const char* whenMissing)
    {
        noteAsked(tag, form, whenMissing);
        return FindProperty(conversion, tag, list_, consumed_);
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
    template<class Text>
    void noteAsked(const PropertyTag& tag, const ValueForm& form, const Text& whenMissing)
    {
        if (conversion.asked)
            conversion.asked->push_back({tag.text(), form, whenMissing});
    }

    const OdDbObjectId id_;
    PropertyList& list_;
    PropertyList* consumed_;
};
