#pragma once

#include "host/kernel/CFxActions.h"
#include "host/kernel/CFxStatus.h"
#include "host/rx/OdRxModule.h"

class OdDbObject;

/// What is known to be wrong with macros as they are written without repair.
struct CFxKnownFault
{
    CFxString operation;                  ///< what writes the place, such as "EmitSetColor"
    std::vector<std::uint32_t> languages; ///< codes of the languages that it is a fault of
    CFxString reason;                     ///< a clause without a full stop
    bool mended = false;                  ///< whether a repaired macro is without it
};

/// What a custom action describes, by the number that the host gives it.
struct CFxActionKindName
{
    std::int32_t number = 0;
    CFxString name; ///< for people
};

/// A system variable that the host's automation interface has an option for.
struct CFxKnownOption
{
    CFxString variable;
    bool ofDocument = false; ///< else of the application
    CFxString type;          ///< the word for it in names of enumerations, such as "Int16"
    CFxString enumerator;    ///< what the option is called as long as the host knows no other name
    bool made = false;       ///< whether the enumerator is made of a verb and the variable's name
    bool readOnly = false;   ///< whether the host alone changes the variable
};

/// One pair of tag and value that a snapshot adds.
using CFxSnapshotRecord = CFxVariantCollectionElement;

/// The macro writer as the host sees it: the object that `odrxCreateModuleObject` gives. All operations run on the
/// caller's thread and must not overlap.
class CFxConverterIWAPIModule : public OdRxModule
{
public:
    /// Writes the recording as a macro to `path` and the project around it beside that file.
    /// `language`: 0 C++ add-in, 1 C#, 2 JavaScript page, 3 VB.NET, 4 C++ COM add-in, 5 VBA. `mode`: 1 replays prompts
    /// and selections. `context` is handed to the getters of property records as it is.
    /// Gives kFxSuccess or kFxFailure; after a failure in the recording no macro file is left.
    virtual std::int32_t ConvertRecording(const CFxString& path, std::uint32_t language, std::uint32_t mode,
                                          CFxValueContext context, const CFxActionArray& actions) = 0;

    /// Appends to `target` what the host's property sheet does not show of the object. The first snapshot after a
    /// conversion also notes the drawing's current layout for the head of the next macro.
    /// Raises OdError_NotThatKindOfClass.
    virtual void TakeSnapshot(const OdDbObject* object, std::vector<CFxSnapshotRecord>& target) = 0;

    /// All of them, by their operations.
    virtual std::vector<CFxKnownFault> ListFaults() const = 0;

    /// By their numbers; kinds that are alike have the same name.
    virtual std::vector<CFxActionKindName> ListActionKinds() const = 0;

    /// Those of the document first. A variable may have an option of each.
    virtual std::vector<CFxKnownOption> ListOptions() const = 0;
};
