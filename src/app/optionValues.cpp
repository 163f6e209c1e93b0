#include "app/optionValues.h"

#include "recordfile/nearestName.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace inkmacro {

namespace {

QString codeOf(const TargetRow& row)
{
    return QString::number(static_cast<int>(row.target));
}

/// A text of each target.
QStringList ofTargets(QString (*text)(const TargetRow&))
{
    QStringList texts;
    for (const TargetRow& row : targetTable)
        texts.append(text(row));
    return texts;
}

QString knownTargets()
{
    const auto nameAndCode = [](const TargetRow& row) { return QString("%1 (%2)").arg(targetName(row), codeOf(row)); };
    return ofTargets(nameAndCode).join(", ") + ", all";
}

std::vector<const TargetRow*> rowsOf(const QString& word)
{
    const QString name = word.toLower();
    std::vector<const TargetRow*> rows;
    for (const TargetRow& row : targetTable)
        if (name == "all" || name == targetName(row) || name == codeOf(row))
            rows.push_back(&row);
    if (!rows.empty())
        return rows;
    const QString meant = didYouMean(word, targetNames() + QStringList("all"));
    throw WrongUse(
        QString("\"%1\" is no target%2").arg(word, meant.isEmpty() ? "; known are " + knownTargets() : meant));
}

} // namespace

QString targetName(const TargetRow& row)
{
    return QString::fromLatin1(row.name.data(), static_cast<int>(row.name.size()));
}

QStringList targetNames()
{
    return ofTargets(targetName);
}

void takeTargets(CommandLine& line, const QString& list)
{
    for (const QString& word : list.split(','))
        for (const TargetRow* row : rowsOf(word.trimmed()))
            if (std::find(line.targets.begin(), line.targets.end(), row) == line.targets.end())
                line.targets.push_back(row);
}

namespace {

void refuseEmptyPath(const QString& path)
{
    if (path.isEmpty())
        throw WrongUse("a path is expected, and it is empty");
}

} // namespace

void takeOutput(CommandLine& line, const QString& path)
{
    refuseEmptyPath(path);
    line.output = path;
}

void takeSince(CommandLine& line, const QString& path)
{
    refuseEmptyPath(path);
    if (path == "-")
        throw WrongUse("the older drawing must be a file, not standard input");
    line.since = path;
}

void takeLayers(CommandLine& line, const QString& list)
{
    for (const QString& layer : list.split(',')) {
        if (layer.trimmed().isEmpty())
            throw WrongUse(QString("a name is empty in \"%1\"").arg(list));
        line.import.layers.append(layer.trimmed());
    }
}

void takeTolerance(CommandLine& line, const QString& number)
{
    bool isNumber = false;
    line.import.tolerance = number.toDouble(&isNumber);
    if (!isNumber || !(line.import.tolerance > 0) || line.import.tolerance > 1)
        throw WrongUse(QString("\"%1\" is no number above 0 and up to 1").arg(number));
}

void takeMacro(CommandLine& line, const QString& path)
{
    refuseEmptyPath(path);
    if (path == "-")
        throw WrongUse("the macro must be a file, not standard input");
    line.macro = path;
}

QStringList recordingLanguages()
{
    QStringList codes;
    for (const TargetRow& row : targetTable)
        if (isRecorders(row.target))
            codes.append(codeOf(row));
    return codes;
}

void takeRecordingLanguage(CommandLine& line, const QString& number)
{
    line.host.recordingLanguage = number.toInt();
}

void takeLineStyles(CommandLine& line, const QString& path)
{
    if (!QFileInfo(path).isDir())
        throw WrongUse(QString("\"%1\" is not a directory").arg(path));
    line.host.lineStyles = path;
}

QStringList reportForms()
{
    return {"json", "text"};
}

void takeReport(CommandLine& line, const QString& form)
{
    line.telling.report = form == "text" ? ReportForm::Text : ReportForm::Json;
}

void takeReportFile(CommandLine& line, const QString& path)
{
    if (path.isEmpty() || path.endsWith('/'))
        throw WrongUse(QString("a file is expected, and \"%1\" is none").arg(path));
    if (path == "-")
        throw WrongUse("the report goes to standard output by --report alone");
    line.telling.reportFile = path;
    if (line.telling.report == ReportForm::None)
        line.telling.report = ReportForm::Json;
}

QStringList noteKinds()
{
    return {"loss", "assumed", "fault"};
}

void takeFailOn(CommandLine& line, const QString& list)
{
    for (const QString& word : list.split(',')) {
        const QString kind = word.trimmed();
        checkWord(kind, noteKinds());
        line.telling.failsOnLoss |= kind == "loss";
        line.telling.failsOnAssumption |= kind == "assumed";
        line.telling.failsOnFault |= kind == "fault";
    }
}

void takeHandle(CommandLine& line, const QString& text)
{
    static const QRegularExpression digits("\\A[0-9A-Fa-f]{1,16}\\z");
    line.handle = OdDbHandle(text.toULongLong(nullptr, 16));
    if (!digits.match(text).hasMatch() || line.handle.isNull())
        throw WrongUse(QString("\"%1\" is not a handle, which is a hexadecimal number").arg(text));
}

void takeDepth(CommandLine& line, const QString& text)
{
    static const QRegularExpression digits("\\A[0-9]+\\z");
    if (!digits.match(text).hasMatch())
        throw WrongUse(QString("\"%1\" is not a number of levels, 0 or more").arg(text));
    bool fits = false;
    line.depth = text.toInt(&fits);
    if (!fits)
        line.depth = std::numeric_limits<int>::max();
}

void takeHostCommand(CommandLine& line, const QString& name)
{
    line.hostCommand = name;
}

void checkWord(const QString& text, const QStringList& words)
{
    constexpr int few = 12;
    if (!words.contains(text) && words.size() > few)
        throw WrongUse(
            QString("\"%1\" is none of the %2 known names%3").arg(text).arg(words.size()).arg(didYouMean(text, words)));
    if (!words.contains(text))
        throw WrongUse(QString("\"%1\" is none of %2%3").arg(text, words.join(", "), didYouMean(text, words)));
}

} // namespace inkmacro
