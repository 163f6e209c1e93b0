#pragma once

#include "recordfile/Json.h"
#include "recordfile/JsonOut.h"
#include "recordfile/SchemaDefinitions.h"

#include <array>
#include <bitset>
#include <limits>
#include <optional>
#include <span>
#include <type_traits>
#include <vector>

namespace inkmacro::recordfile {

// A form is how a type stands in a recording file. It has three operations: `read` makes the value or throws FormError,
// `write` writes it so that reading gives it again, and `schema` tells other programs what it looks like. The tables of
// keys and choices below are the only place where a key is named; all three operations follow them.

template<class T>
struct Form;

template<class>
struct MemberOf;
template<class B, class T>
struct MemberOf<T B::*>
{
    using Body = B;
    using Type = T;
};

template<class>
inline constexpr bool isOptional = false;
template<class T>
inline constexpr bool isOptional<std::optional<T>> = true;

/// One key of a JSON object, bound to a member of the body that stands for the object.
template<class Body>
struct Key
{
    std::string_view name;
    const char* meaning;
    bool required;
    void (*read)(const Json&, Body&);
    void (*write)(JsonOut&, std::string_view name, const Body&);
    QJsonObject (*schema)(SchemaDefinitions&);
};

template<auto Member, class F = Form<typename MemberOf<decltype(Member)>::Type>>
constexpr auto required(std::string_view name, const char* meaning)
{
    using Body = typename MemberOf<decltype(Member)>::Body;
    return Key<Body>{name,
                     meaning,
                     true,
                     [](const Json& json, Body& body) { body.*Member = F::read(json); },
                     [](JsonOut& out, std::string_view key, const Body& body) {
                         out.key(key);
                         F::write(out, body.*Member);
                     },
                     F::schema};
}

/// A key that may be absent, and is left out when the member is what it would be without the key.
template<auto Member, class F = Form<typename MemberOf<decltype(Member)>::Type>>
constexpr auto optional(std::string_view name, const char* meaning)
{
    using Body = typename MemberOf<decltype(Member)>::Body;
    auto key = required<Member, F>(name, meaning);
    key.required = false;
    key.write = [](JsonOut& out, std::string_view key, const Body& body) {
        if constexpr (isOptional<typename MemberOf<decltype(Member)>::Type>) {
            if (!(body.*Member).has_value())
                return;
        } else if (out.neutralKeys == NeutralKeys::LeaveOut && body.*Member == Body().*Member) {
            return;
        }
        out.key(key);
        F::write(out, body.*Member);
    };
    return key;
}

inline constexpr std::size_t kMostKeys = 256;

/// Reads an object's entries, and holds them against the keys that it may have and has to have. The functions take the
/// number of a key.
template<class NameOf, class IsRequired, class Read>
void readEntries(const Json& json, std::size_t count, NameOf nameOf, IsRequired isRequired, Read read)
{
    std::bitset<kMostKeys> met;
    std::size_t at = 0;
    for (const simdjson::dom::key_value_pair entry : json.object()) {
        // Most files have the keys in the table's order.
        std::size_t tried = 0;
        for (; tried < count && entry.key != nameOf(at); ++tried)
            at = at + 1 < count ? at + 1 : 0;
        if (tried == count)
            json.fail("unknown key " + quoted(entry.key));
        if (met.test(at))
            json.fail(QString("the key %1 is given twice").arg(quoted(entry.key)));
        met.set(at);
        read(at, json.entry(entry.key, entry.value));
        at = at + 1 < count ? at + 1 : 0;
    }
    for (std::size_t i = 0; i < count; ++i)
        if (isRequired(i) && !met.test(i))
            json.fail(QString("the key %1 is missing").arg(quoted(nameOf(i))));
}

/// Form of an object with the keys `Self::keys`, called `Self::name` in the schema.
template<class Self, class Body>
struct ObjectForm
{
    static Body read(const Json& json)
    {
        const std::span<const Key<Body>> keys = Self::keys;
        Body body{};
        readEntries(
            json, keys.size(), [keys](std::size_t i) { return keys[i].name; },
            [keys](std::size_t i) { return keys[i].required; },
            [keys, &body](std::size_t i, const Json& value) { keys[i].read(value, body); });
        return body;
    }

    static void write(JsonOut& out, const Body& body)
    {
        out.beginObject();
        for (const Key<Body>& key : Self::keys)
            key.write(out, key.name, body);
        out.endObject();
    }

