#include "platform/files.h"

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

TEST_F(Files, AreReadWithAnyLineEndAndWrittenWithCrLf) {
    const std::pair<std::string, Lines> rows[] = {{"", {}},
                                                  {"\r\n", {""}},
                                                  {"a\r\nb\n\nlast", {"a", "b", "", "last"}},
                                                  {"a\rb\r\n\tc \n", {"a\rb", "\tc "}},
                                                  {"V\xE4gg\x80", {"Vägg€"}}};
    for (const auto& [bytes, lines] : rows) {
        PutBytes(Path("file"), bytes);
        EXPECT_EQ(ReadLines(Path("file")), lines) << bytes;
    }
    EXPECT_EQ(ReadLines(Path("none")), std::nullopt);
    EXPECT_EQ(ReadBytes(Path("")), std::nullopt) << "a folder is no file";
    ASSERT_TRUE(WriteLines(Path("file"), {"Vägg", "", "−1"}));
    EXPECT_EQ(Bytes(Path("file")), "V\xE4gg\r\n\r\n?1\r\n");
    PutBytes(Path("file"), "a last line without an end");
    ASSERT_TRUE(AppendLine(Path("file"), "å") && AppendLine(Path("file"), "b"));
    EXPECT_EQ(Bytes(Path("file")), "a last line without an end\r\n\xE5\r\nb\r\n");
}

TEST_F(Files, LongerThanTheFirstReadAreReadWhole) {
    std::string bytes;
    for (const std::size_t size : {100000u, 16385u, 16384u, 16383u}) {
        while (bytes.size() < size) bytes += static_cast<char>('a' + bytes.size() % 23);
        bytes.resize(size);
        PutBytes(Path("file"), bytes);
        EXPECT_EQ(ReadBytes(Path("file")), bytes) << size;
    }
}

TEST_F(Files, TellWhenNotAllWasWritten) {
    PutBytes(Path("file"), "kept");
    fs::create_directory(Path("folder"));
    for (const std::string& target :
         {Path("folder"), Path("file/below"), Path("none/file"), std::string("/dev/full")}) {
        EXPECT_FALSE(WriteLines(target, {"text"})) << target;
        EXPECT_FALSE(AppendLine(target, "text")) << target;
        EXPECT_FALSE(CopyFile(Path("file"), target)) << target;
    }
    EXPECT_FALSE(MakeFolders(Path("file/below/more")));
    EXPECT_FALSE(CopyFile(Path("none"), Path("file")) || CopyFile(Path("folder"), Path("file")));
    EXPECT_EQ(Bytes(Path("file")), "kept") << "a source that cannot be read spoils nothing";
}

TEST_F(Files, AreListedByPatternsWithoutRegardToCase) {
    for (const char* name : {"b_1D.cli", "A_1D.CLI", "c.cli.bak", "xcli", "SET!U1.Cas", ".hide"}) {
        PutBytes(Path("list/") + name, "");
    }
    fs::create_directory(Path("list/folder.cli"));
    EXPECT_EQ(ListFiles(Path("list"), "*.Cli"), (Lines{"A_1D.CLI", "b_1D.cli"}));
    EXPECT_EQ(ListFiles(Path("list"), "*!u*.cas"), (Lines{"SET!U1.Cas"}));
    EXPECT_EQ(ListFiles(Path("list"), "*.*").size(), 6u) << "also names without a point";
    DeleteFiles(Path("list"), "*.CLI");
    EXPECT_EQ(ListFolder(Path("list")),
              (Lines{".hide", "SET!U1.Cas", "c.cli.bak", "folder.cli", "xcli"}));
}

TEST_F(Files, AreNeitherOverwrittenByARenameNorDeletedThroughALink) {
    PutBytes(Path("a.lib"), "a");
    PutBytes(Path("B.lib"), "b");
    EXPECT_FALSE(Rename(Path("a.lib"), "b.LIB"));
    EXPECT_EQ(Bytes(Path("B.lib")), "b");
    EXPECT_TRUE(Rename(Path("A.LIB"), "A.Lib")) << "another letter case of itself";
    EXPECT_TRUE(OnDisk(Path("A.Lib")) && !OnDisk(Path("a.lib")));
    fs::create_symlink(Path("B.lib"), Path("link"));
    EXPECT_TRUE(IsLink(Path("LINK")) && DeleteFile(Path("link")));
    EXPECT_TRUE(OnDisk(Path("B.lib")));
    EXPECT_FALSE(DeleteFile(Path("link")) || DeleteFile(Path("")) || RemoveFolder(Path("")));
}

TEST_F(Files, WithOddNamesGoTheWholeWay) {
    for (const std::string name : {"with blank", "åäö", "#1", "a&b", "50%"}) {
        SCOPED_TRACE(name);
        const std::string folder = JoinPath(Path(name), name);
        ASSERT_TRUE(MakeFolders(folder) && WriteLines(JoinPath(folder, name), {"x"}));
        EXPECT_EQ(Bytes(folder + "/" + name), "x\r\n");
        EXPECT_TRUE(CopyFile(JoinPath(folder, name), JoinPath(folder, "copy")));
        EXPECT_TRUE(Rename(JoinPath(folder, "copy"), name + "2"));
        EXPECT_EQ(ListFiles(folder, name + "*").size(), 2u);
        DeleteFiles(folder, "*.*");
        EXPECT_TRUE(RemoveFolder(folder));
    }
}

}  // namespace
}  // namespace verandis
