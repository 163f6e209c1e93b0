// Whole recordings, each converted for each target and compared byte for byte with what is expected. All of their
// macros have the base name "recording" and so the same files around their statements: those of
// tests/scenarios/project, and a macro whose head and foot are those of tests/scenarios/frames, by the place where the
// recording began. There <statements> stands for the scenario's own file and <sheet> for the sheet that its recording
// names. Of a macro whose statements are functions the calls stand with them. Apart from these only the ids of a COM
// project differ, which are numbered here. A scenario with a folder "repaired" is converted with --repair besides, for
// the statements alone.

#include "module/CFxConverterIWAPI.h"
#include "recordfile/OpenDrawing.h"
#include "recordfile/RecordingReader.h"
#include "statements/Phrase.h"
#include "statements/RecordingState.h"
#include "statements/TargetTable.h"
#include "statements/counters.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>
#include <set>
#include <string_view>

using namespace inkmacro;

namespace {

const QString root = INKMACRO_SOURCE_DIR "/tests/scenarios/";

struct Scenario
{
    QString name;
    const TargetRow* row;

    QString target() const { return QString::fromLatin1(row->name.data(), static_cast<int>(row->name.size())); }
    QString macroOf(const QString& base) const
    {
        return base + '.' + QString::fromLatin1(row->extension.data(), static_cast<int>(row->extension.size()));
    }
    /// Its own, or an example.
    QString recording() const
    {
        const QString own = root + name + "/recording.jsonl";
        return QFile::exists(own) ? own : INKMACRO_SOURCE_DIR "/examples/" + name + ".jsonl";
    }
    /// These two are relative to the root.
    QString statements() const { return name + "/expected/" + macroOf(target()); }
    QString repairedStatements() const { return name + "/repaired/" + macroOf(target()); }
    QString frame(bool inModel) const
    {
        return QString("frames/") + (inModel ? "model/" : "sheet/") + macroOf(target());
    }
};

void PrintTo(const Scenario& scenario, std::ostream* out)
{
    *out << scenario.name.toStdString() << " in " << scenario.row->name;
}

std::vector<Scenario> scenarios()
{
    std::vector<Scenario> all;
    for (const QString& name : QDir(root).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
        for (const TargetRow& row : targetTable)
            if (const Scenario scenario{name, &row}; QFile::exists(scenario.recording()))
                all.push_back(scenario);
    return all;
}

QMap<QString, QByteArray> filesBelow(const QString& folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator walk(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        QFile file(walk.next());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        files.insert(QDir(folder).relativeFilePath(file.fileName()), file.readAll());
    }
    return files;
}

/// A part of an expected file, and where it stands.
struct Piece
{
    QString file;
    int firstLine;
    QByteArray bytes;
};
using Pieces = std::vector<Piece>;

QByteArray joined(const Pieces& pieces)
{
    QByteArray bytes;
    for (const Piece& piece : pieces)
        bytes += piece.bytes;
    return bytes;
}

/// Where the joined pieces' line of that index stands.
std::string place(const Pieces& pieces, int line)
{
    auto piece = pieces.begin();
    for (; piece + 1 != pieces.end() && line >= piece->bytes.count('\n'); ++piece)
        line -= piece->bytes.count('\n');
    return piece->file.toStdString() + ':' + std::to_string(piece->firstLine + line);
}

/// The first line in which two texts differ, with the one in front of it.
std::string difference(const Pieces& expected, const QByteArray& written)
{
    const QList<QByteArray> left = joined(expected).split('\n');
    const QList<QByteArray> right = written.split('\n');
    int line = 0;
    while (line < left.size() && line < right.size() && left[line] == right[line])
        ++line;
    const auto at = [&](const QList<QByteArray>& lines, int i) {
        return i >= 0 && i < lines.size() ? '"' + lines[i].toStdString() + '"' : std::string("(nothing)");
    };
    return "line " + std::to_string(line + 1) + ", expected by " + place(expected, line) + "\n  behind   " +
           at(left, line - 1) + "\n  expected " + at(left, line) + "\n  written  " + at(right, line);
}

QByteArray contents(const QString& name)
{
    QFile file(root + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly))
        << name.toStdString() << " is missing; scripts/update-scenarios writes what is expected";
    return file.readAll();
}

/// The macro: the head, the scenario's own statements and the foot.
Pieces expectedMacro(const Scenario& scenario, const Recording::Sheet& sheet)
{
    static const QByteArray gap = "<statements>\n";
    const QString name = scenario.frame(sheet.model);
    const QByteArray frame = contents(name).replace("<sheet>", sheet.name.toUtf8());
    const int at = frame.indexOf(gap);
    EXPECT_GE(at, 0) << name.toStdString();
    const QByteArray head = frame.left(at);
    return {{name, 1, head},
            {scenario.statements(), 1, contents(scenario.statements())},
            {name, head.count('\n') + 2, frame.mid(at + gap.size())}};
}

QMap<QString, Pieces> expectedFiles(const Scenario& scenario)
{
    Recording recording;
    const auto error = ReadRecording(scenario.recording(), recording);
    EXPECT_FALSE(error) << error->text().toStdString();
    const QString folder = "project/" + scenario.target() + '/';
    const auto project = filesBelow(root + folder);
    QMap<QString, Pieces> files;
    for (auto file = project.begin(); file != project.end(); ++file)
        files.insert(file.key(), {{folder + file.key(), 1, file.value()}});
    files.insert(scenario.macroOf("recording"),
                 expectedMacro(scenario, recording.header.sheet.value_or(Recording::Sheet{})));
    return files;
}

/// A COM project has fresh ids each time. They are numbered in the order in which they appear, so that the same id has
/// the same number in all files.
void numberIds(QMap<QString, QByteArray>& files)
{
    static const QRegularExpression id("[0-9a-fA-F]{8}(-[0-9a-fA-F]{4}){3}-[0-9a-fA-F]{12}");
    QStringList seen;
    for (QByteArray& bytes : files) {
        QString text = QString::fromLatin1(bytes);
        for (auto match = id.match(text); match.hasMatch(); match = id.match(text, match.capturedEnd())) {
            const QString found = match.captured().toLower();
            if (!seen.contains(found))
                seen.append(found);
            const QString number = QString("%1").arg(seen.indexOf(found) + 1, 12, 10, QChar('0'));
            text.replace(match.capturedStart(), match.capturedLength(), "00000000-0000-4000-8000-" + number);
        }
        bytes = text.toLatin1();
    }
}

/// The files that the program writes for a recording.
QMap<QString, QByteArray> converted(const Scenario& scenario, const QString& recording, const QStringList& options = {})
{
    const QString target = scenario.target();
    const QTemporaryDir folder;
    QProcess program;
    program.start(INKMACRO_PROGRAM, QStringList{"convert", recording, "--target", target, "--output",
                                                folder.filePath(target + '/' + scenario.macroOf("recording"))} +
                                        options);
    EXPECT_TRUE(program.waitForFinished(60'000));
    EXPECT_EQ(program.exitCode(), 0) << program.readAllStandardError().toStdString();
    auto written = filesBelow(folder.filePath(target));
    if (target == "cppcom")
        numberIds(written);
    return written;
}

class Scenarios : public testing::TestWithParam<Scenario>
{
};

TEST_P(Scenarios, GiveTheExpectedFiles)
{
    const auto expected = expectedFiles(GetParam());
    const auto written = converted(GetParam(), GetParam().recording());
    EXPECT_TRUE(expected.keys() == written.keys())
        << "written: " << QStringList(written.keys()).join(' ').toStdString();
    for (auto file = expected.begin(); file != expected.end(); ++file)
        EXPECT_TRUE(joined(file.value()) == written.value(file.key()))
            << file.key().toStdString() << ": " << difference(file.value(), written.value(file.key()));
}

class RepairedScenarios : public testing::TestWithParam<Scenario>
{
};

/// Besides them a repaired macro is that of a recording of the same first line alone.
TEST_P(RepairedScenarios, GiveTheExpectedStatements)
{
    const QString name = GetParam().repairedStatements();
    QFile recording(GetParam().recording());
    ASSERT_TRUE(recording.open(QIODevice::ReadOnly));
    const QTemporaryDir folder;
    QFile head(folder.filePath("recording.jsonl"));
    ASSERT_TRUE(head.open(QIODevice::WriteOnly));
    head.write(recording.readLine());
    head.close();

    const QString file = GetParam().macroOf("recording");
    const QByteArray frame = converted(GetParam(), head.fileName(), {"--repair"})[file];
    const QByteArray macro = converted(GetParam(), GetParam().recording(), {"--repair"})[file];
    const QByteArray statements = contents(name);
    const int at = macro.indexOf(statements);
    EXPECT_TRUE(at >= 0 && macro.left(at) + macro.mid(at + statements.size()) == frame)
        << difference({{name, 1, statements}}, macro.mid(macro.indexOf(statements.left(statements.indexOf('\n')))));
}

/// What is expected is read by somebody.
TEST(ScenarioFiles, HoldNothingElse)
{
    std::set<QString> read;
    for (const Scenario& scenario : scenarios()) {
        read.insert(QDir(root).relativeFilePath(scenario.recording()));
        read.insert(scenario.repairedStatements());
        for (const Pieces& pieces : expectedFiles(scenario))
            for (const Piece& piece : pieces)
                read.insert(piece.file);
    }
    for (const QString& name : filesBelow(root).keys())
        EXPECT_TRUE(read.contains(name)) << name.toStdString();
}

std::vector<Scenario> repairedScenarios()
{
    std::vector<Scenario> all = scenarios();
    // Of a target with one form only it is the same.
    std::erase_if(all, [](const Scenario& scenario) {
        return !isRecorders(scenario.row->target) || !QDir(root + scenario.name + "/repaired").exists();
    });
    return all;
}

std::string nameOf(const testing::TestParamInfo<Scenario>& info)
{
    return (info.param.name + '_' + info.param.target()).toStdString();
}

INSTANTIATE_TEST_SUITE_P(All, Scenarios, testing::ValuesIn(scenarios()), nameOf);
INSTANTIATE_TEST_SUITE_P(All, RepairedScenarios, testing::ValuesIn(repairedScenarios()), nameOf);

/// Converts in this process, where the phrases tell which words were asked for, as if nothing had been converted in it.
void convertHere(const Scenario& scenario)
{
    Recording recording;
    const auto error = ReadRecording(scenario.recording(), recording);
    ASSERT_FALSE(error) << error->text().toStdString();
    const auto language = static_cast<std::uint32_t>(scenario.row->target);
    GetFxSystemServices()->SetInt16("RecordingLanguage", static_cast<std::int16_t>(language));
    const auto sheet = recording.header.sheet.value_or(Recording::Sheet{});
    RecordingSheetName = sheet.name;
    RecordingInModel = sheet.model;
    processCounters = {};
    const OpenDrawing drawing(recording);
    const QTemporaryDir folder;
    const auto converter = CreateConverter(language, static_cast<std::uint32_t>(recording.header.mode), 0);
    ASSERT_EQ(converter->Convert(folder.filePath("macro"), recording.actions), kFxSuccess);
}

/// Words that no recording can bring about, and why.
struct Unreachable
{
    std::string_view phrase;
    std::set<Target> targets;
    const char* reason;
};
using enum Target;
const std::set<Target> everyTarget{Cpp, CSharp, JavaScript, VbNet, CppCom, Vba};
const Unreachable unreachable[]{
    {"background: color by index", {Cpp, CppCom}, "only repaired macros keep the index of a color behind a view"},
    {"EmitCommandOptionInt32", everyTarget, "no option of a document is of that type"},
    {"EmitCommandOptionInt32", {Python}, "no option of a document is of that type"},
    {"EmitDeleteRows", everyTarget, "only repaired macros remove many lines at once"},
    {"EmitRenameLayerOrGroup", {Cpp}, "only repaired macros rename a layer or a group in C++"},
    {"EmitSetModelProperty: other sheet", everyTarget, "only repaired macros leave a sheet as it is"},
    {"EmitSelectViewTile: declared tile", everyTarget, "only repaired macros give tiles to their variables"},
    // Recordings of the checks that run macros have them.
    {"EmitDeleteRows", {Python}, "no scenario removes many lines at once"},
    {"EmitRemoveNamedView",
     {Python},
     "the scenarios erase views that nothing makes, which a macro without faults omits"},
    {"EmitSelectViewTile: declared tile", {Python}, "no scenario changes tiles within a command that makes them"},
};

bool isReachable(const Phrase& phrase, Target target)
{
    return std::none_of(std::begin(unreachable), std::end(unreachable), [&](const Unreachable& row) {
        return row.phrase == phrase.name() && row.targets.contains(target);
    });
}

TEST(ScenarioPhrases, AreAllWritten)
{
    for (const Scenario& scenario : scenarios())
        convertHere(scenario);
    for (const Phrase* phrase : Phrase::all())
        for (const TargetRow& row : targetTable)
            EXPECT_EQ(phrase->used(row.target), phrase->has(row.target) && isReachable(*phrase, row.target))
                << phrase->name() << " in " << row.name;
}

} // namespace
