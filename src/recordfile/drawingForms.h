#pragma once

#include "host/db/OdDbClasses.h"
#include "recordfile/valueForms.h"

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
    static OdDbFaceRecord read(const Json& json);
    static void write(JsonOut& out, const OdDbFaceRecord& face);
    static QJsonObject schema(SchemaDefinitions& definitions);
};

/// The way to what a dimension's point hangs on; null for none.
struct ObjectPathForm
{
    using Path = OdArray<OdDbObjectId>;
    static Path read(const Json& json) { return json.element.is_null() ? Path() : Form<Path>::read(json); }
    static void write(JsonOut& out, const Path& path);
    static QJsonObject schema(SchemaDefinitions& definitions);
};

template<>
struct Form<std::array<OdArray<OdDbObjectId>, OdDbDimAssoc::kMaxPointRefs>>
    : FixedListForm<OdArray<OdDbObjectId>, OdDbDimAssoc::kMaxPointRefs, ObjectPathForm>
{
};

template<>
struct Form<OdDbHatchLoop> : ObjectForm<Form<OdDbHatchLoop>, OdDbHatchLoop>
{
    static constexpr const char* name = "hatchLoop";
    static std::span<const Key<OdDbHatchLoop>> keys();
};

template<>
struct Form<OdDbMlineElement> : ObjectForm<Form<OdDbMlineElement>, OdDbMlineElement>
{
    static constexpr const char* name = "richLineElement";
    static std::span<const Key<OdDbMlineElement>> keys();
};

} // namespace inkmacro::recordfile
