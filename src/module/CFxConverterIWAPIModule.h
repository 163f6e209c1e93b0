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

/// One datum of a custom action.
struct CFxActionDatum
{
    CFxCustomActionData::_Type type = CFxCustomActionData::kInt16;
    CFxString meaning;  ///< a phrase
    CFxString value;    ///< what it has to be, where the form is told by it; else empty
    bool makes = false; ///< whether it names what the action makes, which need not have been there before
};

/// One way in which a kind of custom action says what was done.
struct CFxActionForm
{
    std::vector<CFxActionDatum> data; ///< in their order
    std::int32_t repeated = 0;        ///< so many of the last data may come again and again
};

/// What a custom action describes, by the number that the host gives it.
struct CFxActionKindName
{
    std::int32_t number = 0;
    CFxString name; ///< for people
    std::vector<CFxActionForm> forms = {};
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

/// A tag of the records of a class's objects that a conversion asks for.
struct CFxKnownTag
{
    /// What the value holds.
    enum Content
    {
        kValue = 0,           ///< whatever its type says
        kWholeNumber = 1,     ///< a number without a fraction
        kPoints = 2,          ///< points as the values of a collection's elements
        kHandlesInValues = 3, ///< handles as the texts of a collection's elements
        kHandlesInTags = 4,   ///< the same as the elements' tags
        kWord = 5,            ///< one of the words: a text, or that of an item
        kNumberOfWord = 6,    ///< the number of one of the words: a number, that of an item
    };

    CFxString tag;           ///< in English; `*` at its end stands for whatever follows
    CFxString group;         ///< not empty when it is the records' group that tells them, whatever their tags
    std::uint32_t types = 0; ///< those of CFxVariant that the value may have, 1 << type each; any other counts as none
    Content content = kValue;
    std::vector<CFxString> words = {}; ///< in English; none of a free value
    std::int32_t firstWord = 0;        ///< the number of the first word
    bool bits = false;                 ///< the words are numbered by bits: 1, 2, 4 and so on
    CFxString unit = {};               ///< of a number; empty when there is none
    CFxString whenMissing;             ///< what is taken then; empty when nothing is set
    bool numbered = false;             ///< whether a record without its number (`index`) is lost
    bool ofAllEntities = false;

    bool takes(CFxVariant::Type type) const { return (types & 1U << type) != 0; }
};

/// What is known of one class of drawing objects.
struct CFxKnownClass
{
    CFxString name;
    bool isMade = false; ///< whether records of an added object alone make a statement that makes it
    CFxString emptyLoss =
        {}; ///< why an added object without records is lost, of which the drawing knows nothing either
    std::vector<CFxKnownTag> added;
    std::vector<CFxKnownTag> changed;
    // Tags that say in another form what others say, so that it is no loss when nothing takes them.
    std::vector<CFxString> repeatedInAdded;
    std::vector<CFxString> repeatedInChanged;
    std::int32_t madeBy = -1;      ///< the kind of the custom action without which an added object is lost; -1 for none
    std::int32_t completedBy = -1; ///< the kind of the custom action that says more of an added object
};

/// One pair of tag and value that a snapshot adds.
using CFxSnapshotRecord = CFxVariantCollectionElement;

/// The macro writer as the host sees it: the object that `odrxCreateModuleObject` gives. All operations run on the
/// caller's thread and must not overlap.
class CFxConverterIWAPIModule : public OdRxModule
{
public:
    /// Writes the recording as a macro to `path` and the project around it beside that file.
    /// `language`: 0 C++ add-in, 1 C#, 2 JavaScript page, 3 VB.NET, 4 C++ COM add-in, 5 VBA, 6 Python. `mode`: 1
    /// replays prompts and selections. `context` is handed to the getters of property records as it is. Gives
    /// kFxSuccess or kFxFailure; after a failure in the recording no macro file is left.
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

    /// In no order. Objects of other classes are lost.
    virtual std::vector<CFxKnownClass> ListClasses() const = 0;

    /// Those of the document first. A variable may have an option of each.
    virtual std::vector<CFxKnownOption> ListOptions() const = 0;
};
