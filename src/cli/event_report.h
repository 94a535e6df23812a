// What became of each event of a journal, as a table for people.
#pragma once

#include "host/kernel/conversion_observer.h"

#include <QtCore/QString>

#include <unordered_map>

namespace kv
{
class Session;
}

namespace kv::cli
{

class EventReport final : public ConversionObserver
{
public:
    // The session must outlive the report.
    explicit EventReport(const Session& session) : session_(session) {}

    void EventConverted(const OdRxObject& event, const QString& text, std::int32_t result) override;
    void TextWritten(const OdRxObject* event, const QString& text) override;

    // A line for each event in the order of the journal (its line in the file, its kind, its class or name, and whether
    // it gave text), then the counts by kind; the counts alone for a summary.
    [[nodiscard]] QString Text(bool summaryOnly) const;

private:
    struct Outcome
    {
        bool text;
        std::int32_t result;
    };

    const Session& session_;
    std::unordered_map<const OdRxObject*, Outcome> outcomes_;
};

} // namespace kv::cli
