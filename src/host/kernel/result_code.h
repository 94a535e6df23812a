// The result codes of the application.
#pragma once

#include <cstdint>

using ResultCode = std::int32_t;

inline constexpr ResultCode ResultNormal = 5100;
inline constexpr ResultCode ResultError = -5001;

// What a prompt and a command give beyond that: the user cancelled, or typed a keyword in place of another answer.
inline constexpr ResultCode ResultCancelled = -5002;
inline constexpr ResultCode ResultKeyword = -5005;
