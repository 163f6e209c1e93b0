#pragma once

#include <QString>

/// The drawing SDK's string. Qt's string has the same UTF-16 value semantics, so no type of its own is needed here.
using OdString = QString;
