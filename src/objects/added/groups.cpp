// Added groups.

#include "targets/groups.h"
#include "objects/AddedObject.h"
#include "objects/added/readers.h"
#include "objects/blockContents.h"

Statement ReadGroup(AddedObject& added)
{
    NewGroup group;
    group.name = added.takeText("Name");
    group.description = added.takeText("Description");
    const CFxVariant entities = added.take("AllEntities");
    group.selectable = added.takeText("SelectableEntities").equalNoCase(ShownWord("YES"));
    for (const OdDbObjectId& id : ObjectsOf(entities, HandlesIn::Tags))
        if (const QString variable = added.conversion.names().KnownVariable(id.getHandle()); !variable.isEmpty())
            group.entities.push_back(variable);
        else
            LoseProperty(added.object, "AllEntities", "the macro does not have the object " + id.getHandle().ascii());
    return EmitCreateGroup(added.writer, group, added.name);
}
