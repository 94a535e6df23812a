// Who wants to know how a journal becomes a macro: progress, reports, maps from events to lines.
#pragma once

#include "host/export.h"
#include "host/odrx/object.h"

#include <QtCore/QString>

#include <cstdint>

class KVHOST_API ConversionObserver
{
public:
    ConversionObserver() = default;
    virtual ~ConversionObserver();
    ConversionObserver(const ConversionObserver&) = delete;
    ConversionObserver& operator=(const ConversionObserver&) = delete;

    // An event was converted: its text, which may be empty or may be dropped later, and its result code. A command is
    // told after its children, with the head of its block; without text when all its children gave none.
    virtual void EventConverted(const OdRxObject& event, const QString& text, std::int32_t result) = 0;

    // A text goes to the macro file, in the order of the file. The event is the one that it came from; null for text
    // that belongs to no single event, such as the frame of the macro or the head and end of a command's block.
    virtual void TextWritten(const OdRxObject* event, const QString& text) = 0;
};
