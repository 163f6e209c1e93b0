// Styles of dimensions, and what a dimension has in place of its style's.

#include "dxf/DrawingLine.h"
#include "dxf/dimensionVariables.h"
#include "dxf/readers.h"

#include <cmath>
#include <numbers>

namespace inkmacro::dxf {

namespace {

const QString kStandard = QStringLiteral("Standard"); // which every drawing has

constexpr const char* kUnknownSetting = "a setting of dimensions that no recording has";

// Codes of the variables that are more than a value.
enum Code : int
{
    kAffixes = 3,
    kAltAffixes = 4,
    kArrowName = 5, ///< these three in old files only
    kFirstArrowName = 6,
    kSecondArrowName = 7,
    kScale = 40,
    kArrowSize = 41,
    kToleranceUpper = 47,
    kToleranceLower = 48,
    kFixedLength = 49,
    kJogAngle = 50,
    kFill = 69,
    kFillColor = 70,
    kHasTolerance = 71,
    kHasLimits = 72,
    kHorizontalInside = 73,
    kHorizontalOutside = 74,
    kZeros = 78,
    kAngleZeros = 79,
    kCenterMark = 141,
    kTickSize = 142,
    kTextDistance = 147,
    kHasAlt = 170,
    kHasTwoArrows = 173,
    kKeepsTextInside = 174,
    kOldUnits = 270,
    kUnits = 277,
    kSeparator = 278,
    kTextMovement = 279,
    kToleranceZeros = 284,
    kAltZeros = 285,
    kAltToleranceZeros = 286,
    kOldFit = 287,
    kFit = 289,
    kHasFixedLength = 290,
    kTextStyle = 340,
    kLeaderArrow = 341,
    kArrow = 342,
    kFirstArrow = 343,
    kSecondArrow = 344,
};

struct Words
{
    int first;
    std::initializer_list<const char*> words;
};

const Words kDigits{0, {"0", "1", "2", "3", "4", "5", "6", "7", "8"}};
const Words kUnitFormats{1, {"Scientific", "Decimal", "Engineering", "Architectural", "Fractional", "WindowsDesktop"}};
const Words kAltFormats{1,
                        {"Scientific", "Decimal", "Engineering", "ArchitecturalStacked", "FractionalStacked",
                         "Architectural", "Fractional", "WindowsDesktop"}};
const Words kAngleFormats{0, {"DecimalDegrees", "Deg_Min_Sec", "Grads", "Radians"}};
const Words kFractions{0, {"Horizontal", "Diagonal", "NotStacked"}};
const Words kAlongLine{0, {"Centered", "AtExtLine1", "AtExtLine2", "OverExtLine1", "OverExtLine2"}};
const Words kAcrossLine{0, {"Centered", "Above", "Outside", "JIS"}};
const Words kToleranceHeights{0, {"Bottom", "Middle", "Top"}};
const Words kTolerances{0, {"None", "Symmetrical", "Deviation", "Limits", "Basic"}};
const Words kArcSymbols{0, {"BeforeDimText", "AboveDimText", "None"}};
const Words kFits{0, {"TextAndArrows", "Arrows", "Text", "Automatic", "KeepTextBetweenExtensionLines"}};
const Words kMovements{0, {"NextToDimensionLine", "AboveDimensionLineWithLeader", "AboveDimensionLineWithoutLeader"}};
const Words kAlignments{0, {"UseISOStandard", "AlignHorizontally", "AlignWithDimensionLines"}};
const Words kCenterMarks{0, {"None", "AsCenterLine", "AsMark"}};
const Words kArrows{0,
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
                     "None"}};

/// Blocks of arrows, in the order of their words.
constexpr const char* kArrowBlocks[] = {
    "",          "_ClosedBlank", "_Closed",     "_Dot",         "_ArchTick", "_Oblique",  "_Open",
    "_Origin",   "_Origin2",     "_Open90",     "_Open30",      "_DotSmall", "_DotBlank", "_Small",
    "_BoxBlank", "_BoxFilled",   "_DatumBlank", "_DatumFilled", "_Integral", "_None",
};
constexpr int kTick = 5;

/// Null for a number that has no word.
CFxVariant chosenOf(const Words& words, qint64 number)
{
    if (number < words.first || number >= words.first + static_cast<qint64>(words.words.size()))
        return CFxVariant::kNull;
    return choice(static_cast<int>(number), words.words.begin()[number - words.first]);
}

enum class Form
{
    Number,
    YesNo,
    Color,
    Weight,
    Chosen,
    LineStyle,
};

/// A variable that is one value, and its tags.
struct Row
{
    int code;
    const char* ofStyle;
    const char* ofDimension; ///< null where it does nothing to a dimension that stands, or has no tag
    Form form = Form::Number;
    const Words* words = nullptr;
};

const Row kRows[] = {
    {42, "ExtLineDimensionsOffset", "ExtLine offset"},
    {43, "LineDimensionsOffset", nullptr},
    {44, "ExtLineDimensionsDistPastDimLines", "ExtLine ext"},
    {45, "LinearDimensionsRoundToTheNearest", "Dim roundoff"},
    {46, "LineDimensionsDistStartArrow", nullptr},
    {kToleranceUpper, "ToleranceSettingsMaximumValue", "Tolerance limit upper"},
    {kToleranceLower, "ToleranceSettingsMinimumValue", "Tolerance limit lower"},
    {75, "ExtLineDimensionsSuppressExtLine1", "ExtLine 1", Form::YesNo},
    {76, "ExtLineDimensionsSuppressExtLine2", "ExtLine 2", Form::YesNo},
    {77, "TextDimensionTextVerticalPosition", "Text pos vert", Form::Chosen, &kAcrossLine},
    {90, "Arc Before dimension text", nullptr, Form::Chosen, &kArcSymbols},
    {140, "TextDimensionTextHeight", "Text height"},
    {143, "Dual Dimensions Multiplier for converting units", "Alt scale"},
    {144, "LinearDimensionsScaleFactor", "Dim scale linear"},
    {146, "TextDimensionTextFractionalScale", nullptr},
    {146, "ToleranceSettingsScale", "Tolerance text height"},
    {148, "Dual Dimensions Round to the nearest", "Alt round"},
    {171, "Dual Dimensions Precision", "Alt precision", Form::Chosen, &kDigits},
    {172, "FitDimensionLinesBetweenExtensionLines", "DimLine forced", Form::YesNo},
    {175, "FitDimensionsGeometryHideArrows", "DimLine inside", Form::YesNo},
    {176, "LineDimensionsColor", "DimLine LColor", Form::Color},
    {177, "ExtLineDimensionsColor", "ExtLine LColor", Form::Color},
    {178, "TextDimensionTextColor", "Text color", Form::Color},
    {179, "Angular Precision", "Angle precision", Form::Chosen, &kDigits},
    {271, "LinearDimensionsPrecision", "Precision", Form::Chosen, &kDigits},
    {272, "ToleranceSettingsPrecision", "Tolerance precision", Form::Chosen, &kDigits},
    {273, "Dual Dimensions Format", "Alt format", Form::Chosen, &kAltFormats},
    {274, "ToleranceSettingsDualDimPrecision", "Alt tolerance precision", Form::Chosen, &kDigits},
    {275, "Angular Format", "Angle format", Form::Chosen, &kAngleFormats},
    {276, "LinearDimensionsFractionalDisplay", "Fractional type", Form::Chosen, &kFractions},
    {280, "TextDimensionTextHorizontalPosition", "Text pos hor", Form::Chosen, &kAlongLine},
    {281, "LineDimensionsSuppressDimLine1", "DimLine 1", Form::YesNo},
    {282, "LineDimensionsSuppressDimLine2", "DimLine 2", Form::YesNo},
    {283, "ToleranceSettingsVerticalTextJustification", "Tolerance pos vert", Form::Chosen, &kToleranceHeights},
    {288, "FitSpecifyTextPlacement", nullptr, Form::YesNo},
    {345, "LineDimensionsStyle", "DimLine LStyle", Form::LineStyle},
    {346, "ExtLineDimensionsLine1", "ExtLine 1 LStyle", Form::LineStyle},
    {347, "ExtLineDimensionsLine2", "ExtLine 2 LStyle", Form::LineStyle},
    {371, "LineDimensionsWeight", "DimLine LWeight", Form::Weight},
    {372, "ExtLineDimensionsWeight", "ExtLine LWeight", Form::Weight},
};

/// Which zeros are left out of a measured value: for a style and for a dimension.
struct ZeroRow
{
    int code;
    bool isOfAngles;
    const char* tags[4][2]; ///< leading and trailing ones, then feet and inches, which angles do not have
};

// The first two tags of a dimension stand for its angles, and, when they come again, for its lengths.
const ZeroRow kZeroRows[] = {
    {kAngleZeros,
     true,
     {{"Angular Hide leading zeros", "Suppress leading zeros"},
      {"Angular Hide trailing zeros", "Suppress trailing zeros"}}},
    {kZeros,
     false,
     {{"Linear Dimensions Hide leading zeros", "Suppress leading zeros"},
      {"Linear Dimensions Hide trailing zeros", "Suppress trailing zeros"},
      {"Linear Dimensions Hide zeros feet", "Suppress zero feet"},
      {"Linear Dimensions Hide zeros inches", "Suppress zero inches"}}},
    {kToleranceZeros,
     false,
     {{"ToleranceSettingsHideLeadingZeroes", "Tolerance suppress leading zeros"},
      {"ToleranceSettingsHideTrailingZeroes", "Tolerance suppress trailing zeros"},
      {"ToleranceSettingsHideZeroFeet", "Tolerance suppress zero feet"},
      {"ToleranceSettingsHideZeroInches", "Tolerance suppress zero inches"}}},
    {kAltZeros,
     false,
     {{"Dual Dimensions Hide leading zeros", "Alt suppress leading zeros"},
      {"Dual Dimensions Hide trailing zeros", "Alt suppress trailing zeros"},
      {"Dual Dimensions Hide zeros feet", "Alt suppress zeros feet"},
      {"Dual Dimensions Hide zeros inches", "Alt suppress zeros inches"}}},
    {kAltToleranceZeros,
     false,
     {{"ToleranceSettingsDualDimHideLeadingZeroes", "Alt tolerance suppress leading zeros"},
      {"ToleranceSettingsDualDimHideTrailingZeroes", "Alt tolerance suppress trailing zeros"},
      {"ToleranceSettingsDualDimHideZeroFeet", "Alt tolerance suppress zero feet"},
      {"ToleranceSettingsDualDimHideZeroInches", "Alt tolerance suppress zero inches"}}},
};

CFxVariant arrowOfBlock(const QString& block)
{
    int number = 0;
    for (const char* const known : kArrowBlocks) {
        if (block.compare(QLatin1String(known), Qt::CaseInsensitive) == 0)
            return chosenOf(kArrows, number);
        ++number;
    }
    return CFxVariant::kNull;
}

/// Puts the variables of a style, or of a dimension, into what is recorded of it.
class Settings
{
public:
    Settings(const DimensionVariables& variables, bool isOfStyle, Surroundings& around, DrawnObject& object)
        : variables_(variables), isOfStyle_(isOfStyle), around_(around), object_(object)
    {
    }

