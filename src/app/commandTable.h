#pragma once

#include "app/CommandLine.h"

#include <vector>

namespace inkmacro {

/// What a shell offers for a word of the command line.
enum class Offer
{
    Nothing,
    Files,
    Folders,
    Names, ///< words that are looked up elsewhere
    Words, ///< one of them and nothing else
    Lists, ///< some of them, with commas between
};

/// An option. The parser, the help, the completions of shells and the pages of docs/ all follow these rows.
struct OptionRow
{
    const char* name;           ///< with its hyphens
    char letter = 0;            ///< of the short form
    const char* form = nullptr; ///< of its value, as the usage shows it; null for an option without one
    Offer offer = Offer::Nothing;
    QStringList (*words)() = nullptr;
    void (*take)(CommandLine&, const QString& value);
    const char* meaning; ///< a line
    const char* text;    ///< of the help, in lines of at most 74 letters
    bool required = false;
    bool mayLack = false; ///< the value, which behind a blank is taken for one only when it is one of the words
    bool repeats = false;
};

/// The arguments of a command that are no options.
enum class Operands
{
    None,
    File,
    Files,
    Word,      ///< one of those of the row
    MaybeWord, ///< or nothing
};

struct CommandRow
{
    CommandLine::Command command;
    const char* name;
    const char* meaning; ///< a line
    Operands operands = Operands::None;
    const char* form = ""; ///< of the operands, as the usage shows it
    QStringList (*words)() = nullptr;
    void (*takeWord)(CommandLine&, const QString& word) = nullptr;
    const char* text; ///< of the help, in lines of at most 78 letters
    std::vector<OptionRow> options = {};
};

const std::vector<CommandRow>& commandTable();
QStringList commandNames();
/// Null for a name that no command has.
const CommandRow* findCommandRow(const QString& name);

/// The options that stand without a command; the first of them, which asks for help, stands behind any command too.
const std::vector<OptionRow>& generalOptions();

/// By its name or its letter, as in "--output" and "-o"; null when no row has it.
const OptionRow* findOptionRow(const std::vector<OptionRow>& rows, const QString& name);

} // namespace inkmacro
