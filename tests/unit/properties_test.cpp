// Property lists: how a tag is found, what a read leaves behind, and what an added object makes of its two lists.

#include "TestActions.h"

#include "frame/CFxConverterIWAPIImpl.h"
#include "frame/RecordingState.h"
#include "host/kernel/CFxServices.h"
#include "objects/targets/csharp/CFxConverterIWAPIObjectCSharp.h"
#include "targets/csharp/CFxConverterIWAPICSharp.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTranslator>

namespace {

/// A host whose display language is German, as far as these tests go.
class German final : public QTranslator
{
public:
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        const QByteArray key = QByteArray(context) + '/' + source;
        if (key == "property_types/Start X")
            return QStringLiteral("Start-X");
        if (key == "property_groups/BlockAttributes" || key == "property_groups/Blockattribute")
            return QStringLiteral("Blockattribute");
        if (key == "property_values/Yes")
            return QStringLiteral("Ja");
        return {};
    }
    bool isEmpty() const override { return false; }
};

class Properties : public testing::Test
{
protected:
    Properties() : application(argc, argv) {}

    CFxVariant find(const CFxString& tag) { return converter.FindProperty(tag, list, 0, &consumed, &index); }
    std::vector<QString> tagsLeft() const
    {
        std::vector<QString> tags;
        for (const CFxPropertyChangedPtr& record : list)
            tags.push_back(record->GetName());
        return tags;
    }

    int argc = 1;
    char name[5] = "test";
    char* argv[2] = {name, nullptr};
    QCoreApplication application;
    CFxConverterIWAPIObjectCSharp converter{nullptr};
    PropertyList list;
    PropertyList consumed;
    CFxVariant index;
};

CFxPropertyChangedPtr record(const CFxString& tag, const CFxVariant& value, const CFxString& group = {},
                             const CFxVariant& number = {})
{
    return odrxNew<TestProperty>(tag, value, group, number);
}

TEST_F(Properties, AreReadOnceEachInTheirOrder)
{
    list = {record("Layer", CFxString("0")), record("Vertex X", 1.0, {}, 0), record("Vertex X", 2.0, {}, 1),
            record("vertex x", 3.0)};
    EXPECT_TRUE(find("Radius").IsNull());
    EXPECT_TRUE(consumed.empty());
    EXPECT_EQ(find("Vertex X").GetDouble(), 1.0);
    EXPECT_EQ(find("Vertex X").GetDouble(), 2.0);
    EXPECT_EQ(index.GetInt32(), 1);
    EXPECT_TRUE(find("Vertex X").IsNull());
    EXPECT_EQ(index.GetInt32(), 1);
    EXPECT_EQ(tagsLeft(), (std::vector<QString>{"Layer", "vertex x"}));
    EXPECT_EQ(consumed.size(), 2U);
}

TEST_F(Properties, AreFoundByTheirTranslatedTag)
{
    German german;
    QCoreApplication::installTranslator(&german);
    list = {record("Start-X", 4.0), record("Start X", 5.0)};
    EXPECT_EQ(find("Start X").GetDouble(), 4.0);
    EXPECT_EQ(find("Start X").GetDouble(), 5.0);
}

TEST_F(Properties, AreFoundByTheGroupOfBlockAttributes)
{
    German german;
    QCoreApplication::installTranslator(&german);
    list = {record("Height", 2.5, "Text"), record("ROOM", CFxString("Kitchen"), "BLOCKATTRIBUTE"),
            record("AREA", CFxString("12"), "Blockattribute", 7)};
    // Any other tag is searched for by tag alone.
    EXPECT_TRUE(find("BlockAttributes").IsNull());
    EXPECT_EQ(find("Blockattribute").GetString(), CFxString("Kitchen"));
    EXPECT_EQ(index.GetString(), CFxString("ROOM"));
    EXPECT_EQ(find("Blockattribute").GetString(), CFxString("12"));
    EXPECT_EQ(index.GetString(), CFxString("AREA"));
    EXPECT_TRUE(find("Blockattribute").IsNull());
}

TEST_F(Properties, MakePointsOfWhatWasRecorded)
{
    list = {record("Center Z", 3.0), record("Center X", 1.0), record("Radius", 9.0)};
    EXPECT_EQ(converter.FindPoint("Center X", "Center Y", "Center Z", list, 0), (OdGePoint3d{1.0, 0.0, 3.0}));
    EXPECT_EQ(tagsLeft(), std::vector<QString>{"Radius"});
}

TEST_F(Properties, ShowYesAndOnInTheHostsLanguage)
{
    const auto shown = [](const char* word) { return CFxVariant(CFxVariantCollectionElement({}, CFxString(word))); };
    EXPECT_TRUE(IsYes(shown("Yes")));
    EXPECT_TRUE(IsOn(shown("On")));
    EXPECT_FALSE(IsYes(shown("yes")));
    EXPECT_FALSE(IsYes(CFxString("Yes"))) << "a plain text is no choice";
    German german;
    QCoreApplication::installTranslator(&german);
    EXPECT_TRUE(IsYes(shown("Ja")));
    EXPECT_FALSE(IsYes(shown("Yes")));
}

