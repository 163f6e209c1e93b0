#pragma once

#include <QString>
#include <QStringList>

namespace inkmacro {

/// The shells that can complete a command line of this program.
QStringList completedShells();

/// What one of these shells has to read for it.
QString completionFor(const QString& shell);

} // namespace inkmacro
