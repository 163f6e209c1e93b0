#pragma once

#include "host/kernel/CFxString.h"
#include "statements/Fault.h"
#include "statements/Target.h"

#include <cstdint>

/// The layout that was active when recording began: noted by the first snapshot, read by the head of the next macro,
/// put back right after it. Process-wide and unguarded, which is one reason why conversions must not overlap.
extern CFxString RecordingSheetName;
extern bool RecordingInModel;

/// The host setting that decides the byte order mark and the form of type names: a language code of a conversion. It
/// need not be the code of the conversion that runs, but while a repaired macro is written.
std::int16_t RecordingLanguage();
bool RecordsIn(inkmacro::Target language);
/// Whether what is one way in that language and another in the others gets the form that is not the target's.
bool RecordsOtherwise(inkmacro::Target language, inkmacro::Target target);
/// Whether types have names that the target does not know. A page names none.
bool RecordsOtherTypes(inkmacro::Target target);

/// What RecordsOtherwise leads to.
extern const inkmacro::Fault otherLanguage;

/// As long as it stands, the target takes the place of the host's setting.
class OwnLanguage
{
public:
    explicit OwnLanguage(inkmacro::Target target);
    ~OwnLanguage();
    OwnLanguage(const OwnLanguage&) = delete;
    OwnLanguage& operator=(const OwnLanguage&) = delete;
};

/// The host setting that asks for macros without the faults that their targets are known to reject.
bool RepairsMacros();

/// Whether the host reads of the faults that a macro has. Looking for them takes a while, so a host that does not
/// says so in its settings.
bool NotesFaults();
