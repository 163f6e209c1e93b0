// What is wrong with recordings, or probably not what was meant.

#include "app/checking.h"

#include "app/ExitStatus.h"
#include "app/StagingFolder.h"
#include "app/actionCount.h"
#include "app/console.h"
#include "app/conversion.h"
#include "app/notePlaces.h"
#include "app/reading.h"
#include "app/valueText.h"
#include "host/kernel/CFxServices.h"
#include "recordfile/JsonOut.h"
#include "statements/hostSettings.h"

#include <algorithm>
#include <map>

namespace inkmacro {

using namespace std::string_view_literals;

namespace {

constexpr std::size_t kMostErrors = 20;
constexpr std::size_t kMostWarnings = 20;

/// Of a place in a recording; with the file's name it reads as an error does.
struct Warning
{
    qint64 line;
    QString path; ///< empty for the whole line
    QString message;

    QString text(const QString& file) const
    {
        return QString("%1:%2: %3warning: %4").arg(file).arg(line).arg(path.isEmpty() ? path : path + ": ", message);
    }
};

using Warnings = std::vector<Warning>;

/// What a conversion notes says most of it: VBA has the most statements, and a macro of it is a single file.
void addConversionNotes(const Recording& recording, Warnings& warnings)
{
    const TargetRow& target = *std::ranges::find(targetTable, Target::Vba, &TargetRow::target);
    const std::string name = "check.bas";
    const StagingFolder folder(std::filesystem::temp_directory_path(), {name});
    CFxConversionNotes& notes = GetFxSystemServices()->Notes();
    notes.KeepAll(true);
    GetFxSystemServices()->SetInt16(kIgnoreFaults, 1);
    runModule(target, QString::fromStdString(folder.file(name).string()), recording, {});
    for (const auto* const list : {&notes.GetLosses(), &notes.GetAssumptions()})
        for (const CFxActionNote& note : *list)
            warnings.push_back({lineOf(note.where, recording), pathOf(note.where),
                                note.what.toQString() + ": " + note.reason.toQString()});
}

/// Goes through the actions, those within commands too.
class Handles
{
public:
    Handles(const Recording& recording, Warnings& warnings) : recording_(recording), warnings_(warnings) {}

    void addDoubled()
    {
        for (unsigned i = 0; i < recording_.actions.length(); ++i)
            look(recording_.actions[i], {i});
    }

private:
    void look(const OdRxObjectPtr& action, const CFxActionPlace& place)
    {
        if (const auto command = odrxQuery<CFxUserCommand>(action.get())) {
            const CFxActionArray& children = command->GetActions();
            for (unsigned i = 0; i < children.length(); ++i) {
                CFxActionPlace within = place;
                within.push_back(i);
                look(children[i], within);
            }
        } else if (const auto added = odrxQuery<CFxObjectAdded>(action.get())) {
            const qint64 line = lineOf(place, recording_);
            const auto [first, isNew] = lines_.try_emplace(added->GetHandle(), line);
            if (!isNew)
                warnings_.push_back({line, pathOf(place),
                                     QString("handle %1 has been added in line %2 already")
                                         .arg(added->GetHandle().ascii())
                                         .arg(first->second)});
        }
    }

    const Recording& recording_;
    Warnings& warnings_;
    std::map<OdDbHandle, qint64> lines_;
};

Warnings warningsOf(const Recording& recording)
{
    Warnings warnings;
    Handles(recording, warnings).addDoubled();
    addConversionNotes(recording, warnings);
    std::ranges::stable_sort(warnings, {}, &Warning::line);
    return warnings;
}

struct Checked
{
    QString file;
    int actions = 0;
    QString actionText;
    std::vector<RecordingError> errors;
    Warnings warnings;
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

void addPlace(recordfile::JsonOut& out, qint64 line, const QString& path, const QString& message)
{
    out.onNewLine();
    out.beginObject();
    out.key("line"sv);
    out.integer(line);
    out.key("path"sv);
    out.text(path);
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
            addPlace(out, warning.line, warning.path, warning.message);
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
