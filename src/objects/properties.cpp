// Property records: the lookup through which every value is read.

#include "objects/CFxConverterIWAPIObject.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

QString translated(const char* context, const QString& key)
{
    return QCoreApplication::translate(context, key.toUtf8().constData(), nullptr, -1);
}

} // namespace

CFxString ShownWord(const char* word)
{
    return translated("property_values", word);
}

CFxString ElementText(const CFxVariant& value)
{
    return value.GetCollectionElement().GetValue()->GetString();
}

std::optional<CFxString> ChosenText(const CFxVariant& value)
{
    if (value.GetType() == CFxVariant::kCollectionElement)
        return ElementText(value);
    const auto& items = value.GetCollection().GetCollectionDataForRead();
    const auto chosen = static_cast<std::size_t>(value.GetCollection().GetChosen());
    if (chosen < items.size())
        return items[chosen].GetValue()->GetString();
    return std::nullopt;
}

bool IsYes(const CFxVariant& value)
{
    return ElementText(value) == ShownWord("Yes");
}

bool IsOn(const CFxVariant& value)
{
    return ElementText(value) == ShownWord("On");
}

const QString& CFxConverterIWAPIObject::BlockAttributes()
{
    if (blockAttributes.isNull())
        blockAttributes = translated("property_groups", "BlockAttributes");
    return blockAttributes;
}

/// The catalogues are asked once for each tag of a conversion, not for each record.
const CFxConverterIWAPIObject::TagWords& CFxConverterIWAPIObject::TranslateTag(const PropertyTag& tag)
{
    if (tag.number() >= tagWords.size())
        tagWords.resize(tag.number() + 1);
    TagWords& words = tagWords[tag.number()];
    const CFxString groupWord = translated("property_groups", tag.text());
    words.searchesGroup = groupWord.equalNoCase(BlockAttributes()) && groupWord.equalNoCase(tag.text());
    words.translated = translated("property_types", tag.text());
    return words;
}

CFxVariant CFxConverterIWAPIObject::FindProperty(const PropertyTag& tag, PropertyList& list,
                                                 CFxValueContext valueContext, PropertyList* consumed,
                                                 CFxVariant* index)
{
    const bool known = tag.number() < tagWords.size() && !tagWords[tag.number()].translated.isNull();
    const TagWords& words = known ? tagWords[tag.number()] : TranslateTag(tag);
    const auto byGroup = [&](const CFxPropertyChanged& record) {
        return words.searchesGroup && record.GetGroup().equalNoCase(blockAttributes);
    };
    const auto end = list.end();
    auto found = list.begin();
    for (; found != end; ++found) {
        const QString& name = (*found)->GetName();
        if (isSame(name, tag.text()) || isSame(name, words.translated) || byGroup(**found))
            break;
    }
    if (found == end)
        return CFxVariant::kNull;

    const CFxPropertyChangedPtr record = std::move(*found);
    list.erase(found);
    if (consumed)
        consumed->push_back(record);
    if (index)
        *index = byGroup(*record) ? CFxVariant(record->GetName()) : record->GetIndex(valueContext);
    return record->GetValue(valueContext);
}

OdGePoint3d CFxConverterIWAPIObject::FindPoint(const PropertyTag& xTag, const PropertyTag& yTag,
                                               const PropertyTag& zTag, PropertyList& list,
                                               CFxValueContext valueContext, PropertyList* consumed)
{
    // A null variant's double is 0.0. The reads are statements of their own because their order counts.
    const double x = FindProperty(xTag, list, valueContext, consumed).GetDouble();
    const double y = FindProperty(yTag, list, valueContext, consumed).GetDouble();
    const double z = FindProperty(zTag, list, valueContext, consumed).GetDouble();
    return {x, y, z};
}
