#pragma once

#include "targets/Writer.h"

QString EmitObjectModifiedComment(Writer& writer, const CFxString& className);
