#pragma once

#include "recordfile/Recording.h"

#include <QStringList>

namespace inkmacro {

/// Reads the recording, or prints what is wrong with it and gives false.
bool readOrComplain(const QString& path, Recording& recording);

/// The command `check`.
int checkRecordings(const QStringList& files);

} // namespace inkmacro
