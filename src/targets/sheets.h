#pragma once

#include "targets/Writer.h"

QString EmitActivateSheet(Writer& writer, const CFxString& sheetName, CFxString& sheetVariable);
