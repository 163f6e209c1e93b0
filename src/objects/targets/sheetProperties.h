#pragma once

#include "statements/Writer.h"

/// Of the model, or else of the sheet of that name, which is activated.
Statement EmitSetModelProperty(Writer& writer, const CFxString& property, const CFxString& value, bool ofModel,
                             const CFxString& sheetName);
