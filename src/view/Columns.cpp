#include "view/Columns.h"

#include <bit>

namespace inkmacro::view {

static_assert(std::endian::native == std::endian::little, "bytes of numbers go into pages as they are in memory");

void Columns::append(const char* name, const char* type, std::size_t count, const char* numbers, std::size_t width)
{
    constexpr int alignment = 8;
    bytes_.append((alignment - bytes_.size() % alignment) % alignment, '\0');
    bytes_.append(numbers, static_cast<int>(count * width));
    layout_.append(QJsonArray{name, type, static_cast<qint64>(count)});
}

void Columns::addDeltas(const char* name, const std::vector<std::int32_t>& column)
{
    std::vector<std::uint32_t> deltas(column.size());
    std::uint32_t before = 0;
    for (std::size_t i = 0; i < column.size(); ++i) {
        const auto number = static_cast<std::uint32_t>(column[i]);
        deltas[i] = number - before;
        before = number;
    }
    append(name, "d32", deltas);
}

} // namespace inkmacro::view
