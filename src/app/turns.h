#pragma once

#include <QtGlobal>

namespace inkmacro {

// Macros in one folder share files of their projects. Their processes read side by side but write one after another,
// in the order of the jobs, so that what stays of a shared file is whole and always the last one's.

/// A process's place behind another one, as its parent sees it: the end of a pipe that the process listens to.
class Turn
{
public:
    Turn();
    ~Turn();
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;

    /// What the environment of the process has to say, and what has to be done between its fork and its start.
    static const char* variable();
    int descriptor() const { return waiting_; }
    void inherit() const;

    /// The process has been started.
    void started();
    /// It may write now.
    void come();

private:
    int waiting_ = -1;
    int holding_ = -1;
};

/// Called by a process before it writes. Returns at once when nobody told it to wait.
void waitForTurn();

} // namespace inkmacro
