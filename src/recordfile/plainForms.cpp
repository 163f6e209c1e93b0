#include "recordfile/plainForms.h"

#include "recordfile/TextPool.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace inkmacro::recordfile {

namespace {

std::optional<qint64> wholeNumber(const simdjson::dom::element& element)
{
    std::int64_t whole = 0;
    double number = 0.0;
    if (element.get(whole) == simdjson::SUCCESS)
        return whole;
    // 3.0 is a whole number in JSON.
    if (element.get(number) == simdjson::SUCCESS && number == std::trunc(number) && std::abs(number) < 0x1p63)
        return static_cast<qint64>(number);
    return {};
}

} // namespace

qint64 readInteger(const Json& json, qint64 least, qint64 most)
{
    const std::optional<qint64> number = wholeNumber(json.element);
    if (!number || *number < least || *number > most)
        json.failExpected(QString("a whole number from %1 to %2").arg(least).arg(most));
    return *number;
}

QJsonObject integerSchema(qint64 least, qint64 most)
{
    return {{"type", "integer"}, {"minimum", least}, {"maximum", most}};
}

bool Form<bool>::read(const Json& json)
{
    bool value = false;
    if (json.element.get(value) != simdjson::SUCCESS)
        json.failExpected("true or false");
    return value;
}

double Form<double>::read(const Json& json)
{
    double value = 0.0;
    if (json.element.get(value) != simdjson::SUCCESS)
        json.failExpected("a number");
    return value;
}

const CFxString* Form<const CFxString*>::read(const Json& json)
{
    return json.reading.texts.text(json.text());
}

// Handles, ids and classes

namespace {

constexpr std::size_t kHandleDigits = 16;

constexpr int hexadecimal(char digit)
{
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    const char small = static_cast<char>(digit | 0x20);
    return small >= 'a' && small <= 'f' ? small - 'a' + 10 : -1;
}

} // namespace

OdDbHandle Form<OdDbHandle>::read(const Json& json)
{
    const std::string_view text = json.text("a handle as a text of hexadecimal digits");
    std::uint64_t value = 0;
    for (const char digit : text) {
        if (hexadecimal(digit) < 0)
            json.fail(quoted(text) + " is not a handle: only hexadecimal digits are allowed");
        value = value << 4 | static_cast<std::uint64_t>(hexadecimal(digit));
    }
    if (text.size() > kHandleDigits)
        json.fail(QString("%1 is not a handle: more than %2 digits").arg(quoted(text)).arg(kHandleDigits));
    if (value == 0)
        json.fail(quoted(text) + " is not a handle: zero stands for no object");
    const OdDbHandle handle(value);
    json.reading.database.noteHandle(handle);
    return handle;
}

void Form<OdDbHandle>::write(JsonOut& out, const OdDbHandle& value)
{
    if (value.isNull())
        out.refuse();
    out.text(value.ascii());
}

QJsonObject Form<OdDbHandle>::schema(SchemaDefinitions& definitions)
{
    return definitions.reference("handle", [](SchemaDefinitions&) {
        return QJsonObject{
            {"type", "string"},
            {"description", "hexadecimal digits, not all of them zero"},
            {"pattern", QString("^(?=.*[1-9A-Fa-f])[0-9A-Fa-f]{1,%1}$").arg(kHandleDigits)},
        };
    });
}

OdDbObjectId Form<OdDbObjectId>::read(const Json& json)
{
    return json.reading.database.getOdDbObjectId(Form<OdDbHandle>::read(json));
}

OdRxClass* Form<const OdRxClass*>::read(const Json& json)
{
    const std::string_view name = json.text("the name of a class");
    if (name.empty())
        json.failExpected("the name of a class");
    return json.reading.texts.classOf(name);
}

void Form<const OdRxClass*>::write(JsonOut& out, const OdRxClass* value)
{
    if (!value || value->name().isEmpty())
        out.refuse();
    out.text(value ? value->name() : QString());
}

QJsonObject Form<const OdRxClass*>::schema(SchemaDefinitions&)
{
    return {{"type", "string"}, {"minLength", 1}};
}

// Points and vectors

void readCoordinates(const Json& json, std::span<double> coordinates, const char* expected)
{
    const simdjson::dom::array array = json.array(expected);
    if (array.size() != coordinates.size())
        json.failExpected(expected);
    std::size_t index = 0;
    for (const simdjson::dom::element element : array) {
        coordinates[index] = Form<double>::read(json.entry(index, element));
        ++index;
    }
}

// Colors and transparency

namespace {

/// A color for the whole of its values, one a word.
struct ColorWord
{
    std::string_view word;
    OdCmColor (*make)();
};

constexpr std::array colorWords{ColorWord{"bylayer", OdCmColor::byLayer}, ColorWord{"byblock", OdCmColor::byBlock}};

using ColorIndex = IntegerForm<std::uint16_t, 1, 255>;
using Component = Form<std::uint8_t>;

constexpr std::array colorChoices{
    Choice<OdCmColor>{
        "index",
        "index of the color",
        [](const Json& json) { return OdCmColor::byIndex(ColorIndex::read(json)); },
        [](const OdCmColor& color) { return color.isByACI(); },
        [](JsonOut& out, const OdCmColor& color) { ColorIndex::write(out, color.colorIndex()); },
        ColorIndex::schema,
    },
    Choice<OdCmColor>{
        "rgb",
        "red, green and blue",
        [](const Json& json) {
            constexpr const char* expected = "a list [red, green, blue]";
            std::vector<std::uint8_t> rgb;
            if (json.array(expected).size() == 3)
                rgb = Form<std::vector<std::uint8_t>>::read(json);
            else
                json.failExpected(expected);
            return OdCmColor::byRgb(rgb[0], rgb[1], rgb[2]);
        },
        [](const OdCmColor& color) { return !color.isByACI() && !color.isByLayer() && !color.isByBlock(); },
        [](JsonOut& out, const OdCmColor& color) {
            Form<std::vector<std::uint8_t>>::write(out, {color.red(), color.green(), color.blue()});
        },
        [](SchemaDefinitions& definitions) { return listSchema(Component::schema(definitions), 3, 3); },
    },
};

} // namespace

OdCmColor Form<OdCmColor>::read(const Json& json)
{
    static const auto keys = keysOf(std::span<const Choice<OdCmColor>>(colorChoices));
    std::string_view text;
    if (json.element.get(text) == simdjson::SUCCESS) {
        for (const ColorWord& color : colorWords)
            if (color.word == text)
                return color.make();
        json.fail(quoted(text) + " is not a color");
    }
    if (!json.element.is_object())
        json.failExpected("a color");
    return readChoice<OdCmColor>(json, colorChoices, keys, "form of a color");
}

void Form<OdCmColor>::write(JsonOut& out, const OdCmColor& value)
{
    for (const ColorWord& color : colorWords)
        if (color.make() == value)
            return out.text(color.word);
    writeChoice<OdCmColor>(out, colorChoices, value);
}

QJsonObject Form<OdCmColor>::schema(SchemaDefinitions& definitions)
{
    return definitions.reference("color", [](SchemaDefinitions& all) {
        QJsonArray words;
        for (const ColorWord& color : colorWords)
            words.append(toText(color.word));
        return anyOfSchema({enumSchema(words), choiceSchema<OdCmColor>(colorChoices, all)});
    });
}

} // namespace inkmacro::recordfile
