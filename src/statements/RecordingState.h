#pragma once

#include "host/kernel/CFxString.h"
#include "statements/Target.h"

#include <cstdint>

/// The layout that was active when recording began: noted by the first snapshot, read by the head of the next macro,
/// put back right after it. Process-wide and unguarded, which is one reason why conversions must not overlap.
extern CFxString RecordingSheetName;
extern bool RecordingInModel;

/// The host setting that decides the byte order mark and the form of type names: a language code of a conversion. It
/// need not be the code of the conversion that runs.
std::int16_t RecordingLanguage();
bool RecordsIn(inkmacro::Target language);

/// The host setting that asks for macros without the faults that their targets are known to reject.
bool RepairsMacros();

/// Whether the host reads of the faults that a macro has. Looking for them takes a while, so a host that does not
/// says so in its settings.
bool NotesFaults();
