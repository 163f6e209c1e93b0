#include "dxf/Import.h"

#include "dxf/DrawingLine.h"
#include "host/db/OdDbClassMap.h"

namespace inkmacro::dxf {

namespace {

/// Calls `use` with the records of a table that have a name, and whether the record is one of the drawing's own: not
/// the second one of its name, and not one of an external reference.
template<class Use>
void eachRecord(Drawing& drawing, const KindRow& table, Use use)
{
    std::unordered_set<QString> names;
    for (const Entity& record : drawing.table(table.kind)) {
        const QString name = drawing.nameOf(record);
        if (!name.isEmpty() && names.insert(name.toLower()).second)
            use(record, !isOfOtherFile(name));
    }
}

} // namespace

QByteArray Import::head()
{
    QByteArray lines = headerLine();
    for (const KindRow& table : tableKinds())
        eachRecord(contents_.drawing(), table, [&](const Entity& record, bool) {
            tellRecord(contents_, table, record, OdDbHandle(record.handle), lines);
        });
    for (const NamedObjects::Named& layer : contents_.around().layers.all())
        if (!layer.record)
            DrawingLine(lines, "AcDbLayerTableRecord", OdDbHandle(layer.handle)).with("name", layer.name);
    for (const Contents::Run& run : contents_.runs())
        if (run.block)
            tellBlock(*run.block, lines);
    for (const Contents::Run& run : contents_.runs())
        contents_.all(run, [&](const Entity& entity, std::span<const Entity> parts) {
            tellEntity(contents_, entity, parts, OdDbHandle(entity.handle), lines);
        });
    contents_.around().madeHandles.beginAgain();
    return lines;
}

bool Import::advance()
{
    if (!std::exchange(hasTables_, true)) {
        recordTables();
        return true;
    }
    if (run_ == contents_.runs().size()) {
        if (!std::exchange(isAtEnd_, true))
            remarkOn(contents_);
        return false;
    }
    const Contents::Run& run = contents_.runs()[run_];
    bool isAtEnd = true;
    contents_.each(run, entity_, [&](const Entity& entity, std::span<const Entity> parts) {
        importEntity(contents_, run, entity, parts, OdDbHandle(entity.handle));
        isAtEnd = false;
        return false;
    });
    if (isAtEnd) {
        endRun(run);
        ++run_;
        entity_ = 0;
    }
    return true;
}

void Import::recordTables()
{
    for (const KindRow& table : tableKinds())
        eachRecord(contents_.drawing(), table, [&](const Entity& record, bool isOwn) {
            if (isOwn)
                importRecord(contents_, table, record, OdDbHandle(record.handle));
            else
                accounts_.leaveOut(record.kind, "being of an external reference");
        });
    for (const Blocks::Left& left : contents_.blocks().left())
        for (const Entity& entity : left.entities)
            if (entity.kind != "VERTEX" && entity.kind != "SEQEND")
                accounts_.lose(entity.kind, left.reason);
    for (const NamedObjects::Named& layer : contents_.around().layers.all())
        if (!layer.record && layer.name != "0")
            recorder_.add(oddbClassByName("AcDbLayerTableRecord"), OdDbHandle(layer.handle),
                          {{"Name", CFxString(layer.name)}});
}

} // namespace inkmacro::dxf
