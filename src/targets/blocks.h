#pragma once

#include "targets/Writer.h"

QString EmitBlockBegin(Writer& writer);
QString EmitBlockEnd(Writer& writer);