    void takeAll()
    {
        for (const Row& row : kRows)
            if (const Group* const group = variables_.own(row.code))
                put(row.ofStyle, row.ofDimension, valueOf(row, *group));
        takeScale();
        takeAffixes();
        takeAlternatives();
        takeArrows();
        takeTolerance();
        takeText();
        takeFit();
        takeUnits();
        takeZeros();
        takeCenterMark();
        if (variables_.hasOwn({kHasFixedLength, kFixedLength})) {
            put("ExtLineDimensionsOffsetFixedLength", "ExtLine fixed", yesOrNoItem(variables_.isOn(kHasFixedLength)));
            put("ExtLineDimensionsOffsetFixedLength_Length", "ExtLine fixed length",
                variables_.real(kFixedLength, 1.0));
        }
        if (const Group* const angle = variables_.own(kJogAngle))
            put("RadiusDimensionJog", "Jog angle", jogAngle(*angle));
    }

private:
    void put(const char* ofStyle, const char* ofDimension, CFxVariant value)
    {
        if (value.IsNull())
            return object_.untold.push_back(kUnknownSetting);
        if (const char* const tag = isOfStyle_ ? ofStyle : ofDimension) {
            if (isOfStyle_)
                object_.add(tag, std::move(value));
            else
                object_.change(tag, std::move(value));
        }
    }

