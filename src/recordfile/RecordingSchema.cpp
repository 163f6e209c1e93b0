#include "recordfile/RecordingSchema.h"

#include "recordfile/drawingForms.h"
#include "recordfile/lineForms.h"

#include <QJsonDocument>

namespace inkmacro {

using namespace recordfile;

namespace {

/// The key's value is what one of those says, or whatever else it may be.
void suggest(QJsonObject& parts, const char* part, const char* key, QJsonArray schemas)
{
    QJsonObject described = parts[part].toObject();
    QJsonObject properties = described["properties"].toObject();
    QJsonObject any = properties[key].toObject();
    const QJsonValue description = any.take("description");
    schemas.append(any);
    properties[key] = QJsonObject{{"description", description}, {"anyOf", schemas}};
    described["properties"] = properties;
    parts[part] = described;
}

/// Each kind with its name, which stands beside the number in an editor.
QJsonArray kindsOf(const SchemaNames& names)
{
    QJsonArray kinds;
    for (const auto& [number, name] : names.kinds)
        kinds.append(QJsonObject{{"const", number}, {"title", name}});
    return kinds;
}

QJsonObject withNames(QJsonObject parts, const SchemaNames& names)
{
    const auto oneOf = [](const QStringList& texts) {
        return QJsonArray{enumSchema(QJsonArray::fromStringList(texts))};
    };
    if (!names.classes.isEmpty())
        for (const char* part : {"added", "modified", "propertyAction", "picked"})
            suggest(parts, part, "class", oneOf(names.classes));
    if (!names.tags.isEmpty())
        for (const char* part : {"property", "propertyAction"})
            suggest(parts, part, "tag", oneOf(names.tags));
    if (!names.kinds.empty())
        suggest(parts, "custom", "kind", kindsOf(names));
    return parts;
}

} // namespace

QByteArray RecordingSchema(const SchemaNames& names)
{
    SchemaDefinitions definitions;
    ObjectSchema line;
    const auto add = [&](LineKind kind, const char* meaning, const QJsonObject& schema) {
        line.add(toText(kOtherLineKeys[kind]), meaning, schema, false);
    };
    add(kHeaderLine, "the header: the first line if present", Form<Recording::Header>::schema(definitions));
    add(kDrawingLine, "settings of the drawing; before the first action",
        Form<Recording::Drawing>::schema(definitions));
    add(kObjectLine, "an object of the drawing; before the first action", DrawingObjectForm::schema(definitions));
    for (const Choice<OdRxObjectPtr>& choice : actionChoices())
        line.add(toText(choice.key), choice.meaning, choice.schema(definitions), false);

    QJsonObject schema = line.withOneKey();
    schema.insert("$schema", "https://json-schema.org/draft/2020-12/schema");
    schema.insert("title", "One line of an Inkwright recording");
    schema.insert("$defs", withNames(definitions.all(), names));
    return QJsonDocument(schema).toJson();
}

} // namespace inkmacro
