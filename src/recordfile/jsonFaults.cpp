// The parser says that a line is broken, but neither where nor, in many a case, how. So a line that it refused is gone
// over once more, slowly, by JSON's grammar.

#include "recordfile/jsonFaults.h"

#include "recordfile/Json.h"

#include <charconv>
#include <vector>

namespace inkmacro::recordfile {

namespace {

struct Fault
{
    std::size_t at;
    QString reason;
    bool inGrammar = true; ///< else it is the parser that cannot take it
};

constexpr std::string_view kDigits = "0123456789";

class FaultFinder
{
public:
    explicit FaultFinder(std::string_view line) : line_(line) {}

    /// Throws the first fault; returns when there is none.
    void find();

private:
    enum class Next
    {
        Value,
        FirstEntry,
        FirstKey,
        Key,
        Behind
    };

    bool atEnd() const { return at_ >= line_.size(); }
    char here() const { return atEnd() ? '\0' : line_[at_]; }
    [[noreturn]] void fail(const QString& reason) const { throw Fault{at_, reason}; }
    void skipSpace();
    bool skip(char letter);
    bool skipDigits();
    Next step(Next next);
    Next value();
    Next key();
    Next behindValue();
    void text();
    void escape();
    unsigned codeUnit();
    void word();
    void number();
    bool isNumber();

    std::string_view line_;
    std::size_t at_ = 0;
    std::vector<char> open_; // brackets
};

void FaultFinder::find()
{
    Next next = Next::Value;
    for (;;) {
        skipSpace();
        if (atEnd()) {
            if (open_.empty() && next == Next::Behind)
                return;
            fail(open_.empty()         ? QString("a value is expected")
                 : open_.back() == '{' ? QString("the line ends within an object")
                                       : QString("the line ends within a list"));
        }
        next = step(next);
    }
}

void FaultFinder::skipSpace()
{
    at_ = std::min(line_.find_first_not_of(" \t\r\n", at_), line_.size());
}

bool FaultFinder::skip(char letter)
{
    const bool found = !atEnd() && here() == letter;
    if (found)
        ++at_;
    return found;
}

bool FaultFinder::skipDigits()
{
    const std::size_t begin = at_;
    at_ = std::min(line_.find_first_not_of(kDigits, at_), line_.size());
    return at_ > begin;
}

FaultFinder::Next FaultFinder::step(Next next)
{
    switch (next) {
    case Next::FirstEntry:
        return here() == ']' ? behindValue() : value();
    case Next::FirstKey:
        return here() == '}' ? behindValue() : key();
    case Next::Key:
        return key();
    case Next::Behind:
        return behindValue();
    case Next::Value:
        break;
    }
    return value();
}

FaultFinder::Next FaultFinder::value()
{
    const char first = here();
    if (first == '{' || first == '[') {
        open_.push_back(first);
        ++at_;
        return first == '{' ? Next::FirstKey : Next::FirstEntry;
    }
    if (first == '"')
        text();
    else if (first == '-' || kDigits.find(first) != std::string_view::npos)
        number();
    else
        word();
    return Next::Behind;
}

FaultFinder::Next FaultFinder::key()
{
    if (here() != '"')
        fail("a key in quotes is expected");
    text();
    skipSpace();
    if (!skip(':'))
        fail("a colon is expected behind the key");
    return Next::Value;
}

FaultFinder::Next FaultFinder::behindValue()
{
    if (open_.empty())
        fail("nothing may stand behind the line's object");
    const bool inObject = open_.back() == '{';
    if (skip(','))
        return inObject ? Next::Key : Next::Value;
    if (!skip(inObject ? '}' : ']'))
        fail(inObject ? "a comma or } is expected" : "a comma or ] is expected");
    open_.pop_back();
    return Next::Behind;
}

void FaultFinder::text()
{
    const std::size_t begin = at_++;
    while (!atEnd() && here() != '"') {
        if (static_cast<unsigned char>(here()) < 0x20)
            fail("a text holds a control character that is not escaped");
        if (here() == '\\')
            escape();
        else
            ++at_;
    }
    if (!skip('"'))
        throw Fault{begin, "a text lacks its closing quote"};
}

void FaultFinder::escape()
{
    const std::size_t begin = at_++;
    if (here() != 'u') {
        if (atEnd() || std::string_view("\"\\/bfnrt").find(here()) == std::string_view::npos)
            throw Fault{begin, "there is no such escape"};
        ++at_;
        return;
    }
    const unsigned unit = codeUnit();
    bool paired = unit < 0xD800 || unit > 0xDFFF;
    if (unit >= 0xD800 && unit <= 0xDBFF && skip('\\') && here() == 'u') {
        const unsigned second = codeUnit();
        paired = second >= 0xDC00 && second <= 0xDFFF;
    }
    if (!paired)
        throw Fault{begin, "half a pair of surrogates"};
}

/// The four digits behind a `u`.
unsigned FaultFinder::codeUnit()
{
    const std::string_view digits = line_.substr(std::min(at_ + 1, line_.size()), 4);
    unsigned unit = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), unit, 16);
    if (error != std::errc() || end != digits.data() + 4)
        throw Fault{at_ - 1, "four hexadecimal digits are expected behind \\u"};
    at_ += 5;
    return unit;
}

void FaultFinder::word()
{
    const std::size_t begin = at_;
    at_ = std::min(line_.find_first_of(" \t\r\n,:{}[]\"", at_), line_.size());
    const std::string_view word = line_.substr(begin, at_ - begin);
    if (word == "true" || word == "false" || word == "null")
        return;
    if (word.empty())
        fail("a value is expected");
    throw Fault{begin, quoted(word) + " is no value"};
}

bool FaultFinder::isNumber()
{
    skip('-');
    if (!skip('0') && !skipDigits())
        return false;
    if (skip('.') && !skipDigits())
        return false;
    if (skip('e') || skip('E')) {
        if (!skip('+'))
            skip('-');
        return skipDigits();
    }
    return true;
}

void FaultFinder::number()
{
    const std::size_t begin = at_;
    const std::size_t end = std::min(line_.find_first_of(" \t\r\n,:{}[]\"", at_), line_.size());
    const std::string_view number = line_.substr(begin, end - begin);
    if (!isNumber() || at_ != end)
        throw Fault{begin, quoted(number) + " is not a number as JSON writes it"};
    const auto overflows = [number](auto value) {
        return std::from_chars(number.data(), number.data() + number.size(), value).ec ==
               std::errc::result_out_of_range;
    };
    if (number.find_first_of(".eE") == std::string_view::npos) {
        if (number.front() == '-' ? overflows(qint64()) : overflows(quint64()))
            throw Fault{begin,
                        quoted(number) + " is beyond 64 bits; a number of that size needs a fraction or an exponent",
                        false};
    } else if (overflows(double()) && number.find("e-") == std::string_view::npos &&
               number.find("E-") == std::string_view::npos) {
        throw Fault{begin, quoted(number) + " is beyond the range of a double", false};
    }
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
        FaultFinder(line).find();
    } catch (const Fault& fault) {
        const QString column = QString::number(columnOf(line, fault.at));
        return QString(fault.inGrammar ? "not valid JSON: %1 (column %2)" : "%1 (column %2)").arg(fault.reason, column);
    }
    return "not valid JSON";
}

} // namespace inkmacro::recordfile
