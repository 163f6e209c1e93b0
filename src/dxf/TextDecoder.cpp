#include "dxf/TextDecoder.h"

#include <QtEndian>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <optional>
#include <span>

#include <iconv.h>

namespace inkmacro::dxf {

namespace {

constexpr std::string_view ansi = "";

/// 0x80 to 0x9F of ANSI_1252; the rest is as in Latin 1. Five of them are undefined.
constexpr std::array<char16_t, 32> ansiControls = {
    0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD, 0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178,
};

/// Pages of the escape \M+n, from n = 1 on.
constexpr std::array<const char*, 5> pagesOfPairs = {"CP932", "CP950", "CP949", "JOHAB", "CP936"};

struct PageName
{
    std::string_view written; ///< in small letters and digits alone
    std::string_view page;
};

constexpr PageName pageNames[] = {
    {"", ansi},
    {"ascii", ansi},
    {"usascii", ansi},
    {"utf8", "UTF-8"},
    {"macroman", "MACINTOSH"},
    {"macintosh", "MACINTOSH"},
    {"mac", "MACINTOSH"},
    {"maccyrillic", "MAC-CYRILLIC"},
    {"big5", "CP950"},
    {"sjis", "CP932"},
    {"shiftjis", "CP932"},
    {"gb2312", "CP936"},
    {"gbk", "CP936"},
    {"gb18030", "GB18030"},
    {"ksc5601", "CP949"},
    {"euckr", "CP949"},
    {"johab", "JOHAB"},
};

/// Pages by number that are not "CP" and the number.
constexpr PageName numberedPages[] = {
    {"1252", ansi},
    {"1361", "JOHAB"},
    {"10000", "MACINTOSH"},
    {"65001", "UTF-8"},
};

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

const PageName* find(std::span<const PageName> names, std::string_view written)
{
    const auto found =
        std::find_if(names.begin(), names.end(), [&](const PageName& name) { return name.written == written; });
    return found == names.end() ? nullptr : &*found;
}

std::string iconvName(std::string_view codePage)
{
    std::string written;
    for (const char c : codePage)
        if (isDigit(c) || std::isalpha(static_cast<unsigned char>(c)))
            written += char(std::tolower(static_cast<unsigned char>(c)));
    if (const PageName* name = find(pageNames, written))
        return std::string(name->page);
    for (const std::string_view prefix : {"iso8859", "8859"})
        if (written.compare(0, prefix.size(), prefix) == 0)
            return "ISO-8859-" + written.substr(prefix.size());
    const std::string number(std::find_if(written.begin(), written.end(), isDigit), written.end());
    if (const PageName* name = find(numberedPages, number))
        return std::string(name->page);
    return "CP" + number;
}

/// The number that stands in hexadecimal digits at a place; nothing where there are fewer.
std::optional<uint> hexadecimal(const QString& text, int from, int digits)
{
    if (text.size() < from + digits)
        return std::nullopt;
    uint number = 0;
    for (int i = from; i < from + digits; ++i) {
        const ushort c = text[i].unicode();
        const ushort small = c | 0x20;
        if (c >= '0' && c <= '9')
            number = number * 16 + (c - '0');
        else if (small >= 'a' && small <= 'f')
            number = number * 16 + (small - 'a' + 10);
        else
            return std::nullopt;
    }
    return number;
}

/// What a caret and the character behind it stand for; null where they stand for themselves.
QChar afterCaret(QChar c)
{
    switch (c.unicode()) {
    case 'I':
        return '\t';
    case 'J':
        return '\n';
    case 'M':
        return '\r';
    case ' ':
        return '^';
    default:
        return {};
    }
}

} // namespace

void TextDecoder::Close::operator()(void* descriptor) const
{
    iconv_close(descriptor);
}

TextDecoder::TextDecoder(std::string_view codePage) : page_(iconvName(codePage))
{
    if (page_ == ansi)
        return;
    descriptor_ = open(page_.c_str());
    known_ = descriptor_ != nullptr;
    if (!known_)
        page_ = ansi;
}

QString TextDecoder::text(std::string_view bytes)
{
    unsigned char all = 0;
    bool plain = true;
    for (const unsigned char c : bytes) {
        all |= c;
        plain = plain && c != '\\' && c != '^' && c != 0;
    }
    QString text;
    if (all < 0x80) {
        text = QString::fromLatin1(bytes.data(), int(bytes.size()));
        if (plain)
            return text;
    } else if (page_ == ansi) {
        appendAnsi(bytes, text);
    } else {
        if (!descriptor_)
            descriptor_ = open(page_.c_str());
        appendDecoded(bytes, descriptor_.get(), text);
        // The Won sign stands in the backslash's place, and in drawings means it.
        if (page_ == "JOHAB")
            text.replace(QChar(0x20A9), '\\');
    }
    // Behind decoding: in several code pages a backslash is the second byte of a character.
    text = withoutEscapes(text);
    replaceWhatIsNoText(text);
    return text;
}

TextDecoder::Descriptor TextDecoder::open(const char* page)
{
    const iconv_t descriptor = iconv_open(Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? "UTF-16LE" : "UTF-16BE", page);
    return Descriptor(descriptor == iconv_t(-1) ? nullptr : descriptor);
}

/// Without a descriptor no byte is text.
void TextDecoder::appendDecoded(std::string_view bytes, void* descriptor, QString& text)
{
    std::array<char16_t, 256> room;
    char* from = const_cast<char*>(bytes.data());
    size_t left = bytes.size();
    // Some code pages hold a letter back, since an accent may follow: the last one comes without input.
    const auto convert = [&](char** input) {
        char* to = reinterpret_cast<char*>(room.data());
        size_t free = sizeof room;
        const bool done = descriptor && iconv(descriptor, input, input ? &left : nullptr, &to, &free) != size_t(-1);
        const int fault = done ? 0 : errno;
        text.append(reinterpret_cast<const QChar*>(room.data()), int((sizeof room - free) / sizeof(char16_t)));
        return done || (descriptor && fault == E2BIG);
    };
    while (left != 0) {
        if (convert(&from))
            continue;
        convert(nullptr);
        text += QChar(QChar::ReplacementCharacter);
        ++undecodable_;
        ++from;
        --left;
    }
    convert(nullptr);
}

void TextDecoder::appendAnsi(std::string_view bytes, QString& text)
{
    for (const unsigned char c : bytes) {
        const ushort unit = c >= 0x80 && c < 0xA0 ? ansiControls[c - 0x80] : c;
        undecodable_ += unit == QChar::ReplacementCharacter;
        text += QChar(unit);
    }
}

/// A pair of bytes whose first one is 0 is a single byte.
bool TextDecoder::appendBytePair(int page, uint pair, QString& text)
{
    Descriptor& descriptor = pagesOfPairs_[page];
    if (!descriptor)
        descriptor = open(pagesOfPairs[page]);
    if (!descriptor)
        return false;
    const char bytes[] = {char(pair >> 8), char(pair & 0xFF)};
    appendDecoded(std::string_view(bytes, 2).substr(bytes[0] == 0 ? 1 : 0), descriptor.get(), text);
    return true;
}

QString TextDecoder::withoutEscapes(const QString& text)
{
    if (!text.contains('\\') && !text.contains('^'))
        return text;
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar next = i + 1 < text.size() ? text[i + 1] : QChar();
        if (text[i] == '^' && !afterCaret(next).isNull()) {
            result += afterCaret(next);
            i += 1;
            continue;
        }
        if (text[i] == '\\' && i + 2 < text.size() && text[i + 2] == '+') {
            if (const auto unit = hexadecimal(text, i + 3, 4); unit && next.toUpper() == 'U') {
                result += QChar(ushort(*unit));
                i += 6;
                continue;
            }
            const auto page = hexadecimal(text, i + 3, 1);
            const auto pair = hexadecimal(text, i + 4, 4);
            if (page && pair && next.toUpper() == 'M' && *page >= 1 && *page <= pagesOfPairs.size() &&
                appendBytePair(int(*page) - 1, *pair, result)) {
                i += 7;
                continue;
            }
        }
        result += text[i];
    }
    return result;
}

/// Halves of surrogate pairs, which escapes can give, and NUL, which would end the text in what reads it.
void TextDecoder::replaceWhatIsNoText(QString& text)
{
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            ++i;
        } else if (c.isSurrogate() || c.isNull()) {
            text[i] = QChar::ReplacementCharacter;
            ++undecodable_;
        }
    }
}

} // namespace inkmacro::dxf
