#pragma once

#include "conversion/Conversion.h"
#include "objects/RecordedObject.h"

#include <optional>

/// Takes the first record with that tag out of the list and gives its value, or the null value. The record's tag may be
/// in the host's display language. `consumed` and `index` may be null; they receive the record, and its number within a
/// repeated property. The translation of "BlockAttributes" as the tag searches by group: then `index` receives the
/// attribute's own tag.
CFxVariant FindProperty(Conversion& conversion, const PropertyTag& tag, PropertyList& list,
                        PropertyList* consumed = nullptr, CFxVariant* index = nullptr);
/// The same of a changed object's value of that form: whoever lists the tags hears of it, and another form is noted.
CFxVariant TakeProperty(Conversion& conversion, const RecordedObject& object, const PropertyTag& tag,
                        const ValueForm& form, PropertyList& list);

/// Whether a value of choice type shows the word "Yes" or "On" in the host's display language.
bool IsYes(const CFxVariant& value);
bool IsOn(const CFxVariant& value);
/// A word as the host's property sheet shows it.
CFxString ShownWord(const char* word);
/// The place of the word among the enumeration's rows; nothing for one that none of them shows.
std::optional<int> PlaceOf(const inkmacro::TextEnumeration& enumeration, const CFxString& word);
/// The text of a value of choice type that came as the chosen item alone; empty for any other value.
CFxString ElementText(const CFxVariant& value);
/// The text of the chosen item, whether it came alone or among all items; nothing for any other value.
std::optional<CFxString> ChosenText(const CFxVariant& value);
/// The word of a value, whether it is plain text or the chosen one of several items.
inline CFxString wordOf(const CFxVariant& value)
{
    return ChosenText(value).value_or(value.GetString());
}
