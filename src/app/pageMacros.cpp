#include "app/pageMacros.h"

#include "app/ExitStatus.h"
#include "app/StagedResult.h"
#include "app/valueText.h"
#include "view/Columns.h"
#include "view/differences.h"

#include <QFileInfo>
#include <QJsonArray>

#include <algorithm>
#include <utility>

namespace inkmacro {

namespace {

QJsonObject faultJson(const CFxFaultNote& fault)
{
    QJsonArray lines;
    for (const std::uint32_t line : fault.lines)
        lines.append(static_cast<qint64>(line));
    return {{"operation", fault.operation.toQString()},
            {"reason", fault.reason.toQString()},
            {"file", fault.file.toQString()},
            {"mended", fault.mended},
            {"lines", lines}};
}

QString row(const QStringList& cells)
{
    QString text = "<tr>";
    for (const QString& cell : cells)
        text += "<td>" + view::escapedForPage(cell) + "</td>";
    return text + "</tr>\n";
}

QString countsOf(const PageMacro& macro)
{
    if (macro.outcome.status != kDone || !macro.part)
        return macro.outcome.error.isEmpty() ? QStringLiteral("failed") : macro.outcome.error;
    const QString counts = countText(macro.part->counts());
    return counts.isEmpty() ? QStringLiteral("nothing lost, no faults") : counts;
}

} // namespace

PageNotes::PageNotes(const std::vector<PageTarget>& targets, const StepPlaces& places)
{
    table_ = "<table>\n<tr><th>Macro</th><th>As recorded</th><th>Repaired</th></tr>\n";
    for (const PageTarget& target : targets) {
        const auto title = QString::fromUtf8(target.row->title.data(), static_cast<int>(target.row->title.size()));
        const QJsonObject recorded = formOf(target.recorded, places);
        const QJsonObject repaired = formOf(target.repaired, places);
        table_ += row({title, countsOf(target.recorded), countsOf(target.repaired)});
        targets_.append(QJsonObject{{"name", targetName(*target.row)},
                                    {"title", title},
                                    {"file", QFileInfo(target.recorded.job->macro).fileName()},
                                    {"forms", QJsonObject{{"recorded", recorded}, {"repaired", repaired}}}});
    }
    table_ += "</table>\n";
    if (notes_.isEmpty())
        return;
    table_ += "<table>\n<tr><th>Line</th><th>Place</th><th>Kind</th><th>What</th><th>Reason</th></tr>\n";
    constexpr int most = 1000;
    for (int i = 0; i < std::min(most, notes_.size()); ++i) {
        const QJsonObject note = notes_[i].toObject();
        table_ += row({QString::number(note["line"].toInt()), note["path"].toString(), note["kind"].toString(),
                       note["what"].toString(), note["reason"].toString()});
    }
    if (notes_.size() > most)
        table_ += row({{}, {}, {}, QString("and %1 more").arg(notes_.size() - most), {}});
    table_ += "</table>\n";
}

QJsonObject PageNotes::formOf(const PageMacro& macro, const StepPlaces& places)
{
    QJsonArray notes;
    QJsonArray faults;
    if (macro.part) {
        for (const auto& [list, kind] :
             {std::pair(ReportPart::List::Losses, "loss"), std::pair(ReportPart::List::Assumptions, "assumption")})
            macro.part->forEach(list, [&, kind = kind](const PlacedNote& note) {
                const QString key =
                    QStringList{kind, QString::number(note.line), note.path, note.what, note.reason}.join(QChar(0));
                auto number = numbers_.constFind(key);
                if (number == numbers_.constEnd()) {
                    number = numbers_.insert(key, notes_.size());
                    notes_.append(QJsonObject{{"kind", kind},
                                              {"step", places.stepAt(note.line, note.path)},
                                              {"line", note.line},
                                              {"path", note.path},
                                              {"what", note.what},
                                              {"reason", note.reason}});
                }
                notes.append(*number);
            });
        for (const CFxFaultNote& fault : macro.part->faults())
            faults.append(faultJson(fault));
    }
    const bool done = macro.outcome.status == kDone;
    return {{"status", macro.outcome.status},
            {"error", macro.outcome.error},
            {"notes", notes},
            {"faults", faults},
            {"hasMap", done},
            {"text", "macro." + targetName(*macro.job->target)}};
}

namespace {

void addMap(const QByteArray& name, const std::vector<view::LineRange>& ranges, view::PageFile& page,
            QJsonObject& index)
{
    std::vector<std::uint32_t> lines;
    std::vector<std::int32_t> steps;
    std::vector<std::uint8_t> parts;
    for (const view::LineRange& range : ranges) {
        lines.push_back(range.count);
        steps.push_back(range.step);
        parts.push_back(range.part);
    }
    view::Columns columns;
    columns.add("lines", lines);
    columns.addDeltas("step", steps);
    columns.add("part", parts);
    view::addColumns(name, columns, page, index);
}

void addDifferences(const QByteArray& target, const view::MacroLines& recorded, const view::MacroLines& repaired,
                    view::PageFile& page, QJsonObject& index)
{
    const std::vector<view::Hunk> hunks = view::differencesOf(recorded, repaired);
    if (hunks.empty())
        return;
    std::vector<std::int32_t> recordedFirst;
    std::vector<std::uint32_t> recordedCount;
    std::vector<std::int32_t> repairedFirst;
    std::vector<std::uint32_t> repairedCount;
    std::vector<std::int32_t> steps;
    QByteArray text;
    int at = 0;
    std::uint32_t line = 1;
    const auto endOfLine = [&repaired](int from) {
        const int end = repaired.text.indexOf('\n', from);
        return end < 0 ? repaired.text.size() : end + 1;
    };
    for (const view::Hunk& hunk : hunks) {
        recordedFirst.push_back(static_cast<std::int32_t>(hunk.recordedFirst));
        recordedCount.push_back(hunk.recordedCount);
        repairedFirst.push_back(static_cast<std::int32_t>(hunk.repairedFirst));
        repairedCount.push_back(hunk.repairedCount);
        steps.push_back(hunk.step);
        for (; line < hunk.repairedFirst; ++line)
            at = endOfLine(at);
        const int begin = at;
        for (; line < hunk.repairedFirst + hunk.repairedCount; ++line)
            at = endOfLine(at);
        text += repaired.text.mid(begin, at - begin);
    }
    view::Columns columns;
    columns.addDeltas("recordedFirst", recordedFirst);
    columns.add("recordedCount", recordedCount);
    columns.addDeltas("repairedFirst", repairedFirst);
    columns.add("repairedCount", repairedCount);
    columns.addDeltas("step", steps);
    view::addColumns("repair." + target, columns, page, index);
    page.addIsland("repair." + target + ".text", text);
}

view::MacroLines linesOf(const PageMacro& macro)
{
    if (macro.outcome.status != kDone)
        return {};
    return {readWhole(macro.job->macro), readStepMap(Job::stepsOf(macro.job->macro)).ranges};
}

} // namespace

void addMacros(const PageTarget& target, view::PageFile& page, QJsonObject& index)
{
    const QByteArray name = targetName(*target.row).toLatin1();
    const view::MacroLines recorded = linesOf(target.recorded);
    const view::MacroLines repaired = linesOf(target.repaired);
    const bool hasRecorded = target.recorded.outcome.status == kDone;
    const bool hasRepaired = target.repaired.outcome.status == kDone;
    if (hasRecorded || hasRepaired)
        page.addIsland("macro." + name, hasRecorded ? recorded.text : repaired.text);
    if (hasRecorded && hasRepaired)
        addDifferences(name, recorded, repaired, page, index);
    if (hasRecorded)
        addMap("map." + name + ".recorded", recorded.ranges, page, index);
    if (hasRepaired)
        addMap("map." + name + ".repaired", repaired.ranges, page, index);
}

} // namespace inkmacro
