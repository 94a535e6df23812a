// The rows behind the enumeration constants; what asks for a constant includes enumerations.h.
#pragma once

#include "backends/text/enumerations.h"

#include <span>
#include <variant>

namespace kv
{
/// A number of the host and its constant.
struct NumberRow
{
    int number;
    const char* constant;
};

/// A flag and its constant.
struct FlagRow
{
    bool flag;
    const char* constant;
};

/// A display word in its untranslated form and its constant.
struct WordRow
{
    const char* key;
    const char* constant;
};

/// One enumeration of the automation API. The sort of its rows is the sort of value that it is asked with.
struct EnumTable
{
    const char* enumeration;
    const char* fallback; ///< the constant of a value that has no row
    std::variant<std::span<const NumberRow>, std::span<const FlagRow>, std::span<const WordRow>> rows;
    const char* context = "property_values"; ///< where the display words have their translations
};

/// All tables; the index is the number of the EnumKind.
[[nodiscard]] std::span<const EnumTable> EnumTables();
} // namespace kv
