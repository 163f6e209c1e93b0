#include "recordfile/valueForms.h"

#include <array>

namespace inkmacro::recordfile {

// Values of properties

namespace {

template<CFxVariant::Type type, auto getter>
constexpr Choice<CFxVariant> valueChoice(std::string_view key, const char* meaning)
{
    using T = std::decay_t<std::invoke_result_t<decltype(getter), const CFxVariant&>>;
    return {
        key,
        meaning,
        [](const Json& json) { return CFxVariant(Form<T>::read(json)); },
        [](const CFxVariant& value) { return value.GetType() == type; },
        [](JsonOut& out, const CFxVariant& value) { Form<T>::write(out, (value.*getter)()); },
        Form<T>::schema,
    };
}

constexpr std::array valueChoices{
    valueChoice<CFxVariant::kString, &CFxVariant::GetString>("text", "as the bare text"),
    valueChoice<CFxVariant::kDouble, &CFxVariant::GetDouble>("double", "as the bare number"),
    valueChoice<CFxVariant::kInt32, &CFxVariant::GetInt32>("int", "32-bit integer"),
    valueChoice<CFxVariant::kPoint3d, &CFxVariant::GetPoint3d>("point", "point"),
    valueChoice<CFxVariant::kColor, &CFxVariant::GetColor>("color", "color"),
    valueChoice<CFxVariant::kId, &CFxVariant::GetId>("id", "object, by its handle"),
    valueChoice<CFxVariant::kTransparency, &CFxVariant::GetTransparency>("transparency", "transparency"),
    valueChoice<CFxVariant::kCollection, &CFxVariant::GetCollection>("collection", "list of elements"),
    valueChoice<CFxVariant::kCollectionElement, &CFxVariant::GetCollectionElement>("element", "pair of values"),
};

} // namespace

CFxVariant Form<CFxVariant>::read(const Json& json)
{
    static const auto keys = keysOf(std::span<const Choice<CFxVariant>>(valueChoices));
    switch (json.element.type()) {
    case simdjson::dom::element_type::STRING:
        return Form<CFxString>::read(json);
    case simdjson::dom::element_type::INT64:
    case simdjson::dom::element_type::UINT64:
    case simdjson::dom::element_type::DOUBLE:
        return Form<double>::read(json);
    case simdjson::dom::element_type::NULL_VALUE:
        return {};
    case simdjson::dom::element_type::OBJECT:
        return readChoice<CFxVariant>(json, valueChoices, keys, "value type");
    default:
        json.failExpected("a value: a text, a number, null or an object with a value type");
    }
}

void Form<CFxVariant>::write(JsonOut& out, const CFxVariant& value)
{
    switch (value.GetType()) {
    case CFxVariant::kString:
        return Form<CFxString>::write(out, value.GetString());
    case CFxVariant::kDouble:
        return Form<double>::write(out, value.GetDouble());
    case CFxVariant::kNullType:
        return out.null();
    default:
        return writeChoice<CFxVariant>(out, valueChoices, value);
    }
}

QJsonObject Form<CFxVariant>::schema(SchemaDefinitions& definitions)
{
    return definitions.reference("value", [](SchemaDefinitions& all) {
        return anyOfSchema({
            typeSchema("string"),
            typeSchema("number"),
            typeSchema("null"),
            choiceSchema<CFxVariant>(valueChoices, all),
        });
    });
}

// Elements and collections

namespace {

struct ElementBody
{
    CFxVariant tag;
    CFxVariant value;
};

struct CollectionBody
{
    std::int32_t chosen = 0;
    std::vector<CFxVariantCollectionElement> elements;
};

} // namespace

template<>
struct Form<ElementBody> : ObjectForm<Form<ElementBody>, ElementBody>
{
    static constexpr const char* name = "element";
    static constexpr std::array keys{
        required<&ElementBody::tag>("tag", "a text, or the number of the element"),
        required<&ElementBody::value>("value", "the value"),
    };
};

template<>
struct Form<CollectionBody> : ObjectForm<Form<CollectionBody>, CollectionBody>
{
    static constexpr const char* name = "collection";
    static constexpr std::array keys{
        optional<&CollectionBody::chosen>("chosen", "the number that it begins with, else 0"),
        required<&CollectionBody::elements>("elements", "the elements in their order"),
    };
};

CFxVariantCollectionElement Form<CFxVariantCollectionElement>::read(const Json& json)
{
    ElementBody body = Form<ElementBody>::read(json);
    return {std::move(body.tag), std::move(body.value)};
}

void Form<CFxVariantCollectionElement>::write(JsonOut& out, const CFxVariantCollectionElement& value)
{
    Form<ElementBody>::write(out, {*value.GetTag(), *value.GetValue()});
}

QJsonObject Form<CFxVariantCollectionElement>::schema(SchemaDefinitions& definitions)
{
    return Form<ElementBody>::schema(definitions);
}

CFxVariantCollection Form<CFxVariantCollection>::read(const Json& json)
{
    CollectionBody body = Form<CollectionBody>::read(json);
    return CFxVariantCollection(std::move(body.elements), body.chosen);
}

void Form<CFxVariantCollection>::write(JsonOut& out, const CFxVariantCollection& value)
{
    Form<CollectionBody>::write(out, {value.GetChosen(), value.GetCollectionDataForRead()});
}

QJsonObject Form<CFxVariantCollection>::schema(SchemaDefinitions& definitions)
{
    return Form<CollectionBody>::schema(definitions);
}

// Data of custom actions

namespace {

using Data = CFxCustomActionData;

template<class T, auto getter>
constexpr Choice<Data> dataChoice(std::string_view key, const char* meaning)
{
    return {
        key,
        meaning,
        [](const Json& json) { return Data(Data::Value(std::in_place_type<T>, Form<T>::read(json))); },
        [](const Data& data) {
            static const Data::Value sample(std::in_place_type<T>);
            return data.GetType() == static_cast<Data::_Type>(sample.index());
        },
        [](JsonOut& out, const Data& data) {
            const T& value = (data.*getter)();
            Form<T>::write(out, value);
        },
        Form<T>::schema,
    };
}

constexpr std::array dataChoices{
    dataChoice<bool, &Data::GetBool>("bool", "truth value"),
    dataChoice<std::int16_t, &Data::GetInt16>("int16", "16-bit integer"),
    dataChoice<int, &Data::GetInt>("int", "32-bit integer"),
    dataChoice<double, &Data::GetDouble>("double", "number"),
    dataChoice<CFxString, &Data::GetString>("string", "text"),
    dataChoice<std::vector<CFxString>, &Data::GetStringArray>("strings", "texts"),
    dataChoice<OdGePoint3d, &Data::GetPoint>("point", "point"),
    dataChoice<OdGeVector3d, &Data::GetVector>("vector", "vector"),
    dataChoice<OdCmColor, &Data::GetColor>("color", "color"),
    dataChoice<OdDbHandle, &Data::GetHandle>("handle", "handle"),
    dataChoice<const OdRxClass*, &Data::GetClass>("class", "name of a class"),
    dataChoice<std::vector<OdDbHandle>, &Data::GetHandleArray>("handles", "handles"),
    dataChoice<std::vector<const OdRxClass*>, &Data::GetClassArray>("classes", "names of classes"),
    dataChoice<OdArray<OdGePoint3d>, &Data::GetPointArray>("points", "points"),
    dataChoice<OdArray<OdGePoint2d>, &Data::Get2dPointArray>("points2d", "plane points"),
    dataChoice<OdArray<double>, &Data::GetDoubleArray>("doubles", "numbers"),
    dataChoice<OdArray<int>, &Data::GetIntArray>("ints", "32-bit integers"),
    dataChoice<OdArray<OdDbObjectId>, &Data::GetObjectIdArray>("ids", "objects, by their handles"),
};
static_assert(dataChoices.size() == std::variant_size_v<Data::Value>);

} // namespace

std::string_view dataType(const CFxCustomActionData& data)
{
    for (const Choice<Data>& choice : dataChoices)
        if (choice.holds(data))
            return choice.key;
    return {};
}

/// One neutral value a type.
template<std::size_t... index>
static std::vector<Data> neutralData(std::index_sequence<index...>)
{
    return {Data(Data::Value(std::in_place_index<index>))...};
}

std::string_view dataType(CFxCustomActionData::_Type type)
{
    static const std::vector<Data> samples = neutralData(std::make_index_sequence<std::variant_size_v<Data::Value>>());
    return dataType(samples[static_cast<std::size_t>(type)]);
}

CFxCustomActionData Form<CFxCustomActionData>::read(const Json& json)
{
    static const auto keys = keysOf(std::span<const Choice<Data>>(dataChoices));
    return readChoice<Data>(json, dataChoices, keys, "data type");
}

void Form<CFxCustomActionData>::write(JsonOut& out, const CFxCustomActionData& value)
{
    writeChoice<Data>(out, dataChoices, value);
}

QJsonObject Form<CFxCustomActionData>::schema(SchemaDefinitions& definitions)
{
    return definitions.reference("data", [](SchemaDefinitions& all) { return choiceSchema<Data>(dataChoices, all); });
}

// Result buffers

namespace {

using BufferValue = OdResBuf::Value;

template<class T>
constexpr Choice<BufferValue> bufferChoice(std::string_view key, const char* meaning)
{
    return {
        key,
        meaning,
        [](const Json& json) { return BufferValue(std::in_place_type<T>, Form<T>::read(json)); },
        [](const BufferValue& value) { return std::holds_alternative<T>(value); },
        [](JsonOut& out, const BufferValue& value) { Form<T>::write(out, std::get<T>(value)); },
        Form<T>::schema,
    };
}

constexpr std::array bufferChoices{
    bufferChoice<OdString>("string", "text"),
    bufferChoice<double>("double", "number"),
    bufferChoice<std::int8_t>("int8", "8-bit integer"),
    bufferChoice<std::int16_t>("int16", "16-bit integer"),
    bufferChoice<std::int32_t>("int32", "32-bit integer"),
    bufferChoice<bool>("bool", "truth value"),
    bufferChoice<OdGePoint2d>("point2d", "plane point"),
    bufferChoice<OdGePoint3d>("point3d", "point"),
};

/// The type codes which go without saying, one a choice.
constexpr std::array defaultTypes{
    OdResBuf::kRtString, OdResBuf::kRtDouble, OdResBuf::kRtInt8,    OdResBuf::kRtInt16,
    OdResBuf::kRtInt32,  OdResBuf::kRtBool,   OdResBuf::kRtPoint2d, OdResBuf::kRtPoint3d,
};
static_assert(bufferChoices.size() == defaultTypes.size());
static_assert(bufferChoices.size() + 1 == std::variant_size_v<BufferValue>);

constexpr std::string_view kTypeKey = "type";
using TypeForm = Form<std::int32_t>;

QString choiceList()
{
    QStringList keys;
    for (const Choice<BufferValue>& choice : bufferChoices)
        keys.append(toText(choice.key));
    return keys.join(", ");
}

OdResBufPtr readElement(const Json& json)
{
    std::optional<std::int32_t> type;
    std::optional<std::size_t> chosen;
    BufferValue value;
    // The type is the first key, the choices stand behind it.
    const auto nameOf = [](std::size_t i) { return i == 0 ? kTypeKey : bufferChoices[i - 1].key; };
    readEntries(
        json, bufferChoices.size() + 1, nameOf, [](std::size_t) { return false; },
        [&](std::size_t i, const Json& entry) {
            if (i == 0) {
                type = TypeForm::read(entry);
                return;
            }
            if (chosen)
                json.fail(QString("only one value is allowed, found %1 and %2")
                              .arg(quoted(bufferChoices[*chosen].key), quoted(nameOf(i))));
            chosen = i - 1;
            value = bufferChoices[*chosen].read(entry);
        });
    if (!chosen)
        json.fail("the value is missing, one of " + choiceList());
    return odrxNew<OdResBuf>(type.value_or(defaultTypes[*chosen]), std::move(value));
}

void writeElement(JsonOut& out, const OdResBuf& element)
{
    out.beginObject();
    for (std::size_t i = 0; i < bufferChoices.size(); ++i) {
        if (!bufferChoices[i].holds(element.value()))
            continue;
        if (out.neutralKeys == NeutralKeys::Write || element.restype() != defaultTypes[i]) {
            out.key(kTypeKey);
            TypeForm::write(out, element.restype());
        }
        out.key(bufferChoices[i].key);
        bufferChoices[i].write(out, element.value());
    }
    out.endObject();
    if (std::holds_alternative<std::monostate>(element.value()))
        out.refuse();
}

QJsonObject elementSchema(SchemaDefinitions& definitions)
{
    return definitions.reference("resbufElement", [](SchemaDefinitions& all) {
        ObjectSchema object;
        object.add(toText(kTypeKey), "type code, else the one that fits the value", TypeForm::schema(all), false);
        QJsonArray alternatives;
        for (const Choice<BufferValue>& choice : bufferChoices) {
            object.add(toText(choice.key), choice.meaning, choice.schema(all), false);
            alternatives.append(QJsonObject{{"required", QJsonArray{toText(choice.key)}}});
        }
        QJsonObject json = object.json();
        json.insert("oneOf", alternatives);
        return json;
    });
}

constexpr const char* kResBufs = "a result buffer or a list of them";

} // namespace

OdResBufPtr ResBufListForm::read(const Json& json)
{
    if (json.element.is_object())
        return readElement(json);
    const simdjson::dom::array array = json.array(kResBufs);
    OdResBufPtr first;
    OdResBufPtr last;
    std::size_t index = 0;
    for (const simdjson::dom::element element : array) {
        OdResBufPtr read = readElement(json.entry(index, element));
        ++index;
        if (last)
            last->setNext(read);
        else
            first = read;
        last = std::move(read);
    }
    return first;
}

void ResBufListForm::write(JsonOut& out, const OdResBufPtr& first)
{
    out.beginArray();
    for (OdResBufPtr element = first; element; element = element->next())
        writeElement(out, *element);
    out.endArray();
}

QJsonObject ResBufListForm::schema(SchemaDefinitions& definitions)
{
    return anyOfSchema({elementSchema(definitions), listSchema(elementSchema(definitions))});
}

OdResBufPtr Form<OdResBufPtr>::read(const Json& json)
{
    OdResBufPtr first = ResBufListForm::read(json);
    if (!first)
        json.failExpected(kResBufs);
    return first;
}

void Form<OdResBufPtr>::write(JsonOut& out, const OdResBufPtr& first)
{
    if (!first)
        return out.refuse();
    if (first->next())
        ResBufListForm::write(out, first);
    else
        writeElement(out, *first);
}

QJsonObject Form<OdResBufPtr>::schema(SchemaDefinitions& definitions)
{
    return definitions.reference("resbuf", [](SchemaDefinitions& all) {
        QJsonObject chain = listSchema(elementSchema(all));
        chain.insert("minItems", 1);
        return anyOfSchema({elementSchema(all), chain});
    });
}

} // namespace inkmacro::recordfile
