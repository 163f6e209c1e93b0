// What actions are called in the notes of a conversion: as `inkmacro inspect` calls them.

#include "statements/losses.h"

#include "host/db/OdDbClasses.h"
#include "statements/actionKinds.h"

CFxString ObjectTitle(const OdRxClass* cls, const OdDbHandle& handle)
{
    const QString name = cls ? cls->name() : QStringLiteral("object");
    return CFxString(name + ' ' + handle.ascii());
}

static CFxString customTitle(std::int32_t kind)
{
    const auto index = static_cast<std::size_t>(kind);
    const auto& names = inkmacro::actionKindNames;
    const char* const name = kind >= 0 && index < names.size() ? names[index] : nullptr;
    return CFxString("custom " + (name ? QString(name) : QString::number(kind)));
}

static CFxString titleOf(const OdRxObject* action)
{
    if (const auto command = odrxQuery<CFxUserCommand>(action)) {
        const OdResBufPtr line = command->GetCommand();
        return CFxString("command " + (line ? QString(line->getString()) : QString()));
    }
    if (const auto added = odrxQuery<CFxObjectAdded>(action))
        return CFxString("added " + ObjectTitle(added->GetObjectClass(), added->GetHandle()).toQString());
    if (const auto modified = odrxQuery<CFxObjectModified>(action))
        return CFxString("modified " + ObjectTitle(modified->GetObjectClass(), modified->GetHandle()).toQString());
    if (const auto property = odrxQuery<CFxPropertyChanged>(action))
        return CFxString("property " + property->GetName().toQString());
    if (const auto variable = odrxQuery<CFxSysVarChanged>(action))
        return CFxString("sysvar " + variable->GetName().toQString());
    if (odrxQuery<CFxUserInteraction>(action))
        return "interaction";
    if (odrxQuery<CFxUserSelection>(action))
        return "selection";
    if (const auto custom = odrxQuery<CFxCustomAction>(action))
        return customTitle(custom->GetKind());
    return "action";
}

CFxString ActionTitle(const OdRxObject* action)
{
    try {
        return titleOf(action);
    } catch (const OdError&) {
        return "action";
    }
}
