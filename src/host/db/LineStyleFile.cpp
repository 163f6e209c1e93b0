#include "host/db/LineStyleFile.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace {

/// The rest of a longer line is dropped: no style has one, but any file may have the ending.
constexpr int kLongestLine = 4096;
constexpr qint64 kPiece = 65536;
constexpr int kLongestDescription = 47;

OdString decoded(const QByteArray& bytes)
{
    const OdString text = OdString::fromUtf8(bytes);
    return text.toUtf8() == bytes ? text : OdString::fromLatin1(bytes);
}

OdString withoutComment(const OdString& line)
{
    const int leading =
        static_cast<int>(std::find_if(line.begin(), line.end(), [](QChar c) { return !c.isSpace(); }) - line.begin());
    const int comment = line.indexOf(";;", leading);
    return line.mid(leading, comment < 0 ? -1 : comment - leading);
}

} // namespace

LineStyleFile::LineStyleFile(const OdString& path) : file_(path)
{
    if (QFileInfo(path).isFile())
        file_.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

bool LineStyleFile::next(Style& style)
{
    while (const auto text = line()) {
        if (!text->startsWith('*'))
            continue;
        const int comma = text->indexOf(',');
        style.name = text->mid(1, comma < 0 ? -1 : comma - 1).trimmed();
        style.description = comma < 0 ? OdString() : text->mid(comma + 1, kLongestDescription);
        return true;
    }
    return false;
}

bool LineStyleFile::nextIsPattern()
{
    // What stands in brackets are texts and shapes along the line.
    static const QRegularExpression pattern(R"(\AA\s*(,\s*([-+]?(\d+\.?\d*|\.\d+)([eE][-+]?\d+)?|\[[^\]]*\])\s*)+\z)",
                                            QRegularExpression::CaseInsensitiveOption);
    while (const auto text = line())
        if (!text->trimmed().isEmpty())
            return pattern.match(*text).hasMatch();
    return false;
}

/// Without its end, leading blanks and comment; nothing behind the last one.
std::optional<OdString> LineStyleFile::line()
{
    QByteArray line;
    bool begun = false;
    while (at_ < bytes_.size() || fill()) {
        const auto begin = bytes_.cbegin() + at_;
        if (std::exchange(afterReturn_, false) && *begin == '\n') {
            ++at_;
            continue;
        }
        begun = true;
        const auto end = std::find_if(begin, bytes_.cend(), [](char c) { return c == '\r' || c == '\n'; });
        const int length = static_cast<int>(end - begin);
        line.append(&*begin, std::min(length, kLongestLine - line.size()));
        at_ += length;
        if (end == bytes_.cend())
            continue;
        afterReturn_ = *end == '\r';
        ++at_;
        return withoutComment(decoded(line));
    }
    return begun ? std::optional(withoutComment(decoded(line))) : std::nullopt;
}

bool LineStyleFile::fill()
{
    bytes_ = file_.isOpen() ? file_.read(kPiece) : QByteArray();
    at_ = 0;
    return !bytes_.isEmpty();
}
