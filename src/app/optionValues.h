#pragma once

#include "app/CommandLine.h"

namespace inkmacro {

/// What the values of options come to in a command line. All of them raise WrongUse, without the option's name.
void takeTargets(CommandLine& line, const QString& list);
void takeOutput(CommandLine& line, const QString& path);
void takeSince(CommandLine& line, const QString& path);
void takeLayers(CommandLine& line, const QString& list);
void takeTolerance(CommandLine& line, const QString& number);
void takeMacro(CommandLine& line, const QString& path);
void takeRecordingLanguage(CommandLine& line, const QString& number);
void takeLineStyles(CommandLine& line, const QString& path);
void takeReport(CommandLine& line, const QString& form);
void takeReportFile(CommandLine& line, const QString& path);
void takeFailOn(CommandLine& line, const QString& list);
void takeHandle(CommandLine& line, const QString& text);
void takeDepth(CommandLine& line, const QString& text);
void takeHostCommand(CommandLine& line, const QString& name);

QStringList recordingLanguages();
QStringList reportForms();
/// What `--fail-on` takes.
QStringList noteKinds();

/// Raises WrongUse for a text that is none of these words.
void checkWord(const QString& text, const QStringList& words);

} // namespace inkmacro
