#include "platform/files.h"

#include <algorithm>
#include <filesystem>

#include "platform/paths.h"
#include "support/session_test.h"

namespace verandis {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;
using Files = testing_support::SessionTest;
using testing_support::Bytes;
using testing_support::OnDisk;
using testing_support::PutBytes;

TEST_F(Files, ReadsEveryKindOfLineEnd) {
    const std::pair<std::string, Lines> rows[] = {
        {"", {}},
        {"\r\n", {""}},
        {"a\r\nb\n\nlast", {"a", "b", "", "last"}},
        {"a\rb\r\n\tc \n", {"a\rb", "\tc "}},
        {"V\xE4gg\x80\r\n", {"Vägg€"}},
    };
    for (const auto& [bytes, lines] : rows) {
        PutBytes(Path("file"), bytes);
        EXPECT_EQ(ReadLines(Path("file")), lines) << bytes;
    }
    EXPECT_EQ(ReadLines(Path("none")), std::nullopt);
    EXPECT_EQ(ReadBytes(Path("")), std::nullopt) << "a folder is no file";
}

TEST_F(Files, WritesCrLfAndOneByteACharacter) {
    ASSERT_TRUE(WriteLines(Path("file"), {"Vägg", "", "−1"}));
    ASSERT_TRUE(AppendLine(Path("file"), "å"));
    EXPECT_EQ(Bytes(Path("file")), "V\xE4gg\r\n\r\n?1\r\n\xE5\r\n");
    ASSERT_TRUE(WriteUtf8Lines(Path("file"), {"å"}));
    EXPECT_EQ(Bytes(Path("file")), "å\r\n");
    ASSERT_TRUE(AppendLine(Path("new"), "first"));
    EXPECT_EQ(Bytes(Path("new")), "first\r\n");
}

TEST_F(Files, ReadsFilesLongerThanTheFirstReadWhole) {
    for (const std::size_t size : {16383u, 16384u, 16385u, 32768u, 100000u}) {
        std::string bytes;
        while (bytes.size() < size) bytes += static_cast<char>('a' + bytes.size() % 23);
        PutBytes(Path("file"), bytes);
        EXPECT_EQ(ReadBytes(Path("file")), bytes) << size;
    }
    PutBytes(Path("file"), "short");
    std::string used(70000, 'x');
    ASSERT_TRUE(ReadBytesInto(Path("file"), used));
    EXPECT_EQ(used, "short");
    EXPECT_FALSE(ReadBytesInto(Path("none"), used));
    EXPECT_EQ(used, "");
}

TEST_F(Files, TellsWhenNothingOrNotAllWasWritten) {
    PutBytes(Path("file"), "kept");
    fs::create_directory(Path("folder"));
    for (const std::string& target :
         {Path("folder"), Path("file/below"), Path("none/file"), std::string("/dev/full")}) {
        SCOPED_TRACE(target);
        EXPECT_FALSE(WriteLines(target, {"text"}));
        EXPECT_FALSE(AppendLine(target, "text"));
        EXPECT_FALSE(CopyFile(Path("file"), target));
    }
    EXPECT_FALSE(MakeFolders(Path("file/below/more")));
    EXPECT_FALSE(FolderWritable(Path("file")));
    EXPECT_FALSE(FolderWritable(Path("none")));
    EXPECT_FALSE(CopyFile(Path("none"), Path("file")));
    EXPECT_FALSE(CopyFile(Path("folder"), Path("file")));
    EXPECT_EQ(Bytes(Path("file")), "kept") << "a source that cannot be read spoils nothing";
}

TEST_F(Files, PatternsMeanFilesWithoutRegardToCase) {
    for (const char* name :
         {"b_1D.cli", "A_1D.CLI", "c.cli.bak", "xcli", "SET!U1.Cas", ".hidden"}) {
        PutBytes(Path("list/") + name, "");
    }
    fs::create_directory(Path("list/folder.cli"));
    const std::string folder = Path("list");
    EXPECT_EQ(ListFiles(folder, "*.CLI"), (Lines{"A_1D.CLI", "b_1D.cli"}));
    EXPECT_EQ(ListFiles(folder, "*!u*.cas"), (Lines{"SET!U1.Cas"}));
    EXPECT_EQ(ListFiles(folder, "XCLI"), (Lines{"xcli"}));
    EXPECT_EQ(ListFiles(folder, "*.*").size(), 6u) << "also names without a point";
    EXPECT_EQ(ListFolder(folder).size(), 7u);
    EXPECT_EQ(ListFiles(Path("none"), "*.*"), Lines{});
    DeleteFiles(folder, "*.Cli");
    EXPECT_EQ(ListFolder(folder),
              (Lines{".hidden", "SET!U1.Cas", "c.cli.bak", "folder.cli", "xcli"}));
}

TEST_F(Files, DeletingTakesTheLinkNeverItsTarget) {
    PutBytes(Path("target/file"), "kept");
    fs::create_directory_symlink(Path("target"), Path("link"));
    EXPECT_TRUE(IsLink(Path("LINK")));
    EXPECT_TRUE(DeleteFile(Path("link")));
    EXPECT_TRUE(OnDisk(Path("target/file")));
    EXPECT_FALSE(DeleteFile(Path("link")));
    EXPECT_FALSE(DeleteFile(Path("target"))) << "a folder is no file";
    EXPECT_FALSE(RemoveFolder(Path("target"))) << "only an empty one";
}

TEST_F(Files, RenamingNeverOverwrites) {
    PutBytes(Path("a.lib"), "a");
    PutBytes(Path("B.lib"), "b");
    EXPECT_FALSE(Rename(Path("a.lib"), "b.LIB"));
    EXPECT_EQ(Bytes(Path("B.lib")), "b");
    EXPECT_FALSE(Rename(Path("none"), "c"));
    EXPECT_TRUE(Rename(Path("A.LIB"), "A.Lib")) << "another letter case of itself";
    EXPECT_TRUE(OnDisk(Path("A.Lib")));
    EXPECT_FALSE(OnDisk(Path("a.lib")));
}

TEST_F(Files, OddNamesGoTheWholeWay) {
    for (const char* name : {"with blank", "åäö", "#1", "a&b", "50%"}) {
        SCOPED_TRACE(name);
        const std::string folder = JoinPath(Path(name), name);
        ASSERT_TRUE(MakeFolders(folder));
        ASSERT_TRUE(WriteLines(JoinPath(folder, name), {"x"}));
        EXPECT_EQ(Bytes(Path(name) + "/" + name + "/" + name), "x\r\n");
        EXPECT_TRUE(CopyFile(JoinPath(folder, name), JoinPath(folder, "copy")));
        EXPECT_TRUE(Rename(JoinPath(folder, "copy"), std::string(name) + "2"));
        EXPECT_EQ(ListFiles(folder, std::string(name) + "*").size(), 2u);
        DeleteFiles(folder, "*.*");
        EXPECT_TRUE(RemoveFolder(folder));
    }
}

}  // namespace
}  // namespace verandis
