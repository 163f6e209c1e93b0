#pragma once

#include <QStringList>

namespace inkmacro::dxf {

struct ImportOptions
{
    QStringList layers;      ///< of the entities that come in; all for none
    bool onlyBlocks = false; ///< no entities but those of blocks
    double tolerance = 1e-6; ///< that another curve may be away, as a part of the curve's size
};

} // namespace inkmacro::dxf
