#pragma once

#include "dxf/ActionSource.h"

namespace inkmacro::dxf {

/// Makes a recording of a drawing, as if a user had drawn it: its styles, its blocks, the entities of model space, and
/// then those of each sheet.
class Import : public ActionSource
{
public:
    /// `ids` is the recording's drawing. Both have to outlive this and its actions.
    Import(Drawing& drawing, OdDbDatabase& ids, const ImportOptions& options) : contents_(drawing, ids, options) {}

    QByteArray head() override;

protected:
    bool advance() override;

private:
    void recordTables();

    Contents contents_;
    std::size_t run_ = 0;
    std::size_t entity_ = 0; ///< of the run; the one that comes next
    bool hasTables_ = false;
    bool isAtEnd_ = false;
};

} // namespace inkmacro::dxf
