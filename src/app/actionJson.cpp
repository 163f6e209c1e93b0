// Actions as JSON, in the forms that recording files have.

#include "app/actionJson.h"

#include "recordfile/Pieces.h"
#include "statements/actionKinds.h"

#include <QJsonArray>

#include <array>

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

QJsonObject commandBody(const CFxUserCommand& command, CFxValueContext context, ActionCounts& counts)
{
    QJsonArray actions;
    for (const OdRxObjectPtr& child : command.GetActions())
        actions.append(actionToJson(child, context, counts));
    const OdResBufPtr line = command.GetCommand();
    return {{"name", line ? line->getString() : QString()}, {"actions", actions}};
}

QJsonObject addedBody(const CFxObjectAdded& added)
{
    QJsonObject body = objectBody(added);
    body["extra"] = static_cast<int>(added.GetExtraProperties().size());
    return body;
}

QJsonObject customBody(const CFxCustomAction& custom)
{
    QJsonArray types;
    for (std::int32_t i = 0; i < custom.GetDataCount(); ++i)
        types.append(DataType(custom.GetData(i)));
    QJsonObject body{{"kind", custom.GetKind()}, {"data", types}};
    const auto kind = static_cast<std::size_t>(custom.GetKind());
    if (kind < actionKindNames.size() && actionKindNames[kind])
        body["name"] = actionKindNames[kind];
    return body;
}

QJsonValue bodyOf(const OdRxObjectPtr& action, CFxValueContext context, ActionCounts& counts)
{
    // What would fill the screen is told in numbers and types.
    if (const auto command = odrxQuery<CFxUserCommand>(action.get()))
        return commandBody(*command, context, counts);
    if (const auto added = odrxQuery<CFxObjectAdded>(action.get()))
        return addedBody(*added);
    if (const auto modified = odrxQuery<CFxObjectModified>(action.get()))
        return objectBody(*modified);
    if (const auto custom = odrxQuery<CFxCustomAction>(action.get()))
        return customBody(*custom);
    return ActionToJson(action, context);
}

} // namespace

QJsonObject actionToJson(const OdRxObjectPtr& action, CFxValueContext context, ActionCounts& counts)
{
    const QString kind = ActionKind(action);
    const QJsonValue body = bodyOf(action, context, counts);
    ++counts[kind];
    return {{kind, body}};
}

} // namespace inkmacro
