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

    // Unless the target says otherwise, the macro file is the whole result.
    QString EmitProgramText(const QString&) override { return {}; }
    QString EmitProjectText(const QString&) override { return {}; }
    std::int32_t EmitProjectFiles(const QString&) override { return kFxSuccess; }

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
    inkmacro::Target target_;
};
