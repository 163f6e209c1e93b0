// Added polylines, rich lines, faces and meshes: what their readers make of odd records and of a drawing that lacks
// them.

#include "TestDrawing.h"
#include "TestRecords.h"
#include "TestTarget.h"

#include "objects/entries.h"

using namespace inkmacro;

namespace {

CFxVariant element(const char* word)
{
    return CFxVariantCollectionElement(CFxVariant(0), CFxVariant(CFxString(word)));
}

class AddedMeshes : public testing::Test
{
protected:
    QString add(const char* cls, std::uint64_t handle, PropertyList records)
    {
        TestTarget page(Target::JavaScript);
        page.conversion.names().RegisterObject(OdDbHandle(handle), oddbClassByName(cls));
        PropertyList rest;
        Statement text;
        ConvertAddedObject(page.conversion, oddbClassByName(cls), OdDbHandle(handle), records, rest, text);
        return textOf(text).remove(".00000000000000");
    }

    TestDrawing drawing;
};

TEST_F(AddedMeshes, AreClosedByTheFirstItemOrTheWordForYes)
{
    const auto isClosed = [&](const PropertyList& records) {
        const QString text = add("AcDb3dPolyline", 0x30, records);
        EXPECT_TRUE(
            text.startsWith(" var points1 = new Array();\n var polyline3d1 = mSkMgr.InsertPolyline3D(points1, "))
            << text.toStdString();
        return text.contains("true");
    };
    EXPECT_TRUE(isClosed({record("Closed", choice({"No", "Yes"}, 0))}));
    EXPECT_FALSE(isClosed({record("Closed", choice({"Yes", "No"}, 1))}));
    EXPECT_TRUE(isClosed({record("Closed", element("YES"))}));
    EXPECT_FALSE(isClosed({record("Closed", element("On"))}));
    EXPECT_TRUE(isClosed({record("Closed", "yes")}));
    EXPECT_FALSE(isClosed({record("Closed", 1.0)}));
    EXPECT_FALSE(isClosed({}));
}

TEST_F(AddedMeshes, RichLinesAreJustifiedByNumberOrWord)
{
    const auto justification = [&](const CFxVariant& value) {
        const QString text = add("AcDbMline", 0x31, {record("RLine justification", value)});
        return text.section('"', 1, 1).remove("iwRichLineJustification_").toStdString();
    };
    EXPECT_EQ(justification(choice({"Top", "Zero", "Bottom"}, 2)), "Bottom");
    EXPECT_EQ(justification(choice({"Bottom", "Bottom"}, 0)), "Top");
    EXPECT_EQ(justification(choice({}, 3)), "Top");
    EXPECT_EQ(justification(choice({}, -1)), "Top");
    EXPECT_EQ(justification(element("zero")), "Zero");
    EXPECT_EQ(justification(CFxVariant(CFxString("Bottom"))), "Bottom");
    EXPECT_EQ(justification(CFxVariant(2.0)), "Top");
}

TEST_F(AddedMeshes, TakeTheirFacesFromTheDrawing)
{
    EXPECT_TRUE(
        add("AcDbPolyFaceMesh", 0x40, {})
            .endsWith("InsertPolyFaceMesh(0, points1, FaceVerticesCountLongArray1, FaceVerticesLongArray1);\n"));
    // A fourth vertex with a hidden edge behind it counts as none.
    drawing.add(0x40, "AcDbPolyFaceMesh",
                {{"faces", OdArray<OdDbFaceRecord>{{{1, 2, 3, -4}}, {{-1, 2, 3, 4}}, {{1, 2, 3, 0}}}},
                 {"vertices", OdArray<OdGePoint3d>{{}, {}, {}, {}}}});
    const QString text = add("AcDbPolyFaceMesh", 0x40, {});
    EXPECT_TRUE(text.contains("var FaceVerticesCountLongArray1 = new Array(3,4,3);\n")) << text.toStdString();
    EXPECT_TRUE(text.contains("var FaceVerticesLongArray1 = new Array(1,2,3,-1,2,3,4,1,2,3);\n"));
    EXPECT_TRUE(text.contains("InsertPolyFaceMesh(4, points1,"));
}

TEST_F(AddedMeshes, LackWhatTheDrawingDoesNotTell)
{
    EXPECT_TRUE(add("AcDbTrace", 0x41, {}).endsWith("mSkMgr.InsertTrace(points1);\n"));
    EXPECT_TRUE(add("AcDbPolygonMesh", 0x42, {}).endsWith("mSkMgr.InsertPolygonMesh(0, 0, polMesh1);\n"));
    drawing.add(0x42, "AcDbPolygonMesh", {{"isNClosed", true}});
    EXPECT_TRUE(add("AcDbPolygonMesh", 0x42, {}).endsWith("polMesh1);\n polygonmesh1.put_NClosed(true);\n"));
    drawing.add(0x41, "AcDbTrace", {{"thickness", 2.0}, {"isErased", true}});
    EXPECT_FALSE(add("AcDbTrace", 0x41, {}).contains("Thickness"));
    drawing.add(0x43, "AcDbSolid");
    EXPECT_THROW(add("AcDbTrace", 0x43, {}), OdError_NotThatKindOfClass);
}

} // namespace
