// What the macros of a call do not carry, and where they are faulty.

#include "app/report.h"

#include "app/ExitStatus.h"
#include "app/console.h"
#include "app/reportSchema.h"
#include "app/valueText.h"
#include "recordfile/JsonOut.h"

#include <QCryptographicHash>
#include <QHash>
#include <QStringList>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace inkmacro {

using namespace recordfile;
using namespace std::string_view_literals;

using List = ReportPart::List;

namespace {

const char* titleOf(List list)
{
    return list == List::Losses ? "lost" : "assumed";
}

/// Of fixed length, however long the note is: there may be as many as a recording has actions.
QByteArray keyOf(const PlacedNote& note)
{
    QCryptographicHash hash(QCryptographicHash::Md5);
    hash.addData(QStringList{QString::number(note.line), note.path, note.what, note.reason}.join(QChar(0)).toUtf8());
    return hash.result();
}

} // namespace

/// The losses and assumptions that all of several macros have.
class CommonNotes
{
public:
    /// Of parts in no particular number; of fewer than two nothing is common.
    explicit CommonNotes(const std::vector<ReportPart*>& parts)
    {
        if (parts.size() < 2)
            return;
        for (const List list : {List::Losses, List::Assumptions}) {
            QHash<QByteArray, std::size_t> holders;
            for (std::size_t i = 0; i < parts.size(); ++i)
                parts[i]->forEach(list, [&](const PlacedNote& note) {
                    std::size_t& held = holders[keyOf(note)];
                    // Only who has been in all parts so far can be in all.
                    if (held == i)
                        ++held;
                });
            for (auto holder = holders.begin(); holder != holders.end();)
                holder = holder.value() == parts.size() ? std::next(holder) : holders.erase(holder);
            keys(list) = std::move(holders);
        }
    }

    bool has(List list) const { return !of(list).isEmpty(); }
    bool has(List list, const PlacedNote& note) const { return has(list) && of(list).contains(keyOf(note)); }

private:
    QHash<QByteArray, std::size_t>& keys(List list) { return list == List::Losses ? losses_ : assumptions_; }
    const QHash<QByteArray, std::size_t>& of(List list) const { return list == List::Losses ? losses_ : assumptions_; }

    QHash<QByteArray, std::size_t> losses_;
    QHash<QByteArray, std::size_t> assumptions_;
};

namespace {

/// A list under its heading, in columns, the last one as wide as it is. `rows` gives each row to what it is called with
/// and is called twice, so that none is kept.
template<class Rows, class Print>
void printList(const QString& heading, Rows rows, Print print)
{
    std::array<int, 5> widths = {};
    rows([&](const QStringList& cells) {
        for (int i = 0; i < cells.size(); ++i)
            widths[static_cast<std::size_t>(i)] = std::max(widths[static_cast<std::size_t>(i)], cells[i].size());
    });
    bool first = true;
    rows([&](const QStringList& cells) {
        QString text = std::exchange(first, false) ? QString("  %1\n   ").arg(heading) : "   ";
        for (int i = 0; i < cells.size(); ++i)
            text += ' ' +
                    (i + 1 < cells.size() ? cells[i].leftJustified(widths[static_cast<std::size_t>(i)] + 1) : cells[i]);
        print(text + '\n');
    });
}

QStringList noteRow(const PlacedNote& note)
{
    return {"line " + QString::number(note.line), note.path, printable(note.what), printable(note.reason)};
}

QStringList faultRow(const CFxFaultNote& fault)
{
    QString place = printable(fault.file.toQString());
    if (fault.lines.front() > 0)
        place += ':' + QString::number(fault.lines.front());
    return {place, counted(static_cast<qint64>(fault.lines.size()), "place", "places"),
            fault.mended ? "mended by --repair" : "not mended", printable(fault.operation.toQString()),
            printable(fault.reason.toQString())};
}

void add(JsonOut& out, std::string_view key, const QString& text)
{
    out.key(key);
    out.text(text);
}

void addFault(JsonOut& out, const CFxFaultNote& fault)
{
    out.onNewLine();
    out.beginObject();
    add(out, "file", fault.file.toQString());
    out.key("line"sv);
    out.integer(fault.lines.front());
    out.key("count"sv);
    out.integer(static_cast<qint64>(fault.lines.size()));
    out.key("lines"sv);
    out.beginArray();
    for (const std::uint32_t line : fault.lines)
        out.integer(line);
    out.endArray();
    add(out, "operation", fault.operation.toQString());
    add(out, "reason", fault.reason.toQString());
    out.key("mended"sv);
    out.boolean(fault.mended);
    out.endObject();
}

} // namespace

ReportDocument::ReportDocument(const Telling& telling, const StagingFolder* home)
    : form_(telling.report), path_(telling.reportFile.value_or(QString()))
{
    if (telling.reportFile) {
        result_.emplace(QStringList(path_), home);
        file_.setFileName(result_->firstFile());
        if (!file_.open(QIODevice::WriteOnly))
            throw PlacingError(path_, file_.errorString());
    }
    if (form_ == ReportForm::Json)
        print(QString("{\"%1\":%2,\"%3\":\"%4\",\"%5\":[")
                  .arg(kReportVersionKey, QString::number(kReportVersion), kProgramVersionKey, INKMACRO_VERSION,
                       kConversionsKey));
}

void ReportDocument::print(const QByteArray& bytes)
{
    if (result_)
        file_.write(bytes);
    else
        printOut(bytes);
}

