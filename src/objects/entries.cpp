// The three kinds of object action that the driver hands over.

#include "objects/entries.h"

#include "objects/classTable.h"
#include "objects/targets/statements.h"
#include "statements/losses.h"

/// Whether objects of the action's class have statements; notes the loss when they have none.
template<class Action>
static bool hasStatements(const Action& action)
{
    if (IsSupportedClass(action.GetObjectClass()))
        return true;
    NoteLoss(ActionTitle(&action), "objects of its class have no statements");
    return false;
}

std::int32_t ConvertObjectAdded(Conversion& conversion, const CFxObjectAdded& action, Statement& text)
{
    const OdRxClass* const cls = action.GetObjectClass();
    if (!cls)
        return kFxFailure;
    if (!hasStatements(action))
        return kFxSuccess;
    PropertyList read = action.GetProperties();
    PropertyList rest = action.GetExtraProperties();
    Statement statements;
    ConvertAddedObject(conversion, cls, action.GetHandle(), read, rest, statements);
    text += statements;
    return kFxSuccess;
}

std::int32_t ConvertObjectModified(Conversion& conversion, const CFxObjectModified& action, Statement& text)
{
    const OdRxClass* const cls = action.GetObjectClass();
    if (!cls)
        return kFxFailure;
    PropertyList list = action.GetProperties();
    if (!hasStatements(action) || list.empty())
        return kFxSuccess;
    const Statement comment = EmitObjectModifiedComment(conversion.writer, cls->name());
    Statement statements;
    ConvertObjectChanges(conversion, cls, action.GetHandle(), list, false, statements);
    if (!statements.isEmpty())
        text += comment + statements;
    return kFxSuccess;
}

/// A property that stands alone is a list of one record, which brings its class and handle along.
std::int32_t ConvertPropertyChanged(Conversion& conversion, CFxPropertyChangedPtr action, Statement& text)
{
    const OdRxClass* const cls = action->GetObjectClass();
    if (!cls)
        return kFxFailure;
    const OdDbHandle handle = action->GetHandle();
    PropertyList list{std::move(action)};
    ConvertObjectChanges(conversion, cls, handle, list, false, text);
    return kFxSuccess;
}
