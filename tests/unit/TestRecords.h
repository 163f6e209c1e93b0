#pragma once

#include "TestActions.h"

/// A property record; a bare text is what the property sheet shows.
inline CFxPropertyChangedPtr record(const char* tag, const CFxVariant& value)
{
    return odrxNew<TestProperty>(tag, value);
}

inline CFxPropertyChangedPtr record(const char* tag, const char* text)
{
    return record(tag, CFxVariant(CFxString(text)));
}

/// A value of choice type.
inline CFxVariant choice(std::vector<const char*> items, int chosen)
{
    std::vector<CFxVariantCollectionElement> elements;
    for (const char* item : items)
        elements.emplace_back(static_cast<int>(elements.size()), CFxString(item));
    return CFxVariantCollection(std::move(elements), chosen);
}
