#pragma once

#include "statements/Writer.h"

QString EmitObjectModifiedComment(Writer& writer, const CFxString& className);
