#pragma once

#include "host/kernel/CFxServices.h"
#include "objects/targets/PhrasedObjectConverter.h"
#include "targets/PhrasedConverter.h"

#include <gtest/gtest.h>

#include <array>

/// The statements of one target without its file around them. The host is set to record that target's language.
struct TestTarget
{
    class Driver final : public PhrasedConverter
    {
    public:
        explicit Driver(inkmacro::Target target) : PhrasedConverter(target, 0) {}
        QString EmitFileHeader(const QString&, bool) override { return {}; }
        QString EmitFileFooter() override { return {}; }
        QString EmitProgramText(const QString&) override { return {}; }
        QString EmitProjectText(const QString&) override { return {}; }
        std::int32_t EmitProjectFiles(const QString&) override { return kFxSuccess; }
    };
    class Objects final : public PhrasedObjectConverter
    {
    public:
        Objects(inkmacro::Target target, CFxConverterIWAPIImpl* driver) : PhrasedObjectConverter(target, driver) {}
    };

    explicit TestTarget(inkmacro::Target target) : driver(target), objects(target, &driver)
    {
        GetFxSystemServices()->SetInt16("RecordingLanguage", static_cast<std::int16_t>(target));
        driver.IndentLevel = 1;
    }
    TestTarget(const TestTarget&) = delete;
    TestTarget& operator=(const TestTarget&) = delete;
    ~TestTarget() { GetFxSystemServices()->SetInt16("RecordingLanguage", 0); }

    Driver driver;
    Objects objects;
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
};

/// Compares what the function makes in each target.
template<class Make>
void expectInAllTargets(const TestTexts& expected, Make make)
{
    using inkmacro::Target;
    const std::pair<Target, const char*> texts[]{
        {Target::Cpp, expected.cpp},       {Target::CppCom, expected.cppCom},
        {Target::CSharp, expected.csharp}, {Target::JavaScript, expected.javascript},
        {Target::VbNet, expected.vbNet},   {Target::Vba, expected.vba}};
    for (const auto& [target, text] : texts) {
        TestTarget made(target);
        EXPECT_EQ(make(made), QString(text)) << "target " << static_cast<int>(target);
        EXPECT_EQ(made.driver.IndentLevel, 1U) << "target " << static_cast<int>(target);
    }
}
