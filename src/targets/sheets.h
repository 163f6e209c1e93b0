#pragma once

#include "statements/Writer.h"

QString EmitActivateModel(Writer& writer);
QString EmitActivateSheet(Writer& writer, const CFxString& sheetName, CFxString& sheetVariable);
QString EmitCreateSheet(Writer& writer, const CFxString& name);
QString EmitCreateSheetFromTemplate(Writer& writer, const CFxString& file, const CFxString& source,
                                    const CFxString& name);
QString EmitCopySheet(Writer& writer, const CFxString& source, const CFxString& copy);
QString EmitRenameSheet(Writer& writer, const CFxString& oldName, const CFxString& newName);
QString EmitRemoveSheet(Writer& writer, const CFxString& name);
