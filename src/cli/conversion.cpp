// The conversion itself: reads the journal, loads the module and sees that all text reached the disk.
#include "cli/conversion.h"

#include "cli/failure.h"
#include "cli/progress.h"
#include "cli/storage_check.h"
#include "embedded/module_loader.h"
#include "embedded/session.h"
#include "host/odrx/error.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

#include <cstdio>

namespace kv::cli
{

namespace
{

// Counts for the progress and for the length of the macro, and hands everything on.
class Tally final : public ConversionObserver
{
public:
    Tally(const std::string& label, std::int64_t events, ConversionObserver* next)
        : progress_(label, events), next_(next)
    {
    }

    void EventConverted(const OdRxObject& event, const QString& text, std::int32_t result) override
    {
        progress_.Step();
        if (next_ != nullptr)
        {
            next_->EventConverted(event, text, result);
        }
    }

    void TextWritten(const OdRxObject* event, const QString& text) override
    {
        bytes_ += LeastUtf8Size(text);
        if (next_ != nullptr)
        {
            next_->TextWritten(event, text);
        }
    }

    [[nodiscard]] std::uint64_t Bytes() const { return bytes_; }

private:
    Progress progress_;
    ConversionObserver* next_;
    std::uint64_t bytes_ = 0;
};

void Print(const QStringList& lines)
{
    for (const QString& line : lines)
    {
        std::fprintf(stderr, "%s\n", QFile::encodeName(line).constData());
    }
}

void Print(const QString& file, const JournalDiagnostics& diagnostics, bool withRemarks)
{
    Print(FormatFaults(file, diagnostics));
    if (withRemarks)
    {
        Print(FormatRemarks(file, diagnostics));
    }
}

std::string ModuleFile(const std::string& asked)
{
    return asked.empty() ? QFile::encodeName(QCoreApplication::applicationDirPath() + "/kvconverter.so").toStdString()
                         : asked;
}

std::string ErrorText(int error)
{
    return std::generic_category().message(error);
}

} // namespace

QString ToQString(const std::string& path)
{
    return QFile::decodeName(QByteArray::fromStdString(path));
}

bool ReadJournal(const CommonOptions& options, Session& session)
{
    JournalDiagnostics diagnostics;
    const QString file = ToQString(options.journal);
    const bool good = session.Load(file, diagnostics);
    Print(file, diagnostics, !options.withoutRemarks);
    return good;
}

bool ReadDrawing(const std::string& file, const QByteArray& text, Session& session)
{
    JournalDiagnostics diagnostics;
    const bool good = session.LoadText(text, diagnostics);
    Print(ToQString(file), diagnostics, true);
    return good;
}

std::unique_ptr<LoadedModule> LoadModule(const std::string& file)
{
    try
    {
        return std::make_unique<LoadedModule>(ToQString(ModuleFile(file)));
    }
    catch (const std::runtime_error& error)
    {
        throw Failure(BadInput, error.what());
    }
}

int RunConversion(Session& session, const Conversion& conversion, ConversionObserver* observer)
{
    const std::string language = conversion.language.word;
    const auto module = LoadModule(conversion.options.module);

    ResultCode code = ResultError;
    std::uint64_t bytes = 0;
    try
    {
        Tally tally("kvmacro: " + language, session.EventCount(), observer);
        session.SetObserver(&tally);
        code = session.Convert(module->Module(), ToQString(conversion.macro.string()), conversion.language.index,
                               conversion.options.mode);
        session.SetObserver(nullptr);
        bytes = tally.Bytes();
    }
    catch (const OdError& error)
    {
        throw Failure(Failed, "the conversion to " + language + " ended with error " + std::to_string(error.code()) +
                                  " of the application: " + error.what());
    }
    if (code != ResultNormal)
    {
        // A byte order mark is in the file and in no text.
        constexpr std::uint64_t byteOrderMark = 3;
        const int error = StorageError(conversion.macro.parent_path(), bytes + byteOrderMark);
        throw Failure(Failed, "the conversion to " + language + " gave " + std::to_string(code) + " in place of " +
                                  std::to_string(ResultNormal) + (error == 0 ? "" : ": " + ErrorText(error)));
    }
    CheckWritten(conversion.macro, bytes);
    return Done;
}

} // namespace kv::cli
