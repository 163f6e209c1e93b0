#pragma once

#include "view/Picture.h"

#include "host/db/OdGe.h"

#include <array>
#include <initializer_list>
#include <numbers>

namespace inkmacro::view {

struct Point
{
    double x = 0.0;
    double y = 0.0;
    bool operator==(const Point&) const = default;
};

/// What is reckoned with a larger number may be none.
inline constexpr double kLargestNumber = 1e100;

inline constexpr double kTurn = 2.0 * std::numbers::pi;

/// The steps of an outline or a boundary.
class Outline
{
public:
    Outline& move(Point to);
    Outline& line(Point to);
    Outline& arc(Point center, double radius, double start, double sweep);
    Outline& ellipse(Point center, Point u, Point v, double start, double sweep);
    Outline& bezier(Point first, Point second, Point to);
    Outline& close();
    /// The other's steps behind these.
    Outline& add(const Outline& other);

    const std::vector<double>& numbers() const { return numbers_; }
    bool isEmpty() const { return numbers_.empty(); }

private:
    std::vector<double> numbers_;
};

/// A family of parallel lines in a pattern.
struct PatternLines
{
    double angle;
    Point base;
    double distance;
    std::vector<double> dashes = {}; ///< none for a line without gaps; a negative one is a gap
};

struct Letters
{
    QString text; ///< one line, without codes
    Point at;
    double height = 2.5; ///< of capitals
    double angle = 0.0;
    double width = 0.0; ///< into which it is fitted; 0 for its own
    int place = 10;     ///< see Shape::Text
};

/// Draws one object into a picture, at one state of it. Whatever has a number that is not finite, or larger than
/// kLargestNumber, is left out, which the object's remark tells.
class Pen
{
public:
    static constexpr auto kNotFinite = "its numbers are too large";

    /// How the object is shown at that state and for how long.
    struct Now
    {
        std::uint32_t object;
        std::uint16_t layer;
        OdCmColor color;
        std::uint16_t space;
        StepNumber from;
        StepNumber until;
    };

    Pen(Picture& picture, const Now& now) : picture_(picture), now_(now) {}

    /// Of what follows.
    void setRole(Role role) { role_ = role; }
    void setColor(const OdCmColor& color) { now_.color = color; }

    void line(Point from, Point to);
    void arc(Point center, double radius, double start, double sweep);
    void circle(Point center, double radius) { arc(center, radius, 0.0, kTurn); }
    void path(const Outline& outline);
    void area(const Outline& boundary);
    void pattern(const std::vector<PatternLines>& families, const Outline& boundary);
    void text(const Letters& letters);
    void point(Point at);
    void ray(Point from, Point towards);
    void xline(Point through, Point towards);
    void reference(const std::array<double, 6>& matrix, std::uint16_t space);
    void window(Point corner, double width, double height, Point center, double scale);

    /// What of the object is not drawn, or why nothing of it is, as a clause such as `the application makes the curve`.
    void remark(const QString& text);

private:
    void add(Shape shape, std::span<const double> numbers);

    Picture& picture_;
    Now now_;
    Role role_ = Role::Object;
};

} // namespace inkmacro::view