/// Gives the records that the general handler was left with.
class Watched final : public PhrasedObjectConverter
{
public:
    explicit Watched(CFxConverterIWAPIImpl* driver) : PhrasedObjectConverter(inkmacro::Target::CSharp, driver) {}
    std::int32_t ConvertObjectChanges(OdRxClass*, OdDbHandle, PropertyList& list, bool fromAdded,
                                      QString& text) override
    {
        for (const CFxPropertyChangedPtr& left : list)
            rest.push_back(left->GetName().toQString() + ' ' + left->GetGroup().toQString());
        EXPECT_TRUE(fromAdded);
        text = "general\n";
        return status;
    }

    std::vector<QString> rest;
    std::int32_t status = kFxSuccess;
};

class AddedObjects : public testing::Test
{
protected:
    AddedObjects() { GetFxSystemServices()->SetInt16("RecordingLanguage", 1); }
    ~AddedObjects() override { GetFxSystemServices()->SetInt16("RecordingLanguage", 0); }

    std::int32_t add(const char* cls, PropertyList records)
    {
        driver.RegisterObject(OdDbHandle(1), oddbClassByName(cls));
        return converter.ConvertObjectAdded(odrxNew<TestAdded>(cls, 1, records, records), text);
    }

    CFxConverterIWAPICSharp driver{0};
    Watched converter{&driver};
    QString text = "before\n";
};

TEST_F(AddedObjects, LeaveWhatTheReaderDidNotTake)
{
    ASSERT_EQ(add("AcDbCircle", {record("Radius", 2.0, "Geometry"), record("Radius", 3.0, "Geometry"),
                                 record("Layer", CFxString("0"), "General")}),
              kFxSuccess);
    EXPECT_EQ(converter.rest, (std::vector<QString>{"Radius Geometry", "Layer General"}));
    EXPECT_EQ(text, "before\n circle1 = iwSketchManager.InsertCircle( 0.00000000000000, 0.00000000000000, "
                    "0.00000000000000, 2.00000000000000 );\ngeneral\n");
}

TEST_F(AddedObjects, AreNotAskedForMoreWhenNothingWasCreated)
{
    for (const char* cls : {"AcDbRegion", "HostWeldSymbol"})
        EXPECT_EQ(add(cls, {record("Layer", CFxString("0"))}), kFxSuccess);
    // Known to the driver under no handle.
    EXPECT_EQ(converter.ConvertObjectAdded(odrxNew<TestAdded>("AcDbLine", 2), text), kFxSuccess);
    EXPECT_TRUE(converter.rest.empty());
    EXPECT_EQ(text, "before\n");
}

TEST_F(AddedObjects, AreLostWholeWhenTheirRestFails)
{
    converter.status = kFxFailure;
    EXPECT_EQ(add("AcDbPoint", {}), kFxFailure);
    EXPECT_EQ(text, "before\n");
    EXPECT_EQ(converter.ConvertObjectAdded(nullptr, text), kFxFailure);
    EXPECT_EQ(converter.ConvertObjectModified(nullptr, text), kFxFailure);
}

TEST_F(AddedObjects, NeedADriver)
{
    Watched orphan(nullptr);
    try {
        orphan.ConvertObjectAdded(odrxNew<TestAdded>("AcDbLine", 1), text);
        FAIL() << "no error";
    } catch (const OdError& error) {
        EXPECT_EQ(error.code(), 20);
    }
}

TEST(ModifiedObjects, GetACommentOnlyWhereAStatementStands)
{
    CFxConverterIWAPICSharp driver{0};
    struct Speaking final : PhrasedObjectConverter
    {
        using PhrasedObjectConverter::PhrasedObjectConverter;
        explicit Speaking(CFxConverterIWAPIImpl* driver) : PhrasedObjectConverter(inkmacro::Target::CSharp, driver) {}
        std::int32_t ConvertObjectChanges(OdRxClass*, OdDbHandle, PropertyList& list, bool, QString& text) override
        {
            text = list.front()->GetValue(0).GetString();
            return kFxSuccess;
        }
    } converter(&driver);
    QString text;
    const auto modify = [&](const char* cls, PropertyList list) {
        EXPECT_EQ(converter.ConvertObjectModified(odrxNew<TestModified>(cls, 1, std::move(list)), text), kFxSuccess);
    };
    modify("AcDbLine", {});
    modify("AcDbLine", {record("Layer", CFxString())});
    modify("HostWeldSymbol", {record("Layer", CFxString("lost\n"))});
    EXPECT_EQ(text, "");
    modify("AcDbLine", {record("Layer", CFxString("kept\n"))});
    EXPECT_EQ(text, " // AcDbLine object modified\nkept\n");
}

} // namespace
