// The three kinds of object action that the driver hands over.

#include "module/CFxConverterIWAPIImpl.h"
#include "objects/CFxConverterIWAPIObject.h"
#include "objects/targets/statements.h"
#include "statements/losses.h"

static constexpr char kForeignClass[] = "objects of its class have no statements";

CFxConverterIWAPIObject::CFxConverterIWAPIObject(CFxConverterIWAPIImpl& driver) : driver(driver), writer(driver.writer)
{
}

std::int32_t CFxConverterIWAPIObject::ConvertObjectAdded(OdSmartPtr<CFxObjectAdded> action, QString& text)
{
    if (!action)
        return kFxFailure;
    const OdRxClass* const cls = action->GetObjectClass();
    if (!cls)
        return kFxFailure;
    if (!IsSupportedClass(cls)) {
        NoteLoss(ActionTitle(action.get()), kForeignClass);
        return kFxSuccess;
    }

    PropertyList read = action->GetProperties();
    PropertyList rest = action->GetExtraProperties();
    QString statements;
    if (ConvertAddedObject(cls, action->GetHandle(), read, rest, statements) != kFxSuccess)
        return kFxFailure;
    text += statements;
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIObject::ConvertObjectModified(OdSmartPtr<CFxObjectModified> action, QString& text)
{
    if (!action)
        return kFxFailure;
    const OdRxClass* const cls = action->GetObjectClass();
    if (!cls)
        return kFxFailure;
    if (!IsSupportedClass(cls)) {
        NoteLoss(ActionTitle(action.get()), kForeignClass);
        return kFxSuccess;
    }
    PropertyList list = action->GetProperties();
    if (list.empty())
        return kFxSuccess;

    const QString comment = EmitObjectModifiedComment(writer, cls->name());
    QString statements;
    if (ConvertModifiedObject(cls, action->GetHandle(), list, statements) != kFxSuccess)
        return kFxFailure;
    if (!statements.isEmpty())
        text += comment + statements;
    return kFxSuccess;
}

/// A property that stands alone is a list of one record, which brings its class and handle along.
std::int32_t CFxConverterIWAPIObject::ConvertPropertyChanged(CFxPropertyChangedPtr action, QString& text)
{
    if (!action)
        return kFxFailure;
    const OdRxClass* const cls = action->GetObjectClass();
    if (!cls)
        return kFxFailure;
    const OdDbHandle handle = action->GetHandle();
    PropertyList list{std::move(action)};
    return ConvertObjectChanges(cls, handle, list, false, text) == kFxSuccess ? kFxSuccess : kFxFailure;
}

std::int32_t CFxConverterIWAPIObject::ConvertModifiedObject(const OdRxClass* cls, OdDbHandle handle, PropertyList& list,
                                                            QString& text)
{
    if (!cls)
        return kFxFailure;
    return ConvertObjectChanges(cls, handle, list, false, text) == kFxSuccess ? kFxSuccess : kFxFailure;
}
