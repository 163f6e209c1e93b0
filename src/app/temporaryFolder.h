#pragma once

#include "app/ExitStatus.h"
#include "app/StagedResult.h"
#include "app/console.h"

#include <filesystem>
#include <system_error>

namespace inkmacro {

/// Where folders of a command's own are made. Raises std::system_error.
inline std::filesystem::path temporaryFolder()
{
    return std::filesystem::absolute(std::filesystem::temp_directory_path());
}

/// The exit status of a call that works in a temporary folder, kFailed with a message when there is none, or when a
/// file cannot be placed.
template<class Call>
int orComplainOfFiles(Call call)
{
    try {
        return call();
    } catch (const PlacingError& error) {
        complain(error.message());
    } catch (const std::system_error& error) {
        complain("no temporary folder can be made: " + qt_error_string(error.code().value()));
    }
    return kFailed;
}

} // namespace inkmacro
