// Property lists: how a tag is found, what a read leaves behind, and what an added object makes of its two lists.

#include "TestActions.h"
#include "TestTarget.h"

#include "objects/entries.h"
#include "objects/properties.h"

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

std::vector<QString> tagsOf(const PropertyList& list)
{
    std::vector<QString> tags;
    for (const CFxPropertyChangedPtr& record : list)
        tags.push_back(record->GetName());
    return tags;
}

class Properties : public testing::Test
{
protected:
    Properties() : application(argc, argv) {}

    CFxVariant find(const CFxString& tag) { return FindProperty(csharp.conversion, tag, list, &consumed, &index); }
    std::vector<QString> tagsLeft() const { return tagsOf(list); }

    int argc = 1;
    char name[5] = "test";
    char* argv[2] = {name, nullptr};
    QCoreApplication application;
    TestTarget csharp{inkmacro::Target::CSharp};
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

TEST_F(Properties, ShowYesInTheHostsLanguage)
{
    const auto shown = [](const char* word) { return CFxVariant(CFxVariantCollectionElement({}, CFxString(word))); };
    EXPECT_TRUE(IsYes(shown("Yes")));
    EXPECT_FALSE(IsYes(shown("yes")));
    EXPECT_FALSE(IsYes(CFxString("Yes"))) << "a plain text is no choice";
    German german;
    QCoreApplication::installTranslator(&german);
    EXPECT_TRUE(IsYes(shown("Ja")));
    EXPECT_FALSE(IsYes(shown("Yes")));
}

class AddedObjects : public testing::Test
{
protected:
    QString add(const char* cls, PropertyList read)
    {
        csharp.conversion.names().RegisterObject(OdDbHandle(1), oddbClassByName(cls));
        rest = read;
        Statement text;
        ConvertAddedObject(csharp.conversion, oddbClassByName(cls), OdDbHandle(1), read, rest, text);
        return textOf(text);
    }

    TestTarget csharp{inkmacro::Target::CSharp};
    PropertyList rest;
};

TEST_F(AddedObjects, LeaveWhatTheReaderDidNotTake)
{
    add("AcDbText", {record("Height", 2.0, "Text"), record("Height", 3.0, "Text"), record("Height", 4.0, "Box")});
    ASSERT_EQ(rest.size(), 2);
    EXPECT_EQ(rest[0]->GetValue(0).GetDouble(), 3.0);

    EXPECT_EQ(add("AcDbCircle", {record("Radius", 2.0, "Geometry"), record("LineScale", 0.5, "General"),
                                 record("Note", CFxString("0"), "General")})
                  .toStdString(),
              " circle2 = iwSketchManager.InsertCircle( 0.00000000000000, 0.00000000000000, "
              "0.00000000000000, 2.00000000000000 );\n {\n    circle2.LineScale = 0.50000000000000;\n }\n");
    EXPECT_EQ(tagsOf(rest), std::vector<QString>{"Note"});
}

TEST_F(AddedObjects, AreNotAskedForMoreWhenNothingWasCreated)
{
    const PropertyList list{record("LineScale", 0.5)};
    EXPECT_EQ(add("AcDbRegion", list), "");
    EXPECT_EQ(rest.size(), 1U);
    Statement text("before\n");
    const auto convert = [&](const char* cls, std::uint64_t handle) {
        return ConvertObjectAdded(csharp.conversion, *odrxNew<TestAdded>(cls, handle, list, list), text);
    };
    EXPECT_EQ(convert("HostWeldSymbol", 1), kFxSuccess);
    // Registered under no handle.
    EXPECT_EQ(convert("AcDbLine", 2), kFxSuccess);
    EXPECT_EQ(text, "before\n");
}

TEST(ModifiedObjects, GetACommentOnlyWhereAStatementStands)
{
    TestTarget csharp(inkmacro::Target::CSharp);
    csharp.conversion.names().RegisterObject(OdDbHandle(1), oddbClassByName("AcDbLine"));
    Statement text;
    const auto modify = [&](const char* cls, PropertyList list) {
        EXPECT_EQ(ConvertObjectModified(csharp.conversion, *odrxNew<TestModified>(cls, 1, std::move(list)), text),
                  kFxSuccess);
    };
    modify("AcDbLine", {});
    modify("AcDbLine", {record("Layer", CFxString("unknown"))});
    modify("HostWeldSymbol", {record("LineScale", 0.5)});
    EXPECT_EQ(text, "");
    modify("AcDbLine", {record("LineScale", 0.5)});
    EXPECT_EQ(text.toStdString(), " // AcDbLine object modified\n {\n    line1.LineScale = 0.50000000000000;\n }\n");
}

} // namespace
