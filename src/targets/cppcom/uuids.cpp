#include "targets/cppcom/uuids.h"

#include "host/kernel/CFxServices.h"
#include "statements/hostSettings.h"

#include <QUuid>

namespace inkmacro {

QString newUuid(const QString& role)
{
    if (GetFxSystemServices()->GetInt16(kSameIdentifiers) == 0)
        return QUuid::createUuid().toString();
    static const QUuid roles("{6c7d0f0e-5f0b-4f0a-9a53-0c1f6f1e2b7d}");
    return QUuid::createUuidV5(roles, role).toString();
}

} // namespace inkmacro
