// Texts along an arc.

#include "view/drawers.h"
#include "view/noteText.h"
#include "view/plane.h"
#include "view/readings.h"

#include "host/db/OdDbClasses.h"

#include <algorithm>
#include <numeric>

namespace inkmacro::view {
namespace {

constexpr double kUsualHeight = 2.5;
constexpr int kCenterOnBaseline = 11;

enum Alignment
{
    kFit = 1,
    kLeft,
    kRight,
    kCenter
};

struct CurvedText
{
    std::vector<QString> letters;
    double height;
    double widthFactor;
    double spacing;
    Point center;
    double radius; ///< of the baseline
    double start;
    double sweep;
    double leftOffset;
    double rightOffset;
    int alignment;
    bool readsWithClock; ///< the letters' feet are towards the center
};

int choiceOf(const Values& values, const QString& tag, std::initializer_list<const char*> words, int usual)
{
    const std::optional<QString> word = values.text(tag);
    int number = 1;
    for (const char* const one : words) {
        if (word && word->compare(QLatin1String(one), Qt::CaseInsensitive) == 0)
            return number;
        ++number;
    }
    const int chosen = values.choice(tag).value_or(usual);
    return chosen >= 1 && chosen < number ? chosen : usual;
}

QString lettersInOrder(const Values& values, const OdDbArcAlignedText* drawn)
{
    const QString text = plainText(values.text("Contents").value_or(drawn ? drawn->textString() : QString()));
    if (!yesOrNo(values, "CurvedSettings Flip").value_or(drawn && drawn->isReversedCharOrder()))
        return text;
    std::vector<QString> letters = lettersOf(text);
    std::reverse(letters.begin(), letters.end());
    return std::accumulate(letters.begin(), letters.end(), QString());
}

/// Of the text itself, which a change tells, or of the arc that it runs along.
std::optional<double> numberOfArc(const Values& text, const Values* arc, const QString& tag)
{
    const std::optional<double> own = text.number(tag);
    return own || !arc ? own : arc->number(tag);
}

/// How far the baseline is from the arc, away from its center.
double rise(bool onConvexSide, bool readsWithClock, double offset, double height)
{
    if (onConvexSide)
        return readsWithClock ? offset : offset + height;
    return readsWithClock ? -offset - height : -offset;
}

std::optional<CurvedText> curvedTextOf(const Values& values)
{
    const auto* const drawn = values.drawnAs<OdDbArcAlignedText>();
    const Values* const arc = drawn ? values.other(drawn->arcId().getHandle()) : nullptr;
    const auto* const drawnArc = arc ? arc->drawnAs<OdDbArc>() : nullptr;
    const auto number = [&](const char* tag, double usual) { return numberOfArc(values, arc, tag).value_or(usual); };
    const double radius = number("Radius", drawnArc ? drawnArc->radius() : 0.0);
    if (!(radius > 0.0))
        return std::nullopt;

    CurvedText text{};
    text.letters = lettersOf(lettersInOrder(values, drawn));
    text.height =
        sizeOf({values.number("Height"), heightOfTextStyle(values, "CurvedSettings TextStyle")}, kUsualHeight);
    text.widthFactor = sizeOf({values.number("Width Factor")}, 1.0);
    text.spacing = values.number("Char Spacing").value_or(0.0);
    text.center = {number("Center X", drawnArc ? drawnArc->center().x : 0.0),
                   number("Center Y", drawnArc ? drawnArc->center().y : 0.0)};
    text.start = number("Start Angle", drawnArc ? drawnArc->startAngle() : 0.0);
    text.sweep = withinTurn(number("End Angle", drawnArc ? drawnArc->endAngle() : 0.0) - text.start);
    if (text.sweep == 0.0)
        text.sweep = kTurn;
    text.leftOffset = values.number("Left Offset").value_or(0.0);
    text.rightOffset = values.number("Right Offset").value_or(0.0);
    text.alignment = choiceOf(values, "CurvedSettings Alignment", {"Fit", "Left", "Right", "Center"},
                              drawn ? drawn->alignment() : kFit);
    const bool onConvexSide = choiceOf(values, "CurvedSettings TextSide", {"OnConvexSide", "OnConcaveSide"},
                                       drawn ? drawn->textPosition() : 1) == 1;
    text.readsWithClock = choiceOf(values, "CurvedSettings TextDirection", {"OutwardFromCenter", "InwardToTheCenter"},
                                   drawn ? drawn->textDirection() : 1) == 1;
    const double offset = values.number("Arc Offset").value_or(0.0);
    text.radius = radius + rise(onConvexSide, text.readsWithClock, offset, text.height);
    return text;
}

/// Lengths along the baseline from the end at which the text begins.
struct Run
{
    double begin;
    double gap; ///< between two letters
};

Run runOf(const CurvedText& text, const std::vector<double>& widths)
{
    const double room = text.radius * text.sweep - text.leftOffset - text.rightOffset;
    const double letters = std::accumulate(widths.begin(), widths.end(), 0.0);
    const auto gaps = static_cast<double>(widths.size() - 1);
    const double length = letters + gaps * text.spacing;
    switch (text.alignment) {
    case kRight:
        return {text.leftOffset + room - length, text.spacing};
    case kCenter:
        return {text.leftOffset + (room - length) / 2.0, text.spacing};
    case kFit:
        return {text.leftOffset, gaps > 0.0 ? (room - letters) / gaps : 0.0};
    default:
        return {text.leftOffset, text.spacing};
    }
}

} // namespace

void drawArcText(const Values& values, Pen& pen)
{
    const std::optional<CurvedText> text = curvedTextOf(values);
    if (!text || !(text->radius > 0.0)) {
        pen.remark("neither the recording nor its drawing tell the arc that it runs along");
        return;
    }
    std::vector<double> widths;
    for (const QString& letter : text->letters)
        widths.push_back(estimatedWidth(letter, text->height) * text->widthFactor);
    if (widths.empty())
        return;
    const Run run = runOf(*text, widths);
    double reached = run.begin;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        const double along = (reached + widths[i] / 2.0) / text->radius;
        reached += widths[i] + run.gap;
        if (text->letters[i].trimmed().isEmpty())
            continue;
        const double angle = text->readsWithClock ? text->start + text->sweep - along : text->start + along;
        pen.text({.text = text->letters[i],
                  .at = onCircle(text->center, text->radius, angle),
                  .height = text->height,
                  .angle = text->readsWithClock ? angle - kTurn / 4 : angle + kTurn / 4,
                  .width = text->widthFactor == 1.0 ? 0.0 : widths[i],
                  .place = kCenterOnBaseline});
    }
}

} // namespace inkmacro::view
