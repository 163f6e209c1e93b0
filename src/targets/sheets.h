#pragma once

#include "statements/Writer.h"

Statement EmitActivateModel(Writer& writer);
Statement EmitActivateSheet(Writer& writer, const CFxString& sheetName, CFxString& sheetVariable);
Statement EmitCreateSheet(Writer& writer, const CFxString& name);
Statement EmitCreateSheetFromTemplate(Writer& writer, const CFxString& file, const CFxString& source,
                                    const CFxString& name);
Statement EmitCopySheet(Writer& writer, const CFxString& source, const CFxString& copy);
Statement EmitRenameSheet(Writer& writer, const CFxString& oldName, const CFxString& newName);
Statement EmitRemoveSheet(Writer& writer, const CFxString& name);
