#pragma once

#include "host/kernel/CFxConversionNotes.h"

namespace inkmacro {

/// How much of each kind was noted, faults by their places.
struct NoteCounts
{
    qint64 losses = 0;
    qint64 assumptions = 0;
    qint64 faults = 0;
};

NoteCounts countsOf(const CFxConversionNotes& notes);

/// "3 steps lost, 1 value assumed, 2 faults", without what there is none of; empty when there is nothing.
QString countText(const NoteCounts& counts);

/// The line about a macro for a person who did not ask: "2 steps lost, 1 kind of fault in 314 places (a text closes its
/// literal); --repair mends it". Without `namesReport` it does not send to the report. Empty when there is nothing.
QString talkText(const CFxConversionNotes& notes, bool namesReport);

} // namespace inkmacro
