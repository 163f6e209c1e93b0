// Python's literals, lines, names, and the answers that become parameters.

#include "statements/Phrase.h"
#include "statements/pythonLiterals.h"
#include "targets/python/Parameters.h"
#include "targets/python/layout.h"
#include "targets/python/names.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

#include <limits>
#include <set>

using namespace inkmacro;
using namespace inkmacro::python;

namespace {

TEST(PythonLiterals, AreThoseOfItsRepr)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const std::vector<std::pair<double, const char*>> numbers{
        {0.0, "0.0"},
        {-0.0, "-0.0"},
        {1, "1.0"},
        {-2.5, "-2.5"},
        {100000, "100000.0"},
        {1e15, "1000000000000000.0"},
        {1e16, "1e16"},
        {123456789012345680.0, "1.2345678901234568e17"},
        {0.0001, "0.0001"},
        {0.00001, "1e-05"},
        {0.1 + 0.2, "0.30000000000000004"},
        {-1.5e-7, "-1.5e-07"},
        {5e-324, "5e-324"},
        {1.7976931348623157e308, "1.7976931348623157e308"},
        {infinity, "float(\"inf\")"},
        {-infinity, "float(\"-inf\")"},
    };
    for (const auto& [value, literal] : numbers)
        EXPECT_EQ(pythonReal(value).toStdString(), literal);

    const std::vector<std::pair<QString, QString>> texts{
        {"", R"("")"},
        {"Plate 120 x 80, \u00d8 12.5 \"H7\"", "'Plate 120 x 80, \u00d8 12.5 \"H7\"'"},
        {R"(5'-3")", R"("5'-3\"")"},
        {R"(C:\new {CANARY} %1)", R"("C:\\new {CANARY} %1")"},
        {"a\tb\r\n", R"("a\tb\r\n")"},
        {QString::fromUtf8("\u0413\u0440\u0443\u043d\u0442 \u56f3 \u202e\u00a0\ufeff"),
         QString::fromUtf8("\"\u0413\u0440\u0443\u043d\u0442 \u56f3 \\u202e\\xa0\\ufeff\"")},
        {QString(QChar(0)) + QChar(0xDC80) + QString::fromUcs4(U"\U000E0001\U0001F600"),
         QString("\"\\x00\\udc80\\U000e0001") + QString::fromUcs4(U"\U0001F600") + '"'},
    };
    for (const auto& [text, literal] : texts)
        EXPECT_EQ(pythonText(text), literal);
}

std::string lines(const QString& line, int indentation = 4)
{
    return laidOut(line, indentation).toStdString();
}

TEST(PythonLines, BreakWhereTheFormatterBreaksThem)
{
    EXPECT_EQ(lines("drawing.line2.Layer = \"0\""), "    drawing.line2.Layer = \"0\"\n");
    // What fits between the brackets stands on one line, else each element has its own.
    EXPECT_EQ(lines("drawing.hatch8 = drawing.sketch.InsertHatchByEntities(objects(drawing.line2, drawing.line3, "
                    "drawing.line4, drawing.line5, drawing.circle6), \"ANSI31\", 2.0, 0.0)"),
              "    drawing.hatch8 = drawing.sketch.InsertHatchByEntities(\n"
              "        objects(\n"
              "            drawing.line2, drawing.line3, drawing.line4, drawing.line5, drawing.circle6\n"
              "        ),\n"
              "        \"ANSI31\",\n"
              "        2.0,\n"
              "        0.0,\n"
              "    )\n");
    EXPECT_EQ(lines("def text(drawing, start_position=(5.0, -30.0, 0.0), height=2.5, angle=0.1, note=\"Plate\"):", 0),
              "def text(\n"
              "    drawing, start_position=(5.0, -30.0, 0.0), height=2.5, angle=0.1, note=\"Plate\"\n"
              "):\n");
    EXPECT_EQ(
        lines("next_points = [answered(message.PromptForPoint(\"Specify the next point of the outline\"), 3) for _ in "
              "next_points]"),
        "    next_points = [\n"
        "        answered(message.PromptForPoint(\"Specify the next point of the outline\"), 3)\n"
        "        for _ in next_points\n"
        "    ]\n");
    // A tuple is no call: once it is broken, its elements stand one by one.
    EXPECT_EQ(lines("def polyline(drawing, next_points=((0.0, 0.0, 0.0), (1000.0, 0.0, 0.0), (1000.0, 2000.0, 0.0), "
                    "(0.5, 2000.0, 0.0))):",
                    0),
              "def polyline(\n"
              "    drawing,\n"
              "    next_points=(\n"
              "        (0.0, 0.0, 0.0),\n"
              "        (1000.0, 0.0, 0.0),\n"
              "        (1000.0, 2000.0, 0.0),\n"
              "        (0.5, 2000.0, 0.0),\n"
              "    ),\n"
              "):\n");
}

