#pragma once

#include <QString>

/// The text of one or more statements.
using Statement = QString;
