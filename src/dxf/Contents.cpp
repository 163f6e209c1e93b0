#include "dxf/Contents.h"

namespace inkmacro::dxf {

Contents::Contents(Drawing& drawing, OdDbDatabase& ids, const ImportOptions& options)
    : drawing_(drawing), chosenLayers_(options.layers), around_(drawing, ids), blocks_(drawing), reader_(drawing)
{
    for (const QString& layer : options.layers)
        layers_.insert(layer.toLower());
    for (const std::string_view layer : drawing.layersInUse())
        around_.layers.addUnlisted(layer);
    if (!around_.layers.find(QStringLiteral("0")))
        around_.layers.addUnlisted("0");
    around_.insertable = [this](std::string_view name) -> const Insertable& { return blocks_.insertable(name); };
    around_.tolerance = options.tolerance;
    planRuns(options);
}

void Contents::planRuns(const ImportOptions& options)
{
    for (Blocks::Made* const made : blocks_.sorted())
        if (made->isOfUse())
            runs_.push_back({drawing_.entities(*made->block), made, {}});
    if (options.onlyBlocks)
        return;
    runs_.push_back({drawing_.entities(), nullptr, {}});
    planSheets();
}

void Contents::planSheets()
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
        name = name.trimmed();
        if (!name.isEmpty() && name.compare(QLatin1String("Model"), Qt::CaseInsensitive) != 0)
            sheets[block] = name;
    }
    const QString usual = QStringLiteral("Layout1");
    bool hasCurrent = false;
    std::unordered_set<QString> seen;
    for (const Block& block : drawing_.blocks()) {
        // Of a second one of the same name, Blocks tells.
        if (!isPaperSpace(block.name) || !seen.insert(block.name.toLower()).second)
            continue;
        const auto found = sheets.find(block.record);
        // What is on the current sheet stands among the entities of model space.
        const bool isCurrent = block.name.size() == QStringLiteral("*Paper_Space").size();
        hasCurrent = hasCurrent || isCurrent;
        runs_.push_back({isCurrent ? std::span<const Entity>(drawing_.entities()) : drawing_.entities(block), nullptr,
                         found == sheets.end() ? usual : found->second});
    }
    if (!hasCurrent)
        runs_.push_back({drawing_.entities(), nullptr, usual});
}

QStringList Contents::absentLayers() const
{
    QStringList absent;
    for (const QString& layer : chosenLayers_)
        if (!around_.layers.find(layer))
            absent.append(layer);
    return absent;
}

bool Contents::isOnChosenLayer(const Entity& entity)
{
    if (layers_.empty())
        return true;
    GroupReader groups = drawing_.groups(entity);
    Group group;
    while (groups.next(group))
        if (group.code == 8)
            return layers_.contains(drawing_.text(group).trimmed().toLower());
    return layers_.contains("0");
}

bool Contents::comesIn(const Run& run, const Entity& entity) const
{
    const bool isOfEntities = run.entities.data() == drawing_.entities().data();
    return !isOfEntities || entity.isOnSheet == !run.sheet.isNull();
}

void Contents::read(const Kind& kind, const Entity& entity, std::span<const Entity> parts, OdDbHandle handle,
                    DrawnObject& object)
{
    object.clear();
    object.cls = kind.cls;
    object.handle = handle;
    reader_.read(entity);
    kind.row->read(reader_, parts, around_, object);
    if (!object.isFinite())
        throw Lost{kNotFinite};
}

void Contents::readEntity(const Entity& entity, std::span<const Entity> parts, OdDbHandle handle, DrawnObject& object)
{
    const Kind* const kind = findKind(entity.kind);
    if (!kind)
        throw Lost{"no recording has its kind"};
    read(*kind, entity, parts, handle, object);
    takeGeneral(reader_, around_, object);
}

} // namespace inkmacro::dxf
