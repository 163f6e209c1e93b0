// Added text styles, attribute definitions, notes and curved texts.

#include "objects/targets/texts.h"
#include "host/db/OdDbClasses.h"
#include "objects/AddedObject.h"
#include "objects/added/readers.h"
#include "objects/entries.h"
#include "objects/targets/points.h"
#include "objects/targets/references.h"
#include "objects/targets/setters.h"
#include "statements/StatementGroup.h"
#include "statements/arrays.h"
#include "statements/wording.h"

#include <array>

using inkmacro::doubleBackslashes;

namespace {

CFxString nameOfTextStyle(const Writer& writer, const OdDbObjectId& id)
{
    const auto style = odrxCast<OdDbTextStyleTableRecord>(id.openObject().get());
    return style ? NameByNow(writer, *style) : CFxString();
}

struct Box
{
    OdGePoint3d first;
    OdGePoint3d second;

    bool operator==(const Box&) const = default;
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

using inkmacro::Target;
const inkmacro::Fault kOtherBox{
    "EmitInsertNote",
    {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
    "the box of a note is that of another justification than it gets, which moves it"};

/// A command that loads shapes is written without its block, so the statement stands one level further out.
Statement loadShapes(Writer& writer, const CFxString& fileName)
{
    if (IsHostShapeFile(fileName))
        return {};
    const OneLevelOut out(writer);
    return EmitLoadShapeFile(writer, doubleBackslashes(fileName));
}

} // namespace

bool IsHostShapeFile(const CFxString& fileName)
{
    return fileName.equalNoCase("LTypeShp.shx");
}

Statement ReadTextStyle(AddedObject& added)
{
    const auto style = added.open<OdDbTextStyleTableRecord>();
    const CFxString name = added.takeText("Name");
    const CFxVariant font = added.take("Font", forms::text);
    if (style && style->isShapeFile())
        return loadShapes(added.writer, style->fileName());

    Statement text = EmitCreateTextStyle(added.writer, added.name, name);
    if (!font.IsNull())
        text += EmitSetProperty(added.writer, added.name, "Font", doubleBackslashes(font.GetString()), true,
                                inkmacro::Meaning::Text);
    return text;
}

Statement ReadAttributeDefinition(AddedObject& added)
{
    const auto takeYes = [&](const char* tag) {
        return wordOf(added.take(tag, forms::word.with(forms::yesNo), "No")).equalNoCase(ShownWord("Yes"));
    };

    AttributeDefinition definition;
    definition.value = added.takeText("Value");
    definition.tag = added.takeText("Tag");
    definition.prompt = added.takeOptionalText("Prompt");
    definition.styleName =
        added.nameOf("TextStyle", added.take("TextStyle", forms::object, "no name").GetId(), nameOfTextStyle);
    definition.justification =
        wordOf(added.take("Justify", forms::word.with(inkmacro::enums::textJustification), "empty text"));
    // Only one of the points is taken; who lists the tags hears of both.
    const bool isLeft = definition.justification.equalNoCase(ShownWord("Left"));
    if (isLeft || added.conversion.asked)
        definition.position = added.takePoint("Position X", "Position Y", "Position Z");
    if (!isLeft)
        definition.position = added.takePoint("Text alignment X", "Text alignment Y", "Text alignment Z");
    definition.height = added.takeReal("Height", 0.2);
    definition.rotation = added.takeReal("Rotation", 0.0);
    definition.constant = takeYes("Constant");
    definition.invisible = takeYes("Invisible");
    definition.preset = takeYes("Preset");
    definition.verify = takeYes("Verify");
    definition.lockPosition = takeYes("Lock position");
    return EmitInsertAttributeDefinition(added.writer, definition, added.name);
}

Statement ReadSimpleNote(AddedObject& added)
{
    const OdGePoint3d position = added.takePoint("Position X", "Position Y", "Position Z");
    const OdGePoint3d alignment = added.takePoint("Text alignment X", "Text alignment Y", "Text alignment Z");
    const double height = added.takeReal("Height", 2.5);
    const double rotation = added.takeReal("Rotation", 0.0);
    const CFxString contents = added.takeText("Contents");
    const std::optional<CFxString> justification =
        ChosenText(added.take("Justify", forms::chosen.with(inkmacro::enums::textJustification)));

    Statement text = EmitInsertSimpleNote(added.writer, position, height, rotation, contents, added.name);
    if (justification)
        text += EmitSetEnumProperty(added.writer, added.name, inkmacro::enums::textJustification, "Justify",
                                    *justification);
    // The justification moves the note: both points are set again behind it.
    text += EmitCallWithPoint(added.writer, added.name, "SetAlignmentPoint", alignment);
    text += EmitCallWithPoint(added.writer, added.name, "SetPosition", position);
    return text;
}

Statement ReadNote(AddedObject& added)
{
    const CFxVariant width = added.take("Width", forms::number, "a box without width");
    const CFxVariant textHeight = added.take("Text Height", forms::number);
    const OdGePoint3d position = added.takePoint("Position X", "Position Y", "Position Z");
    const CFxVariant justify = added.take("Justify", forms::chosen.with(inkmacro::enums::noteJustification));
    const CFxString contents = added.takeText("Contents");
    const CFxVariant direction = added.take("Direction", forms::collection.with(inkmacro::enums::noteDirection));
    const CFxVariant style = added.take("Style", forms::style);
    const CFxVariant rotation = added.take("Rotation", forms::number);
    added.take("Rotation", forms::number); // recorded twice; the first one counts
    const CFxVariant lineSpaceDistance = added.take("Line space distance", forms::number);
    const double boxHeight = added.takeReal("TextBoxHeight", 0.0);

    const auto boxOf = [&](int attachment) { return boxOfNote(attachment, position, width.GetDouble(), boxHeight); };
    const std::optional<CFxString> justification = ChosenText(justify);
    const Box begun = boxOf(justify.GetCollection().GetChosen());
    const Box shown =
        boxOf(justification ? PlaceOf(inkmacro::enums::noteJustification, *justification).value_or(0) : 0);
    const Box& box = added.writer.repairs ? shown : begun;
    Statement text = EmitInsertNote(added.writer, box.first, box.second, contents, added.name);
    if (begun != shown)
        text = added.writer.faulty(std::move(text), kOtherBox);
    const auto setReal = [&](const char* property, const CFxVariant& value, inkmacro::Meaning meaning) {
        if (!value.IsNull())
            text += EmitSetDoubleProperty(added.writer, added.name, property, value.GetDouble(), meaning);
    };
    setReal("Rotation", rotation, inkmacro::Meaning::Angle);
    setReal("TextHeight", textHeight, inkmacro::Meaning::Length);
    setReal("Width", width, inkmacro::Meaning::Length);
    setReal("LineSpaceDistance", lineSpaceDistance, inkmacro::Meaning::Length);
    if (!style.IsNull()) {
        const CFxString styleName =
            style.GetType() == CFxVariant::kId ? added.nameOf("Style", style.GetId(), nameOfTextStyle) : wordOf(style);
        text += EmitSetProperty(added.writer, added.name, "TextStyle", styleName, true);
    }
    if (justification)
        text += EmitSetNoteJustify(added.writer, added.name, "Justify", *justification);
    if (!direction.IsNull())
        text += EmitSetNoteDirection(added.writer, added.name, "Direction", direction.GetCollection().GetChosen());
    return text;
}

Statement ReadCurvedText(AddedObject& added)
{
    const auto curved = added.open<OdDbArcAlignedText>();
    if (!curved)
        return added.lost("the drawing does not have it, and no record holds its text");
    Statement fetch;
    const QString arc = added.conversion.names().AddedOrFetched(curved->arcId(), fetch);
    if (arc.isEmpty() && added.conversion.Drops(inkmacro::emptyPlace))
        return added.lost("the macro does not have the arc that it runs along");
    return fetch + EmitInsertCurvedText(added.writer, curved->textString(), arc, added.name);
}
