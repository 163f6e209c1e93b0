#pragma once

#include "dxf/Accounts.h"
#include "dxf/Contents.h"
#include "dxf/Recorder.h"

namespace inkmacro::dxf {

/// Makes a recording of drawings. Actions come one by one, so that nothing is kept of those that were given.
class ActionSource
{
public:
    virtual ~ActionSource() = default;

    /// The lines of a recording file that stand before the actions. To be asked for first, and once.
    virtual QByteArray head() = 0;
    /// The next action; null behind the last.
    OdRxObjectPtr next();
    /// Where in the file the entity begins that the last action is of.
    std::size_t offset() const { return offset_; }

    const Accounts& accounts() const { return accounts_; }

protected:
    static QByteArray headerLine();
    static void tellBlock(const Blocks::Made& made, QByteArray& lines);
    /// The lines that records and entities of such kinds have there. What is lost is told with the actions.
    void tellRecord(Contents& contents, const KindRow& table, const Entity& record, OdDbHandle handle,
                    QByteArray& lines);
    void tellEntity(Contents& contents, const Entity& entity, std::span<const Entity> parts, OdDbHandle handle,
                    QByteArray& lines);

    /// Records more; false when there is no more.
    virtual bool advance() = 0;
    /// What is odd about the file as a whole, once all of it has been read.
    void remarkOn(Contents& contents);
    void endRun(const Contents::Run& run);
    void importRecord(Contents& contents, const KindRow& table, const Entity& record, OdDbHandle handle);
    void importEntity(Contents& contents, const Contents::Run& run, const Entity& entity, std::span<const Entity> parts,
                      OdDbHandle handle);
    void lose(const Entity& entity, std::span<const Entity> parts, const Lost& lost);
    /// What makes a block, of all that was drawn since the one before.
    virtual void recordBlock(const Blocks::Made& made, const std::vector<OdDbHandle>& members);

    Accounts accounts_;
    DrawnObject object_;
    Recorder recorder_;
    std::size_t offset_ = 0;

private:
    void tell(Contents& contents, const Kind& kind, const Entity& entity, std::span<const Entity> parts,
              OdDbHandle handle, QByteArray& lines);
    void beginRun(const Contents::Run& run);
    void draw(Drawing& drawing, const Entity& entity);
    void leaveOut(const Entity& entity);

    const Contents::Run* begun_ = nullptr; ///< of which something has been drawn
    std::vector<OdDbHandle> members_;      ///< of the block that is being made
};

} // namespace inkmacro::dxf