    CFxVariant valueOf(const Row& row, const Group& group)
    {
        switch (row.form) {
        case Form::Number:
            return EntityReader::realOf(group);
        case Form::YesNo:
            return yesOrNoItem(EntityReader::integerOf(group) != 0);
        case Form::Color:
            return dimensionColor(group);
        case Form::Weight:
            return static_cast<std::int32_t>(EntityReader::integerOf(group));
        case Form::Chosen:
            return chosenOf(*row.words, EntityReader::integerOf(group));
        case Form::LineStyle:
            break;
        }
        const NamedObjects::Named* const style = around_.lineStyles.findHandle(group.handle());
        return style ? CFxVariant(around_.ids.getOdDbObjectId(OdDbHandle(style->handle))) : CFxVariant::kNull;
    }

    void takeScale()
    {
        if (!variables_.own(kScale))
            return;
        const double scale = variables_.real(kScale);
        if (scale != 0)
            put("FitScaleFactor", "Dim scale overall", scale);
        else
            put("FitScaleDimensionsAccordingToSheet", nullptr, isOfStyle_ ? yesOrNoItem(true) : CFxVariant::kNull);
    }

    /// What stands before and behind the measured value, for which `measure` stands.
    void takeAffixes()
    {
        if (const Group* const group = variables_.own(kAffixes)) {
            QString both = around_.drawing.text(*group);
            const QLatin1String measure("<>", 2);
            if (isOfStyle_) {
                // Without a measure, it stands behind.
                if (!both.isEmpty())
                    object_.add("Linear Dimensions Prefix", CFxString(both.contains(measure) ? both : measure + both));
            } else {
                changeAffixes(both, measure, "Dim prefix", "Dim suffix");
            }
        }
        if (const Group* const group = variables_.own(kAltAffixes)) {
            const QString both = around_.drawing.text(*group);
            if (!isOfStyle_ || !both.isEmpty())
                changeAffixes(both, QLatin1String("[]", 2), isOfStyle_ ? "Dual Dimensions Prefix" : "Alt prefix",
                              isOfStyle_ ? "Dual Dimensions Suffix" : "Alt suffix");
        }
    }

