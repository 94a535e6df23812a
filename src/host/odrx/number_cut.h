// Cutting a real to an integer without the undefined behaviour of a cast out of range.
#pragma once

#include <cstdint>
#include <limits>

// The real without its fraction; a value out of range gives the nearest number in range, a NaN gives 0.
[[nodiscard]] constexpr std::int32_t CutToInt32(double value)
{
    constexpr double least = std::numeric_limits<std::int32_t>::min();
    constexpr double most = std::numeric_limits<std::int32_t>::max();
    if (value != value)
    {
        return 0;
    }
    return value <= least  ? std::numeric_limits<std::int32_t>::min()
           : value >= most ? std::numeric_limits<std::int32_t>::max()
                           : static_cast<std::int32_t>(value);
}
