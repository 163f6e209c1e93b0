#include "recordfile/JsonOut.h"

#include <array>
#include <charconv>
#include <cmath>

namespace inkmacro::recordfile {

namespace {

/// By byte, whether it stands for itself in a text.
constexpr std::array<bool, 256> plainBytes = [] {
    std::array<bool, 256> plain = {};
    for (std::size_t byte = 0x20; byte < plain.size(); ++byte)
        plain[byte] = byte != '"' && byte != '\\';
    return plain;
}();

/// What stands for a byte that does not stand for itself.
std::string_view escapeOf(char byte, char (&room)[6])
{
    switch (byte) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\b':
        return "\\b";
    case '\f':
        return "\\f";
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    default:
        break;
    }
    const auto code = static_cast<unsigned char>(byte);
    static constexpr std::string_view digits = "0123456789abcdef";
    const char escape[] = {'\\', 'u', '0', '0', digits[code >> 4], digits[code & 15]};
    std::copy(std::begin(escape), std::end(escape), room);
    return {room, sizeof room};
}

} // namespace

void JsonOut::append(std::string_view ascii)
{
    bytes_.append(ascii.data(), static_cast<int>(ascii.size()));
}

void JsonOut::separate()
{
    if (comma_)
        bytes_.append(',');
    if (onNewLine_)
        bytes_.append('\n');
    comma_ = true;
    onNewLine_ = false;
}

void JsonOut::begin(char bracket)
{
    separate();
    bytes_.append(bracket);
    comma_ = false;
}

void JsonOut::end(char bracket)
{
    bytes_.append(bracket);
    comma_ = true;
}

void JsonOut::key(std::string_view name)
{
    text(name);
    bytes_.append(':');
    comma_ = false;
}

void JsonOut::key(const QString& name)
{
    text(name);
    bytes_.append(':');
    comma_ = false;
}

void JsonOut::text(std::string_view ascii)
{
    separate();
    bytes_.append('"');
    append(ascii);
    bytes_.append('"');
}

void JsonOut::text(const QString& text)
{
    // Half a pair of surrogates has no UTF-8.
    if (!text.isValidUtf16())
        refuse();
    separate();
    bytes_.append('"');
    quote(text);
    bytes_.append('"');
}

void JsonOut::quote(const QString& text)
{
    char room[6];
    const QByteArray utf8 = text.toUtf8();
    int written = 0;
    for (int i = 0; i < utf8.size(); ++i) {
        if (plainBytes[static_cast<unsigned char>(utf8.at(i))])
            continue;
        bytes_.append(utf8.constData() + written, i - written);
        append(escapeOf(utf8.at(i), room));
        written = i + 1;
    }
    bytes_.append(utf8.constData() + written, utf8.size() - written);
}

void JsonOut::number(double value)
{
    if (!std::isfinite(value)) {
        refuse();
        return;
    }
    separate();
    char digits[32];
    const char* const end = std::to_chars(std::begin(digits), std::end(digits), value).ptr;
    const std::string_view shortest(digits, static_cast<std::size_t>(end - digits));
    append(shortest);
    // Digits alone are read as an integer, which has no -0 and ends at 64 bits.
    const bool integer = shortest.find_first_of(".e") == std::string_view::npos;
    if (integer && (shortest == "-0" || shortest.size() > 18))
        append(".0");
}

void JsonOut::integer(qint64 value)
{
    separate();
    bytes_.append(QByteArray::number(value));
}

void JsonOut::boolean(bool value)
{
    separate();
    append(value ? "true" : "false");
}

void JsonOut::null()
{
    separate();
    append("null");
}

void JsonOut::endLine()
{
    bytes_.append('\n');
    comma_ = false;
}

} // namespace inkmacro::recordfile
