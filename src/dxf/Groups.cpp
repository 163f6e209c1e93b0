#include "dxf/Groups.h"

#include <charconv>
#include <cstring>
#include <limits>

namespace inkmacro::dxf {

namespace {

/// Behind a name of varying length.
constexpr std::string_view kBinaryMark{" Binary DXF\r\n\x1a\0", 15};
/// Within so many bytes.
constexpr std::size_t kMarkRoom = 32;
constexpr std::string_view kByteOrderMark{"\xef\xbb\xbf"};

constexpr bool isBlank(char letter)
{
    return letter == ' ' || letter == '\t' || letter == '\r' || letter == '\0';
}

constexpr std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

/// A sign is as good as none.
constexpr std::string_view withoutPlus(std::string_view text)
{
    return text.size() > 1 && text.front() == '+' && text[1] != '-' ? text.substr(1) : text;
}

/// Length of a value in a binary file; 0 for a text, which a zero byte ends, and for a chunk, which tells its own.
struct BinaryValue
{
    Group::Stored stored;
    std::size_t length;
};

constexpr BinaryValue binaryValue(int code)
{
    using enum Group::Stored;
    struct Range
    {
        int last;
        BinaryValue value;
    };
    constexpr Range ranges[] = {
        {9, {Text, 0}},       {59, {Real, 8}},      {79, {Integer, 2}},  {89, {Text, 0}},     {99, {Integer, 4}},
        {109, {Text, 0}},     {149, {Real, 8}},     {159, {Text, 0}},    {169, {Integer, 8}}, {179, {Integer, 2}},
        {209, {Text, 0}},     {239, {Real, 8}},     {269, {Text, 0}},    {289, {Integer, 2}}, {299, {Integer, 1}},
        {309, {Text, 0}},     {319, {Chunk, 0}},    {369, {Text, 0}},    {389, {Integer, 2}}, {399, {Text, 0}},
        {409, {Integer, 2}},  {419, {Text, 0}},     {429, {Integer, 4}}, {439, {Text, 0}},    {459, {Integer, 4}},
        {469, {Real, 8}},     {1003, {Text, 0}},    {1004, {Chunk, 0}},  {1009, {Text, 0}},   {1059, {Real, 8}},
        {1070, {Integer, 2}}, {1071, {Integer, 4}},
    };
    for (const Range& range : ranges)
        if (code <= range.last)
            return range.value;
    return {Text, 0};
}

template<class Number>
Number littleEndian(std::string_view bytes)
{
    Number number;
    std::memcpy(&number, bytes.data(), sizeof number);
    return number;
}

} // namespace

FileForm fileForm(std::string_view file)
{
    const std::size_t mark = file.substr(0, kMarkRoom).find(kBinaryMark);
    if (mark == std::string_view::npos)
        return FileForm::Ascii;
    // The first group is 0 or the comment 999, which a code of one byte tells behind 255.
    const std::string_view first = file.substr(mark + kBinaryMark.size(), 2);
    if (first.size() < 2 || (first[0] == 0 && first[1] == 0) || static_cast<unsigned char>(first[0]) == (999 & 0xff))
        return FileForm::Binary;
    return FileForm::ShortCodes;
}

std::string_view Group::word() const
{
    return trimmed(bytes);
}

std::optional<double> Group::real() const
{
    if (stored == Stored::Real)
        return littleEndian<double>(bytes);
    if (stored == Stored::Integer) {
        const std::optional<qint64> whole = integer();
        return whole ? std::optional<double>(static_cast<double>(*whole)) : std::nullopt;
    }
    const std::string_view digits = withoutPlus(word());
    double number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (end != digits.data() + digits.size())
        return {};
    if (error == std::errc::result_out_of_range) {
        // What is too small counts as nothing.
        const bool isSmall = digits.find("e-") != std::string_view::npos || digits.find("E-") != std::string_view::npos;
        return isSmall ? 0.0 : std::numeric_limits<double>::infinity();
    }
    return error == std::errc() ? std::optional(number) : std::nullopt;
}

std::optional<qint64> Group::integer() const
{
    if (stored == Stored::Integer) {
        switch (bytes.size()) {
        case 1:
            return littleEndian<quint8>(bytes);
        case 2:
            return littleEndian<qint16>(bytes);
        case 4:
            return littleEndian<qint32>(bytes);
        default:
            return littleEndian<qint64>(bytes);
        }
    }
    const std::string_view digits = withoutPlus(word());
    qint64 number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error == std::errc() && end == digits.data() + digits.size())
        return number;
    // Some write whole numbers with a point.
    const std::optional<double> fractional = real();
    constexpr double most = 9e18;
    if (!fractional || !(*fractional > -most && *fractional < most))
        return {};
    return static_cast<qint64>(*fractional);
}

