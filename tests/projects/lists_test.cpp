#include <gtest/gtest.h>

#include <filesystem>

#include "app/session.h"
#include "projects/case_list.h"
#include "projects/project_list.h"
#include "projects/slot_activation.h"
#include "support/session_test.h"

// The two lists on disk, the folders behind them, and the slots that are opened through them.

namespace verandis {
namespace {

using testing_support::Bytes;
using testing_support::OnDisk;
using testing_support::PutBytes;
using testing_support::TreeOf;

class Lists : public testing_support::SmallRootTest {
protected:
    Lists() : projects(root + "/PROJECT/PROJECTS.LIB"), cases(project + "/CASES.LIB") {
        PutBytes(cases, "first - One - two\r\nlast - L\xE5ng\r\n");
        PutBytes(project + "/first/THERMAL.INP", "OOOOOO\r\nrest\r\n");
        PutBytes(project + "/last/THERMAL.INP", "OO");
    }

    std::string projects;
    std::string cases;
};

TEST_F(Lists, ChangesLeaveOtherLinesAndNoTemporaryFile) {
    PutBytes(root + "/PROJECT/PROJECTS.XXX", "left over from a crash\r\n");
    PutBytes(projects, "a\t/p/a\r\n verandis\t" + project + "\r\nz\t/p/z\r\n");
    ASSERT_TRUE(RenameProject(*FindProject("verandis"), "Home"));
    EXPECT_EQ(Bytes(projects), "a\t/p/a\r\nhome\t" + project + "\r\nz\t/p/z\r\n");
    EXPECT_FALSE(OnDisk(root + "/PROJECT/PROJECTS.XXX"));
    EXPECT_EQ(session.ProjectName, "home");
    EXPECT_TRUE(OnDisk(project));

    OpenCase(*FindCase("first"));
    ASSERT_TRUE(RenameCase(*FindCase("first"), "Second", "Tv\xC3\xA5 - tre"));
    EXPECT_EQ(Bytes(cases), "second - Tv\xE5 - tre\r\nlast - L\xE5ng\r\n");
    EXPECT_FALSE(OnDisk(project + "/CASES.XXX"));
    EXPECT_FALSE(OnDisk(project + "/first"));
    EXPECT_EQ(session.CaseName, "second");
    EXPECT_EQ(Bytes(project + "/Second/THERMAL.INP"), "XXXXXX\r\nrest\r\n");
}

// A folder stands where the changed copy would be written.
TEST_F(Lists, ListStaysWhenItsCopyCannotBeWritten) {
    std::filesystem::create_directories(root + "/PROJECT/PROJECTS.XXX");
    std::filesystem::create_directories(project + "/CASES.XXX");
    const std::string before = Bytes(projects) + Bytes(cases);
    EXPECT_FALSE(RenameProject(*FindProject("verandis"), "home"));
    OpenCase(*FindCase("first"));
    EXPECT_FALSE(RenameCase(*FindCase("first"), "second", "x"));
    EXPECT_EQ(Bytes(projects) + Bytes(cases), before);
    EXPECT_EQ(prompts.shown.size(), 2u);
    EXPECT_EQ(session.ProjectName + session.CaseName, "verandisfirst");
    EXPECT_TRUE(OnDisk(project + "/first/THERMAL.INP")) << "the listed case lost its folder";
}

TEST_F(Lists, TitlesMayHoldTheSeparatorAndSwedishLetters) {
    EXPECT_EQ(FindCase("FIRST")->title, "One - two");
    EXPECT_EQ(FindCase("last")->title, "L\xC3\xA5ng");
    ASSERT_TRUE(CreateCase("Ny", " \xC3\x85r - 1 "));
    EXPECT_EQ(Bytes(cases), "first - One - two\r\nlast - L\xE5ng\r\nny - \xC5r - 1\r\n");
    EXPECT_EQ(FillCaseList().back(), "ny - \xC3\x85r - 1");
    EXPECT_EQ(Bytes(project + "/Ny/THERMAL.INP"), "XXXXXX\r\n");
    // A line without a title keeps its name when another line's change rewrites the list.
    PutBytes(cases, "bare - \r\nlast - x\r\n");
    DeleteCase("LAST");
    ASSERT_EQ(ReadCases().size(), 1u);
    EXPECT_EQ(FindCase("bare")->title, "");
    EXPECT_FALSE(OnDisk(project + "/last"));
    EXPECT_TRUE(OnDisk(project + "/first"));
}

TEST_F(Lists, OpeningSetsNamesFolderAndWindowTitle) {
    OpenProject({"Verandis", project});
    EXPECT_EQ(session.WindowTitle, "THARM (verandis)");
    EXPECT_EQ(session.CaseName + session.CaseTitle + session.CaseFolder, "");
    OpenCase({"First", "One"});
    EXPECT_EQ(session.WindowTitle, "THARM (verandis - first)");
    EXPECT_EQ(session.CaseTitle, "One");
    EXPECT_EQ(session.CaseFolder, session.ProjectFolder + "/first");
}

TEST_F(Lists, MarkingStagesTouchesOneCaseOrAll) {
    MarkStagesToRun(project + "/first", {true, false, false, false, false, true});
    EXPECT_EQ(Bytes(project + "/first/THERMAL.INP"), "XOOOOX\r\nrest\r\n");
    EXPECT_EQ(Bytes(project + "/last/THERMAL.INP"), "OO");
    MarkStagesToRun("ALL", {false, true, false, false, false, false});
    EXPECT_EQ(Bytes(project + "/first/THERMAL.INP"), "XXOOOX\r\nrest\r\n");
    EXPECT_EQ(Bytes(project + "/last/THERMAL.INP").substr(0, 2), "OX");
}

// Results of the detailed simulator in any spelling of their endings.
const char* const kResults[] = {"A.TXT", "b.lis", "c.Ddd", "d.ggg", "e.PPP"};

TEST_F(Lists, CopiesBringTheWallLibraryAndNoResults) {
    PutBytes(project + "/WALLS.LIB", "walls");
    PutBytes(project + "/first/sub/Surface.Inp", "deep");
    PutBytes(project + "/keep.txt", "not a case");
    for (const char* name : kResults) PutBytes(project + "/first/" + name, "old");
    ASSERT_TRUE(CopyCase(*FindCase("first"), "Copy", "C"));
    using Files = std::vector<std::pair<std::string, std::string>>;
    const Files wanted = {
        {"THERMAL.INP", "OOOOOO\r\nrest\r\n"}, {"Walls.Lib", "walls"}, {"sub/Surface.Inp", "deep"}};
    EXPECT_EQ(TreeOf(project + "/Copy"), wanted);
    EXPECT_EQ(session.CaseName, "copy");

    ASSERT_TRUE(CopyProject(*FindProject("verandis"), "twin"));
    const std::string twin = root + "/PROJECT/twin";
    EXPECT_EQ(session.ProjectName, "twin");
    EXPECT_EQ(Bytes(twin + "/keep.txt"), "not a case");
    EXPECT_EQ(Bytes(twin + "/CASES.LIB"), Bytes(cases));
    EXPECT_EQ(Bytes(twin + "/first/sub/Surface.Inp"), "deep");
    for (const char* name : kResults) {
        EXPECT_FALSE(OnDisk(twin + "/first/" + name)) << name;
        EXPECT_TRUE(OnDisk(project + "/first/" + name)) << "the source lost " << name;
    }
}

TEST_F(Lists, SlotBecomesItsTemplateWhateverItHeld) {
    PutBytes(cases, "temporar - t\r\nBase1 - b\r\nushape - U\r\n");
    EXPECT_EQ(FillTemplateList(), std::vector<std::string>{"ushape - U"});
    PutBytes(project + "/UShape/Site.inp", "site");
    PutBytes(project + "/UShape/sub/x.dat", "x");
    PutBytes(project + "/UShape/a.lis", "result");
    ASSERT_TRUE(CopyCase2(*FindCase("ushape"), "UShape1"));
    const auto fresh = TreeOf(project + "/UShape1");
    EXPECT_EQ(fresh, (std::vector<std::pair<std::string, std::string>>{{"Site.inp", "site"},
                                                                       {"sub/x.dat", "x"}}));
    const std::string list = Bytes(cases);
    EXPECT_TRUE(list.ends_with("ushape1 - U\r\n"));
    PutBytes(project + "/UShape1/SimpResults.Dat", "of an earlier session");
    PutBytes(project + "/UShape1/deep/er/file", "stray");
    PutBytes(project + "/UShape1/Site.inp", "edited");
    ASSERT_TRUE(CopyCase2(*FindCase("ushape"), "UShape1"));
    EXPECT_EQ(TreeOf(project + "/UShape1"), fresh);
    EXPECT_FALSE(OnDisk(project + "/UShape1/deep"));
    EXPECT_EQ(Bytes(cases), list);
    EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(Lists, SlotIsFoundByItsWholeName) {
    PutBytes(cases,
             "vshape - template of vshape1\r\nvshape10 - ten\r\nVSHAPE1 - V\r\n"
             "ushape2 - U\r\n");
    session.ActiveShape = kShapeU;
    session.ActiveCaseNo = 2;
    EXPECT_TRUE(ActivateSlot(1, kShapeV, ""));
    EXPECT_EQ(session.CaseName, "vshape1");
    EXPECT_EQ(session.CaseTitle, "V");
    EXPECT_EQ(session.ActiveShape, kShapeU) << "opening a slot changed what the window edits";
    EXPECT_FALSE(ActivateSlot(3, kShapeI, ""));
    EXPECT_EQ(session.CaseName, "vshape1") << "a missing slot closed the open one";
    session.PropertyValue = "ushape2";
    SlotWord(9);
    EXPECT_TRUE(ActivateSlot(1, 9, "")) << "a bad shape must leave the name as it was";
    EXPECT_EQ(session.CaseName, "ushape2");
    ActivateSlot(1, kShapeV, "");
    ReactivateEditedSlot();
    EXPECT_EQ(session.CaseName, "ushape2");
}

}  // namespace
}  // namespace verandis
