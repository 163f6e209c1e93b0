#include "recordfile/actionForms.h"

#include "recordfile/TextPool.h"
#include "recordfile/recordedActions.h"

#include <algorithm>
#include <array>

namespace inkmacro::recordfile {

// A body stands for an action's JSON object. `take` fills one from what the host's interface gives, `make` makes the
// action of it.

namespace {

const CFxString noText;

struct PropertyBody
{
    OdRxClass* cls = nullptr;
    OdDbHandle handle;
    const CFxString* tag = &noText;
    CFxVariant value;
    const CFxString* group = &noText;
    std::optional<CFxVariant> index;
    std::optional<CFxVariant> old;

    static PropertyBody take(const CFxPropertyChanged& record, CFxValueContext context);
    CFxPropertyChangedPtr make(Reading& reading);
};

PropertyBody PropertyBody::take(const CFxPropertyChanged& record, CFxValueContext context)
{
    PropertyBody body{
        record.GetObjectClass(), record.GetHandle(), &record.GetName(), record.GetValue(context), &noText, {}, {}};
    if (!record.GetGroup().isEmpty())
        body.group = &record.GetGroup();
    if (CFxVariant index = record.GetIndex(context); !index.IsNull())
        body.index = std::move(index);
    if (CFxVariant old = record.GetOldValue(context); !old.IsNull())
        body.old = std::move(old);
    return body;
}

CFxPropertyChangedPtr PropertyBody::make(Reading& reading)
{
    const PropertyLabel& label = reading.texts.label(tag, group);
    if (!cls && !index && !old)
        return odrxNew<RecordedProperty>(label, std::move(value));
    PropertyDetails details{index.value_or(CFxVariant::kNull), old.value_or(CFxVariant::kNull), cls, handle};
    return odrxNew<RecordedPropertyWithDetails>(label, std::move(value), std::move(details));
}

/// The keys of a property that is an action; one in a list lacks the first two.
constexpr std::array propertyKeys{
    required<&PropertyBody::cls>("class", "class of the object"),
    required<&PropertyBody::handle>("handle", "handle of the object"),
    required<&PropertyBody::tag>("tag", "name of the property in the host's display language"),
    required<&PropertyBody::value>("value", "the value"),
    optional<&PropertyBody::group>("group", "group of properties, else none"),
    optional<&PropertyBody::index>("index", "number within a repeated property"),
    optional<&PropertyBody::old>("old", "the value before"),
};

struct PropertyActionForm : ObjectForm<PropertyActionForm, PropertyBody>
{
    static constexpr const char* name = "propertyAction";
    static constexpr auto keys = propertyKeys;
};

struct ListedPropertyForm : ObjectForm<ListedPropertyForm, PropertyBody>
{
    static constexpr const char* name = "property";
    static constexpr auto keys = std::span(propertyKeys).subspan(2);
};

} // namespace

template<>
struct Form<CFxPropertyChangedPtr>
{
    static CFxPropertyChangedPtr read(const Json& json) { return ListedPropertyForm::read(json).make(json.reading); }
    static void write(JsonOut& out, const CFxPropertyChangedPtr& record)
    {
        if (record)
            ListedPropertyForm::write(out, PropertyBody::take(*record, out.context));
        else
            out.refuse();
    }
    static QJsonObject schema(SchemaDefinitions& definitions) { return ListedPropertyForm::schema(definitions); }
};

// Commands and objects

namespace {

struct CommandBody
{
    QString name;
    CFxActionArray actions;

    /// Refuses a command line that is more than a name.
    static CommandBody take(const CFxUserCommand& command, JsonOut& out);
    OdRxObjectPtr make() { return odrxNew<RecordedCommand>(name, std::move(actions)); }
};

CommandBody CommandBody::take(const CFxUserCommand& command, JsonOut& out)
{
    const OdResBufPtr line = command.GetCommand();
    if (!line || line->next() || line->restype() != OdResBuf::kRtString)
        out.refuse();
    return {line ? line->getString() : QString(), command.GetActions()};
}

struct AddedBody
{
    OdRxClass* cls = nullptr;
    OdDbHandle handle;
    PropertyList properties;
    std::optional<PropertyList> extra;

