// The conversion alone, to each target: the recording is in memory, the macro goes to a temporary folder.

#include "host/kernel/CFxServices.h"
#include "module/CFxConverterIWAPI.h"
#include "recordfile/RecordingReader.h"
#include "statements/TargetTable.h"

#include <benchmark/benchmark.h>

#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

namespace inkmacro {
namespace {

/// A recording, or what went wrong with it.
struct Made
{
    Recording recording;
    QString error;
};

Made makeRecording(const char* objects, const char* kind)
{
    Made made;
    const QTemporaryDir folder;
    const QString file = folder.filePath("recording.jsonl");
    const QString maker = QFileInfo(INKMACRO_PROGRAM).path() + "/make_recording";
    if (QProcess::execute(maker, {objects, file, kind}) != 0)
        made.error = "make_recording failed";
    else if (const auto error = ReadRecording(file, made.recording))
        made.error = error->text();
    return made;
}

/// The bytes of the macro file; 0 after a failure.
qint64 convert(Target target, const Recording& recording, const QString& macro)
{
    const auto converter = CreateConverter(static_cast<std::uint32_t>(target), 0, 0);
    const bool done = converter && converter->Convert(macro, recording.actions) == kFxSuccess;
    return done ? QFileInfo(macro).size() : 0;
}

void BM_Convert(benchmark::State& state, Target target)
{
    // Read once: each repetition for each target comes here anew.
    static const Made made = makeRecording("20000", "drawing");
    if (!made.error.isEmpty()) {
        state.SkipWithError(qPrintable(made.error));
        return;
    }
    CFxDocument document(made.recording.database.get());
    GetFxSystemServices()->SetInt16("RecordingLanguage", static_cast<std::int16_t>(target));
    GetFxSystemServices()->SetActiveDocument(&document);
    // As in a conversion that nobody asks for a report of.
    GetFxSystemServices()->Notes().KeepAll(false);

    const QTemporaryDir folder;
    qint64 bytes = 0;
    for ([[maybe_unused]] auto _ : state) {
        const qint64 written = convert(target, made.recording, folder.filePath("macro"));
        if (written == 0) {
            state.SkipWithError("the conversion failed");
            break;
        }
        bytes += written;
    }
    state.SetBytesProcessed(bytes);
    GetFxSystemServices()->SetActiveDocument(nullptr);
}

#define BENCHMARK_TARGET(id, suffix, name, title, extension, projectFiles)                                             \
    BENCHMARK_CAPTURE(BM_Convert, id, Target::id)                                                                      \
        ->UseRealTime()                                                                                                \
        ->Unit(benchmark::kMillisecond)                                                                                \
        ->Name("BM_Convert/" name);
INKMACRO_TARGETS(BENCHMARK_TARGET)
#undef BENCHMARK_TARGET

} // namespace
} // namespace inkmacro
