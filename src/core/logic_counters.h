// The counters of the logic that live for the process, one for all languages. A test may start from a known state by
// assigning a new value; nothing else resets them.
#pragma once

struct LogicCounters
{
    int hatchPolyline = 0; // number of the next boundary polyline of a hatch
    int region = 0;        // number of the last region

    [[nodiscard]] static LogicCounters& OfProcess();
};