    void changeAffixes(const QString& both, QLatin1String measure, const char* prefix, const char* suffix)
    {
        const int place = both.indexOf(measure);
        put(prefix, prefix, CFxString(place < 0 ? QString() : both.left(place)));
        put(suffix, suffix, CFxString(place < 0 ? both : both.mid(place + measure.size())));
    }

    void takeAlternatives()
    {
        if (!variables_.own(kHasAlt))
            return;
        const bool isOn = variables_.isOn(kHasAlt);
        put("Show dual dimensions", "Alt enabled", isOfStyle_ ? yesOrNo(isOn) : yesOrNoItem(isOn));
    }

    void takeArrows()
    {
        const double tick = variables_.real(kTickSize);
        if (variables_.hasOwn({kArrowSize, kTickSize}))
            put("Arrow Size", "Arrow size", tick > 0 ? tick : variables_.real(kArrowSize));
        if (const Group* const arrow = variables_.own(kLeaderArrow))
            put("Leader arrow", "Arrow", dimensionArrow(*arrow, around_));
        if (!variables_.hasOwn({kArrowName, kFirstArrowName, kSecondArrowName, kTickSize, kHasTwoArrows, kArrow,
                                kFirstArrow, kSecondArrow}))
            return;
        // A tick takes the place of both.
        const bool areTwo = variables_.isOn(kHasTwoArrows);
        const auto arrow = [&](int handle, int name) {
            if (tick > 0)
                return chosenOf(kArrows, kTick);
            if (const Group* const group = variables_.find(handle))
                return dimensionArrow(*group, around_);
            const Group* const group = variables_.find(name);
            const QString block = group ? around_.drawing.text(*group) : QString();
            // A name needs no line in front, other than that of a block.
            return arrowOfBlock(block.isEmpty() || block.startsWith('_') ? block : '_' + block);
        };
        put("Start arrow", "Arrow 1", areTwo ? arrow(kFirstArrow, kFirstArrowName) : arrow(kArrow, kArrowName));
        put("End arrow", "Arrow 2", areTwo ? arrow(kSecondArrow, kSecondArrowName) : arrow(kArrow, kArrowName));
    }

