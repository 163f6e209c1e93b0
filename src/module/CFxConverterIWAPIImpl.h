#pragma once

#include "module/CFxConverterIWAPI.h"
#include "statements/Writer.h"
#include "statements/typeNames.h"
#include "targets/EntityList.h"
#include "targets/MacroFrame.h"

#include <QTextStream>

#include <map>
#include <set>
#include <vector>

class ActionKinds;
class CFxConverterIWAPIObject;
class StatementGroup;
struct CornerSide;
struct CutObjects;
struct FileObject;
struct TrimPiece;

/// The class of an object in a list, from the list of classes beside it. Raises OdError_InvalidIndex.
const OdRxClass* ClassAt(const std::vector<const OdRxClass*>& classes, std::size_t index);

/// The walk over a recording and everything else that is the same for all targets. Knows no target: the words come
/// from the Emit operations, and the target's frame adds what varies in more than words.
class CFxConverterIWAPIImpl final : public CFxConverterIWAPI
{
public:
    CFxConverterIWAPIImpl(inkmacro::Target target, std::uint32_t mode);
    ~CFxConverterIWAPIImpl() override;

    std::int32_t Convert(const CFxString& path, const CFxActionArray& actions) override;
    CFxValueContext GetContext() const override { return context; }
    void SetContext(CFxValueContext value) override { context = value; }

    /// Writes the children as one block with its declarations in front. A child that fails ends the command early and
    /// nothing more; the result is always kFxSuccess.
    std::int32_t ConvertCommand(QTextStream& stream, const CFxString& commandName, const CFxActionArray& children);
    /// `text` is input for a custom action (the variable of the object that its command made) and output for all.
    std::int32_t ConvertAction(OdRxObjectPtr action, QString& text);

    // Prompts, selections, system variables and custom actions: src/actions.
    std::int32_t ConvertInteraction(OdSmartPtr<CFxUserInteraction> interaction, QString& text);
    std::int32_t ConvertSysVar(OdSmartPtr<CFxSysVarChanged> variable, QString& text);
    std::int32_t ConvertSelection(OdSmartPtr<CFxUserSelection> selection, QString& text);
    std::int32_t ConvertCustomAction(OdSmartPtr<CFxCustomAction> action, QString& text);

    // Options of system variables: src/actions/sysvars.cpp.

    /// Enumerator and kind (an OptionKind's number) of the document's option for a system variable. kFxFailure for a
    /// variable that has none; then the name is empty and the kind -1.
    std::int32_t FindCommandOption(const CFxString& variable, CFxString& enumerator, std::int32_t& kind) const;
    /// The same of the application's option.
    std::int32_t FindApplicationOption(const CFxString& variable, CFxString& enumerator, std::int32_t& kind) const;

