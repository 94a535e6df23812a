// The command that tells what a conversion would make of each event.
#include "cli/check.h"

#include "cli/child_process.h"
#include "cli/conversion.h"
#include "cli/event_report.h"
#include "cli/failure.h"
#include "cli/staging.h"
#include "embedded/session.h"

#include <cstdio>

namespace kv::cli
{

int Check(const std::vector<std::string>& commandLine)
{
    const HeldSignals signals;
    const Staging staging({std::filesystem::temp_directory_path()});
    return signals.RunSelf(commandLine, staging.Folder());
}

int CheckStaged(const CheckOptions& options)
{
    const Language& language = *FindLanguage(options.language);
    Session session;
    if (!ReadJournal(options, session))
    {
        return BadInput;
    }
    EventReport report(session);
    const auto print = [&] { std::fputs(report.Text(options.summary).toLocal8Bit().constData(), stdout); };
    try
    {
        const int status = RunConversion(session, {options, language, options.stagedFolder / "macro"}, &report);
        print();
        return status;
    }
    catch (const Failure& failure)
    {
        if (failure.Status() == Failed)
        {
            print(); // what was seen until then
        }
        throw;
    }
}

} // namespace kv::cli
