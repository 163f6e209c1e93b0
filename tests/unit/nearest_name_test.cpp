#include "recordfile/nearestName.h"

#include <gtest/gtest.h>

namespace {

using inkmacro::nearestName;

const QStringList names{"csharp", "javascript", "vbnet", "vba", "AcDbLine", "AcDbCircle", "AcDbLinetypeTableRecord"};

TEST(NearestName, IsTheOneThatWasMistyped)
{
    const std::pair<const char*, const char*> cases[] = {
        {"cshrap", "csharp"},
        {"CSharp", "csharp"},
        {"csharpp", "csharp"},
        {"sharp", "csharp"},
        {"vbs", "vba"},
        {"vbent", "vbnet"},
        {"java", "javascript"},
        {"acdbline", "AcDbLine"},
        {"AcDbCrcle", "AcDbCircle"},
        {"AcDbLinetype", "AcDbLinetypeTableRecord"},
    };
    for (const auto& [written, meant] : cases)
        EXPECT_EQ(nearestName(written, names), meant) << written;
}

TEST(NearestName, IsNoneThatIsFarOff)
{
    for (const char* const written : {"", "c", "x", "cobol", "ab", "Circle", "transmogrify"})
        EXPECT_EQ(nearestName(written, names), QString()) << written;
    EXPECT_EQ(nearestName(QString(1'000'000, 'v'), names), QString());
    EXPECT_EQ(nearestName("vba", {}), QString());
}

TEST(NearestName, IsSaidAsAQuestion)
{
    EXPECT_EQ(inkmacro::didYouMean("vbaa", names), "; did you mean vba?");
    EXPECT_EQ(inkmacro::didYouMean("cobol", names), "");
}

} // namespace
