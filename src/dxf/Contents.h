#pragma once

#include "dxf/Blocks.h"
#include "dxf/ImportOptions.h"

namespace inkmacro::dxf {

/// What of a drawing comes into a recording: its tables, its blocks, and its entities by the places in which they are
/// drawn.
class Contents
{
public:
    /// Entities that are drawn one after the other in one place.
    struct Run
    {
        std::span<const Entity> entities;
        Blocks::Made* block = nullptr; ///< that is made of them
        QString sheet;                 ///< on which they are; null for model space
    };

    /// `ids` is the recording's drawing. Both have to outlive this.
    Contents(Drawing& drawing, OdDbDatabase& ids, const ImportOptions& options);
    Contents(const Contents&) = delete;
    Contents& operator=(const Contents&) = delete;

    Drawing& drawing() { return drawing_; }
    Surroundings& around() { return around_; }
    Blocks& blocks() { return blocks_; }
    /// Blocks, each behind those that it needs, then model space, then the sheets.
    const std::vector<Run>& runs() const { return runs_; }

    /// Of the layers that were chosen, those that there are not.
    QStringList absentLayers() const;

    /// Calls `use` with each entity of the run that comes in, and its parts, from that one on until it says false.
    template<class Use>
    void each(const Run& run, std::size_t& index, Use use);
    template<class Use>
    void all(const Run& run, Use use)
    {
        std::size_t index = 0;
        each(run, index, [&](const Entity& entity, std::span<const Entity> parts) {
            use(entity, parts);
            return true;
        });
    }

    /// The record or entity as an object of that handle. Throws Lost.
    void read(const Kind& kind, const Entity& entity, std::span<const Entity> parts, OdDbHandle handle,
              DrawnObject& object);
    /// With the properties that all entities have. Throws Lost.
    void readEntity(const Entity& entity, std::span<const Entity> parts, OdDbHandle handle, DrawnObject& object);

private:
    void planRuns(const ImportOptions& options);
    void planSheets();
    bool comesIn(const Run& run, const Entity& entity) const;
    bool isOnChosenLayer(const Entity& entity);

    Drawing& drawing_;
    std::unordered_set<QString> layers_; ///< of the options, in small letters
    QStringList chosenLayers_;           ///< as they were written
    Surroundings around_;
    Blocks blocks_;
    EntityReader reader_;
    std::vector<Run> runs_;
};

template<class Use>
void Contents::each(const Run& run, std::size_t& index, Use use)
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
        around_.sheet = run.sheet;
        if (!use(entity, parts))
            return;
    }
}

} // namespace inkmacro::dxf
