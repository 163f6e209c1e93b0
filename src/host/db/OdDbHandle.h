#pragma once

#include "host/rx/Export.h"
#include "host/rx/OdString.h"

#include <compare>
#include <cstdint>

/// The name of an object within its drawing: 64 bits, written in hexadecimal. Zero is no object.
class INKHOST_EXPORT OdDbHandle
{
public:
    OdDbHandle() = default;
    explicit OdDbHandle(std::uint64_t value) : value_(value) {}

    std::uint64_t value() const { return value_; }
    bool isNull() const { return value_ == 0; }
    /// Capital hexadecimal digits without leading zeros.
    OdString ascii() const;
    auto operator<=>(const OdDbHandle&) const = default;

private:
    std::uint64_t value_ = 0;
};

/// For tables by handle. Handles come from files: were they their own hashes, those of one file could all fall into one
/// place.
struct INKHOST_EXPORT OdDbHandleHash
{
    std::size_t operator()(const OdDbHandle& handle) const;
};
