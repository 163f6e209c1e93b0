#include "dxf/Import.h"

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

Import::Import(Drawing& drawing, OdDbDatabase& ids, ImportOptions options)
    : drawing_(drawing), options_(std::move(options)), around_(drawing, ids), blocks_(drawing), reader_(drawing)
{
    for (const QString& layer : options_.layers)
        layers_.insert(layer.toLower());
    for (const std::string_view layer : drawing.layersInUse())
        around_.layers.addUnlisted(layer);
    if (!around_.layers.find(QStringLiteral("0")))
        around_.layers.addUnlisted("0");
    around_.insertable = [this](std::string_view name) -> const Insertable& { return blocks_.insertable(name); };
    around_.tolerance = options_.tolerance;
    planRuns();
}

void Import::planRuns()
{
    for (Blocks::Made* const made : blocks_.sorted())
        if (made->isOfUse())
            runs_.push_back({drawing_.entities(*made->block), made, {}});
    if (options_.onlyBlocks)
        return;
    runs_.push_back({drawing_.entities(), nullptr, {}});
    planSheets();
}

void Import::planSheets()
{
    // By the block that holds what is on them.
    std::unordered_map<quint64, QString> sheets;
    EntityReader reader(drawing_);
    for (const Entity& object : drawing_.objects()) {
        if (object.kind != "LAYOUT")
            continue;
        reader.read(object);
        // The first name and the first owner are those of the plot settings.
        QString name;
        quint64 block = 0;
        for (const Group& group : reader.groups()) {
            if (group.code == 1)
                name = drawing_.text(group);
            if (group.code == 330)
                block = group.handle();
        }
        sheets[block] = name;
    }
    for (const Block& block : drawing_.blocks()) {
        if (!block.name.startsWith("*Paper_Space", Qt::CaseInsensitive))
            continue;
        const auto found = sheets.find(block.record);
        const QString name = found == sheets.end() ? QStringLiteral("Layout1") : found->second;
        // What is on the current sheet stands among the entities of model space.
        const bool isCurrent = block.name.size() == QStringLiteral("*Paper_Space").size();
        runs_.push_back(
            {isCurrent ? std::span<const Entity>(drawing_.entities()) : drawing_.entities(block), nullptr, name});
    }
}

bool Import::isOnChosenLayer(const Entity& entity)
{
    if (layers_.empty())
        return true;
    GroupReader groups = drawing_.groups(entity);
    Group group;
    while (groups.next(group))
        if (group.code == 8)
            return layers_.contains(drawing_.text(group).toLower());
    return layers_.contains("0");
}

bool Import::comesIn(const Run& run, const Entity& entity) const
{
    const bool isOfEntities = run.entities.data() == drawing_.entities().data();
    return !isOfEntities || entity.isOnSheet == !run.sheet.isNull();
}

template<class Use>
void Import::each(const Run& run, std::size_t& index, Use use)
{
    while (index < run.entities.size()) {
        const Entity& entity = run.entities[index];
        std::size_t behind = index + 1;
        while (behind < run.entities.size() && run.entities[behind].isPart)
            ++behind;
        const std::span<const Entity> parts = run.entities.subspan(index + 1, behind - index - 1);
        index = behind;
        if (!comesIn(run, entity) || (!run.block && !isOnChosenLayer(entity)))
            continue;
        if (!use(entity, parts))
            return;
    }
}

QByteArray Import::head()
{
    around_.isForDrawing = true;
    QByteArray lines(kHeader.data(), kHeader.size());
    lines += '\n';
    for (const KindRow& table : tableKinds()) {
        const Kind kind{&table, oddbClassByName(table.className)};
        for (const Entity& record : drawing_.table(table.kind)) {
            try {
                read(kind, record, {});
                lines += object_.drawing;
            } catch (const Lost&) {
                // Told with the actions.
            }
        }
    }
    for (const NamedObjects::Named& layer : around_.layers.all())
        if (!layer.record)
            DrawingLine(lines, "AcDbLayerTableRecord", OdDbHandle(layer.handle)).with("name", layer.name);
    for (const Run& run : runs_)
        if (run.block)
            tellBlock(*run.block, lines);
    for (const Run& run : runs_) {
        std::size_t index = 0;
        each(run, index, [&](const Entity& entity, std::span<const Entity> parts) {
            const Kind* const kind = findKind(entity.kind);
            if (kind && kind->row->tellsDrawing) {
                try {
                    read(*kind, entity, parts);
                    lines += object_.drawing;
                } catch (const Lost&) {
                    // Told with the actions.
                }
            }
            return true;
        });
    }
    around_.madeHandles.beginAgain();
    around_.isForDrawing = false;
    return lines;
}

