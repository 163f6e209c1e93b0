#pragma once

#include "host/db/OdCmColor.h"
#include "targets/Target.h"

#include <QString>

/// A color as an argument of a call. Empty in C++, where a color has a variable of its own.
QString colorExpression(inkmacro::Target target, const OdCmColor& color);
