// The parser says that a line is broken, but neither where nor, in many a case, how. So a line that it refused is gone
// over once more, slowly, by JSON's grammar. Qt's parser would not do: to it "C:\Users", a bare tab, .5 and 1. are
// right, and most of what is wrong is an unterminated object.

#include "recordfile/jsonFaults.h"

#include "recordfile/Json.h"

#include <algorithm>

namespace inkmacro::recordfile {

namespace {

struct Fault
{
    std::size_t at;
    QString reason;
};

constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kHexDigits = "0123456789abcdefABCDEF";
constexpr std::size_t kCodeUnitDigits = 4;

bool isOneOf(std::string_view letters, char letter)
{
    return letters.find(letter) != std::string_view::npos;
}

std::size_t behindSpace(std::string_view line, std::size_t at)
{
    return std::min(line.find_first_not_of(" \t\r\n", at), line.size());
}

std::size_t behindEscape(std::string_view line, std::size_t begin)
{
    const std::string_view escape = line.substr(begin + 1, 1 + kCodeUnitDigits);
    if (escape.empty() || !isOneOf("\"\\/bfnrtu", escape.front()))
        throw Fault{begin, "there is no such escape"};
    if (escape.front() != 'u')
        return begin + 2;
    if (escape.size() <= kCodeUnitDigits || escape.find_first_not_of(kHexDigits, 1) != std::string_view::npos)
        throw Fault{begin, "four hexadecimal digits are expected behind \\u"};
    return begin + 2 + kCodeUnitDigits;
}

std::size_t behindText(std::string_view line, std::size_t begin)
{
    for (std::size_t at = begin + 1; at < line.size();) {
        if (line[at] == '"')
            return at + 1;
        if (static_cast<unsigned char>(line[at]) < 0x20)
            throw Fault{at, "a text holds a control character that is not escaped"};
        at = line[at] == '\\' ? behindEscape(line, at) : at + 1;
    }
    throw Fault{begin, "a text lacks its closing quote"};
}

bool isNumber(std::string_view text)
{
    const auto skip = [&](std::string_view letters) {
        const bool found = !text.empty() && isOneOf(letters, text.front());
        text.remove_prefix(found ? 1 : 0);
        return found;
    };
    const auto skipDigits = [&] {
        const std::size_t count = std::min(text.find_first_not_of(kDigits), text.size());
        text.remove_prefix(count);
        return count > 0;
    };
    skip("-");
    if (!skip("0") && !skipDigits())
        return false;
    if (skip(".") && !skipDigits())
        return false;
    if (skip("eE")) {
        skip("+-");
        if (!skipDigits())
            return false;
    }
    return text.empty();
}

/// Behind a number, true, false or null.
std::size_t behindWord(std::string_view line, std::size_t begin)
{
    const std::size_t end = std::min(line.find_first_of(" \t\r\n,:{}[]\"", begin), line.size());
    const std::string_view word = line.substr(begin, end - begin);
    if (word.empty())
        throw Fault{begin, "a value is expected"};
    if (word == "true" || word == "false" || word == "null" || isNumber(word))
        return end;
    const bool isMeantAsNumber = word.front() == '-' || isOneOf(kDigits, word.front());
    throw Fault{begin, quoted(word) + (isMeantAsNumber ? " is not a number as JSON writes it" : " is no value")};
}

std::size_t behindKey(std::string_view line, std::size_t begin)
{
    if (line[begin] != '"')
        throw Fault{begin, "a key in quotes is expected"};
    const std::size_t at = behindSpace(line, behindText(line, begin));
    if (at == line.size() || line[at] != ':')
        throw Fault{at, "a colon is expected behind the key"};
    return at + 1;
}

/// Throws the first fault; returns when there is none.
void findFault(std::string_view line)
{
    enum
    {
        Value,      // the line's own, or that of a key
        FirstEntry, // or none
        Entry,
        Behind
    } next = Value;
    std::string closings; // of what is open
    std::size_t at = behindSpace(line, 0);
    for (; at < line.size(); at = behindSpace(line, at)) {
        const char letter = line[at];
        const char closing = closings.empty() ? ' ' : closings.back();
        if (letter == closing && (next == FirstEntry || next == Behind)) {
            closings.pop_back();
            ++at;
            next = Behind;
        } else if (next == Behind) {
            if (closings.empty())
                throw Fault{at, "nothing may stand behind the line's object"};
            if (letter != ',')
                throw Fault{at, QString("a comma or %1 is expected").arg(closing)};
            ++at;
            next = Entry;
        } else if (next != Value && closing == '}') {
            at = behindKey(line, at);
            next = Value;
        } else if (letter == '{' || letter == '[') {
            closings += letter == '{' ? '}' : ']';
            ++at;
            next = FirstEntry;
        } else {
            at = letter == '"' ? behindText(line, at) : behindWord(line, at);
            next = Behind;
        }
    }
    if (!closings.empty())
        throw Fault{at, closings.back() == '}' ? "the line ends within an object" : "the line ends within a list"};
    if (next != Behind)
        throw Fault{at, "a value is expected"};
}

/// From 1, in characters, as editors count.
qint64 columnOf(std::string_view line, std::size_t at)
{
    const std::string_view before = line.substr(0, at);
    return 1 + std::count_if(before.begin(), before.end(), [](char byte) { return (byte & 0xC0) != 0x80; });
}

} // namespace

QString explainFault(simdjson::error_code code, std::string_view line)
{
    switch (code) {
    case simdjson::UTF8_ERROR:
        return "not valid UTF-8";
    case simdjson::DEPTH_ERROR:
        return QString("objects and lists are nested more than %1 deep").arg(simdjson::DEFAULT_MAX_DEPTH);
    case simdjson::MEMALLOC:
        return "there is not enough memory for this line";
    default:
        break;
    }
    try {
        findFault(line);
    } catch (const Fault& fault) {
        return QString("not valid JSON: %1 (column %2)").arg(fault.reason, QString::number(columnOf(line, fault.at)));
    }
    // What is left keeps to the grammar.
    if (code == simdjson::NUMBER_ERROR)
        return "a number is out of range: of more than 64 bits, or beyond a double if it has a fraction or an exponent";
    return code == simdjson::STRING_ERROR ? "a text holds half a pair of surrogates" : "not valid JSON";
}

} // namespace inkmacro::recordfile
