#pragma once

#include "host/kernel/CFxVariant.h"
#include "statements/enumerations.h"

#include <span>
#include <vector>

/// What the value of a record has to be, so that who asks for it gets what was recorded and no neutral value.
struct ValueForm
{
    enum Content
    {
        kAnything,
        kWholeNumber,
        kPoints,          ///< in the elements of the collection
        kHandlesInValues, ///< of objects, as texts in the elements' values
        kHandlesInTags,   ///< the same in their tags
    };

    unsigned types; ///< those of CFxVariant that will do, a bit each
    Content content = kAnything;
    std::span<const char* const> words = {};             ///< that are understood; none of a free text
    const inkmacro::TextEnumeration* byText = nullptr;   ///< whose words are understood
    const inkmacro::ValueEnumeration* byValue = nullptr; ///< whose numbers are understood

    /// Whether getters give the value, and no neutral one in its place.
    bool fits(const CFxVariant& value) const { return accepts(value.GetType()); }
    constexpr bool accepts(CFxVariant::Type type) const { return (types & (1U << type)) != 0; }

    constexpr ValueForm with(const inkmacro::TextEnumeration& enumeration) const
    {
        ValueForm form = *this;
        form.byText = &enumeration;
        return form;
    }
    constexpr ValueForm with(const inkmacro::ValueEnumeration& enumeration) const
    {
        ValueForm form = *this;
        form.byValue = &enumeration;
        return form;
    }
    constexpr ValueForm with(std::span<const char* const> known) const
    {
        ValueForm form = *this;
        form.words = known;
        return form;
    }
};

namespace forms {

constexpr unsigned bitOf(CFxVariant::Type type)
{
    return 1U << type;
}

inline constexpr ValueForm number{bitOf(CFxVariant::kInt32) | bitOf(CFxVariant::kDouble)};
inline constexpr ValueForm whole{number.types, ValueForm::kWholeNumber};
inline constexpr ValueForm text{bitOf(CFxVariant::kString)};
inline constexpr ValueForm color{bitOf(CFxVariant::kColor)};
inline constexpr ValueForm transparency{bitOf(CFxVariant::kTransparency)};
inline constexpr ValueForm point{bitOf(CFxVariant::kPoint3d)};
inline constexpr ValueForm object{bitOf(CFxVariant::kId)};
inline constexpr ValueForm points{bitOf(CFxVariant::kCollection), ValueForm::kPoints};
inline constexpr ValueForm handlesInValues{bitOf(CFxVariant::kCollection), ValueForm::kHandlesInValues};
inline constexpr ValueForm handlesInTags{bitOf(CFxVariant::kCollection), ValueForm::kHandlesInTags};
/// The chosen item of a value of choice type alone.
inline constexpr ValueForm element{bitOf(CFxVariant::kCollectionElement)};
/// The chosen one among all items.
inline constexpr ValueForm collection{bitOf(CFxVariant::kCollection)};
inline constexpr ValueForm chosen{element.types | collection.types};
/// The item's text, or that text alone.
inline constexpr ValueForm word{chosen.types | text.types};
/// The item's number, or that number alone.
inline constexpr ValueForm choice{chosen.types | number.types};
/// A style by its record or its name.
inline constexpr ValueForm style{word.types | object.types};

inline constexpr const char* yesNo[] = {"Yes", "No"};

} // namespace forms

/// A tag that somebody has asked the records for.
struct AskedTag
{
    QString tag; ///< `*` at its end stands for whatever follows
    ValueForm form;
    QString whenMissing = {}; ///< what is taken then; empty where nothing is done
    bool numbered = false;    ///< a record without its number within a repeated property is lost
    bool general = false;     ///< of all entities
    QString group = {};       ///< not empty where the records are told by their group, and not by their tags
};
