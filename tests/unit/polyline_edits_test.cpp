// Custom actions that edit polylines, say more of a drawn polyline, or clip an image.

#include "TestHandlers.h"

#include <QFileInfo>

#include <algorithm>

using inkmacro::Target;

namespace {

using Handles = std::vector<OdDbHandle>;
using Classes = std::vector<const OdRxClass*>;
using Points = OdArray<OdGePoint3d>;
using PlanePoints = OdArray<OdGePoint2d>;
using Numbers = OdArray<double>;

const OdRxClass* cls(const char* name)
{
    return oddbClassByName(name);
}

const OdDbHandle kPlane(0x1a);
const OdDbHandle kSpatial(0x1b);
const OdDbHandle kImage(0x1c);
const OdGePoint3d kPoint{1.5, 2.0, 1e-7};

TestData ofPlane(const char* option, const TestData& more = {})
{
    TestData data{CFxString(option), Handles{kPlane}, Classes{cls("AcDbPolyline")}};
    data.insert(data.end(), more.begin(), more.end());
    return data;
}

TestData ofSpace(const char* option, const TestData& more)
{
    TestData data{CFxString(option), kSpatial, cls("AcDb3dPolyline")};
    data.insert(data.end(), more.begin(), more.end());
    return data;
}

/// Two vertices, of which the first segment is half a circle.
TestData drawn(const OdDbHandle& handle, const char* className)
{
    return {Points{{0.0, 0.0, 7.0}, {5.5, 1e6, 7.0}},
            Points{{1.0, 9.0, 9.0}, {1e-11, 9.0, 9.0}},
            true,
            handle,
            cls(className),
            Numbers{0.5},
            Numbers{0.25},
            true,
            2.0};
}

/// Every form in which the actions come, with what it writes.
struct Form
{
    std::int32_t kind;
    TestData data;
    const char* statement;
};

std::vector<Form> forms()
{
    const Handles joined{kPlane, kPlane};
    const Classes polylines{cls("AcDbPolyline"), cls("AcDbPolyline")};
    return {
        {40, ofPlane("_FIT"), " polyline1.Fit();\n"},
        {40, ofPlane("_DECURVE"), " polyline1.Decurve();\n"},
        {40, ofPlane("_SPLINE"), " polyline1.Spline();\n"},
        {40, {CFxString("_JOIN"), joined, polylines}, " polyline1.JoinPolyLine(polyline1);\n"},
        {40, ofPlane("_SPLIT", {2}), " PolyLine splittedPolyline1;\n polyline1.Split( 2, out splittedPolyline1 );\n"},
        {40, ofSpace("_SPLIT3D", {2}),
         " PolyLine3D splittedPolyline3D2;\n polyline3d2.Split( 2, out splittedPolyline3D2 );\n"},
        {40, ofPlane("_INSERT", {3, kPoint}), " polyline1.AddVertexAfter( 3, 1.5, 2 );\n"},
        {40, ofSpace("_INSERT3D", {3, kPoint}), " polyline3d2.AddVertexAfter( 3, 1.5, 2, 1e-07 );\n"},
        {40, ofPlane("_MOVE", {3, kPoint}), " polyline1.SetVertexCoordinate( 3, 1.5, 2 );\n"},
        {40, ofSpace("_MOVE3D", {3, kPoint}), " polyline3d2.SetVertexCoordinate( 3, 1.5, 2, 1e-07 );\n"},
        {40, ofPlane("_STRAIGHTEN", {1, 4}), " polyline1.Straighten( 1, 4 );\n"},
        {40, ofPlane("_WIDTH", {0, 0.5, 1e6}),
         " polyline1.SetSegmentStartWidth( 0, 0.5 );\n polyline1.SetSegmentEndWidth( 0, 1e+06 );\n"},
        {42, {kSpatial, cls("AcDb3dPolyline"), 1, kPoint}, "x polyline3d2.AddVertexAfter( 1, 1.5, 2, 1e-07 );\n"},
        {42, {kSpatial, cls("AcDb3dPolyline"), 1}, "x polyline3d2.DeleteVertex( 1 );\n"},
    };
}

/// Whether what stands behind option and object is of the same types.
bool sameForm(const TestData& data, const TestData& other)
{
    return std::equal(data.begin() + 3, data.end(), other.begin() + 3, other.end(),
                      [](const auto& value, const auto& otherValue) { return value.index() == otherValue.index(); });
}

class PolylineEdits : public Handlers
{
protected:
    PolylineEdits()
    {
        conversion.names().RegisterObject(kPlane, cls("AcDbPolyline"));
        conversion.names().RegisterObject(kSpatial, cls("AcDb3dPolyline"));
        conversion.names().RegisterObject(kImage, cls("AcDbRasterImage"));
    }

