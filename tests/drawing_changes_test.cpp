// What changed between two drawings, as a recording.

#include "Program.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

using Groups = std::vector<std::pair<int, QByteArray>>;

Groups operator+(Groups left, const Groups& right)
{
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

Groups section(const QByteArray& name, const Groups& groups)
{
    return Groups{{0, "SECTION"}, {2, name}} + groups + Groups{{0, "ENDSEC"}};
}

Groups entity(const QByteArray& kind, const QByteArray& handle, const Groups& more)
{
    return (handle.isEmpty() ? Groups{{0, kind}} : Groups{{0, kind}, {5, handle}}) + more;
}

Groups segment(const QByteArray& handle, const QByteArray& x, const QByteArray& layer = "0")
{
    return entity("LINE", handle, {{8, layer}, {10, x}, {20, "1"}, {11, "2"}, {21, "3"}});
}

Groups circle(const QByteArray& handle, const Groups& more)
{
    return entity("CIRCLE", handle, Groups{{8, "0"}, {40, "2"}} + more);
}

Groups layer(const QByteArray& handle, const QByteArray& name, const Groups& more = {})
{
    return entity("LAYER", handle, Groups{{2, name}} + more);
}

Groups insert(const QByteArray& handle, const QByteArray& block, const Groups& more = {})
{
    return entity("INSERT", handle, Groups{{8, "0"}, {2, block}, {10, "1"}, {20, "2"}} + more);
}

Groups block(const QByteArray& name, const Groups& entities)
{
    return entity("BLOCK", "B0", {{8, "0"}, {2, name}, {10, "0"}, {20, "0"}}) + entities + Groups{{0, "ENDBLK"}};
}

/// A drawing of layers, blocks and entities.
struct Parts
{
    Groups entities;
    Groups layers = {};
    Groups blocks = {};

    QByteArray text() const
    {
        QByteArray text;
        for (const auto& [code, value] :
             section("TABLES", Groups{{0, "TABLE"}, {2, "LAYER"}} + layers + Groups{{0, "ENDTAB"}}) +
                 section("BLOCKS", blocks) + section("ENTITIES", entities))
            text += QByteArray::number(code) + '\n' + value + '\n';
        return text;
    }
};

class DrawingChanges : public Program
{
protected:
    /// The actions, and before them the classes and handles of what is told of the older drawing.
    QStringList changes(const Parts& older, const Parts& newer)
    {
        write("old.dxf", older.text());
        const Outcome outcome = run({"import", write("new.dxf", newer.text()), "--since", "old.dxf", "--report"});
        EXPECT_EQ(outcome.status, 0) << outcome.err.toStdString();
        report_ = QJsonDocument::fromJson(outcome.err.toUtf8()).object();
        QStringList actions;
        objects_.clear();
        for (const QString& line : outcome.out.split('\n', Qt::SkipEmptyParts)) {
            const QJsonObject object = QJsonDocument::fromJson(line.toUtf8()).object()["object"].toObject();
            if (!object.isEmpty())
                objects_.append(object["class"].toString() + ' ' + object["handle"].toString());
            else if (!line.startsWith("{\"recording\""))
                actions.append(line);
        }
        return actions;
    }
    int counted(const char* what, const char* kind) const { return report_[what].toObject()[kind].toInt(); }

    QJsonObject report_;
    QStringList objects_;
};

QString modified(const QString& cls, const QString& handle, const QString& properties)
{
    return QString(R"({"modified":{"class":"%1","handle":"%2","properties":[%3]}})").arg(cls, handle, properties);
}

QString erased(const QString& cls, const QString& handle)
{
    return modified(cls, handle, R"({"tag":"Erased","value":"Yes"})");
}

} // namespace

