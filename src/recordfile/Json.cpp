#include "recordfile/Json.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace inkmacro::recordfile {

using simdjson::dom::element_type;

namespace {

constexpr int kLongestQuote = 40;

bool isPlainKey(std::string_view key)
{
    return !key.empty() && std::all_of(key.begin(), key.end(), [](char letter) {
        return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') ||
               (letter >= '0' && letter <= '9') || letter == '_';
    });
}

bool breaksLine(QChar letter)
{
    const QChar::Category category = letter.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}

QString numberText(double number)
{
    char digits[32];
    const char* const end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
    return QString::fromLatin1(digits, static_cast<int>(end - digits));
}

QString listText(std::size_t count)
{
    if (count == 0)
        return "an empty list";
    return QString("a list with %1 %2").arg(count).arg(count == 1 ? "entry" : "entries");
}

QString describe(simdjson::dom::element element)
{
    switch (element.type()) {
    case element_type::OBJECT:
        return "an object";
    case element_type::ARRAY:
        return listText(element.get_array().value_unsafe().size());
    case element_type::STRING:
        return "the text " + quoted(element.get_string().value_unsafe());
    case element_type::INT64:
        return "the number " + QString::number(element.get_int64().value_unsafe());
    case element_type::UINT64:
        return "the number " + QString::number(element.get_uint64().value_unsafe());
    case element_type::DOUBLE:
        return "the number " + numberText(element.get_double().value_unsafe());
    case element_type::BOOL:
        return element.get_bool().value_unsafe() ? "true" : "false";
    case element_type::NULL_VALUE:
        break;
    }
    return "null";
}

} // namespace

simdjson::dom::object Json::object() const
{
    simdjson::dom::object object;
    if (element.get(object) != simdjson::SUCCESS)
        failExpected("an object");
    return object;
}

simdjson::dom::array Json::array(const char* expected) const
{
    simdjson::dom::array array;
    if (element.get(array) != simdjson::SUCCESS)
        failExpected(expected);
    return array;
}

std::string_view Json::text(const char* expected) const
{
    std::string_view text;
    if (element.get(text) != simdjson::SUCCESS)
        failExpected(expected);
    return text;
}

ChosenEntry Json::chosenEntry(std::span<const std::string_view> keys, const char* noun) const
{
    std::optional<ChosenEntry> chosen;
    for (const simdjson::dom::key_value_pair entry : object()) {
        const auto found = std::find(keys.begin(), keys.end(), entry.key);
        if (found == keys.end())
            fail(QString("%1 is not a %2").arg(quoted(entry.key), noun));
        if (chosen && chosen->key == entry.key)
            fail(QString("the key %1 is given twice").arg(quoted(entry.key)));
        if (chosen)
            fail(QString("only one %1 is allowed, found %2 and %3").arg(noun, quoted(chosen->key), quoted(entry.key)));
        chosen = ChosenEntry{static_cast<std::size_t>(found - keys.begin()), entry.key, entry.value};
    }
    if (!chosen)
        fail(QString("a %1 is missing").arg(noun));
    return *chosen;
}

void Json::fail(const QString& message) const
{
    throw FormError{path(), message};
}

void Json::failExpected(const QString& expected) const
{
    fail(QString("expected %1, found %2").arg(expected, describe(element)));
}

QString Json::path() const
{
    if (!parent_)
        return {};
    QString path = parent_->path();
    if (key_.data() == nullptr)
        return path + '[' + QString::number(index_) + ']';
    if (!isPlainKey(key_))
        return path + '[' + quoted(key_) + ']';
    return path.isEmpty() ? toText(key_) : path + '.' + toText(key_);
}

QString toText(std::string_view utf8)
{
    QString text = QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
    if (utf8.starts_with("\xEF\xBB\xBF"))
        text.prepend(QChar(QChar::ByteOrderMark));
    return text;
}

QString quoted(const QString& text)
{
    QString begin = text.left(kLongestQuote);
    if (!begin.isValidUtf16())
        begin.chop(1); // the cut went through a pair of surrogates
    QString shown;
    for (const QChar letter : begin) {
        if (letter == '"' || letter == '\\')
            shown += '\\';
        if (breaksLine(letter))
            shown += QString("\\u%1").arg(letter.unicode(), 4, 16, QChar('0'));
        else
            shown += letter;
    }
    return '"' + shown + (text.length() > begin.length() ? "...\"" : "\"");
}

QString quoted(std::string_view utf8)
{
    return quoted(toText(utf8));
}

} // namespace inkmacro::recordfile
