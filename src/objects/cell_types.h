// The types of a table's cells as the API counts them.
#pragma once

#include <cstdint>

// In the order in which the journal lists the values of a table style.
constexpr std::int32_t DataCell = 1;
constexpr std::int32_t TitleCell = 2;
constexpr std::int32_t HeaderCell = 3;
