// The form of what is found when a macro is verified.

#include "app/verificationSchema.h"

#include "app/reportSchema.h"
#include "recordfile/SchemaDefinitions.h"

#include <QJsonDocument>

namespace inkmacro {

using namespace recordfile;

namespace {

/// Grows when what a program could rely on changes. The scripts in view/ write it.
constexpr int kVerificationVersion = 1;

struct Word
{
    const char* name;
    const char* meaning;
};

constexpr Word verdicts[] = {
    {"equal", "the macro draws what was recorded, but for what it lacks as told"},
    {"different", "something is different, missing or too much"},
    {"stopped", "the macro stopped with an error"},
};

/// What is found of an object or a property.
constexpr Word kinds[] = {
    {"different", "the macro gives it another value"},
    {"missingAsTold", "the macro lacks it, and the report of the conversion says so"},
    {"missing", "the macro lacks it, and nothing says so"},
    {"surplus", "the macro draws it, and the recording has no such thing"},
    {"notChecked", "the model of the application cannot tell"},
};

QJsonObject wordsSchema(const Word* begin, const Word* end)
{
    QJsonArray words;
    for (const Word* word = begin; word != end; ++word)
        words.append(QJsonObject{{"const", word->name}, {"description", word->meaning}});
    return anyOfSchema(words);
}

QJsonObject countSchema(int least)
{
    QJsonObject schema = typeSchema("integer");
    schema.insert("minimum", least);
    return schema;
}

QJsonObject orNull(const QJsonObject& schema)
{
    return anyOfSchema({schema, typeSchema("null")});
}

QJsonObject countsSchema()
{
    ObjectSchema counts;
    counts.add("equal", "values and objects that are as they were recorded", countSchema(0), true);
    for (const Word& kind : kinds)
        counts.add(kind.name, kind.meaning, countSchema(0), true);
    return counts.json();
}

QJsonObject stopSchema()
{
    ObjectSchema stop;
    stop.add("macroLine", "the line of the macro, from 1, when it is known", orNull(countSchema(1)), true);
    stop.add("message", "the error", typeSchema("string"), true);
    return stop.json();
}

QJsonObject findingSchema()
{
    ObjectSchema finding;
    finding.add("kind", "what is found", wordsSchema(std::begin(kinds), std::end(kinds)), true);
    finding.add("class", "the class of the object; empty when it is about none", typeSchema("string"), true);
    finding.add("handle", "the object's handle in the recording; empty when there is none", typeSchema("string"), true);
    finding.add("line", "the line of the recording, from 1", orNull(countSchema(1)), true);
    finding.add("path", "the place of the action within it, such as command.actions[2]; empty for the whole line",
                typeSchema("string"), true);
    finding.add("macroLines", "the first and the last one of the lines of the macro, from 1",
                orNull(listSchema(countSchema(1), 2, 2)), true);
    finding.add("what", "the property; empty for the object as a whole", typeSchema("string"), true);
    finding.add("recorded", "the value in the recording; null for none", {}, true);
    finding.add("drawn", "the value that the macro gives; null for none", {}, true);
    finding.add("reason", "what is to be said of it", typeSchema("string"), true);
    return finding.json();
}

} // namespace

QByteArray verificationSchema()
{
    ObjectSchema document;
    document.add("verificationVersion", "of the form of this document", QJsonObject{{"const", kVerificationVersion}},
                 true);
    document.add(kProgramVersionKey, "of the program that wrote it", typeSchema("string"), true);
    document.add("input", "the recording; - is standard input", typeSchema("string"), true);
    document.add("macro", "the name of the macro file", typeSchema("string"), true);
    document.add("verdict", "how it ended", wordsSchema(std::begin(verdicts), std::end(verdicts)), true);
    document.add("counts", "how much there is of each kind", countsSchema(), true);
    document.add("stopped", "where and why the macro stopped, when it did", orNull(stopSchema()), true);
    document.add("findings", "what is not equal", listSchema(findingSchema()), true);
    QJsonObject schema = document.json();
    schema.insert("$schema", "https://json-schema.org/draft/2020-12/schema");
    schema.insert("title", "How what a macro draws differs from the recording");
    return QJsonDocument(schema).toJson();
}

} // namespace inkmacro
