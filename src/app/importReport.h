#pragma once

#include "dxf/Accounts.h"

#include <QByteArray>
#include <QStringList>

namespace inkmacro {

/// What became of the entities of a drawing file, as the members of a JSON object.
QByteArray importMembers(const dxf::Accounts& accounts);
/// The same for a person, a kind or a loss a line.
QStringList importLines(const dxf::Accounts& accounts);
/// In one line, what did not come in as it is in the file; empty when all did.
QString importText(const dxf::Accounts& accounts);

} // namespace inkmacro
