#include "frame/RecordingState.h"

#include "host/kernel/CFxServices.h"

CFxString RecordingSheetName;
bool RecordingInModel = true;

std::int16_t RecordingLanguage()
{
    static const CFxString setting("RecordingLanguage"); // read several times for each object
    return GetFxSystemServices()->GetInt16(setting);
}

bool RecordsIn(inkmacro::Target language)
{
    return RecordingLanguage() == static_cast<std::int16_t>(language);
}
