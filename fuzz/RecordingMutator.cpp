#include "RecordingMutator.h"

#include "host/db/OdDbClassMap.h"

#include <algorithm>
#include <array>

namespace inkmacro {

namespace {

constexpr std::array oddNumbers{"0",
                                "-0.0",
                                "1",
                                "-1",
                                "2",
                                "3",
                                "4",
                                "255",
                                "256",
                                "32767",
                                "-32768",
                                "65535",
                                "65536",
                                "2147483647",
                                "-2147483648",
                                "4294967295",
                                "1e15",
                                "999999.5",
                                "1e-4",
                                "5e-324",
                                "1.7e308",
                                "-1.7e308",
                                "0.1",
                                "3.141592653589793",
                                "1e300",
                                "1e-300",
                                "0.000099999",
                                "-5e-15",
                                "9007199254740993"};

constexpr std::array oddTexts{"",         "\\n",      "\\\\",    "\\\"",           "%",     "%L1",     "<br>",
                              "<b>x</b>", "&raquo; ", "\\u0000", "\\ud83d\\ude00", "Model", "Layout1", "*Model_Space",
                              "a.b",      "  ",       "L",       "C:\\\\x\\\\",    "0"};

constexpr std::size_t kDeepestNesting = 8;

} // namespace

const std::string& RecordingMutator::mutated(std::size_t most)
{
    for (std::size_t changes = 1 + below(4); changes > 0; --changes) {
        findValues();
        if (std::string changed = change(); !changed.empty() && changed.size() <= most)
            text_ = std::move(changed);
    }
    return text_;
}

// Finding the values. What is no JSON gives some values too, which does no harm.

void RecordingMutator::findValues()
{
    values_.clear();
    for (std::size_t at = skipSpace(0); at < text_.size();)
        at = skipSpace(std::max(at + 1, takeValue(at, {at, at, at, false, false})));
}

std::size_t RecordingMutator::skipSpace(std::size_t at) const
{
    return std::min(text_.find_first_not_of(" \t\r\n", at), text_.size());
}

std::size_t RecordingMutator::endOfText(std::size_t at) const
{
    for (++at; at < text_.size() && text_[at] != '"'; ++at)
        if (text_[at] == '\\')
            ++at;
    return std::min(at + 1, text_.size());
}

std::size_t RecordingMutator::takeValue(std::size_t at, Value value)
{
    value.begin = at;
    const std::size_t number = values_.size();
    values_.push_back(value);
    if (at < text_.size() && (text_[at] == '{' || text_[at] == '['))
        at = takeEntries(at + 1, text_[at] == '{');
    else if (at < text_.size() && text_[at] == '"')
        at = endOfText(at);
    else
        at = std::min(text_.find_first_of(" \t\r\n,:{}[]\"", at), text_.size());
    values_[number].end = at;
    return at;
}

std::size_t RecordingMutator::takeEntries(std::size_t at, bool object)
{
    for (at = skipSpace(at); at < text_.size() && text_[at] != '}' && text_[at] != ']'; at = skipSpace(at)) {
        const std::size_t entry = at;
        if (object) {
            at = skipSpace(endOfText(at));
            at = skipSpace(std::min(at + 1, text_.size())); // the colon
        }
        at = skipSpace(takeValue(at, {entry, at, at, !object, object}));
        if (at == entry || (at < text_.size() && text_[at] == ','))
            ++at;
    }
    return std::min(at + 1, text_.size());
}

// Changing them

std::string RecordingMutator::change()
{
    if (values_.empty())
        return {};
    const Value value = of(values_);
    switch (below(10)) {
    case 0:
        return withoutEntry(value);
    case 1:
    case 2:
        return withRepeatedEntry(value);
    case 3:
        return withChangedLine();
    case 4:
        return nested(value);
    case 5:
    case 6:
        return replaced(value, std::string(textOf(of(values_))));
    default:
        return replaced(value, newValue(value));
    }
}

std::string RecordingMutator::replaced(const Value& value, const std::string& by) const
{
    return std::string(text_).replace(value.begin, value.end - value.begin, by);
}

std::string RecordingMutator::withoutEntry(const Value& value) const
{
    if (!value.inList && !value.inObject)
        return {};
    std::size_t begin = value.entry;
    std::size_t end = skipSpace(value.end);
    if (end < text_.size() && text_[end] == ',')
        ++end;
    else if (begin > 0 && text_[begin - 1] == ',')
        --begin;
    return std::string(text_).erase(begin, end - begin);
}

/// In an object this gives a key twice, or a key that belongs into another object.
std::string RecordingMutator::withRepeatedEntry(const Value& value)
{
    const Value& other = below(4) == 0 ? of(values_) : value;
    if ((!value.inList && !value.inObject) || other.inObject != value.inObject)
        return {};
    std::string more;
    for (std::size_t times = value.inList && below(4) == 0 ? below(300) : 1; times > 0; --times)
        more.append(entryOf(other)).append(",");
    return std::string(text_).insert(value.entry, more);
}

std::string RecordingMutator::withChangedLine()
{
    std::vector<std::string> lines;
    for (const Value& value : values_)
        if (!value.inList && !value.inObject)
            lines.emplace_back(textOf(value));
    const std::size_t line = below(lines.size());
    switch (below(3)) {
    case 0:
        lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(line));
        break;
    case 1:
        lines.push_back(lines[line]);
        break;
    default:
        std::swap(lines[line], of(lines) == lines[line] ? lines.front() : lines.back());
    }
    std::string all;
    for (const std::string& one : lines)
        all.append(one).append("\n");
    return all;
}

