// Moves finished files to their places, all of them or none.
#pragma once

#include <filesystem>
#include <functional>
#include <vector>

namespace kv::cli
{

// A finished file, and where it belongs.
struct Move
{
    std::filesystem::path staged;
    std::filesystem::path target;
};

// Throws Failure when the target is there and is anything but a file, or is a file that may not be replaced.
void CheckTarget(const std::filesystem::path& target, bool replace);

// Checks all targets, writes all files through to the disk, makes the targets' folders and moves the files one by one
// in the order given, each by one atomic step. When one can't be moved, those already moved are taken back, the files
// that they replaced come back, folders that were made go, and Failure is thrown. A target that has come into being
// meanwhile is never replaced unless that is asked for.
//   backups     an empty folder on the same file system; it keeps the replaced files until the caller removes it
//   beforeMove  called with each target just before its move
void MoveInPlace(const std::vector<Move>& moves, bool replace, const std::filesystem::path& backups,
                 const std::function<void(const std::filesystem::path& target)>& beforeMove = {});

} // namespace kv::cli
