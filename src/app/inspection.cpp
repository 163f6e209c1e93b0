// A recording as a tree of lines, or as one JSON document.

#include "app/inspection.h"

#include "app/ExitStatus.h"
#include "app/LoadedModule.h"
#include "app/actionCount.h"
#include "app/actionJson.h"
#include "app/console.h"
#include "app/parameters.h"
#include "app/reading.h"
#include "app/temporaryFolder.h"
#include "app/valueText.h"
#include "recordfile/Pieces.h"
#include "recordfile/nearestName.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <set>

namespace inkmacro {

namespace {

constexpr int kMostLetters = 100;
constexpr int kLettersOfMore = 80; ///< of a text that has more than those
constexpr int kMostAlike = 20;
constexpr int kLineWidth = 100;

/// A recorded text may be endless, a line of the screen is not.
QString shortened(const QString& text)
{
    if (text.length() <= kMostLetters)
        return text;
    const int end = text[kLettersOfMore - 1].isHighSurrogate() ? kLettersOfMore - 1 : kLettersOfMore;
    return text.left(end) + QString("... (%1 letters)").arg(text.length());
}

QString shortText(const QJsonValue& value)
{
    return shortened(valueText(value));
}

QString textOf(const QJsonObject& body, const char* key)
{
    return shortened(printable(body[key].toString()));
}

/// Class and handle, as far as they are known.
QString objectName(const QJsonObject& body)
{
    return QString(textOf(body, "class") + ' ' + textOf(body, "handle")).trimmed();
}

/// Of a list that may be told by its length.
int lengthOf(const QJsonValue& list)
{
    return list.isArray() ? list.toArray().size() : list.toInt();
}

QString objectText(const QJsonObject& body)
{
    QString counts = counted(lengthOf(body["properties"]), "property", "properties");
    if (body.contains("extra"))
        counts += QString(", %1 extra").arg(lengthOf(body["extra"]));
    return QString("%1 (%2)").arg(objectName(body), counts);
}

QString propertyText(const QJsonObject& body)
{
    QString text = textOf(body, "tag");
    if (body.contains("index"))
        text += '[' + shortText(body["index"]) + ']';
    text += " = " + shortText(body["value"]);
    QStringList more;
    if (const QString group = textOf(body, "group"); !group.isEmpty())
        more.append("group " + group);
    if (body.contains("old"))
        more.append("was " + shortText(body["old"]));
    if (!more.isEmpty())
        text += " (" + more.join(", ") + ')';
    const QString object = objectName(body);
    return object.isEmpty() ? text : object + ": " + text;
}

QString interactionText(const QJsonObject& body)
{
    const QString kind = body["kind"].isString() ? textOf(body, "kind") : valueText(body["kind"]);
    const QString answer = body["result"].isNull() ? QStringLiteral("no answer") : shortText(body["result"]);
    QString text = QString("%1 %2 = %3").arg(kind, shortText(body["prompt"]), answer);
    const QJsonObject keywords = body["keywords"].toObject();
    if (!keywords.isEmpty())
        text += QString(" (keywords %1, global %2)").arg(shortText(keywords["local"]), shortText(keywords["global"]));
    if (const QJsonObject parameter = body["parameter"].toObject(); !parameter.isEmpty())
        text += QString(" (parameter %1 of %2)").arg(textOf(parameter, "name"), textOf(parameter, "function"));
    return text;
}

QString selectionText(const QJsonObject& body)
{
    const QJsonArray picked = body["objects"].toArray();
    QStringList objects;
    for (const QJsonValue& object : picked)
        objects.append(objectName(object.toObject()));
    const QString count = "of " + counted(objects.size(), "object", "objects");
    return objects.isEmpty() ? count : count + ": " + shortened(objects.join(", "));
}

QString customText(const QJsonObject& body)
{
    const QString kind = body.contains("name") ? textOf(body, "name") : valueText(body["kind"]);
    const int values = lengthOf(body["data"]);
    return QString("%1 (%2)").arg(kind, values == 0 ? "no data" : counted(values, "value", "values"));
}

QString commandText(const QJsonObject& body)
{
    const int shown = lengthOf(body["actions"]);
    const int all = shown + body["leftOut"].toInt();
    const QString part = shown == all ? QString() : QString("%1 of ").arg(shown);
    return QString("%1 (%2)").arg(textOf(body, "name"), part + counted(all, "action", "actions")).trimmed();
}

/// What stands behind the kind in an action's line.
QString summary(const QString& kind, const QJsonObject& body)
{
    if (kind == "command")
        return commandText(body);
    if (kind == "added" || kind == "modified")
        return objectText(body);
    if (kind == "property")
        return propertyText(body);
    if (kind == "sysvar")
        return QString("%1 = %2").arg(textOf(body, "name"), shortText(body["value"]));
    if (kind == "interaction")
        return interactionText(body);
    if (kind == "selection")
        return selectionText(body);
    if (kind == "custom")
        return customText(body);
    return {};
}

/// `head` and the items behind it; lines that go on are a little deeper than `margin`.
void printList(const QString& margin, const QString& head, const QStringList& items)
{
    QString line = margin + head;
    for (int i = 0; i < items.size(); ++i) {
        const QString item = items[i] + (i + 1 < items.size() ? "," : "");
        if (i > 0 && line.length() + 1 + item.length() > kLineWidth) {
            printOut(line + '\n');
            line = margin + ' ';
        }
        line += ' ' + item;
    }
    printOut(line + '\n');
}

/// Properties whose tags differ in numbers alone are alike, as the cells of a table.
QString tagStem(QString tag)
{
    static const QRegularExpression number("[0-9]+");
    return tag.replace(number, "#");
}

/// The first ones of those that are alike: a polyline may have thousands of vertices.
void printProperties(const QString& margin, const QString& mark, const QJsonArray& properties)
{
    std::map<QString, int> met;
    for (const QJsonValue& property : properties) {
        const QJsonObject body = property.toObject();
        if (properties.size() <= kMostAlike || ++met[tagStem(body["tag"].toString())] <= kMostAlike)
            printOut(margin + mark + propertyText(body) + '\n');
    }
    QStringList more;
    for (const auto& [stem, count] : met)
        if (count > kMostAlike)
            more.append(QString("%1 %2").arg(count - kMostAlike).arg(shortened(printable(stem))));
    if (!more.isEmpty())
        printList(margin, mark + "and more, which --json shows:", more);
}

/// One key and its value, as "int16 3".
QString dataText(const QJsonObject& data)
{
    return data.begin().key() + ' ' + shortText(data.begin().value());
}

/// `head` stands in front of the first line, and the others are a little deeper than `margin`.
void printTree(const QString& head, QString margin, const QJsonObject& action)
{
    const QString kind = kindOf(action);
    const QJsonObject body = action[kind].toObject();
    const QString text = summary(kind, body);
    printOut(head + (text.isEmpty() ? kind : kind + ' ' + text) + '\n');
    margin += "  ";
    const QJsonArray children = body["actions"].toArray();
    for (const QJsonValue& child : children)
        printTree(QString("%1[%2] ").arg(margin).arg(child["index"].toInt()), margin, child.toObject());
    printProperties(margin, {}, body["properties"].toArray());
    printProperties(margin, "extra: ", body["extra"].toArray());
    const QJsonArray values = body["data"].toArray();
    for (const QJsonValue& value : values)
        printOut(margin + dataText(value.toObject()) + '\n');
}

/// How many objects the drawing has of each class.
using ClassCounts = std::map<QString, int>;

ClassCounts classCounts(const OdDbDatabase& database)
{
    ClassCounts counts;
    for (const OdDbObjectId& id : database.objectIds())
        ++counts[id.openObject(true)->isA()->name()];
    return counts;
}

/// Those of which there are most come first.
QStringList classTexts(const ClassCounts& counts)
{
    std::vector<std::pair<QString, int>> sorted(counts.begin(), counts.end());
    std::ranges::stable_sort(sorted, std::ranges::greater(), &std::pair<QString, int>::second);
    QStringList texts;
    for (const auto& [name, count] : sorted)
        texts.append(QString("%1 %2").arg(count).arg(name));
    return texts;
}

/// As it may stand in a document.
QByteArray jsonText(const QJsonValue& value)
{
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.length() - 2);
}

/// Lines for a person.
class TextPage
{
public:
    TextPage(const QString& path, const Recording& recording, const ActionFilter& filter)
        : path_(path), recording_(recording), filter_(filter)
    {
        if (!recording.actionLines.empty())
            margin_ = QString(QString::number(recording.actionLines.back()).length() + 2, ' ');
    }

