#pragma once

#include "frame/CFxConverterIWAPI.h"
#include "targets/Target.h"

#include <QTextStream>

#include <map>

class CFxConverterIWAPIObject;

/// Class and ordinal of an object that the generated code has a variable for.
struct ActionEntry
{
    OdRxClass* cls = nullptr;
    std::uint32_t ordinal = 0;
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
    virtual QString EmitProgramText(const QString& projectName) = 0;
    virtual QString EmitProjectText(const QString& projectName) = 0;
    /// Writes the project around the macro file.
    virtual std::int32_t EmitProjectFiles(const QString& path) = 0;

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
    std::int32_t ConvertModified(const OdSmartPtr<CFxObjectModified>& action, QString& text);
    CFxConverterIWAPIObject& Objects() const;

    std::uint32_t mode;
    std::shared_ptr<CFxConverterIWAPIObject> objectConverter;
    std::map<OdDbHandle, ActionEntry> ObjectVariableMap;
    CFxValueContext context = 0;
};

/// Removes what C++ type names end in, wherever it stands.
void StripPointerSuffixes(CFxString& typeName);
