// Added tolerances and leaders. What stands at a leader's end is not recorded; it is looked up in the drawing.

#include "objects/targets/leaders.h"
#include "host/db/OdDbClasses.h"
#include "objects/AddedObject.h"
#include "objects/added/readers.h"
#include "objects/targets/references.h"
#include "objects/targets/setters.h"
#include "objects/targets/texts.h"
#include "statements/enumerations.h"
#include "statements/wording.h"

using inkmacro::escapeWithBackslashes;
using inkmacro::Meaning;

namespace {

/// The insertion of a leader makes its note too; the note's settings come from the drawing, since no record holds them.
Statement setNote(const AddedObject& leader, const OdDbMText& note)
{
    // The note is reached through its leader.
    const CFxString name = leader.conversion.names().NameObject(note.getDbHandle(), note.isA());
    Writer& writer = leader.writer;
    Statement text = EmitGetNoteAnnotation(writer, name, leader.name);

    text += EmitSetBoolProperty(writer, name, "BackgroundMask", note.backgroundFillOn());
    text += EmitSetBoolProperty(writer, name, "UseDrawingBackgroundColor", note.useBackgroundColorOn());
    if (const std::optional<OdCmColor>& color = note.getBackgroundFillColor())
        text += EmitSetColor(writer, name, "BackgroundFillColor", *color);
    text += EmitSetDoubleProperty(writer, name, "BackgroundBorderOffsetFactor", note.getBackgroundScaleFactor(),
                                  Meaning::Factor);
    // Lines at a factor of 1 are five thirds of the text height apart.
    const double lineDistance = note.textHeight() * note.lineSpacingFactor() * 1.6666666666666667;
    text += EmitSetDoubleProperty(writer, name, "LineSpaceDistance", lineDistance, Meaning::Length);
    text += EmitSetDoubleProperty(writer, name, "LineSpaceFactor", note.lineSpacingFactor(), Meaning::Factor);
    text += EmitSetDoubleProperty(writer, name, "Rotation", note.rotation(), Meaning::Angle);
    text += EmitSetDoubleProperty(writer, name, "TextHeight", note.textHeight(), Meaning::Length);
    text += EmitSetDoubleProperty(writer, name, "Width", note.width(), Meaning::Length);

    // Attachments are counted by rows from the top left; of the vertical modes the top one is the highest.
    if (note.attachment() >= 1 && note.attachment() <= 9) {
        const int place = note.attachment() - 1;
        int flag = 0;
        const QString justification = inkmacro::TextAlignment(place % 3, 3 - place / 3, flag);
        text += EmitSetNoteJustify(writer, name, "Justify", ShownWord(justification.toLatin1().constData()));
    }
    const auto style = odrxCast<OdDbTextStyleTableRecord>(note.textStyle().openObject().get());
    if (style)
        text += EmitSetProperty(writer, name, "TextStyle", NameByNow(writer, *style), true);
    return text;
}

Statement annotate(const AddedObject& added)
{
    const auto leader = added.open<OdDbLeader>();
    if (!leader)
        return {};
    const OdDbObjectPtr annotation = leader->annotationObjectId().openObject();
    if (!annotation && !leader->annotationObjectId().isNull())
        LoseProperty(added.object, "content", "the drawing does not have what stands at the leader's end");
    if (const auto tolerance = odrxQuery<OdDbFcf>(annotation.get()))
        return EmitSetAnnotation(added.writer, added.name, LeaderAnnotation::Tolerance,
                                 escapeWithBackslashes(tolerance->text()));
    if (const auto instance = odrxQuery<OdDbBlockReference>(annotation.get())) {
        const auto block = odrxCast<OdDbBlockTableRecord>(instance->blockTableRecord().openObject().get());
        return block ? EmitSetAnnotation(added.writer, added.name, LeaderAnnotation::Block, block->getName())
                     : QString();
    }
    const auto note = odrxQuery<OdDbMText>(annotation.get());
    return note ? setNote(added, *note) : QString();
}

} // namespace

Statement ReadTolerance(AddedObject& added)
{
    const OdGePoint3d position = added.takePoint("Position X", "Position Y", "Position Z");
    return EmitInsertTolerance(added.writer, position,
                               inkmacro::escapeText(added.writer.target, added.takeText("Content")), added.name);
}

/// A leader's texts are escaped alike in all targets, those without backslash escapes included. It has to stay so.
Statement ReadLeader(AddedObject& added)
{
    const OdArray<OdGePoint3d> vertices = added.takePoints("Vertex");
    const inkmacro::EscapedText content = escapeWithBackslashes(added.takeOptionalText("content"));
    const double width = added.takeReal("width", 0.0);
    const Statement insertion = EmitInsertLeader(added.writer, vertices, width, content, added.name);
    return insertion + annotate(added);
}
