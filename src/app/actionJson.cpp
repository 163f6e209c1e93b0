// Actions as JSON, in the forms that recording files have.

#include "app/actionJson.h"

#include "recordfile/Pieces.h"

#include <QJsonArray>

namespace inkmacro {

namespace {

template<class Object>
QJsonObject objectBody(const Object& object)
{
    const OdRxClass* const cls = object.GetObjectClass();
    return {{"class", cls ? cls->name() : QString()},
            {"handle", object.GetHandle().ascii()},
            {"properties", static_cast<int>(object.GetProperties().size())}};
}

QJsonObject addedBody(const CFxObjectAdded& added)
{
    QJsonObject body = objectBody(added);
    body["extra"] = static_cast<int>(added.GetExtraProperties().size());
    return body;
}

} // namespace

ActionJson::ActionJson(CFxValueContext context, const std::vector<CFxActionKindName>& names) : context_(context)
{
    for (const CFxActionKindName& kind : names)
        names_.emplace(kind.number, kind.name);
}

QJsonObject ActionJson::of(const OdRxObjectPtr& action)
{
    const QString kind = ActionKind(action);
    const QJsonValue body = bodyOf(action);
    ++counts_[kind];
    return {{kind, body}};
}

QJsonValue ActionJson::bodyOf(const OdRxObjectPtr& action)
{
    // What would fill the screen is told in numbers and types.
    if (const auto command = odrxQuery<CFxUserCommand>(action.get()))
        return commandBody(*command);
    if (const auto added = odrxQuery<CFxObjectAdded>(action.get()))
        return addedBody(*added);
    if (const auto modified = odrxQuery<CFxObjectModified>(action.get()))
        return objectBody(*modified);
    if (const auto custom = odrxQuery<CFxCustomAction>(action.get()))
        return customBody(*custom);
    return ActionToJson(action, context_);
}

QJsonObject ActionJson::commandBody(const CFxUserCommand& command)
{
    QJsonArray actions;
    for (const OdRxObjectPtr& child : command.GetActions())
        actions.append(of(child));
    const OdResBufPtr line = command.GetCommand();
    return {{"name", line ? line->getString() : QString()}, {"actions", actions}};
}

QJsonObject ActionJson::customBody(const CFxCustomAction& custom) const
{
    QJsonArray types;
    for (std::int32_t i = 0; i < custom.GetDataCount(); ++i)
        types.append(DataType(custom.GetData(i)));
    QJsonObject body{{"kind", custom.GetKind()}, {"data", types}};
    if (const auto name = names_.find(custom.GetKind()); name != names_.end())
        body["name"] = name->second;
    return body;
}

} // namespace inkmacro
