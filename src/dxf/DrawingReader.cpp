#include "dxf/DrawingReader.h"

#include "dxf/Import.h"

#include <QBuffer>

#include <stdexcept>

namespace inkmacro::dxf {

namespace {

/// Tells the lines of places in a text that come in ascending order, or nearly so.
class LineCounter
{
public:
    explicit LineCounter(std::string_view text) : text_(text) {}

    /// Of what stands there, from 1.
    qint64 lineOf(std::size_t offset)
    {
        if (offset < at_) {
            at_ = 0;
            line_ = 1;
        }
        const std::string_view passed = text_.substr(at_, offset - at_);
        line_ += std::count(passed.begin(), passed.end(), '\n');
        at_ = offset;
        return line_;
    }

private:
    std::string_view text_;
    std::size_t at_ = 0;
    qint64 line_ = 1;
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
        recording.actionLines.push_back(drawing.form() == FileForm::Ascii ? counter.lineOf(offset) : 0);
        if (progress)
            progress(static_cast<qint64>(offset), size);
    }
    return import.accounts();
}

} // namespace inkmacro::dxf
