#pragma once

namespace inkmacro {

/// What the process ends with. Of several failures the highest counts; wrong use stands outside, since then nothing
/// was begun.
enum ExitStatus : int
{
    kDone = 0,
    kFailed = 1,
    kWrongUse = 2,
    kUnreadable = 3,
};

} // namespace inkmacro
