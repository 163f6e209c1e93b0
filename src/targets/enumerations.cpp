#include "targets/enumerations.h"

#include "targets/wording.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <initializer_list>
#include <utility>

namespace inkmacro {

namespace {

struct ByValue
{
    const char* name;
    int firstValue;
    /// In ascending order of values; the first is the default.
    std::array<const char*, 21> suffixes;
};

constexpr ByValue kByValue[] = {
    {"iwArcLengthSymbols", 0, {"BeforeDimText", "AboveDimText", "None"}},
    {"iwArcSymbolType", 0, {"PrecedingDimensionText", "AboveDimensionText", "None"}},
    {"iwArcTextAlignment", 1, {"Fit", "Left", "Right", "Center"}},
    {"iwArcTextDirection", 1, {"OutwardFromCenter", "InwardToTheCenter"}},
    {"iwArcTextPosition", 1, {"OnConvexSide", "OnConcaveSide"}},
    {"iwDimensionArrowType",
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
      "Custom"}},
    {"iwDimensionCenterMarkDisplay", 0, {"None", "AsCenterLine", "AsMark"}},
    {"iwDimensionFitDimensionText",
     0,
     {"NextToDimensionLine", "AboveDimensionLineWithLeader", "AboveDimensionLineWithoutLeader"}},
    {"iwDimensionFitGeometry", 0, {"TextAndArrows", "Arrows", "Text", "Automatic", "KeepTextBetweenExtensionLines"}},
    {"iwDimensionScale", 1, {"UseScaleFactor", "ScaleDimensionsAccordingToSheet"}},
    {"iwDimensionStyleAngleFormat", 0, {"DecimalDegrees", "Deg_Min_Sec", "Grads", "Radians"}},
    {"iwDimensionTextAlignment", 0, {"UseISOStandard", "AlignHorizontally", "AlignWithDimensionLines"}},
    {"iwDimensionTextHorizontalPosition", 0, {"Centered", "AtExtLine1", "AtExtLine2", "OverExtLine1", "OverExtLine2"}},
    {"iwDimensionTextVerticalPosition", 0, {"Centered", "Above", "Outside", "JIS"}},
    {"iwDualDimensionFormat",
     1,
     {"Scientific", "Decimal", "Engineering", "ArchitecturalStacked", "FractionalStacked", "Architectural",
      "Fractional", "WindowsDesktop"}},
    {"iwDualDimensionInsertPlacement", 0, {"BelowPrimaryUnits", "AfterPrimaryUnits"}},
    {"iwLeaderType", 0, {"LineWithNoArrow", "SplineWithNoArrow", "LineWithArrow", "SplineWithArrow"}},
    {"iwLinearDimensionFormat",
     1,
     {"Scientific", "Decimal", "Engineering", "Architectural", "Fractional", "WindowsDesktop"}},
    {"iwLinearDimensionFractionalDisplay", 0, {"Horizontal", "Diagonal", "NotStacked"}},
    {"iwNoteDirection", 0, {"ByStyle", "Vertical", "Horizontal"}},
    {"iwTableCellType", 1, {"Title", "Header", "Data"}},
    {"iwToleranceCalculation", 0, {"None", "Symmetrical", "Deviation", "Limits", "Basic"}},
    {"iwToleranceVerticalTextJustification", 0, {"Bottom", "Middle", "Top"}},
    {"iwUnitPrecision", 0, {"0", "1", "2", "3", "4", "5", "6", "7", "8"}},
};

/// The borders of a table are bits: the position in the row is the bit's number.
constexpr ByValue kTableBorders{
    "iwTableBordersLineType",
    0,
    {"HorizontalTop", "HorizontalInside", "HorizontalBottom", "VerticalLeft", "VerticalInside", "VerticalRight"}};

struct TextRow
{
    const char* text;
    const char* suffix;
};

struct ByText
{
    const char* name;
    const char* defaultSuffix;
    const char* translationContext;
    std::initializer_list<TextRow> rows;
};

#define INKMACRO_TWO_WAY_ALIGNMENTS                                                                                    \
    {"Top Left", "TopLeft"}, {"Top Center", "TopCenter"}, {"Top Right", "TopRight"}, {"Middle Left", "MiddleLeft"},    \
        {"Middle Center", "MiddleCenter"}, {"Middle Right", "MiddleRight"}, {"Bottom Left", "BottomLeft"},             \
        {"Bottom Center", "BottomCenter"},                                                                             \
    {                                                                                                                  \
        "Bottom Right", "BottomRight"                                                                                  \
    }

constexpr const char* kValues = "property_values";

const ByText kByText[] = {
    {"iwBlockInsertUnits",
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
      {"Parsecs", "Parsecs"}}},
    {"iwEmbeddedObjectPrintQuality",
     "LowGraphics",
     kValues,
     {{"Monochrome", "Monochrome"}, {"High graphics", "HighGraphics"}}},
    {"iwNoteJustification", "TopLeft", kValues, {INKMACRO_TWO_WAY_ALIGNMENTS}},
    // The enumerators' own spelling.
    {"iwPolyLine3DFitSmooth", "None", kValues, {{"Quadratic", "Qudratic"}, {"Cubic", "Cubic"}}},
    {"iwPolygonMeshFitSmooth", "None", kValues, {{"Quadratic", "Qudratic"}, {"Cubic", "Cubic"}, {"Bezier", "Bezier"}}},
    {"iwRichLineJustification", "Top", kValues, {{"Zero", "Zero"}, {"Bottom", "Bottom"}}},
    {"iwTableCellAlignment", "TopLeft", kValues, {INKMACRO_TWO_WAY_ALIGNMENTS}},
    {"iwTextJustification",
     "Left",
     kValues,
     {{"Center", "Center"},
      {"Right", "Right"},
      {"Aligned", "Aligned"},
      {"Middle", "Middle"},
      {"Fit", "Fit"},
      INKMACRO_TWO_WAY_ALIGNMENTS}},
    {"iwViewportShadePrintStyle",
     "AsDisplayed",
     kValues,
     {{"Wireframe", "Wireframe"}, {"Hidden", "Hidden"}, {"Rendered", "Rendered"}}},
    {"iwViewportStandardScale",
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
      {"1'-0\" = 1'-0\"", "1ft_1ft"}}},
};

