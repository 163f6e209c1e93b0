#include "dxf/GroupPieces.h"

namespace inkmacro::dxf {

const Group* find(Piece piece, int code)
{
    const auto found = std::find_if(piece.begin(), piece.end(), [&](const Group& group) { return group.code == code; });
    return found == piece.end() ? nullptr : &*found;
}

double real(Piece piece, int code)
{
    const Group* const group = find(piece, code);
    return group ? EntityReader::realOf(*group) : 0.0;
}

qint64 integer(Piece piece, int code, qint64 otherwise)
{
    const Group* const group = find(piece, code);
    return group ? EntityReader::integerOf(*group) : otherwise;
}

std::vector<Piece> split(Piece groups, int code)
{
    std::vector<Piece> pieces;
    std::size_t begin = groups.size();
    for (std::size_t i = 0; i <= groups.size(); ++i) {
        if (i < groups.size() && groups[i].code != code)
            continue;
        if (begin < i)
            pieces.push_back(groups.subspan(begin, i - begin));
        begin = i;
    }
    return pieces;
}

std::vector<OdGePoint3d> points(Piece groups, int code)
{
    std::vector<OdGePoint3d> all;
    for (const Piece point : split(groups, code))
        all.push_back({real(point, code), real(point, code + 10), real(point, code + 20)});
    return all;
}

} // namespace inkmacro::dxf