    void begin(const std::optional<QJsonObject>& object) const
    {
        printOut(QString("%1: %2\n").arg(printable(path_), actionCountText(recording_.actions)));
        if (const QStringList classes = classTexts(classCounts(*recording_.database)); !classes.isEmpty())
            printList({}, "drawing:", classes);
        if (!object)
            return;
        printOut("object " + objectName(*object) + '\n');
        for (auto entry = object->begin(); entry != object->end(); ++entry)
            if (entry.key() != "class" && entry.key() != "handle")
                printOut(QString("  %1 = %2\n").arg(entry.key(), shortened(printable(jsonText(entry.value())))));
    }
    void action(const QJsonObject& action)
    {
        const QString line = QString::number(static_cast<qint64>(action["line"].toDouble()));
        printTree(line.rightJustified(margin_.length() - 2) + "  ", margin_, action);
    }
    void end(const ActionCounts& counts) const
    {
        QStringList items;
        for (const auto& [kind, count] : counts)
            items.append(QString("%1 %2").arg(count).arg(kind));
        const QString all = items.isEmpty() ? QStringLiteral("none") : items.join(", ");
        printOut((filter_.takesAll() ? "counts: " : "found: ") + all + '\n');
    }

private:
    const QString& path_;
    const Recording& recording_;
    const ActionFilter& filter_;
    QString margin_; ///< as wide as the numbers of lines and what stands behind them
};

/// A document with an action a line.
class JsonPage
{
public:
    JsonPage(const QString& path, const Recording& recording, const ActionFilter&) : path_(path), recording_(recording)
    {
    }