TEST_F(DrawingChanges, AreNoneWhereTheSameIsDrawn)
{
    const Groups corners{{90, "2"}, {10, "0"}, {20, "0"}, {10, "4"}, {20, "0"}};
    const Parts older{segment("2F", "0") + circle("30", {{10, "3"}, {20, "1"}, {30, "5"}}) +
                          entity("LWPOLYLINE", "31", Groups{{8, "Walls"}, {70, "1"}} + corners) + insert("32", "Chair"),
                      layer("10", "Walls", {{62, "3"}}), block("Chair", segment("33", "1"))};
    EXPECT_EQ(changes(older, older), QStringList());
    EXPECT_EQ(counted("unchanged", "LINE"), 2);

    // Another order, handle and way to write it.
    const Parts newer{insert("C2", "CHAIR", {{41, "1"}, {50, "360"}}) +
                          entity("LWPOLYLINE", "2F", Groups{{8, "WALLS"}, {70, "1"}, {43, "0"}} + corners) +
                          circle("C0", {{10, "-3"}, {20, "1.0000000001"}, {30, "-5"}, {230, "-1"}}) +
                          segment("30", "0.0"),
                      layer("A0", "walls", {{62, "3"}, {370, "-3"}}), block("chair", segment("C3", "1"))};
    EXPECT_EQ(changes(older, newer), QStringList());
    EXPECT_EQ(objects_, QStringList());
    EXPECT_EQ(counted("unchanged", "LWPOLYLINE"), 1);
}

TEST_F(DrawingChanges, AreOneRecordForEachValueWithTheOldOne)
{
    const Groups polyline{{8, "0"}, {90, "3"}, {10, "0"}, {20, "0"}, {10, "4"}, {20, "0"}, {10, "4"}, {20, "3"}};
    Groups other = polyline;
    other[4].second = "5";
    other[7].second = "6";
    other.insert(other.begin() + 1, {70, "1"});
    EXPECT_EQ(
        changes({segment("2F", "0", "Walls") + entity("LWPOLYLINE", "30", polyline), layer("10", "Walls")},
                {entity("LWPOLYLINE", "30", other) + segment("2F", "7", "Walls") + segment("31", "1", "Doors"),
                 layer("10", "Walls", {{62, "-3"}}) + layer("11", "Doors", {{62, "5"}})})
            .mid(0, 6),
        QStringList({
            R"({"added":{"class":"AcDbLayerTableRecord","handle":"11","properties":[{"tag":"Name","value":"Doors"}]}})",
            modified("AcDbLayerTableRecord", "11", R"({"tag":"Color","value":{"color":{"index":5}}})"),
            modified("AcDbLayerTableRecord", "10",
                     R"({"tag":"Color","value":{"color":{"index":3}},"old":{"color":{"index":7}}},)"
                     R"({"tag":"Hidden","value":"Yes","old":"No"})"),
            modified("AcDbPolyline", "30",
                     R"({"tag":"Closed","value":{"element":{"tag":{"int":0},"value":"Yes"}},)"
                     R"("old":{"element":{"tag":{"int":1},"value":"No"}}})"),
            modified("AcDbPolyline", "30", R"({"tag":"Vertex X","value":5,"index":{"int":1},"old":4})"),
            modified("AcDbPolyline", "30", R"({"tag":"Vertex Y","value":6,"index":{"int":2},"old":3})"),
        }));
    EXPECT_TRUE(objects_.contains("AcDbPolyline 30"));
    EXPECT_TRUE(objects_.contains("AcDbLayerTableRecord 10"));
    EXPECT_EQ(counted("changed", "LINE"), 1);
    EXPECT_EQ(counted("imported", "LINE"), 1);
}

TEST_F(DrawingChanges, WithoutAStatementMakeTheEntityAnew)
{
    const Groups corners{{10, "0"}, {20, "0"}, {10, "4"}, {20, "0"}};
    const Groups longer = corners + Groups{{10, "5"}, {20, "5"}};
    const QStringList actions =
        changes({entity("LWPOLYLINE", "2F", Groups{{8, "0"}} + corners) + segment("30", "1") +
                 entity("ELLIPSE", "31", {{8, "0"}, {11, "2"}, {21, "0"}, {40, "0.5"}})},
                {entity("LWPOLYLINE", "2F", Groups{{8, "0"}} + longer) + entity("POINT", "30", {{8, "0"}, {10, "1"}}) +
                 entity("ELLIPSE", "31", {{8, "0"}, {11, "3"}, {21, "0"}, {40, "0.5"}})});
    ASSERT_EQ(actions.size(), 5) << actions.join('\n').toStdString();
    EXPECT_EQ(actions[0], modified("AcDbEllipse", "31",
                                   R"({"tag":"Minor radius","value":1.5,"old":1},)"
                                   R"({"tag":"Major radius","value":3,"old":2})"));
    EXPECT_EQ(actions[1], erased("AcDbPolyline", "2F"));
    EXPECT_EQ(actions[2], erased("AcDbLine", "30"));
    EXPECT_TRUE(actions[3].startsWith(R"({"added":{"class":"AcDbPolyline")"));
    EXPECT_TRUE(actions[4].startsWith(R"({"added":{"class":"AcDbPoint")"));
    // Their handles are used up.
    EXPECT_FALSE(actions[3].contains(R"("handle":"2F")"));
    EXPECT_FALSE(actions[4].contains(R"("handle":"30")"));
    EXPECT_EQ(counted("erased", "LWPOLYLINE"), 1);
    EXPECT_EQ(counted("imported", "LWPOLYLINE"), 1);
}

