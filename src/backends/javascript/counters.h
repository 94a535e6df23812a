// The counters that operations of JavaScript keep for the whole process, over all conversions. A test may start from a
// known state by assigning a new value; nothing else resets them.
#pragma once

struct JavaScriptCounters
{
    int WriteGetLayer = 0;
    int WriteSetTransparency = 0;
    int WriteSetHyperLink = 0;

    [[nodiscard]] static JavaScriptCounters& OfProcess()
    {
        static JavaScriptCounters counters;
        return counters;
    }
};
