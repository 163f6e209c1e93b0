#pragma once

#include <QString>

#include <array>
#include <optional>

namespace inkmacro {

class StagingFolder;

/// The names of what may be put into a folder to hold a recording.
inline constexpr std::array kHeldNames{"recording.jsonl", "imported.jsonl"};

/// A file that has the recording and can be read again and again: the input itself, or when that comes once, or is a
/// drawing, one in the folder. None when it cannot be read, of which its user has been told. Raises PlacingError.
std::optional<QString> holdRecording(const QString& input, const StagingFolder& folder);

} // namespace inkmacro
