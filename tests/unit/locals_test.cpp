// Locals that are declared where their language does not allow it.

#include "module/Locals.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <vector>

using namespace inkmacro;

namespace {

struct Case
{
    const char* what;
    Target target;
    const char* macro;
    const char* toldApart; ///< null: as it is
    int twice;             ///< lines that declare one once too often
};

void expectLocals(const std::vector<Case>& cases)
{
    for (const Case& one : cases) {
        Locals asked(one.target);
        Locals told(one.target);
        int twice = 0;
        QStringList lines;
        for (const QString& line : QString(one.macro).split('\n')) {
            twice += asked.declaresTwice(line, 1) > 0;
            lines += told.toldApart(line);
        }
        EXPECT_EQ(twice, one.twice) << one.what;
        EXPECT_EQ(lines.join('\n').toStdString(), one.toldApart ? one.toldApart : one.macro) << one.what;
    }
}

TEST(Locals, AreOneScopeAProcedureInVba)
{
    expectLocals({
        {"once", Target::Vba, "Dim a As Long\nDim b(2) As Long\na = b(0)", nullptr, 0},
        {"twice", Target::Vba, "Dim a As Long\na = 1\nDim a As Double\na = a + b.a",
         "Dim a As Long\na = 1\nDim a_v2 As Double\na_v2 = a_v2 + b.a", 1},
        {"three times", Target::Vba, "Dim a\nDim a\na = 1\nDim a\na = 1",
         "Dim a\nDim a_v2\na_v2 = 1\nDim a_v3\na_v3 = 1", 2},
        {"whatever the case", Target::Vba, "Dim Ab As Long\nDim aB As Long\nAB = 1",
         "Dim Ab As Long\nDim aB_v2 As Long\naB_v2 = 1", 1},
        {"in two blocks", Target::Vba, "If x Then\nDim a\nEnd If\nIf y Then\nDim a\na = 1\nEnd If",
         "If x Then\nDim a\nEnd If\nIf y Then\nDim a_v2\na_v2 = 1\nEnd If", 1},
        {"Line is a word of the language", Target::Vba, "Dim line As Object\nSet line = x.Line",
         "Dim line_v2 As Object\nSet line_v2 = x.Line", 1},
    });
}

TEST(Locals, AreSeenInInnerBlocksOfVbNet)
{
    expectLocals({
        {"siblings", Target::VbNet, "If x Then\nDim a\nElse\nDim a\nEnd If\nFor i = 1 To 2\nDim a\nNext", nullptr, 0},
        {"ElseIf", Target::VbNet, "If x Then\nDim a\nElseIf y Then\nDim a\nEnd If", nullptr, 0},
        {"For Each", Target::VbNet, "For Each x In y\nDim a\nNext\nFor Each x In y\nDim a\nNext x", nullptr, 0},
        {"one line If", Target::VbNet, "If x Then Return\nDim a\nIf x Then Return\nDim a",
         "If x Then Return\nDim a\nIf x Then Return\nDim a_v2", 1},
        {"nested", Target::VbNet, "Dim a\nIf x Then\nDim A\na = 1\nEnd If\na = 2",
         "Dim a\nIf x Then\nDim A_v2\nA_v2 = 1\nEnd If\na = 2", 1},
        {"inner before outer", Target::VbNet, "If x Then\nDim a\nEnd If\nDim a\na = 1",
         "If x Then\nDim a\nEnd If\nDim a_v2\na_v2 = 1", 1},
        {"procedures", Target::VbNet, "Public Sub f()\nDim a\nEnd Sub\nPublic Sub g()\nDim a\nEnd Sub", nullptr, 0},
    });
}

TEST(Locals, AreTwiceWhereTheCompilerSaysSo)
{
    const auto found = [](Target target, const QStringList& lines) {
        Locals locals(target);
        std::size_t number = 0;
        std::vector<std::size_t> twice;
        for (const QString& line : lines)
            if (const std::size_t at = locals.declaresTwice(line, ++number))
                twice.push_back(at);
        return twice;
    };
    // An outer one behind the block: one compiler complains of it, the other of the inner one.
    EXPECT_EQ(found(Target::CSharp, {"{", "int a;", "}", "int a;"}), std::vector<std::size_t>{4});
    EXPECT_EQ(found(Target::VbNet, {"If 1 Then", "Dim a", "End If", "Dim a"}), std::vector<std::size_t>{2});
    EXPECT_EQ(found(Target::VbNet, {"Dim a", "If 1 Then", "Dim a", "End If"}), std::vector<std::size_t>{3});
}

TEST(Locals, AreSeenInInnerBlocksOfCSharp)
{
    expectLocals({
        {"siblings", Target::CSharp, "{\nint a = 1;\n}\n{\nint a = 2;\n}", nullptr, 0},
        {"else", Target::CSharp, "if (x) {\nint a;\n} else {\nint a;\n}", nullptr, 0},
        {"nested", Target::CSharp, "int a = 1;\n{\nint a = 2;\na = 3;\n}\na = 4;",
         "int a = 1;\n{\nint a_v2 = 2;\na_v2 = 3;\n}\na = 4;", 1},
        {"inner before outer", Target::CSharp, "{\n{\nint a = 1;\n}\nx.a = a;\n}\nint a = 2;\na = 3;",
         "{\n{\nint a = 1;\n}\nx.a = a;\n}\nint a_v2 = 2;\na_v2 = 3;", 1},
        {"not where inner ones are no nested ones", Target::CSharp, "{\nint a;\n}\n{\n{\nint a;\n}\n}", nullptr, 0},
        {"case counts", Target::CSharp, "int a = 1;\nint A = 2;", nullptr, 0},
        {"no declarations", Target::CSharp,
         "int a;\nreturn a;\ncase a:\nthrow a;\ngoto a;\na = 1;\nf( a );\na.b = 2;\nelse a = 3;", nullptr, 0},
        {"types", Target::CSharp, "double[] a = f();\nInkwright.Line a;\nobject b, a = null;",
         "double[] a = f();\nInkwright.Line a_v2;\nobject b, a_v3 = null;", 2},
        {"texts, comments and members", Target::CSharp,
         "int a;\nint a;\nf( \"a \\\" a\", a, x.a, ab, b_a, a.a ); // a\n//int a;",
         "int a;\nint a_v2;\nf( \"a \\\" a\", a_v2, x.a, ab, b_a, a_v2.a ); // a\n//int a;", 1},
    });
}

TEST(Locals, HideOuterOnesInCpp)
{
    for (const Target target : {Target::Cpp, Target::CppCom})
        expectLocals({
            {"nested", target, "int a = 1;\n{\nint a = 2;\na = 3;\n}\na = 4;", nullptr, 0},
            {"inner before outer", target, "{\nint a = 1;\n}\nint a = 2;", nullptr, 0},
            {"same scope", target, "Line* a;\nLine *a = f( a->a );\na->a();",
             "Line* a;\nLine *a_v2 = f( a_v2->a );\na_v2->a();", 1},
            {"hidden within the other name", target, "int a;\nint a;\n{\na = 1;\nint a;\na = 2;\n}\na = 3;",
             "int a;\nint a_v2;\n{\na_v2 = 1;\nint a;\na = 2;\n}\na_v2 = 3;", 1},
            {"several", target, "ns::T a, *b;\nT b( 1 );\nb.f();", "ns::T a, *b;\nT b_v2( 1 );\nb_v2.f();", 1},
            {"deleted", target, "int a;\ndelete a;\nnew a;", nullptr, 0},
        });
}

TEST(Locals, AreNeverTwiceInAPage)
{
    expectLocals({{"page", Target::JavaScript, "var a = 1;\nvar a = 2;\nint a;", nullptr, 0}});
}

} // namespace
