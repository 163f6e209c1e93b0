#pragma once

#include "view/Pen.h"

#include <QString>

#include <vector>

namespace inkmacro::view {

/// Lines of letters below one another.
struct TextBlock
{
    std::vector<QString> lines;
    Point at;
    int attachment = 1;  ///< of the block to the point: 1 top left, 2 top center and so on to 9 bottom right
    double height = 2.5; ///< of capitals
    double angle = 0.0;
    double lineDistance = 0.0; ///< from one base line to the next; 0 for the usual one
};

/// Estimated.
double widthOf(const TextBlock& block);
double heightOf(const TextBlock& block);

/// The boundary of a rectangle around the block, so much larger on each side; at least so wide, when that is given.
Outline boxAround(const TextBlock& block, double border, double width = 0.0);

void drawBlock(Pen& pen, const TextBlock& block);

/// The number of an attachment, of which `Top Left` is 1 and `Bottom Right` 9; 0 for other words.
int attachmentOf(const QString& justification);

/// The angle of letters along that direction or against it, so that they do not stand on their heads.
double readableAngle(double angle);

} // namespace inkmacro::view
