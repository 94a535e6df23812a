// The counters of the logic that live for the process, one for all languages. A test may start from a known state by
// assigning a new value; nothing else resets them.
#pragma once

#include "core/macro_language.h"

#include <array>

struct LogicCounters
{
    int hatchPolyline = 0; // number of the next boundary polyline of a hatch
    int region = 0;        // number of the last region

    // Numbers of the helpers of hatch boundaries, for each language apart.
    std::array<int, 6> boundaryEntity{};
    [[nodiscard]] int NextBoundaryEntity(MacroLanguage language)
    {
        return boundaryEntity.at(static_cast<std::size_t>(language))++;
    }

    [[nodiscard]] static LogicCounters& OfProcess();
};
