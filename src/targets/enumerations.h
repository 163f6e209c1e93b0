#pragma once

#include "targets/Target.h"

#include <QString>

namespace inkmacro {

/// The enumerator for an integer that the drawing holds. A value outside the enumeration gives its default.
QString EnumeratorByValue(Target target, const char* enumeration, int value);

/// The enumerator for a text as the host's property sheet shows it, in the host's display language and without regard
/// to case. An unknown text gives the default.
QString EnumeratorByText(Target target, const char* enumeration, const QString& text);

/// `weight` is in hundredths of a millimetre, -1 by layer, -2 by block.
QString LineWeightEnumerator(Target target, int weight);

/// Of the separators comma, blank and period; any other text counts as a period.
QString DecimalSeparatorEnumerator(Target target, const QString& separator);

/// The displayed alignment for the two modes of a text entity, empty for a pair that does not exist. The flag is the
/// number of the two-way alignments and -1 for the others.
QString TextAlignment(int horizontalMode, int verticalMode, int& flag);

} // namespace inkmacro
