#include "app/formatting.h"

#include "app/ExitStatus.h"
#include "app/StagedResult.h"
#include "app/console.h"
#include "dxf/DrawingReader.h"
#include "recordfile/compactLines.h"
#include "recordfile/foreignForm.h"

#include <QFile>

#include <cstdio>

namespace inkmacro {

namespace {

/// Raises PlacingError.
void writeTo(const QString& output, const QByteArray& lines)
{
    StagedResult result({output});
    QFile file(result.firstFile());
    if (!file.open(QIODevice::WriteOnly) || file.write(lines) != lines.size() || !file.flush())
        throw PlacingError(output, file.errorString());
    file.close();
    result.place();
}

} // namespace

int formatRecording(const QString& path, const QString& output)
{
    const bool standardInput = path == "-";
    const QString name = standardInput ? QStringLiteral("standard input") : path;
    QFile file(path);
    const bool isOpen = standardInput ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    const QByteArray json = isOpen ? file.readAll() : QByteArray();
    if (file.error() != QFileDevice::NoError) {
        printLine(name + ": cannot be read: " + file.errorString());
        return kUnreadable;
    }
    if (const QString foreign = foreignForm({json.constData(), static_cast<std::size_t>(json.size())});
        !foreign.isEmpty()) {
        printLine(name + ": cannot be read: " + foreign);
        return kUnreadable;
    }
    if (dxf::looksLikeDrawing({json.constData(), static_cast<std::size_t>(json.size())})) {
        printLine(name + ": is a drawing, and inkmacro import makes a recording of it");
        return kUnreadable;
    }
    const CompactLines made = compactLines(json);
    if (made.wrongLine) {
        printLine(QString("%1:%2: %3").arg(name).arg(*made.wrongLine).arg(made.reason));
        return kUnreadable;
    }
    try {
        if (output.isEmpty())
            printOut(made.lines);
        else
            writeTo(output, made.lines);
    } catch (const PlacingError& error) {
        complain(error.message());
        return kFailed;
    }
    return kDone;
}

} // namespace inkmacro
