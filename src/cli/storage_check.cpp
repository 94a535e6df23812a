// Sees whether files reached the disk in full.
#include "cli/storage_check.h"

#include "cli/failure.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <numeric>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace kv::cli
{

namespace
{

constexpr std::uint64_t oneBlock = 4096; // a disk with less left may have cut off the last file

std::uint64_t FileSizeLimit()
{
    rlimit limit = {};
    getrlimit(RLIMIT_FSIZE, &limit);
    return limit.rlim_cur == RLIM_INFINITY ? UINT64_MAX : limit.rlim_cur;
}

int WriteZeros(int file, std::uint64_t bytes)
{
    static constexpr std::array<char, 65536> zeros{};
    while (bytes > 0)
    {
        const ssize_t written = write(file, zeros.data(), std::min<std::uint64_t>(bytes, zeros.size()));
        if (written < 0 && errno != EINTR)
        {
            return errno;
        }
        bytes -= static_cast<std::uint64_t>(std::max<ssize_t>(written, 0));
    }
    return fsync(file) == 0 ? 0 : errno;
}

} // namespace

std::uint64_t LeastUtf8Size(const QString& text)
{
    return std::transform_reduce(text.begin(), text.end(), std::uint64_t{0}, std::plus<>(),
                                 [](QChar sign) -> std::uint64_t
                                 {
                                     const ushort code = sign.unicode();
                                     return code < 0x80 || sign.isSurrogate() ? 1 : code < 0x800 ? 2 : 3;
                                 });
}

int StorageError(const fs::path& folder, std::uint64_t bytes)
{
    const fs::path probe = folder / ".storage-probe";
    const int file = open(probe.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (file < 0)
    {
        return errno;
    }
    const int error = WriteZeros(file, bytes);
    close(file);
    unlink(probe.c_str());
    return error;
}

void CheckWritten(const fs::path& macro, std::uint64_t bytes)
{
    std::error_code error;
    const std::uintmax_t size = fs::file_size(macro, error);
    if (error)
    {
        throw SystemFailure(macro.filename().string(), error.value());
    }
    if (size < bytes)
    {
        const int reason = StorageError(macro.parent_path(), bytes);
        throw reason != 0
            ? SystemFailure(macro.filename().string() + " can't be written in full", reason)
            : Failure(Failed, macro.filename().string() + " holds " + std::to_string(size) + " bytes of " +
                                  std::to_string(bytes) + "; is the macro named like one of its project files?");
    }
    const std::uint64_t limit = FileSizeLimit();
    for (const fs::directory_entry& entry : fs::directory_iterator(macro.parent_path()))
    {
        if (entry.is_regular_file() && entry.file_size() >= limit)
        {
            throw SystemFailure(entry.path().filename().string() + " can't be written in full", EFBIG);
        }
    }
    if (const int reason = StorageError(macro.parent_path(), std::min(limit, oneBlock)); reason != 0)
    {
        throw SystemFailure("the files can't be written in full", reason);
    }
}

} // namespace kv::cli