    void begin(const std::optional<QJsonObject>& object) const
    {
        printOut("{\"file\":" + jsonText(path_) +
                 ",\n\"drawing\":" + jsonText(numbers(classCounts(*recording_.database))) + ",\n");
        if (object)
            printOut("\"object\":" + jsonText(*object) + ",\n");
        printOut(QByteArray("\"actions\":["));
    }
    void action(const QJsonObject& action)
    {
        printOut((first_ ? "\n" : ",\n") + jsonText(action));
        first_ = false;
    }
    void end(const ActionCounts& counts) const { printOut("],\n\"counts\":" + jsonText(numbers(counts)) + "}\n"); }

private:
    static QJsonObject numbers(const std::map<QString, int>& counts)
    {
        QJsonObject object;
        for (const auto& [name, count] : counts)
            object[name] = count;
        return object;
    }

    const QString& path_;
    const Recording& recording_;
    bool first_ = true;
};

/// What the recording's drawing has under the handle that is asked for. A drawing is no command.
std::optional<QJsonObject> wantedObject(const Recording& recording, const ActionView& view)
{
    const OdDbObjectPtr object = recording.database->findOdDbObjectId(view.filter.handle()).openObject(true);
    if (!object || view.filter.command())
        return std::nullopt;
    const QJsonObject whole = ObjectToJson(*object);
    return view.depth > 0 ? whole : QJsonObject{{"class", whole["class"]}, {"handle", whole["handle"]}};
}

/// One top-level action at a time: a recording may be large. False when nothing is found, and then nothing is printed.
template<class Page>
bool print(const QString& path, const Recording& recording, const ActionView& view)
{
    ActionJson json(view, static_cast<CFxValueContext>(recording.header.context), LoadedModule()->ListActionKinds());
    const PromptParameters parameters = parametersOf(recording);
    json.tell(parameters);
    Page page(path, recording, view.filter);
    const std::optional<QJsonObject> object = wantedObject(recording, view);
    bool begun = object || view.filter.takesAll();
    if (begun)
        page.begin(object);
    for (unsigned i = 0; i < recording.actions.length(); ++i) {
        const std::optional<QJsonObject> action = json.of(recording.actions[i], recording.actionLines[i]);
        if (!action)
            continue;
        if (!begun)
            page.begin({});
        begun = true;
        page.action(*action);
    }
    if (begun)
        page.end(json.counts());
    return begun;
}

void addCommandNames(const CFxActionArray& actions, std::set<QString>& names)
{
    for (const OdRxObjectPtr& action : actions)
        if (const auto command = odrxQuery<CFxUserCommand>(action.get())) {
            names.insert(ActionFilter::plainName(commandName(*command)));
            addCommandNames(command->GetActions(), names);
        }
}

/// What there is nothing of.
QString missingText(const Recording& recording, const ActionFilter& filter)
{
    const QString object = "about an object with the handle " + filter.handle().ascii();
    if (!filter.command())
        return "there is nothing " + object;
    std::set<QString> names;
    addCommandNames(recording.actions, names);
    if (std::ranges::any_of(names, [&](const QString& name) { return filter.names(name); }))
        return QString("no command %1 is %2").arg(*filter.command(), object);
    const QString name = ActionFilter::plainName(*filter.command());
    return QString("there is no command %1%2")
        .arg(*filter.command(), didYouMean(name, QStringList(names.begin(), names.end())));
}

} // namespace

int inspectRecording(const QString& path, const ActionView& view, bool json)
{
    Recording recording;
    if (!readOrComplain(path, recording))
        return kUnreadable;
    return orComplainOfFiles([&] {
        if (json ? print<JsonPage>(path, recording, view) : print<TextPage>(path, recording, view))
            return kDone;
        complain(QString("%1: %2").arg(path == "-" ? "standard input" : path, missingText(recording, view.filter)));
        return kFailed;
    });
}

} // namespace inkmacro
