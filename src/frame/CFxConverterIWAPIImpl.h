#pragma once

#include "frame/CFxConverterIWAPI.h"
#include "targets/Target.h"

#include <QTextStream>

#include <map>

class CFxConverterIWAPIObject;
struct FileObject;

/// Class and ordinal of an object that the generated code has a variable for.
struct ActionEntry
{
    OdRxClass* cls = nullptr;
    std::uint32_t ordinal = 0;
};

/// The objects that a statement works on, element by element.
struct EntityList
{
    std::vector<CFxString> names;   ///< variable; empty for an object that the generated code does not know
    std::vector<CFxString> types;   ///< enumerator of iwObjectType_e; empty where the name is
    std::vector<CFxString> handles; ///< hexadecimal
};

/// The walk over a recording and everything else that is the same for all targets. Knows no target: the words come
/// from the Emit operations.
class CFxConverterIWAPIImpl : public CFxConverterIWAPI
{
public:
    std::int32_t Convert(const CFxString& path, const CFxActionArray& actions) final;
    CFxValueContext GetContext() const final { return context; }
    void SetContext(CFxValueContext value) final { context = value; }

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

    // File locations: src/actions/fileLocations.cpp.
    std::int32_t ConvertActionInterfaceFile(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionSystemFile(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionDrawingSupportFile(OdSmartPtr<CFxCustomAction> action, QString& text);

    // Options of system variables: src/actions/sysvars.cpp.

    /// Enumerator and kind (an OptionKind's number) of the document's option for a system variable. kFxFailure for a
    /// variable that has none; then the name is empty and the kind -1.
    std::int32_t FindCommandOption(const CFxString& variable, CFxString& enumerator, std::int32_t& kind) const;
    /// The same of the application's option.
    std::int32_t FindApplicationOption(const CFxString& variable, CFxString& enumerator, std::int32_t& kind) const;

    // One handler a kind of custom action, or a few kinds: src/actions. A handler that is given another kind gives
    // kFxFailure.
    std::int32_t ConvertActionMirror(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionStretch(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionCopy(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionMove(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionRotate(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionScale(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionSelect(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionSelectionFilter(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionEmbeddedObject(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionErase(OdSmartPtr<CFxCustomAction> action, QString& text);
    /// The one handler that does not look at the kind: its kinds differ in their first element alone.
    std::int32_t ConvertActionElementColor(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionOptionValue(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionGroupAdd(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionGroupRemove(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionAttributeValue(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionRegion(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionActivate(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionViewport(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionPrintStyle(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionJoin(OdSmartPtr<CFxCustomAction> action, QString& text);
    std::int32_t ConvertActionExplode(OdSmartPtr<CFxCustomAction> action, QString& text);

    // Variables of the generated code: variables.cpp.

    /// Type name and object type enumerator of a class, rewritten for C++ when the recording language is 0.
    /// kFxFailure for a class outside the table; the outputs then stay untouched.
    std::int32_t GetApiTypeName(const OdRxClass* cls, CFxString& typeName, CFxString& secondName) const;
    /// The leader that owns the note of that handle, else the null id. Raises OdError_NotThatKindOfClass when the
    /// handle is another object's.
    void GetNoteLeader(OdDbObjectId& leader, const OdDbHandle& handle) const;
    /// One element a handle: the variable (empty for an object that the generated code does not know), the object type
    /// enumerator, the handle's text.
    void ResolveNames(std::vector<CFxString>& names, std::vector<CFxString>& types, std::vector<CFxString>& handles,
                      const CFxCustomActionData& handleArray, const CFxCustomActionData& classArray) const;
    void ResolveVariables(std::vector<CFxString>& names, const CFxCustomActionData& handleArray,
                          const CFxCustomActionData& classArray) const;
    /// The variable of one object, or the name as it was.
    void ResolveVariable(const OdDbHandle& handle, const OdRxClass* cls, CFxString& name) const;
    /// The entry of that handle or null.
    const ActionEntry* FindEntry(const OdDbHandle& handle) const;
    /// The variable's name, or empty text for a class outside the type table.
    CFxString VariableName(const ActionEntry& entry) const;
    /// The next ordinal, noted under the handle. An object that is met again under its handle gets a new variable.
    ActionEntry RegisterObject(const OdDbHandle& handle, OdRxClass* cls);

    virtual QString EmitBlockBegin() = 0;
    virtual QString EmitBlockEnd() = 0;
    virtual QString EmitActivateSheet(const CFxString& sheetName, CFxString& sheetVariable) = 0;
    /// `hasSysVar`: a system variable changed at the recording's top level.
    virtual QString EmitFileHeader(const QString& className, bool hasSysVar) = 0;
    virtual QString EmitFileFooter() = 0;
    virtual QString EmitComment(const CFxString& comment) = 0;
    /// Stands behind a command's block; no target has anything to say there.
    virtual QString EmitCommandTrailer() = 0;
    virtual QString EmitVariableDeclaration(const ActionEntry& entry) = 0;
    virtual QString EmitGetLayer(const CFxString& variable) = 0;

    // Options and file locations. Options are given by their enumerator.
    virtual QString EmitCommandOptionBool(const CFxString& option, bool value) = 0;
    virtual QString EmitCommandOptionDouble(const CFxString& option, double value) = 0;
    virtual QString EmitCommandOptionInt8(const CFxString& option, std::int32_t value) = 0;
    virtual QString EmitCommandOptionInt16(const CFxString& option, std::int32_t value) = 0;
    virtual QString EmitCommandOptionInt32(const CFxString& option, std::int32_t value) = 0;
    virtual QString EmitCommandOptionPoint2D(const CFxString& option, const OdGePoint2d& value) = 0;
    virtual QString EmitCommandOptionPoint3D(const CFxString& option, const OdGePoint3d& value) = 0;
    virtual QString EmitCommandOptionString(const CFxString& option, const CFxString& value) = 0;
    virtual QString EmitApplicationOptionBool(const CFxString& option, bool value) = 0;
    virtual QString EmitApplicationOptionInt16(const CFxString& option, std::int32_t value) = 0;
    virtual QString EmitApplicationOptionInt32(const CFxString& option, std::int32_t value) = 0;
    virtual QString EmitApplicationOptionDouble(const CFxString& option, double value) = 0;
    virtual QString EmitApplicationOptionString(const CFxString& option, const CFxString& value) = 0;
    /// Fetches the host object into a fresh variable, whose name comes back.
    virtual QString EmitInterfaceFilesObject(CFxString& variable) = 0;
    virtual QString EmitSystemFilesObject(CFxString& variable) = 0;
    virtual QString EmitDrawingSupportFilesObject(CFxString& variable) = 0;
    virtual QString EmitFileLocationArray(const CFxString& variable, const CFxString& property,
                                          const std::vector<CFxString>& values) = 0;

    // Selections and lists of entities.
    virtual QString EmitPromptSelection(const EntityList& entities) = 0;
    virtual QString EmitMirrorEntities(const EntityList& entities, const OdGePoint3d& first, const OdGePoint3d& second,
                                       bool erase) = 0;
    virtual QString EmitStretchEntities(const EntityList& entities, const OdGePoint3d& start, const OdGePoint3d& end,
                                        const OdGeVector3d& offset) = 0;
    /// `first`: the arrays are written too; further calls of the same action use them again.
    virtual QString EmitCopyEntities(const EntityList& entities, const OdGeVector3d& offset, bool first) = 0;
    virtual QString EmitMoveEntities(const EntityList& entities, const OdGeVector3d& offset, bool first) = 0;
    virtual QString EmitRotateEntities(const EntityList& entities, const OdGePoint3d& center, double angle) = 0;
    virtual QString EmitScaleEntities(const EntityList& entities, const OdGePoint3d& center, double factor) = 0;
    /// `hasManager`: the selection manager's variable stands already. Raises OdError_InvalidIndex when a selection by
    /// point has none.
    virtual QString EmitSelectEntities(std::int32_t mode, const OdArray<OdGePoint3d>& points, bool hasManager) = 0;
    virtual QString EmitSelectionFilter(const OdArray<OdGePoint3d>& points, std::int32_t mode,
                                        const std::vector<CFxString>& typeNames) = 0;

    // Statements of single custom actions.
    virtual QString EmitInsertEmbeddedObject(const CFxString& variable, const CFxString& path, bool first,
                                             bool second) = 0;
    virtual QString EmitEraseEntities(const std::vector<CFxString>& names) = 0;
    virtual QString EmitSetElementColor(std::int32_t element, const OdCmColor& color) = 0;
    virtual QString EmitGroupAddEntities(const std::vector<CFxString>& names, const CFxString& group) = 0;
    virtual QString EmitGroupRemoveEntities(const std::vector<CFxString>& names, const CFxString& group) = 0;
    virtual QString EmitActivate(const CFxString& variable) = 0;
    virtual QString EmitInsertViewport(const CFxString& variable, const CFxString& sheetName,
                                       const OdArray<OdGePoint3d>& points) = 0;
    virtual QString EmitJoin(const CFxString& variable, const CFxString& other) = 0;
    virtual QString EmitExplode(const CFxString& variable) = 0;

    virtual QString EmitProgramText(const QString& projectName) = 0;
    virtual QString EmitProjectText(const QString& projectName) = 0;
    /// Writes the project around the macro file.
    virtual std::int32_t EmitProjectFiles(const QString& path) = 0;

    // Prompts that are shown again; all but the keyword's raise UniqueCounter before anything else.
    virtual QString EmitPromptPoint(const CFxString& prompt, const OdGePoint3d& value) = 0;
    virtual QString EmitPromptAngle(const CFxString& prompt, double value) = 0;
    virtual QString EmitPromptDistance(const CFxString& prompt, double value) = 0;
    virtual QString EmitPromptOrient(const CFxString& prompt, double value) = 0;
    virtual QString EmitPromptCorner(const CFxString& prompt, const OdGePoint3d& value) = 0;
    virtual QString EmitPromptScale(const CFxString& prompt, double value) = 0;
    virtual QString EmitPromptString(const CFxString& prompt, const CFxString& value) = 0;
    /// `global` has at least as many elements as `local`.
    virtual QString EmitPromptKeyword(const CFxString& prompt, const std::vector<CFxString>& local,
                                      const std::vector<CFxString>& global) = 0;
    virtual QString EmitPromptColor(const CFxString& prompt, std::int32_t value) = 0;
    virtual QString EmitPromptInteger(const CFxString& prompt, std::int32_t value) = 0;
    virtual QString EmitPromptDouble(const CFxString& prompt, double value) = 0;

    /// Depth of the statement being written, four blanks a level.
    std::uint32_t IndentLevel = 0;
    /// Suffix that keeps the local names of one statement apart.
    std::uint32_t UniqueCounter = 0;
    /// Ordinal of the last object that got a variable.
    std::uint32_t objectCounter = 0;

protected:
    CFxConverterIWAPIImpl(inkmacro::Target target, std::uint32_t mode);
    ~CFxConverterIWAPIImpl() override;

    /// False when the file could not be opened. A write that fails after that is reported to the host alone.
    static bool WriteTextFile(const QString& path, const QString& text, bool byteOrderMark);

private:
    struct CommandState;

    std::int32_t ConvertTopLevel(QTextStream& stream, const OdRxObjectPtr& action);
    void RegisterChildren(const CFxActionArray& children, CommandState& state);
    void DeclareChildren(CommandState& state);
    void ConvertChildren(const CFxActionArray& children, CommandState& state);
    std::int32_t ConvertFileLocation(const FileObject& files, const CFxCustomAction& action, QString& text);
    std::int32_t ConvertModified(const OdSmartPtr<CFxObjectModified>& action, QString& text);
    CFxConverterIWAPIObject& Objects() const;
    EntityList EntitiesOf(const CFxCustomAction& action) const;
    QString NoteOfLeader(const OdDbHandle& note, OdRxClass* noteClass, const OdDbObjectId& leader, CFxString& name);
    /// The entry of the group of that name, or null for a group that the generated code does not know.
    const ActionEntry* FindGroup(const CFxString& groupName, OdDbHandle& handle) const;
    using EmitGroupChange = QString (CFxConverterIWAPIImpl::*)(const std::vector<CFxString>&, const CFxString&);
    void ConvertGroupChange(const CFxCustomAction& action, EmitGroupChange change, QString& text);

    std::uint32_t mode;
    std::shared_ptr<CFxConverterIWAPIObject> objectConverter;
    std::map<OdDbHandle, ActionEntry> ObjectVariableMap;
    CFxValueContext context = 0;
};

/// Removes what C++ type names end in, wherever it stands.
void StripPointerSuffixes(CFxString& typeName);
