#pragma once

#include "TestActions.h"
#include "TestDrawing.h"
#include "TestTarget.h"

/// Hands custom actions to their handlers, one by one and to C#, in an open drawing.
class Handlers : public testing::Test
{
protected:
    std::int32_t convert(std::int32_t kind, const TestData& data, const QString& before = "x")
    {
        text = before;
        return driver.ConvertAction(odrxNew<TestCustom>(kind, data), text);
    }
    std::string converted(std::int32_t kind, const TestData& data, const QString& before = "x")
    {
        EXPECT_EQ(convert(kind, data, before), kFxSuccess);
        return text.toStdString();
    }

    TestDrawing drawing;
    TestTarget csharp{inkmacro::Target::CSharp};
    TestTarget::Driver& driver = csharp.driver;
    TestConversion conversion; ///< for actions within a recording
    QString text;              ///< what the last action left
};
