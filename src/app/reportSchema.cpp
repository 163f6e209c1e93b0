// The form of reports for programs.

#include "app/reportSchema.h"

#include "app/ExitStatus.h"
#include "recordfile/SchemaDefinitions.h"

#include <QJsonDocument>

namespace inkmacro {

using namespace recordfile;

namespace {

QJsonObject noteSchema(const char* what)
{
    ObjectSchema note;
    note.add("line", "the line of the recording, from 1", typeSchema("integer"), true);
    note.add("path", "the place of the action within the line, such as command.actions[2]; empty for the whole line",
             typeSchema("string"), true);
    note.add("what", what, typeSchema("string"), true);
    note.add("reason", "why", typeSchema("string"), true);
    return note.json();
}

QJsonObject faultSchema()
{
    ObjectSchema fault;
    fault.add("file", "the file's name, without folders", typeSchema("string"), true);
    fault.add("line", "the first of the lines", typeSchema("integer"), true);
    fault.add("count", "how many places have it", typeSchema("integer"), true);
    fault.add("lines", "the line of each place, from 1; 0 when it is not known", listSchema(typeSchema("integer")),
              true);
    fault.add("operation", "what writes the places", typeSchema("string"), true);
    fault.add("reason", "why their own language or host rejects or misreads them", typeSchema("string"), true);
    fault.add("mended", "whether --repair writes the macro without it", typeSchema("boolean"), true);
    return fault.json();
}

QJsonObject kindSchema(const char* key, const char* meaning, const QJsonObject& value)
{
    ObjectSchema kind;
    kind.add("kind", "what the drawing file calls the entities", typeSchema("string"), true);
    kind.add("count", "how many there are", typeSchema("integer"), true);
    kind.add(key, meaning, value, true);
    return kind.json();
}

/// What became of the entities of a drawing file; absent for a recording.
void addDrawing(ObjectSchema& conversion)
{
    QJsonObject counts = typeSchema("object");
    counts.insert("additionalProperties", typeSchema("integer"));
    conversion.add("imported", "of a drawing: how many entities of each kind came into the recording", counts, false);
    conversion.add("approximated", "of a drawing: entities that came in as other curves",
                   listSchema(kindSchema("deviation", "the largest distance between both, in drawing units",
                                         typeSchema("number"))),
                   false);
    conversion.add("lost", "of a drawing: entities that did not come into the recording",
                   listSchema(kindSchema("reason", "why", typeSchema("string"))), false);
    conversion.add("untold", "of a drawing: what the file says of entities that came in, and no recording can",
                   listSchema(kindSchema("what", "what that is", typeSchema("string"))), false);
    conversion.add("remarks", "of a drawing: what is odd about the file as a whole", listSchema(typeSchema("string")),
                   false);
}

QJsonObject conversionSchema()
{
    ObjectSchema conversion;
    conversion.add("input", "the recording; - is standard input", typeSchema("string"), true);
    conversion.add("target", "the language of the macro", typeSchema("string"), true);
    conversion.add("status", "how it ended",
                   enumSchema({statusWord(kDone), statusWord(kFailed), statusWord(kUnreadable)}), true);
    conversion.add("error", "why it did not end well", typeSchema("string"), false);
    conversion.add("macro", "the macro file, when it was written; - is standard output", typeSchema("string"), false);
    conversion.add("map", "the map of the macro's lines, when it was asked for", typeSchema("string"), false);
    conversion.add("project", "the files of the project around it that were written", listSchema(typeSchema("string")),
                   true);
    addDrawing(conversion);
    conversion.add("losses", "what the user did and the macro does not",
                   listSchema(noteSchema("what is lost: an action, an object or a property of one")), true);
    conversion.add("assumed", "values that the macro states and the recording does not hold, or holds in another form",
                   listSchema(noteSchema("what has the value: an action or a property of an object")), true);
    conversion.add("faults", "what the macro's or its project's own language or host rejects or misreads",
                   listSchema(faultSchema()), true);
    return conversion.json();
}

} // namespace

QString statusWord(int status)
{
    return status == kDone ? "converted" : status == kUnreadable ? "unreadable" : "failed";
}

QByteArray reportSchema()
{
    ObjectSchema document;
    QJsonObject version = typeSchema("integer");
    version.insert("const", kReportVersion);
    document.add(kReportVersionKey, "of the form of this report", version, true);
    document.add(kProgramVersionKey, "of the program that wrote it", typeSchema("string"), true);
    document.add(kConversionsKey, "recording by recording, and within one target by target",
                 listSchema(conversionSchema()), true);
    QJsonObject schema = document.json();
    schema.insert("$schema", "https://json-schema.org/draft/2020-12/schema");
    schema.insert("title", "What macros lack and where they are faulty");
    return QJsonDocument(schema).toJson();
}

} // namespace inkmacro
