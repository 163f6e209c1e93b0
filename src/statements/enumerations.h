#pragma once

#include "statements/Target.h"

#include <QString>

#include <cstdint>
#include <initializer_list>

namespace inkmacro {

/// An enumeration whose enumerators are told by the integers that the drawing holds.
struct ValueEnumeration
{
    const char* name;
    std::int32_t firstValue;
    /// What stands behind the name, in ascending order of values; the first is the default.
    std::initializer_list<const char*> suffixes;
    /// The values are single bits: the place in the row is the number of the bit.
    bool bits = false;
};

/// An enumeration whose enumerators are told by the texts that the host's property sheet shows.
struct TextEnumeration
{
    struct Row
    {
        const char* text;
        const char* suffix;
    };

    const char* name;
    const char* defaultText;
    const char* defaultSuffix;
    const char* translationContext;
    std::initializer_list<Row> rows;
};

namespace enums {

extern const ValueEnumeration arcLengthSymbols;
extern const ValueEnumeration arcSymbolType;
extern const ValueEnumeration arcTextAlignment;
extern const ValueEnumeration arcTextDirection;
extern const ValueEnumeration arcTextPosition;
extern const ValueEnumeration dimensionArrowType;
extern const ValueEnumeration dimensionCenterMarkDisplay;
extern const ValueEnumeration dimensionFitDimensionText;
extern const ValueEnumeration dimensionFitGeometry;
extern const ValueEnumeration dimensionScale;
extern const ValueEnumeration dimensionStyleAngleFormat;
extern const ValueEnumeration dimensionTextAlignment;
extern const ValueEnumeration dimensionTextHorizontalPosition;
extern const ValueEnumeration dimensionTextVerticalPosition;
extern const ValueEnumeration dualDimensionFormat;
extern const ValueEnumeration dualDimensionInsertPlacement;
extern const ValueEnumeration hatchPatternInternalRegionDetection;
extern const ValueEnumeration leaderType;
extern const ValueEnumeration linearDimensionFormat;
extern const ValueEnumeration linearDimensionFractionalDisplay;
extern const ValueEnumeration noteDirection;
extern const ValueEnumeration tableCellType;
extern const ValueEnumeration toleranceCalculation;
extern const ValueEnumeration toleranceVerticalTextJustification;
extern const ValueEnumeration unitPrecision;
extern const ValueEnumeration tableBordersLineType;

extern const TextEnumeration blockInsertUnits;
extern const TextEnumeration embeddedObjectPrintQuality;
extern const TextEnumeration noteJustification;
extern const TextEnumeration polyLine3DFitSmooth;
extern const TextEnumeration polygonMeshFitSmooth;
extern const TextEnumeration richLineJustification;
extern const TextEnumeration tableCellAlignment;
extern const TextEnumeration textJustification;
extern const TextEnumeration viewportShadePrintStyle;
extern const TextEnumeration viewportStandardScale;

} // namespace enums

// What is no choice of its enumeration is noted as lost, since the default stands in its place.

/// A value outside the enumeration gives its default.
QString EnumeratorByValue(Target target, const ValueEnumeration& enumeration, std::int32_t value);
/// `suffix` is one of the enumeration's.
QString EnumeratorBySuffix(Target target, const ValueEnumeration& enumeration, const char* suffix);

/// The text is taken in the host's display language and without regard to case. An unknown one gives the default.
QString EnumeratorByText(Target target, const TextEnumeration& enumeration, const QString& text);

/// `weight` is in hundredths of a millimetre, -1 by layer, -2 by block.
QString LineWeightEnumerator(Target target, int weight);

/// Of the separators comma, blank and period; any other text counts as a period.
QString DecimalSeparatorEnumerator(Target target, const QString& separator);

/// The displayed alignment for the two modes of a text entity, empty for a pair that does not exist. The flag is the
/// number of the two-way alignments and -1 for the others.
QString TextAlignment(int horizontalMode, int verticalMode, int& flag);

} // namespace inkmacro
