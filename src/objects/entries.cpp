// The three kinds of object action that the driver hands over.

#include "objects/entries.h"

#include "objects/classTable.h"
#include "objects/targets/statements.h"
#include "statements/losses.h"

static constexpr char kForeignClass[] = "objects of its class have no statements";

std::int32_t ConvertObjectAdded(Conversion& conversion, const CFxObjectAdded& action, Statement& text)
{
    const OdRxClass* const cls = action.GetObjectClass();
    if (!cls)
        return kFxFailure;
    if (!IsSupportedClass(cls)) {
        NoteLoss(ActionTitle(&action), kForeignClass);
        return kFxSuccess;
    }

    PropertyList read = action.GetProperties();
    PropertyList rest = action.GetExtraProperties();
    Statement statements;
    if (ConvertAddedObject(conversion, cls, action.GetHandle(), read, rest, statements) != kFxSuccess)
        return kFxFailure;
    text += statements;
    return kFxSuccess;
}

std::int32_t ConvertObjectModified(Conversion& conversion, const CFxObjectModified& action, Statement& text)
{
    const OdRxClass* const cls = action.GetObjectClass();
    if (!cls)
        return kFxFailure;
    if (!IsSupportedClass(cls)) {
        NoteLoss(ActionTitle(&action), kForeignClass);
        return kFxSuccess;
    }
    PropertyList list = action.GetProperties();
    if (list.empty())
        return kFxSuccess;

    const Statement comment = EmitObjectModifiedComment(conversion.writer, cls->name());
    Statement statements;
    if (ConvertObjectChanges(conversion, cls, action.GetHandle(), list, false, statements) != kFxSuccess)
        return kFxFailure;
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
    return ConvertObjectChanges(conversion, cls, handle, list, false, text);
}
