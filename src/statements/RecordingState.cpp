#include "statements/RecordingState.h"

#include "host/kernel/CFxServices.h"
#include "statements/hostSettings.h"

#include <optional>

CFxString RecordingSheetName;
bool RecordingInModel = true;

namespace {

std::optional<inkmacro::Target> own;

} // namespace

const inkmacro::Fault otherLanguage{"RecordingLanguage",
                                    {inkmacro::Target::Cpp, inkmacro::Target::CSharp, inkmacro::Target::JavaScript,
                                     inkmacro::Target::VbNet, inkmacro::Target::CppCom, inkmacro::Target::Vba},
                                    "a form follows the language that the host records in, which is another one"};

OwnLanguage::OwnLanguage(inkmacro::Target target)
{
    own = target;
}

OwnLanguage::~OwnLanguage()
{
    own.reset();
}

std::int16_t RecordingLanguage()
{
    if (own)
        return static_cast<std::int16_t>(*own);
    // Read several times for each object.
    static const std::int16_t& setting = GetFxSystemServices()->GetInt16(inkmacro::kRecordingLanguage);
    return setting;
}

bool RecordsIn(inkmacro::Target language)
{
    return RecordingLanguage() == static_cast<std::int16_t>(language);
}

bool RecordsOtherwise(inkmacro::Target language, inkmacro::Target target)
{
    return RecordsIn(language) != (target == language);
}

bool RecordsOtherTypes(inkmacro::Target target)
{
    return target != inkmacro::Target::JavaScript && RecordsOtherwise(inkmacro::Target::Cpp, target);
}

bool RepairsMacros()
{
    static const std::int16_t& setting = GetFxSystemServices()->GetInt16(inkmacro::kRepairMacros);
    return setting != 0;
}

bool NotesFaults()
{
    return GetFxSystemServices()->GetInt16(inkmacro::kIgnoreFaults) == 0;
}
