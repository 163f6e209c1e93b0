// Added text styles, attribute definitions, notes and curved texts.

#include "objects/targets/texts.h"
#include "frame/CFxConverterIWAPIImpl.h"
#include "host/db/OdDbClasses.h"
#include "objects/AddedProperties.h"
#include "objects/targets/geometrySetters.h"
#include "objects/targets/setters.h"
#include "targets/wording.h"

#include <array>

using inkmacro::doubleBackslashes;

namespace {

/// The word of a value, whether it is plain text or the chosen one of several items.
CFxString wordOf(const CFxVariant& value)
{
    return ChosenText(value).value_or(value.GetString());
}

CFxString nameOfTextStyle(const OdDbObjectId& id)
{
    const auto style = odrxCast<OdDbTextStyleTableRecord>(id.openObject().get());
    return style ? CFxString(style->getName()) : CFxString();
}

struct Box
{
    OdGePoint3d first;
    OdGePoint3d second;
};

/// The box of a note, whose recorded position is the point that it is attached by. `attachment` counts the nine by
/// rows, from 0 at the top left; for any other both corners are at the position.
Box boxOfNote(int attachment, const OdGePoint3d& position, double width, double height)
{
    // Shares of width and height from the position to the corners.
    struct Shares
    {
        double firstX, firstY, secondX, secondY;
    };
    static constexpr std::array<Shares, 9> attachments{{
        {0, 0, 1, -1},
        {-0.5, 0, 0.5, -1},
        {-1, 0, 0, -1},
        {0, 0.5, 1, -0.5},
        {-0.5, 0.5, 0.5, -0.5},
        {-1, 0.5, 0, -0.5},
        {0, 1, 1, 0},
        {-0.5, 1, 0.5, 0},
        {-1, 1, 0, 0},
    }};
    if (attachment < 0 || attachment > 8)
        return {position, position};
    // A coordinate without a share stays to the last bit, the sign of zero included.
    const auto moved = [](double from, double share, double size) { return share == 0 ? from : from + share * size; };
    const Shares& shares = attachments[static_cast<std::size_t>(attachment)];
    return {{moved(position.x, shares.firstX, width), moved(position.y, shares.firstY, height), position.z},
            {moved(position.x, shares.secondX, width), moved(position.y, shares.secondY, height), position.z}};
}

} // namespace

bool IsHostShapeFile(const CFxString& fileName)
{
    return fileName.equalNoCase("LTypeShp.shx");
}

QString CFxConverterIWAPIObject::ReadTextStyle(AddedProperties& properties, const CFxString& name)
{
    const auto style = odrxCast<OdDbTextStyleTableRecord>(AddedObject(name).get());
    if (style && style->isShapeFile())
        return LoadShapes(style->fileName());

    QString text = EmitCreateTextStyle(writer, name, properties.takeText("Name"));
    const CFxVariant font = properties.take("Font");
    if (!font.IsNull())
        text += EmitSetProperty(writer, name, "Font", doubleBackslashes(font.GetString()), true);
    return text;
}

/// A command that loads shapes is written without its block, so the statement stands one level further out.
QString CFxConverterIWAPIObject::LoadShapes(const CFxString& fileName)
{
    if (IsHostShapeFile(fileName))
        return {};
    --writer.IndentLevel;
    const QString text = EmitLoadShapeFile(writer, doubleBackslashes(fileName));
    ++writer.IndentLevel;
    return text;
}

