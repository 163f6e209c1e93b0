#pragma once

#include "host/kernel/CFxString.h"

#include <QHash>

#include <utility>

/// Texts that the application's installation left for the whole machine, by key and name. On Windows they are read
/// from HKEY_LOCAL_MACHINE in its 64-bit view; elsewhere there are only those that were set.
class INKHOST_EXPORT CFxRegistry
{
public:
    /// Empty when key or value is missing.
    CFxString GetText(const CFxString& key, const CFxString& name) const;
    /// For this process alone; goes before what the machine has.
    void SetText(const CFxString& key, const CFxString& name, const CFxString& value);

private:
    QHash<std::pair<QString, QString>, QString> values_;
};

/// The one registry of the process.
INKHOST_EXPORT CFxRegistry* GetFxRegistry();
