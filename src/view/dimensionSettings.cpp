#include "view/dimensionSettings.h"

#include "view/noteText.h"
#include "view/readings.h"

#include "host/db/OdDbClasses.h"

#include <algorithm>
#include <cmath>

namespace inkmacro::view {
namespace {

constexpr auto kMeasured = "<>";
constexpr double kDegreesOfTurn = 360.0;
constexpr double kGradsOfTurn = 400.0;

enum AngleFormat
{
    kDecimalDegrees,
    kDegreesMinutesSeconds,
    kGrads,
    kRadians
};

/// Above this a double has no places behind its decimal point.
constexpr double kWholeNumbers = 1e15;

void removeTrailingZeros(QString& number)
{
    if (!number.contains('.') || number.contains('e'))
        return;
    while (number.endsWith('0'))
        number.chop(1);
    if (number.endsWith('.'))
        number.chop(1);
}

QString degreesMinutesSeconds(double angle)
{
    const auto seconds = std::llround(angle / kTurn * kDegreesOfTurn * 3600.0);
    return QStringLiteral("%1\u00B0%2'%3\"").arg(seconds / 3600).arg(seconds / 60 % 60).arg(seconds % 60);
}

} // namespace

DimensionSettings::DimensionSettings(const Values& dimension)
    : dimension_(dimension),
      style_(dimension.named("AcDbDimStyleTableRecord", dimension.text("Dim style").value_or(QString())))
{
}

double DimensionSettings::textHeight() const
{
    return sizeOf({size("Text height", "TextDimensionTextHeight", 2.5)}, 2.5);
}

bool DimensionSettings::hasExtensionLine(int number) const
{
    return number == 1 ? !isYes("ExtLine 1", "ExtLineDimensionsSuppressExtLine1")
                       : !isYes("ExtLine 2", "ExtLineDimensionsSuppressExtLine2");
}

std::optional<double> DimensionSettings::textRotation() const
{
    const std::optional<double> rotation = dimension_.number("Rotation");
    return rotation && *rotation != 0.0 && std::isfinite(*rotation) ? rotation : std::nullopt;
}

QString DimensionSettings::length(double measured, const QString& symbol) const
{
    const double factor = number("Dim scale linear", "LinearDimensionsScaleFactor").value_or(1.0);
    double value = factor == 0.0 ? measured : measured * std::abs(factor);
    const double step = number("Dim roundoff", "LinearDimensionsRoundToTheNearest").value_or(0.0);
    if (step > 0.0 && std::isfinite(value / step))
        value = std::round(value / step) * step;
    QString written = decimal(value, choice("Precision", "LinearDimensionsPrecision"),
                              isYes("Suppress trailing zeros", "Linear Dimensions Hide trailing zeros"));
    const QString separator = word("Decimal separator", "LinearDimensionsDecimalSeparator");
    if (separator == "," || separator == " ")
        written.replace('.', separator);

    QString prefix = word("Dim prefix", "Linear Dimensions Prefix");
    const int place = prefix.indexOf(kMeasured);
    QString suffix = word("Dim suffix", "Linear Dimensions Suffix");
    if (place >= 0) {
        suffix = prefix.mid(place + 2) + suffix;
        prefix.truncate(place);
    }
    return (prefix.isEmpty() ? symbol : prefix) + written + suffix;
}

QString DimensionSettings::angle(double measured) const
{
    const std::optional<int> precision = choice("Angle precision", "Angular Precision");
    const bool hidesZeros = isYes("Suppress trailing zeros", "Angular Hide trailing zeros");
    switch (choice("Angle format", "Angular Format").value_or(kDecimalDegrees)) {
    case kDegreesMinutesSeconds:
        return degreesMinutesSeconds(measured);
    case kGrads:
        return decimal(measured / kTurn * kGradsOfTurn, precision, hidesZeros) + 'g';
    case kRadians:
        return decimal(measured, precision, hidesZeros) + 'r';
    default:
        return decimal(measured / kTurn * kDegreesOfTurn, precision, hidesZeros) + QChar(0x00B0);
    }
}

std::vector<QString> DimensionSettings::lines(const QString& measured) const
{
    const auto* const drawn = dimension_.drawnAs<OdDbDimension>();
    QString text = dimension_.text("Text override").value_or(drawn ? drawn->dimensionText() : QString());
    if (text.isEmpty())
        return {measured};
    if (text.trimmed().isEmpty())
        return {};
    // Who writes `R<>` means the symbol that the measured length has already.
    const int place = text.indexOf(kMeasured);
    const bool hasSymbol = place > 0 && !measured.isEmpty() && !measured[0].isDigit() && text[place - 1] == measured[0];
    text.replace(kMeasured, hasSymbol ? measured.mid(1) : measured);
    return linesOfNote(text);
}

QStringList DimensionSettings::omissions() const
{
    constexpr int kClosedFilled = 0;
    constexpr int kDecimal = 2;
    constexpr int kAsWindows = 6;
    QStringList clauses;
    const bool hasOtherArrow = choice("Arrow 1", "Start arrow").value_or(kClosedFilled) != kClosedFilled ||
                               choice("Arrow 2", "End arrow").value_or(kClosedFilled) != kClosedFilled;
    if (hasOtherArrow)
        clauses.append("its arrows as closed and filled ones");
    if (choice("Tolerance display", "ToleranceSettingsCalculation").value_or(0) != 0)
        clauses.append("its tolerances are left out");
    if (isYes("Alt enabled", "Show dual dimensions"))
        clauses.append("its second unit is left out");
    if (const int format = choice("Dim UnitSystem", "LinearDimensionsFormat").value_or(kDecimal);
        format != kDecimal && format != kAsWindows)
        clauses.append("its lengths as decimal numbers");
    return clauses;
}

std::optional<double> DimensionSettings::number(const char* own, const char* ofStyle) const
{
    const std::optional<double> told = dimension_.number(own);
    return told || !style_ ? told : style_->number(ofStyle);
}

std::optional<int> DimensionSettings::choice(const char* own, const char* ofStyle) const
{
    const std::optional<int> told = dimension_.choice(own);
    return told || !style_ ? told : style_->choice(ofStyle);
}

QString DimensionSettings::word(const char* own, const char* ofStyle) const
{
    const std::optional<QString> told = dimension_.text(own);
    return (told || !style_ ? told : style_->text(ofStyle)).value_or(QString());
}

/// By block is as the dimension itself.
std::optional<OdCmColor> DimensionSettings::color(const char* own, const char* ofStyle) const
{
    std::optional<OdCmColor> told = colorIn(dimension_, own);
    if (!told && style_)
        told = colorIn(*style_, ofStyle);
    return told && told->isByBlock() ? std::nullopt : told;
}

bool DimensionSettings::isYes(const char* own, const char* ofStyle) const
{
    const std::optional<bool> told = yesOrNo(dimension_, own);
    return (told || !style_ ? told : yesOrNo(*style_, ofStyle)).value_or(false);
}

double DimensionSettings::scale() const
{
    return sizeOf({number("Dim scale overall", "FitScaleFactor")}, 1.0);
}

double DimensionSettings::size(const char* own, const char* ofStyle, double usual) const
{
    const double told = number(own, ofStyle).value_or(usual);
    return (told >= 0.0 && std::isfinite(told) ? told : usual) * scale();
}

/// Without a precision as many places as a reader needs.
QString DimensionSettings::decimal(double value, std::optional<int> precision, bool hidesZeros) const
{
    const int places = precision ? std::clamp(*precision, 0, 8) : std::abs(value) >= 1.0 ? 2 : 4;
    QString written =
        std::abs(value) < kWholeNumbers ? QString::number(value, 'f', places) : QString::number(value, 'g', 15);
    if (!precision || hidesZeros)
        removeTrailingZeros(written);
    return written == "-0" ? QStringLiteral("0") : written;
}

} // namespace inkmacro::view
