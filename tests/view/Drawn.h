#pragma once

#include "SaidValues.h"

#include "view/pathSteps.h"

#include <gtest/gtest.h>

#include <ostream>

namespace inkmacro::view {

inline void PrintTo(const Point& point, std::ostream* out)
{
    *out << '(' << point.x << ", " << point.y << ')';
}

} // namespace inkmacro::view

/// What a drawer draws of an object.
class Drawn
{
public:
    using Point = inkmacro::view::Point;
    using Numbers = std::vector<double>;

    template<class Draw>
    Drawn(Draw drawer, const inkmacro::view::Values& values)
    {
        picture_.objects.emplace_back();
        inkmacro::view::Pen pen(picture_, {.object = 0,
                                           .layer = 0,
                                           .color = {},
                                           .space = 0,
                                           .from = inkmacro::view::kNoStep,
                                           .until = inkmacro::view::kNoStep});
        drawer(values, pen);
    }

    std::vector<Numbers> all(inkmacro::view::Shape shape) const
    {
        std::vector<Numbers> found;
        for (const inkmacro::view::Primitive& primitive : picture_.primitives)
            if (primitive.shape == shape) {
                const auto numbers = picture_.numbersOf(primitive);
                found.emplace_back(numbers.begin(), numbers.end());
            }
        return found;
    }
    std::vector<Numbers> lines() const { return all(inkmacro::view::Shape::Line); }

    /// Where the steps of outlines of that shape lead to, an outline each.
    std::vector<std::vector<Point>> corners(inkmacro::view::Shape shape) const
    {
        std::vector<std::vector<Point>> found;
        for (const Numbers& numbers : all(shape)) {
            found.emplace_back();
            inkmacro::view::PathSteps steps(numbers);
            inkmacro::view::PathSteps::Step step;
            while (steps.next(step))
                if (step.numbers.size() == 2)
                    found.back().push_back({step.numbers[0], step.numbers[1]});
        }
        return found;
    }

    QStringList texts() const
    {
        QStringList found;
        for (const Numbers& text : all(inkmacro::view::Shape::Text))
            found.append(picture_.texts[static_cast<std::size_t>(text[6])]);
        return found;
    }
    /// Insertion, height, angle, width and place of a text.
    Numbers text(std::size_t number) const
    {
        Numbers numbers = all(inkmacro::view::Shape::Text).at(number);
        numbers.pop_back();
        return numbers;
    }

    QString remark() const
    {
        const std::uint16_t number = picture_.objects[0].remark;
        return number == 0 ? QString() : picture_.remarks[number - 1];
    }
    const inkmacro::view::Picture& picture() const { return picture_; }
    bool isEmpty() const { return picture_.primitives.empty(); }

private:
    inkmacro::view::Picture picture_;
};

inline void expectNear(const std::vector<double>& found, const std::vector<double>& expected)
{
    ASSERT_EQ(found.size(), expected.size());
    for (std::size_t i = 0; i < found.size(); ++i)
        EXPECT_NEAR(found[i], expected[i], 1e-9) << "number " << i;
}

inline void expectNear(const std::vector<inkmacro::view::Point>& found,
                       const std::vector<inkmacro::view::Point>& expected)
{
    ASSERT_EQ(found.size(), expected.size());
    for (std::size_t i = 0; i < found.size(); ++i) {
        EXPECT_NEAR(found[i].x, expected[i].x, 1e-9) << "x of " << i;
        EXPECT_NEAR(found[i].y, expected[i].y, 1e-9) << "y of " << i;
    }
}