    static AddedBody take(const CFxObjectAdded& added, JsonOut&);
    OdRxObjectPtr make();
};

AddedBody AddedBody::take(const CFxObjectAdded& added, JsonOut&)
{
    AddedBody body{added.GetObjectClass(), added.GetHandle(), added.GetProperties(), added.GetExtraProperties()};
    if (body.extra == body.properties)
        body.extra.reset();
    return body;
}

OdRxObjectPtr AddedBody::make()
{
    if (extra)
        return odrxNew<RecordedAddedWithExtra>(cls, handle, std::move(properties), std::move(*extra));
    return odrxNew<RecordedAdded>(cls, handle, std::move(properties));
}

struct ModifiedBody
{
    OdRxClass* cls = nullptr;
    OdDbHandle handle;
    PropertyList properties;

    static ModifiedBody take(const CFxObjectModified& modified, JsonOut&)
    {
        return {modified.GetObjectClass(), modified.GetHandle(), modified.GetProperties()};
    }
    OdRxObjectPtr make() { return odrxNew<RecordedModified>(cls, handle, std::move(properties)); }
};

/// Counts the commands around a value for as long as it is worked on.
class CommandDepth
{
public:
    explicit CommandDepth(int& depth) : depth_(++depth) {}
    ~CommandDepth() { --depth_; }
    CommandDepth(const CommandDepth&) = delete;
    CommandDepth& operator=(const CommandDepth&) = delete;
    bool tooDeep() const { return depth_ > kDeepestCommand; }

private:
    int& depth_;
};

} // namespace

template<>
struct Form<CommandBody> : ObjectForm<Form<CommandBody>, CommandBody>
{
    static constexpr const char* name = "command";
    static constexpr std::array keys{
        required<&CommandBody::name>("name", "name of the command"),
        required<&CommandBody::actions>("actions", "what the command did"),
    };
    static CommandBody read(const Json& json)
    {
        const CommandDepth depth(json.reading.commandDepth);
        if (depth.tooDeep())
            json.fail(QString("commands are nested more than %1 deep").arg(kDeepestCommand));
        return ObjectForm::read(json);
    }
    static void write(JsonOut& out, const CommandBody& body)
    {
        const CommandDepth depth(out.commandDepth);
        if (depth.tooDeep())
            out.refuse();
        else
            ObjectForm::write(out, body);
    }
};

template<>
struct Form<AddedBody> : ObjectForm<Form<AddedBody>, AddedBody>
{
    static constexpr const char* name = "added";
    static constexpr std::array keys{
        required<&AddedBody::cls>("class", "class of the object"),
        required<&AddedBody::handle>("handle", "handle of the object"),
        required<&AddedBody::properties>("properties", "its properties when it was added"),
        optional<&AddedBody::extra>("extra", "the second list of properties, else the same records as the first"),
    };
};

template<>
struct Form<ModifiedBody> : ObjectForm<Form<ModifiedBody>, ModifiedBody>
{
    static constexpr const char* name = "modified";
    static constexpr std::array keys{
        required<&ModifiedBody::cls>("class", "class of the object"),
        required<&ModifiedBody::handle>("handle", "handle of the object"),
        required<&ModifiedBody::properties>("properties", "the properties that changed"),
    };
};

// System variables, prompts, selections and custom actions

namespace {

struct SysVarBody
{
    const CFxString* name = &noText;
    OdResBufPtr value;

    static SysVarBody take(const CFxSysVarChanged& changed, JsonOut&)
    {
        return {&changed.GetName(), changed.GetValue()};
    }
    OdRxObjectPtr make() { return odrxNew<RecordedSysVar>(*name, std::move(value)); }
};

struct KeywordsBody
{
    std::vector<CFxString> local;
    std::vector<CFxString> global;
};

/// By name, or by number where there is no name.
struct InteractionKindForm
{
    /// In the order of the kinds.
    static constexpr std::array<std::string_view, CFxUserInteraction::kDouble + 1> names{
        "point", "angle", "distance", "orient", "corner", "scale", "string", "keyword", "color", "integer", "double"};

