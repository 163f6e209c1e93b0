#pragma once

#include <QByteArray>
#include <QString>

namespace inkmacro {

/// Gives the process all three standard streams and makes a reader who has gone, a full disk and a file size limit
/// errors to be handled instead of the end of the process. Comes before anything opens a file.
void prepareStreams();

/// Standard output. What cannot be written is dropped; finishOutput tells. A terminal gets the text without the letters
/// that it would obey; a pipe or a file gets it as it is.
void printOut(const QByteArray& text);
void printOut(const QString& text);
/// Sends on its way what has been printed so far.
void flushOut();

/// Standard error: bytes as they are, a printable line, or one message of this program.
void printError(const QByteArray& bytes);
void printLine(const QString& message);
void complain(const QString& message);

/// Sends the rest of standard output on its way and closes it. Gives `status`, raised to kFailed with a message when
/// output was lost; a reader who closed the pipe has seen enough and is no failure.
int finishOutput(int status);

/// In a process that has just been forked: what the other one has not written yet is that one's to write.
void forgetOutput();

} // namespace inkmacro
