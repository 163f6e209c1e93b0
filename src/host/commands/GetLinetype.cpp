#include "host/commands/GetLinetype.h"

namespace {

OdDbLinetypeTableRecordPtr findLineStyle(OdDbDatabase& database, const QString& name, bool layerAndBlock)
{
    const auto is = [&](const char* known) { return name.compare(QLatin1String(known), Qt::CaseInsensitive) == 0; };
    const bool byOther = is("ByLayer") || is("ByBlock");
    if (byOther && !layerAndBlock)
        return {};
    const auto table = odrxCast<OdDbSymbolTable>(database.getLinetypeTableId().openObject().get());
    auto record = odrxCast<OdDbLinetypeTableRecord>(table->getAt(name).openObject().get());
    if (!record && (byOther || is("Continuous"))) {
        record = odrxNew<OdDbLinetypeTableRecord>(OdDbLinetypeTableRecord::desc());
        record->setName(is("ByLayer") ? "ByLayer" : is("ByBlock") ? "ByBlock" : "Continuous");
        table->add(record);
    }
    return record;
}

std::vector<CFxString> lineStyleNames(OdDbDatabase& database, bool layerAndBlock)
{
    std::vector<CFxString> names{"Continuous"};
    if (layerAndBlock)
        names.insert(names.end(), {"ByLayer", "ByBlock"});
    for (const OdDbObjectId& id : database.objectIds())
        if (const auto record = odrxQuery<OdDbLinetypeTableRecord>(id.openObject().get()))
            names.emplace_back(record->getName());
    return names;
}

} // namespace

// NOLINTBEGIN(performance-unnecessary-value-param): the host declares it so.
std::int32_t GetLinetype(CFxCommandContext* context, OdDbLinetypeTableRecordPtr& record, bool several,
                         CFxString promptForSeveral, CFxString prompt, QString notFound, QString hint,
                         bool layerAndBlock)
// NOLINTEND(performance-unnecessary-value-param)
{
    CFxUserIO* const io = GetFxUserIO(context);
    if (!io)
        return kFxFailure;
    CFxString name;
    const CFxStatus status =
        io->GetString(several ? promptForSeveral : prompt, name, lineStyleNames(context->GetDatabase(), layerAndBlock));
    if (status != kFxSuccess)
        return status;
    if (name.isEmpty())
        return kFxNothing;
    record = findLineStyle(context->GetDatabase(), name, layerAndBlock);
    if (record)
        return kFxSuccess;
    io->ShowMessage(notFound.arg(name.toQString()));
    io->ShowMessage(hint);
    return kFxFailure;
}