    /// A macro has no such action: at top level it fails, a command ends with it.
    void expectRefused(std::int32_t kind, const TestData& data)
    {
        EXPECT_EQ(recording.run({odrxNew<TestCustom>(kind, data)}), kFxFailure);
        EXPECT_FALSE(QFileInfo::exists(recording.path()));
        ASSERT_EQ(recording.run({command({addedLine(1), odrxNew<TestCustom>(kind, data), addedLine(2)})}), kFxSuccess);
        EXPECT_TRUE(recording.body().contains("line1 = "));
        EXPECT_FALSE(recording.body().contains("line2 = "));
    }
};

TEST_F(PolylineEdits, ComeInTheFormsOfTheirOptions)
{
    for (const Form& form : forms()) {
        SCOPED_TRACE(form.statement);
        EXPECT_EQ(converted(form.kind, form.data), form.statement);
    }
    // The first handle of an array is meant, wherever there is one.
    EXPECT_EQ(converted(40, {CFxString("_FIT"), Handles{kPlane, kImage}, Classes{cls("AcDbPolyline")}}),
              " polyline1.Fit();\n");
    EXPECT_EQ(converted(40, {CFxString("_STRAIGHTEN"), kPlane, cls("AcDbPolyline"), 1, 4}),
              " polyline1.Straighten( 1, 4 );\n");
}

TEST_F(PolylineEdits, AreRefusedInAnyOtherForm)
{
    for (const Form& form : forms()) {
        SCOPED_TRACE(form.statement);
        TestData longer = form.data;
        longer.insert(longer.end(), {OdCmColor(), OdCmColor()});
        expectRefused(form.kind, longer);
        TestData shorter = form.data;
        shorter.resize(form.data.size() == 4 && form.kind == 42 ? 2 : form.data.size() - 1);
        expectRefused(form.kind, shorter);
        // Kind 42 goes by the count alone. Of what tells the object only the lists of the short form are looked at.
        for (std::size_t i = 0; form.kind == 40 && i < form.data.size(); ++i) {
            if ((i == 1 || i == 2) && form.data.size() > 3)
                continue;
            TestData other = form.data;
            other[i] = OdCmColor();
            expectRefused(40, other);
        }
    }
    // An option is of one form only, whatever form another one has.
    for (const Form& form : forms())
        for (const Form& other : forms()) {
            if (form.kind != 40 || other.kind != 40 || sameForm(form.data, other.data))
                continue;
            SCOPED_TRACE(std::string(form.statement) + "in the form of" + other.statement);
            TestData data = other.data;
            data[0] = form.data[0];
            expectRefused(40, data);
        }
    for (const char* option : {"", "_fit", "FIT", "_CLOSE"})
        for (const TestData& more :
             {TestData(), TestData{1}, TestData{1, kPoint}, TestData{1, 2}, TestData{1, 0.5, 0.5}})
            expectRefused(40, ofPlane(option, more));
    expectRefused(40, {});
    expectRefused(40, ofPlane("_JOIN"));
    expectRefused(40, {CFxString("_JOIN"), kPlane, cls("AcDbPolyline")});
    expectRefused(40, {CFxString("_FIT"), Handles(), Classes()});
    expectRefused(40, {CFxString("_JOIN"), Handles{kPlane, kSpatial}, Classes{cls("AcDbPolyline")}});
}

TEST_F(PolylineEdits, OfObjectsWithoutAVariableWriteNothing)
{
    const OdRxClass* const foreign = cls("HostWeldSymbol");
    EXPECT_EQ(converted(40, {CFxString("_FIT"), Handles{kPlane}, Classes{foreign}}), "");
    EXPECT_EQ(converted(40, {CFxString("_SPLIT"), kPlane, foreign, 1}), "");
    EXPECT_EQ(converted(40, {CFxString("_SPLIT"), 1.0, 2.0, 1}), "");
    EXPECT_EQ(converted(40, {CFxString("_JOIN"), Handles{OdDbHandle(9), kPlane}, Classes{foreign, foreign}}), "");
    EXPECT_EQ(converted(42, {kPlane, foreign, 1}), "x");
    EXPECT_EQ(converted(48, {OdDbHandle(9), foreign, true}, {}), "");
    // What should tell the object and is of another type tells none; other data count as their type's neutral value.
    EXPECT_EQ(converted(42, {1.0, 2.0, 1, kPoint}), "x");
    EXPECT_EQ(converted(42, {kPlane, cls("AcDbPolyline"), kPoint, 3}), "x polyline1.AddVertexAfter( 0, 0, 0, 0 );\n");
    EXPECT_EQ(converted(48, {1.0, 2.0, true}, {}), "");
    TestData untold = drawn(OdDbHandle(9), "AcDbPolyline");
    untold[4] = 1;
    EXPECT_EQ(converted(16, untold, {}), "");
    EXPECT_EQ(converted(16, drawn(OdDbHandle(9), "AcDbProxyEntity"), {}), "");
    // What the macro can fetch is fetched, in front of the edit. Nothing above has taken a number.
    EXPECT_EQ(converted(40, {CFxString("_FIT"), Handles{OdDbHandle(0x70)}, Classes{cls("AcDbPolyline")}}),
              " iwObjectType_e type1;\n"
              " PolyLine polyline4 = iwApp.GetActiveDocument().GetObjectByHandle(\"70\", out type1) as PolyLine;\n"
              " polyline4.Fit();\n");
}

TEST_F(PolylineEdits, JoinWhatCanBeJoined)
{
    conversion.names().RegisterObject(OdDbHandle(0x20), cls("AcDbLine"));
    conversion.names().RegisterObject(OdDbHandle(0x21), cls("AcDbArc"));
    const Handles objects{kSpatial, OdDbHandle(0x21), OdDbHandle(0x77), OdDbHandle(0x78), OdDbHandle(0x20), kPlane};
    const Classes classes{cls("AcDb3dPolyline"), cls("AcDbArc"),     cls("AcDbCircle"), nullptr,
                          cls("AcDbLine"),       cls("AcDbPolyline")};
    EXPECT_EQ(converted(40, {CFxString("_JOIN"), objects, classes}), " polyline3d2.JoinCircleArc(circlearc5);\n"
                                                                     " polyline3d2.JoinLine(line4);\n"
                                                                     " polyline3d2.JoinPolyLine(polyline1);\n");
    EXPECT_EQ(csharp.objectCount(), 5U) << "the circle is not fetched";
}

TEST_F(PolylineEdits, DrawAPolylineWithoutABlock)
{
    ASSERT_EQ(recording.run({command({odrxNew<TestCustom>(16, drawn(OdDbHandle(9), "AcDbPolyline"))}),
                             odrxNew<TestCustom>(40, TestData{CFxString("_FIT"), Handles{OdDbHandle(9)},
                                                              Classes{cls("AcDbPolyline")}})}),
              kFxSuccess);
    EXPECT_EQ(recording.body(),
              "\n"
              "            PolyLine polyline1;\n"
              "            {\n"
              "                polyline1 = iwSketchManager.InsertPolyline2D( new double[]{0,0,5.5,1e+06}, true );\n"
              "            }\n"
              "            polyline1.SetSegmentAngle( 0, 3.14159 );\n"
              "            polyline1.SetSegmentStartWidth( 0, 0.50000000000000 );\n"
              "            polyline1.SetSegmentEndWidth( 0, 0.25000000000000 );\n"
              "            polyline1.GlobalWidth = 2.00000000000000;\n"
              "            polyline1.Fit();\n");
    // A polyline that the command has made keeps its variable; without a width of its own the last datum is not read.
    TestData data = drawn(OdDbHandle(9), "AcDbPolyline");
    data[2] = false;
    data[7] = false;
    data.pop_back();
    const QString text = QString::fromStdString(converted(16, data, "polyline7"));
    EXPECT_TRUE(text.startsWith("\n PolyLine polyline7;\n")) << text.toStdString();
    EXPECT_TRUE(text.contains("1e+06}, false );\n"));
    EXPECT_TRUE(text.endsWith(".SetSegmentEndWidth( 0, 0.25000000000000 );\n"));
    EXPECT_EQ(csharp.objectCount(), 3U);
}

TEST_F(PolylineEdits, DrawNoPolylineWhenTheDataDoNotFit)
{
    const TestData whole = drawn(OdDbHandle(9), "AcDbPolyline");
    for (std::size_t count = 0; count < whole.size(); ++count)
        expectRefused(16, TestData(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(count)));
    for (const auto& [index, value] : std::vector<std::pair<std::size_t, CFxCustomActionData::Value>>{
             {0, PlanePoints{{}, {}}}, {1, Points{{}}}, {1, Points{{}, {}, {}}}, {6, Numbers()}}) {
        TestData data = whole;
        data[index] = value;
        expectRefused(16, data);
    }
}

TEST_F(PolylineEdits, ClipImages)
{
    const OdRxClass* const image = cls("AcDbRasterImage");
    const PlanePoints boundary{{0.0, 0.5}, {1e6, 2.0}};
    EXPECT_EQ(converted(48, {kImage, image, boundary}, {}),
              " referenceimage3.SetClipBoundary( new double[]{0,0.5,1e+06,2} );\n\n");
    for (const bool whatever : {true, false})
        EXPECT_EQ(converted(48, {kImage, image, whatever}, {}), " referenceimage3.RemoveClipBoundary();\n");
    EXPECT_EQ(converted(48, {kImage, image, true}, "mine"), " mine.RemoveClipBoundary();\n");
    EXPECT_EQ(converted(48, {kImage, image, PlanePoints()}, "mine"), " mine.SetClipBoundary( new double[]{} );\n\n");
    // An unknown image's name stays new each time, and the fetch is lost.
    for (const char* statement :
         {" referenceimage4.RemoveClipBoundary();\n", " referenceimage5.RemoveClipBoundary();\n"})
        EXPECT_EQ(converted(48, {OdDbHandle(9), image, true}, {}), statement);

    expectRefused(48, {});
    expectRefused(48, {kImage, image});
    for (const CFxCustomActionData::Value& other :
         std::initializer_list<CFxCustomActionData::Value>{1, kPoint, Points{{}}, CFxString("a")})
        expectRefused(48, {kImage, image, other});
}

} // namespace
