// What is wrong with recordings, or probably not what was meant.

#include "app/checking.h"

#include "app/ExitStatus.h"
#include "app/actionCount.h"
#include "app/console.h"
#include "app/reading.h"
#include "app/valueText.h"
#include "app/warnings.h"
#include "recordfile/JsonOut.h"

#include <algorithm>

namespace inkmacro {

using namespace std::string_view_literals;

namespace {

constexpr std::size_t kMostErrors = 20;
constexpr std::size_t kMostWarnings = 20;

struct Checked
{
    QString file;
    int actions = 0;
    QString actionText;
    std::vector<RecordingError> errors;
    std::vector<Warning> warnings;
};

Checked check(const QString& file)
{
    Recording recording;
    Checked checked{file, 0, {}, readWithErrors(file, recording, kMostErrors), {}};
    checked.actions = static_cast<int>(recording.actions.length());
    checked.actionText = actionCountText(recording.actions);
    if (checked.errors.empty())
        checked.warnings = warningsOf(recording);
    return checked;
}

void printText(const Checked& checked)
{
    const QString name = checked.file == "-" ? QStringLiteral("standard input") : checked.file;
    for (const RecordingError& error : checked.errors)
        printLine(error.text());
    for (std::size_t i = 0; i < std::min(checked.warnings.size(), kMostWarnings); ++i)
        printLine(checked.warnings[i].text(name));
    const auto more = static_cast<int>(checked.warnings.size()) - static_cast<int>(kMostWarnings);
    if (more > 0)
        printLine(QString("%1: and %2 more; --json has them all").arg(name, counted(more, "warning", "warnings")));
    if (!checked.errors.empty())
        return;
    QString result = "ok, " + checked.actionText;
    if (!checked.warnings.empty())
        result += ", " + counted(static_cast<int>(checked.warnings.size()), "warning", "warnings");
    printOut(QString("%1: %2\n").arg(printable(checked.file), result));
}

/// Only warnings are of a kind.
void addPlace(recordfile::JsonOut& out, qint64 line, const QString& path, const QString& message,
              const QString& kind = {})
{
    out.onNewLine();
    out.beginObject();
    out.key("line"sv);
    out.integer(line);
    out.key("path"sv);
    out.text(path);
    if (!kind.isEmpty()) {
        out.key("kind"sv);
        out.text(kind);
    }
    out.key("message"sv);
    out.text(message);
    out.endObject();
}

void printJson(const std::vector<Checked>& all)
{
    recordfile::JsonOut out(0);
    out.beginObject();
    out.key("recordings"sv);
    out.beginArray();
    for (const Checked& checked : all) {
        out.onNewLine();
        out.beginObject();
        out.key("file"sv);
        out.text(checked.file);
        out.key("actions"sv);
        out.integer(checked.actions);
        out.key("errors"sv);
        out.beginArray();
        for (const RecordingError& error : checked.errors)
            addPlace(out, error.line, error.path, error.message);
        out.endArray();
        out.key("warnings"sv);
        out.beginArray();
        for (const Warning& warning : checked.warnings)
            addPlace(out, warning.line, warning.path, warning.message, warning.kind);
        out.endArray();
        out.endObject();
    }
    out.endArray();
    out.endObject();
    out.endLine();
    printOut(out.bytes());
}

} // namespace

int checkRecordings(const QStringList& files, const CheckMode& mode)
{
    std::vector<Checked> all;
    int status = kDone;
    for (const QString& file : files) {
        Checked checked = check(file);
        if (!checked.errors.empty())
            status = kUnreadable;
        else if (mode.strict && !checked.warnings.empty() && status == kDone)
            status = kFailed;
        if (mode.json)
            all.push_back(std::move(checked));
        else
            printText(checked);
    }
    if (mode.json)
        printJson(all);
    return status;
}

} // namespace inkmacro
