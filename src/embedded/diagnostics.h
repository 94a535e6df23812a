// What is to be said about a journal file: its faults, and remarks that stop nothing.
#pragma once

#include "embedded/export.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <cstdint>
#include <vector>

namespace kv
{
struct JournalFault
{
    std::int64_t line = 0; // counts from 1; 0 for the file as a whole
    QString message;       // what is wrong and what was expected
};

struct JournalDiagnostics
{
    // The first faults, up to MostFaults; all are counted.
    static constexpr std::size_t MostFaults = 20;
    std::vector<JournalFault> faults;
    std::int64_t faultCount = 0;

    // Unknown keys of the journal's head, a last line that was cut off, a command that was open at the end.
    std::vector<JournalFault> remarks;

    KVEMBEDDED_API void AddFault(std::int64_t line, QString message);
    KVEMBEDDED_API void AddRemark(std::int64_t line, QString message);
};

// The faults and the remarks as lines "FILE:LINE: message", without a line number for the file as a whole. Faults that
// were only counted give one more line with their number.
[[nodiscard]] KVEMBEDDED_API QStringList FormatFaults(const QString& file, const JournalDiagnostics& diagnostics);
[[nodiscard]] KVEMBEDDED_API QStringList FormatRemarks(const QString& file, const JournalDiagnostics& diagnostics);
} // namespace kv
