// Added dimensions: which geometry they are put on, by what the drawing says of their associations.

#include "TestActions.h"
#include "TestDrawing.h"
#include "TestTarget.h"

#include "objects/entries.h"

#include <gtest/gtest.h>

#include <array>

using namespace inkmacro;

namespace {

constexpr std::uint64_t kDimension = 0x50;
constexpr std::uint64_t kAssociation = 0x51;
constexpr std::uint64_t kCurve = 0x52;

using PointRefs = std::array<OdArray<OdDbObjectId>, 4>;

CFxPropertyChangedPtr record(const char* tag, const CFxVariant& value)
{
    return odrxNew<TestProperty>(tag, value);
}

const PropertyList chord{record("chordPoint", OdGePoint3d{3, 4, 0}), record("Text override", CFxString("a\\\\b"))};

class AddedDimensions : public testing::Test
{
protected:
    /// The dimension in the drawing, with its dictionary's entry, and what that one refers to.
    void draw(const char* cls, TestFields fields, const PointRefs& refs)
    {
        drawing.add(kAssociation, "AcDbDimAssoc", {{"pointRefs", refs}});
        fields.emplace_back("extensionDictionary", OdDbNamedIds{{"ACAD_DIMASSOC", drawing.id(kAssociation)}});
        drawing.add(kDimension, cls, fields);
    }

    QString add(const char* cls, std::uint64_t handle, PropertyList records, TestTarget& target)
    {
        target.conversion.names().RegisterObject(OdDbHandle(handle), oddbClassByName(cls));
        PropertyList rest;
        Statement text;
        ConvertAddedObject(target.conversion, oddbClassByName(cls), OdDbHandle(handle), records, rest, text);
        return textOf(text).remove(".00000000000000");
    }
    QString add(const char* cls, const PropertyList& records) { return add(cls, kDimension, records, csharp); }