quint64 Group::handle() const
{
    const std::string_view digits = word();
    quint64 number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number, 16);
    return error == std::errc() && end == digits.data() + digits.size() ? number : 0;
}

GroupReader::GroupReader(std::string_view file, FileForm form, std::size_t offset)
    : file_(file), form_(form), offset_(offset)
{
    if (form == FileForm::Ascii) {
        if (offset_ == 0 && file.starts_with(kByteOrderMark))
            offset_ = kByteOrderMark.size();
    } else if (offset_ == 0) {
        offset_ = file.find(kBinaryMark) + kBinaryMark.size();
    }
}

bool GroupReader::next(Group& group)
{
    return form_ == FileForm::Ascii ? nextOfText(group) : nextOfBinary(group);
}

bool GroupReader::nextLine(std::string_view& line)
{
    if (offset_ >= file_.size())
        return false;
    const char* const begin = file_.data() + offset_;
    // The next line feed may be far away, behind many lines that end otherwise.
    if (lineFeed_ < offset_ || lineFeed_ == kUnknown)
        lineFeed_ = std::min(file_.find('\n', offset_), file_.size());
    std::size_t length = lineFeed_ - offset_;
    std::size_t behind = lineFeed_ + 1;
    if (const auto* const found = static_cast<const char*>(std::memchr(begin, '\r', length))) {
        const auto at = static_cast<std::size_t>(found - begin);
        // One before the line feed belongs to it, and so does a second one that careless copying has put there; one
        // alone ends a line too.
        const std::size_t rest = length - at;
        const bool isBeforeLineFeed = behind <= file_.size() && (rest == 1 || (rest == 2 && found[1] == '\r'));
        if (!isBeforeLineFeed)
            behind = offset_ + at + 1;
        length = at;
    }
    line = {begin, length};
    offset_ = std::min(behind, file_.size());
    return true;
}

bool GroupReader::nextOfText(Group& group)
{
    std::string_view line;
    while (nextLine(line)) {
        const std::string_view digits = trimmed(line);
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), group.code);
        if (error == std::errc() && end == digits.data() + digits.size()) {
            group.stored = Group::Stored::Line;
            return nextLine(group.bytes);
        }
        if (!digits.empty())
            ++strayLines_;
    }
    return false;
}

bool GroupReader::take(std::size_t length, std::string_view& bytes)
{
    if (length > file_.size() - offset_) {
        offset_ = file_.size();
        return false;
    }
    bytes = file_.substr(offset_, length);
    offset_ += length;
    return true;
}

bool GroupReader::nextOfBinary(Group& group)
{
    std::string_view code;
    if (!take(form_ == FileForm::Binary ? 2 : 1, code))
        return false;
    if (form_ == FileForm::Binary) {
        group.code = littleEndian<qint16>(code);
    } else {
        group.code = static_cast<unsigned char>(code[0]);
        if (group.code == 255) {
            if (!take(2, code))
                return false;
            group.code = littleEndian<qint16>(code);
        }
    }
    const BinaryValue value = binaryValue(group.code);
    group.stored = value.stored;
    if (value.length > 0)
        return take(value.length, group.bytes);
    if (value.stored == Group::Stored::Chunk) {
        std::string_view length;
        return take(1, length) && take(static_cast<unsigned char>(length[0]), group.bytes);
    }
    const std::size_t end = file_.find('\0', offset_);
    if (end == std::string_view::npos) {
        offset_ = file_.size();
        return false;
    }
    group.bytes = file_.substr(offset_, end - offset_);
    offset_ = end + 1;
    return true;
}

} // namespace inkmacro::dxf
