#pragma once

#include <QStringList>

namespace inkmacro {

/// The one of these names that somebody meant who wrote another one: it is the same but for the case, a few letters or
/// its end. Empty when none is near, and of several the first.
QString nearestName(const QString& written, const QStringList& names);

/// "; did you mean NAME?", or nothing when none is near.
QString didYouMean(const QString& written, const QStringList& names);

} // namespace inkmacro
