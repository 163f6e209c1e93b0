#include "recordfile/lineForms.h"

#include "recordfile/plainForms.h"

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
    static constexpr std::array keys{
        required<&Recording::Sheet::name>("name", "name of the layout"),
        required<&Recording::Sheet::model>("model", "whether it is that of model space"),
    };
};

namespace {

using Mode = IntegerForm<int, 0>;

constexpr std::array headerKeys{
    versionKey,
    optional<&Recording::Header::language, LanguageForm>("language",
                                                         "the host setting RecordingLanguage, a language code"),
    optional<&Recording::Header::mode, Mode>("mode", "the ConversionMode: 1 replays prompts and selections"),
    optional<&Recording::Header::context>("context", "opaque value for the getters of properties"),
    optional<&Recording::Header::sheet>("sheet", "the layout that was current when recording began, else model space"),
};

} // namespace

constinit const std::span<const Key<Recording::Header>> Form<Recording::Header>::keys = headerKeys;

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

constexpr std::array drawingKeys{
    optional<&Recording::Drawing::currentLayout>("currentLayout", "handle of the layout that is current"),
    optional<&Recording::Drawing::activeBlock>("activeBlock", "handle of the block that is drawn into"),
    optional<&Recording::Drawing::layer>("layer", "handle of the active layer"),
    optional<&Recording::Drawing::textStyle>("textStyle", "handle of the current text style"),
    optional<&Recording::Drawing::tableStyle>("tableStyle", "handle of the current table style"),
    optional<&Recording::Drawing::dimensionStyle>("dimensionStyle", "handle of the current dimension style"),
    optional<&Recording::Drawing::richLineStyle>("richLineStyle", "handle of the current rich line style"),
    optional<&Recording::Drawing::lineStyle>("lineStyle", "handle of the current line style"),
    optional<&Recording::Drawing::lineStyleFolders>(
        "lineStyleFolders", "where the files of line styles lie, seen from the recording's folder"),
    optional<&Recording::Drawing::groupDictionary>("groupDictionary", "handle of the dictionary of groups"),
    optional<&Recording::Drawing::settings, SettingsForm>("settings", "variables of drawing and host, by name"),
};

} // namespace

constinit const std::span<const Key<Recording::Drawing>> Form<Recording::Drawing>::keys = drawingKeys;

} // namespace inkmacro::recordfile
