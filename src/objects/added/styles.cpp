// Added layers and groups, and styles of tables, dimensions, rich lines and lines.

#include "objects/targets/styles.h"
#include "host/db/LineStyleFile.h"
#include "host/db/OdDbClasses.h"
#include "host/kernel/CFxServices.h"
#include "objects/AddedObject.h"
#include "objects/added/readers.h"
#include "objects/blockContents.h"
#include "statements/RecordingState.h"
#include "statements/wording.h"
#include "targets/groups.h"

#include <QDir>

#include <functional>

namespace {

constexpr ValueForm plainYes = forms::text.with(forms::yesNo);

bool holds(const QString& path, const CFxString& styleName)
{
    LineStyleFile file(path);
    LineStyleFile::Style style;
    while (file.next(style))
        if (styleName.equalNoCase(style.name))
            return true;
    return false;
}

/// Path of the file, among those of the active drawing's folders, that holds the line style; empty when none does.
QString lineStyleFile(const CFxString& styleName)
{
    if (!ACTIVE_DOCUMENT)
        return {};
    for (const OdString& folder : ACTIVE_DOCUMENT->GetDatabase()->lineStyleFolders()) {
        const QDir directory(folder);
        // Whatever the case of the ending.
        for (const QString& file : directory.entryList({"*.lin"}, QDir::Files, QDir::Name))
            if (holds(directory.filePath(file), styleName))
                return directory.filePath(file);
    }
    return {};
}

/// Whether the added style is that current one of the drawing.
bool isCurrent(const OdDbObjectPtr& style, OdDbObjectId (OdDbDatabase::*current)() const)
{
    return style && style->objectId() == (ACTIVE_DOCUMENT->GetDatabase()->*current)();
}

/// A new style comes with lines of its own, each of which gives way to one of the recorded style: these are counted
/// from the outermost. Of two lines in one place the later one counts.
Statement replaceElements(const AddedObject& added, const OdDbMlineStyle& style)
{
    std::map<double, OdDbMlineElement, std::greater<>> elements;
    for (int i = 0; i < style.numElements(); ++i)
        elements[style.getElementAt(i).offset] = style.getElementAt(i);

    Statement text;
    int index = 0;
    for (const auto& [offset, element] : elements) {
        const auto lineStyle = odrxCast<OdDbLinetypeTableRecord>(element.linetypeId.openObject(true).get());
        const Statement statement = EmitReplaceRichLineElement(added.writer, added.name, index, offset, element.color,
                                                               lineStyle ? lineStyle->getName() : OdString());
        if (statement.isEmpty())
            LoseProperty(added.object, "elements", "the target has no statement for lines of such a style");
        text += statement;
        ++index;
    }
    return text;
}

} // namespace

Statement ReadTableStyle(AddedObject& added)
{
    const CFxString styleName = added.takeText("TableStyleName");
    Statement text = EmitCreateTableStyle(added.writer, styleName, added.name);
    if (isCurrent(added.open<OdDbTableStyle>(), &OdDbDatabase::tablestyle))
        text += EmitActivateLayer(added.writer, added.name);
    return text + EmitRenameStyle(added.writer, added.name, styleName, false);
}

Statement ReadDimensionStyle(AddedObject& added)
{
    return EmitCreateDimensionStyle(added.writer, added.takeText("DimensionStyleName"), added.name);
}

Statement ReadRichLineStyle(AddedObject& added)
{
    Statement text = EmitCreateRichLineStyle(added.writer, added.takeText("RichLineStyleName"), added.name);
    const auto style = added.open<OdDbMlineStyle>();
    if (!style)
        return text;
    if (isCurrent(style, &OdDbDatabase::currentRichLineStyleId))
        text += EmitActivateLayer(added.writer, added.name);
    return text + replaceElements(added, *style);
}

/// A style that no file holds is loaded all the same: the macro's user can fill in the file.
Statement ReadLineStyle(AddedObject& added)
{
    const CFxVariant value = added.take("Name", forms::text, "nothing is written");
    if (value.IsNull())
        return added.lost("its name is not recorded");
    const CFxString styleName = value.GetString();
    const QString path = lineStyleFile(styleName);
    if (path.isEmpty())
        GetFxSystemServices()->ReportProblem(
            QString("no file of line styles holds \"%1\", so the macro loads it without a file").arg(styleName));
    return EmitLoadLineStyle(added.writer, styleName, inkmacro::doubleBackslashes(path), added.name);
}

Statement ReadLayer(AddedObject& added)
{
    const CFxVariant name = added.take("Name", forms::text, "the drawing's");
    CFxString layer = name.GetString();
    if (name.IsNull()) {
        if (const auto record = added.open<OdDbLayerTableRecord>())
            layer = record->getName();
        else
            AssumeProperty(added.object, "Name", "neither a record nor the drawing tells it, which gives empty text");
    }
    Statement text = EmitCreateLayer(added.writer, layer, added.name);
    if (added.take("ActivateLayer", plainYes, "No").GetString() == ShownWord("Yes")) {
        if (RecordsOtherwise(inkmacro::Target::JavaScript, added.writer.target))
            added.conversion.faults.note(otherLanguage);
        text += EmitActivateLayer(added.writer, LayerOf(added.name));
    }
    return text;
}

Statement ReadGroup(AddedObject& added)
{
    NewGroup group;
    group.name = added.takeText("Name");
    group.description = added.takeOptionalText("Description");
    const CFxVariant entities = added.take("AllEntities", forms::handlesInTags, "no entities");
    group.selectable = added.take("SelectableEntities", plainYes, "No").GetString().equalNoCase(ShownWord("YES"));
    for (const OdDbObjectId& id : ObjectsOf(entities, HandlesIn::Tags))
        if (const QString variable = added.conversion.names().KnownVariable(id.getHandle()); !variable.isEmpty())
            group.entities.push_back(variable);
        else
            LoseProperty(added.object, "AllEntities", "the macro does not have the object " + id.getHandle().ascii());
    return EmitCreateGroup(added.writer, group, added.name);
}
