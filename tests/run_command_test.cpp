// What the interactive commands leave in a recording.

#include "Program.h"

namespace {

TEST_F(Program, MakesTheSameMacrosOfEntitiesThatGotAHyperlink)
{
    const QDir scenarios(INKMACRO_SOURCE_DIR "/tests/scenarios");
    int linked = 0;
    for (const QString& name : scenarios.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString recording = scenarios.filePath(name + "/recording.jsonl");
        if (!QFile::exists(recording))
            continue;
        const Outcome outcome = run({"run", recording, "--command", "-HYPERLINK", "--output", "linked/recording.jsonl"},
                                    "Insert\nEntity\nall\nplan.dwg\n\n\n");
        EXPECT_EQ(outcome.status, 0) << name.toStdString();
        // Some have no entity.
        linked += contents("linked/recording.jsonl").contains("PE_URL") ? 1 : 0;
        for (const char* const target : {"csharp", "vba"})
            EXPECT_EQ(run({"convert", "linked/recording.jsonl", "-t", target, "-o-", "-q"}).out.toStdString(),
                      run({"convert", recording, "-t", target, "-o-", "-q"}).out.toStdString())
                << name.toStdString();
    }
    EXPECT_GT(linked, 15);
}

} // namespace
