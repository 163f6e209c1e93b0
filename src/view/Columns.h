#pragma once

#include <QByteArray>
#include <QJsonArray>

#include <cstdint>
#include <vector>

namespace inkmacro::view {

/// Columns of numbers as a page reads them, as typed arrays: one behind the other, each from a multiple of eight bytes
/// on, with the low byte first. What they are called and how long they are stands in a list beside them.
class Columns
{
public:
    void add(const char* name, const std::vector<std::uint8_t>& column) { append(name, "u8", column); }
    void add(const char* name, const std::vector<std::uint16_t>& column) { append(name, "u16", column); }
    void add(const char* name, const std::vector<std::uint32_t>& column) { append(name, "u32", column); }
    void add(const char* name, const std::vector<double>& column) { append(name, "f64", column); }
    /// As differences to the number before, which take less room where numbers rise evenly.
    void addDeltas(const char* name, const std::vector<std::int32_t>& column);

    const QByteArray& bytes() const { return bytes_; }
    /// A list of name, type and length for each.
    const QJsonArray& layout() const { return layout_; }

private:
    template<class Number>
    void append(const char* name, const char* type, const std::vector<Number>& column)
    {
        append(name, type, column.size(), reinterpret_cast<const char*>(column.data()), sizeof(Number));
    }
    void append(const char* name, const char* type, std::size_t count, const char* numbers, std::size_t width);

    QByteArray bytes_;
    QJsonArray layout_;
};

} // namespace inkmacro::view
