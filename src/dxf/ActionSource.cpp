#include "dxf/ActionSource.h"

#include "dxf/DrawingLine.h"
#include "host/db/OdDbClassMap.h"

namespace inkmacro::dxf {

namespace {

constexpr std::string_view kHeader = R"({"recording":{"version":1,"sheet":{"name":"Model","model":true}}})";

const QString kModel = QStringLiteral("Model");

/// A sheet that every new drawing has.
bool isThereAnyway(const QString& sheet)
{
    return sheet == QLatin1String("Layout1") || sheet == QLatin1String("Layout2");
}

} // namespace

QByteArray ActionSource::headerLine()
{
    QByteArray line(kHeader.data(), kHeader.size());
    line += '\n';
    return line;
}

void ActionSource::tellBlock(const Blocks::Made& made, QByteArray& lines)
{
    DrawingLine line(lines, "AcDbBlockTableRecord", OdDbHandle(made.handle));
    line.with("name", made.insertable.name).with("origin", made.base);
    if (!made.description.isEmpty())
        line.with("comments", made.description);
    if (!made.path.isNull())
        line.with("isFromExternalReference", true).with("pathName", made.path);
}

void ActionSource::tell(Contents& contents, const Kind& kind, const Entity& entity, std::span<const Entity> parts,
                        OdDbHandle handle, QByteArray& lines)
{
    contents.around().isForDrawing = true;
    try {
        contents.read(kind, entity, parts, handle, object_);
        lines += object_.drawing;
    } catch (const Lost&) {
        // Told with the actions.
    }
    contents.around().isForDrawing = false;
}

void ActionSource::tellRecord(Contents& contents, const KindRow& table, const Entity& record, OdDbHandle handle,
                              QByteArray& lines)
{
    tell(contents, {&table, oddbClassByName(table.className)}, record, {}, handle, lines);
}

void ActionSource::tellEntity(Contents& contents, const Entity& entity, std::span<const Entity> parts,
                              OdDbHandle handle, QByteArray& lines)
{
    if (const Kind* const kind = findKind(entity.kind); kind && kind->row->tellsDrawing)
        tell(contents, *kind, entity, parts, handle, lines);
}

OdRxObjectPtr ActionSource::next()
{
    while (recorder_.isEmpty())
        if (!advance())
            return {};
    return recorder_.take();
}

void ActionSource::remarkOn(Contents& contents)
{
    const auto remark = [this](const QString& text) { accounts_.remarks.push_back(text.toStdString()); };
    const Drawing& drawing = contents.drawing();
    if (!drawing.decoder().isKnown())
        remark("nobody knows its code page, so that its texts are read as ANSI_1252");
    if (const qint64 bytes = drawing.decoder().undecodable())
        remark(QString("%1 of its bytes are no text in its code page").arg(bytes));
    if (const qint64 lines = drawing.strayLines())
        remark(QString("%1 of its lines belong to nothing").arg(lines));
    for (const QString& layer : contents.absentLayers())
        remark(QString("it has no layer %1").arg(layer));
}

void ActionSource::beginRun(const Contents::Run& run)
{
    if (run.sheet.isNull())
        return;
    // Without the sheet its entities would be drawn in model space.
    if (!isThereAnyway(run.sheet))
        recorder_.act(kSheetAction, {{CFxString("New")}, {CFxString(run.sheet)}});
    recorder_.act(kSheetAction, {{CFxString(run.sheet)}});
}

void ActionSource::endRun(const Contents::Run& run)
{
    if (!run.sheet.isNull() && begun_ == &run)
        recorder_.act(kSheetAction, {{CFxString(kModel)}});
    if (run.block) {
        run.block->isMade = true;
        offset_ = run.block->block->head.begin;
        // What another file holds is not drawn here.
        if (run.block->path.isNull())
            recordBlock(*run.block, members_);
    }
    members_.clear();
}

void ActionSource::recordBlock(const Blocks::Made& made, const std::vector<OdDbHandle>& members)
{
    std::vector<Property> properties{{"Name", CFxString(made.insertable.name)}, {"Objects", handleList(members)}};
    if (!made.description.isEmpty())
        properties.push_back({"Description", CFxString(made.description)});
    recorder_.add(oddbClassByName("AcDbBlockTableRecord"), OdDbHandle(made.handle), properties);
}

void ActionSource::importRecord(Contents& contents, const KindRow& table, const Entity& record, OdDbHandle handle)
{
    offset_ = record.begin;
    try {
        contents.read({&table, oddbClassByName(table.className)}, record, {}, handle, object_);
        if (!object_.properties.empty())
            recorder_.add(object_.cls, object_.handle, object_.properties);
        recorder_.change(object_.cls, object_.handle, object_.changes);
        leaveOut(record);
    } catch (const Lost& lost) {
        accounts_.leaveOut(record.kind, lost.reason);
    }
}

void ActionSource::importEntity(Contents& contents, const Contents::Run& run, const Entity& entity,
                                std::span<const Entity> parts, OdDbHandle handle)
{
    offset_ = entity.begin;
    try {
        contents.readEntity(entity, parts, handle, object_);
        if (std::exchange(begun_, &run) != &run)
            beginRun(run);
        draw(contents.drawing(), entity);
    } catch (const Lost& lost) {
        lose(entity, parts, lost);
    }
}

void ActionSource::lose(const Entity& entity, std::span<const Entity> parts, const Lost& lost)
{
    accounts_.lose(entity.kind, lost.reason);
    for (const Entity& part : parts)
        if (part.kind == "ATTRIB")
            accounts_.lose(part.kind, "its reference is lost");
}

void ActionSource::leaveOut(const Entity& entity)
{
    for (const char* const what : object_.untold)
        accounts_.leaveOut(entity.kind, what);
}

void ActionSource::draw(Drawing& drawing, const Entity& entity)
{
    recorder_.draw(object_);
    members_.push_back(object_.handle);
    const std::string kind(entity.kind);
    if (object_.deviation) {
        Accounts::Approximated& approximated = accounts_.approximated[kind];
        ++approximated.count;
        approximated.deviation = std::max(approximated.deviation, *object_.deviation);
    } else {
        ++accounts_.imported[kind];
    }
    for (const Part& part : object_.parts) {
        if (part.lost)
            accounts_.lose(part.kind, part.lost);
        else
            ++accounts_.imported[part.kind];
    }
    leaveOut(entity);
    for (const OdGePoint3d& place : object_.repeats) {
        object_.handle = OdDbHandle(drawing.newHandle());
        object_.moveTo(place);
        recorder_.draw(object_);
        members_.push_back(object_.handle);
    }
}

} // namespace inkmacro::dxf
