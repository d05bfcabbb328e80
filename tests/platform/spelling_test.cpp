#include "platform/spelling.h"

#include <filesystem>

#include "platform/files.h"
#include "platform/paths.h"
#include "support/session_test.h"

namespace verandis {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;
using Spelling = testing_support::SessionTest;
using testing_support::Bytes;
using testing_support::PutBytes;

TEST_F(Spelling, IsTheExactNameElseTheFirstOfTheOthers) {
    PutBytes(Path("Data/UShape1/SITE.INP"), "upper");
    PutBytes(Path("Data/UShape1/Site.inp"), "mixed");
    PutBytes(Path("Data/Åre/x"), "north");
    const std::pair<const char*, const char*> rows[] = {
        {"data/ushape1/Site.inp", "Data/UShape1/Site.inp"},
        {"DATA\\ushape1\\site.inp", "Data/UShape1/SITE.INP"},
        {"data/åRE/X", "Data/Åre/x"},
        {"data/None/Site.inp", "Data/None/Site.inp"}};  // missing parts stay as given
    for (const auto& [asked, real] : rows) {
        EXPECT_EQ(TrueSpelling(Path(asked)), Path(real));
        EXPECT_EQ(TrueSpelling("C:" + Path(asked)), Path(real)) << "a drive means nothing here";
    }
    EXPECT_EQ(ReadLines(Path("DATA\\ushape1\\site.INP")), Lines{"upper"});
    EXPECT_TRUE(FolderExists(Path("data/åre/")) && !FileExists(Path("data/åre")));
}

TEST_F(Spelling, IsNeverDoubledByCreating) {
    PutBytes(Path("Data/Case.Lib"), "old");
    EXPECT_TRUE(WriteLines(Path("data\\CASE.LIB"), {"new"}));
    EXPECT_TRUE(AppendLine(Path("DATA/case.lib"), "more"));
    EXPECT_TRUE(CopyFile(Path("data/case.lib"), Path("data/Copy.lib")));
    EXPECT_TRUE(CopyFile(Path("data/case.lib"), Path("data/COPY.LIB")));
    EXPECT_TRUE(MakeFolders(Path("DATA/New")));
    EXPECT_TRUE(MakeFolders(Path("data/NEW/deep")));
    EXPECT_EQ(Bytes(Path("Data/Case.Lib")), "new\r\nmore\r\n");
    EXPECT_EQ(ListFolder(Path("Data")), (Lines{"Case.Lib", "Copy.lib", "New"}));
    EXPECT_TRUE(DeleteFile(Path("data/CASE.lib")));
    EXPECT_FALSE(FileExists(Path("Data/Case.Lib")));
}

TEST_F(Spelling, ThatIsRememberedFollowsWhatOtherProgramsDo) {
    PutBytes(Path("Slot/a.dat"), "first");
    const std::string asked = Path("slot/A.DAT");
    ASSERT_EQ(ReadLines(asked), Lines{"first"});
    fs::rename(Path("Slot/a.dat"), Path("Slot/A.Dat"));
    EXPECT_EQ(ReadLines(asked), Lines{"first"}) << "another spelling";
    fs::rename(Path("Slot"), Path("SLOT"));
    EXPECT_EQ(ReadLines(asked), Lines{"first"}) << "another spelling of the folder";
    fs::rename(Path("SLOT/A.Dat"), Path("SLOT/b.dat"));
    EXPECT_EQ(ReadLines(asked), std::nullopt) << "gone";
    EXPECT_FALSE(FileExists(asked));
    fs::rename(Path("SLOT/b.dat"), Path("SLOT/A.daT"));
    EXPECT_EQ(ReadLines(asked), Lines{"first"}) << "back again";
    fs::remove_all(Path("SLOT"));
    EXPECT_FALSE(WriteLines(asked, {"lost"})) << "the folder is gone";
    EXPECT_TRUE(MakeFolders(Path("slot")) && WriteLines(asked, {"second"}));
    EXPECT_EQ(ReadLines(asked), Lines{"second"});
}

TEST_F(Spelling, OfTheRootIsItsOwners) {
    PutBytes(Path("Root/PROJECT/x"), "real");
    PutBytes(Path("root/PROJECT/x"), "another root of nearly that name");
    PutBytes(Path("Rooted/x"), "beside");
    PutBytes(Path("rooted/x"), "beside too");
    SetRootSpelling(Path("Root") + "/");
    EXPECT_EQ(ReadLines(Path("root") + "\\project\\X"), Lines{"real"});
    EXPECT_EQ(TrueSpelling(Path("rooted/x")), Path("rooted/x"));
}

TEST(Paths, AreCutAtTheLastSeparatorOfEitherSign) {
    EXPECT_EQ(FolderOf("C:\\CLIM/a.cli"), "C:\\CLIM");
    EXPECT_EQ(FolderOf("a.cli"), "");
    EXPECT_EQ(NameOf("/root\\a.cli"), "a.cli");
    EXPECT_TRUE(LiesIn("C:\\Root\\PROJECT\\x", "/root/project"));
    EXPECT_TRUE(LiesIn("/x", "/"));
    EXPECT_FALSE(LiesIn("/root/projects", "/root/project"));
    EXPECT_FALSE(LiesIn("/root", "/root/project"));
}

}  // namespace
}  // namespace verandis
