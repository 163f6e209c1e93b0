#pragma once

#include <QString>

namespace inkmacro {

/// Gives the host the names of options that stand in the file, or prints what is wrong with it and gives false. The
/// file is a JSON object of system variables and enumerators. It must be a regular one, since each process of a call
/// reads it for itself.
bool readOptionNamesOrComplain(const QString& path);

} // namespace inkmacro
