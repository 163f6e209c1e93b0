#include "statements/enumerations.h"

#include "statements/losses.h"
#include "statements/wording.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <array>
#include <bit>
#include <map>

namespace inkmacro {

namespace enums {

const ValueEnumeration arcLengthSymbols{"iwArcLengthSymbols", 0, {"BeforeDimText", "AboveDimText", "None"}};

const ValueEnumeration arcSymbolType{"iwArcSymbolType", 0, {"PrecedingDimensionText", "AboveDimensionText", "None"}};

const ValueEnumeration arcTextAlignment{"iwArcTextAlignment", 1, {"Fit", "Left", "Right", "Center"}};

const ValueEnumeration arcTextDirection{"iwArcTextDirection", 1, {"OutwardFromCenter", "InwardToTheCenter"}};

const ValueEnumeration arcTextPosition{"iwArcTextPosition", 1, {"OnConvexSide", "OnConcaveSide"}};

const ValueEnumeration dimensionArrowType{"iwDimensionArrowType",
                                          0,
                                          {"ClosedFilled",
                                           "ClosedBlank",
                                           "Closed",
                                           "Dot",
                                           "ArchitecturalTick",
                                           "Oblique",
                                           "Open",
                                           "OriginIndicator",
                                           "OriginIndicator2",
                                           "RightAngle",
                                           "Open30",
                                           "DotSmall",
                                           "DotBlank",
                                           "DotSmallBlank",
                                           "Box",
                                           "BoxFilled",
                                           "DatumTriangle",
                                           "DatumTriangleFilled",
                                           "Integral",
                                           "None",
                                           "Custom"}};

const ValueEnumeration dimensionCenterMarkDisplay{
    "iwDimensionCenterMarkDisplay", 0, {"None", "AsCenterLine", "AsMark"}};

const ValueEnumeration dimensionFitDimensionText{
    "iwDimensionFitDimensionText",
    0,
    {"NextToDimensionLine", "AboveDimensionLineWithLeader", "AboveDimensionLineWithoutLeader"}};

const ValueEnumeration dimensionFitGeometry{
    "iwDimensionFitGeometry", 0, {"TextAndArrows", "Arrows", "Text", "Automatic", "KeepTextBetweenExtensionLines"}};

const ValueEnumeration dimensionScale{"iwDimensionScale", 1, {"UseScaleFactor", "ScaleDimensionsAccordingToSheet"}};

const ValueEnumeration dimensionStyleAngleFormat{
    "iwDimensionStyleAngleFormat", 0, {"DecimalDegrees", "Deg_Min_Sec", "Grads", "Radians"}};

const ValueEnumeration dimensionTextAlignment{
    "iwDimensionTextAlignment", 0, {"UseISOStandard", "AlignHorizontally", "AlignWithDimensionLines"}};

const ValueEnumeration dimensionTextHorizontalPosition{
    "iwDimensionTextHorizontalPosition", 0, {"Centered", "AtExtLine1", "AtExtLine2", "OverExtLine1", "OverExtLine2"}};

const ValueEnumeration dimensionTextVerticalPosition{
    "iwDimensionTextVerticalPosition", 0, {"Centered", "Above", "Outside", "JIS"}};

const ValueEnumeration dualDimensionFormat{"iwDualDimensionFormat",
                                           1,
                                           {"Scientific", "Decimal", "Engineering", "ArchitecturalStacked",
                                            "FractionalStacked", "Architectural", "Fractional", "WindowsDesktop"}};

const ValueEnumeration dualDimensionInsertPlacement{
    "iwDualDimensionInsertPlacement", 0, {"BelowPrimaryUnits", "AfterPrimaryUnits"}};

const ValueEnumeration hatchPatternInternalRegionDetection{
    "iwHatchPatternInternalRegionDetection", 1, {"Normal", "Outer", "Ignore"}};

const ValueEnumeration leaderType{
    "iwLeaderType", 0, {"LineWithNoArrow", "SplineWithNoArrow", "LineWithArrow", "SplineWithArrow"}};

const ValueEnumeration linearDimensionFormat{
    "iwLinearDimensionFormat",
    1,
    {"Scientific", "Decimal", "Engineering", "Architectural", "Fractional", "WindowsDesktop"}};

const ValueEnumeration linearDimensionFractionalDisplay{
    "iwLinearDimensionFractionalDisplay", 0, {"Horizontal", "Diagonal", "NotStacked"}};

const ValueEnumeration noteDirection{"iwNoteDirection", 0, {"ByStyle", "Vertical", "Horizontal"}};

const ValueEnumeration tableCellType{"iwTableCellType", 1, {"Title", "Header", "Data"}};

const ValueEnumeration toleranceCalculation{
    "iwToleranceCalculation", 0, {"None", "Symmetrical", "Deviation", "Limits", "Basic"}};

const ValueEnumeration toleranceVerticalTextJustification{
    "iwToleranceVerticalTextJustification", 0, {"Bottom", "Middle", "Top"}};

const ValueEnumeration unitPrecision{"iwUnitPrecision", 0, {"0", "1", "2", "3", "4", "5", "6", "7", "8"}};

/// The borders of a table are bits: the position in the row is the bit's number.
const ValueEnumeration tableBordersLineType{
    "iwTableBordersLineType",
    0,
    {"HorizontalTop", "HorizontalInside", "HorizontalBottom", "VerticalLeft", "VerticalInside", "VerticalRight"},
    true};

#define INKMACRO_TWO_WAY_ALIGNMENTS                                                                                    \
    {"Top Left", "TopLeft"}, {"Top Center", "TopCenter"}, {"Top Right", "TopRight"}, {"Middle Left", "MiddleLeft"},    \
        {"Middle Center", "MiddleCenter"}, {"Middle Right", "MiddleRight"}, {"Bottom Left", "BottomLeft"},             \
        {"Bottom Center", "BottomCenter"},                                                                             \
    {                                                                                                                  \
        "Bottom Right", "BottomRight"                                                                                  \
    }

constexpr const char* kValues = "property_values";

const TextEnumeration blockInsertUnits{"iwBlockInsertUnits",
                                       "Unitless",
                                       "Unitless",
                                       "CFxUtils",
                                       {{"Inches", "Inches"},
                                        {"Feet", "Feet"},
                                        {"Miles", "Miles"},
                                        {"Millimeters", "Millimeters"},
                                        {"Centimeters", "Centimeters"},
                                        {"Meters", "Meters"},
                                        {"Kilometers", "Kilometers"},
                                        {"Microinches", "Microinches"},
                                        {"Mils", "Mils"},
                                        {"Yards", "Yards"},
                                        {"Angstroms", "Angstroms"},
                                        {"Nanometers", "Nanometers"},
                                        {"Microns", "Microns"},
                                        {"Decimeters", "Decimeters"},
                                        {"Dekameters", "Dekameters"},
                                        {"Hectometers", "Hectometers"},
                                        {"Gigameters", "Gigameters"},
                                        {"Astronomical", "Astronomical"},
                                        {"Light Years", "LightYears"},
                                        {"Parsecs", "Parsecs"}}};

const TextEnumeration embeddedObjectPrintQuality{"iwEmbeddedObjectPrintQuality",
                                                 "Low graphics",
                                                 "LowGraphics",
                                                 kValues,
                                                 {{"Monochrome", "Monochrome"}, {"High graphics", "HighGraphics"}}};

const TextEnumeration noteJustification{
    "iwNoteJustification", "Top Left", "TopLeft", kValues, {INKMACRO_TWO_WAY_ALIGNMENTS}};

// The enumerators' own spelling.
const TextEnumeration polyLine3DFitSmooth{
    "iwPolyLine3DFitSmooth", "None", "None", kValues, {{"Quadratic", "Qudratic"}, {"Cubic", "Cubic"}}};

const TextEnumeration polygonMeshFitSmooth{"iwPolygonMeshFitSmooth",
                                           "None",
                                           "None",
                                           kValues,
                                           {{"Quadratic", "Qudratic"}, {"Cubic", "Cubic"}, {"Bezier", "Bezier"}}};

const TextEnumeration richLineJustification{
    "iwRichLineJustification", "Top", "Top", kValues, {{"Zero", "Zero"}, {"Bottom", "Bottom"}}};

const TextEnumeration tableCellAlignment{
    "iwTableCellAlignment", "Top Left", "TopLeft", kValues, {INKMACRO_TWO_WAY_ALIGNMENTS}};

const TextEnumeration textJustification{"iwTextJustification",
                                        "Left",
                                        "Left",
                                        kValues,
                                        {{"Center", "Center"},
                                         {"Right", "Right"},
                                         {"Aligned", "Aligned"},
                                         {"Middle", "Middle"},
                                         {"Fit", "Fit"},
                                         INKMACRO_TWO_WAY_ALIGNMENTS}};

const TextEnumeration viewportShadePrintStyle{
    "iwViewportShadePrintStyle",
    "As displayed",
    "AsDisplayed",
    kValues,
    {{"Wireframe", "Wireframe"}, {"Hidden", "Hidden"}, {"Rendered", "Rendered"}}};

const TextEnumeration viewportStandardScale{"iwViewportStandardScale",
                                            "Scale to fit",
                                            "ScaleToFit",
                                            kValues,
                                            {{"Custom scale", "CustomScale"},
                                             {"1:1", "1_1"},
                                             {"1:2", "1_2"},
                                             {"1:4", "1_4"},
                                             {"1:8", "1_8"},
                                             {"1:10", "1_10"},
                                             {"1:16", "1_16"},
                                             {"1:20", "1_20"},
                                             {"1:30", "1_30"},
                                             {"1:40", "1_40"},
                                             {"1:50", "1_50"},
                                             {"1:100", "1_100"},
                                             {"2:1", "2_1"},
                                             {"4:1", "4_1"},
                                             {"8:1", "8_1"},
                                             {"10:1", "10_1"},
                                             {"100:1", "100_1"},
                                             {"1/128\" = 1'-0\"", "1_128in_1ft"},
                                             {"1/64\" = 1'-0\"", "1_64in_1ft"},
                                             {"1/32\" = 1'-0\"", "1_32in_1ft"},
                                             {"1/16\" = 1'-0\"", "1_16in_1ft"},
                                             {"3/32\" = 1'-0\"", "3_32in_1ft"},
                                             {"1/8\" = 1'-0\"", "1_8in_1ft"},
                                             {"3/16\" = 1'-0\"", "3_16in_1ft"},
                                             {"1/4\" = 1'-0\"", "1_4in_1ft"},
                                             {"3/8\" = 1'-0\"", "3_8in_1ft"},
                                             {"1/2\" = 1'-0\"", "1_2in_1ft"},
                                             {"3/4\" = 1'-0\"", "3_4in_1ft"},
                                             {"1\" = 1'-0\"", "1in_1ft"},
                                             {"3\" = 1'-0\"", "3in_1ft"},
                                             {"6\" = 1'-0\"", "6in_1ft"},
                                             {"1'-0\" = 1'-0\"", "1ft_1ft"}}};

#undef INKMACRO_TWO_WAY_ALIGNMENTS

} // namespace enums

static QString withSuffix(Target target, const char* enumeration, const char* suffix)
{
    return enumeratorText(target, QString(enumeration) + "_e", QString(enumeration) + '_' + suffix);
}

static void loseChoice(const char* enumeration, const QString& choice)
{
    NoteLoss(QString("\"%1\" of %2").arg(choice, enumeration), "there is no such choice, so the default stands");
}

/// The place of the value in the row, negative for one that cannot be there.
static std::int64_t positionOf(const ValueEnumeration& enumeration, std::int32_t value)
{
    if (!enumeration.bits)
        return std::int64_t{value} - enumeration.firstValue;
    const auto bits = static_cast<std::uint32_t>(value);
    return std::has_single_bit(bits) ? std::countr_zero(bits) : -1;
}

QString EnumeratorByValue(Target target, const ValueEnumeration& enumeration, std::int32_t value)
{
    const std::int64_t position = positionOf(enumeration, value);
    const bool inside = position >= 0 && position < static_cast<std::int64_t>(enumeration.suffixes.size());
    if (!inside)
        loseChoice(enumeration.name, QString::number(value));
    return withSuffix(target, enumeration.name, enumeration.suffixes.begin()[inside ? position : 0]);
}

QString EnumeratorBySuffix(Target target, const ValueEnumeration& enumeration, const char* suffix)
{
    return withSuffix(target, enumeration.name, suffix);
}

QString EnumeratorByText(Target target, const TextEnumeration& enumeration, const QString& text)
{
    const auto isShownAs = [&](const char* shown) {
        return text.compare(QCoreApplication::translate(enumeration.translationContext, shown, nullptr, -1),
                            Qt::CaseInsensitive) == 0;
    };
    for (const TextEnumeration::Row& row : enumeration.rows)
        if (isShownAs(row.text))
            return withSuffix(target, enumeration.name, row.suffix);
    if (!text.isEmpty() && !isShownAs(enumeration.defaultText))
        loseChoice(enumeration.name, text);
    return withSuffix(target, enumeration.name, enumeration.defaultSuffix);
}

namespace {

/// Every entity has a weight, so the texts of one target are made once.
struct LineWeightTexts
{
    explicit LineWeightTexts(Target target)
    {
        const auto text = [target](const QString& name) {
            return enumeratorText(target, "iwLineWeight_e", "iwLnWt_" + name);
        };
        for (const int weight :
             {0, 5, 9, 13, 15, 18, 20, 25, 30, 35, 40, 50, 53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211})
            byWeight.insert(weight, text(QStringLiteral("%1").arg(weight, 3, 10, QLatin1Char('0'))));
        byWeight.insert(-1, text("ByLayer"));
        byWeight.insert(-2, text("ByBlock"));
        other = text("ByLwDefault");
    }

