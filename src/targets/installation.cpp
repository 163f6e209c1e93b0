#include "targets/installation.h"

#include "host/kernel/CFxRegistry.h"
#include "statements/hostSettings.h"

namespace inkmacro {

QString installedPath(const char* tail)
{
    QString directory = GetFxRegistry()->GetText(kInstallationKey, kInstallDir);
    if (directory.isEmpty())
        directory = QStringLiteral("C:\\Program Files\\Velmorand\\Inkwright\\");
    else
        directory.replace('\\', QLatin1String("\\\\"));
    // Only a directory that was found has its backslashes doubled; the tail never has.
    return directory + QLatin1String(tail);
}

} // namespace inkmacro
