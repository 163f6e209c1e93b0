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
    CFxVariant take(const PropertyTag& tag, const ValueForm& form) { return take(tag, form, ""); }
    OdGePoint3d takePoint(const PropertyTag& xTag, const PropertyTag& yTag, const PropertyTag& zTag)
    {
        // Their order counts.
        const double x = takeReal(xTag, 0.0);
        const double y = takeReal(yTag, 0.0);
        const double z = takeReal(zTag, 0.0);
        return {x, y, z};
    }
    OdGePoint3d takePoint(const PropertyTag& tag) { return need(tag, forms::point, "the origin").GetPoint3d(); }
    /// Where the drawing has nothing of that id the name is empty, which is noted.
    CFxString nameOf(const PropertyTag& tag, const OdDbObjectId& id,
                     CFxString (*nameIn)(const Writer&, const OdDbObjectId&)) const
    {
        CFxString found = nameIn(writer, id);
        if (found.isEmpty() && !id.isNull())
            AssumeProperty(object, tag.text(), "the drawing does not have what it names");
        return found;
    }
    CFxString takeText(const PropertyTag& tag) { return need(tag, forms::text, "empty text").GetString(); }
    /// One that new objects need not have.
    CFxString takeOptionalText(const PropertyTag& tag) { return take(tag, forms::text, "empty text").GetString(); }
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
        const CFxVariant value = need(tag, forms::points, "no points");
        for (const CFxVariantCollectionElement& element : value.GetCollection().GetCollectionDataForRead())
            points.append(element.GetValue()->GetPoint3d());
        return points;
    }
    double takeReal(const PropertyTag& tag, double whenMissing)
    {
        const CFxVariant value = need(tag, forms::number, whenMissing);
        return value.IsNull() ? whenMissing : value.GetDouble();
    }
    /// `whenMissing` is for people. A value of another form is taken for a neutral one, which is noted.
    template<class Value>
    CFxVariant take(const PropertyTag& tag, const ValueForm& form, const Value& whenMissing)
    {
        noteAsked(tag, form, whenMissing);
        CFxVariant value = FindProperty(conversion, tag, list_, consumed_);
        AssumeUnlessFormed(object, tag.text(), value, form);
        return value;
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
    static QString shown(const char* whenMissing) { return whenMissing; }
    static QString shown(double whenMissing) { return QString::number(whenMissing); }
    template<class Value>
    void noteAsked(const PropertyTag& tag, const ValueForm& form, const Value& whenMissing)
    {
        if (conversion.asked)
            conversion.asked->push_back({tag.text(), form, shown(whenMissing)});
    }
    /// Of an object that an action makes the action has what is missing.
    template<class Value>
    CFxVariant need(const PropertyTag& tag, const ValueForm& form, const Value& whenMissing)
    {
        CFxVariant value = take(tag, form, whenMissing);
        if (value.IsNull() && !IsMadeByAction(conversion, object))
            AssumeProperty(object, tag.text(), "it is not recorded, which gives " + shown(whenMissing));
        return value;
    }

    const OdDbObjectId id_;
    PropertyList& list_;
    PropertyList* consumed_;
};