QString CFxConverterIWAPIObject::ReadAttributeDefinition(AddedProperties& properties, const CFxString& name)
{
    const auto takeYes = [&](const char* tag) { return wordOf(properties.take(tag)).equalNoCase(ShownWord("Yes")); };

    AttributeDefinition definition;
    definition.value = properties.takeText("Value");
    definition.tag = properties.takeText("Tag");
    definition.prompt = properties.takeText("Prompt");
    definition.styleName = nameOfTextStyle(properties.take("TextStyle").GetId());
    definition.justification = wordOf(properties.take("Justify"));
    definition.position = definition.justification.equalNoCase(ShownWord("Left"))
                              ? properties.takePoint("Position X", "Position Y", "Position Z")
                              : properties.takePoint("Text alignment X", "Text alignment Y", "Text alignment Z");
    definition.height = properties.takeReal("Height", 0.2);
    definition.rotation = properties.takeReal("Rotation", 0.0);
    definition.constant = takeYes("Constant");
    definition.invisible = takeYes("Invisible");
    definition.preset = takeYes("Preset");
    definition.verify = takeYes("Verify");
    definition.lockPosition = takeYes("Lock position");
    return EmitInsertAttributeDefinition(writer, definition, name);
}

QString CFxConverterIWAPIObject::ReadSimpleNote(AddedProperties& properties, const CFxString& name)
{
    const OdGePoint3d position = properties.takePoint("Position X", "Position Y", "Position Z");
    const OdGePoint3d alignment = properties.takePoint("Text alignment X", "Text alignment Y", "Text alignment Z");
    const double height = properties.takeReal("Height", 2.5);
    const double rotation = properties.takeReal("Rotation", 0.0);
    const CFxString contents = properties.takeText("Contents");
    const std::optional<CFxString> justification = ChosenText(properties.take("Justify"));

    QString text = EmitInsertSimpleNote(writer, position, height, rotation, contents, name);
    if (justification)
        text += EmitSetEnumProperty(writer, name, inkmacro::enums::textJustification, "Justify", *justification);
    // The justification moves the note: both points are set again behind it.
    text += EmitCallWithPoint(writer, name, "SetAlignmentPoint", alignment);
    text += EmitCallWithPoint(writer, name, "SetPosition", position);
    return text;
}

QString CFxConverterIWAPIObject::ReadNote(AddedProperties& properties, const CFxString& name)
{
    const CFxVariant width = properties.take("Width");
    const CFxVariant textHeight = properties.take("Text Height");
    const OdGePoint3d position = properties.takePoint("Position X", "Position Y", "Position Z");
    const CFxVariant justify = properties.take("Justify");
    const CFxString contents = properties.takeText("Contents");
    const CFxVariant direction = properties.take("Direction");
    const CFxVariant style = properties.take("Style");
    const CFxVariant rotation = properties.take("Rotation");
    properties.take("Rotation"); // recorded twice; the first one counts
    const CFxVariant lineSpaceDistance = properties.take("Line space distance");
    const double boxHeight = properties.takeReal("TextBoxHeight", 0.0);

    const Box box = boxOfNote(justify.GetCollection().GetChosen(), position, width.GetDouble(), boxHeight);
    QString text = EmitInsertNote(writer, box.first, box.second, contents, name);
    const auto setReal = [&](const char* property, const CFxVariant& value) {
        if (!value.IsNull())
            text += EmitSetDoubleProperty(writer, name, property, value.GetDouble());
    };
    setReal("Rotation", rotation);
    setReal("TextHeight", textHeight);
    setReal("Width", width);
    setReal("LineSpaceDistance", lineSpaceDistance);
    const CFxString styleName =
        style.GetType() == CFxVariant::kId ? nameOfTextStyle(style.GetId()) : ChosenText(style).value_or(CFxString());
    if (!styleName.isEmpty())
        text += EmitSetProperty(writer, name, "TextStyle", styleName, true);
    if (const std::optional<CFxString> justification = ChosenText(justify))
        text += EmitSetNoteJustify(writer, name, "Justify", *justification);
    if (!direction.IsNull())
        text += EmitSetNoteDirection(writer, name, "Direction", direction.GetCollection().GetChosen());
    return text;
}

QString CFxConverterIWAPIObject::ReadCurvedText(AddedProperties&, const CFxString& name)
{
    const auto curved = odrxCast<OdDbArcAlignedText>(AddedObject(name).get());
    if (!curved)
        return {};
    return EmitInsertCurvedText(writer, curved->textString(), AddedVariable(curved->arcId()), name);
}
