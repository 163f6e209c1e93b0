#pragma once

#include <QtGlobal>

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace inkmacro::dxf {

/// What became of the entities of a drawing file, by their kinds. Each of them is in one of the first three.
struct Accounts
{
    struct Approximated
    {
        qint64 count = 0;
        double deviation = 0; ///< the largest, in drawing units
    };
    using ByReason = std::map<std::pair<std::string, std::string>, qint64>; ///< kind, and why or what

    using ByKind = std::map<std::string, qint64>;
    /// Of entities that another drawing has too, or had.
    struct Since
    {
        ByKind changed;
        ByKind erased;
        ByKind unchanged;
    };

    ByKind imported;
    std::map<std::string, Approximated> approximated;
    ByReason lost;
    ByReason untold; ///< what the file says of imported entities and the recording does not
    std::optional<Since> since;
    std::vector<std::string> remarks; ///< on the file as a whole

    void lose(std::string_view kind, const char* reason) { ++lost[{std::string(kind), reason}]; }
    void leaveOut(std::string_view kind, const char* what) { ++untold[{std::string(kind), what}]; }
};

} // namespace inkmacro::dxf