    /// A frame around the text is a kind of tolerance, and has the text's distance below zero.
    void takeTolerance()
    {
        const bool hasTolerance = variables_.isOn(kHasTolerance);
        if (!variables_.hasOwn({kHasTolerance, kHasLimits, kTextDistance}) &&
            !(hasTolerance && variables_.hasOwn({kToleranceUpper, kToleranceLower})))
            return;
        enum : int
        {
            kNone,
            kSymmetrical,
            kDeviation,
            kLimits,
            kBasic,
        };
        int kind = variables_.real(kTextDistance) < 0 ? kBasic : kNone;
        if (variables_.isOn(kHasLimits))
            kind = kLimits;
        else if (hasTolerance)
            kind = variables_.real(kToleranceUpper) == variables_.real(kToleranceLower) ? kSymmetrical : kDeviation;
        put("ToleranceSettingsCalculation", "Tolerance display", chosenOf(kTolerances, kind));
    }

    void takeText()
    {
        if (variables_.own(kTextDistance)) {
            const double distance = variables_.real(kTextDistance);
            put("TextDimensionTextOffsetFromDimLine", "Text offset", std::abs(distance));
            if (isOfStyle_)
                object_.add("TextDimensionTextFrameDimensionText", yesOrNoItem(distance < 0));
        }
        if (const Group* const group = variables_.own(kTextStyle))
            if (const NamedObjects::Named* const style = around_.textStyles.findHandle(group->handle()))
                put("TextDimensionTextStyle", "TextStyle", CFxString(style->name));
        takeFill();
        if (!variables_.hasOwn({kHorizontalInside, kHorizontalOutside}))
            return;
        enum : int
        {
            kOnlyOutside, ///< horizontal, as the standard has it
            kHorizontal,
            kAlong,
        };
        const bool inside = variables_.isOn(kHorizontalInside);
        const bool outside = variables_.isOn(kHorizontalOutside);
        if (inside && !outside)
            object_.untold.push_back("that texts beside the line lie along it");
        static constexpr const char* tags[] = {"TextDimensionTextAlignmentUseISOStandard",
                                               "TextDimensionTextAlignmentAlignHorizontally",
                                               "TextDimensionTextAlignmentAlignWithWimensionLines"};
        const int kind = inside ? kHorizontal : outside ? kOnlyOutside : kAlong;
        put(tags[kind], "Text inside align", isOfStyle_ ? yesOrNoItem(true) : chosenOf(kAlignments, kind));
    }

    void takeFill()
    {
        enum : qint64
        {
            kFilledAsBackground = 1,
            kFilled = 2,
        };
        const Group* const fill = variables_.own(kFill);
        const qint64 kind = fill ? EntityReader::integerOf(*fill) : 0;
        if (kind == kFilledAsBackground)
            object_.untold.push_back("that texts stand on the color of the background");
        if (kind != kFilled)
            return;
        // In a style's record it is the last of its code: the flags of all records have the same one.
        const auto& groups = variables_.own();
        const auto color =
            std::find_if(groups.rbegin(), groups.rend(), [](const Group& group) { return group.code == kFillColor; });
        if (color != groups.rend())
            put("TextDimensionTextFill", "Fill color", dimensionColor(*color));
    }

