#include "app/console.h"

#include "app/ExitStatus.h"
#include "app/valueText.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>

#include <fcntl.h>
#include <stdio_ext.h>
#include <unistd.h>

namespace inkmacro {

namespace {

int outputError = 0;

void noteOutputError(bool failed)
{
    if (failed && outputError == 0)
        outputError = errno;
}

} // namespace

void prepareStreams()
{
    // A stream that the caller closed would give its number to the next file opened, and messages would end up in a
    // macro. The null device is opened the wrong way round, so that use of the stream still fails.
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (fcntl(stream, F_GETFD) == -1)
            (void)open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

void printOut(const QByteArray& text)
{
    static const bool isTerminal = isatty(STDOUT_FILENO) != 0;
    const QByteArray bytes = isTerminal ? printableLines(QString::fromLocal8Bit(text)).toLocal8Bit() : text;
    const auto size = static_cast<std::size_t>(bytes.size());
    noteOutputError(std::fwrite(bytes.constData(), 1, size, stdout) != size);
}

void printOut(const QString& text)
{
    printOut(text.toLocal8Bit());
}

void printError(const QByteArray& bytes)
{
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
}

void printLine(const QString& message)
{
    printError((printable(message) + '\n').toLocal8Bit());
}

void complain(const QString& message)
{
    printLine("inkmacro: " + message);
}

void flushOut()
{
    noteOutputError(std::fflush(stdout) != 0);
}

int finishOutput(int status)
{
    flushOut();
    // Some file systems find out only here that the disk is full.
    noteOutputError(close(STDOUT_FILENO) != 0);
    if (outputError == 0 || outputError == EPIPE)
        return status;
    complain("standard output: " + qt_error_string(outputError));
    return std::max<int>(status, kFailed);
}

void forgetOutput()
{
    __fpurge(stdout);
    outputError = 0;
}

} // namespace inkmacro
