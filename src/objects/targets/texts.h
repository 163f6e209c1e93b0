#pragma once

#include "host/db/OdGe.h"
#include "statements/Writer.h"

/// What the insertion of an attribute definition takes.
struct AttributeDefinition
{
    CFxString value;
    CFxString tag;
    CFxString prompt;
    OdGePoint3d position;
    CFxString styleName;
    CFxString justification; ///< as the property sheet shows it
    double height;
    double rotation; ///< radians
    bool constant;
    bool invisible;
    bool preset;
    bool verify;
    bool lockPosition;
};

Statement EmitCreateTextStyle(Writer& writer, const CFxString& name, const CFxString& styleName);
Statement EmitLoadShapeFile(Writer& writer, const inkmacro::EscapedText& path);
Statement EmitInsertAttributeDefinition(Writer& writer, const AttributeDefinition& definition, const CFxString& name);
Statement EmitInsertSimpleNote(Writer& writer, const OdGePoint3d& position, double height, double rotation,
                               const CFxString& text, const CFxString& name);
Statement EmitInsertNote(Writer& writer, const OdGePoint3d& firstCorner, const OdGePoint3d& secondCorner,
                         const CFxString& text, const CFxString& name);
/// `shownText` is the justification as the property sheet shows it, `direction` the number of the chosen item.
Statement EmitSetNoteJustify(Writer& writer, const CFxString& target, const CFxString& property,
                             const CFxString& shownText);
Statement EmitSetNoteDirection(Writer& writer, const CFxString& target, const CFxString& property, int direction);
/// `style` is the number of the chosen item: 0 is at least the distance, others are exactly it.
Statement EmitSetNoteLineSpacing(Writer& writer, const CFxString& target, const CFxString& property,
                                 std::int32_t style);
/// `parameter` is "Bold" or "Italic". The host reads and writes all parameters of a font at once.
Statement EmitSetFontParameter(Writer& writer, const CFxString& settings, const CFxString& parameter, bool value);
Statement EmitInsertCurvedText(Writer& writer, const CFxString& text, const CFxString& arc, const CFxString& name);