    TestDrawing drawing;
    TestTarget csharp{Target::CSharp};
};

TEST_F(AddedDimensions, WithoutAnAssociationThatLeadsToAnObjectMeasureAMadeUpCircle)
{
    const TestFields circle{{"center", OdGePoint3d{0, 0, 0}}, {"chordPoint", OdGePoint3d{3, 4, 0}}};
    const auto expectMadeUp = [&](const char* what) {
        TestTarget target(Target::CSharp);
        EXPECT_EQ(add("AcDbRadialDimension", kDimension, chord, target),
                  " Circle radialdimension1_associated_circle = iwSketchManager.InsertCircle( 0, 0, 0, 5 );\n"
                  " radialdimension1 = iwSketchManager.InsertRadialDimensionCircle( "
                  "radialdimension1_associated_circle, new double[]{3,4,0}, \"a\\\\\\\\b\" );\n"
                  " radialdimension1_associated_circle.Erased = true;\n")
            << what;
    };
    drawing.add(kDimension, "AcDbRadialDimension", circle);
    expectMadeUp("no dictionary");

    draw("AcDbRadialDimension", circle, {});
    expectMadeUp("no references");
    draw("AcDbRadialDimension", circle, {{{}, {drawing.id(0)}, {}, {}}});
    expectMadeUp("null id");
    draw("AcDbRadialDimension", circle, {{{}, {drawing.id(kCurve)}, {}, {}}});
    expectMadeUp("id without an object");
    drawing.add(kCurve, "AcDbArc", {{"isErased", true}});
    expectMadeUp("erased object");
    drawing.add(kCurve, "AcDbArc");
    draw("AcDbRadialDimension", circle, {{{drawing.id(kCurve)}, {}, {drawing.id(kCurve)}, {drawing.id(kCurve)}}});
    expectMadeUp("references of other points");

    draw("AcDbRadialDimension", circle, {{{}, {drawing.id(kCurve)}, {}, {}}});
    drawing.add(kAssociation, "AcDbDimAssoc", {{"isErased", true}});
    expectMadeUp("erased association");
    drawing.add(kAssociation, "AcDbGroup");
    expectMadeUp("entry of another class");
}

TEST_F(AddedDimensions, FollowThePathOfAnAssociationToItsEnd)
{
    drawing.add(0x60, "AcDbBlockReference");
    drawing.add(kCurve, "AcDbArc", {{"radius", 5.0}});
    draw("AcDbRadialDimension", {}, {{{}, {drawing.id(0x60), drawing.id(kCurve)}, {}, {}}});
    EXPECT_TRUE(add("AcDbRadialDimension", chord).startsWith(" CircleArc radialdimension1_associated_arc = "));
}

TEST_F(AddedDimensions, OnThemselvesHaveNoCurve)
{
    const OdArray<OdDbObjectId> self{drawing.id(kDimension)};
    const PointRefs refs{self, self, self, self};
    for (const char* cls : {"AcDbRadialDimension", "AcDbDiametricDimension"}) {
        draw(cls, {}, refs);
        EXPECT_EQ(add(cls, chord), "") << cls;
    }
    draw("AcDbRadialDimensionLarge", {}, refs);
    EXPECT_EQ(add("AcDbRadialDimensionLarge", {}), "");
    draw("AcDb3PointAngularDimension", {}, refs);
    EXPECT_TRUE(add("AcDb3PointAngularDimension", {}).contains("InsertAngularDimension3Point("));

    // The others take the variable as it is.
    TestTarget lines(Target::CSharp);
    draw("AcDb2LineAngularDimension", {}, refs);
    EXPECT_EQ(add("AcDb2LineAngularDimension", kDimension, {}, lines),
              " angulardimension1 = iwSketchManager.InsertAngularDimension2Line( angulardimension1, "
              "angulardimension1, new double[]{0,0,0}, \"\" );\n");
    TestTarget arcs(Target::CSharp);
    draw("AcDbArcDimension", {}, refs);
    EXPECT_EQ(add("AcDbArcDimension", kDimension, {}, arcs),
              " arclengthdimension1 = iwSketchManager.InsertArcLengthDimension( arclengthdimension1, "
              "new double[]{0,0,0}, \"\" );\n");
}

TEST_F(AddedDimensions, OfAnotherClassInTheDrawingFail)
{
    drawing.add(kDimension, "AcDbLine");
    for (const char* cls : {"AcDb3PointAngularDimension", "AcDbArcDimension", "AcDbDiametricDimension",
                            "AcDbRadialDimension", "AcDbRadialDimensionLarge"})
        EXPECT_THROW(add(cls, {}), OdError_NotThatKindOfClass) << cls;
    for (const Target target : allTargets) {
        TestTarget made(target);
        // COM draws its lines without a look into the drawing.
        if (target == Target::CppCom)
            EXPECT_NE(add("AcDb2LineAngularDimension", kDimension, {}, made), "");
        else
            EXPECT_THROW(add("AcDb2LineAngularDimension", kDimension, {}, made), OdError_NotThatKindOfClass);
    }

    drawing.add(kCurve, "AcDbCircle");
    draw("AcDbArcDimension", {}, {{{}, {}, {drawing.id(kCurve)}, {}}});
    EXPECT_THROW(add("AcDbArcDimension", {}), OdError_NotThatKindOfClass) << "a length of no arc";
}

TEST_F(AddedDimensions, ThatAreNotInTheDrawingAreTurnedAllTheSame)
{
    const PropertyList rotation{record("Rotation", 0.5)};
    for (const char* cls :
         {"AcDbArcDimension", "AcDbDiametricDimension", "AcDbRadialDimension", "AcDbRadialDimensionLarge"}) {
        TestTarget target(Target::CSharp);
        const QString text = add(cls, 0x70, rotation, target);
        EXPECT_TRUE(text.startsWith(" GeneralDimension generalDimension1 = ")) << cls << text.toStdString();
        EXPECT_TRUE(text.endsWith("\n generalDimension1.TextRotation = 0.50000000000000;\n"))
            << cls << text.toStdString();
    }
    TestTarget target(Target::CSharp);
    EXPECT_TRUE(add("AcDb3PointAngularDimension", 0x71, {}, target).contains("InsertAngularDimension3Point("));
    EXPECT_TRUE(
        add("AcDb2LineAngularDimension", 0x72, {}, target).contains("angulardimension2_associated_line2.Erased"));
}

TEST_F(AddedDimensions, TakeJoggedPointsFromPairsOfNumbers)
{
    drawing.add(kCurve, "AcDbCircle", {{"radius", 2.0}});
    draw("AcDbRadialDimensionLarge", {}, {{{}, {drawing.id(kCurve)}, {}, {}}});
    add("AcDbCircle", kCurve, {}, csharp);
    EXPECT_EQ(add("AcDbRadialDimensionLarge",
                  {record("Center location override X", 1.0), record("Center location override Y", 2.0),
                   record("Jog location Y", 4.0), record("Position x", 5.0)}),
              " joggeddimension2 = iwSketchManager.InsertJoggedDimensionCircle( circle1, new double[]{1,2,0}, "
              "new double[]{0,4,0}, new double[]{5,0,0}, \"\" );\n");
}

TEST_F(AddedDimensions, MoveTheirOriginOnlyWhenItIsElsewhere)
{
    const auto moved = [&](const OdGePoint3d& zero) {
        return add("AcDbOrdinateDimension", {record("setZero", zero)}).contains("SetOriginPoint(");
    };
    EXPECT_FALSE(moved({0, 0, 0}));
    EXPECT_FALSE(moved({0, 1e-10, 0}));
    EXPECT_TRUE(moved({0, 1.1e-10, 0}));
    EXPECT_TRUE(moved({0, 0, -5}));
    EXPECT_FALSE(add("AcDbOrdinateDimension", {}).contains("SetOriginPoint("));
}

} // namespace
