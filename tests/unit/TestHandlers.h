#pragma once

#include "TestActions.h"
#include "TestDrawing.h"
#include "TestTarget.h"

#include "module/walk.h"

/// Hands custom actions to their handlers, one by one and to C#, in an open drawing.
class Handlers : public testing::Test
{
protected:
    std::int32_t convert(std::int32_t kind, const TestData& data, const QString& before = "x")
    {
        Statement statement = before;
        const std::int32_t status = ConvertAction(conversion, odrxNew<TestCustom>(kind, data), statement);
        text = textOf(statement);
        return status;
    }
    std::string converted(std::int32_t kind, const TestData& data, const QString& before = "x")
    {
        EXPECT_EQ(convert(kind, data, before), kFxSuccess);
        return text.toStdString();
    }

    TestDrawing drawing;
    TestTarget csharp{inkmacro::Target::CSharp};
    Conversion& conversion = csharp.conversion;
    TestConversion recording; ///< for actions within a recording
    QString text;             ///< what the last action left
};
