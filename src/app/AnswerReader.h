#pragma once

#include "host/kernel/CFxString.h"

#include <memory>
#include <vector>

namespace inkmacro {

/// Where answers come from.
class AnswerReader
{
public:
    AnswerReader() = default;
    virtual ~AnswerReader() = default;
    AnswerReader(const AnswerReader&) = delete;
    AnswerReader& operator=(const AnswerReader&) = delete;

    /// Shows the prompt and takes one line, without its end. `expected` are answers that can be completed. False at the
    /// end of input and when SIGINT came.
    virtual bool read(const QString& prompt, const std::vector<CFxString>& expected, QByteArray& line) = 0;
};

/// Of the terminal, when both standard input and standard output are one; else of standard input as it comes.
std::unique_ptr<AnswerReader> makeAnswerReader();

} // namespace inkmacro
