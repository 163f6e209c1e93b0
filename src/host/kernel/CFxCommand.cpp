#include "host/kernel/CFxCommand.h"

namespace {

QString bare(const QString& name)
{
    return name.startsWith('_') ? name.mid(1) : name;
}

} // namespace

ODRX_DEFINE_DESC(OdEdCommand, OdRxObject)
ODRX_DEFINE_DESC(CFxCommand, OdEdCommand)

OdDbBlockTableRecordPtr GetActiveBlockTableRecord(CFxCommandContext* context)
{
    OdDbDatabase& database = context->GetDatabase();
    const OdString modelSpace = "*Model_Space";
    OdDbObjectPtr block = database.getActiveLayoutBTRId().openObject();
    if (!block)
        block =
            odrxCast<OdDbSymbolTable>(database.getBlockTableId().openObject().get())->getAt(modelSpace).openObject();
    return block ? odrxCast<OdDbBlockTableRecord>(block.get()) : OdDbBlockTableRecord::createLayoutBlock(modelSpace);
}

CFxCommandPtr CFxCommandStack::LookupCommand(const CFxString& name) const
{
    for (const CFxCommandPtr& command : commands_)
        for (const QString& known : {command->globalName(), command->localName()})
            if (bare(known).compare(bare(name), Qt::CaseInsensitive) == 0)
                return command;
    return {};
}

CFxCommandStack* GetFxCommandStack()
{
    static CFxCommandStack stack;
    return &stack;
}
