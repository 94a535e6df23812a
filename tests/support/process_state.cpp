// What the conversion keeps for the whole process.
#include "support/process_state.h"

#include "backends/cpp/counters.h"
#include "backends/cppcom/counters.h"
#include "core/recording_start.h"

void ResetProcessState()
{
    RecordingStart::Current() = {};
    CppCounters::OfProcess() = {};
    ComCounters::OfProcess() = {};
}
