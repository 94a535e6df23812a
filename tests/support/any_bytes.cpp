// Any bytes through the reader and the conversion.
#include "support/any_bytes.h"

#include "embedded/session.h"
#include "module/module_object.h"
#include "support/process_state.h"

#include <QtCore/QFile>

#include <stdexcept>

namespace
{
void Require(bool holds, const char* what)
{
    if (!holds)
    {
        throw std::logic_error(what);
    }
}

// An exception of the host's kind is how a conversion may fail too.
ResultCode Convert(kv::Session& session, const QString& macro, std::uint32_t language)
{
    OdRxWin32Module<CZtConverterKVAPIModule, CZtConverterKVAPIModule> module(nullptr);
    try
    {
        return session.Convert(module, macro, language);
    }
    catch (const OdError&)
    {
        QFile::remove(macro); // what was converted ahead of it stays in the file
        return ResultError;
    }
}
} // namespace

AnyBytes::Outcome AnyBytes::Take(const QByteArray& bytes, std::uint32_t language)
{
    ResetProcessState();
    kv::Session session;
    kv::JournalDiagnostics diagnostics;
    if (!session.LoadText(bytes, diagnostics))
    {
        Require(diagnostics.faultCount > 0 && !diagnostics.faults.empty(), "refused without a fault");
        Require(session.Journal().isEmpty() && session.EventCount() == 0, "refused, and yet there are events");
        return Outcome::Refused;
    }
    Require(diagnostics.faultCount == 0, "read in spite of faults");
    const QString macro = folder_.filePath(QStringLiteral("macro.txt"));
    const ResultCode result = Convert(session, macro, language);
    Require(QFile::exists(macro) == (result == ResultNormal), "the macro file doesn't fit the result");
    QFile::remove(macro);
    return result == ResultNormal ? Outcome::Converted : Outcome::Failed;
}
