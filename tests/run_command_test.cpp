// What the interactive commands leave in a recording.

#include "Program.h"

#include <QDirIterator>
#include <QFileInfo>

namespace {

TEST_F(Program, MakesTheSameMacrosOfEntitiesThatGotAHyperlink)
{
    QStringList recordings;
    const auto addAll = [&](const char* folder, const char* pattern) {
        QDirIterator files(folder, {pattern}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            recordings.append(files.next());
    };
    addAll(INKMACRO_SOURCE_DIR "/tests/scenarios", "recording.jsonl");
    addAll(INKMACRO_SOURCE_DIR "/examples", "*.jsonl");
    int linked = 0;
    for (const QString& recording : recordings) {
        // The macro has the name of its file.
        const QString made = "linked/" + QFileInfo(recording).fileName();
        const Outcome outcome =
            run({"run", recording, "--command", "-HYPERLINK", "--output", made}, "Insert\nEntity\nall\nplan.dwg\n\n\n");
        EXPECT_EQ(outcome.status, 0) << recording.toStdString();
        // Some have no entity.
        linked += contents(made).contains("PE_URL") ? 1 : 0;
        for (const char* const target : {"csharp", "vba"})
            EXPECT_EQ(run({"convert", made, "-t", target, "-o-", "-q"}).out.toStdString(),
                      run({"convert", recording, "-t", target, "-o-", "-q"}).out.toStdString())
                << recording.toStdString();
    }
    EXPECT_GT(linked, 15);
}

} // namespace
