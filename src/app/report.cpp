// What the macros of a call do not carry, and where they are faulty.

#include "app/report.h"

#include "app/ExitStatus.h"
#include "app/console.h"
#include "app/valueText.h"
#include "host/kernel/CFxConversionNotes.h"
#include "recordfile/SchemaDefinitions.h"

#include <QJsonDocument>
#include <QStringList>

#include <algorithm>

namespace inkmacro {

using namespace recordfile;

namespace {

const char* const kDocumentKey = "conversions";

QString statusWord(int status)
{
    return status == kDone ? "converted" : status == kUnreadable ? "unreadable" : "failed";
}

/// As the recording file's errors name places.
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

/// Rows of texts in columns, the last one as wide as it is.
void printColumns(const std::vector<QStringList>& rows)
{
    std::vector<int> widths;
    for (const QStringList& row : rows) {
        widths.resize(std::max<std::size_t>(widths.size(), static_cast<std::size_t>(row.size())));
        for (int i = 0; i < row.size(); ++i)
            widths[static_cast<std::size_t>(i)] = std::max(widths[static_cast<std::size_t>(i)], row[i].size());
    }
    for (const QStringList& row : rows) {
        QString text = "   ";
        for (int i = 0; i < row.size(); ++i)
            text += ' ' + (i + 1 < row.size() ? row[i].leftJustified(widths[static_cast<std::size_t>(i)] + 1) : row[i]);
        printOut(text + '\n');
    }
}

/// A list of the report under its heading.
void printList(const char* heading, const QJsonArray& list, QStringList (*row)(const QJsonObject& entry))
{
    if (list.isEmpty())
        return;
    printOut(QString("  %1\n").arg(heading));
    std::vector<QStringList> rows;
    for (const QJsonValue& entry : list)
        rows.push_back(row(entry.toObject()));
    printColumns(rows);
}

QStringList lossRow(const QJsonObject& loss)
{
    return {"line " + QString::number(loss["line"].toInt()), loss["path"].toString(),
            printable(loss["what"].toString()), printable(loss["reason"].toString())};
}

QStringList faultRow(const QJsonObject& fault)
{
    QString place = printable(fault["file"].toString());
    if (const int line = fault["line"].toInt(); line > 0)
        place += ':' + QString::number(line);
    return {place, fault["mended"].toBool() ? "mended by --repair" : "not mended",
            printable(fault["operation"].toString()), printable(fault["reason"].toString())};
}

void printText(const QJsonObject& report)
{
    const QString status = report["status"].toString();
    QString result = countText(static_cast<std::size_t>(report["losses"].toArray().size()),
                               static_cast<std::size_t>(report["faults"].toArray().size()));
    if (status != statusWord(kDone))
        result = result.isEmpty() ? status : status + ", " + result;
    else if (result.isEmpty())
        result = "nothing lost, no faults";
    printOut(QString("%1 to %2: %3: %4\n")
                 .arg(printable(report["input"].toString()), report["target"].toString(),
                      printable(report["macro"].toString()), result));
    printList("lost", report["losses"].toArray(), lossRow);
    printList("faults", report["faults"].toArray(), faultRow);
}

QJsonObject lossSchema()
{
    ObjectSchema loss;
    loss.add("line", "the line of the recording, from 1", typeSchema("integer"), true);
    loss.add("path", "the place of the action within the line, such as command.actions[2]; empty for the whole line",
             typeSchema("string"), true);
    loss.add("what", "what is lost: an action, an object or a property of one", typeSchema("string"), true);
    loss.add("reason", "why", typeSchema("string"), true);
    return loss.json();
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

QJsonObject reportOf(const Job& job, int status)
{
    return {{"input", job.input},           {"target", targetName(*job.target)},
            {"macro", job.macro},           {"project", QJsonArray::fromStringList(job.projectFiles())},
            {"status", statusWord(status)}, {"losses", QJsonArray()},
            {"faults", QJsonArray()}};
}

void addNotes(QJsonObject& report, const CFxConversionNotes& notes, const Recording& recording)
{
    QJsonArray losses;
    for (const CFxLoss& loss : notes.GetLosses())
        losses.append(QJsonObject{{"line", lineOf(loss.where, recording)},
                                  {"path", pathOf(loss.where)},
                                  {"what", loss.what.toQString()},
                                  {"reason", loss.reason.toQString()}});
    QJsonArray faults;
    for (const CFxFaultNote& fault : notes.GetFaults())
        faults.append(QJsonObject{{"file", fault.file.toQString()},
                                  {"line", static_cast<qint64>(fault.line)},
                                  {"operation", fault.operation.toQString()},
                                  {"reason", fault.reason.toQString()},
                                  {"mended", fault.mended}});
    report["losses"] = losses;
    report["faults"] = faults;
}

QString countText(std::size_t losses, std::size_t faults)
{
    QStringList counts;
    if (losses > 0)
        counts.append(counted(static_cast<int>(losses), "step", "steps") + " lost");
    if (faults > 0)
        counts.append(counted(static_cast<int>(faults), "fault", "faults"));
    return counts.join(", ");
}

void printReport(const QJsonArray& reports, ReportForm form)
{
    if (form == ReportForm::Json)
        printOut(QJsonDocument(QJsonObject{{kDocumentKey, reports}}).toJson());
    else
        for (const QJsonValue& report : reports)
            printText(report.toObject());
}

QJsonObject reportFrom(const QByteArray& printed)
{
    return QJsonDocument::fromJson(printed)[kDocumentKey][0].toObject();
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
    conversion.add("losses", "what the user did and the macro does not", listSchema(lossSchema()), true);
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