    static std::int32_t read(const Json& json)
    {
        std::string_view name;
        if (json.element.get(name) != simdjson::SUCCESS)
            return json.element.is_number() ? Form<std::int32_t>::read(json)
                                            : (json.failExpected("the name or the number of an interaction kind"), 0);
        const auto found = std::find(names.begin(), names.end(), name);
        if (found == names.end())
            json.fail(quoted(name) + " is not an interaction kind");
        return static_cast<std::int32_t>(found - names.begin());
    }
    static void write(JsonOut& out, std::int32_t kind)
    {
        if (kind >= 0 && static_cast<std::size_t>(kind) < names.size())
            out.text(names[static_cast<std::size_t>(kind)]);
        else
            out.integer(kind);
    }
    static QJsonObject schema(SchemaDefinitions& definitions)
    {
        QJsonArray words;
        for (const std::string_view name : names)
            words.append(toText(name));
        return anyOfSchema({enumSchema(words), Form<std::int32_t>::schema(definitions)});
    }
};

struct InteractionBody
{
    std::int32_t kind = 0;
    CFxString prompt;
    OdResBufPtr result;
    std::optional<KeywordsBody> keywords;

    static InteractionBody take(const CFxUserInteraction& interaction, JsonOut&);
    OdRxObjectPtr make();
};

InteractionBody InteractionBody::take(const CFxUserInteraction& interaction, JsonOut&)
{
    InteractionBody body{interaction.GetInteractionKind(), interaction.GetPrompt(), interaction.GetResult(), {}};
    KeywordsBody keywords;
    interaction.GetKeywords(keywords.local, keywords.global);
    if (!keywords.local.empty() || !keywords.global.empty())
        body.keywords = std::move(keywords);
    return body;
}

OdRxObjectPtr InteractionBody::make()
{
    KeywordsBody both = std::move(keywords).value_or(KeywordsBody());
    return odrxNew<RecordedInteraction>(kind, prompt, std::move(result), std::move(both.local), std::move(both.global));
}

struct PickedBody
{
    OdDbHandle handle;
    const OdRxClass* cls = nullptr;
};

struct SelectionBody
{
    std::vector<PickedBody> objects;

    static SelectionBody take(const CFxUserSelection& selection, JsonOut& out);
    OdRxObjectPtr make();
};

SelectionBody SelectionBody::take(const CFxUserSelection& selection, JsonOut& out)
{
    const std::vector<OdDbHandle>& handles = selection.GetHandles();
    const std::vector<const OdRxClass*>& classes = selection.GetClasses();
    if (handles.size() != classes.size())
        out.refuse();
    SelectionBody body;
    for (std::size_t i = 0; i < std::min(handles.size(), classes.size()); ++i)
        body.objects.push_back({handles[i], classes[i]});
    return body;
}

OdRxObjectPtr SelectionBody::make()
{
    std::vector<OdDbHandle> handles;
    std::vector<const OdRxClass*> classes;
    for (const PickedBody& object : objects) {
        handles.push_back(object.handle);
        classes.push_back(object.cls);
    }
    return odrxNew<RecordedSelection>(std::move(handles), std::move(classes));
}

struct CustomBody
{
    std::int32_t kind = 0;
    std::vector<CFxCustomActionData> data;

