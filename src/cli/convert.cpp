// The command that writes macros.
#include "cli/convert.h"

#include "cli/child_process.h"
#include "cli/conversion.h"
#include "cli/failure.h"
#include "cli/move_in_place.h"
#include "cli/staging.h"
#include "embedded/session.h"

#include <algorithm>
#include <cstdio>

namespace fs = std::filesystem;

namespace kv::cli
{

namespace
{

// One language's way from the staging folder to its place.
struct Job
{
    const Language* language;
    fs::path staged; // folders
    fs::path target;
    fs::path macro; // the file's name in both
};

std::vector<Job> Jobs(const ConvertOptions& options, const fs::path& staging)
{
    const auto job = [&](const Language& language, const fs::path& folder) {
        return Job{&language, staging / language.word, folder, options.name + language.extension};
    };

    std::vector<Job> jobs;
    if (options.language != allLanguages)
    {
        jobs.push_back(job(*FindLanguage(options.language), options.output));
        return jobs;
    }
    for (const Language& language : languages)
    {
        jobs.push_back(job(language, options.output / language.word));
    }
    return jobs;
}

// The project files first and the macros last, so that a macro that is there has all its project files.
std::vector<Move> Moves(const std::vector<Job>& jobs)
{
    std::vector<Move> moves;
    for (const Job& job : jobs)
    {
        for (const fs::directory_entry& file : fs::directory_iterator(job.staged))
        {
            moves.push_back({file.path(), job.target / file.path().filename()});
        }
    }
    std::sort(moves.begin(), moves.end(), [](const Move& a, const Move& b) { return a.target < b.target; });
    std::stable_partition(moves.begin(), moves.end(),
                          [&](const Move& move)
                          {
                              return std::none_of(jobs.begin(), jobs.end(),
                                                  [&](const Job& job)
                                                  { return move.target == job.target / job.macro; });
                          });
    return moves;
}

// The journal itself is never replaced.
void CheckIsNotJournal(const fs::path& target, const std::string& journal)
{
    std::error_code error;
    if (fs::equivalent(target, journal, error))
    {
        throw Failure(BadInput, target.string() + ": the macro would replace its journal");
    }
}

// One job in a process of its own: the start state and the counters of a conversion live in the process.
int RunJob(const Job& job, const HeldSignals& signals, const std::vector<std::string>& commandLine, bool first)
{
    std::error_code error;
    if (!fs::create_directory(job.staged, error))
    {
        throw SystemFailure(job.staged.string(), error.value());
    }
    std::vector<std::string> more{std::string("--staged-language=") + job.language->word};
    if (!first)
    {
        more.emplace_back("--without-remarks");
    }
    return signals.RunSelf(commandLine, job.staged, more);
}

} // namespace

int Convert(const ConvertOptions& options, const std::vector<std::string>& commandLine)
{
    std::vector<Move> moves;
    {
        const HeldSignals signals;
        MadeFolders parents;
        for (const Job& job : Jobs(options, {}))
        {
            CheckTarget(job.target / job.macro, options.force);
            CheckIsNotJournal(job.target / job.macro, options.journal);
        }
        const fs::path output = options.output.has_filename() ? options.output : options.output.parent_path();
        parents.Make(output.parent_path());
        const Staging staging(StagingBases(output));
        const std::vector<Job> jobs = Jobs(options, staging.Folder());
        for (const Job& job : jobs)
        {
            const int status = RunJob(job, signals, commandLine, &job == &jobs.front());
            if (status != Done)
            {
                if (status == Failed && jobs.size() > 1)
                {
                    std::fputs("kvmacro: no language's macro was written\n", stderr);
                }
                return status;
            }
        }
        moves = Moves(jobs);
        const fs::path backups = staging.Folder() / "backups";
        fs::create_directory(backups);
        signals.ThrowIfInterrupted();
        MoveInPlace(moves, options.force, backups);
        parents.Keep();
        signals.Ignore();
    }
    for (const Move& move : moves)
    {
        std::printf("%s\n", move.target.c_str());
    }
    return Done;
}

int ConvertStaged(const ConvertOptions& options)
{
    const Language& language = *FindLanguage(options.stagedLanguage);
    Session session;
    if (!ReadJournal(options, session))
    {
        return BadInput;
    }
    return RunConversion(session, {options, language, options.stagedFolder / (options.name + language.extension)});
}

} // namespace kv::cli
