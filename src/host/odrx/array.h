// An array whose access by index is checked.
#pragma once

#include "host/odrx/error.h"

#include <vector>

template <class T>
class OdArray
{
public:
    OdArray() = default;
    OdArray(std::initializer_list<T> items) : items_(items) {}
    explicit OdArray(std::vector<T> items) : items_(std::move(items)) {}

    [[nodiscard]] std::size_t size() const noexcept { return items_.size(); }
    [[nodiscard]] bool isEmpty() const noexcept { return items_.empty(); }

    // The item at a 0-based index. Throws OdError_InvalidIndex past the end.
    [[nodiscard]] const T& operator[](std::size_t index) const
    {
        if (index >= items_.size())
        {
            throw OdError_InvalidIndex();
        }
        return items_[index];
    }

    void append(T item) { items_.push_back(std::move(item)); }
    void reserve(std::size_t count) { items_.reserve(count); }

    [[nodiscard]] auto begin() const noexcept { return items_.begin(); }
    [[nodiscard]] auto end() const noexcept { return items_.end(); }

private:
    std::vector<T> items_;
};
