#pragma once

#include "statements/Writer.h"

#include <QStringList>

Statement EmitInsertRegion(Writer& writer, const CFxString& variable, const QStringList& names, std::uint32_t number);
