#include "dxf/Drawing.h"

#include <unordered_map>

namespace inkmacro::dxf {

namespace {

/// From this one on, all texts are UTF-8.
constexpr std::string_view kFirstOfUtf8 = "AC1021";

TextDecoder decoderOf(std::string_view version, std::string_view codePage)
{
    // Versions are six letters, which are in the order of their years.
    return version.size() == kFirstOfUtf8.size() && version >= kFirstOfUtf8 ? TextDecoder() : TextDecoder(codePage);
}

/// Of the hundreds of variables of a header.
bool isAskedFor(std::string_view variable)
{
    return variable == "$ACADVER" || variable == "$DWGCODEPAGE" || variable == "$HANDSEED";
}

bool isCalled(const QString& name, const char* known)
{
    // R12 writes a dollar.
    return name.size() > 1 && (name[0] == '*' || name[0] == '$') &&
           name.midRef(1).startsWith(QLatin1String(known), Qt::CaseInsensitive);
}

} // namespace

bool isModelSpace(const QString& block)
{
    return isCalled(block, "Model_Space");
}

bool isPaperSpace(const QString& block)
{
    return isCalled(block, "Paper_Space");
}

/// Goes through the groups of a file once.
class Drawing::Indexer
{
public:
    explicit Indexer(Drawing& drawing) : drawing_(drawing), groups_(drawing.file_, drawing.form_) {}

    void run()
    {
        Group group;
        for (std::size_t at = groups_.offset(); groups_.next(group); at = groups_.offset()) {
            if (group.code == 0) {
                close(at);
                if (group.word() == "EOF")
                    break;
                begin(group.word());
            } else {
                take(group);
            }
        }
        close(groups_.offset());
        drawing_.strayLines_ = groups_.strayLines();
    }

private:
    enum class Section
    {
        None,
        Unnamed, ///< its name comes next
        Header,
        Tables,
        Blocks,
        Entities,
        Objects,
        Other,
    };

    /// What is open ends at the group that stands there.
    void close(std::size_t at)
    {
        if (open_)
            open_->end = at;
        open_ = nullptr;
    }

    void begin(std::string_view kind)
    {
        if (kind == "SECTION") {
            drawing_.isValid_ = true;
            section_ = Section::Unnamed;
            inBlock_ = false;
            return;
        }
        if (kind == "ENDSEC") {
            section_ = Section::None;
            return;
        }
        switch (section_) {
        case Section::Tables:
            if (kind != "TABLE" && kind != "ENDTAB")
                open(drawing_.tableOf(kind), kind);
            break;
        case Section::Blocks:
            beginInBlocks(kind);
            break;
        case Section::Entities:
            openEntity(drawing_.entities_, kind);
            break;
        case Section::Objects:
            open(drawing_.objects_, kind);
            break;
        default:
            break;
        }
    }

    void beginInBlocks(std::string_view kind)
    {
        if (kind == "BLOCK") {
            Block& block = drawing_.blocks_.emplace_back();
            block.head.kind = kind;
            block.head.begin = groups_.offset();
            block.first = drawing_.blockEntities_.size();
            inBlock_ = true;
            parent_ = {};
            handleCode_ = 5;
            open_ = &block.head;
        } else if (kind == "ENDBLK") {
            inBlock_ = false;
        } else if (inBlock_) {
            openEntity(drawing_.blockEntities_, kind);
            ++drawing_.blocks_.back().count;
        }
    }

    Entity& open(std::vector<Entity>& entities, std::string_view kind)
    {
        Entity& entity = entities.emplace_back();
        entity.kind = kind;
        entity.begin = groups_.offset();
        handleCode_ = kind == "DIMSTYLE" ? 105 : 5;
        open_ = &entity;
        return entity;
    }

    void openEntity(std::vector<Entity>& entities, std::string_view kind)
    {
        const bool ends = kind == "SEQEND";
        const bool isPart =
            ends || (kind == "VERTEX" && parent_ == "POLYLINE") || (kind == "ATTRIB" && parent_ == "INSERT");
        if (!isPart)
            parent_ = kind;
        else if (ends)
            parent_ = {};
        Entity& entity = open(entities, kind);
        entity.isPart = isPart;
        hasLayer_ = false;
    }

    void take(const Group& group)
    {
        if (section_ == Section::Header) {
            if (group.code == 9)
                variable_ = group.word();
            else if (isAskedFor(variable_))
                drawing_.variables_.push_back({variable_, group});
        } else if (section_ == Section::Unnamed) {
            if (group.code == 2)
                section_ = sectionOf(group.word());
        } else if (open_) {
            takeOfEntity(group);
        }
    }

