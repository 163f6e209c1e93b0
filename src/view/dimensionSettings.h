#pragma once

#include "view/Values.h"

#include <QStringList>

namespace inkmacro::view {

/// How a dimension looks: as it says itself, else as its style does, else as is usual where sizes are millimeters.
class DimensionSettings
{
public:
    explicit DimensionSettings(const Values& dimension);

    double arrowSize() const { return size("Arrow size", "Arrow Size", 2.5); }
    double textHeight() const;
    /// Between the dimension line and its text.
    double textGap() const { return size("Text offset", "TextDimensionTextOffsetFromDimLine", 0.625); }
    /// Between what is measured and the extension line, and how far that goes past the dimension line.
    double extensionOffset() const { return size("ExtLine offset", "ExtLineDimensionsOffset", 0.625); }
    double extensionPast() const { return size("ExtLine ext", "ExtLineDimensionsDistPastDimLines", 1.25); }
    /// Of the extension lines, which are numbered from 1.
    bool hasExtensionLine(int number) const;

    std::optional<OdCmColor> lineColor() const { return color("DimLine LColor", "LineDimensionsColor"); }
    std::optional<OdCmColor> extensionColor() const { return color("ExtLine LColor", "ExtLineDimensionsColor"); }
    std::optional<OdCmColor> textColor() const { return color("Text color", "TextDimensionTextColor"); }

    /// The angle of the text itself, when it does not follow the dimension line.
    std::optional<double> textRotation() const;

    /// What is measured, as it is written; the symbol stands in front of a length that has no prefix.
    QString length(double measured, const QString& symbol = QString()) const;
    QString angle(double measured) const;

    /// What of it is not drawn, as clauses.
    QStringList omissions() const;

    /// The text, in which what is measured may stand; no lines when there is none.
    std::vector<QString> lines(const QString& measured) const;

private:
    std::optional<double> number(const char* own, const char* ofStyle) const;
    std::optional<int> choice(const char* own, const char* ofStyle) const;
    QString word(const char* own, const char* ofStyle) const;
    std::optional<OdCmColor> color(const char* own, const char* ofStyle) const;
    bool isYes(const char* own, const char* ofStyle) const;
    double scale() const;
    double size(const char* own, const char* ofStyle, double usual) const;
    QString decimal(double value, std::optional<int> precision, bool hidesZeros) const;

    const Values& dimension_;
    const Values* style_; ///< null when nothing is known of it
};

} // namespace inkmacro::view
