#include "objects/PropertyTag.h"

#include <QHash>

#include <cstring>
#include <deque>
#include <unordered_map>

PropertyTag::PropertyTag(const char* latin1)
{
    static std::unordered_map<const char*, const Entry*> byAddress;
    const Entry*& entry = byAddress[latin1];
    // What was no literal may have left its place to another text.
    if (!entry || std::strcmp(entry->latin1.constData(), latin1) != 0)
        entry = entryOf(QString::fromLatin1(latin1));
    entry_ = entry;
}

PropertyTag::PropertyTag(const QString& text) : entry_(entryOf(text))
{
}

const PropertyTag::Entry* PropertyTag::entryOf(const QString& text)
{
    static std::deque<Entry> entries;
    static QHash<QString, const Entry*> byText;
    const Entry*& entry = byText[text];
    if (!entry)
        entry = &entries.emplace_back(Entry{text, text.toLatin1(), entries.size()});
    return entry;
}
