#pragma once

#include "frame/CFxConverterIWAPIImpl.h"
#include "targets/Phrase.h"
#include "targets/projectFiles.h"

#include <functional>
#include <vector>

/// The other statements of all targets: which value goes into which place of which literal.
class PhrasedConverter : public CFxConverterIWAPIImpl
{
public:
    QString EmitBlockBegin() override;
    QString EmitBlockEnd() override;
    QString EmitActivateSheet(const CFxString& sheetName, CFxString& sheetVariable) override;
    QString EmitComment(const CFxString& comment) override;
    QString EmitCommandTrailer() override { return {}; }
    QString EmitVariableDeclaration(const ActionEntry& entry) override;
    QString EmitGetLayer(const CFxString& variable) override;

    // Prompts: prompts.cpp.
    QString EmitPromptPoint(const CFxString& prompt, const OdGePoint3d& value) override;
    QString EmitPromptAngle(const CFxString& prompt, double value) override;
    QString EmitPromptDistance(const CFxString& prompt, double value) override;
    QString EmitPromptOrient(const CFxString& prompt, double value) override;
    QString EmitPromptCorner(const CFxString& prompt, const OdGePoint3d& value) override;
    QString EmitPromptScale(const CFxString& prompt, double value) override;
    QString EmitPromptString(const CFxString& prompt, const CFxString& value) override;
    QString EmitPromptKeyword(const CFxString& prompt, const std::vector<CFxString>& local,
                              const std::vector<CFxString>& global) override;
    QString EmitPromptColor(const CFxString& prompt, std::int32_t value) override;
    QString EmitPromptInteger(const CFxString& prompt, std::int32_t value) override;
    QString EmitPromptDouble(const CFxString& prompt, double value) override;

    // Selections and lists of entities.
    QString EmitPromptSelection(const EntityList& entities) override;
    QString EmitMirrorEntities(const EntityList& entities, const OdGePoint3d& first, const OdGePoint3d& second,
                               bool erase) override;
    QString EmitStretchEntities(const EntityList& entities, const OdGePoint3d& start, const OdGePoint3d& end,
                                const OdGeVector3d& offset) override;
    QString EmitCopyEntities(const EntityList& entities, const OdGeVector3d& offset, bool first) override;
    QString EmitMoveEntities(const EntityList& entities, const OdGeVector3d& offset, bool first) override;
    QString EmitRotateEntities(const EntityList& entities, const OdGePoint3d& center, double angle) override;
    QString EmitScaleEntities(const EntityList& entities, const OdGePoint3d& center, double factor) override;
    QString EmitSelectEntities(std::int32_t mode, const OdArray<OdGePoint3d>& points, bool hasManager) override;
    QString EmitSelectionFilter(const OdArray<OdGePoint3d>& points, std::int32_t mode,
                                const std::vector<CFxString>& typeNames) override;

    // Statements of single custom actions.
    QString EmitInsertEmbeddedObject(const CFxString& variable, const CFxString& path, bool first,
                                     bool second) override;
    QString EmitEraseEntities(const std::vector<CFxString>& names) override;
    QString EmitSetElementColor(std::int32_t element, const OdCmColor& color) override;
    QString EmitGroupAddEntities(const std::vector<CFxString>& names, const CFxString& group) override;
    QString EmitGroupRemoveEntities(const std::vector<CFxString>& names, const CFxString& group) override;
    QString EmitActivate(const CFxString& variable) override;
    QString EmitInsertViewport(const CFxString& variable, const CFxString& sheetName,
                               const OdArray<OdGePoint3d>& points) override;
    QString EmitJoin(const CFxString& variable, const CFxString& other) override;
    QString EmitExplode(const CFxString& variable) override;

    // Unless the target says otherwise, the macro file is the whole result.
    QString EmitProgramText(const QString&) override { return {}; }
    QString EmitProjectText(const QString&) override { return {}; }
    std::int32_t EmitProjectFiles(const QString&) override { return kFxSuccess; }

