// Added tolerances and leaders. What stands at a leader's end is not recorded; it is looked up in the drawing.

#include "host/db/OdDbClasses.h"
#include "objects/AddedProperties.h"
#include "targets/enumerations.h"
#include "targets/texts.h"

using inkmacro::escapeWithBackslashes;

QString CFxConverterIWAPIObject::ReadTolerance(AddedProperties& properties, const CFxString& name)
{
    const OdGePoint3d position = properties.takePoint("Position X", "Position Y", "Position Z");
    return EmitInsertTolerance(position, EscapeText(properties.takeText("Content")), name);
}

/// A leader's texts are escaped alike in all targets, those without backslash escapes included. It has to stay so.
QString CFxConverterIWAPIObject::ReadLeader(AddedProperties& properties, const CFxString& name)
{
    const OdArray<OdGePoint3d> vertices = properties.takePoints("Vertex");
    const CFxString content = escapeWithBackslashes(properties.takeText("content"));
    const double width = properties.takeReal("width", 0.0);
    const QString insertion = EmitInsertLeader(vertices, width, content, name);
    return insertion + AnnotateLeader(name);
}

QString CFxConverterIWAPIObject::AnnotateLeader(const CFxString& name)
{
    const auto leader = odrxCast<OdDbLeader>(AddedObject(name).get());
    if (!leader)
        return {};
    const OdDbObjectPtr annotation = leader->annotationObjectId().openObject();
    if (const auto tolerance = odrxQuery<OdDbFcf>(annotation.get()))
        return EmitSetAnnotation(name, LeaderAnnotation::Tolerance, escapeWithBackslashes(tolerance->text()));
    if (const auto instance = odrxQuery<OdDbBlockReference>(annotation.get())) {
        const auto block = odrxCast<OdDbBlockTableRecord>(instance->blockTableRecord().openObject().get());
        return block ? EmitSetAnnotation(name, LeaderAnnotation::Block, block->getName()) : QString();
    }
    const auto note = odrxQuery<OdDbMText>(annotation.get());
    return note ? SetLeaderNote(*note, name) : QString();
}

/// The insertion of a leader makes its note too; the note's settings come from the drawing, since no record holds them.
QString CFxConverterIWAPIObject::SetLeaderNote(const OdDbMText& note, const CFxString& leader)
{
    // Only the name is of use: the note is reached through its leader.
    CFxString name;
    EmitObjectVariable(note.getDbHandle(), note.isA(), name);
    QString text = EmitGetNoteAnnotation(name, leader);

    text += EmitSetBoolProperty(name, "BackgroundMask", note.backgroundFillOn());
    text += EmitSetBoolProperty(name, "UseDrawingBackgroundColor", note.useBackgroundColorOn());
    if (const std::optional<OdCmColor>& color = note.getBackgroundFillColor())
        text += EmitSetColor(name, "BackgroundFillColor", *color);
    text += EmitSetDoubleProperty(name, "BackgroundBorderOffsetFactor", note.getBackgroundScaleFactor());
    // Lines at a factor of 1 are five thirds of the text height apart.
    const double lineDistance = note.textHeight() * note.lineSpacingFactor() * 1.6666666666666667;
    text += EmitSetDoubleProperty(name, "LineSpaceDistance", lineDistance);
    text += EmitSetDoubleProperty(name, "LineSpaceFactor", note.lineSpacingFactor());
    text += EmitSetDoubleProperty(name, "Rotation", note.rotation());
    text += EmitSetDoubleProperty(name, "TextHeight", note.textHeight());
    text += EmitSetDoubleProperty(name, "Width", note.width());

    // Attachments are counted by rows from the top left; of the vertical modes the top one is the highest.
    if (note.attachment() >= 1 && note.attachment() <= 9) {
        const int place = note.attachment() - 1;
        int flag = 0;
        const QString justification = inkmacro::TextAlignment(place % 3, 3 - place / 3, flag);
        text += EmitSetNoteJustify(name, "Justify", ShownWord(justification.toLatin1().constData()));
    }
    const auto style = odrxCast<OdDbTextStyleTableRecord>(note.textStyle().openObject().get());
    if (style)
        text += EmitSetProperty(name, "TextStyle", style->getName(), true);
    return text;
}
