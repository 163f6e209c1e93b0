#pragma once

#include "frame/CFxConverterIWAPIImpl.h"
#include "targets/Phrase.h"

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

protected:
    PhrasedConverter(inkmacro::Target target, std::uint32_t mode) : CFxConverterIWAPIImpl(target, mode), target_(target)
    {
    }

    inkmacro::Target target() const { return target_; }
    /// The target's words for the phrase with indentation and line end filled in; the values follow.
    inkmacro::Fill fill(const inkmacro::Phrase& phrase) const;

private:
    inkmacro::Target target_;
};
