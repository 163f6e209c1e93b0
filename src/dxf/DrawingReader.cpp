#include "dxf/DrawingReader.h"

#include "dxf/Import.h"

#include <QBuffer>

#include <stdexcept>

namespace inkmacro::dxf {

namespace {

/// Tells the lines of places in a text, in whatever order they are asked for.
class LineCounter
{
public:
    explicit LineCounter(std::string_view text) : text_(text)
    {
        qint64 line = 1;
        for (std::size_t at = 0; at < text.size(); at += kPage) {
            lines_.push_back(line);
            line += ends(at, std::min(at + kPage, text.size()));
        }
    }

    /// Of what stands there, from 1.
    qint64 lineOf(std::size_t offset) const
    {
        const std::size_t page = offset / kPage;
        return page < lines_.size() ? lines_[page] + ends(page * kPage, offset) : 1;
    }

private:
    static constexpr std::size_t kPage = 4096;

    qint64 ends(std::size_t from, std::size_t to) const
    {
        return std::count(text_.begin() + static_cast<std::ptrdiff_t>(from),
                          text_.begin() + static_cast<std::ptrdiff_t>(to), '\n');
    }

    std::string_view text_;
    std::vector<qint64> lines_; ///< at the beginning of each page
};

} // namespace

bool looksLikeDrawing(std::string_view begin)
{
    const FileForm form = fileForm(begin);
    if (form != FileForm::Ascii)
        return true;
    GroupReader groups(begin, form);
    Group group;
    constexpr int comment = 999;
    return groups.next(group) && groups.strayLines() == 0 && (group.is(0, "SECTION") || group.code == comment);
}

Accounts readDrawing(Drawing& drawing, const ImportOptions& options, Recording& recording,
                     const ReadingProgress& progress)
{
    recording = Recording();
    Import import(drawing, *recording.database, options);
    QByteArray head = import.head();
    QBuffer lines(&head);
    lines.open(QIODevice::ReadOnly);
    if (const auto error = ReadFurther(lines, QStringLiteral("the drawing"), recording))
        throw std::logic_error(error->text().toStdString());
    const auto size = static_cast<qint64>(drawing.bytes().size());
    LineCounter counter(drawing.bytes());
    while (OdRxObjectPtr action = import.next()) {
        recording.actions.append(std::move(action));
        const std::size_t offset = import.offset();
        // The word for its kind stands in the line before.
        const qint64 line = drawing.form() == FileForm::Ascii ? counter.lineOf(offset) - 1 : recording.actions.length();
        recording.actionLines.push_back(std::max<qint64>(line, 1));
        if (progress)
            progress(static_cast<qint64>(offset), size);
    }
    return import.accounts();
}

} // namespace inkmacro::dxf
