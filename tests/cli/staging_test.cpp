// Staging folders, and the moving of files in place when something goes wrong on the way.
#include "cli/failure.h"
#include "cli/move_in_place.h"
#include "cli/staging.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

namespace fs = std::filesystem;
using namespace kv::cli;

void Write(const fs::path& file, const std::string& text)
{
    fs::create_directories(file.parent_path());
    std::ofstream(file) << text;
}

std::string Read(const fs::path& file)
{
    std::ostringstream text;
    text << std::ifstream(file).rdbuf();
    return text.str();
}

class StagingTest : public testing::Test
{
protected:
    void SetUp() override
    {
        std::string name = (fs::temp_directory_path() / "staging-test-XXXXXX").string();
        ASSERT_NE(mkdtemp(name.data()), nullptr);
        root_ = name;
    }

    void TearDown() override { fs::remove_all(root_); }

    // Stages three files for root/out and moves them; gives the status, Done when it went well.
    int MoveThree(bool replace, const std::function<void(const fs::path&)>& beforeMove = {})
    {
        const Staging staging(StagingBases(root_ / "out"));
        std::vector<Move> moves;
        for (const char* name : {"a.h", "b.h", "macro.cpp"})
        {
            Write(staging.Folder() / name, std::string("new ") + name);
            moves.push_back({staging.Folder() / name, root_ / "out" / name});
        }
        fs::create_directory(staging.Folder() / "backups");
        try
        {
            MoveInPlace(moves, replace, staging.Folder() / "backups", beforeMove);
            return Done;
        }
        catch (const Failure& failure)
        {
            message_ = failure.what();
            return failure.Status();
        }
    }

    // Every file below the root with its text; a folder has the text "/".
    std::map<std::string, std::string> Tree() const
    {
        std::map<std::string, std::string> tree;
        for (const auto& entry : fs::recursive_directory_iterator(root_))
        {
            tree[entry.path().lexically_relative(root_)] = entry.is_directory() ? "/" : Read(entry.path());
        }
        return tree;
    }

    fs::path root_;
    std::string message_;
};

const std::map<std::string, std::string> allNew{
    {"out", "/"}, {"out/a.h", "new a.h"}, {"out/b.h", "new b.h"}, {"out/macro.cpp", "new macro.cpp"}};

TEST_F(StagingTest, MovesAllInTheOrderGiven)
{
    std::vector<std::string> order;
    EXPECT_EQ(MoveThree(false, [&](const fs::path& target) { order.push_back(target.filename()); }), Done);
    EXPECT_EQ(Tree(), allNew);
    EXPECT_EQ(order, (std::vector<std::string>{"a.h", "b.h", "macro.cpp"}));
}

TEST_F(StagingTest, ReplacesOnlyWhenAsked)
{
    Write(root_ / "out/b.h", "old");
    const auto before = Tree();
    EXPECT_EQ(MoveThree(false), BadInput);
    EXPECT_NE(message_.find("out/b.h"), std::string::npos) << message_;
    EXPECT_EQ(Tree(), before);
    EXPECT_EQ(MoveThree(true), Done);
    EXPECT_EQ(Tree(), allNew);
}

// A file that somebody else makes between the check and the move isn't replaced either, and what was moved goes again.
TEST_F(StagingTest, KeepsAFileThatCameMeanwhile)
{
    EXPECT_EQ(MoveThree(false,
                        [](const fs::path& target)
                        {
                            if (target.filename() == "macro.cpp")
                            {
                                Write(target, "of somebody else");
                            }
                        }),
              BadInput);
    EXPECT_EQ(Tree(), (std::map<std::string, std::string>{{"out", "/"}, {"out/macro.cpp", "of somebody else"}}));
}

// Each of the moves fails in turn, because a folder that isn't empty has come to stand where the file belongs.
TEST_F(StagingTest, BringsBackWhatWasThere)
{
    for (const char* failing : {"a.h", "b.h", "macro.cpp"})
    {
        fs::remove_all(root_ / "out");
        Write(root_ / "out/a.h", "old a");
        Write(root_ / "out/macro.cpp", "old macro");
        auto expected = Tree();
        expected.erase(std::string("out/") + failing);
        expected[std::string("out/") + failing] = "/";
        expected[std::string("out/") + failing + "/in the way"] = "";
        const int status = MoveThree(true,
                                     [&](const fs::path& target)
                                     {
                                         if (target.filename() == failing)
                                         {
                                             fs::remove(target);
                                             Write(target / "in the way", "");
                                         }
                                     });
        EXPECT_EQ(status, Failed);
        EXPECT_NE(message_.find(failing), std::string::npos) << message_;
        EXPECT_EQ(Tree(), expected) << failing;
    }
}

