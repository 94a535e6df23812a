// All that a journal file says.
#pragma once

#include "embedded/drawing.h"
#include "embedded/events.h"
#include "embedded/name_pool.h"
#include "embedded/settings.h"
#include "embedded/translations.h"

namespace kv
{
struct Recording
{
    ClassNames classes; // outlives the events, which refer to it
    OdSmartPtr<Drawing> drawing = OdSmartPtr<Drawing>::make();
    Settings settings;
    Translations translations;
    CZtJournal journal;
    std::vector<CollectingEvent*> collecting; // in journal order, children of commands included
    std::int32_t recordingMode = 1;
    std::int64_t eventCount = 0;
};
} // namespace kv
