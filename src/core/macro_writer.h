// Where the text of a conversion goes: the macro file, and whoever observes the conversion.
#pragma once

#include "core/text_file.h"
#include "host/kernel/conversion_observer.h"
#include "host/kernel/result_code.h"

class MacroWriter
{
public:
    // The observer may be null.
    MacroWriter(TextFile& file, ConversionObserver* observer) : file_(file), observer_(observer) {}

    // Sends a text to the file; the event is the one that it came from, null for none.
    void Write(const OdRxObject* event, const QString& text)
    {
        if (text.isEmpty())
        {
            return;
        }
        file_.Write(text);
        if (observer_ != nullptr)
        {
            observer_->TextWritten(event, text);
        }
    }

    // Tells the observer of an event that was converted.
    void Converted(const OdRxObject& event, const QString& text, ResultCode result)
    {
        if (observer_ != nullptr)
        {
            observer_->EventConverted(event, text, result);
        }
    }

private:
    TextFile& file_;
    ConversionObserver* observer_;
};
