// The life of staging folders.
#include "cli/staging.h"

#include "cli/failure.h"

#include <cerrno>
#include <charconv>
#include <csignal>
#include <optional>
#include <ranges>
#include <string>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace kv::cli
{

namespace
{

// The whole name is the prefix, the number of the process, a hyphen and six signs that make it unique.
constexpr std::string_view namePrefix = ".kvmacro-staging-";

// What has to be equal for a rename to work: the mount, or at least the device where the mount isn't told.
std::optional<std::uint64_t> MountOf(const fs::path& folder)
{
    struct statx status = {};
    if (statx(AT_FDCWD, folder.c_str(), 0, STATX_MNT_ID, &status) != 0 || !S_ISDIR(status.stx_mode))
    {
        return std::nullopt;
    }
    if ((status.stx_mask & STATX_MNT_ID) != 0)
    {
        return status.stx_mnt_id;
    }
    return std::uint64_t{status.stx_dev_major} << 32 | status.stx_dev_minor;
}

std::optional<pid_t> OwnerOf(const std::string& name)
{
    if (!name.starts_with(namePrefix))
    {
        return std::nullopt;
    }
    pid_t owner = 0;
    const char* const begin = name.data() + namePrefix.size();
    const char* const end = name.data() + name.size();
    const auto [rest, error] = std::from_chars(begin, end, owner);
    if (error != std::errc() || rest == end || *rest != '-' || owner <= 0)
    {
        return std::nullopt;
    }
    return owner;
}

// The open folder with its lock, or -1 when somebody else has the lock or the folder isn't this user's.
int Lock(const fs::path& folder)
{
    const int file = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    struct stat status = {};
    if (file >= 0 && (fstat(file, &status) != 0 || status.st_uid != geteuid() || flock(file, LOCK_EX | LOCK_NB) != 0))
    {
        close(file);
        return -1;
    }
    return file;
}

// A process that was just killed may still be making files: a few attempts.
void RemoveAll(const fs::path& folder)
{
    for (int attempt = 0; attempt < 3; ++attempt)
    {
        std::error_code error;
        fs::remove_all(folder, error);
        if (!error)
        {
            return;
        }
    }
}

void RemoveDead(const fs::path& base)
{
    std::error_code error;
    for (fs::directory_iterator entry(base, error), end; !error && entry != end; entry.increment(error))
    {
        const std::optional<pid_t> owner = OwnerOf(entry->path().filename().string());
        if (!owner || kill(*owner, 0) == 0 || errno != ESRCH)
        {
            continue;
        }
        const int lock = Lock(entry->path());
        if (lock >= 0)
        {
            RemoveAll(entry->path());
            close(lock);
        }
    }
}

} // namespace

std::vector<fs::path> StagingBases(const fs::path& targetFolder)
{
    std::error_code error;
    fs::path folder = fs::weakly_canonical(fs::absolute(targetFolder), error);
    if (error)
    {
        throw SystemFailure(targetFolder.string(), error.value());
    }
    if (!folder.has_filename())
    {
        folder = folder.parent_path();
    }
    const fs::path parent = folder.parent_path();
    const auto mount = MountOf(folder);
    std::vector<fs::path> bases;
    if (const auto parentMount = MountOf(parent); parentMount && (!mount || mount == parentMount))
    {
        bases.push_back(parent);
    }
    if (mount)
    {
        bases.push_back(folder);
    }
    return bases;
}

Staging::Staging(const std::vector<fs::path>& bases)
{
    for (const fs::path& base : bases)
    {
        RemoveDead(base);
    }
    int reason = ENOENT;
    for (const fs::path& base : bases)
    {
        std::string name = (base / namePrefix).string() + std::to_string(getpid()) + "-XXXXXX";
        if (mkdtemp(name.data()) != nullptr)
        {
            folder_ = name;
            lock_ = Lock(folder_);
            return;
        }
        reason = errno;
    }
    throw SystemFailure("no staging folder can be made in " + (bases.empty() ? "" : bases.front().string()), reason);
}

Staging::~Staging()
{
    RemoveAll(folder_);
    if (lock_ >= 0)
    {
        close(lock_);
    }
}

MadeFolders::~MadeFolders()
{
    for (const auto& folder : std::views::reverse(made_))
    {
        rmdir(folder.c_str());
    }
}

void MadeFolders::Make(const fs::path& folder)
{
    if (folder.empty() || mkdir(folder.c_str(), 0777) == 0)
    {
        if (!folder.empty())
        {
            made_.push_back(folder);
        }
        return;
    }
    const int reason = errno;
    if (reason == ENOENT && folder.has_parent_path() && folder.parent_path() != folder)
    {
        Make(folder.parent_path());
        if (mkdir(folder.c_str(), 0777) == 0)
        {
            made_.push_back(folder);
            return;
        }
        throw SystemFailure(folder.string(), errno);
    }
    std::error_code error;
    if (!fs::is_directory(folder, error))
    {
        throw SystemFailure(folder.string(), reason == EEXIST ? ENOTDIR : reason);
    }
}

} // namespace kv::cli
