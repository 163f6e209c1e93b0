#pragma once

#include <cstdint>

/// What the host and the module tell each other of how something ended. Every stage compares against kFxSuccess.
enum CFxStatus : std::int32_t
{
    kFxSuccess = 5100,
    kFxNothing = 5000, ///< the user gave an empty answer
    kFxFailure = -5001,
    kFxCancelled = -5002,
};
