#pragma once

#include "host/kernel/CFxString.h"

/// Path of the file, among those of the active drawing's folders, that holds the line style; empty when none does.
QString lineStyleFile(const CFxString& styleName);