    void takeOfEntity(const Group& group)
    {
        if (group.code == handleCode_ && open_->handle == 0) {
            open_->handle = group.handle();
        } else if (group.code == 67) {
            open_->isOnSheet = group.integer() == 1;
        } else if (group.code == 8 && !hasLayer_) {
            hasLayer_ = true;
            if (group.bytes != lastLayer_) {
                lastLayer_ = group.bytes;
                drawing_.layersInUse_.insert(group.bytes);
            }
        }
    }

    static Section sectionOf(std::string_view name)
    {
        static constexpr std::pair<std::string_view, Section> sections[] = {
            {"HEADER", Section::Header},     {"TABLES", Section::Tables},   {"BLOCKS", Section::Blocks},
            {"ENTITIES", Section::Entities}, {"OBJECTS", Section::Objects},
        };
        for (const auto& [known, section] : sections)
            if (known == name)
                return section;
        return Section::Other;
    }

    Drawing& drawing_;
    GroupReader groups_;
    Section section_ = Section::None;
    std::string_view variable_;
    Entity* open_ = nullptr; ///< until the next one is put beside it
    int handleCode_ = 5;
    bool inBlock_ = false;
    bool hasLayer_ = false;
    std::string_view parent_; ///< kind of the entity to which parts may belong
    std::string_view lastLayer_;
};

Drawing::Drawing(std::string_view file) : file_(file), form_(fileForm(file))
{
    Indexer(*this).run();
    decoder_ = decoderOf(variable("$ACADVER", 1).word(), variable("$DWGCODEPAGE", 3).word());
    settleHandles();
    for (const Entity& object : objects_)
        if (object.kind == "MLINESTYLE")
            tableOf(object.kind).push_back(object);
    std::unordered_map<QString, quint64> records; // by their names in small letters
    for (const Entity& record : table("BLOCK_RECORD"))
        records.emplace(nameOf(record).toLower(), record.handle);
    for (Block& block : blocks_) {
        block.name = nameOf(block.head);
        const auto record = records.find(block.name.toLower());
        block.record = record != records.end() ? record->second : block.head.handle;
        // Some write there what is drawn in model space.
        if (isModelSpace(block.name)) {
            const std::span<const Entity> drawn = entities(block);
            entities_.insert(entities_.end(), drawn.begin(), drawn.end());
            block.count = 0;
        }
    }
}

std::vector<Entity>& Drawing::tableOf(std::string_view kind)
{
    for (Table& table : tables_)
        if (table.name == kind)
            return table.records;
    return tables_.back().records;
}

Group Drawing::variable(std::string_view name, int code) const
{
    for (auto variable = variables_.rbegin(); variable != variables_.rend(); ++variable)
        if (variable->name == name && variable->group.code == code)
            return variable->group;
    return {};
}

std::span<const Entity> Drawing::table(std::string_view name) const
{
    for (const Table& table : tables_)
        if (table.name == name)
            return table.records;
    return {};
}

QString Drawing::nameOf(const Entity& record)
{
    GroupReader groups = this->groups(record);
    Group group;
    while (groups.next(group))
        if (group.code == 2)
            return text(group).trimmed();
    return {};
}

void Drawing::settleHandles()
{
    std::vector<Entity*> all;
    for (Table& table : tables_)
        for (Entity& record : table.records)
            all.push_back(&record);
    for (Block& block : blocks_)
        all.push_back(&block.head);
    for (std::vector<Entity>* entities : {&blockEntities_, &entities_, &objects_})
        for (Entity& entity : *entities)
            all.push_back(&entity);

    std::vector<quint64> handles;
    handles.reserve(all.size());
    for (const Entity* entity : all)
        if (entity->handle != 0)
            handles.push_back(entity->handle);
    std::sort(handles.begin(), handles.end());
    std::unordered_set<quint64> doubled;
    for (std::size_t i = 1; i < handles.size(); ++i)
        if (handles[i] == handles[i - 1])
            doubled.insert(handles[i]);
    const quint64 seed = variable("$HANDSEED", 5).handle();
    nextHandle_ = std::max<quint64>(seed, handles.empty() ? 1 : handles.back() + 1);
    firstGiven_ = nextHandle_;
    taken_ = std::move(handles);

    // The first of several keeps its handle.
    std::unordered_set<quint64> given;
    for (Entity* entity : all) {
        if (entity->handle != 0 && (!doubled.contains(entity->handle) || given.insert(entity->handle).second))
            continue;
        entity->hadHandle = false;
        entity->handle = newHandle();
    }
}

bool Drawing::hasHandle(quint64 handle) const
{
    return (handle >= firstGiven_ && handle < nextHandle_) || std::binary_search(taken_.begin(), taken_.end(), handle);
}

quint64 Drawing::newHandle()
{
    // Behind the highest that there can be, those between are looked for.
    while (nextHandle_ == 0 || std::binary_search(taken_.begin(), taken_.end(), nextHandle_))
        ++nextHandle_;
    return nextHandle_++;
}

} // namespace inkmacro::dxf
