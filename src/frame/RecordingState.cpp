#include "frame/RecordingState.h"

#include "host/kernel/CFxServices.h"

CFxString RecordingSheetName;
bool RecordingInModel = true;

std::int16_t RecordingLanguage()
{
    return GetFxSystemServices()->GetInt16("RecordingLanguage");
}
