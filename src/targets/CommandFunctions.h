#pragma once

#include "statements/HeldStatement.h"
#include "targets/Answer.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <vector>

namespace inkmacro {

/// The statements of one action, of which there are some.
struct ActionStatements
{
    std::uint32_t child; ///< of the command; the actions outside of commands are counted through each run of them
    HeldStatement statements;
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

    /// Takes whole lines, and of which action they are, by its place in the list.
    using Sink = std::function<void(int action, const QString& lines)>;

    /// Gives the function line by line, or nothing when nothing is left of the command. Notes what is lost of the
    /// actions of the command.
    virtual void write(const RecordedCommand& command, const Sink& sink) = 0;
};

} // namespace inkmacro