    void takeFit()
    {
        // What goes outside and where a moved text goes was one variable once.
        constexpr qint64 automatic = 3;
        constexpr qint64 keepsInside = 4;
        constexpr qint64 last = 5;
        const qint64 old = std::clamp<qint64>(variables_.integer(kOldFit, automatic), 0, last);
        if (variables_.hasOwn({kFit, kOldFit, kKeepsTextInside})) {
            const qint64 fit =
                variables_.isOn(kKeepsTextInside) ? keepsInside : variables_.integer(kFit, std::min(old, automatic));
            static constexpr const char* tags[] = {"FitDimensionsGeometryTextAndArrows", "FitDimensionsGeometryArrows",
                                                   "FitDimensionsGeometryText", "FitDimensionsGeometryAutomatic",
                                                   "FitDimensionsGeometryKeepTextBetweenExtensionLines"};
            const CFxVariant chosen = chosenOf(kFits, fit);
            put(chosen.IsNull() ? "" : tags[fit], "Fit", isOfStyle_ && !chosen.IsNull() ? yesOrNo(true) : chosen);
        }
        if (variables_.own(kTextMovement) || (variables_.own(kOldFit) && old > automatic)) {
            const qint64 movement = variables_.integer(kTextMovement, old - automatic);
            static constexpr const char* tags[] = {"FitTextNextToTheDimensionLine",
                                                   "FitTextAboveTheDimensionLineWithLeader",
                                                   "FitTextAboveTheDimensionLineWithoutLeader"};
            const CFxVariant chosen = chosenOf(kMovements, movement);
            put(chosen.IsNull() ? "" : tags[movement], "Text movement",
                isOfStyle_ && !chosen.IsNull() ? yesOrNoItem(true) : chosen);
        }
    }

    void takeUnits()
    {
        if (variables_.hasOwn({kUnits, kOldUnits})) {
            // The old ones tell stacked fractions, 4 and 5, from others, 6 and 7.
            static constexpr qint64 ofOld[] = {2, 1, 2, 3, 4, 5, 4, 5, 6};
            const qint64 old = variables_.integer(kOldUnits, 2);
            const qint64 units = variables_.integer(kUnits, old >= 0 && old <= 8 ? ofOld[old] : 0);
            put("LinearDimensionsFormat", "Dim UnitSystem", chosenOf(kUnitFormats, units));
        }
        if (variables_.own(kSeparator)) {
            const qint64 separator = variables_.integer(kSeparator);
            const bool isKnown = separator == '.' || separator == ',' || separator == ' ';
            // 0 is what the system has.
            if (separator != 0)
                put("LinearDimensionsDecimalSeparator", "Decimal separator",
                    isKnown ? CFxVariant(CFxString(QString(QChar(static_cast<ushort>(separator)))))
                            : CFxVariant::kNull);
        }
    }

    void takeZeros()
    {
        for (const ZeroRow& row : kZeroRows) {
            const bool goesAhead = row.isOfAngles && !isOfStyle_ && variables_.own(kZeros);
            if (!variables_.own(row.code) && !goesAhead)
                continue;
            const qint64 bits = variables_.integer(row.code);
            enum : qint64
            {
                kFeet = 3,   ///< in the lowest two bits
                kInches = 2, ///< there
                kBoth = 0,   ///< there
                kAngleLeading = 1,
                kAngleTrailing = 2,
                kLeading = 4,
                kTrailing = 8,
            };
            const qint64 units = bits & 3;
            const bool hidden[] = {(bits & (row.isOfAngles ? kAngleLeading : kLeading)) != 0,
                                   (bits & (row.isOfAngles ? kAngleTrailing : kTrailing)) != 0,
                                   units == kBoth || units == kFeet, units == kBoth || units == kInches};
            for (int zeros = 0; zeros < (row.isOfAngles ? 2 : 4); ++zeros)
                put(row.tags[zeros][0], row.tags[zeros][1], yesOrNoItem(hidden[zeros]));
        }
    }

    void takeCenterMark()
    {
        if (!variables_.own(kCenterMark))
            return;
        // Below zero, it is that of lines.
        const double size = variables_.real(kCenterMark);
        if (isOfStyle_)
            return object_.add("CenterMarkDisplay", size);
        object_.change("CenterMark", chosenOf(kCenterMarks, size == 0 ? 0 : size < 0 ? 1 : 2));
        if (size != 0)
            object_.change("CenterMark size", std::abs(size));
    }

