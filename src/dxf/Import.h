#pragma once

#include "dxf/Accounts.h"
#include "dxf/Blocks.h"
#include "dxf/ImportOptions.h"
#include "dxf/Recorder.h"

namespace inkmacro::dxf {

/// Makes a recording of a drawing, as if a user had drawn it: its styles, its blocks, the entities of model space, and
/// then those of each sheet. Actions come one by one, so that nothing is kept of those that were given.
class Import
{
public:
    /// `ids` is the recording's drawing. Both have to outlive this and its actions.
    Import(Drawing& drawing, OdDbDatabase& ids, ImportOptions options);

    /// The lines of a recording file that stand before the actions. To be asked for first, and once.
    QByteArray head();
    /// The next action; null behind the last.
    OdRxObjectPtr next();
    /// Where in the file the entity begins that the last action is of.
    std::size_t offset() const { return offset_; }

    const Accounts& accounts() const { return accounts_; }

private:
    /// Entities that are drawn one after the other in one place.
    struct Run
    {
        std::span<const Entity> entities;
        Blocks::Made* block = nullptr; ///< that is made of them
        QString sheet;                 ///< on which they are; null for model space
    };

    void planRuns();
    void planSheets();
    bool comesIn(const Run& run, const Entity& entity) const;
    /// Calls `use` with each entity of the run that comes in, and its parts, from that one on until it says false.
    template<class Use>
    void each(const Run& run, std::size_t& index, Use use);

    void tellBlock(const Blocks::Made& made, QByteArray& lines);
    void recordTables();
    void beginRun(const Run& run);
    void endRun(const Run& run);
    void importEntity(const Run& run, const Entity& entity, std::span<const Entity> parts);
    /// Into `object_`; throws Lost.
    void read(const Kind& kind, const Entity& entity, std::span<const Entity> parts);
    void record(const Entity& entity);
    void leaveOut(const Entity& entity);
    bool isOnChosenLayer(const Entity& entity);

    Drawing& drawing_;
    ImportOptions options_;
    std::unordered_set<QString> layers_; ///< of the options, in small letters
    Surroundings around_;
    Blocks blocks_;
    Accounts accounts_;
    EntityReader reader_;
    DrawnObject object_;
    Recorder recorder_;

    std::vector<Run> runs_;
    std::size_t run_ = 0;
    std::size_t entity_ = 0; ///< of the run; the one that comes next
    bool hasBegun_ = false;  ///< the run
    bool hasTables_ = false;
    std::vector<OdDbHandle> members_; ///< of the block that is being made
    std::size_t offset_ = 0;
};

} // namespace inkmacro::dxf
