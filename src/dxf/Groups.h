#pragma once

#include <QtGlobal>

#include <cstddef>
#include <optional>
#include <string_view>

namespace inkmacro::dxf {

/// How the groups of a drawing file are written.
enum class FileForm
{
    Ascii,
    Binary,
    ShortCodes, ///< binary with codes of one byte, as R12 writes it
};

/// Of the file whose first bytes these are.
FileForm fileForm(std::string_view file);

/// A code and its value, in the bytes of the file. What kind of value it is follows from the code; in a text file it is
/// a line, and nobody has looked yet whether it is a number.
struct Group
{
    enum class Stored
    {
        Line,
        Text, ///< of a binary file, as are those below
        Real,
        Integer,
        Chunk,
    };

    int code = 0;
    std::string_view bytes;
    Stored stored = Stored::Line;

    bool is(int otherCode, std::string_view text) const { return code == otherCode && word() == text; }
    /// Without blanks around it.
    std::string_view word() const;
    /// Nothing for what is no number; one that a double cannot hold, and "nan", are not finite.
    std::optional<double> real() const;
    std::optional<qint64> integer() const;
    /// Of hexadecimal digits; 0 where there are none, or too many.
    quint64 handle() const;
};

/// Gives the groups of a file one by one. Nothing is kept of them; their bytes are those of the file.
class GroupReader
{
public:
    GroupReader(std::string_view file, FileForm form, std::size_t offset = 0);

    /// False at the end of the file, and behind it when it ends within a group.
    bool next(Group& group);
    /// Of the group that comes next.
    std::size_t offset() const { return offset_; }
    /// Lines that stood where a code belongs and were none, so far.
    qint64 strayLines() const { return strayLines_; }

private:
    bool nextLine(std::string_view& line);
    bool nextOfText(Group& group);
    bool nextOfBinary(Group& group);
    bool take(std::size_t length, std::string_view& bytes);

    std::string_view file_;
    FileForm form_;
    std::size_t offset_;
    qint64 strayLines_ = 0;
    static constexpr std::size_t kUnknown = std::string_view::npos;
    std::size_t lineFeed_ = kUnknown; ///< the next one, or the end of the file
};

} // namespace inkmacro::dxf