/// A command around an action, or a list, an element or a collection around a value.
std::string RecordingMutator::nested(const Value& value)
{
    std::string inner(textOf(value));
    static constexpr std::array around{
        std::pair{R"({"command":{"name":"LINE","actions":[)", "]}}"},
        std::pair{R"({"element":{"tag":"a","value":)", "}}"},
        std::pair{R"({"element":{"value":1,"tag":)", "}}"},
        std::pair{R"({"collection":{"chosen":1,"elements":[{"tag":1,"value":)", "}]}}"},
        std::pair{"[", "]"},
    };
    const auto& [before, after] = inner.front() == '{' && below(2) == 0 ? around.front() : of(around);
    for (std::size_t depth = 1 + below(kDeepestNesting); depth > 0; --depth)
        inner = before + inner + after;
    return replaced(value, inner);
}

std::string RecordingMutator::changedText(std::string_view quoted)
{
    constexpr std::size_t longest = 300;
    std::string text(quoted.size() < 2 ? std::string_view() : quoted.substr(1, quoted.size() - 2));
    std::string more = below(2) == 0 ? '%' + std::to_string(1 + below(99)) : std::string(of(oddTexts));
    if (below(8) == 0)
        for (const std::string one = more; !one.empty() && more.size() < longest; more += one) {
        }
    switch (below(4)) {
    case 0:
        return '"' + more + '"';
    case 1:
        return '"' + more + text + '"';
    default:
        return '"' + text + more + '"';
    }
}

std::string RecordingMutator::newNumber()
{
    switch (below(3)) {
    case 0:
        return std::to_string(below(32));
    case 1:
        return std::to_string(static_cast<double>(below(100'000)) / 1000 - 50);
    default:
        return of(oddNumbers);
    }
}

std::string RecordingMutator::newValue(const Value& old)
{
    const std::string_view text = textOf(old);
    if (text.starts_with("\"AcDb") && below(4) != 0) {
        const auto& classes = oddbClassRows();
        return '"' + QString(of(classes).name).toStdString() + '"';
    }
    if (text.starts_with('"') && below(8) != 0)
        return changedText(text);
    if (!text.starts_with('"') && below(4) != 0)
        return newNumber();
    static constexpr std::array others{"null", "true", "false", "{}", "[]", R"({"int":7})", R"({"color":"bylayer"})"};
    return of(others);
}

} // namespace inkmacro
