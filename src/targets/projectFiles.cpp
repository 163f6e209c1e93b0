// The files of a project, beside the macro file.

#include "targets/projectFiles.h"

#include "host/kernel/CFxServices.h"
#include "host/kernel/CFxStatus.h"
#include "statements/RecordingState.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include <algorithm>
#include <set>

namespace inkmacro {

namespace {

bool writeTextFile(const QString& path, const QString& text, bool byteOrderMark)
{
    QFile file(path);
    const bool opened = file.open(QIODevice::WriteOnly | QIODevice::Truncate);
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    stream.setGenerateByteOrderMark(byteOrderMark);
    if (opened)
        stream << text;
    stream.flush();
    // A file that is not whole is no failure of the conversion, but the host has to know that the disk is full.
    if (!opened || !file.flush() || stream.status() != QTextStream::Ok)
        GetFxSystemServices()->ReportFailedFile(path, opened ? writeFailure(file) : file.errorString());
    return opened;
}

/// A line that has a fault several times has it once.
void noteFaults(const ProjectFile& file)
{
    const QString& text = file.text.text();
    std::set<std::pair<const Fault*, std::size_t>> noted;
    for (const StatementNote& note : file.text.notes()) {
        const auto lines = std::count(text.begin(), text.begin() + note.offset, QChar('\n'));
        const auto* const fault = std::get_if<const Fault*>(&note.what);
        if (fault && noted.emplace(*fault, lines).second)
            noteFault(**fault, file.name, static_cast<std::size_t>(lines) + 1);
    }
}

} // namespace

void noteFault(const Fault& fault, const QString& file, std::size_t line)
{
    GetFxSystemServices()->Notes().NoteFault(&fault, file, static_cast<std::uint32_t>(line), [&] {
        return CFxFaultNote{fault.operation(), fault.reason(), file, fault.mended(), {}};
    });
}

QString writeFailure(QFileDevice& file)
{
    // Of a write that was cut short only the one behind it tells why.
    if (file.error() == QFileDevice::NoError) {
        file.write(" ");
        file.flush();
    }
    return file.errorString();
}

QString xmlText(const QString& text)
{
    return text.toHtmlEscaped();
}

QString msbuildItem(const QString& fileName)
{
    QString item;
    for (const QChar character : fileName) {
        const ushort code = character.unicode();
        // Blanks in front of an entry are no part of it.
        const bool reserved = code < 0x20 || code == 0x7F || QStringView(u"%*?;@$()'\\").contains(character) ||
                              (item.isEmpty() && character == u' ');
        item += reserved ? '%' + QString::number(code, 16).toUpper().rightJustified(2, '0') : QString(character);
    }
    return xmlText(item);
}

bool isXmlName(const QString& fileName)
{
    return QString::fromUtf8(fileName.toUtf8()) == fileName && !fileName.contains(QChar(0xFFFE)) &&
           !fileName.contains(QChar(0xFFFF));
}

Statement fillProject(const char* words, std::initializer_list<Statement> values, Template::Markers markers)
{
    const Template text(words, markers);
    Fill fill(&text, {.repairs = RepairsMacros()});
    for (const Statement& value : values)
        fill.word(value);
    return fill;
}

std::int32_t WriteProject(const QString& macroPath, const std::vector<ProjectFile>& files)
{
    const QString directory = QFileInfo(macroPath).path();
    if (!QDir().exists(directory) && !QDir().mkpath(directory))
        return kFxFailure;
    for (const ProjectFile& file : files) {
        if (!writeTextFile(directory + "//" + file.name, file.text.text(), file.byteOrderMark))
            return kFxFailure;
        noteFaults(file);
    }
    return kFxSuccess;
}

} // namespace inkmacro
