// The program kvmacro: converts and checks recorded sessions, and runs commands on their drawings.
#include "cli/check.h"
#include "cli/child_process.h"
#include "cli/convert.h"
#include "cli/failure.h"
#include "cli/options.h"
#include "cli/run.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTextCodec>

#include <csignal>
#include <cstdio>

#include <langinfo.h>

namespace
{

using namespace kv::cli;

// In a locale without letters beyond ASCII, file names are taken for UTF-8, which loses none.
void ChooseFileNameCodec()
{
    if (qstrcmp(nl_langinfo(CODESET), "ANSI_X3.4-1968") == 0)
    {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    }
}

int Run(const ConvertOptions& options, const std::vector<std::string>& commandLine)
{
    return options.stagedFolder.empty() ? Convert(options, commandLine)
                                        : (EndWithParent(options.stagedBy), ConvertStaged(options));
}

int Run(const CheckOptions& options, const std::vector<std::string>& commandLine)
{
    return options.stagedFolder.empty() ? Check(commandLine) : (EndWithParent(options.stagedBy), CheckStaged(options));
}

int Run(const RunOptions& options, const std::vector<std::string>&)
{
    return RunCommand(options);
}

int Run(int status, const std::vector<std::string>&)
{
    return status;
}

} // namespace

int main(int argc, char** argv)
{
    // Writing that can't go on fails with an error number, so that what was begun can be taken back.
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
    const std::vector<std::string> commandLine(argv, argv + argc); // Qt takes some arguments out
    try
    {
        const auto options = ParseOptions(argc, argv);
        const QCoreApplication application(argc, argv);
        ChooseFileNameCodec();
        return std::visit([&](const auto& command) { return Run(command, commandLine); }, options);
    }
    catch (const Interrupted& interrupted)
    {
        EndBySignal(interrupted.signal);
    }
    catch (const Failure& failure)
    {
        std::fprintf(stderr, "kvmacro: %s\n", failure.what());
        return failure.Status();
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "kvmacro: %s\n", error.what());
        return Failed;
    }
}
