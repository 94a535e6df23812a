// One conversion of a journal text in a folder of its own.
#include "support/conversion_run.h"

#include "embedded/session.h"
#include "module/module_object.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <stdexcept>

void ConversionLog::EventConverted(const OdRxObject& event, const QString& text, std::int32_t result)
{
    events.push_back({&event, text, result});
}

void ConversionLog::TextWritten(const OdRxObject* event, const QString& text)
{
    texts.push_back({event, text});
}

ConversionRun::ConversionRun(QByteArray journal, std::uint32_t language, std::optional<std::int32_t> recordingMode)
{
    if (!journal.contains("\"journal\":"))
    {
        journal.prepend("{\"journal\":{\"version\":1}}\n");
    }
    kv::Session session;
    kv::JournalDiagnostics diagnostics;
    if (!session.LoadText(journal, diagnostics))
    {
        const QStringList faults = kv::FormatFaults(QStringLiteral("journal"), diagnostics);
        throw std::runtime_error(faults.join(QLatin1Char('\n')).toStdString());
    }
    session.SetObserver(&log);
    OdRxWin32Module<CZtConverterKVAPIModule, CZtConverterKVAPIModule> module(nullptr);
    result = session.Convert(module, folder.filePath(QStringLiteral("macro.txt")), language, recordingMode);
}

QString ConversionRun::Body() const
{
    QString body;
    for (std::size_t i = 1; i + 1 < log.texts.size(); ++i)
    {
        body += log.texts[i].text;
    }
    return body;
}

QString ConversionRun::Whole() const
{
    QString whole;
    for (const ConversionLog::Text& text : log.texts)
    {
        whole += text.text;
    }
    return whole;
}

QByteArray ConversionRun::File(const QString& name) const
{
    QFile file(folder.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList ConversionRun::Files() const
{
    return QDir(folder.path()).entryList(QDir::Files, QDir::Name);
}
