// A recording as a tree of lines, or as one JSON document.

#include "app/inspection.h"

#include "app/ExitStatus.h"
#include "app/LoadedModule.h"
#include "app/actionJson.h"
#include "app/console.h"
#include "app/reading.h"
#include "app/valueText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>

namespace inkmacro {

namespace {

QString textOf(const QJsonObject& body, const char* key)
{
    return printable(body[key].toString());
}

/// Class and handle, as far as they are known.
QString objectName(const QJsonObject& body)
{
    return QString(textOf(body, "class") + ' ' + textOf(body, "handle")).trimmed();
}

QString addedText(const QJsonObject& body)
{
    const int extra = body["extra"].toInt();
    QString counts = counted(body["properties"].toInt(), "property", "properties");
    if (extra != body["properties"].toInt())
        counts += QString(", %1 extra").arg(extra);
    return QString("%1 (%2)").arg(objectName(body), counts);
}

QString propertyText(const QJsonObject& body)
{
    QString text = textOf(body, "tag");
    if (body.contains("index"))
        text += '[' + valueText(body["index"]) + ']';
    text += " = " + valueText(body["value"]);
    QStringList more;
    if (const QString group = textOf(body, "group"); !group.isEmpty())
        more.append("group " + group);
    if (body.contains("old"))
        more.append("was " + valueText(body["old"]));
    if (!more.isEmpty())
        text += " (" + more.join(", ") + ')';
    const QString object = objectName(body);
    return object.isEmpty() ? text : object + ": " + text;
}

QString interactionText(const QJsonObject& body)
{
    const QString kind = body["kind"].isString() ? textOf(body, "kind") : valueText(body["kind"]);
    const QString answer = body["result"].isNull() ? QStringLiteral("no answer") : valueText(body["result"]);
    QString text = QString("%1 %2 = %3").arg(kind, valueText(body["prompt"]), answer);
    const QJsonObject keywords = body["keywords"].toObject();
    if (!keywords.isEmpty())
        text += QString(" (keywords %1, global %2)").arg(valueText(keywords["local"]), valueText(keywords["global"]));
    return text;
}

QString selectionText(const QJsonObject& body)
{
    const QJsonArray picked = body["objects"].toArray();
    QStringList objects;
    for (const QJsonValue& object : picked)
        objects.append(objectName(object.toObject()));
    return QString("of %1: %2").arg(counted(objects.size(), "object", "objects"), objects.join(", "));
}

QString customText(const QJsonObject& body)
{
    const QJsonArray data = body["data"].toArray();
    QStringList types;
    for (const QJsonValue& type : data)
        types.append(printable(type.toString()));
    const QString kind = body.contains("name") ? textOf(body, "name") : valueText(body["kind"]);
    return types.isEmpty() ? kind + " (no data)" : QString("%1 (%2)").arg(kind, types.join(", "));
}

/// What stands behind the kind in an action's line.
QString summary(const QString& kind, const QJsonObject& body)
{
    if (kind == "command")
        return QString("%1 (%2)").arg(textOf(body, "name"),
                                      counted(body["actions"].toArray().size(), "action", "actions"));
    if (kind == "added")
        return addedText(body);
    if (kind == "modified")
        return QString("%1 (%2)").arg(objectName(body), counted(body["properties"].toInt(), "property", "properties"));
    if (kind == "property")
        return propertyText(body);
    if (kind == "sysvar")
        return QString("%1 = %2").arg(textOf(body, "name"), valueText(body["value"]));
    if (kind == "interaction")
        return interactionText(body);
    if (kind == "selection")
        return selectionText(body);
    if (kind == "custom")
        return customText(body);
    return textOf(body, "class");
}

void printTree(const QJsonObject& action, int depth)
{
    const QString kind = action.begin().key();
    const QJsonObject body = action.begin().value().toObject();
    const QString text = summary(kind, body);
    printOut(QString(depth * 2, ' ') + (text.isEmpty() ? kind : kind + ' ' + text) + '\n');
    const QJsonArray children = body["actions"].toArray();
    for (const QJsonValue& child : children)
        printTree(child.toObject(), depth + 1);
}

QString countsText(const ActionCounts& counts)
{
    QStringList items;
    for (const auto& [kind, count] : counts)
        items.append(QString("%1 %2").arg(count).arg(kind));
    return items.isEmpty() ? QStringLiteral("none") : items.join(", ");
}

/// One top-level action at a time: a recording may be large.
void printAsTree(const QString& path, const Recording& recording, ActionJson& json)
{
    printOut(QString("%1: %2\n").arg(printable(path), counted(recording.actions.length(), "action", "actions")));
    for (const OdRxObjectPtr& action : recording.actions)
        printTree(json.of(action), 0);
    printOut("counts: " + countsText(json.counts()) + '\n');
}

void printAsJson(const QString& path, const Recording& recording, ActionJson& json)
{
    QJsonArray actions;
    for (const OdRxObjectPtr& action : recording.actions)
        actions.append(json.of(action));
    QJsonObject numbers;
    for (const auto& [kind, count] : json.counts())
        numbers[kind] = count;
    printOut(QJsonDocument({{"file", path}, {"actions", actions}, {"counts", numbers}}).toJson());
}

} // namespace

int inspectRecording(const QString& path, bool json)
{
    Recording recording;
    if (!readOrComplain(path, recording))
        return kUnreadable;
    ActionJson actions(static_cast<CFxValueContext>(recording.header.context), LoadedModule()->ListActionKinds());
    if (json)
        printAsJson(path, recording, actions);
    else
        printAsTree(path, recording, actions);
    return kDone;
}

} // namespace inkmacro