    static QJsonObject schema(SchemaDefinitions& definitions)
    {
        return definitions.reference(Self::name, [](SchemaDefinitions& all) {
            ObjectSchema object;
            for (const Key<Body>& key : Self::keys)
                object.add(toText(key.name), key.meaning, key.schema(all), key.required);
            return object.json();
        });
    }
};

/// One of the keys of which an object has exactly one. `holds` tells whether a value is written under that key.
template<class T>
struct Choice
{
    std::string_view key;
    const char* meaning;
    T (*read)(const Json&);
    bool (*holds)(const T&);
    void (*write)(JsonOut&, const T&);
    QJsonObject (*schema)(SchemaDefinitions&);
};

template<class Row>
std::vector<std::string_view> keysOf(std::span<const Row> rows)
{
    std::vector<std::string_view> keys;
    for (const Row& row : rows)
        keys.emplace_back(row.key);
    return keys;
}

template<class T>
T readChoice(const Json& json, std::span<const Choice<T>> choices, std::span<const std::string_view> keys,
             const char* noun)
{
    const ChosenEntry chosen = json.chosenEntry(keys, noun);
    return choices[chosen.choice].read(json.entry(chosen.key, chosen.value));
}

template<class T>
void writeChoice(JsonOut& out, std::span<const Choice<T>> choices, const T& value)
{
    for (const Choice<T>& choice : choices) {
        if (!choice.holds(value))
            continue;
        out.beginObject();
        out.key(choice.key);
        choice.write(out, value);
        out.endObject();
        return;
    }
    out.refuse();
}

template<class T>
QJsonObject choiceSchema(std::span<const Choice<T>> choices, SchemaDefinitions& definitions)
{
    ObjectSchema object;
    for (const Choice<T>& choice : choices)
        object.add(toText(choice.key), choice.meaning, choice.schema(definitions), false);
    return object.withOneKey();
}

/// Form of a list of one kind of items.
template<class List, class Item, class ItemForm = Form<Item>>
struct ListForm
{
    static List read(const Json& json)
    {
        List list;
        const simdjson::dom::array array = json.array();
        if constexpr (requires { list.reserve(1); })
            list.reserve(array.size());
        std::size_t index = 0;
        for (const simdjson::dom::element element : array) {
            if constexpr (requires(Item item) { list.append(item); })
                list.append(ItemForm::read(json.entry(index, element)));
            else
                list.push_back(ItemForm::read(json.entry(index, element)));
            ++index;
        }
        return list;
    }
    static void write(JsonOut& out, const List& list)
    {
        out.beginArray();
        for (const Item& item : list)
            ItemForm::write(out, item);
        out.endArray();
    }
    static QJsonObject schema(SchemaDefinitions& definitions) { return listSchema(ItemForm::schema(definitions)); }
};

template<class T>
struct Form<std::vector<T>> : ListForm<std::vector<T>, T>
{
};
template<class T>
struct Form<OdArray<T>> : ListForm<OdArray<T>, T>
{
};

/// Form of a list of a certain length.
template<class T, std::size_t count, class ItemForm = Form<T>>
struct FixedListForm
{
    static std::array<T, count> read(const Json& json)
    {
        const simdjson::dom::array array = json.array();
        if (array.size() != count)
            json.failExpected(QString("a list with %1 entries").arg(count));
        std::array<T, count> list{};
        std::size_t index = 0;
        for (const simdjson::dom::element element : array) {
            list[index] = ItemForm::read(json.entry(index, element));
            ++index;
        }
        return list;
    }
    static void write(JsonOut& out, const std::array<T, count>& list)
    {
        out.beginArray();
        for (const T& item : list)
            ItemForm::write(out, item);
        out.endArray();
    }
    static QJsonObject schema(SchemaDefinitions& definitions)
    {
        return listSchema(ItemForm::schema(definitions), count, count);
    }
};

template<class T, std::size_t count>
struct Form<std::array<T, count>> : FixedListForm<T, count>
{
};

/// Form of a value that may be empty, for which null stands.
template<class T>
struct NullableForm
{
    static T read(const Json& json) { return json.element.is_null() ? T() : Form<T>::read(json); }
    static void write(JsonOut& out, const T& value)
    {
        if (value == T())
            out.null();
        else
            Form<T>::write(out, value);
    }
    static QJsonObject schema(SchemaDefinitions& definitions)
    {
        return anyOfSchema({typeSchema("null"), Form<T>::schema(definitions)});
    }
};

/// What is there at all is written as what it is.
template<class T>
struct Form<std::optional<T>>
{
    static std::optional<T> read(const Json& json) { return Form<T>::read(json); }
    static void write(JsonOut& out, const std::optional<T>& value) { Form<T>::write(out, *value); }
    static QJsonObject schema(SchemaDefinitions& definitions) { return Form<T>::schema(definitions); }
};

} // namespace inkmacro::recordfile
