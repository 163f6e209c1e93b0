#pragma once

#include "conversion/ActionFaults.h"
#include "host/db/OdDbObject.h"
#include "host/kernel/CFxActions.h"
#include "statements/Writer.h"
#include "statements/typeNames.h"
#include "targets/EntityList.h"

#include <map>
#include <memory>
#include <set>
#include <unordered_map>
#include <vector>

/// How the generated code calls the objects of a recording. There are two kinds: as recorded, where a name may be that
/// of no declared variable, and repaired, where each name is that of a variable which has a value. Nobody else asks
/// which of the two it is.
///
/// Naming an object neither registers it nor writes a statement that fetches it, unless the operation says so. Handles
/// are those of the drawing.
class Names
{
public:
    Names(Writer& writer, ActionFaults& faults) : writer_(writer), faults_(faults) {}
    virtual ~Names() = default;
    Names(const Names&) = delete;
    Names& operator=(const Names&) = delete;

    // Objects that the macro has a variable for.

    /// The next ordinal, noted under the handle. An object that is met again under its handle gets a new variable.
    ActionEntry RegisterObject(const OdDbHandle& handle, const OdRxClass* cls);
    /// The entry of that handle or null; null in a repaired macro for an object that no statement inserts.
    const ActionEntry* FindEntry(const OdDbHandle& handle) const;
    /// The same for a statement that only objects of that class have; null in a repaired macro for an object that is
    /// declared as another one.
    const ActionEntry* FindAs(const OdDbHandle& handle, const OdRxClass* cls) const;
    /// The name of the variable that a declaration gives the entry; empty for a class without an interface. Looks
    /// nothing up.
    CFxString DeclaredName(const ActionEntry& entry) const;
    /// Notes that no statement inserts the object: its variable has no value.
    void SetUnmade(const OdDbHandle& handle) { unmade_.insert(handle); }
    bool IsUnmade(const OdDbHandle& handle) const { return unmade_.contains(handle); }
    /// Whether the object is declared; one that turned out to have no value is not in a repaired macro.
    virtual bool IsDeclared(const OdDbHandle& handle) const = 0;

    /// Whether an object that no statement inserts is named all the same.
    virtual bool NamesUnmade() const = 0;

    // Objects of custom actions.

    /// Whether lists keep a place for an object without a name.
    virtual bool ListsUnnamed() const = 0;
    /// One element a handle: its name as ResolveVariables gives it, the object type enumerator (empty where the name
    /// is), the handle's text. In a repaired macro those without a name are left out.
    EntityList ResolveNames(const CFxCustomActionData& handleArray, const CFxCustomActionData& classArray);
    /// One element a handle: the name that the object is declared by, with the class that is told here, in a repaired
    /// macro with its own; empty for an object that the generated code does not know, whose class is not asked for. A
    /// repaired macro fetches that one.
    std::vector<CFxString> ResolveVariables(const CFxCustomActionData& handleArray,
                                            const CFxCustomActionData& classArray);
    /// One object's name, or the name as it was. Spelled another way than the declared name: see there.
    void ResolveVariable(const OdDbHandle& handle, const OdRxClass* cls, CFxString& name) const;
    /// The variable of an object that the generated code does not know, in a repaired macro, which fetches it; else
    /// empty.
    CFxString FetchedUnknown(const OdDbHandle& handle, const OdRxClass* cls);
    /// The variable of what the present custom action makes: the one that was handed over, without one that of an
    /// object which a repaired macro declares.
    CFxString VariableOfMade(const CFxString& handedOver, const char* className);
    /// The name of an object whose fetch is not written, but in a repaired macro.
    CFxString VariableWithoutFetch(const OdDbHandle& handle, const OdRxClass* cls);
    /// Takes what a call cannot have without a variable out of a repaired macro.
    virtual void DropUnnamed(std::vector<CFxString>& names) const = 0;
    /// The same of picked objects, with their points. False when there were objects and none of them is left.
    virtual bool KeepNamed(std::vector<CFxString>& names, OdArray<OdGePoint3d>& points) const = 0;
    /// What fetches the objects of the present custom action, and forgets it.
    Statement TakeFetches();
    /// Begins a custom action: nothing has been fetched for it.
    void ForgetFetched();

    // What statements reach an object by.

