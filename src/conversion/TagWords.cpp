#include "conversion/TagWords.h"

#include <QCoreApplication>

static QString translated(const char* context, const QString& key)
{
    return QCoreApplication::translate(context, key.toUtf8().constData(), nullptr, -1);
}

const QString& TagWords::blockAttributes()
{
    if (blockAttributes_.isNull())
        blockAttributes_ = translated("property_groups", "BlockAttributes");
    return blockAttributes_;
}

const TagWords::Words& TagWords::translate(const PropertyTag& tag)
{
    if (tag.number() >= words_.size())
        words_.resize(tag.number() + 1);
    Words& words = words_[tag.number()];
    const CFxString groupWord = translated("property_groups", tag.text());
    words.searchesGroup = groupWord.equalNoCase(blockAttributes()) && groupWord.equalNoCase(tag.text());
    words.translated = translated("property_types", tag.text());
    return words;
}
