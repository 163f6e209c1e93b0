#pragma once

#include "statements/Writer.h"

Statement EmitObjectModifiedComment(Writer& writer, const CFxString& className);
