#include "recordfile/SchemaDefinitions.h"

namespace inkmacro::recordfile {

QJsonObject SchemaDefinitions::reference(const QString& name, Make make)
{
    if (!all_.contains(name)) {
        all_.insert(name, QJsonObject()); // holds the place for a form that contains itself
        const QJsonObject made = make(*this);
        all_.insert(name, made);
    }
    return {{"$ref", "#/$defs/" + name}};
}

void ObjectSchema::add(const QString& key, const QString& meaning, QJsonObject schema, bool required)
{
    schema.insert("description", meaning);
    properties_.insert(key, schema);
    if (required)
        required_.append(key);
}

QJsonObject ObjectSchema::json() const
{
    QJsonObject json{{"type", "object"}, {"properties", properties_}, {"additionalProperties", false}};
    if (!required_.isEmpty())
        json.insert("required", required_);
    return json;
}

QJsonObject ObjectSchema::withOneKey() const
{
    QJsonObject schema = json();
    schema.insert("minProperties", 1);
    schema.insert("maxProperties", 1);
    return schema;
}

QJsonObject typeSchema(const char* type)
{
    return {{"type", type}};
}

QJsonObject enumSchema(const QJsonArray& values)
{
    return {{"enum", values}};
}

QJsonObject listSchema(const QJsonObject& items)
{
    return {{"type", "array"}, {"items", items}};
}

QJsonObject listSchema(const QJsonObject& items, int least, int most)
{
    QJsonObject schema = listSchema(items);
    schema.insert("minItems", least);
    schema.insert("maxItems", most);
    return schema;
}

QJsonObject anyOfSchema(const QJsonArray& schemas)
{
    return {{"anyOf", schemas}};
}

} // namespace inkmacro::recordfile
