#pragma once

#include "dxf/Accounts.h"

#include <QByteArray>
#include <QStringList>

namespace inkmacro {

/// What became of the entities of a drawing file, as JSON.
QByteArray importReport(const dxf::Accounts& accounts);
/// The same for a person, a kind or a loss a line.
QStringList importLines(const dxf::Accounts& accounts);

} // namespace inkmacro
