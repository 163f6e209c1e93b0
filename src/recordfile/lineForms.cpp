#include "recordfile/lineForms.h"

#include "host/db/OdDbClassMap.h"
#include "recordfile/drawingForms.h"

#include <array>
#include <unordered_set>

namespace inkmacro::recordfile {

// The header

namespace {

constexpr int kVersion = 1;

constexpr Key<Recording::Header> versionKey{
    "version",
    "version of the format",
    true,
    [](const Json& json, Recording::Header&) {
        if (Form<std::int32_t>::read(json) != kVersion)
            json.failExpected(QString("the version %1").arg(kVersion));
    },
    [](JsonOut& out, std::string_view key, const Recording::Header&) {
        out.key(key);
        out.integer(kVersion);
    },
    [](SchemaDefinitions&) {
        return QJsonObject{{"const", kVersion}};
    },
};

/// The settings that the recorder wrote as language codes.
struct LanguageForm
{
    using Code = IntegerForm<int, 0, 5>;
    static std::optional<int> read(const Json& json) { return Code::read(json); }
    static void write(JsonOut& out, const std::optional<int>& value) { Code::write(out, *value); }
    static QJsonObject schema(SchemaDefinitions& definitions) { return Code::schema(definitions); }
};

} // namespace

template<>
struct Form<Recording::Sheet> : ObjectForm<Form<Recording::Sheet>, Recording::Sheet>
{
    static constexpr const char* name = "sheet";
    static std::span<const Key<Recording::Sheet>> keys()
    {
        static constexpr std::array table{
            required<&Recording::Sheet::name>("name", "name of the layout"),
            required<&Recording::Sheet::model>("model", "whether it is that of model space"),
        };
        return table;
    }
};

std::span<const Key<Recording::Header>> Form<Recording::Header>::keys()
{
    using Header = Recording::Header;
    using Mode = IntegerForm<int, 0>;
    static constexpr std::array table{
        versionKey,
        optional<&Header::language, LanguageForm>("language", "the host setting RecordingLanguage, a language code"),
        optional<&Header::mode, Mode>("mode", "the ConversionMode: 1 replays prompts and selections"),
        optional<&Header::context>("context", "opaque value for the getters of properties"),
        optional<&Header::sheet>("sheet", "the layout that was current when recording began, else model space"),
    };
    return table;
}

// The drawing

template<>
struct Form<Recording::Setting>
{
    static Recording::Setting read(const Json& json)
    {
        if (json.element.is_bool())
            return Form<bool>::read(json);
        if (json.element.is_number())
            return Form<double>::read(json);
        if (json.element.is_string())
            return Form<QString>::read(json);
        json.failExpected("a truth value, a number or a text");
    }
    static void write(JsonOut& out, const Recording::Setting& setting)
    {
        std::visit([&](const auto& value) { Form<std::decay_t<decltype(value)>>::write(out, value); }, setting);
    }
    static QJsonObject schema(SchemaDefinitions&) { return {{"type", QJsonArray{"boolean", "number", "string"}}}; }
};

namespace {

/// An object whose keys are the settings' names.
struct SettingsForm
{
    using Settings = std::vector<std::pair<QString, Recording::Setting>>;
    static Settings read(const Json& json)
    {
        Settings settings;
        std::unordered_set<std::string_view> met;
        for (const simdjson::dom::key_value_pair entry : json.object()) {
            const QString name = toText(entry.key);
            if (!met.insert(entry.key).second)
                json.fail(QString("the key %1 is given twice").arg(quoted(name)));
            settings.emplace_back(name, Form<Recording::Setting>::read(json.entry(entry.key, entry.value)));
        }
        return settings;
    }
    static void write(JsonOut& out, const Settings& settings)
    {
        out.beginObject();
        for (const auto& [name, value] : settings) {
            out.key(name);
            Form<Recording::Setting>::write(out, value);
        }
        out.endObject();
    }
    static QJsonObject schema(SchemaDefinitions& definitions)
    {
        return {{"type", "object"}, {"additionalProperties", Form<Recording::Setting>::schema(definitions)}};
    }
};

} // namespace

std::span<const Key<Recording::Drawing>> Form<Recording::Drawing>::keys()
{
    using Drawing = Recording::Drawing;
    static constexpr std::array table{
        optional<&Drawing::currentLayout>("currentLayout", "handle of the layout that is current"),
        optional<&Drawing::activeBlock>("activeBlock", "handle of the block that is drawn into"),
        optional<&Drawing::layer>("layer", "handle of the active layer"),
        optional<&Drawing::textStyle>("textStyle", "handle of the current text style"),
        optional<&Drawing::tableStyle>("tableStyle", "handle of the current table style"),
        optional<&Drawing::dimensionStyle>("dimensionStyle", "handle of the current dimension style"),
        optional<&Drawing::richLineStyle>("richLineStyle", "handle of the current rich line style"),
        optional<&Drawing::lineStyle>("lineStyle", "handle of the current line style"),
        optional<&Drawing::lineStyleFolders>("lineStyleFolders",
                                             "where the files of line styles lie, seen from the recording's folder"),
        optional<&Drawing::groupDictionary>("groupDictionary", "handle of the dictionary of groups"),
        optional<&Drawing::settings, SettingsForm>("settings", "variables of drawing and host, by name"),
    };
    return table;
}

// Objects

namespace {

constexpr std::string_view kClassKey = "class";
constexpr std::string_view kHandleKey = "handle";

/// The class stands anywhere among the keys, and the others depend on it.
const OdDbClassRow& classRow(const Json& json)
{
    simdjson::dom::element name;
    if (json.object()[kClassKey].get(name) != simdjson::SUCCESS)
        json.fail(QString("the key %1 is missing").arg(quoted(kClassKey)));
    const Json entry = json.entry(kClassKey, name);
    const QString text = toText(entry.text("the name of a class"));
    const OdDbClassRow* const row = oddbFindClassRow(text);
    if (!row || !row->create)
        entry.fail(quoted(text) + " is not a class whose objects are known");
    return *row;
}

template<class Object>
auto memberOf(Object& object, const OdDbField& field, auto use)
{
    return std::visit(
        [&](auto member) { return use(object.*member, Form<typename MemberOf<decltype(member)>::Type>()); },
        field.member);
}

bool sameField(const OdDbObject& left, const OdDbObject& right, const OdDbField& field)
{
    return std::visit([&](auto member) { return left.*member == right.*member; }, field.member);
}

QJsonObject fieldSchema(const OdDbField& field, SchemaDefinitions& definitions)
{
    return std::visit([&](auto member) { return Form<typename MemberOf<decltype(member)>::Type>::schema(definitions); },
                      field.member);
}

} // namespace

void DrawingObjectForm::read(const Json& json)
{
    const OdDbClassRow& row = classRow(json);
    const std::vector<const OdDbField*> fields = oddbAllFields(row);
    const OdDbObjectPtr object = row.create(oddbClassByName(row.name));
    OdDbHandle handle;
    const auto nameOf = [&](std::size_t i) {
        return i == 0 ? kClassKey : i == 1 ? kHandleKey : std::string_view(fields[i - 2]->key);
    };
    readEntries(
        json, fields.size() + 2, nameOf, [](std::size_t i) { return i < 2; },
        [&](std::size_t i, const Json& value) {
            if (i == 1)
                handle = Form<OdDbHandle>::read(value);
            else if (i >= 2)
                memberOf(*object, *fields[i - 2], [&](auto& member, auto form) { member = form.read(value); });
        });
    OdDbDatabase& database = json.reading.database;
    if (database.getOdDbObjectId(handle).openObject(true))
        json.fail(QString("the drawing has an object with the handle %1 already").arg(handle.ascii()));
    database.addObject(handle, object);
}

void DrawingObjectForm::write(JsonOut& out, const OdDbObject& object)
{
    const OdDbClassRow* const row = oddbFindClassRow(object.isA()->name());
    if (!row || !row->create)
        return out.refuse();
    out.beginObject();
    out.key(kClassKey);
    out.text(object.isA()->name());
    out.key(kHandleKey);
    Form<OdDbHandle>::write(out, object.getDbHandle());
    const OdDbObjectPtr fresh = row->create(object.isA());
    for (const OdDbField* const field : oddbAllFields(*row)) {
        if (sameField(object, *fresh, *field))
            continue;
        out.key(std::string_view(field->key));
        memberOf(object, *field, [&](const auto& member, auto form) { form.write(out, member); });
    }
    out.endObject();
}

QJsonObject DrawingObjectForm::schema(SchemaDefinitions& definitions)
{
    QJsonArray classes;
    for (const OdDbClassRow& row : oddbClassRows()) {
        if (!row.create)
            continue;
        ObjectSchema object;
        object.add(toText(kClassKey), "class of the object", {{"const", row.name}}, true);
        object.add(toText(kHandleKey), "handle of the object", Form<OdDbHandle>::schema(definitions), true);
        for (const OdDbField* const field : oddbAllFields(row))
            object.add(field->key, field->meaning, fieldSchema(*field, definitions), false);
        classes.append(object.json());
    }
    return anyOfSchema(classes);
}

} // namespace inkmacro::recordfile
