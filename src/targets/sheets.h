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

/// Of the model, or else of the sheet of that name, which is activated.
Statement EmitSetModelProperty(Writer& writer, const CFxString& property, const CFxString& value, bool ofModel,
                               const CFxString& sheetName);
