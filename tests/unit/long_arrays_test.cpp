// Arrays that are too long for a statement to hold: their texts are made while the macro is written.

#include "TestRecords.h"
#include "TestRepair.h"
#include "TestTarget.h"
#include "statements/arrays.h"

#include <QRegularExpression>

using namespace inkmacro;

namespace {

constexpr int vertices = 5000;

CFxPropertyChangedPtr vertexRecord(int first)
{
    std::vector<CFxVariantCollectionElement> elements;
    for (int i = 0; i < vertices; ++i)
        elements.emplace_back(i, OdGePoint3d{double(first + i), 0.5, double(-i)});
    return record("Vertex", CFxVariantCollection(std::move(elements)));
}

/// The coordinates as they have to come, first those of the one polyline and then of the other.
QStringList coordinates(int first)
{
    QStringList all;
    for (int i = 0; i < vertices; ++i)
        all << QString("%1.00000000000000").arg(first + i) << "0.50000000000000"
            << QString(i == 0 ? "0.00000000000000" : "-%1.00000000000000").arg(i);
    return all;
}

/// The macro of a command that draws two polylines.
QString macro(Target target)
{
    const TestTarget at(target);
    const QTemporaryDir folder;
    const QString path = folder.filePath("macro");
    const CFxActionArray actions{
        command({odrxNew<TestAdded>("AcDb3dPolyline", 0x30, PropertyList{vertexRecord(0)}),
                 odrxNew<TestAdded>("AcDb3dPolyline", 0x31, PropertyList{vertexRecord(7000)})})};
    EXPECT_EQ(CreateConverter(static_cast<std::uint32_t>(target), 1, 0)->Convert(path, actions), kFxSuccess);
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QString::fromUtf8(file.readAll());
}

/// What a pattern finds one after the other: its only group.
QStringList found(const QString& text, const char* pattern)
{
    QStringList all;
    for (auto at = QRegularExpression(pattern).globalMatch(text); at.hasNext();)
        all << at.next().captured(1);
    return all;
}

QStringList indices()
{
    QStringList all;
    for (int i = 0; i < 3 * vertices; ++i)
        all << QString::number(i);
    return all;
}

TEST(LongArrays, AreWrittenWholeAndInTheirPlaces)
{
    const QStringList first = coordinates(0);
    const QStringList second = coordinates(7000);
    for (const Target target : {Target::CSharp, Target::JavaScript}) {
        const char* const list = target == Target::CSharp ? R"(double\[\]\{([^}]*)\})" : R"(new Array\(([^)]*)\))";
        EXPECT_EQ(found(macro(target), list), QStringList({first.join(','), second.join(',')}));
    }
    for (const Target target : {Target::VbNet, Target::Vba}) {
        const QString text = macro(target);
        EXPECT_EQ(found(text, R"(Coordinates\d\( \d+ \)=(\S+))"), first + second);
        EXPECT_EQ(found(text, R"(Coordinates\d\( (\d+) \)=)"), indices() + indices());
    }
    EXPECT_EQ(found(macro(Target::Cpp), R"(Coordinates\d\.add\(([^)]*)\))"), first + second);
    const QString com = macro(Target::CppCom);
    EXPECT_EQ(found(com, R"(\b[xyz]_\d=([^;]+);)"), first + second);
    EXPECT_EQ(found(com, R"(rgIndices\d=(\d+);)"), indices() + indices());
    EXPECT_EQ(com.count("rgIndices1 = -1;"), 1);
}

/// A call takes no more. The values themselves are made late.
TEST(LongArrays, AreLiteralsInRepairedPages)
{
    const auto declaration = [](std::size_t count) {
        const TestTarget at(Target::JavaScript);
        return textOf(coordinateArray(at.writer, {2, std::vector<double>(count)}, "points").before);
    };
    EXPECT_EQ(declaration(30'002), " var points1 = new Array();\n");
    const TestRepair repair;
    EXPECT_EQ(declaration(30'000), " var points1 = new Array();\n");
    EXPECT_EQ(declaration(30'002), " var points1 = [];\n");
}

TEST(LongArrays, StandBetweenTheirOwnWords)
{
    const QString text = macro(Target::Vba);
    const int call = text.indexOf("Set polyline3d1 = ");
    EXPECT_LT(text.indexOf("Coordinates1( 14999 )=-4999.00000000000000"), call);
    EXPECT_LT(call, text.indexOf("Coordinates2( 0 )=7000.00000000000000"));
    for (const QChar letter : text)
        ASSERT_FALSE(letter.isSurrogate());
}

} // namespace
