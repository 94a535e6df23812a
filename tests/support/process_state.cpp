// What the conversion keeps for the whole process.
#include "support/process_state.h"

#include "backends/cpp/counters.h"
#include "backends/cppcom/counters.h"
#include "backends/csharp/counters.h"
#include "backends/javascript/counters.h"
#include "backends/vba/counters.h"
#include "backends/vbnet/counters.h"
#include "core/logic_counters.h"
#include "core/recording_start.h"

void ResetProcessState()
{
    RecordingStart::Current() = {};
    LogicCounters::OfProcess() = {};
    CppCounters::OfProcess() = {};
    CSharpCounters::OfProcess() = {};
    JavaScriptCounters::OfProcess() = {};
    VbNetCounters::OfProcess() = {};
    ComCounters::OfProcess() = {};
    VbaCounters::OfProcess() = {};
}
