// Keeping and formatting the faults of a journal file.
#include "embedded/diagnostics.h"

namespace kv
{
namespace
{
QString located(const QString& file, const JournalFault& fault)
{
    QString text = file;
    if (fault.line > 0)
    {
        text += QLatin1Char(':') + QString::number(fault.line);
    }
    return text + QLatin1String(": ") + fault.message;
}

QStringList locatedAll(const QString& file, const std::vector<JournalFault>& faults)
{
    QStringList lines;
    for (const JournalFault& fault : faults)
    {
        lines += located(file, fault);
    }
    return lines;
}
} // namespace

void JournalDiagnostics::AddFault(std::int64_t line, QString message)
{
    ++faultCount;
    if (faults.size() < MostFaults)
    {
        faults.push_back({line, std::move(message)});
    }
}

void JournalDiagnostics::AddRemark(std::int64_t line, QString message)
{
    remarks.push_back({line, std::move(message)});
}

QStringList FormatFaults(const QString& file, const JournalDiagnostics& diagnostics)
{
    QStringList lines = locatedAll(file, diagnostics.faults);
    const std::int64_t more = diagnostics.faultCount - static_cast<std::int64_t>(diagnostics.faults.size());
    if (more > 0)
    {
        lines += file + QLatin1String(": ") + QString::number(more) +
                 QLatin1String(more == 1 ? " more fault" : " more faults");
    }
    return lines;
}

QStringList FormatRemarks(const QString& file, const JournalDiagnostics& diagnostics)
{
    return locatedAll(file, diagnostics.remarks);
}
} // namespace kv