void ReportDocument::add(const Job& job, std::unique_ptr<ReportPart> part, const Outcome& otherwise)
{
    if (form_ == ReportForm::None)
        return;
    if (part && !part->beginReading())
        part.reset();
    const bool whole = part != nullptr;
    Conversion conversion{&job, std::move(part), otherwise};
    if (whole)
        conversion.outcome = conversion.part->outcome();
    if (form_ == ReportForm::Json)
        return printJson(conversion);
    if (!waiting_.empty() && waiting_.front().job->input != job.input)
        printRecording();
    waiting_.push_back(std::move(conversion));
}

int ReportDocument::finish(int status)
{
    printRecording();
    if (form_ == ReportForm::Json)
        print(QByteArray("\n]}\n"));
    if (!result_)
        return status;
    try {
        if (!file_.flush() || file_.error() != QFileDevice::NoError)
            throw PlacingError(path_, file_.errorString());
        file_.close();
        result_->place();
        return status;
    } catch (const PlacingError& error) {
        complain("the report: " + error.message());
        return std::max<int>(status, kFailed);
    }
}

/// One note a line; they are printed as they come.
void ReportDocument::printJson(const Conversion& conversion)
{
    constexpr int piece = 64 * 1024;
    const auto& [job, part, outcome] = conversion;
    JsonOut out(0);
    const auto addNotes = [&, &part = part](std::string_view key, List list) {
        out.key(key);
        out.beginArray();
        if (part)
            part->forEach(list, [&](const PlacedNote& note) {
                out.onNewLine();
                out.beginObject();
                out.key("line"sv);
                out.integer(note.line);
                inkmacro::add(out, "path", note.path);
                inkmacro::add(out, "what", note.what);
                inkmacro::add(out, "reason", note.reason);
                out.endObject();
                if (out.bytes().size() < piece)
                    return;
                print(out.bytes());
                out.clear();
            });
        out.endArray();
    };
    print(QByteArray(std::exchange(first_, false) ? "\n" : ",\n"));
    out.beginObject();
    inkmacro::add(out, "input", job->input);
    inkmacro::add(out, "target", targetName(*job->target));
    inkmacro::add(out, "status", statusWord(outcome.status));
    if (!outcome.error.isEmpty())
        inkmacro::add(out, "error", outcome.error);
    if (!outcome.files.isEmpty())
        inkmacro::add(out, "macro", outcome.files.front());
    QStringList project = outcome.files.mid(1);
    if (const QString map = Job::mapOf(job->macro); project.removeOne(map))
        inkmacro::add(out, "map", map);
    out.key("project"sv);
    out.beginArray();
    for (const QString& file : project)
        out.text(file);
    out.endArray();
    if (part && !part->drawingMembers().isEmpty()) {
        print(out.bytes() + ',' + part->drawingMembers());
        out.clear();
    }
    addNotes("losses", List::Losses);
    addNotes("assumed", List::Assumptions);
    out.key("faults"sv);
    out.beginArray();
    if (part)
        for (const CFxFaultNote& fault : part->faults())
            addFault(out, fault);
    out.endArray();
    out.endObject();
    print(out.bytes());
}

/// What all macros lack stands ahead of them.
void ReportDocument::printRecording()
{
    std::vector<ReportPart*> parts;
    for (const Conversion& conversion : waiting_)
        if (conversion.part && conversion.outcome.status == kDone)
            parts.push_back(conversion.part.get());
    const CommonNotes common(parts);
    if (common.has(List::Losses) || common.has(List::Assumptions))
        print(printable(waiting_.front().job->input) + '\n');
    for (const List list : {List::Losses, List::Assumptions})
        if (common.has(list))
            printList(
                QString("%1 in each macro").arg(titleOf(list)),
                [&](const auto& use) {
                    parts.front()->forEach(list, [&](const PlacedNote& note) {
                        if (common.has(list, note))
                            use(noteRow(note));
                    });
                },
                [this](const QString& line) { print(line); });
    for (const Conversion& conversion : waiting_)
        printText(conversion, common);
    waiting_.clear();
}

void ReportDocument::printText(const Conversion& conversion, const CommonNotes& common)
{
    const auto& [job, part, outcome] = conversion;
    QStringList parts{printable(job->input) + " to " + targetName(*job->target)};
    if (!outcome.files.isEmpty())
        parts.append(printable(outcome.files.front()));
    QString result = part ? countText(part->counts()) : QString();
    if (outcome.status != kDone)
        result = statusWord(outcome.status) + (result.isEmpty() ? result : ", " + result);
    parts.append(result.isEmpty() ? "nothing lost, no faults" : result);
    if (!outcome.error.isEmpty())
        parts.append(printable(outcome.error));
    print(parts.join(": ") + '\n');
    if (!part)
        return;
    const auto printLine = [this](const QString& line) { print(line); };
    if (!part->drawingLines().isEmpty())
        printLine("  the drawing\n    " + part->drawingLines().join("\n    ") + '\n');
    const bool sharesNotes = outcome.status == kDone;
    for (const List list : {List::Losses, List::Assumptions})
        printList(
            titleOf(list) + QString(sharesNotes && common.has(list) ? " besides" : ""),
            [&, &part = part](const auto& use) {
                part->forEach(list, [&](const PlacedNote& note) {
                    if (!sharesNotes || !common.has(list, note))
                        use(noteRow(note));
                });
            },
            printLine);
    printList(
        "faults",
        [&part = part](const auto& use) {
            for (const CFxFaultNote& fault : part->faults())
                use(faultRow(fault));
        },
        printLine);
}

} // namespace inkmacro