TEST(PythonLines, AreShortWhateverTheTextsAre)
{
    const QString words = "one two three four five six seven eight nine ten ";
    const QString text = words.repeated(3).trimmed();
    EXPECT_EQ(lines("drawing.note1.Contents = " + pythonText(text)),
              "    drawing.note1.Contents = (\n"
              "        \"one two three four five six seven eight nine ten one two three four \"\n"
              "        \"five six seven eight nine ten one two three four five six seven \"\n"
              "        \"eight nine ten\"\n"
              "    )\n");
    // The quotes of each piece are its own, and no escape is cut.
    const QString hard = QString("\"").repeated(40) + QString("\\").repeated(40) + QString("\u202e").repeated(20);
    const std::vector<QString> ways{"drawing.note1.SetContents(2, " + pythonText(hard) + ')',
                                    "def note(drawing, text=" + pythonText(hard) + "):"};
    for (const QString& way : ways) {
        QString joined;
        for (const QString& line : laidOut(way, 0).split('\n')) {
            EXPECT_LE(line.size(), mostColumns) << line.toStdString();
            const QString piece = line.trimmed();
            if (piece.startsWith('\'') || piece.startsWith('"'))
                joined += QString(piece).remove(',').mid(1).chopped(1).replace("\\\"", "\"");
        }
        EXPECT_EQ(joined, QString("\"").repeated(40) + QString("\\\\").repeated(40) + QString("\\u202e").repeated(20));
    }
}

TEST(PythonNames, AreNoneThatMeanSomethingElse)
{
    const std::vector<std::pair<const char*, const char*>> functions{
        {"CIRCLE", "circle"},      {"-HYPERLINK", "hyperlink"}, {"3DPOLY", "command_3dpoly"}, {"", "command"},
        {"\u56f3", "command"},     {"PRINT", "print_"},         {"import", "import_"},        {"MAIN", "main_"},
        {"_.Line  (x)", "line_x"}, {"\u00c4NDERN", "andern"},   {"OBJECTS", "objects_"},      {"step", "step_"},
    };
    for (const auto& [command, name] : functions)
        EXPECT_EQ(functionName(QString::fromUtf8(command)).toStdString(), name) << command;
    FreeNames free;
    for (const char* const name : {"circle", "circle_2", "circle_3", "circle_4"})
        EXPECT_EQ(free.take("circle").toStdString(), name);
    EXPECT_EQ(free.take("circle_2"), "circle_2_2");
    EXPECT_EQ(free.take("print_"), "print_");
    EXPECT_EQ(free.take("print_"), "print_2");

    const auto parameter = [](const char* prompt, Asked asked = Asked::Point, bool several = false) {
        return parameterName(
                   {.asked = asked, .child = 0, .title = {}, .text = QString::fromUtf8(prompt), .otherwise = ""},
                   several)
            .toStdString();
    };
    EXPECT_EQ(parameter("Options: Segments, Enter to continue from last point or<br>Specify start point&raquo; "),
              "start_point");
    EXPECT_EQ(parameter("Specify next point or [Undo]:", Asked::Point, true), "next_points");
    EXPECT_EQ(parameter("Default: 5<br>Specify <b>2nd</b> radius", Asked::Distance), "distance_2nd_radius");
    EXPECT_EQ(parameter("<br>[Yes/No]:", Asked::Orientation), "angle");
    EXPECT_EQ(parameter("Specify name:", Asked::Text), "name_");
    EXPECT_EQ(parameter("Ask", Asked::Integer), "ask_");
    EXPECT_EQ(parameter("Specify edge"), "point_edge"); // a second one would be called like a temporary
    EXPECT_EQ(parameter("first extension line position of a dimension here"), "first_extension_line_position");
    EXPECT_EQ(parameter("internationalization internationalization"), "internationalization");

    EXPECT_EQ(pythonComment("AcDb\"\"\"\\n\n\u00e9"), "AcDb????n??");
    EXPECT_EQ(pythonComment("123456789012345678901"), "12345678901234567890...");
    EXPECT_TRUE(isModuleName("plate_2"));
    for (const char* const name : {"2plates", "a-b", "class", "a.b", ""})
        EXPECT_FALSE(isModuleName(name)) << name;
}

/// The statements assign them, and may not assign a parameter.
TEST(PythonNames, OfParametersAreNoLocalsOfStatements)
{
    static const QRegularExpression assignment("^ *([a-z_*][a-z_, *]*) = ");
    std::set<QString> locals;
    for (const Phrase* const phrase : Phrase::all()) {
        const QString words = Fill(phrase->in(Target::Python)).str().text();
        for (QString line : words.split(QRegularExpression("%2|\n")))
            if (const auto found = assignment.match(line.remove("%1")); found.hasMatch())
                for (const QString& name : found.captured(1).split(QRegularExpression("[, *]+"), Qt::SkipEmptyParts))
                    locals.insert(name);
    }
    EXPECT_GT(locals.size(), 30U);
    for (const QString& local : locals) {
        const Prompt prompt{.asked = Asked::Point, .child = 0, .title = {}, .text = local, .otherwise = ""};
        EXPECT_NE(parameterName(prompt, false), local);
    }
}

