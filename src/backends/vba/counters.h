// The counters that operations of VBA keep for the whole process, over all conversions. A test may start from
// a known state by assigning a new value; nothing else resets them.
#pragma once

struct VbaCounters
{
    int WriteGetLayer = 0;
    int WriteSetTransparency = 0;
    int WriteSetHyperLink = 0;

    [[nodiscard]] static VbaCounters& OfProcess()
    {
        static VbaCounters counters;
        return counters;
    }
};