    /// The object's variable without a statement. One that the recording has not made gets a new name each time, which
    /// is not remembered, and the counters move as by the fetch. Empty for a class without an interface.
    CFxString NameObject(const OdDbHandle& handle, const OdRxClass* cls);
    /// The same, and gives the statement that fetches an object which the recording has not made; else it is empty. A
    /// class without an interface leaves the name as it was. In a repaired macro there is neither name nor statement
    /// for an object that the recording made and the macro has not; that is noted as lost.
    Statement EmitObjectVariable(const OdDbHandle& handle, const OdRxClass* cls, CFxString& name);
    /// The same of a note that a leader owns, which is reached through the leader; that declares the note's variable
    /// too.
    Statement EmitNoteOfLeader(const OdDbHandle& note, const OdDbHandle& leader, CFxString& name);
    /// Of an object that statements may be written for without its fetch: as recorded its bare name, in a repaired
    /// macro with the statement.
    virtual Statement EmitVariableOfChanged(const OdDbHandle& handle, const OdRxClass* cls, CFxString& name) = 0;
    /// Whether an object that the generated code does not know is fetched where it is needed.
    virtual bool FetchesUnknown() const = 0;
    /// Registers such an object to be changed, up to the end of the present command, whose block may hide the variable;
    /// at top level until its statements are made. Gives the variable, which the caller fetches.
    CFxString LendVariable(const OdDbHandle& handle, const OdRxClass* cls);
    bool IsLent(const OdDbHandle& handle) const { return lent_.contains(handle); }
    /// Nothing is fetched after all.
    void TakeBack(const OdDbHandle& handle);
    /// An object is being added: its variable, which AddedVariable gives from here on.
    CFxString NameAdded(const ActionEntry& entry, const OdRxClass* cls, const OdDbObjectId& id);
    /// The variable of an object that was added before; empty for any other. Takes no number.
    QString AddedVariable(const OdDbObjectId& id) const;
    /// The same; an object that the recording did not add is fetched in a repaired macro. Empty is a fault.
    QString AddedOrFetched(const OdDbObjectId& id, Statement& fetch);
    /// The variable of an object that the macro has one for, the later objects of the same command included; empty for
    /// any other. Takes no number.
    QString KnownVariable(const OdDbHandle& handle) const;
    /// The class by which such an object was recorded; null for any other.
    const OdRxClass* KnownClass(const OdDbHandle& handle) const;
    /// The same of an object that is about to be made.
    const OdRxClass* DeclaredClass(const OdDbHandle& handle) const;

    // Layers that were not recorded as added: a statement declares them within the present command.

    /// Behind the statements of such a layer.
    void EndFetchedLayer(const OdDbHandle& handle) { fetchedLayers_.insert(handle); }
    /// Behind a command; `hides`: its block hides what is declared in it.
    void EndCommand(bool hides);

protected:
    // What else differs between the two kinds.

    /// The class that a name is spelled with, when another one is told than is declared.
    virtual const OdRxClass* SpelledClass(const ActionEntry& entry, const OdRxClass* told) const = 0;
    /// The name of an object whose class is told, as ResolveVariable spells it.
    virtual CFxString SpelledName(const OdRxClass* told, std::uint32_t ordinal) const = 0;
    /// A variable for what a custom action makes without having been handed one.
    virtual CFxString DeclareMade(const OdRxClass* cls) = 0;

    /// The variable of an object that the present custom action has to fetch.
    CFxString Fetched(const OdDbHandle& handle, const OdRxClass* cls);
    /// Whether the class that is told gives another variable than the one that is declared.
    bool IsOtherClass(const ActionEntry& entry, const OdRxClass* told) const;
    ActionEntry NewEntry(const OdRxClass* cls) { return {cls, ++objectCounter_}; }
    void AddFetch(const Statement& statement) { fetches_ += statement; }

    Writer& writer_;
    ActionFaults& faults_;

private:
    /// In Python the variables are attributes of the drawing.
    CFxString Owned(const QString& variable) const;
    /// Spells a name from its parts; looks up no variable and takes no number.
    CFxString VariableOf(const OdRxClass* cls, const OdDbObjectId& id, std::uint32_t ordinal) const;
    /// The name of the object's variable; whether it is a new one, which a statement has to fetch.
    bool NameVariable(const OdDbHandle& handle, const OdRxClass* cls, CFxString& name);

    std::map<OdDbHandle, ActionEntry> entries_;
    std::uint32_t objectCounter_ = 0; ///< ordinal of the last object that got a variable
    std::unordered_map<OdDbHandle, ActionEntry, OdDbHandleHash> added_;
    std::set<OdDbHandle> unmade_;
    std::set<OdDbHandle> lent_; ///< objects of the drawing that the present command has fetched to change them
    /// Variables of objects that are fetched in front of the present custom action, and what fetches them.
    std::map<OdDbHandle, CFxString> fetched_;
    Statement fetches_;
    /// Layers that a statement of the present command has declared, and those of former commands, whose blocks hide
    /// them.
    std::set<OdDbHandle> fetchedLayers_;
    std::set<OdDbHandle> outOfReach_;
};

/// Of the kind that the writer asks for. Writer and faults must outlive it.
std::unique_ptr<Names> CreateNames(Writer& writer, ActionFaults& faults);

/// The object of that handle in the active drawing, which may have none; null without a drawing.
OdDbObjectId IdOf(const OdDbHandle& handle);
/// The leader that owns the note of that handle, else the null id. Raises OdError_NotThatKindOfClass when the handle is
/// another object's.
OdDbObjectId GetNoteLeader(const OdDbHandle& handle);
/// The class of an object in a list, from the list of classes beside it. Raises OdError_InvalidIndex.
const OdRxClass* ClassAt(const std::vector<const OdRxClass*>& classes, std::size_t index);
