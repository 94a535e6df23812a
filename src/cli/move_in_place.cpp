// Moves finished files to their places, all of them or none.
#include "cli/move_in_place.h"

#include "cli/failure.h"
#include "cli/staging.h"

#include <cerrno>
#include <cstdio>
#include <ranges>
#include <set>
#include <string>

#include <fcntl.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace kv::cli
{

namespace
{

// Writes a file or the entries of a folder through to the disk. Gives an error number, 0 for none.
int WriteThrough(const fs::path& path)
{
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
    {
        return errno;
    }
    const int error = fsync(file) == 0 ? 0 : errno;
    close(file);
    return error;
}

Failure AlreadyThere(const fs::path& target)
{
    return {BadInput, target.string() + ": the file is there already; --force replaces it"};
}

// One atomic step.
void MoveFile(const Move& move, bool replace)
{
    int result = 0;
    if (replace)
    {
        result = std::rename(move.staged.c_str(), move.target.c_str());
    }
    else
    {
        result = renameat2(AT_FDCWD, move.staged.c_str(), AT_FDCWD, move.target.c_str(), RENAME_NOREPLACE);
        if (result != 0 && (errno == EINVAL || errno == ENOSYS)) // a file system without that flag
        {
            CheckTarget(move.target, replace);
            result = std::rename(move.staged.c_str(), move.target.c_str());
        }
    }
    if (result != 0)
    {
        throw !replace && errno == EEXIST ? AlreadyThere(move.target)
                                          : SystemFailure(move.target.string() + " can't be written", errno);
    }
}

// The moves done so far; takes them back unless they are kept.
class Transaction
{
public:
    explicit Transaction(fs::path backups) : backups_(std::move(backups)) {}
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    ~Transaction()
    {
        for (const auto& step : std::views::reverse(done_))
        {
            const int result = step.backup.empty() ? unlink(step.target.c_str())
                                                   : std::rename(step.backup.c_str(), step.target.c_str());
            if (result != 0)
            {
                std::fprintf(stderr, "kvmacro: %s can't be brought back: %s\n", step.target.c_str(),
                             std::generic_category().message(errno).c_str());
            }
        }
    }

    void Do(const Move& move, bool replace)
    {
        Step step{move.target, replace ? BackUp(move.target) : fs::path()};
        done_.reserve(done_.size() + 1); // the note of a move that was done can't fail
        MoveFile(move, replace);
        done_.push_back(std::move(step));
    }

    void Keep() noexcept { done_.clear(); }

private:
    struct Step
    {
        fs::path target;
        fs::path backup; // empty when nothing was replaced
    };

    // A second name for the file, or a copy where a file can't have two. Empty when there is no such file.
    fs::path BackUp(const fs::path& file) const
    {
        fs::path backup = backups_ / std::to_string(done_.size());
        if (link(file.c_str(), backup.c_str()) == 0)
        {
            return backup;
        }
        if (errno == ENOENT)
        {
            return {};
        }
        std::error_code error;
        fs::copy(file, backup, fs::copy_options::copy_symlinks, error);
        if (error)
        {
            throw SystemFailure(file.string() + " can't be backed up", error.value());
        }
        return backup;
    }

    fs::path backups_;
    std::vector<Step> done_;
};

} // namespace

void CheckTarget(const fs::path& target, bool replace)
{
    std::error_code error;
    const fs::file_status own = fs::symlink_status(target, error);
    if (own.type() == fs::file_type::not_found)
    {
        return;
    }
    if (own.type() == fs::file_type::none)
    {
        throw SystemFailure(target.string(), error.value());
    }
    const fs::file_type type = fs::status(target, error).type(); // of a link: what it leads to
    if (type == fs::file_type::directory)
    {
        throw SystemFailure(target.string(), EISDIR);
    }
    if (type != fs::file_type::regular && own.type() != fs::file_type::symlink)
    {
        throw Failure(Failed, target.string() + ": not a file");
    }
    if (!replace)
    {
        throw AlreadyThere(target);
    }
}

void MoveInPlace(const std::vector<Move>& moves, bool replace, const fs::path& backups,
                 const std::function<void(const fs::path& target)>& beforeMove)
{
    for (const Move& move : moves)
    {
        CheckTarget(move.target, replace);
        if (const int error = WriteThrough(move.staged); error != 0)
        {
            throw SystemFailure(move.target.string() + " can't be written", error);
        }
    }
    MadeFolders made;
    std::set<fs::path> folders;
    for (const Move& move : moves)
    {
        if (folders.insert(move.target.parent_path()).second)
        {
            made.Make(move.target.parent_path());
        }
    }
    Transaction transaction(backups);
    for (const Move& move : moves)
    {
        if (beforeMove)
        {
            beforeMove(move.target);
        }
        transaction.Do(move, replace);
    }
    transaction.Keep();
    made.Keep();
    for (const fs::path& folder : folders)
    {
        WriteThrough(folder.empty() ? fs::path(".") : folder); // the files are in place, whatever this gives
    }
}

} // namespace kv::cli
