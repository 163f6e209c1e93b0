#pragma once

#include "conversion/Conversion.h"
#include "host/db/OdDbClasses.h"
#include "host/kernel/CFxServices.h"
#include "statements/Statement.h"

#include <gtest/gtest.h>

/// Those that have faults, groups and numbered locals; Python's macros are run (tests/tools/check_python.py).
inline constexpr inkmacro::Target allTargets[] = {
    inkmacro::Target::Cpp,        inkmacro::Target::CppCom, inkmacro::Target::CSharp,
    inkmacro::Target::JavaScript, inkmacro::Target::VbNet,  inkmacro::Target::Vba,
};

inline QString textOf(const Statement& statement)
{
    return statement.text();
}

/// The statements of one target without their file around them, prompts included. The host is set to record that
/// target's language.
struct TestTarget
{
    explicit TestTarget(inkmacro::Target target, unsigned level = 0)
        : before_(GetFxSystemServices()->GetInt16("RecordingLanguage")), conversion(target, 1)
    {
        GetFxSystemServices()->SetInt16("RecordingLanguage", static_cast<std::int16_t>(target));
        writer.IndentLevel = level;
    }
    ~TestTarget() { GetFxSystemServices()->SetInt16("RecordingLanguage", before_); }
    TestTarget(const TestTarget&) = delete;
    TestTarget& operator=(const TestTarget&) = delete;

    /// How many objects have a variable. Takes a number itself.
    std::uint32_t objectCount() { return conversion.names().RegisterObject(OdDbHandle(~0ULL), nullptr).ordinal - 1; }

private:
    std::int16_t before_;

public:
    Conversion conversion;
    Writer& writer = conversion.writer;
};

/// One text a target.
struct TestTexts
{
    const char* cpp;
    const char* cppCom;
    const char* csharp;
    const char* javascript;
    const char* vbNet;
    const char* vba;

    const char* in(inkmacro::Target target) const
    {
        using inkmacro::Target;
        switch (target) {
        case Target::Cpp:
            return cpp;
        case Target::CppCom:
            return cppCom;
        case Target::CSharp:
            return csharp;
        case Target::JavaScript:
            return javascript;
        case Target::VbNet:
            return vbNet;
        case Target::Vba:
            return vba;
        case Target::Python:
            break;
        }
        return nullptr;
    }
};

/// Compares what the function makes at level 1 in each target.
template<class Make>
void expectInAllTargets(const TestTexts& expected, Make make)
{
    for (const inkmacro::Target target : allTargets) {
        TestTarget made(target, 1);
        EXPECT_EQ(make(made), QString(expected.in(target))) << "target " << static_cast<int>(target);
        EXPECT_EQ(made.writer.IndentLevel, 1U) << "target " << static_cast<int>(target);
    }
}
