#include "fuzzing.h"

#include "module/CFxConverterIWAPI.h"
#include "recordfile/OpenDrawing.h"
#include "statements/RecordingState.h"

#include <QBuffer>
#include <QTemporaryDir>

namespace inkmacro {

namespace {

/// The layout that the recorder's first snapshot would have noted. It is process-wide: what an earlier input left must
/// not change what this one does.
void noteLayout(const Recording::Header& header)
{
    RecordingSheetName = header.sheet ? header.sheet->name : QString();
    RecordingInModel = !header.sheet || header.sheet->model;
}

} // namespace

std::optional<RecordingError> readBytes(QByteArray bytes, Recording& recording)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return ReadRecording(buffer, "fuzz", recording);
}

void convertRecording(const Recording& recording, const TargetRow& target, std::uint32_t mode)
{
    static const QTemporaryDir folder;
    const auto code = static_cast<std::uint32_t>(target.target);
    const int language = recording.header.language.value_or(static_cast<int>(code));
    GetFxSystemServices()->SetInt16("RecordingLanguage", static_cast<std::int16_t>(language));
    noteLayout(recording.header);

    const OpenDrawing drawing(recording);
    const QString extension = QString::fromLatin1(target.extension.data(), static_cast<int>(target.extension.size()));
    const auto converter = CreateConverter(code, mode, static_cast<CFxValueContext>(recording.header.context));
    converter->Convert(folder.filePath("macro." + extension), recording.actions);
}

} // namespace inkmacro
