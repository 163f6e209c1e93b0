// Added tolerances and leaders. What stands at a leader's end is not recorded; it is looked up in the drawing.

#include "objects/targets/leaders.h"
#include "host/db/OdDbClasses.h"
#include "objects/AddedProperties.h"
#include "objects/targets/references.h"
#include "objects/targets/setters.h"
#include "objects/targets/texts.h"
#include "targets/enumerations.h"
#include "targets/wording.h"

using inkmacro::escapeWithBackslashes;

QString CFxConverterIWAPIObject::ReadTolerance(AddedProperties& properties, const CFxString& name)
{
    const OdGePoint3d position = properties.takePoint("Position X", "Position Y", "Position Z");
    return EmitInsertTolerance(writer, position, inkmacro::escapeText(writer.target, properties.takeText("Content")),
                               name);
}

/// A leader's texts are escaped alike in all targets, those without backslash escapes included. It has to stay so.
QString CFxConverterIWAPIObject::ReadLeader(AddedProperties& properties, const CFxString& name)
{
    const OdArray<OdGePoint3d> vertices = properties.takePoints("Vertex");
    const CFxString content = escapeWithBackslashes(properties.takeText("content"));
    const double width = properties.takeReal("width", 0.0);
    const QString insertion = EmitInsertLeader(writer, vertices, width, content, name);
    return insertion + AnnotateLeader(name);
}

QString CFxConverterIWAPIObject::AnnotateLeader(const CFxString& name)
{
    const auto leader = odrxCast<OdDbLeader>(AddedObject(name).get());
    if (!leader)
        return {};
    const OdDbObjectPtr annotation = leader->annotationObjectId().openObject();
    if (const auto tolerance = odrxQuery<OdDbFcf>(annotation.get()))
        return EmitSetAnnotation(writer, name, LeaderAnnotation::Tolerance, escapeWithBackslashes(tolerance->text()));
    if (const auto instance = odrxQuery<OdDbBlockReference>(annotation.get())) {
        const auto block = odrxCast<OdDbBlockTableRecord>(instance->blockTableRecord().openObject().get());
        return block ? EmitSetAnnotation(writer, name, LeaderAnnotation::Block, block->getName()) : QString();
    }
    const auto note = odrxQuery<OdDbMText>(annotation.get());
    return note ? SetLeaderNote(*note, name) : QString();
}

/// The insertion of a leader makes its note too; the note's settings come from the drawing, since no record holds them.
QString CFxConverterIWAPIObject::SetLeaderNote(const OdDbMText& note, const CFxString& leader)
{
    // Only the name is of use: the note is reached through its leader.
    CFxString name;
    ObjectVariable(note.getDbHandle(), note.isA(), name);
    QString text = EmitGetNoteAnnotation(writer, name, leader);

    text += EmitSetBoolProperty(writer, name, "BackgroundMask", note.backgroundFillOn());
    text += EmitSetBoolProperty(writer, name, "UseDrawingBackgroundColor", note.useBackgroundColorOn());
    if (const std::optional<OdCmColor>& color = note.getBackgroundFillColor())
        text += EmitSetColor(writer, name, "BackgroundFillColor", *color);
    text += EmitSetDoubleProperty(writer, name, "BackgroundBorderOffsetFactor", note.getBackgroundScaleFactor());
    // Lines at a factor of 1 are five thirds of the text height apart.
    const double lineDistance = note.textHeight() * note.lineSpacingFactor() * 1.6666666666666667;
    text += EmitSetDoubleProperty(writer, name, "LineSpaceDistance", lineDistance);
    text += EmitSetDoubleProperty(writer, name, "LineSpaceFactor", note.lineSpacingFactor());
    text += EmitSetDoubleProperty(writer, name, "Rotation", note.rotation());
    text += EmitSetDoubleProperty(writer, name, "TextHeight", note.textHeight());
    text += EmitSetDoubleProperty(writer, name, "Width", note.width());

    // Attachments are counted by rows from the top left; of the vertical modes the top one is the highest.
    if (note.attachment() >= 1 && note.attachment() <= 9) {
        const int place = note.attachment() - 1;
        int flag = 0;
        const QString justification = inkmacro::TextAlignment(place % 3, 3 - place / 3, flag);
        text += EmitSetNoteJustify(writer, name, "Justify", ShownWord(justification.toLatin1().constData()));
    }
    const auto style = odrxCast<OdDbTextStyleTableRecord>(note.textStyle().openObject().get());
    if (style)
        text += EmitSetProperty(writer, name, "TextStyle", style->getName(), true);
    return text;
}