    // Options and file locations.
    QString EmitCommandOptionBool(const CFxString& option, bool value) override;
    QString EmitCommandOptionDouble(const CFxString& option, double value) override;
    QString EmitCommandOptionInt8(const CFxString& option, std::int32_t value) override;
    QString EmitCommandOptionInt16(const CFxString& option, std::int32_t value) override;
    QString EmitCommandOptionInt32(const CFxString& option, std::int32_t value) override;
    QString EmitCommandOptionPoint2D(const CFxString& option, const OdGePoint2d& value) override;
    QString EmitCommandOptionPoint3D(const CFxString& option, const OdGePoint3d& value) override;
    QString EmitCommandOptionString(const CFxString& option, const CFxString& value) override;
    QString EmitApplicationOptionBool(const CFxString& option, bool value) override;
    QString EmitApplicationOptionInt16(const CFxString& option, std::int32_t value) override;
    QString EmitApplicationOptionInt32(const CFxString& option, std::int32_t value) override;
    QString EmitApplicationOptionDouble(const CFxString& option, double value) override;
    QString EmitApplicationOptionString(const CFxString& option, const CFxString& value) override;
    QString EmitInterfaceFilesObject(CFxString& variable) override;
    QString EmitSystemFilesObject(CFxString& variable) override;
    QString EmitDrawingSupportFilesObject(CFxString& variable) override;
    QString EmitFileLocationArray(const CFxString& variable, const CFxString& property,
                                  const std::vector<CFxString>& values) override;

protected:
    PhrasedConverter(inkmacro::Target target, std::uint32_t mode) : CFxConverterIWAPIImpl(target, mode), target_(target)
    {
    }

    inkmacro::Target target() const { return target_; }
    /// An object type as an array of object types holds it.
    virtual QString ObjectTypeWord(const QString& enumerator) { return enumerator; }
    /// The target's words for the phrase with indentation and line end filled in; the values follow.
    inkmacro::Fill fill(const inkmacro::Phrase& phrase) const;
    /// The same for literals in which `%2` is a value already: only the indentation is filled in.
    inkmacro::Fill fillIndented(const inkmacro::Phrase& phrase) const;
    /// Writes the files in turn into the macro file's directory, which is made when it is missing. Ends with kFxFailure
    /// at the first that cannot be opened; those before it stay.
    static std::int32_t WriteProject(const QString& macroPath, const std::vector<inkmacro::ProjectFile>& files);

private:
    // What option statements end in.
    QString withResult(inkmacro::Fill& statement);
    QString withOptions(inkmacro::Fill& statement);

    QString fileLocationElement(const CFxString& property, std::uint32_t array, int index,
                                const CFxString& value) const;

    // Arrays of objects and of object types: entityLists.cpp.

    /// Literals of entity lists end their lines themselves in C++, C# and JavaScript, not in the other targets.
    inkmacro::Fill fillList(const inkmacro::Phrase& phrase) const;
    /// What the declaration of an array of so many elements names: the count, in Basic the highest index.
    int arrayBound(std::size_t count) const;
    QString listHead(const inkmacro::Phrase& phrase, std::size_t count) const;
    /// The line that puts one element into an array.
    QString listElement(const inkmacro::Phrase& phrase, std::size_t index, const QString& word) const;
    QString objectElements(const inkmacro::Phrase& phrase, const char* array, const std::vector<CFxString>& names);
    QString objectArray(const EntityList& entities);
    QString typedArrays(const EntityList& entities, bool lookUpUnknown);
    QString typedElements(const EntityList& entities, bool lookUpUnknown);
    /// In COM the filling of each array declares variables of the same names, so all but one need a block.
    QString ownBlock(const std::function<QString()>& filling);
    QString crossingBox(const OdGePoint3d& start, const OdGePoint3d& end);

    /// The corners of a viewport as its statement takes them: lines of their own or a list within the call.
    QString polygonFilling(const OdArray<OdGePoint3d>& points) const;

    // Selections by points: selections.cpp.
    QString selectionCorners(const OdArray<OdGePoint3d>& points) const;
    QString selectionCoordinates(const OdArray<OdGePoint3d>& points) const;
    QString selectionOf(std::int32_t mode, const OdArray<OdGePoint3d>& points) const;

    inkmacro::Target target_;
};
