#include "recordfile/drawingForms.h"

#include "host/db/OdDbClassMap.h"
#include "recordfile/valueForms.h"

#include <algorithm>

namespace inkmacro::recordfile {

// The forms that only the data of drawing objects have.

/// An object whose keys are names.
template<class Map, class ItemForm = Form<typename Map::mapped_type>>
struct NamedForm
{
    static Map read(const Json& json)
    {
        Map items;
        for (const simdjson::dom::key_value_pair entry : json.object()) {
            const Json value = json.entry(entry.key, entry.value);
            if (!items.emplace(toText(entry.key), ItemForm::read(value)).second)
                value.fail("the name is given twice");
        }
        return items;
    }
    static void write(JsonOut& out, const Map& items)
    {
        out.beginObject();
        for (const auto& [name, item] : items) {
            out.key(name);
            ItemForm::write(out, item);
        }
        out.endObject();
    }
    static QJsonObject schema(SchemaDefinitions& definitions)
    {
        return {{"type", "object"}, {"additionalProperties", ItemForm::schema(definitions)}};
    }
};

template<>
struct Form<OdDbNamedIds> : NamedForm<OdDbNamedIds>
{
};

template<>
struct Form<OdDbXData> : NamedForm<OdDbXData, ResBufListForm>
{
};

/// A list of three or four numbers.
template<>
struct Form<OdDbFaceRecord>
{
    static constexpr std::size_t triangle = 3;
    static constexpr std::size_t corners = std::tuple_size_v<decltype(OdDbFaceRecord::vertices)>;

    static OdDbFaceRecord read(const Json& json)
    {
        const std::size_t size = json.array().size();
        if (size != triangle && size != corners)
            json.failExpected("three or four numbers of vertices");
        const auto numbers = Form<std::vector<int>>::read(json);
        OdDbFaceRecord face;
        std::copy(numbers.begin(), numbers.end(), face.vertices.begin());
        return face;
    }
    static void write(JsonOut& out, const OdDbFaceRecord& face)
    {
        const bool isTriangle = face.vertices[triangle] == 0;
        Form<std::vector<int>>::write(out, {face.vertices.begin(), face.vertices.end() - (isTriangle ? 1 : 0)});
    }
    static QJsonObject schema(SchemaDefinitions& definitions)
    {
        return listSchema(Form<int>::schema(definitions), triangle, corners);
    }
};

/// The ways to what a dimension's points hang on.
template<>
struct Form<OdDbFour<OdArray<OdDbObjectId>>>
    : FixedListForm<OdArray<OdDbObjectId>, OdDbDimAssoc::kMaxPointRefs, NullableForm<OdArray<OdDbObjectId>>>
{
};

template<>
struct Form<OdDbHatchLoop> : ObjectForm<Form<OdDbHatchLoop>, OdDbHatchLoop>
{
    static constexpr const char* name = "hatchLoop";
    static constexpr std::array keys{
        optional<&OdDbHatchLoop::type>("type", "sum of 2 for a polyline, 4 for one found by a point, and others"),
        optional<&OdDbHatchLoop::vertices>("vertices", "the vertices of a polyline"),
        optional<&OdDbHatchLoop::assocObjIds>("assocObjIds", "handles of the objects that the boundary follows"),
    };
};

template<>
struct Form<OdDbMlineElement> : ObjectForm<Form<OdDbMlineElement>, OdDbMlineElement>
{
    static constexpr const char* name = "richLineElement";
    static constexpr std::array keys{
        optional<&OdDbMlineElement::offset>("offset", "distance from the vertices"),
        optional<&OdDbMlineElement::color>("color", "the color, else by layer"),
        optional<&OdDbMlineElement::linetypeId>("lineStyle", "handle of the line style"),
    };
};

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
