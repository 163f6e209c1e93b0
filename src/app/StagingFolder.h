#pragma once

#include "app/earlyEnd.h"

#include <filesystem>
#include <string>
#include <vector>

namespace inkmacro {

/// A temporary folder in which files become whole before they go to their places beside it. It goes with this object,
/// and when the process ends early. When the process is killed, the next folder that is made in the same directory
/// takes it away: as long as its process lives, the folder is locked.
class StagingFolder final : private EarlyEnd
{
public:
    /// `names` are the files that may come into the folder. Raises std::system_error.
    StagingFolder(const std::filesystem::path& directory, const std::vector<std::string>& names);
    ~StagingFolder();

    std::filesystem::path file(const std::string& name) const { return path_ + '/' + name; }
    /// False when somebody took the folder away.
    bool stands() const;

private:
    bool make(const std::filesystem::path& directory);
    void endEarly(int signal) noexcept override;

    std::string path_;
    std::vector<std::string> files_;
    int descriptor_ = -1; ///< holds the lock
};

/// Takes away the staging folders in that directory whose processes are dead.
void removeDeadStaging(const std::filesystem::path& directory);

} // namespace inkmacro
