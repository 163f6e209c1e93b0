#include "view/textBlock.h"

#include "view/noteText.h"
#include "view/plane.h"

#include <QStringList>

#include <algorithm>

namespace inkmacro::view {
namespace {

constexpr int kFirstOnBaseline = 10;

int columnOf(const TextBlock& block)
{
    return (block.attachment - 1) % 3;
}

double distanceOfLines(const TextBlock& block)
{
    constexpr double kUsualDistance = 5.0 / 3.0;
    return block.lineDistance > 0.0 ? block.lineDistance : block.height * kUsualDistance;
}

/// How high the block's upper edge is above its point, in the block's own directions.
double topOf(const TextBlock& block)
{
    const int row = (block.attachment - 1) / 3;
    return heightOf(block) * row / 2.0;
}

/// From the block's own directions to the drawing's.
Point placed(const TextBlock& block, Point own)
{
    const Point along = directionOf(block.angle);
    return block.at + along * own.x + leftOf(along) * own.y;
}

} // namespace

double widthOf(const TextBlock& block)
{
    double width = 0.0;
    for (const QString& line : block.lines)
        width = std::max(width, estimatedWidth(line, block.height));
    return width;
}

double heightOf(const TextBlock& block)
{
    const auto count = static_cast<double>(block.lines.size());
    return block.lines.empty() ? 0.0 : block.height + (count - 1.0) * distanceOfLines(block);
}

Outline boxAround(const TextBlock& block, double border, double width)
{
    const double wide = std::max(width, widthOf(block));
    const double left = -wide * columnOf(block) / 2.0 - border;
    const double right = left + wide + 2.0 * border;
    const double top = topOf(block) + border;
    const double bottom = topOf(block) - heightOf(block) - border;
    Outline box;
    box.move(placed(block, {left, bottom})).line(placed(block, {right, bottom}));
    box.line(placed(block, {right, top})).line(placed(block, {left, top})).close();
    return box;
}

void drawBlock(Pen& pen, const TextBlock& block)
{
    double baseline = topOf(block) - block.height;
    for (const QString& line : block.lines) {
        if (!line.trimmed().isEmpty())
            pen.text({.text = line,
                      .at = placed(block, {0.0, baseline}),
                      .height = block.height,
                      .angle = block.angle,
                      .place = kFirstOnBaseline + columnOf(block)});
        baseline -= distanceOfLines(block);
    }
}

int attachmentOf(const QString& justification)
{
    static const QStringList words{"Top Left",     "Top Center",  "Top Right",     "Middle Left", "Middle Center",
                                   "Middle Right", "Bottom Left", "Bottom Center", "Bottom Right"};
    for (int i = 0; i < words.size(); ++i)
        if (words[i].compare(justification, Qt::CaseInsensitive) == 0)
            return i + 1;
    return 0;
}

double readableAngle(double angle)
{
    constexpr double kNearVertical = 1e-9;
    const double turned = withinTurn(angle);
    const bool isUpsideDown = turned > kTurn / 4 + kNearVertical && turned < kTurn * 3 / 4 + kNearVertical;
    return isUpsideDown ? turned - kTurn / 2 : turned > kTurn / 2 ? turned - kTurn : turned;
}

} // namespace inkmacro::view
