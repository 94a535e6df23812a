// The counters that operations of C++ COM keep for the whole process, over all conversions. A test may start from
// a known state by assigning a new value; nothing else resets them.
#pragma once

struct ComCounters
{
    int WriteGetLayer = 0;
    int WriteSetTransparency = 0;
    int WriteSetHyperLink = 0;

    [[nodiscard]] static ComCounters& OfProcess()
    {
        static ComCounters counters;
        return counters;
    }
};
