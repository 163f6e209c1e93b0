// Words that stand in statements: enumerators, type names, prompts, names of projects.

#include "host/db/OdDbClassMap.h"
#include "module/CFxConverterIWAPIModule.h"
#include "objects/classTable.h"
#include "statements/Phrase.h"
#include "statements/enumerations.h"
#include "statements/wording.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

using namespace inkmacro;

namespace {

TEST(Enumerators, FollowTheDrawingsNumbers)
{
    const auto text = [](const ValueEnumeration& enumeration, int value) {
        return EnumeratorByValue(Target::Cpp, enumeration, value).toStdString();
    };
    EXPECT_EQ(text(enums::dimensionTextVerticalPosition, 0), "iwDimensionTextVerticalPosition_Centered");
    EXPECT_EQ(text(enums::dimensionTextVerticalPosition, 3), "iwDimensionTextVerticalPosition_JIS");
    EXPECT_EQ(text(enums::arcTextAlignment, 4), "iwArcTextAlignment_Center");
    EXPECT_EQ(text(enums::arcTextAlignment, 1), "iwArcTextAlignment_Fit");
    EXPECT_EQ(text(enums::leaderType, 3), "iwLeaderType_SplineWithArrow");
    EXPECT_EQ(text(enums::dualDimensionFormat, 2), "iwDualDimensionFormat_Decimal");
    EXPECT_EQ(text(enums::dimensionArrowType, 20), "iwDimensionArrowType_Custom");
    EXPECT_EQ(text(enums::unitPrecision, 8), "iwUnitPrecision_8");
    EXPECT_EQ(text(enums::tableBordersLineType, 32), "iwTableBordersLineType_VerticalRight");
    // What no number stands for gives the default.
    for (const int value : {-2147483647 - 1, -1, 0, 9, 21, 2147483647}) {
        EXPECT_EQ(text(enums::tableCellType, value), "iwTableCellType_Title");
        EXPECT_EQ(text(enums::linearDimensionFormat, value), "iwLinearDimensionFormat_Scientific");
        EXPECT_EQ(text(enums::arcTextDirection, value), "iwArcTextDirection_OutwardFromCenter");
        EXPECT_EQ(text(enums::unitPrecision, value), "iwUnitPrecision_0");
    }
    for (const int value : {-1, 0, 3, 33, 64, 1 << 30})
        EXPECT_EQ(text(enums::tableBordersLineType, value), "iwTableBordersLineType_HorizontalTop");
}

TEST(Enumerators, FollowTheDisplayedText)
{
    const auto text = [](const TextEnumeration& enumeration, const char* shown) {
        return EnumeratorByText(Target::VbNet, enumeration, shown).toStdString();
    };
    EXPECT_EQ(text(enums::noteJustification, "bottom RIGHT"),
              "Inkwright.iwNoteJustification_e.iwNoteJustification_BottomRight");
    EXPECT_EQ(text(enums::textJustification, "Fit"), "Inkwright.iwTextJustification_e.iwTextJustification_Fit");
    EXPECT_EQ(text(enums::textJustification, "?"), "Inkwright.iwTextJustification_e.iwTextJustification_Left");
    EXPECT_EQ(text(enums::polyLine3DFitSmooth, "Quadratic"),
              "Inkwright.iwPolyLine3DFitSmooth_e.iwPolyLine3DFitSmooth_Qudratic");
    EXPECT_EQ(text(enums::blockInsertUnits, "light years"),
              "Inkwright.iwBlockInsertUnits_e.iwBlockInsertUnits_LightYears");
    EXPECT_EQ(text(enums::viewportStandardScale, "1/128\" = 1'-0\""),
              "Inkwright.iwViewportStandardScale_e.iwViewportStandardScale_1_128in_1ft");
    EXPECT_EQ(text(enums::viewportStandardScale, "1:3"),
              "Inkwright.iwViewportStandardScale_e.iwViewportStandardScale_ScaleToFit");
}

TEST(Enumerators, TakeTheFormOfTheirTarget)
{
    EXPECT_EQ(LineWeightEnumerator(Target::CSharp, 5), "iwLineWeight_e.iwLnWt_005");
    EXPECT_EQ(LineWeightEnumerator(Target::Vba, -2), "Inkwright.iwLineWeight_e.iwLnWt_ByBlock");
    for (const Target target : {Target::Cpp, Target::CppCom, Target::JavaScript}) {
        EXPECT_EQ(LineWeightEnumerator(target, 211), "iwLnWt_211");
        EXPECT_EQ(LineWeightEnumerator(target, 7), "iwLnWt_ByLwDefault");
    }
    EXPECT_EQ(DecimalSeparatorEnumerator(Target::Cpp, ","), "iwLinearDimensionDecimalSeparator_Comma");
    EXPECT_EQ(DecimalSeparatorEnumerator(Target::Cpp, " "), "iwLinearDimensionDecimalSeparator_Space");
    EXPECT_EQ(DecimalSeparatorEnumerator(Target::Cpp, ",."), "iwLinearDimensionDecimalSeparator_Period");
}

TEST(TextAlignments, AreToldByTwoModes)
{
    int flag = 0;
    EXPECT_EQ(TextAlignment(5, 0, flag), "Fit");
    EXPECT_EQ(flag, -1);
    EXPECT_EQ(TextAlignment(0, 3, flag), "Top Left");
    EXPECT_EQ(flag, 1);
    EXPECT_EQ(TextAlignment(2, 1, flag), "Bottom Right");
    EXPECT_EQ(flag, 6);
    EXPECT_EQ(TextAlignment(3, 1, flag), "");
    EXPECT_EQ(flag, -1);
}

TEST(Prompts, LoseTheirMarkup)
{
    EXPECT_EQ(CleanPromptText("Specify center point<br>or &raquo; [Radius]:"), "or [Radius]:");
    EXPECT_EQ(CleanPromptText("<b>Next</b> point<br><br>\n"), "Next point");
    EXPECT_EQ(CleanPromptText("&raquo; a &raquo;b <unclosed"), "a &raquo;b <unclosed");
    EXPECT_EQ(CleanPromptText("<br>"), "");
}

TEST(Names, OfProjectsStayAsTheyAre)
{
    EXPECT_EQ(projectName("C:/macros/my macro-1.v2.cs"), "my macro-1");
    EXPECT_EQ(projectName("/a.b/W\u00e4nde [EG]"), QString::fromUtf8("W\u00e4nde [EG]"));
    EXPECT_EQ(projectName("/tmp/.cs"), "");
}

TEST(Texts, AreEscapedForTheirQuotes)
{
    const QString text = "a\\P\n\"b\"";
    EXPECT_EQ(escapeText(Target::JavaScript, text).written, "a\\\\P\\n\"b\"");
    EXPECT_EQ(escapeText(Target::JavaScript, text).meant, text);
    EXPECT_EQ(escapeText(Target::Vba, "a\\P\nb").written, "a\\P\" & vbLf & \"b");
}

TEST(Classes, AreKnownInAllTheirTables)
{
    std::set<QString> names;
    for (const ClassRow& row : ClassTable()) {
        EXPECT_TRUE(names.insert(row.name).second) << row.name;
        EXPECT_NE(oddbFindClassRow(row.name), nullptr) << row.name;
        EXPECT_EQ(FindClass(oddbClassByName(row.name)), &row) << row.name;
        EXPECT_EQ(IsSupportedClass(oddbClassByName(row.name)), !row.has(kOnlyNamed)) << row.name;
    }
    EXPECT_EQ(names.size(), 53U);
    for (const InterfaceType& type : InterfaceTypes())
        EXPECT_TRUE(names.contains(type.cls)) << type.cls;
    EXPECT_FALSE(IsSupportedClass(oddbClassByName("acdbline")));

    EXPECT_TRUE(oddbDwgClassMapDesc(22)->isDerivedFrom(OdDbEntity::desc()));
    EXPECT_FALSE(oddbDwgClassMapDesc(51)->isDerivedFrom(OdDbEntity::desc()));
    EXPECT_EQ(oddbDwgClassMapDesc(2), nullptr);
}

/// Phrases of one name that lack the same targets, and how many there are.
struct Holes
{
    const char* name;
    std::set<Target> targets;
    int phrases = 1;
};

/// Statements that a target does not have. Any other empty place among the literals was forgotten.
TEST(Phrases, HaveNoHolesButTheIntendedOnes)
{
    using enum Target;
    const std::set<Target> allButCom{Cpp, CSharp, JavaScript, VbNet, Vba};
    const std::set<Target> allButCpp{CSharp, JavaScript, VbNet, CppCom, Vba};
    const std::set<Target> withoutSelections{CppCom, JavaScript, VbNet};
    const std::set<Target> recorders{Cpp, CSharp, JavaScript, VbNet, CppCom, Vba};
    const std::vector<Holes> intended{
        // No groups, no declarations and no comments in a page.
        {"EmitBlockBegin", {JavaScript}},
        {"EmitBlockEnd", {JavaScript}},
        {"EmitVariableDeclaration", {JavaScript}},
        {"EmitObjectModifiedComment", {JavaScript}},
        // The point that a call gives needs no declaration either.
        {"EmitChangePosition", {JavaScript}},
        // A page's points have members for scales; C++ sets little of a table style, and a page no text style.
        {"EmitChangeScale", {Cpp, CSharp, VbNet, CppCom, Vba}},
        {"call of a table style", {Cpp}},
        {"EmitSetTableStyleAlignment", {Cpp}},
        {"EmitSetTableStyleTextStyle", {Cpp, JavaScript}},
        // The array is declared together with its elements.
        {"EmitFileLocationArray", {CSharp, VbNet}},
        // COM puts an element into both lists at once.
        {"EmitPromptKeyword: element of a list", {CppCom}, 2},
        {"EmitPromptKeyword: element of both lists", allButCom},
        // A selection made at a prompt: the later command runs on what is selected then.
        {"EmitSelectEntities", withoutSelections, 13},
        {"EmitSelectionFilter", withoutSelections, 5},
        // The array's size stands in its declaration.
        {"EmitMoveEntities", {Cpp, CppCom, VbNet, Vba}},
        {"EmitStretchEntities", {Cpp, CppCom, Vba}},
        {"EmitGroupRemoveEntities", {Cpp, CppCom, Vba}},
        {"EmitStretchEntities", {CppCom}, 2},
        // COM fills its safe arrays with all elements at once.
        {"array of object types", {CppCom}},
        {"array of bare objects", {CSharp, JavaScript, CppCom}},
        {"array of bare object types", {CSharp, JavaScript, CppCom}},
        {"EmitPromptSelection: listed element", {Cpp, VbNet, CppCom, Vba}},
        {"EmitPromptSelection: look-up", allButCpp},
        {"EmitPromptSelection: looked-up word", {Cpp}, 2},
        // These fill arrays of numbers by points.
        {"array of numbers", {VbNet, CppCom}},
        // Lists stand within a call or in front of it.
        {"array of integers", {CSharp, JavaScript}},
        {"array of points", {CSharp, JavaScript}},
        {"array of plane points", {CSharp, JavaScript}},
        // COM draws the lines of an angle within its insertion.
        {"EmitInsertAngularDimension2Line: temporary line", {CppCom}},
        {"EmitInsertAngularDimension2Line: erasure of a line", {CppCom}},
        // Only C++ and C# measure a circle or an arc of the macro, the others make one each time.
        {"EmitInsertDiameterDimension: on a variable", {CppCom, JavaScript, VbNet, Vba}},
        {"EmitInsertJoggedDimension: on a variable", {CppCom, JavaScript, VbNet, Vba}},
        // A temporary entity is declared where it is assigned.
        {"EmitInsertHatchByEntities: declaration of an entity", {CSharp, JavaScript}, 2},
        // COM declares the array with the call, a page has all of a pattern's data in one object.
        {"EmitInsertHatchByEntities: array", {CppCom}},
        {"EmitSetHatchData: locals", {JavaScript}},
        // C++ takes each color into a variable in front of the call, the others have them within it.
        {"EmitHatchGradient: indexed color", allButCpp, 2},
        {"EmitHatchGradient: true color", allButCpp, 2},
        // C++ declares the corners of a zoom for all ranges.
        {"EmitZoom: corners", allButCpp},
        // C++ sets the color where it is fetched.
        {"EmitHatchGradientData: assigned color", {Cpp}},
        // The array's size stands in its declaration.
        {"size of picked objects", {Cpp, CppCom, Vba}},
        {"size of picked points", {Cpp, CppCom, VbNet, Vba}},
        // Basic ends all tests of a search at once; C++ and COM have properties in locals; a page needs no locals, and
        // VBA has them all in front.
        {"EmitTrimEntities: end of tests", {Cpp, CppCom, CSharp, JavaScript}},
        {"EmitTrimEntities: locals", {JavaScript}},
        {"EmitTrimEntities: local of the object", {Cpp, CppCom, CSharp, JavaScript, VbNet}},
        {"EmitTrimEntities: success", allButCpp},
        {"EmitTrimEntities: property into a local", {CSharp, JavaScript, VbNet, Vba}},
        {"EmitTrimEntities: property", {Cpp, CppCom}},
        // A color has a variable of its own in C++.
        {"color", {Cpp}, 2},
        // The others declare it where they fetch it.
        {"background: declaration of a color", {CSharp, JavaScript, VbNet}},
        // C++ cannot change these of a style, nor a style's name.
        {"EmitTableBordersColor", {Cpp}},
        {"EmitReplaceRichLineElement", {Cpp}},
        {"EmitRenameRichLineStyle", {Cpp}},
        {"EmitRenameLayerOrGroup", allButCpp},
        // Only in C++ does the activation of a layer or a style differ from that of anything else.
        {"EmitActivateLayer", allButCpp},
        // The others look the style up where they set it.
        {"EmitSetTableStyle: style", {CSharp, JavaScript, VbNet, Vba}},
        // Declarations ahead of the tests in C++ and VBA, a call behind them in C++.
        {"EmitGroupAddEntities", {CSharp, JavaScript, VbNet, CppCom}},
        {"EmitGroupAddEntities", {CSharp, JavaScript, VbNet, CppCom, Vba}},
        // Python says at once what the others need several phrases for, and has its lists in the call.
        {"EmitChangePoint", recorders},
        {"EmitScaleTableRows", recorders},
        {"EmitTrimEntities: piece", recorders},
        {"EmitMoveEntities: list", recorders},
        {"EmitMirrorEntities: lists", recorders},
        {"EmitCopyEntities: lists", recorders},
        {"picked objects in the call", recorders},
        {"picked points in the call", recorders},
    };
    using Lack = std::pair<std::string, std::set<Target>>;
    std::map<Lack, int> missing;
    for (const auto& [name, targets, phrases] : intended)
        missing[{name, targets}] -= phrases;
    for (const Phrase* phrase : Phrase::all()) {
        std::set<Target> targets;
        for (std::size_t i = 0; i < targetCount; ++i)
            if (isRecorders(static_cast<Target>(i)) && !phrase->has(static_cast<Target>(i)))
                targets.insert(static_cast<Target>(i));
        if (!targets.empty())
            ++missing[{phrase->name(), targets}];
    }
    for (const auto& [lack, more] : missing)
        EXPECT_EQ(more, 0) << lack.first << " without " << testing::PrintToString(lack.second);
}

/// What Python says in other words, or need not say.
TEST(Phrases, HaveNoHolesInPythonButTheIntendedOnes)
{
    const std::vector<std::pair<const char*, int>> intended{
        // Neither groups nor declarations.
        {"EmitBlockBegin", 1},
        {"EmitBlockEnd", 1},
        {"EmitVariableDeclaration", 1},
        {"EmitDeclareObject", 1},
        {"EmitCreateBlockDefinition", 1},
        {"EmitCustomData", 2},
        {"EmitInsertHatchByEntities: declaration of an entity", 2},
        {"EmitSetHatchData: locals", 1},
        {"EmitTrimEntities: locals", 1},
        {"EmitTrimEntities: local of the object", 1},
        {"EmitZoom: corners", 1},
        {"background: declaration of a color", 1},
        // Arrays are expressions, which stand in the call.
        {"array of objects", 1},
        {"array of bare objects", 1},
        {"array of object types", 1},
        {"array of bare object types", 1},
        {"array of integers", 1},
        {"array of numbers", 1},
        {"array of points", 1},
        {"array of plane points", 1},
        {"array of picked objects", 1},
        {"array of picked points", 1},
        {"size of picked objects", 1},
        {"size of picked points", 1},
        {"block entity", 1},
        {"EmitCopyEntities", 2}, // nothing is looked up either
        {"EmitFileLocationArray", 1},
        {"EmitGroupAddEntities", 2},
        {"EmitGroupRemoveEntities", 2},
        {"EmitInsertHatchByEntities: array", 1},
        {"EmitInsertNote", 2},
        {"EmitInsertRegion", 2},
        {"EmitMirrorEntities", 1},
        {"EmitMoveEntities", 2},
        {"EmitSelectEntities", 5},
        {"EmitStretchEntities", 4},
        // A function asks at its head, and what is selected then is handed to the call.
        {"EmitPromptPoint", 1},
        {"EmitPromptCorner", 1},
        {"EmitPromptAngle", 1},
        {"EmitPromptColor", 1},
        {"EmitPromptDistance", 1},
        {"EmitPromptDouble", 1},
        {"EmitPromptInteger", 1},
        {"EmitPromptKeyword", 1},
        {"EmitPromptKeyword: lists", 1},
        {"EmitPromptKeyword: element of a list", 2},
        {"EmitPromptKeyword: element of both lists", 1},
        {"EmitPromptOrient", 1},
        {"EmitPromptScale", 1},
        {"EmitPromptString", 1},
        {"EmitPromptSelection: listed element", 1},
        {"EmitPromptSelection: look-up", 1},
        {"EmitPromptSelection: looked-up word", 2},
        // One statement reads, changes and writes.
        {"EmitChangeCoordinate", 1},
        {"EmitChangeCoordinate2D", 1},
        {"EmitChangePoint", 7},
        {"EmitChangePosition", 4},
        {"EmitChangeVertex", 4},
        {"EmitChangeVertex2D", 3},
        {"EmitSetCenterMark", 2},
        {"EmitSetElementColor", 2},
        {"EmitSetHatchData: name", 1},
        {"EmitSetHatchData: number", 1},
        {"EmitSetHatchData: type", 1},
        {"EmitHatchGradientData: angle", 1},
        {"EmitHatchGradientData: assigned color", 1},
        {"EmitHatchGradientData: centered", 1},
        {"EmitHatchGradientData: indexed color", 1},
        {"EmitHatchGradientData: true color", 1},
        {"EmitScaleTableRows: coefficient", 1},
        {"EmitScaleTableRows: count", 1},
        {"EmitScaleTableRows: loop", 1},
        {"EmitScaleTableRows: set", 1},
        {"EmitScaleTableRows: size", 1},
        {"background: RGB color", 1},
        {"background: color by index", 1},
        // A function of the macro searches for what a trim has left.
        {"EmitTrimEntities: search", 11},
        {"EmitTrimEntities: end of tests", 1},
        {"EmitTrimEntities: property", 1},
        {"EmitTrimEntities: property into a local", 1},
        {"EmitTrimEntities: success", 1},
        // Forms of one other target, or of faithful macros.
        {"EmitActivateLayer", 1},
        {"EmitChangeScale", 1},
        {"EmitHatchGradient: indexed color", 2},
        {"EmitHatchGradient: true color", 2},
        {"EmitRenameLayerOrGroup", 1},
        {"EmitSelectViewTile", 1},
        {"EmitSetTableStyle: style", 1},
    };
    std::map<std::string, int> missing;
    for (const auto& [name, phrases] : intended)
        missing[name] -= phrases;
    for (const Phrase* phrase : Phrase::all())
        missing[phrase->name()] += phrase->has(Target::Python) ? 0 : 1;
    for (const auto& [name, more] : missing)
        EXPECT_EQ(more, 0) << name;
}

} // namespace
