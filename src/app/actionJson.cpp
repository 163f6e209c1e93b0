// Actions as JSON, in the forms that recording files have.

#include "app/actionJson.h"

#include "recordfile/Pieces.h"

#include <QJsonArray>

#include <algorithm>

namespace inkmacro {

namespace {

constexpr QLatin1String lineKey("line", 4);
constexpr QLatin1String indexKey("index", 5);

} // namespace

QString kindOf(const QJsonObject& action)
{
    const QStringList keys = action.keys();
    return *std::ranges::find_if(keys, [](const QString& key) { return key != lineKey && key != indexKey; });
}

ActionJson::ActionJson(ActionView view, CFxValueContext context, const std::vector<CFxActionKindName>& names)
    : view_(std::move(view)), context_(context)
{
    for (const CFxActionKindName& kind : names)
        names_.emplace(kind.number, kind.name);
}

std::optional<QJsonObject> ActionJson::of(const OdRxObjectPtr& action, qint64 line)
{
    std::optional<QJsonObject> made = of(action, {view_.depth, !view_.filter.command()});
    if (made)
        (*made)[lineKey] = line;
    return made;
}

std::optional<QJsonObject> ActionJson::of(const OdRxObjectPtr& action, Place place)
{
    std::optional<QJsonValue> body;
    if (const auto command = odrxQuery<CFxUserCommand>(action.get())) {
        place.named = place.named || view_.filter.names(commandName(*command));
        body = commandBody(*command, place);
    } else if (place.named && view_.filter.isAbout(action)) {
        body = bodyOf(action, place.depth);
    }
    if (!body)
        return std::nullopt;
    const QString kind = ActionKind(action);
    ++counts_[kind];
    return QJsonObject{{kind, *body}};
}

std::optional<QJsonValue> ActionJson::commandBody(const CFxUserCommand& command, const Place& place)
{
    const CFxActionArray& children = command.GetActions();
    QJsonArray actions;
    int made = 0;
    for (unsigned i = 0; i < children.length(); ++i) {
        std::optional<QJsonObject> child = of(children[i], {place.depth - 1, place.named});
        if (!child)
            continue;
        ++made;
        if (place.depth <= 0)
            continue;
        (*child)[indexKey] = static_cast<int>(i);
        actions.append(*child);
    }
    if (made == 0 && (!place.named || !view_.filter.handle().isNull()))
        return std::nullopt;
    QJsonObject body{{"name", commandName(command)}};
    body["actions"] = place.depth > 0 ? QJsonValue(actions) : QJsonValue(made);
    if (const int leftOut = static_cast<int>(children.length()) - made; leftOut > 0)
        body["leftOut"] = leftOut;
    return body;
}

QJsonValue ActionJson::bodyOf(const OdRxObjectPtr& action, int depth) const
{
    if (depth < 0)
        return {}; // nobody sees it
    QJsonValue whole = ActionToJson(action, context_);
    if (!whole.isObject())
        return whole;
    QJsonObject body = whole.toObject();
    if (const auto custom = odrxQuery<CFxCustomAction>(action.get()))
        if (const auto name = names_.find(custom->GetKind()); name != names_.end())
            body["name"] = name->second;
    if (const auto found = parameters_ ? parameters_->find(action.get()) : PromptParameters::const_iterator();
        parameters_ && found != parameters_->end())
        body["parameter"] =
            QJsonObject{{"function", found->second.function.toQString()}, {"name", found->second.name.toQString()}};
    if (depth == 0)
        for (const char* const list : {"properties", "extra", "data"})
            if (const QJsonValue items = body.value(QLatin1String(list)); items.isArray())
                body[list] = items.toArray().size();
    return body;
}

} // namespace inkmacro
