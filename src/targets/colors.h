#pragma once

#include "host/db/OdCmColor.h"
#include "statements/Writer.h"

#include <QString>

/// A color as an argument of a call. Empty in C++, where a color has a variable of its own.
QString colorExpression(inkmacro::Target target, const OdCmColor& color);

/// A color of a gradient. By layer or by block counts as black there, but not in a repaired macro.
OdCmColor gradientColor(const Writer& writer, const OdCmColor& color);
/// The statement, with a note when gradientColor has made that color black.
Statement notingBlack(const Writer& writer, const Statement& statement, const OdCmColor& color);
