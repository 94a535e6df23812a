// Where the drawing work of the recording began. Lives for the process, between recording and conversion.
#pragma once

#include "host/kernel/zt_string.h"

struct RecordingStart
{
    // True when the macro starts in the model, false when it starts on a sheet.
    bool RecordingStartsInModel = true;

    // The name of the layout on which the recording started; empty while nothing was collected.
    CZtString RecordingStartSheet;

    // The one value of the process.
    [[nodiscard]] static RecordingStart& Current();
};