    QHash<int, QString> byWeight;
    QString other;
};

} // namespace

QString LineWeightEnumerator(Target target, int weight)
{
    static std::map<Target, LineWeightTexts> targets;
    const LineWeightTexts& texts = targets.try_emplace(target, target).first->second;
    constexpr int byDefault = -3;
    const auto known = texts.byWeight.constFind(weight);
    if (known == texts.byWeight.constEnd() && weight != byDefault)
        loseChoice("iwLineWeight", QString::number(weight));
    return known == texts.byWeight.constEnd() ? texts.other : *known;
}

QString DecimalSeparatorEnumerator(Target target, const QString& separator)
{
    const char* const suffix = separator == "," ? "Comma" : separator == " " ? "Space" : "Period";
    if (*suffix == 'P' && !separator.isEmpty() && separator != ".")
        loseChoice("iwLinearDimensionDecimalSeparator", separator);
    return enumeratorText(target, "iwLinearDimensionDecimalSeparator_e",
                          QString("iwLinearDimensionDecimalSeparator_") + suffix);
}

QString TextAlignment(int horizontalMode, int verticalMode, int& flag)
{
    struct Row
    {
        int vertical;
        int horizontal;
        const char* text;
        int flag;
    };
    // The last flag is 6, as that of "Middle Right": so the host counts them.
    static constexpr Row rows[] = {
        {0, 0, "Left", -1},       {0, 1, "Center", -1},       {0, 2, "Right", -1},        {0, 3, "Aligned", -1},
        {0, 4, "Middle", -1},     {0, 5, "Fit", -1},          {3, 0, "Top Left", 1},      {3, 1, "Top Center", 2},
        {3, 2, "Top Right", 3},   {2, 0, "Middle Left", 4},   {2, 1, "Middle Center", 5}, {2, 2, "Middle Right", 6},
        {1, 0, "Bottom Left", 7}, {1, 1, "Bottom Center", 8}, {1, 2, "Bottom Right", 6},
    };
    flag = -1;
    for (const Row& row : rows)
        if (row.vertical == verticalMode && row.horizontal == horizontalMode) {
            flag = row.flag;
            return row.text;
        }
    return {};
}

} // namespace inkmacro
