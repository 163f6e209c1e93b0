// The conversion alone: the recording is in memory, the macro goes to a temporary folder.

#include "frame/CFxConverterIWAPI.h"
#include "host/kernel/CFxServices.h"
#include "recordfile/RecordingReader.h"
#include "targets/Target.h"

#include <benchmark/benchmark.h>

#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

namespace inkmacro {
namespace {

constexpr auto language = static_cast<std::uint32_t>(Target::CSharp);

/// Fills an empty recording with a made one of that many objects; gives what went wrong.
QString makeRecording(const char* objects, const char* kind, Recording& recording)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("recording.jsonl");
    const QString maker = QFileInfo(INKMACRO_PROGRAM).path() + "/make_recording";
    if (QProcess::execute(maker, {objects, file, kind}) != 0)
        return "make_recording failed";
    const auto error = ReadRecording(file, recording);
    return error ? error->text() : QString();
}

/// The bytes of the macro file; 0 after a failure.
qint64 convert(const Recording& recording, const QString& macro)
{
    const auto converter = CreateConverter(language, 0, 0);
    const bool done = converter && converter->Convert(macro, recording.actions) == kFxSuccess;
    return done ? QFileInfo(macro).size() : 0;
}

void BM_Convert(benchmark::State& state)
{
    Recording recording;
    if (const QString error = makeRecording("20000", "drawing", recording); !error.isEmpty()) {
        state.SkipWithError(qPrintable(error));
        return;
    }
    CFxDocument document(recording.database.get());
    GetFxSystemServices()->SetInt16("RecordingLanguage", static_cast<std::int16_t>(language));
    GetFxSystemServices()->SetActiveDocument(&document);

    const QTemporaryDir folder;
    qint64 bytes = 0;
    for ([[maybe_unused]] auto _ : state) {
        const qint64 written = convert(recording, folder.filePath("macro.cs"));
        if (written == 0) {
            state.SkipWithError("the conversion failed");
            break;
        }
        bytes += written;
    }
    state.SetBytesProcessed(bytes);
    GetFxSystemServices()->SetActiveDocument(nullptr);
}
BENCHMARK(BM_Convert)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace inkmacro