TEST_F(DrawingChanges, OfLayersComeInTheOrderThatKeepsThemInUse)
{
    const QStringList actions =
        changes({segment("2F", "1", "Walls") + segment("30", "2", "Old"), layer("10", "Walls") + layer("11", "Old")},
                {segment("2F", "1", "Outer walls"), layer("10", "Outer walls")});
    EXPECT_EQ(actions,
              QStringList({
                  modified("AcDbLayerTableRecord", "10", R"({"tag":"Name","value":"Outer walls","old":"Walls"})"),
                  erased("AcDbLine", "30"),
                  erased("AcDbLayerTableRecord", "11"),
              }));
}

TEST_F(DrawingChanges, OfABlockMakeItAnewAndLeaveItsReferences)
{
    const QStringList actions =
        changes({insert("2F", "Outer"), {}, block("Inner", segment("40", "1")) + block("Outer", insert("41", "Inner"))},
                {insert("2F", "Outer"),
                 {},
                 block("Inner", segment("40", "1") + segment("42", "5")) + block("Outer", insert("41", "Inner"))});
    ASSERT_EQ(actions.size(), 3) << actions.join('\n').toStdString();
    EXPECT_FALSE(actions[0].contains(R"("handle":"40")"));
    EXPECT_TRUE(actions[1].contains(R"("handle":"42")"));
    EXPECT_TRUE(actions[2].startsWith(R"({"modified":{"class":"AcDbBlockTableRecord","handle":"B0")"));
    EXPECT_TRUE(actions[2].contains(R"({"tag":{"int":1},"value":"42"}]}},"old":{"collection":{"elements":[)"
                                    R"({"tag":{"int":0},"value":"40"}]}})"));
}

TEST_F(DrawingChanges, OfAttributesAreSetByTheirTags)
{
    const Groups definition = entity("ATTDEF", "40", {{8, "0"}, {2, "NUMBER"}, {10, "0"}, {20, "0"}, {40, "1"}}) +
                              entity("ATTDEF", "41", {{8, "0"}, {2, "ROTATION"}, {10, "0"}, {20, "0"}, {40, "1"}});
    const auto drawing = [&](const QByteArray& number, const QByteArray& rotation) {
        return Parts{insert("2F", "A", {{66, "1"}}) + entity("ATTRIB", "30", {{8, "0"}, {2, "NUMBER"}, {1, number}}) +
                         entity("ATTRIB", "31", {{8, "0"}, {2, "ROTATION"}, {1, rotation}}),
                     {},
                     block("A", definition)};
    };
    EXPECT_EQ(changes(drawing("1", "a"), drawing("2", "a")),
              QStringList(modified("AcDbBlockReference", "2F",
                                   R"({"tag":"NUMBER","value":"2","group":"BlockAttributes","old":"1"})")));
    EXPECT_EQ(counted("changed", "ATTRIB"), 1);
    EXPECT_EQ(counted("unchanged", "ATTRIB"), 1);

    // It would turn the reference.
    const QStringList actions = changes(drawing("1", "a"), drawing("1", "b"));
    EXPECT_EQ(actions.value(0), erased("AcDbBlockReference", "2F"));
    EXPECT_EQ(changes(drawing("1", "a"), {insert("2F", "A"), {}, block("A", definition)}), QStringList());
    EXPECT_FALSE(report_["untold"].toArray().isEmpty());
}

TEST_F(DrawingChanges, OfADrawingWithoutHandlesAreToldWhereTheyCannotBeMade)
{
    const QStringList actions = changes({segment("", "1") + segment("", "2") + segment("", "3")},
                                        {segment("", "3") + segment("", "1") + segment("", "4")});
    ASSERT_EQ(actions.size(), 1);
    EXPECT_TRUE(actions[0].contains(R"({"tag":"Start X","value":4})"));
    EXPECT_EQ(counted("unchanged", "LINE"), 2);
    EXPECT_EQ(report_["lost"].toArray().size(), 1);
}
