#pragma once

#include "host/db/OdDbDatabase.h"

#include <simdjson.h>

#include <span>
#include <string_view>

namespace inkmacro::recordfile {

class TextPool;

/// What reading a line needs beside the line.
struct Reading
{
    OdDbDatabase& database;
    TextPool& texts;
    int commandDepth = 0;
};

/// Thrown for a line that is no line of a recording.
struct FormError
{
    QString path;
    QString message;
};

/// The one entry that an object has, by its key's number in a list.
struct ChosenEntry
{
    std::size_t choice;
    std::string_view key;
    simdjson::dom::element value;
};

/// A value of the line that is being read, with the way to it. The value that this one is part of has to outlive it.
class Json
{
public:
    /// The line itself.
    Json(simdjson::dom::element element, Reading& reading) : element(element), reading(reading) {}

    Json entry(std::string_view key, simdjson::dom::element value) const { return {value, *this, key, 0}; }
    Json entry(std::size_t index, simdjson::dom::element value) const { return {value, *this, {}, index}; }

    simdjson::dom::object object() const;
    simdjson::dom::array array(const char* expected = "a list") const;
    std::string_view text(const char* expected = "a text") const;

    /// `noun` is what each of the keys stands for.
    ChosenEntry chosenEntry(std::span<const std::string_view> keys, const char* noun) const;

    [[noreturn]] void fail(const QString& message) const;
    /// "expected a text, found the number 3"
    [[noreturn]] void failExpected(const QString& expected) const;
    QString path() const;

    const simdjson::dom::element element;
    Reading& reading;

private:
    Json(simdjson::dom::element element, const Json& parent, std::string_view key, std::size_t index)
        : element(element), reading(parent.reading), parent_(&parent), key_(key), index_(index)
    {
    }

    const Json* parent_ = nullptr;
    std::string_view key_;
    std::size_t index_ = 0;
};

/// Valid UTF-8 as it stands in the file. Unlike QString::fromUtf8 this keeps a byte-order mark, which is none within a
/// text.
QString toText(std::string_view utf8);

/// The text in quotes, on one line and cut short, for a message.
QString quoted(const QString& text);
QString quoted(std::string_view utf8);

} // namespace inkmacro::recordfile
