#include "host/db/OdDbHandle.h"

#include <QRandomGenerator>

OdString OdDbHandle::ascii() const
{
    return OdString::number(value_, 16).toUpper();
}

/// Spreads the upper bits over all, with a seed of this process. Neighbors stay neighbors, as they are used.
std::size_t OdDbHandleHash::operator()(const OdDbHandle& handle) const
{
    static const std::uint64_t seed = QRandomGenerator::system()->generate64();
    constexpr int neighborBits = 8;
    std::uint64_t bits = (handle.value() >> neighborBits) ^ seed;
    bits = (bits ^ bits >> 33) * 0xFF51AFD7ED558CCDU;
    bits = (bits ^ bits >> 33) * 0xC4CEB9FE1A85EC53U;
    return (bits ^ bits >> 33) + (handle.value() & ((1U << neighborBits) - 1));
}
