// Actions as JSON, read through the interfaces that the module reads them by.

#include "app/actionJson.h"

#include "actions/kinds.h"

#include <QJsonArray>

#include <array>

namespace inkmacro {

namespace {

const std::array interactionKinds{"point",  "angle",   "distance", "orient",  "corner", "scale",
                                  "string", "keyword", "color",    "integer", "double"};

const std::array dataTypes{"int16",   "double",  "string", "bool",   "strings", "int",     "color", "handle",   "class",
                           "handles", "classes", "point",  "points", "vector",  "doubles", "ints",  "points2d", "ids"};

template<class Object>
QString className(const Object& object)
{
    const OdRxClass* const cls = object.GetObjectClass();
    return cls ? cls->name() : QString();
}

QJsonArray toJson(const OdGePoint3d& point)
{
    return {point.x, point.y, point.z};
}

QJsonValue toJson(const OdCmColor& color)
{
    if (color.isByLayer())
        return "bylayer";
    if (color.isByBlock())
        return "byblock";
    if (color.isByACI())
        return QJsonObject{{"index", color.colorIndex()}};
    return QJsonObject{{"rgb", QJsonArray{color.red(), color.green(), color.blue()}}};
}

QJsonValue toJson(const CFxVariant& value);

QJsonObject toJson(const CFxVariantCollectionElement& element)
{
    return {{"tag", toJson(*element.GetTag())}, {"value", toJson(*element.GetValue())}};
}

QJsonObject toJson(const CFxVariantCollection& collection)
{
    QJsonArray elements;
    for (const CFxVariantCollectionElement& element : collection.GetCollectionDataForRead())
        elements.append(toJson(element));
    return {{"chosen", collection.GetChosen()}, {"elements", elements}};
}

QJsonValue toJson(const CFxVariant& value)
{
    switch (value.GetType()) {
    case CFxVariant::kNullType:
        break;
    case CFxVariant::kInt32:
        return QJsonObject{{"int", value.GetInt32()}};
    case CFxVariant::kDouble:
        return value.GetDouble();
    case CFxVariant::kString:
        return value.GetString().toQString();
    case CFxVariant::kPoint3d:
        return QJsonObject{{"point", toJson(value.GetPoint3d())}};
    case CFxVariant::kColor:
        return QJsonObject{{"color", toJson(value.GetColor())}};
    case CFxVariant::kCollection:
        return QJsonObject{{"collection", toJson(value.GetCollection())}};
    case CFxVariant::kCollectionElement:
        return QJsonObject{{"element", toJson(value.GetCollectionElement())}};
    case CFxVariant::kId:
        return QJsonObject{{"id", value.GetId().getHandle().ascii()}};
    case CFxVariant::kTransparency: {
        const OdCmTransparency transparency = value.GetTransparency();
        return QJsonObject{
            {"transparency", QJsonObject{{"method", transparency.method}, {"alpha", transparency.alpha}}}};
    }
    }
    return QJsonValue::Null;
}

void addValue(QJsonObject& element, const OdResBuf::Value& value)
{
    struct
    {
        QJsonObject& element;
        void operator()(std::monostate) const {}
        void operator()(const OdString& text) const { element["string"] = text; }
        void operator()(double number) const { element["double"] = number; }
        void operator()(std::int8_t number) const { element["int8"] = number; }
        void operator()(std::int16_t number) const { element["int16"] = number; }
        void operator()(std::int32_t number) const { element["int32"] = number; }
        void operator()(bool truth) const { element["bool"] = truth; }
        void operator()(const OdGePoint2d& point) const { element["point2d"] = QJsonArray{point.x, point.y}; }
        void operator()(const OdGePoint3d& point) const { element["point3d"] = toJson(point); }
    } const add{element};
    std::visit(add, value);
}

/// A chain is an array, a single element stands for itself.
QJsonValue toJson(const OdResBufPtr& first)
{
    QJsonArray chain;
    for (OdResBufPtr link = first; link; link = link->next()) {
        QJsonObject element{{"type", link->restype()}};
        addValue(element, link->value());
        chain.append(element);
    }
    if (chain.isEmpty())
        return QJsonValue::Null;
    return chain.size() == 1 ? chain.first() : QJsonValue(chain);
}

QJsonArray toJson(const std::vector<CFxString>& texts)
{
    QJsonArray array;
    for (const CFxString& text : texts)
        array.append(text.toQString());
    return array;
}

QJsonObject commandBody(const CFxUserCommand& command, CFxValueContext context, ActionCounts& counts)
{
    QJsonArray actions;
    for (const OdRxObjectPtr& child : command.GetActions())
        actions.append(actionToJson(child.get(), context, counts));
    const OdResBufPtr line = command.GetCommand();
    return {{"name", line ? line->getString() : QString()}, {"actions", actions}};
}

QJsonObject addedBody(const CFxObjectAdded& added)
{
    return {{"class", className(added)},
            {"handle", added.GetHandle().ascii()},
            {"properties", static_cast<int>(added.GetProperties().size())},
            {"extra", static_cast<int>(added.GetExtraProperties().size())}};
}

QJsonObject modifiedBody(const CFxObjectModified& modified)
{
    return {{"class", className(modified)},
            {"handle", modified.GetHandle().ascii()},
            {"properties", static_cast<int>(modified.GetProperties().size())}};
}

QJsonObject propertyBody(const CFxPropertyChanged& property, CFxValueContext context)
{
    QJsonObject body{{"class", className(property)},
                     {"handle", property.GetHandle().ascii()},
                     {"tag", property.GetName().toQString()},
                     {"group", property.GetGroup().toQString()},
                     {"value", toJson(property.GetValue(context))}};
    if (const CFxVariant index = property.GetIndex(context); !index.IsNull())
        body["index"] = toJson(index);
    if (const CFxVariant old = property.GetOldValue(context); !old.IsNull())
        body["old"] = toJson(old);
    return body;
}

QJsonObject interactionBody(const CFxUserInteraction& interaction)
{
    const std::int32_t kind = interaction.GetInteractionKind();
    const bool named = kind >= 0 && static_cast<std::size_t>(kind) < interactionKinds.size();
    std::vector<CFxString> local;
    std::vector<CFxString> global;
    interaction.GetKeywords(local, global);
    QJsonObject body{{"kind", named ? QJsonValue(interactionKinds.at(kind)) : QJsonValue(kind)},
                     {"prompt", interaction.GetPrompt().toQString()},
                     {"result", toJson(interaction.GetResult())}};
    if (!local.empty() || !global.empty())
        body["keywords"] = QJsonObject{{"local", toJson(local)}, {"global", toJson(global)}};
    return body;
}

QJsonObject selectionBody(const CFxUserSelection& selection)
{
    const std::vector<const OdRxClass*>& classes = selection.GetClasses();
    QJsonArray objects;
    for (const OdDbHandle& handle : selection.GetHandles()) {
        const auto number = static_cast<std::size_t>(objects.size());
        QJsonObject object{{"handle", handle.ascii()}};
        if (number < classes.size() && classes[number])
            object["class"] = classes[number]->name();
        objects.append(object);
    }
    return {{"objects", objects}};
}

QJsonObject customBody(const CFxCustomAction& custom)
{
    QJsonArray types;
    for (std::int32_t i = 0; i < custom.GetDataCount(); ++i)
        types.append(dataTypes.at(custom.GetData(i).GetType()));
    QJsonObject body{{"kind", custom.GetKind()}, {"data", types}};
    const auto kind = static_cast<std::size_t>(custom.GetKind());
    if (kind < actionKindNames.size() && actionKindNames[kind])
        body["name"] = actionKindNames[kind];
    return body;
}

/// Kind and body.
std::pair<const char*, QJsonValue> describe(const OdRxObject* action, CFxValueContext context, ActionCounts& counts)
{
    if (!action)
        return {"null", QJsonValue::Null};
    if (const auto command = odrxQuery<CFxUserCommand>(action))
        return {"command", commandBody(*command, context, counts)};
    if (const auto added = odrxQuery<CFxObjectAdded>(action))
        return {"added", addedBody(*added)};
    if (const auto modified = odrxQuery<CFxObjectModified>(action))
        return {"modified", modifiedBody(*modified)};
    if (const auto property = odrxQuery<CFxPropertyChanged>(action))
        return {"property", propertyBody(*property, context)};
    if (const auto variable = odrxQuery<CFxSysVarChanged>(action))
        return {"sysvar",
                QJsonObject{{"name", variable->GetName().toQString()}, {"value", toJson(variable->GetValue())}}};
    if (const auto interaction = odrxQuery<CFxUserInteraction>(action))
        return {"interaction", interactionBody(*interaction)};
    if (const auto selection = odrxQuery<CFxUserSelection>(action))
        return {"selection", selectionBody(*selection)};
    if (const auto custom = odrxQuery<CFxCustomAction>(action))
        return {"custom", customBody(*custom)};
    return {"unknown", QJsonObject{{"class", action->isA()->name()}}};
}

} // namespace

QJsonValue valueToJson(const CFxVariant& value)
{
    return toJson(value);
}

QJsonObject actionToJson(const OdRxObject* action, CFxValueContext context, ActionCounts& counts)
{
    const auto [kind, body] = describe(action, context, counts);
    ++counts[kind];
    return {{kind, body}};
}

} // namespace inkmacro
