#include "statements/RecordingState.h"

#include "host/kernel/CFxServices.h"

CFxString RecordingSheetName;
bool RecordingInModel = true;

std::int16_t RecordingLanguage()
{
    // Read several times for each object.
    static const std::int16_t& setting = GetFxSystemServices()->GetInt16("RecordingLanguage");
    return setting;
}

bool RecordsIn(inkmacro::Target language)
{
    return RecordingLanguage() == static_cast<std::int16_t>(language);
}

bool RepairsMacros()
{
    static const std::int16_t& setting = GetFxSystemServices()->GetInt16("RepairMacros");
    return setting != 0;
}

bool NotesFaults()
{
    return GetFxSystemServices()->GetInt16("IgnoreFaults") == 0;
}
