#include "projects/folder_tree.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "app/session.h"
#include "support/session_test.h"

namespace verandis {
namespace {

namespace fs = std::filesystem;
using testing_support::OnDisk;
using testing_support::PutBytes;
using testing_support::TreeOf;

class FolderTree : public testing_support::SessionTest {
protected:
    FolderTree() {
        if (const char* home = std::getenv("HOME")) home_ = home;
        ::setenv("HOME", Path("home/user").c_str(), 1);
        session.ProjectRoot = Path("root/PROJECT");
    }
    ~FolderTree() override { ::setenv("HOME", home_.c_str(), 1); }

private:
    std::string home_;
};

const auto kNothing = [](const std::string&) { return false; };

TEST_F(FolderTree, FoldersThatHoldMoreThanAProjectAreNeverRemoved) {
    fs::create_directory_symlink(Path("root"), Path("alias"));
    for (const char* folder : {"home/user", "home", "home/user/", "root/PROJECT", "root/project",
                               "root", "root/PROJECT/p/..", "alias/PROJECT"}) {
        PutBytes(Path("home/user/keep"), "x");
        PutBytes(Path("root/PROJECT/p/keep"), "x");
        PutBytes(Path("other/file"), "y");
        EXPECT_FALSE(MirrorTree(Path("other"), Path(folder), kNothing)) << folder;
        EXPECT_FALSE(RemoveTree(Path(folder))) << folder;
        EXPECT_TRUE(OnDisk(Path("home/user/keep")) && OnDisk(Path("root/PROJECT/p/keep")))
            << folder;
    }
}

// In a child process whose root is a folder of this test, which only the superuser can make.
TEST_F(FolderTree, RootOfTheMachineIsNeverEmptied) {
    if (::geteuid() != 0) GTEST_SKIP() << "needs the superuser";
    PutBytes(Path("jail/keep"), "x");
    fs::create_directory(Path("jail/empty"));
    session.ProjectRoot = "";
    const auto refused = [this] {
        if (::chroot(Path("jail").c_str()) != 0 || ::chdir("/") != 0) return false;
        ::unsetenv("HOME");
        return !RemoveTree("/") && !MirrorTree("/empty", "/", kNothing) && !RemoveTree("") &&
               OnDisk("/keep");
    };
    EXPECT_EXIT(std::_Exit(refused() ? 0 : 1), testing::ExitedWithCode(0), "");
}

TEST_F(FolderTree, RemovingTakesLinksAndLeavesWhatTheyPointAt) {
    PutBytes(Path("outside/keep"), "x");
    PutBytes(Path("tree/a/b/.hidden"), "x");
    fs::create_directory_symlink(Path("outside"), Path("tree/a/link"));
    fs::create_symlink(Path("nowhere"), Path("tree/broken"));
    fs::create_directory_symlink(Path("outside"), Path("link"));
    fs::create_directory(Path("other"));
    EXPECT_FALSE(RemoveTree(Path("missing")));
    EXPECT_TRUE(RemoveTree(Path("tree")));
    EXPECT_FALSE(OnDisk(Path("tree")));
    EXPECT_FALSE(MirrorTree(Path("other"), Path("link"), kNothing));
    RemoveTree(Path("link/"));
    EXPECT_TRUE(OnDisk(Path("outside/keep"))) << "a link was followed";
}

TEST_F(FolderTree, MirrorLeavesNothingButWhatTheSourceHolds) {
    PutBytes(Path("from/same"), "same");
    PutBytes(Path("from/deep/file"), "new");
    PutBytes(Path("from/left.out"), "x");
    PutBytes(Path("outside/keep"), "x");
    PutBytes(Path("to/same"), "same");
    PutBytes(Path("to/deep"), "a file where a folder belongs");
    PutBytes(Path("to/left.out"), "of an earlier time");
    PutBytes(Path("to/Stray/file"), "x");
    fs::create_directory_symlink(Path("outside"), Path("to/link"));
    const auto before = fs::last_write_time(Path("to/same"));
    const auto leaveOut = [](const std::string& name) { return name == "left.out"; };
    EXPECT_TRUE(MirrorTree(Path("from"), Path("to"), leaveOut));
    EXPECT_EQ(TreeOf(Path("to")), (std::vector<std::pair<std::string, std::string>>{
                                      {"deep/file", "new"}, {"same", "same"}}));
    EXPECT_EQ(fs::last_write_time(Path("to/same")), before) << "an equal file was written again";
    EXPECT_TRUE(OnDisk(Path("outside/keep"))) << "a link was followed";
    EXPECT_FALSE(MirrorTree(Path("missing"), Path("to"), leaveOut));
    EXPECT_TRUE(OnDisk(Path("to/same"))) << "a missing source emptied its target";
}

TEST_F(FolderTree, CopyHoldsEveryFileOnceWhateverItsName) {
    PutBytes(Path("från/Åtta b/c#1&2"), std::string("\0\r\n\xE5", 4));
    PutBytes(Path("från/noext"), "");
    PutBytes(Path("från/SITE.INP"), "new");
    fs::create_directories(Path("från/empty"));
    fs::create_directory_symlink(Path("från"), Path("från/loop"));
    PutBytes(Path("to/Site.inp"), "old");
    ASSERT_TRUE(CopyTree(Path("från"), Path("to")));
    const std::vector<std::pair<std::string, std::string>> wanted = {
        {"Site.inp", "new"}, {"noext", ""}, {"Åtta b/c#1&2", std::string("\0\r\n\xE5", 4)}};
    EXPECT_EQ(TreeOf(Path("to")), wanted);
    EXPECT_TRUE(OnDisk(Path("to/empty")) && !OnDisk(Path("to/loop")));
}

TEST_F(FolderTree, CopyThatCannotBeIsToldAndStops) {
    PutBytes(Path("from/a"), "x");
    PutBytes(Path("file"), "x");
    fs::create_directories(Path("to/a"));  // a folder where a file should be
    for (const char* target : {"from/inner", "FROM", "file/below", "to"}) {
        EXPECT_FALSE(CopyTree(Path("from"), Path(target))) << target;
    }
    EXPECT_FALSE(CopyTree(Path("missing"), Path("made")));
    EXPECT_FALSE(OnDisk(Path("from/inner")) || OnDisk(Path("made")));
}

}  // namespace
}  // namespace verandis
