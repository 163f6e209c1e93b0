// Texts of one line, notes and texts along an arc.

#include "view/attributes.h"
#include "view/blockParts.h"
#include "view/drawers.h"
#include "view/leaders.h"
#include "view/noteText.h"
#include "view/plane.h"
#include "view/readings.h"
#include "view/textBlock.h"

#include "host/db/OdDbClasses.h"

#include <algorithm>

namespace inkmacro::view {
namespace {

constexpr double kUsualHeight = 2.5;
constexpr double kUsualHeightOfAttributes = 0.2;
constexpr int kLeft = 10; ///< on the baseline, before center and right
constexpr int kMiddle = 5;

/// How a text of one line stands to its alignment point; kLeft for one that stands at its position.
int placeOfJustification(const QString& justification)
{
    if (justification.compare("Center", Qt::CaseInsensitive) == 0)
        return kLeft + 1;
    if (justification.compare("Right", Qt::CaseInsensitive) == 0)
        return kLeft + 2;
    if (justification.compare("Middle", Qt::CaseInsensitive) == 0)
        return kMiddle;
    const int attachment = attachmentOf(justification);
    return attachment == 0 ? kLeft : attachment;
}

bool isBetweenPoints(const QString& justification)
{
    return justification.compare("Aligned", Qt::CaseInsensitive) == 0 ||
           justification.compare("Fit", Qt::CaseInsensitive) == 0;
}

/// A line of letters between two points, or at one of them.
Letters placed(const Values& values, Letters letters)
{
    const Point position = placeOf(values, "Position").value_or(Point());
    const Point alignment = placeOf(values, "Text alignment").value_or(position);
    const QString justification = values.text("Justify").value_or(QString());
    letters.place = placeOfJustification(justification);
    letters.at = letters.place == kLeft ? position : alignment;
    letters.angle = values.number("Rotation").value_or(0.0);
    if (isBetweenPoints(justification) && distanceOf(position, alignment) > 0.0) {
        letters.width = distanceOf(position, alignment);
        letters.angle = angleOf(alignment - position);
    } else if (const double spacing = sizeOf({values.number("Spacing")}, 1.0); spacing != 1.0) {
        letters.width = spacing * estimatedWidth(letters.text, letters.height);
    }
    return letters;
}

double heightOfAttribute(const Values& values)
{
    return sizeOf({values.number("Height")}, kUsualHeightOfAttributes);
}

void drawLetters(const Values& values, Pen& pen, const QString& text, double height)
{
    if (text.trimmed().isEmpty())
        return;
    pen.text(placed(values, {.text = text, .at = {}, .height = height}));
    if (yesOrNo(values, "Backward").value_or(false) || yesOrNo(values, "UpsideDown").value_or(false))
        pen.remark("its letters are not mirrored");
}

/// The attribute of that tag, as the drawing tells of a reference.
QString drawnAttribute(const Values& reference, const QString& tag, const QString& usual)
{
    const auto* const drawn = reference.drawnAs<OdDbBlockReference>();
    if (!drawn)
        return usual;
    for (const OdDbObjectIteratorPtr all = drawn->attributeIterator(); !all->done(); all->step())
        if (const auto attribute = odrxCast<OdDbAttribute>(all->objectId().openObject().get());
            attribute && attribute->tag().compare(tag, Qt::CaseInsensitive) == 0)
            return attribute->textString();
    return usual;
}

void drawAttributeOf(const Values& reference, const Values& definition, const Affine& place, Pen& pen)
{
    const QString tag = definition.text("Tag").value_or(QString());
    const QString usual = definition.text("Value").value_or(QString());
    const QString text = reference.text("BlockAttributes." + tag).value_or(drawnAttribute(reference, tag, usual));
    if (text.trimmed().isEmpty() || yesOrNo(definition, "Invisible").value_or(false))
        return;
    Letters letters = placed(definition, {.text = plainText(text), .at = {}, .height = heightOfAttribute(definition)});
    const Point along = place.turn(directionOf(letters.angle));
    letters.at = place * letters.at;
    letters.width *= lengthOf(along);
    letters.height *= lengthOf(place.turn(leftOf(directionOf(letters.angle))));
    letters.angle = angleOf(along);
    pen.text(letters);
}

/// What a note is, its place aside.
TextBlock blockOf(const Values& note)
{
    const auto* const drawn = note.drawnAs<OdDbMText>();
    const auto fromDrawing = [&](auto read) { return drawn ? std::optional<double>((drawn->*read)()) : std::nullopt; };
    TextBlock block;
    block.height =
        sizeOf({note.number("Text Height"), fromDrawing(&OdDbMText::textHeight), heightOfTextStyle(note, "Style")},
               kUsualHeight);
    block.angle = note.number("Rotation").value_or(drawn ? drawn->rotation() : 0.0);
    const double factor = sizeOf({note.number("Line space factor"), fromDrawing(&OdDbMText::lineSpacingFactor)}, 1.0);
    block.lineDistance = sizeOf({note.number("Line space distance")}, block.height * factor * 5.0 / 3.0);
    const int attachment = attachmentOf(note.text("Justify").value_or(QString()));
    block.attachment = attachment != 0 ? attachment : drawn ? std::clamp(drawn->attachment(), 1, 9) : 1;
    const double width = sizeOf({note.number("Width"), fromDrawing(&OdDbMText::width)}, 0.0);
    const QString contents = note.text("Contents").value_or(drawn ? drawn->contents() : QString());
    block.lines = wrapped(linesOfNote(contents), block.height, width);
    return block;
}

/// Without a color of its own the box has that of the paper.
void drawBackground(const Values& note, const Pen& pen, const TextBlock& block)
{
    const auto* const drawn = note.drawnAs<OdDbMText>();
    const bool isOn = yesOrNo(note, "Background mask").value_or(drawn && drawn->backgroundFillOn());
    const bool isPaper = yesOrNo(note, "UseDrawingBackgroundColor").value_or(drawn && drawn->useBackgroundColorOn());
    std::optional<OdCmColor> color = colorIn(note, "BackgroundFillColor");
    if (!color && drawn)
        color = drawn->getBackgroundFillColor();
    Pen background = pen;
    if (!isOn)
        return;
    if (isPaper || !color) {
        background.remark("its box in the paper's color hides nothing");
        return;
    }
    const double factor = sizeOf({note.number("BackgroundBorderOffsetFactor"),
                                  drawn ? std::optional(drawn->getBackgroundScaleFactor()) : std::nullopt},
                                 1.5);
    const double border = std::max(factor - 1.0, 0.0) * block.height;
    background.setColor(*color);
    background.area(boxAround(block, border));
}

} // namespace

void drawNoteAt(const Values& note, Pen& pen, Point at, std::optional<int> attachment)
{
    TextBlock block = blockOf(note);
    block.at = at;
    block.attachment = attachment.value_or(block.attachment);
    drawBackground(note, pen, block);
    drawBlock(pen, block);
    if (note.text("Direction").value_or(QString()).compare("Vertical", Qt::CaseInsensitive) == 0)
        pen.remark("its letters side by side and not below one another");
}

void drawText(const Values& values, Pen& pen)
{
    const double height = sizeOf({values.number("Height"), heightOfTextStyle(values, "TextStyle")}, kUsualHeight);
    drawLetters(values, pen, plainText(values.text("Contents").value_or(QString())), height);
}

void drawNote(const Values& values, Pen& pen)
{
    if (const std::optional<Point> position = placeOf(values, "Position"))
        drawNoteAt(values, pen, *position);
    else if (const Values* const leader = leaderOf(values))
        drawAtEnd(*leader, values, pen);
}

bool isAttributeOfReferences(const Values& definition)
{
    return definition.className() == "AcDbAttributeDefinition" && !yesOrNo(definition, "Constant").value_or(false);
}

void drawAttributes(const Values& reference, const Values& block, const Affine& place, Pen& pen)
{
    for (const OdDbHandle& handle : partsOf(block)) {
        const Values* const part = reference.other(handle);
        if (part && isAttributeOfReferences(*part))
            drawAttributeOf(reference, *part, place, pen);
    }
}

/// A definition shows its name, but for a constant one.
void drawAttribute(const Values& values, Pen& pen)
{
    const auto* const drawn = values.drawnAs<OdDbAttribute>();
    const QString named = isAttributeOfReferences(values) ? QStringLiteral("Tag") : QStringLiteral("Value");
    const QString text = values.text(named).value_or(drawn ? drawn->textString() : QString());
    if (placeOf(values, "Position") || placeOf(values, "Text alignment"))
        drawLetters(values, pen, plainText(text), heightOfAttribute(values));
}

} // namespace inkmacro::view