    const DimensionVariables& variables_;
    bool isOfStyle_;
    Surroundings& around_;
    DrawnObject& object_;
};

/// Of the style that the entity has, the first group of each code; null for a style that the drawing lacks.
const std::vector<Group>* variablesOfStyle(const EntityReader& entity, Surroundings& around)
{
    const Group* const name = entity.find(3);
    const NamedObjects::Named* const style =
        name ? around.dimensionStyles.find(name->bytes) : around.dimensionStyles.find(kStandard);
    if (!style || !style->record)
        return nullptr;
    auto [entry, isNew] = around.dimensionVariables.try_emplace(style->record);
    if (isNew) {
        EntityReader record(around.drawing);
        record.read(*style->record);
        std::unordered_set<int> codes;
        for (const Group& group : record.groups())
            if (codes.insert(group.code).second)
                entry->second.push_back(group);
    }
    return &entry->second;
}

} // namespace

DimensionVariables::DimensionVariables(EntityReader& entity, const std::vector<Group>* style) : style_(style)
{
    constexpr int variable = 1070;
    const std::span<const Group> list = entity.takeList("ACAD", "DSTYLE");
    for (std::size_t i = 0; i + 1 < list.size(); i += 2) {
        if (list[i].code != variable)
            break;
        Group& own = own_.emplace_back(list[i + 1]);
        own.code = static_cast<int>(EntityReader::integerOf(list[i]));
    }
}

const Group* DimensionVariables::find(const std::vector<Group>& groups, int code)
{
    const auto found =
        std::find_if(groups.begin(), groups.end(), [code](const Group& group) { return group.code == code; });
    return found == groups.end() ? nullptr : &*found;
}

const Group* DimensionVariables::find(int code) const
{
    const Group* const group = own(code);
    return group || !style_ ? group : find(*style_, code);
}

double DimensionVariables::real(int code, double otherwise) const
{
    const Group* const group = find(code);
    return group ? EntityReader::realOf(*group) : otherwise;
}

qint64 DimensionVariables::integer(int code, qint64 otherwise) const
{
    const Group* const group = find(code);
    return group ? EntityReader::integerOf(*group) : otherwise;
}

bool DimensionVariables::hasOwn(std::initializer_list<int> codes) const
{
    return std::any_of(codes.begin(), codes.end(), [this](int code) { return own(code); });
}

CFxVariant dimensionColor(const Group& group)
{
    const qint64 number = EntityReader::integerOf(group);
    if (number == 0)
        return OdCmColor::byBlock();
    if (number > 0 && number < 256)
        return OdCmColor::byIndex(static_cast<std::uint16_t>(number));
    return OdCmColor::byLayer();
}

CFxVariant dimensionArrow(const Group& group, Surroundings& around)
{
    const NamedObjects::Named* const block = around.blockRecords.findHandle(group.handle());
    return arrowOfBlock(block ? block->name : QString());
}

double jogAngle(const Group& group)
{
    // Between 5 and 90 degrees; some write these, and some radians.
    const double angle = EntityReader::realOf(group);
    constexpr double right = std::numbers::pi / 2;
    constexpr double margin = 1e-6;
    return angle > right + margin ? angle * (std::numbers::pi / 180) : angle;
}

QString dimensionStyleName(const EntityReader& entity, Surroundings& around, DrawnObject& object)
{
    const Group* const name = entity.find(3);
    if (!name)
        return kStandard;
    if (const NamedObjects::Named* const style = around.dimensionStyles.find(name->bytes))
        return style->name;
    if (around.drawing.text(*name).compare(kStandard, Qt::CaseInsensitive) == 0)
        return kStandard;
    object.untold.push_back("a style that the drawing lacks");
    return {};
}

void takeDimensionStyle(EntityReader& entity, Surroundings& around, DrawnObject& object)
{
    if (const QString name = dimensionStyleName(entity, around, object); !name.isEmpty())
        object.change("Dim style", CFxString(name));
    const DimensionVariables overrides(entity, variablesOfStyle(entity, around));
    if (!overrides.isEmpty())
        Settings(overrides, false, around, object).takeAll();
}

void readDimensionStyle(EntityReader& record, Parts, Surroundings& around, DrawnObject& object)
{
    const QString name = record.text(2);
    if (name.isEmpty())
        throw Lost{"it has no name"};
    DrawingLine(object.drawing, "AcDbDimStyleTableRecord", object.handle).with("name", name);
    object.add("DimensionStyleName", CFxString(name));
    Settings(DimensionVariables(record), true, around, object).takeAll();
}

} // namespace inkmacro::dxf
