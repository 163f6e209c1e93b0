#pragma once

#include "view/SvgText.h"
#include "view/pathSteps.h"

namespace inkmacro::view {

/// The data of a path, of points that are taken relative to an origin: far from it a picture has too few digits.
class SvgPath
{
public:
    explicit SvgPath(Point origin) : origin_(origin) {}

    void move(Point to);
    void line(Point to);
    /// Begins with a move where nothing stands before it.
    void arc(Point center, double radius, double start, double sweep);
    void ellipse(Point center, Point u, Point v, double start, double sweep);
    void bezier(Point first, Point second, Point to);
    void close();
    void steps(std::span<const double> numbers);
    /// What comes begins a part of its own.
    void lift() { isBegun_ = false; }

    bool isEmpty() const { return text_.isEmpty(); }
    const QByteArray& bytes() const { return text_.bytes(); }

private:
    void point(Point point);
    void begin(Point at);

    SvgText text_;
    Point origin_;
    Point at_;
    bool isBegun_ = false;
};

} // namespace inkmacro::view
