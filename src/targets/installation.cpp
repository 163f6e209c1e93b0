#include "targets/installation.h"

#include "host/kernel/CFxRegistry.h"

namespace inkmacro {

QString installedPath(const char* tail)
{
    QString directory = GetFxRegistry()->GetText("SOFTWARE\\Velmorand\\Inkwright", "InstallDir");
    if (directory.isEmpty())
        directory = QStringLiteral("C:\\Program Files\\Velmorand\\Inkwright\\");
    else
        directory.replace('\\', QLatin1String("\\\\"));
    // Only a directory that was found has its backslashes doubled; the tail never has.
    return directory + QLatin1String(tail);
}

} // namespace inkmacro
