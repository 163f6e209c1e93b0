#pragma once

#include "host/db/OdDbClassMap.h"
#include "host/kernel/CFxServices.h"

#include <gtest/gtest.h>

#include <utility>

template<class>
struct ValuesOf;
template<class... Value>
struct ValuesOf<std::variant<Value OdDbObject::*...>>
{
    using Type = std::variant<Value...>;
};

/// What a recording file can say of an object: values by the keys of the object's fields.
using TestFields = std::vector<std::pair<const char*, ValuesOf<OdDbField::Member>::Type>>;

/// A drawing that a test fills, open in the host while it lives.
class TestDrawing
{
public:
    TestDrawing() { GetFxSystemServices()->SetActiveDocument(&document_); }
    ~TestDrawing() { GetFxSystemServices()->SetActiveDocument(nullptr); }
    TestDrawing(const TestDrawing&) = delete;
    TestDrawing& operator=(const TestDrawing&) = delete;

    OdDbObjectId id(std::uint64_t handle) { return database.getOdDbObjectId(OdDbHandle(handle)); }

    OdDbObjectPtr add(std::uint64_t handle, const char* cls, const TestFields& fields = {})
    {
        const OdDbClassRow& row = *oddbFindClassRow(cls);
        const OdDbObjectPtr object = row.create(oddbClassByName(cls));
        for (const auto& [key, value] : fields)
            set(*object, row, key, value);
        database.addObject(OdDbHandle(handle), object);
        return object;
    }

    OdDbDatabase database;

private:
    static void set(OdDbObject& object, const OdDbClassRow& row, const char* key,
                    const TestFields::value_type::second_type& value)
    {
        for (const OdDbField* field : oddbAllFields(row)) {
            if (OdString(field->key) != key)
                continue;
            std::visit(
                [&]<class T>(T OdDbObject::*member) {
                    ASSERT_TRUE(std::holds_alternative<T>(value)) << row.name << ' ' << key;
                    object.*member = std::get<T>(value);
                },
                field->member);
            return;
        }
        ADD_FAILURE() << row.name << " has no " << key;
    }

    CFxDocument document_{&database};
};