void Import::tellBlock(const Blocks::Made& made, QByteArray& lines)
{
    DrawingLine line(lines, "AcDbBlockTableRecord", OdDbHandle(made.block->record));
    line.with("name", made.insertable.name).with("origin", made.base);
    if (!made.description.isEmpty())
        line.with("comments", made.description);
    if (!made.path.isNull())
        line.with("isFromExternalReference", true).with("pathName", made.path);
}

OdRxObjectPtr Import::next()
{
    while (recorder_.isEmpty()) {
        if (!std::exchange(hasTables_, true)) {
            recordTables();
            continue;
        }
        if (run_ == runs_.size())
            return {};
        const Run& run = runs_[run_];
        bool isAtEnd = true;
        each(run, entity_, [&](const Entity& entity, std::span<const Entity> parts) {
            importEntity(run, entity, parts);
            isAtEnd = false;
            return false;
        });
        if (isAtEnd) {
            endRun(run);
            ++run_;
            entity_ = 0;
            hasBegun_ = false;
        }
    }
    return recorder_.take();
}

void Import::recordTables()
{
    for (const KindRow& table : tableKinds()) {
        const Kind kind{&table, oddbClassByName(table.className)};
        for (const Entity& record : drawing_.table(table.kind)) {
            try {
                read(kind, record, {});
                if (!object_.properties.empty())
                    recorder_.add(object_.cls, object_.handle, object_.properties);
                recorder_.change(object_.cls, object_.handle, object_.changes);
                leaveOut(record);
            } catch (const Lost& lost) {
                accounts_.leaveOut(record.kind, lost.reason);
            }
        }
    }
    for (const NamedObjects::Named& layer : around_.layers.all())
        if (!layer.record && layer.name != "0")
            recorder_.add(oddbClassByName("AcDbLayerTableRecord"), OdDbHandle(layer.handle),
                          {{"Name", CFxString(layer.name)}});
}

void Import::beginRun(const Run& run)
{
    if (run.sheet.isNull())
        return;
    // Without the sheet its entities would be drawn in model space.
    if (!isThereAnyway(run.sheet))
        recorder_.act(kSheetAction, {{CFxString("New")}, {CFxString(run.sheet)}});
    recorder_.act(kSheetAction, {{CFxString(run.sheet)}});
}

void Import::endRun(const Run& run)
{
    if (!run.sheet.isNull() && hasBegun_)
        recorder_.act(kSheetAction, {{CFxString(kModel)}});
    if (!run.block)
        return;
    run.block->isMade = true;
    offset_ = run.block->block->head.begin;
    // What another file holds is not drawn here.
    if (run.block->path.isNull()) {
        std::vector<Property> properties{{"Name", CFxString(run.block->insertable.name)},
                                         {"Objects", handleList(members_)}};
        if (!run.block->description.isEmpty())
            properties.push_back({"Description", CFxString(run.block->description)});
        recorder_.add(oddbClassByName("AcDbBlockTableRecord"), OdDbHandle(run.block->block->record), properties);
    }
    members_.clear();
}

void Import::read(const Kind& kind, const Entity& entity, std::span<const Entity> parts)
{
    object_.clear();
    object_.cls = kind.cls;
    object_.handle = OdDbHandle(entity.handle);
    reader_.read(entity);
    kind.row->read(reader_, parts, around_, object_);
}

void Import::importEntity(const Run& run, const Entity& entity, std::span<const Entity> parts)
{
    around_.sheet = run.sheet;
    offset_ = entity.begin;
    const Kind* const kind = findKind(entity.kind);
    try {
        if (!kind)
            throw Lost{"no recording has its kind"};
        read(*kind, entity, parts);
        takeGeneral(reader_, around_, object_);
        if (!std::exchange(hasBegun_, true))
            beginRun(run);
        record(entity);
    } catch (const Lost& lost) {
        accounts_.lose(entity.kind, lost.reason);
        for (const Entity& part : parts)
            if (part.kind == "ATTRIB")
                accounts_.lose(part.kind, "its reference is lost");
    }
}

void Import::leaveOut(const Entity& entity)
{
    for (const char* const what : object_.untold)
        accounts_.leaveOut(entity.kind, what);
}

void Import::record(const Entity& entity)
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
        object_.handle = OdDbHandle(drawing_.newHandle());
        object_.moveTo(place);
        recorder_.draw(object_);
        members_.push_back(object_.handle);
    }
}

} // namespace inkmacro::dxf
