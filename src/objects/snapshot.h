#pragma once

#include "host/kernel/CFxActions.h"

/// Appends the records of one object, and notes the current layout if the recording has just begun.
void TakeSnapshot(const OdDbObject* object, std::vector<CFxVariantCollectionElement>& target);
