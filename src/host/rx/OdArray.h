#pragma once

#include "host/rx/OdError.h"

#include <cstddef>
#include <initializer_list>
#include <utility>
#include <vector>

/// Growing array whose subscript is checked: an index beyond the length raises OdError_InvalidIndex.
template<class T>
class OdArray
{
public:
    OdArray() = default;
    OdArray(std::initializer_list<T> items) : items_(items) {}

    unsigned length() const { return static_cast<unsigned>(items_.size()); }
    bool isEmpty() const { return items_.empty(); }
    void append(T item) { items_.push_back(std::move(item)); }

    const T& operator[](std::size_t index) const
    {
        if (index >= items_.size())
            throw OdError_InvalidIndex();
        return items_[index];
    }

    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }
    bool operator==(const OdArray&) const = default;

private:
    std::vector<T> items_;
};