TEST_F(StagingTest, RefusesTargetsThatAreNoFilesBeforeAnyMove)
{
    Write(root_ / "out/a.h", "old a");
    fs::create_directory(root_ / "out/macro.cpp");
    int moves = 0;
    EXPECT_EQ(MoveThree(true, [&](const fs::path&) { ++moves; }), Failed);
    EXPECT_NE(message_.find("out/macro.cpp: Is a directory"), std::string::npos) << message_;
    fs::remove(root_ / "out/macro.cpp");
    ASSERT_EQ(mkfifo((root_ / "out/macro.cpp").c_str(), 0600), 0);
    EXPECT_EQ(MoveThree(true, [&](const fs::path&) { ++moves; }), Failed);
    EXPECT_EQ(moves, 0);
    EXPECT_EQ(Read(root_ / "out/a.h"), "old a");
}

// A link is replaced itself; the file that it leads to is somebody else's. A link to nothing counts as being there.
TEST_F(StagingTest, ReplacesLinksNotWhatTheyLeadTo)
{
    Write(root_ / "elsewhere", "kept");
    fs::create_directory(root_ / "out");
    fs::create_symlink(root_ / "elsewhere", root_ / "out/a.h");
    fs::create_symlink(root_ / "nowhere", root_ / "out/b.h");
    EXPECT_EQ(MoveThree(false), BadInput);
    EXPECT_TRUE(fs::is_symlink(root_ / "out/a.h"));
    EXPECT_EQ(MoveThree(true), Done);
    EXPECT_FALSE(fs::is_symlink(root_ / "out/a.h"));
    EXPECT_EQ(Read(root_ / "elsewhere"), "kept");
    EXPECT_FALSE(fs::exists(root_ / "nowhere"));
}

TEST_F(StagingTest, RemovesTheFoldersOfDeadProcessesOnly)
{
    const pid_t dead = fork();
    if (dead == 0)
    {
        _exit(0);
    }
    waitpid(dead, nullptr, 0);
    const std::string prefix = ".kvmacro-staging-";
    Write(root_ / (prefix + std::to_string(dead) + "-abcdef") / "sub" / "half", "half");
    Write(root_ / (prefix + std::to_string(getppid()) + "-abcdef") / "half", "of a living process");
    Write(root_ / (prefix + "notes") / "text", "not made here");
    fs::create_directory(root_ / "mine");
    Write(root_ / "mine/text", "kept");
    fs::create_symlink(root_ / "mine", root_ / (prefix + std::to_string(dead) + "-linked"));
    {
        const Staging first({root_});
        Write(first.Folder() / "file", "");
        const Staging second({root_});
        EXPECT_TRUE(fs::exists(first.Folder() / "file"));
        EXPECT_NE(first.Folder(), second.Folder());
        EXPECT_EQ(first.Folder().filename().string().rfind(prefix, 0), 0U);
    }
    EXPECT_FALSE(fs::exists(root_ / (prefix + std::to_string(dead) + "-abcdef")));
    EXPECT_TRUE(fs::exists(root_ / (prefix + std::to_string(getppid()) + "-abcdef") / "half"));
    EXPECT_TRUE(fs::exists(root_ / (prefix + "notes") / "text"));
    EXPECT_TRUE(fs::exists(root_ / "mine/text"));
    EXPECT_EQ(Tree().size(), 7U); // the living process's, the notes, mine with a file each, and the link
}

TEST_F(StagingTest, StagesBesideTheTargetFolder)
{
    fs::create_directory(root_ / "there");
    const fs::path root = fs::canonical(root_);
    EXPECT_EQ(StagingBases(root_ / "missing"), std::vector{root});
    EXPECT_EQ(StagingBases(root_ / "there/"), (std::vector{root, root / "there"}));
    EXPECT_EQ(StagingBases("/dev").back(), "/dev"); // another file system than its parent's, or the same
}

TEST_F(StagingTest, TakesBackFoldersThatAreNotKept)
{
    fs::create_directory(root_ / "old");
    {
        MadeFolders made;
        made.Make(root_ / "old/x/y/z");
        made.Make(root_ / "old/x/w");
        EXPECT_TRUE(fs::is_directory(root_ / "old/x/y/z"));
        Write(root_ / "old/x/w/file", "somebody's");
    }
    EXPECT_EQ(Tree(), (std::map<std::string, std::string>{
                          {"old", "/"}, {"old/x", "/"}, {"old/x/w", "/"}, {"old/x/w/file", "somebody's"}}));
    MadeFolders made;
    EXPECT_THROW(made.Make(root_ / "old/x/w/file/sub"), Failure);
}

} // namespace