/// A command, written down as its user and the host saw it: answers and statements in their order.
class Session
{
public:
    Session& answer(Asked asked, std::array<double, 3> numbers, const char* prompt = "")
    {
        command_.prompts.push_back({asked, child_++, {}, prompt, "", true, numbers});
        return *this;
    }
    Session& answer(const char* text, const char* prompt = "")
    {
        command_.prompts.push_back({Asked::Text, child_++, {}, prompt, "", true, {}, text});
        return *this;
    }
    /// The values become the words of one call, with blanks between them.
    Session& call(const std::vector<Answerable>& values)
    {
        QString text;
        Statement::Notes notes;
        for (Answerable value : values) {
            text += text.isEmpty() ? "" : " ";
            const QString words = value.text.isEmpty() ? "#" : value.text;
            value.length = words.size();
            notes.push_back({text.size(), value});
            text += words;
        }
        command_.actions.push_back({child_++, HeldStatement(Statement(text, notes))});
        return *this;
    }
    /// The calls with the parameters in them, a line each.
    std::string written() const
    {
        PromptNames names;
        const Parameters parameters(command_, names);
        QStringList calls;
        for (std::size_t i = 0; i < command_.actions.size(); ++i)
            calls.append(parameters.textOf(i));
        return calls.join(" | ").toStdString();
    }

private:
    RecordedCommand command_;
    std::uint32_t child_ = 0;
};

Answerable number(Meaning meaning, double value)
{
    return {.meaning = meaning, .length = 0, .numbers = {value}};
}

Answerable point(double x, double y, double z, int axes = 3)
{
    return {.meaning = Meaning::Point, .length = 0, .numbers = {x, y, z}, .axes = axes};
}

TEST(PythonParameters, AreAnswersThatStatementsRepeat)
{
    using enum Meaning;
    EXPECT_EQ(Session()
                  .answer(Asked::Point, {10, 10, 0}, "center point")
                  .answer(Asked::Distance, {4.5}, "radius")
                  .call({point(10, 10, -0.0), number(Length, 4.5)})
                  .written(),
              "*center_point radius");
    // A line's end is the next one's beginning; the last answer, equal to the first, closes the outline.
    EXPECT_EQ(Session()
                  .answer(Asked::Point, {0, 0, 0}, "start")
                  .answer(Asked::Point, {1, 0, 0}, "next")
                  .call({point(0, 0, 0), point(1, 0, 0)})
                  .answer(Asked::Point, {0, 0, 0}, "next")
                  .call({point(1, 0, 0), point(0, 0, 0)})
                  .written(),
              "*start *next_ | *next_ *next_2");
    EXPECT_EQ(Session().answer(Asked::Corner, {4, 3, 7}).call({point(4, 3, 0, 2), point(4, 3, 0)}).written(),
              "*corner[:2] #");
    EXPECT_EQ(Session().answer("Holes", "new layer").call({{.meaning = Text, .length = 0, .text = "Holes"}}).written(),
              "new_layer");
    // The factors of an insertion are one value, and may be a length elsewhere.
    EXPECT_EQ(Session()
                  .answer(Asked::Scale, {2})
                  .call({number(Factor, 2), number(Factor, 2), number(Factor, 2)})
                  .call({number(Length, 2)})
                  .call({number(Factor, 2), number(Factor, 3)})
                  .written(),
              "scale scale scale | scale | # #");
    Session many;
    for (int i = 1; i <= 5; ++i)
        many.answer(Asked::Point, {double(i), 0, 0}, "next point");
    EXPECT_EQ(many.call({point(5, 0, 0), point(1, 0, 0, 2), point(2, 0, 0), point(3, 0, 0), point(4, 0, 0)}).written(),
              "*next_points[4] *next_points[0][:2] *next_points[1] *next_points[2] *next_points[3]");
}

TEST(PythonParameters, AreNoneInDoubt)
{
    using enum Meaning;
    // Told behind the statement, of another kind, in two of three coordinates, common, or in two places of a call.
    EXPECT_EQ(Session().call({number(Length, 5)}).answer(Asked::Distance, {5}).written(), "#");
    EXPECT_EQ(Session().answer(Asked::Distance, {5}).call({number(Meaning::Angle, 5), number(None, 5)}).written(),
              "# #");
    EXPECT_EQ(Session().answer(Asked::Point, {5, 5, 0}).call({point(5, 5, 213.36)}).written(), "#");
    EXPECT_EQ(Session()
                  .answer(Asked::Distance, {0})
                  .answer(Asked::Scale, {1})
                  .call({number(Length, 0), number(Factor, 1)})
                  .written(),
              "# #");
    EXPECT_EQ(Session().answer(Asked::Distance, {5}).call({number(Length, 5), number(Length, 5)}).written(), "# #");
    EXPECT_EQ(Session().answer(Asked::Keyword, {}).answer(Asked::Color, {3}).call({number(Count, 3)}).written(), "#");
    // Width and height of a square: which is which, nothing tells, here or further on.
    EXPECT_EQ(Session()
                  .answer(Asked::Distance, {10}, "width")
                  .answer(Asked::Distance, {10}, "height")
                  .call({number(Length, 10)})
                  .call({number(Length, 10)})
                  .written(),
              "# | #");
}

} // namespace
