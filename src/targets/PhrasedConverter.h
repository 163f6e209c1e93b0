#pragma once

#include "frame/CFxConverterIWAPIImpl.h"
#include "targets/Phrase.h"
#include "targets/projectFiles.h"

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
    /// The target's words for the phrase with indentation and line end filled in; the values follow.
    inkmacro::Fill fill(const inkmacro::Phrase& phrase) const;
    /// Writes the files in turn into the macro file's directory, which is made when it is missing. Ends with kFxFailure
    /// at the first that cannot be opened; those before it stay.
    static std::int32_t WriteProject(const QString& macroPath, const std::vector<inkmacro::ProjectFile>& files);

private:
    // What option statements end in.
    QString withResult(inkmacro::Fill& statement);
    QString withOptions(inkmacro::Fill& statement);

    QString fileLocationElement(const CFxString& property, std::uint32_t array, int index,
                                const CFxString& value) const;

    inkmacro::Target target_;
};
