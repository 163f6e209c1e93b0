#pragma once

#include "host/kernel/CFxUserIO.h"

#include <memory>

namespace inkmacro {

class AnswerReader;

/// Asks on standard output and takes a line of standard input as the answer: at a terminal with editing, history and
/// completion, else each prompt is a line of its own. SIGINT while an answer is awaited, a line that ends with Esc and
/// the end of input are a cancel.
class TerminalIO final : public CFxUserIO
{
public:
    explicit TerminalIO(OdDbDatabase& database);
    ~TerminalIO() override;

    void ShowMessage(const CFxString& message) override;

protected:
    bool ReadAnswer(const CFxString& prompt, const CFxExpectedAnswers& expected, CFxString& answer) override;

private:
    std::unique_ptr<AnswerReader> reader_;
};

} // namespace inkmacro
