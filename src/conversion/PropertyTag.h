#pragma once

#include "host/kernel/CFxString.h"

#include <cstring>

/// As the operator, but seen by the compiler: this is asked of each record that a tag passes.
inline bool isSame(const QString& left, const QString& right)
{
    return left.size() == right.size() &&
           std::memcmp(left.constData(), right.constData(), static_cast<std::size_t>(left.size()) * sizeof(QChar)) == 0;
}

/// The English tag of a property. All of one spelling are one entry of the process, so that a tag which is asked for
/// with each object is neither made nor hashed again: of a literal the address is enough to find it.
class PropertyTag
{
public:
    PropertyTag(const char* latin1);
    PropertyTag(const QString& text);
    PropertyTag(const CFxString& text) : PropertyTag(text.toQString()) {}

    const QString& text() const { return entry_->text; }
    /// Counts the tags of the process from 0.
    std::size_t number() const { return entry_->number; }

private:
    struct Entry
    {
        QString text;
        QByteArray latin1;
        std::size_t number;
    };
    static const Entry* entryOf(const QString& text);

    const Entry* entry_;
};
