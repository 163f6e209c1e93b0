// What the macros of a call do not carry, and where they are faulty.

#include "app/report.h"

#include "app/ExitStatus.h"
#include "app/console.h"
#include "app/valueText.h"
#include "host/kernel/CFxConversionNotes.h"
#include "recordfile/JsonOut.h"
#include "recordfile/SchemaDefinitions.h"

#include <QJsonDocument>
#include <QStringList>

#include <algorithm>
#include <array>
#include <span>
#include <string_view>
#include <utility>

namespace inkmacro {

using namespace recordfile;
using namespace std::string_view_literals;

namespace {

const char* const kDocumentKey = "conversions";

QString statusWord(int status)
{
    return status == kDone ? "converted" : status == kUnreadable ? "unreadable" : "failed";
}

} // namespace

QString pathOf(const CFxActionPlace& place)
{
    QStringList steps;
    for (std::size_t i = 1; i < place.size(); ++i)
        steps.append(QString("command.actions[%1]").arg(place[i]));
    return steps.join('.');
}

qint64 lineOf(const CFxActionPlace& place, const Recording& recording)
{
    return place.empty() ? 0 : recording.actionLines.at(place.front());
}

namespace {

/// A list of the report under its heading, in columns, the last one as wide as it is. Each row is made twice, so that
/// none is kept.
template<class Note, class Row>
void printList(const char* heading, const std::vector<Note>& list, Row row)
{
    if (list.empty())
        return;
    printOut(QString("  %1\n").arg(heading));
    std::array<int, 4> widths = {};
    for (const Note& note : list) {
        const QStringList cells = row(note);
        for (int i = 0; i < cells.size(); ++i)
            widths[static_cast<std::size_t>(i)] = std::max(widths[static_cast<std::size_t>(i)], cells[i].size());
    }
    for (const Note& note : list) {
        const QStringList cells = row(note);
        QString text = "   ";
        for (int i = 0; i < cells.size(); ++i)
            text += ' ' +
                    (i + 1 < cells.size() ? cells[i].leftJustified(widths[static_cast<std::size_t>(i)] + 1) : cells[i]);
        printOut(text + '\n');
    }
}

QStringList faultRow(const CFxFaultNote& fault)
{
    QString place = printable(fault.file.toQString());
    if (fault.line > 0)
        place += ':' + QString::number(fault.line);
    return {place, fault.mended ? "mended by --repair" : "not mended", printable(fault.operation.toQString()),
            printable(fault.reason.toQString())};
}

void printText(const Job& job, int status, const std::optional<Noted>& noted)
{
    QString result = noted ? countText(*noted->notes) : QString();
    if (status != kDone)
        result = result.isEmpty() ? statusWord(status) : statusWord(status) + ", " + result;
    else if (result.isEmpty())
        result = "nothing lost, no faults";
    printOut(
        QString("%1 to %2: %3: %4\n").arg(printable(job.input), targetName(*job.target), printable(job.macro), result));
    if (!noted)
        return;
    const auto row = [&](const CFxActionNote& note) {
        return QStringList{"line " + QString::number(lineOf(note.where, *noted->recording)), pathOf(note.where),
                           printable(note.what.toQString()), printable(note.reason.toQString())};
    };
    printList("lost", noted->notes->GetLosses(), row);
    printList("assumed", noted->notes->GetAssumptions(), row);
    printList("faults", noted->notes->GetFaults(), faultRow);
}

void add(JsonOut& out, std::string_view key, const QString& text)
{
    out.key(key);
    out.text(text);
}

/// One note a line; they are printed as they come, since a report may be longer than all that is in memory.
template<class Note, class Write>
void addList(JsonOut& out, std::string_view key, std::span<const Note> list, Write write)
{
    out.key(key);
    out.beginArray();
    constexpr int piece = 64 * 1024;
    for (const Note& note : list) {
        out.onNewLine();
        out.beginObject();
        write(note);
        out.endObject();
        if (out.bytes().size() < piece)
            continue;
        printOut(out.bytes());
        out.clear();
    }
    out.endArray();
}

void printJson(const Job& job, int status, const std::optional<Noted>& noted)
{
    JsonOut out(0);
    out.beginObject();
    add(out, "input", job.input);
    add(out, "target", targetName(*job.target));
    add(out, "macro", job.macro);
    out.key("project"sv);
    out.beginArray();
    for (const QString& file : job.projectFiles())
        out.text(file);
    out.endArray();
    add(out, "status", statusWord(status));
    const auto addActionNotes = [&](std::string_view key, std::span<const CFxActionNote> notes) {
        addList(out, key, notes, [&](const CFxActionNote& note) {
            out.key("line"sv);
            out.integer(lineOf(note.where, *noted->recording));
            add(out, "path", pathOf(note.where));
            add(out, "what", note.what.toQString());
            add(out, "reason", note.reason.toQString());
        });
    };
    addActionNotes("losses", noted ? std::span(noted->notes->GetLosses()) : std::span<const CFxActionNote>());
    addActionNotes("assumed", noted ? std::span(noted->notes->GetAssumptions()) : std::span<const CFxActionNote>());
    const auto faults = noted ? std::span(noted->notes->GetFaults()) : std::span<const CFxFaultNote>();
    addList(out, "faults", faults, [&](const CFxFaultNote& fault) {
        add(out, "file", fault.file.toQString());
        out.key("line"sv);
        out.integer(fault.line);
        add(out, "operation", fault.operation.toQString());
        add(out, "reason", fault.reason.toQString());
        out.key("mended"sv);
        out.boolean(fault.mended);
    });
    out.endObject();
    printOut(out.bytes());
}

QJsonObject actionNoteSchema(const char* what)
{
    ObjectSchema note;
    note.add("line", "the line of the recording, from 1", typeSchema("integer"), true);
    note.add("path", "the place of the action within the line, such as command.actions[2]; empty for the whole line",
             typeSchema("string"), true);
    note.add("what", what, typeSchema("string"), true);
    note.add("reason", "why", typeSchema("string"), true);
    return note.json();
}

QJsonObject faultSchema()
{
    ObjectSchema fault;
    fault.add("file", "the file's name, without folders", typeSchema("string"), true);
    fault.add("line", "the line of the file, from 1; 0 when it is not known", typeSchema("integer"), true);
    fault.add("operation", "what writes the place", typeSchema("string"), true);
    fault.add("reason", "why its own language or host rejects or misreads it", typeSchema("string"), true);
    fault.add("mended", "whether --repair writes the macro without it", typeSchema("boolean"), true);
    return fault.json();
}

} // namespace

ReportDocument::ReportDocument(ReportForm form) : form_(form)
{
    if (form_ == ReportForm::Json)
        printOut(QString("{\"%1\":[").arg(kDocumentKey));
}

ReportDocument::~ReportDocument()
{
    if (form_ == ReportForm::Json)
        printOut(QByteArray("\n]}\n"));
}

void ReportDocument::beginPart()
{
    if (form_ == ReportForm::Json)
        printOut(QByteArray(std::exchange(first_, false) ? "\n" : ",\n"));
}

void printPart(const Job& job, int status, ReportForm form, const std::optional<Noted>& noted)
{
    if (form == ReportForm::Json)
        printJson(job, status, noted);
    else
        printText(job, status, noted);
}

QString countText(const CFxConversionNotes& notes)
{
    QStringList counts;
    if (const auto losses = static_cast<int>(notes.GetLossCount()); losses > 0)
        counts.append(counted(losses, "step", "steps") + " lost");
    if (const auto assumptions = static_cast<int>(notes.GetAssumptionCount()); assumptions > 0)
        counts.append(counted(assumptions, "value", "values") + " assumed");
    if (const auto faults = static_cast<int>(notes.GetFaultCount()); faults > 0)
        counts.append(counted(faults, "fault", "faults"));
    return counts.join(", ");
}

QByteArray reportSchema()
{
    ObjectSchema conversion;
    conversion.add("input", "the recording; - is standard input", typeSchema("string"), true);
    conversion.add("target", "the language of the macro", typeSchema("string"), true);
    conversion.add("macro", "the macro file", typeSchema("string"), true);
    conversion.add("project", "the files of the project around it", listSchema(typeSchema("string")), true);
    conversion.add("status", "the files are there only when it is converted",
                   enumSchema({statusWord(kDone), statusWord(kFailed), statusWord(kUnreadable)}), true);
    conversion.add("losses", "what the user did and the macro does not",
                   listSchema(actionNoteSchema("what is lost: an action, an object or a property of one")), true);
    conversion.add("assumed", "values that the macro states and the recording does not hold, or holds in another form",
                   listSchema(actionNoteSchema("what has the value: an action or a property of an object")), true);
    conversion.add("faults", "where the macro or its project is rejected or misread by its own language or host",
                   listSchema(faultSchema()), true);
    ObjectSchema document;
    document.add(kDocumentKey, "recording by recording, and within one target by target", listSchema(conversion.json()),
                 true);
    QJsonObject schema = document.json();
    schema.insert("$schema", "https://json-schema.org/draft/2020-12/schema");
    schema.insert("title", "What macros lack and where they are faulty");
    return QJsonDocument(schema).toJson();
}

} // namespace inkmacro
