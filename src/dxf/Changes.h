#pragma once

#include "dxf/ActionSource.h"
#include "dxf/Pairing.h"

namespace inkmacro::dxf {

/// Makes a recording of what changed between two drawings: it turns the older one into the newer one. The recording's
/// drawing is the older one.
class Changes : public ActionSource
{
public:
    /// `ids` is the recording's drawing. All three have to outlive this and its actions.
    Changes(Drawing& before, Drawing& after, OdDbDatabase& ids, const ImportOptions& options, ChangeForms forms);

    QByteArray head() override;

protected:
    bool advance() override;
    void recordBlock(const Blocks::Made& made, const std::vector<OdDbHandle>& members) override;

private:
    /// In the order in which they are recorded.
    enum class Stage
    {
        Tables,
        Blocks,
        TableChanges,
        EntityChanges,
        Removals,
        Entities,
        LayerRemovals,
        End,
    };

    struct ChangedRecord
    {
        OdRxClass* cls;
        OdDbHandle handle;
        std::vector<Property> changes;
    };
    struct NewRecord
    {
        const KindRow* table;
        const NamedObjects::Named* named;
    };
    struct ChangedEntity
    {
        Item before;
        Item after;
        OdRxClass* cls;
        const Contents::Run* run; ///< of the newer drawing, in which it lies
    };
    struct Removal
    {
        OdRxClass* cls;
        OdDbHandle handle;
    };
    struct NewItem
    {
        Item item;
        OdDbHandle handle;
    };
    /// What is drawn in one place.
    struct Drawn
    {
        const Contents::Run* run;
        std::vector<NewItem> items;
    };

    void pairTable(const KindRow& table);
    void rename(const KindRow& table, const NamedObjects::Named& before, const NamedObjects::Named& after);
    void compareTable(const KindRow& table);
    bool isMade(const KindRow& table, const NamedObjects::Named& named);
    void noteGoneRecord(const KindRow& table, const NamedObjects::Named& named);
    void compareRecords(const KindRow& table, const NamedObjects::Named& before, const NamedObjects::Named& after);
    void pairBlocks();
    void compareRuns();
    void compareBlock(const Contents::Run& run);
    void comparePlace(const Contents::Run* before, const Contents::Run* after);
    void noteGoneBlocks();
    void noteGone(const Item& item);
    void noteLayersOf(std::span<const Entity> entities);
    void noteSame(const Pair& pair);
    void noteChanged(const Pair& pair, const Contents::Run& run);
    void noteTouched(OdRxClass* cls, OdDbHandle handle);
    void note(const DrawnObject& object);
    void note(const Property& property);
    void removeLayers();
    void draw(const Contents::Run& run, const std::vector<Item>& items, std::vector<Drawn>& places);
    OdDbHandle handleFor(const Entity& entity);
    std::vector<Item> itemsOf(Contents& contents, const Contents::Run* run);

    bool isNothing() const;
    void tellTable(const KindRow& table, QByteArray& lines);
    bool drawNext(const std::vector<Drawn>& places);
    void recordTables();
    void recordChange();

    const ChangeForms forms_;
    const bool isWhole_; ///< nothing of the drawings was left out
    Contents before_;
    Contents after_;
    std::optional<Comparison> comparison_; ///< once the tables are paired
    std::optional<Pairing> pairing_;
    std::unordered_map<const Blocks::Made*, Blocks::Made*> blocks_; ///< the older ones of the newer ones

    std::vector<ChangedRecord> renames_;
    std::vector<NewRecord> newRecords_;
    std::vector<ChangedRecord> changedRecords_;
    std::vector<Drawn> newBlocks_;
    std::vector<ChangedEntity> changed_; ///< what differs is asked for again
    std::vector<Removal> removals_;
    std::vector<Drawn> newEntities_;
    std::vector<const NamedObjects::Named*> goneLayers_;
    std::vector<Removal> layerRemovals_;
    QByteArray drawing_; ///< lines of what is drawn and touched
    std::unordered_set<quint64> renamed_;
    std::unordered_set<quint64> named_;       ///< records that the recording speaks of
    std::unordered_set<QString> namedBlocks_; ///< in small letters
    std::unordered_set<QString> layersInUse_; ///< by what stays in the older drawing, in small letters

    Stage stage_ = Stage::Tables;
    std::size_t place_ = 0; ///< within the stage
    std::size_t item_ = 0;  ///< within the place
};

} // namespace inkmacro::dxf