#undef INKMACRO_TWO_WAY_ALIGNMENTS

template<class Table>
const auto& rowOf(const Table& table, const char* name)
{
    const auto found =
        std::find_if(std::begin(table), std::end(table), [&](const auto& row) { return !std::strcmp(row.name, name); });
    Q_ASSERT_X(found != std::end(table), "enumerations", name);
    return *found;
}

QString valueText(Target target, const ByValue& row, int position)
{
    const bool inside = position >= 0 && position < static_cast<int>(row.suffixes.size()) &&
                        row.suffixes[static_cast<std::size_t>(position)];
    const char* const suffix = row.suffixes[inside ? static_cast<std::size_t>(position) : 0];
    return enumeratorText(target, QString(row.name) + "_e", QString(row.name) + '_' + suffix);
}

} // namespace

QString EnumeratorByValue(Target target, const char* enumeration, int value)
{
    if (!std::strcmp(enumeration, kTableBorders.name)) {
        const auto bits = static_cast<unsigned>(value);
        return valueText(target, kTableBorders, std::has_single_bit(bits) ? std::countr_zero(bits) : 0);
    }
    const ByValue& row = rowOf(kByValue, enumeration);
    // A value far below the first must not wrap round into the row.
    return valueText(target, row, value < row.firstValue ? 0 : value - row.firstValue);
}

QString EnumeratorByText(Target target, const char* enumeration, const QString& text)
{
    const ByText& row = rowOf(kByText, enumeration);
    const char* suffix = row.defaultSuffix;
    for (const TextRow& candidate : row.rows) {
        const QString shown = QCoreApplication::translate(row.translationContext, candidate.text, nullptr, -1);
        if (text.compare(shown, Qt::CaseInsensitive) == 0) {
            suffix = candidate.suffix;
            break;
        }
    }
    return enumeratorText(target, QString(row.name) + "_e", QString(row.name) + '_' + suffix);
}

QString LineWeightEnumerator(Target target, int weight)
{
    static constexpr std::array weights{0,  5,  9,  13, 15, 18,  20,  25,  30,  35,  40,  50,
                                        53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211};
    QString name = QStringLiteral("ByLwDefault");
    if (weight == -2)
        name = QStringLiteral("ByBlock");
    else if (weight == -1)
        name = QStringLiteral("ByLayer");
    else if (std::find(weights.begin(), weights.end(), weight) != weights.end())
        name = QStringLiteral("%1").arg(weight, 3, 10, QLatin1Char('0'));
    return enumeratorText(target, "iwLineWeight_e", "iwLnWt_" + name);
}

QString DecimalSeparatorEnumerator(Target target, const QString& separator)
{
    const char* const suffix = separator == "," ? "Comma" : separator == " " ? "Space" : "Period";
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
