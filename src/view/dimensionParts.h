#pragma once

#include "view/dimensionSettings.h"
#include "view/textBlock.h"

namespace inkmacro::view {

/// A filled arrow. Its tip points along the direction, a vector of length 1.
void drawArrow(Pen& pen, Point tip, Point direction, double size);

/// Draws what all dimensions are made of.
class DimensionPen
{
public:
    DimensionPen(const Values& dimension, Pen& pen);

    const DimensionSettings& settings() const { return settings_; }

    /// From a point that is measured to its place on the dimension line; they are numbered from 1.
    void extensionLine(int number, Point measured, Point foot);
    /// Between two feet, with arrows at both.
    void line(Point first, Point second);
    /// Along an arc, with arrows at both ends.
    void arc(Point center, double radius, double start, double sweep);
    void plainLine(Point from, Point to);
    void plainPath(const Outline& outline);
    void arrow(Point tip, Point direction);

    /// Whether the text has room along a line between arrows at both ends, or at one.
    bool fits(const QString& measured, double length, int arrows) const;
    /// Over the middle of a line or arc of that direction.
    void textOver(Point middle, double angle, const QString& measured);
    /// Behind the end of a line that goes along the direction, a vector of length 1.
    void textBehind(Point end, Point direction, const QString& measured);

    void remark(const QString& text) { pen_.remark(text); }

private:
    Pen penOf(const std::optional<OdCmColor>& color) const;
    TextBlock blockOf(const QString& measured) const;
    /// Where the user has put the text.
    std::optional<Point> ownTextPlace() const;
    void draw(TextBlock block);

    const Values& dimension_;
    Pen& pen_;
    DimensionSettings settings_;
    double arrowSize_;
};

} // namespace inkmacro::view
