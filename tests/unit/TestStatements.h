#pragma once

#include "host/kernel/CFxServices.h"
#include "targets/PhrasedConverter.h"

/// The statements of a target without its frame and project, at level 0.
class TestStatements : public PhrasedConverter
{
public:
    explicit TestStatements(inkmacro::Target target) : PhrasedConverter(target, 1)
    {
        GetFxSystemServices()->SetInt16("RecordingLanguage", 1);
    }
    ~TestStatements() override { GetFxSystemServices()->SetInt16("RecordingLanguage", 0); }

    QString EmitFileHeader(const QString&, bool) override { return {}; }
    QString EmitFileFooter() override { return {}; }
};

inline constexpr inkmacro::Target allTargets[] = {
    inkmacro::Target::Cpp,        inkmacro::Target::CppCom, inkmacro::Target::CSharp,
    inkmacro::Target::JavaScript, inkmacro::Target::VbNet,  inkmacro::Target::Vba,
};
