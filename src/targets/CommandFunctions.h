#pragma once

#include "statements/Statement.h"
#include "targets/Answer.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

namespace inkmacro {

/// The statements of one action.
struct ActionStatements
{
    std::uint32_t child; ///< of the command; the actions outside of commands are counted through each run of them
    Statement statements;
};

/// A command whose statements have been made.
struct RecordedCommand
{
    QString name;          ///< as the user typed it
    bool isCommand = true; ///< false for a run of actions outside of commands
    bool replays = false;  ///< whether prompts are to be shown again
    std::vector<Prompt> prompts{};
    std::vector<ActionStatements> actions{};
    QStringList made{}; ///< names of the objects that it adds
};

/// In targets whose commands are functions: makes the function of a command when the command has ended, since its head
/// follows from its body.
class CommandFunctions
{
public:
    CommandFunctions() = default;
    virtual ~CommandFunctions() = default;
    CommandFunctions(const CommandFunctions&) = delete;
    CommandFunctions& operator=(const CommandFunctions&) = delete;

    // What lines are of that are of no action.
    static constexpr int kOwn = -1;            ///< the function itself: its head and its end
    static constexpr int kBesideFunction = -2; ///< what the function needs in front of it

    /// Whole lines.
    struct Lines
    {
        int action; ///< that they are of, by its place in the list
        QString text;
    };

    /// Empty when nothing is left of the command. Notes what is lost of the actions of the command.
    virtual std::vector<Lines> function(const RecordedCommand& command) = 0;
};

} // namespace inkmacro
