#pragma once

#include "TestRecords.h"
#include "TestTarget.h"

#include "host/db/OdDbClassMap.h"
#include "objects/ChangeRows.h"
#include "objects/classTable.h"

/// A record of a repeated property.
inline CFxPropertyChangedPtr record(const CFxString& tag, const CFxVariant& value, const CFxVariant& index = {})
{
    return odrxNew<TestProperty>(tag, value, CFxString(), index);
}

inline CFxVariantCollectionElement item(std::int32_t number, const char* text)
{
    return {number, CFxString(text)};
}

/// What becomes of the records of the object "it1", all of which must be known to the class.
inline QString changedIn(TestTarget& made, const char* cls, PropertyList list)
{
    Statement text;
    const RecordedObject object{oddbClassByName(cls), {}, "it1"};
    const ClassChanges& changes = FindClass(QString(cls))->changes;
    if (changes.groups)
        ConvertRows(made.conversion, *changes.groups, object, list, text);
    else
        changes.handler(made.conversion, object, list, text);
    EXPECT_TRUE(list.empty()) << cls;
    return textOf(text);
}

inline std::string changed(const char* cls, const PropertyList& list,
                           inkmacro::Target target = inkmacro::Target::CSharp)
{
    TestTarget made(target);
    return changedIn(made, cls, list).toStdString();
}
