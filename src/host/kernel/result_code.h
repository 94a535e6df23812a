// The result codes of the application.
#pragma once

#include <cstdint>

using ResultCode = std::int32_t;

inline constexpr ResultCode ResultNormal = 5100;
inline constexpr ResultCode ResultError = -5001;
