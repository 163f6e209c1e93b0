// Property records: the lookup through which every value is read.

#include "objects/properties.h"

#include "objects/losses.h"

#include <QCoreApplication>

#include <algorithm>

CFxString ShownWord(const char* word)
{
    return QCoreApplication::translate("property_values", word, nullptr, -1);
}

std::optional<int> PlaceOf(const inkmacro::TextEnumeration& enumeration, const CFxString& word)
{
    const auto& rows = enumeration.rows;
    const auto* const row =
        std::ranges::find_if(rows, [&](const auto& candidate) { return word.equalNoCase(ShownWord(candidate.text)); });
    return row == rows.end() ? std::nullopt : std::optional(static_cast<int>(row - rows.begin()));
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

CFxVariant FindProperty(Conversion& conversion, const PropertyTag& tag, PropertyList& list, PropertyList* consumed,
                        CFxVariant* index)
{
    const TagWords::Words& words = conversion.tags.of(tag);
    const auto byGroup = [&](const CFxPropertyChanged& record) {
        return words.searchesGroup && record.GetGroup().equalNoCase(conversion.tags.blockAttributes());
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
        *index = byGroup(*record) ? CFxVariant(record->GetName()) : record->GetIndex(conversion.context);
    return record->GetValue(conversion.context);
}

CFxVariant TakeProperty(Conversion& conversion, const RecordedObject& object, const PropertyTag& tag,
                        const ValueForm& form, PropertyList& list)
{
    if (conversion.asked)
        conversion.asked->push_back({tag.text(), form});
    CFxVariant value = FindProperty(conversion, tag, list);
    AssumeUnlessFormed(object, tag.text(), value, form);
    return value;
}
