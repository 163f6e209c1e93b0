#include "recordfile/RecordingSchema.h"

#include "recordfile/drawingForms.h"
#include "recordfile/lineForms.h"

#include <QJsonDocument>

namespace inkmacro {

using namespace recordfile;

QByteArray RecordingSchema()
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
    schema.insert("$defs", definitions.all());
    return QJsonDocument(schema).toJson();
}

} // namespace inkmacro