    // The handlers of custom actions: src/actions. They are given what their row of the kinds' table lets through, and
    // look at neither the kind nor the form of the data once more.
    std::int32_t ConvertActionMirror(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionStretch(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionCopy(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionMove(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionRotate(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionScale(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionTrim(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionExtend(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionFillet(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionChamfer(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionCornersOfPolyline(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionSelect(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionSelectionFilter(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionCoordinateSystemOfEntity(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionNamedView(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionEmbeddedObject(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionPolyline(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionErase(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionInsertHatch(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionElementColor(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionOptionValue(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionInterfaceFile(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionSystemFile(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionDrawingSupportFile(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionGroupAdd(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionGroupRemove(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionAttributeValue(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionPolylineJoin(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionViewBackground(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionZoom(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionRegion(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionActivate(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionViewport(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionPrintStyle(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionClipBoundary(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionViewTiles(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionJoin(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionExplode(OdSmartPtr<CFxCustomAction> action, QString& text);
    /// The statement for one edit of the polyline of that variable.
    using EmitPolylineEdit = QString (*)(Writer& writer, const CFxString& polyline, const CFxCustomAction& action);
    template<EmitPolylineEdit edit>
    std::int32_t ConvertActionPolylineEdit(OdSmartPtr<CFxCustomAction> action, QString& text);
    template<EmitPolylineEdit edit>
    std::int32_t ConvertActionPolylineVertex(OdSmartPtr<CFxCustomAction> action, QString& text);

    // Variables of the generated code: variables.cpp. Naming one neither registers an object nor writes a statement
    // that fetches it; that is CFxConverterIWAPIObject::EmitObjectVariable.

    /// The leader that owns the note of that handle, else the null id. Raises OdError_NotThatKindOfClass when the
    /// handle is another object's.
    void GetNoteLeader(OdDbObjectId& leader, const OdDbHandle& handle) const;
    /// One element a handle: its name as ResolveVariables gives it, the object type enumerator (empty where the name
    /// is), the handle's text.
    EntityList ResolveNames(const CFxCustomActionData& handleArray, const CFxCustomActionData& classArray);
    /// One element a handle: the name that the object is declared by, with the class that is told here, in a repaired
    /// macro with its own; empty for an object that the generated code does not know, whose class is not asked for. A
    /// repaired macro fetches that one.
    void ResolveVariables(std::vector<CFxString>& names, const CFxCustomActionData& handleArray,
                          const CFxCustomActionData& classArray);
    /// The variable of an object that the present custom action has to fetch.
    CFxString Fetched(const OdDbHandle& handle, const OdRxClass* cls);
    /// The same of an object that the generated code does not know, in a repaired macro; else empty.
    CFxString FetchedUnknown(const OdDbHandle& handle, const OdRxClass* cls);
    /// The variable of what the present custom action makes: the one that was handed over, without one that of an
    /// object which a repaired macro declares.
    CFxString VariableOfMade(const CFxString& handedOver, const char* className);
    /// The name of an object whose fetch is not written, but in a repaired macro.
    CFxString VariableWithoutFetch(const OdDbHandle& handle, const OdRxClass* cls);
    /// One object's name, or the name as it was. Spelled another way than the declared name: see there.
    void ResolveVariable(const OdDbHandle& handle, const OdRxClass* cls, CFxString& name) const;
    /// The entry of that handle or null; null in a repaired macro for an object that no statement inserts.
    const ActionEntry* FindEntry(const OdDbHandle& handle) const;
    /// The name that a declaration gives the entry; empty for a class outside the type table. Looks nothing up.
    CFxString DeclaredName(const ActionEntry& entry) const;
    /// The same for a statement that only objects of that class have; null in a repaired macro for an object that is
    /// declared as another one.
    const ActionEntry* FindAs(const OdDbHandle& handle, const OdRxClass* cls) const;
    /// Whether the class that is told gives another variable than the one that is declared.
    bool IsOtherClass(const ActionEntry& entry, const OdRxClass* told) const;
    /// Of the statements of the present action.
    void NoteFault(const inkmacro::Fault& fault) const;
    /// Their fault is to name an object that no statement inserts.
    void NoteUnmade() const;
    /// Whether a custom action of that kind stands in the same command as what is being converted.
    bool HasSibling(std::int32_t kind) const;
    /// The same of a block definition that is added or changed.
    bool HasSiblingBlock() const;
    /// The next ordinal, noted under the handle. An object that is met again under its handle gets a new variable.
    ActionEntry RegisterObject(const OdDbHandle& handle, const OdRxClass* cls);

    Writer writer;
    /// Variables of the hatches that custom actions have inserted.
    std::set<QString> insertedHatches;
    /// The last added object that a custom action finishes: it gets what they make in its command.
    OdDbHandle lastFinished;
    /// In a repaired macro also those that have an action each.
    std::set<OdDbHandle> finished;
    /// What changed layers are called by now, where that is not their name in the drawing.
    std::map<OdDbHandle, CFxString> renamedLayers;
    /// Added objects that no statement inserts: their variables have no value.
    std::set<OdDbHandle> unmade;
    /// Variables of objects that a repaired macro fetches in front of the present custom action, and what fetches them.
    std::map<OdDbHandle, CFxString> fetched;
    QString fetches;
    /// What the statements of the present action have to do with the objects that they name.
    mutable std::vector<const inkmacro::Fault*> statementFaults;
    /// Layers that a statement of the present command has declared, and those of former commands, whose blocks hide
    /// them.
    std::set<OdDbHandle> fetchedLayers;
    std::set<OdDbHandle> outOfReach;
    /// Ordinal of the last object that got a variable.
    std::uint32_t objectCounter = 0;

private:
    struct CommandState;

    std::int32_t ConvertTopLevel(QTextStream& stream, const OdRxObjectPtr& action);
    void RegisterChildren(const CFxActionArray& children, CommandState& state);
    void DeclareChildren(CommandState& state);
    void PairWithActions(const CFxActionArray& children, CommandState& state);
    /// The variable that a custom action of a command is handed.
    QString HandOver(std::int32_t kind, unsigned number, const CommandState& state);
    QString Declarations(const CommandState& state) const;
    void ConvertChildren(const CFxActionArray& children, CommandState& state, StatementGroup& group);
    /// False when the child failed.
    bool ConvertChild(const OdRxObjectPtr& child, unsigned number, CommandState& state, StatementGroup& group);
    void LoseBehind(const CFxActionArray& children, unsigned failed);
    /// ConvertAction, with a note of an action that fails.
    std::int32_t ConvertOrLose(const OdRxObjectPtr& action, QString& text);
    bool IsWanted(const CFxSysVarChanged& variable) const;
    /// Whether it is by rule that nothing is written for the action.
    bool IsPassedOver(const OdRxObject* action) const;
    std::int32_t ConvertFileLocation(const FileObject& files, const CFxCustomAction& action, QString& text);
    std::int32_t ConvertModified(const OdSmartPtr<CFxObjectModified>& action, QString& text);
    CFxString LayerName(const OdDbHandle& handle, const CFxObjectModified& changes);
    CFxConverterIWAPIObject& Objects() const;
    EntityList EntitiesOf(const CFxCustomAction& action);
    QString EditOfPolyline(const CFxCustomAction& action, std::int32_t first, EmitPolylineEdit edit);
    /// Registers and names the object that the data 3 and 4 tell, unless a name was handed over. False, and no name,
    /// for an object whose class is not converted.
    bool NameInsertedObject(const CFxCustomAction& action, CFxString& name);
    std::vector<TrimPiece> RegisterPieces(const CFxCustomAction& trim);
    bool TakeCutObjects(const CFxCustomAction& action, CutObjects& cut);
    /// One side of a corner, in three data from the first on.
    CornerSide SideOf(const CFxCustomAction& action, std::int32_t first);
    QString NoteOfLeader(const OdDbHandle& note, const OdRxClass* noteClass, const OdDbObjectId& leader,
                         CFxString& name);
    /// The entry of the group of that name, or null for a group that the generated code does not know.
    const ActionEntry* FindGroup(const CFxString& groupName, OdDbHandle& handle) const;
    using EmitGroupChange = QString (*)(Writer&, const std::vector<CFxString>&, const CFxString&);
    void ConvertGroupChange(const CFxCustomAction& action, EmitGroupChange change, QString& text);

    std::uint32_t mode;
    const std::unique_ptr<MacroFrame> frame;
    const ActionKinds* siblings = nullptr; ///< of the action that is being converted
    std::shared_ptr<CFxConverterIWAPIObject> objectConverter;
    std::map<OdDbHandle, ActionEntry> ObjectVariableMap;
    CFxValueContext context = 0;
};
