// A hidden folder in which files come into being before they are moved to their place.
#pragma once

#include <filesystem>
#include <vector>

namespace kv::cli
{

// Where files for the target folder may be staged, the best first: the target's parent, and the target itself. Only
// folders that exist and lie on the target's file system are given.
[[nodiscard]] std::vector<std::filesystem::path> StagingBases(const std::filesystem::path& targetFolder);

// The folder goes, with all that is in it, at the end of the object's life. One that a killed process left behind is
// removed by the next process that stages in the same place: its name has a fixed prefix and the number of its process.
class Staging
{
public:
    // Removes the folders of dead processes from all bases and makes a new one in the first base that allows it. Throws
    // Failure when none does.
    explicit Staging(const std::vector<std::filesystem::path>& bases);
    ~Staging();
    Staging(const Staging&) = delete;
    Staging& operator=(const Staging&) = delete;

    [[nodiscard]] const std::filesystem::path& Folder() const noexcept { return folder_; }

private:
    std::filesystem::path folder_;
    int lock_ = -1; // the open, locked folder: others see by it that the owner lives, also in another container
};

// Folders that were made on the way to a result; they go again, where they are empty, unless the result is kept.
class MadeFolders
{
public:
    MadeFolders() = default;
    ~MadeFolders();
    MadeFolders(const MadeFolders&) = delete;
    MadeFolders& operator=(const MadeFolders&) = delete;

    // Makes the folder and its missing parents. Throws Failure.
    void Make(const std::filesystem::path& folder);

    void Keep() noexcept { made_.clear(); }

private:
    std::vector<std::filesystem::path> made_;
};

} // namespace kv::cli
