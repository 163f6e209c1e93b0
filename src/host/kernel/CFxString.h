#pragma once

#include "host/rx/Export.h"
#include "host/rx/OdString.h"

#include <compare>

/// The host's string: UTF-16 with value semantics. Comparisons give a negative number, zero or a positive one.
class CFxString
{
public:
    CFxString() = default;
    CFxString(const QString& text) : text_(text) {}
    CFxString(const char* latin1) : text_(QString::fromLatin1(latin1)) {}

    operator const QString&() const { return text_; }
    const QString& toQString() const { return text_; }

    bool isEmpty() const { return text_.isEmpty(); }
    int getLength() const { return text_.length(); }
    int compare(const CFxString& other) const { return QString::compare(text_, other.text_); }
    int compareNoCase(const CFxString& other) const
    {
        return QString::compare(text_, other.text_, Qt::CaseInsensitive);
    }
    bool equalNoCase(const CFxString& other) const { return compareNoCase(other) == 0; }
    void makeLower() { text_ = text_.toLower(); }
    /// Replaces every occurrence.
    void replace(const CFxString& what, const CFxString& with) { text_.replace(what.text_, with.text_); }

    bool operator==(const CFxString&) const = default;
    std::strong_ordering operator<=>(const CFxString& other) const { return compare(other) <=> 0; }

private:
    QString text_;
};