    static CustomBody take(const CFxCustomAction& action, JsonOut&);
    OdRxObjectPtr make() { return odrxNew<RecordedCustomAction>(kind, std::move(data)); }
};

CustomBody CustomBody::take(const CFxCustomAction& action, JsonOut&)
{
    CustomBody body{action.GetKind(), {}};
    for (std::int32_t i = 0; i < action.GetDataCount(); ++i)
        body.data.push_back(action.GetData(i));
    return body;
}

} // namespace

template<>
struct Form<SysVarBody> : ObjectForm<Form<SysVarBody>, SysVarBody>
{
    static constexpr const char* name = "sysvar";
    static constexpr std::array keys{
        required<&SysVarBody::name>("name", "name of the variable"),
        required<&SysVarBody::value>("value", "its new value"),
    };
};

template<>
struct Form<KeywordsBody> : ObjectForm<Form<KeywordsBody>, KeywordsBody>
{
    static constexpr const char* name = "keywords";
    static constexpr std::array keys{
        required<&KeywordsBody::local>("local", "the keywords as they were shown"),
        required<&KeywordsBody::global>("global", "one by one their names in all languages"),
    };
};

template<>
struct Form<InteractionBody> : ObjectForm<Form<InteractionBody>, InteractionBody>
{
    static constexpr const char* name = "interaction";
    static constexpr std::array keys{
        required<&InteractionBody::kind, InteractionKindForm>("kind", "what was asked for"),
        required<&InteractionBody::prompt>("prompt", "the prompt as it was shown, markup included"),
        required<&InteractionBody::result, NullableForm<OdResBufPtr>>("result",
                                                                      "the answer, null where there was none"),
        optional<&InteractionBody::keywords>("keywords", "the keywords that the prompt offered"),
    };
};

template<>
struct Form<PickedBody> : ObjectForm<Form<PickedBody>, PickedBody>
{
    static constexpr const char* name = "picked";
    static constexpr std::array keys{
        required<&PickedBody::handle>("handle", "handle of the object"),
        required<&PickedBody::cls>("class", "class of the object"),
    };
};

template<>
struct Form<SelectionBody> : ObjectForm<Form<SelectionBody>, SelectionBody>
{
    static constexpr const char* name = "selection";
    static constexpr std::array keys{
        required<&SelectionBody::objects>("objects", "the picked objects"),
    };
};

template<>
struct Form<CustomBody> : ObjectForm<Form<CustomBody>, CustomBody>
{
    static constexpr const char* name = "custom";
    static constexpr std::array keys{
        required<&CustomBody::kind>("kind", "number of the kind"),
        required<&CustomBody::data>("data", "the data in the order that the kind wants"),
    };
};

// Actions by their kinds

namespace {

template<class Action>
bool isA(const OdRxObjectPtr& action)
{
    return !odrxQuery<Action>(action.get()).isNull();
}

template<class Action, class Body>
constexpr Choice<OdRxObjectPtr> actionChoice(std::string_view key, const char* meaning)
{
    return {
        key,
        meaning,
        [](const Json& json) { return Form<Body>::read(json).make(); },
        isA<Action>,
        [](JsonOut& out, const OdRxObjectPtr& action) {
            Form<Body>::write(out, Body::take(static_cast<const Action&>(*action), out));
        },
        Form<Body>::schema,
    };
}

constexpr Choice<OdRxObjectPtr> propertyChoice{
    "property",
    "a property that changed by itself",
    [](const Json& json) -> OdRxObjectPtr { return PropertyActionForm::read(json).make(json.reading); },
    isA<CFxPropertyChanged>,
    [](JsonOut& out, const OdRxObjectPtr& action) {
        PropertyActionForm::write(out,
                                  PropertyBody::take(static_cast<const CFxPropertyChanged&>(*action), out.context));
    },
    PropertyActionForm::schema,
};

constexpr Choice<OdRxObjectPtr> nullChoice{
    "null",
    "an empty place",
    [](const Json& json) {
        if (!json.element.is_null())
            json.failExpected("null");
        return OdRxObjectPtr();
    },
    [](const OdRxObjectPtr& action) { return action.isNull(); },
    [](JsonOut& out, const OdRxObjectPtr&) { out.null(); },
    [](SchemaDefinitions&) { return typeSchema("null"); },
};

constexpr std::array choices{
    actionChoice<CFxUserCommand, CommandBody>("command", "a command that the user started"),
    actionChoice<CFxObjectAdded, AddedBody>("added", "an object that appeared in the drawing"),
    actionChoice<CFxObjectModified, ModifiedBody>("modified", "a change of an object"),
    propertyChoice,
    actionChoice<CFxSysVarChanged, SysVarBody>("sysvar", "a system variable that got a value"),
    actionChoice<CFxUserInteraction, InteractionBody>("interaction", "the answer to a prompt"),
    actionChoice<CFxUserSelection, SelectionBody>("selection", "objects picked at a prompt"),
    actionChoice<CFxCustomAction, CustomBody>("custom", "a command's effect in the host's own terms"),
    nullChoice,
};

} // namespace

std::span<const Choice<OdRxObjectPtr>> actionChoices()
{
    return choices;
}

OdRxObjectPtr Form<OdRxObjectPtr>::read(const Json& json)
{
    static const auto keys = keysOf(actionChoices());
    return readChoice(json, actionChoices(), keys, "kind of action");
}

void Form<OdRxObjectPtr>::write(JsonOut& out, const OdRxObjectPtr& action)
{
    writeChoice(out, actionChoices(), action);
}

QJsonObject Form<OdRxObjectPtr>::schema(SchemaDefinitions& definitions)
{
    return definitions.reference("action", [](SchemaDefinitions& all) { return choiceSchema(actionChoices(), all); });
}

} // namespace inkmacro::recordfile
