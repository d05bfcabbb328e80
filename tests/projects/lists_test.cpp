#include <gtest/gtest.h>

#include <filesystem>

#include "app/session.h"
#include "projects/case_list.h"
#include "projects/project_list.h"
#include "projects/slot_activation.h"
#include "support/session_test.h"

// The two lists on disk, the dialogs that change them, and the slots that are opened through them.

namespace verandis {
namespace {

using testing_support::Bytes;
using testing_support::OnDisk;
using testing_support::PutBytes;
using testing_support::TreeOf;
using Texts = std::vector<std::string>;
using Files = std::vector<std::pair<std::string, std::string>>;

class Lists : public testing_support::SmallRootTest {
protected:
    Lists() : projects(root + "/PROJECT/PROJECTS.LIB"), cases(project + "/CASES.LIB") {
        session.SimulatorFolder = root + "/PROJECT/mwtharm";
        Reset();
    }

    void Reset() {
        prompts.shown.clear();
        PutBytes(projects, "verandis\t" + project + "\r\nold\t" + root + "/PROJECT/taken\r\n");
        PutBytes(cases, "first - One - two\r\nlast - L\xE5ng\r\n");
        PutBytes(project + "/first/THERMAL.INP", "OOOOOO\r\nrest\r\n");
        PutBytes(project + "/last/THERMAL.INP", "OO");
        OpenProject(*FindProject("verandis"));
        OpenCase(*FindCase("first"));
    }

    std::string projects;
    std::string cases;
};

struct Ok {
    bool (*press)(const std::string& name);
    const char* message;  // none when the names are taken
    Texts names;
};
struct Press {
    static bool Copy(const std::string& name) {
        return CopyProject(*FindProject("verandis"), name);
    }
    static bool Ren(const std::string& name) { return RenameProject(*FindProject("old"), name); }
    static bool New(const std::string& name) { return CreateCase(name, "Title"); }
    static bool CopyFirst(const std::string& n) { return CopyCase(*FindCase("first"), n, "Title"); }
    static bool RenFirst(const std::string& n) {
        return RenameCase(*FindCase("first"), n, "Title");
    }
};

constexpr const char* kBadProject = "Name must be <= 8 characters long and no spaces in the name !";
constexpr const char* kBadTarget = "Target name must be <= 8 characters long";
constexpr const char* kSameProject = "A project with the same name or path already exists";
constexpr const char* kBadCase =
    "Case name must be <= 8 characters long with no spacec in the name !";
constexpr const char* kSameCase = "A case with the same name already exists";

const Ok kOks[] = {
    {CreateProject, nullptr, {"abcdefgh", "åäöåäöåä", "  abcdefgi  "}},
    {CreateProject, "Name and path must be set", {"", "   "}},
    {CreateProject, kBadProject, {"abcdefghi", "ab cd", "..", "../../x", "a/b", "a\\b", ".x"}},
    {CreateProject, kSameProject, {"VERANDIS", "Taken"}},
    {CreateProject,
     "Projectpath can not be the same as System-, Local- or Thermal-path",
     {"MWtharm"}},
    {Press::Copy, nullptr, {"fresh"}},
    {Press::Copy, "Target name must be set", {" "}},
    {Press::Copy, kBadTarget, {"abcdefghi", ".."}},
    {Press::Copy, kSameProject, {"OLD"}},
    {Press::Ren, nullptr, {"Fresh"}},
    {Press::Ren, "Projectname must be set", {""}},
    {Press::Ren, kBadProject, {"../x"}},
    {Press::Ren, "A project with the same name already exist", {"Verandis"}},
    {Press::New, nullptr, {"Abcdefgh", "å2345678"}},
    {Press::New, "Casename must be set", {" "}},
    {Press::New, kBadCase, {"abcdefghi", "1abc", "a b", "a:b", "..", "a/../../x", "a\\b"}},
    {Press::New, kSameCase, {"FIRST"}},
    {Press::CopyFirst, nullptr, {"Second"}},
    {Press::CopyFirst, kBadCase, {"2nd"}},
    {Press::CopyFirst, kSameCase, {"first"}},
    {Press::RenFirst, "Casename must be set", {""}},
    {Press::RenFirst, kBadCase, {"../x"}},
    {Press::RenFirst, kSameCase, {"Last"}},
    {Press::RenFirst, nullptr, {"First", "Later"}},
};

TEST_F(Lists, DialogsTakeANameOrRefuseItAndLeaveTheDiskAlone) {
    for (const Ok& row : kOks) {
        for (const std::string& name : row.names) {
            SCOPED_TRACE((row.message ? row.message : "good name: ") + name);
            Reset();
            const auto before = TreeOf(root);
            EXPECT_EQ(row.press(name), row.message == nullptr);
            EXPECT_EQ(prompts.Texts(), row.message ? Texts{row.message} : Texts{});
            EXPECT_EQ(TreeOf(root) == before, row.message != nullptr);
            if (prompts.shown.empty()) continue;
            EXPECT_EQ(prompts.shown[0].title, "MESSAGE");
            EXPECT_EQ(prompts.shown[0].icon, Icon::Exclamation);
        }
    }
    EXPECT_FALSE(OnDisk(root + "/x"));
}

TEST_F(Lists, NewProjectIsOpenedAndGetsTheDeliveredLibraries) {
    for (const char* name : {"GASTP.INP", "GLASSTP.INP", "WNDTP.lib", "OPAQUE.LIB"}) {
        PutBytes(session.SimulatorFolder + "/" + name, name);
    }
    ASSERT_TRUE(CreateProject("Ny"));
    EXPECT_EQ(ReadProjects().back().name, "ny");
    EXPECT_EQ(session.ProjectName + session.CaseName + session.CaseTitle + session.CaseFolder,
              "ny");
    EXPECT_EQ(session.WindowTitle, "THARM (ny)");
    EXPECT_EQ(TreeOf(root + "/PROJECT/Ny").size(), 4u);
    OpenCase({"First", "One"});
    EXPECT_EQ(session.WindowTitle, "THARM (ny - first)");
    EXPECT_EQ(session.CaseTitle + session.CaseFolder, "One" + session.ProjectFolder + "/first");
}

TEST_F(Lists, DeletingAsksAndTheLastProjectTakesTheListAlong) {
    PutBytes(root + "/PROJECT/taken/a/b.txt", "x");
    const ProjectRow old = *FindProject("old");
    prompts.answers = {false, true, true};
    EXPECT_FALSE(DeleteProject(old));
    EXPECT_TRUE(OnDisk(root + "/PROJECT/taken/a/b.txt"));
    EXPECT_TRUE(DeleteProject(old));
    EXPECT_FALSE(OnDisk(root + "/PROJECT/taken"));
    EXPECT_EQ(Bytes(projects), "verandis\t" + project + "\r\n");
    EXPECT_EQ(session.CaseName, "first") << "deleting another project closed the open one";
    EXPECT_TRUE(DeleteProject(*FindProject("verandis")));
    EXPECT_FALSE(OnDisk(projects) || OnDisk(project));
    EXPECT_EQ(session.ProjectName + session.ProjectFolder + session.CaseName, "");
    EXPECT_EQ(session.WindowTitle, "THARM");
    EXPECT_FALSE(RenameProject(old, "new"));
    EXPECT_FALSE(RenameCase({"first", ""}, "new", ""));
    const std::string other = "Do you want to delete the project old ?";
    EXPECT_EQ(prompts.Texts(),
              (Texts{other, other, "Do you really want to delete the CURRENT project verandis ?",
                     "Projectfile does not exist", "No Case has been opened"}));
}

TEST_F(Lists, ConversionTouchesOnlyListsOfTheOldForm) {
    std::remove(projects.c_str());
    ConvertProjectList();
    for (const char* current : {"a\tc:\\x\\a\r\n", "a\t/home/x/a\r\n"}) {
        PutBytes(projects, current);
        ConvertProjectList();
        EXPECT_EQ(Bytes(projects), current);
    }
    const std::string old = "a\t\\THARM\\Work\\a\r\nb\t\\x\\b\r\n";
    PutBytes(projects, old);
    ConvertProjectList();
    EXPECT_EQ(Bytes(projects), "a\twork\\a\r\nb\tb\r\n");
    EXPECT_EQ(Bytes(root + "/PROJECT/PROJECTS.OLD"), old);
    const std::string file = "File " + projects;
    EXPECT_EQ(prompts.Texts(),
              (Texts{"Can't find file " + projects, file + " is already converted",
                     file + " is already converted", file + " will be converted"}));
    EXPECT_EQ(prompts.shown[0].title, "Convert");
}

TEST_F(Lists, ChangesLeaveOtherLinesAndNoTemporaryFile) {
    PutBytes(root + "/PROJECT/PROJECTS.XXX", "left over from a crash\r\n");
    PutBytes(projects, "a\t/p/a\r\n verandis\t" + project + "\r\nz\t/p/z\r\n");
    ASSERT_TRUE(RenameProject(*FindProject("verandis"), "Home"));
    EXPECT_EQ(Bytes(projects), "a\t/p/a\r\nhome\t" + project + "\r\nz\t/p/z\r\n");
    ASSERT_TRUE(RenameCase(*FindCase("first"), "Second", "Två - tre"));
    EXPECT_EQ(Bytes(cases), "second - Tv\xE5 - tre\r\nlast - L\xE5ng\r\n");
    EXPECT_EQ(session.ProjectName + session.CaseName, "homesecond");
    EXPECT_EQ(Bytes(project + "/Second/THERMAL.INP"), "XXXXXX\r\nrest\r\n");
    EXPECT_FALSE(OnDisk(root + "/PROJECT/PROJECTS.XXX") || OnDisk(project + "/CASES.XXX"));
}

TEST_F(Lists, ListStaysWhenItsCopyCannotBeWritten) {
    // A folder stands where the changed copy would be written.
    std::filesystem::create_directories(root + "/PROJECT/PROJECTS.XXX");
    std::filesystem::create_directories(project + "/CASES.XXX");
    const std::string before = Bytes(projects) + Bytes(cases);
    EXPECT_FALSE(RenameProject(*FindProject("verandis"), "home"));
    EXPECT_FALSE(RenameCase(*FindCase("first"), "second", "x"));
    EXPECT_EQ(Bytes(projects) + Bytes(cases), before);
    EXPECT_EQ(prompts.shown.size(), 2u);
    EXPECT_TRUE(OnDisk(project + "/first/THERMAL.INP")) << "the listed case lost its folder";
    std::remove(cases.c_str());
    EXPECT_FALSE(RenameCase({"first", ""}, "second", "x"));
    EXPECT_EQ(prompts.shown.back().text, "Casefile does not exist");
}

TEST_F(Lists, TitlesMayHoldTheSeparatorAndSwedishLettersOrBeEmpty) {
    EXPECT_EQ(FindCase("FIRST")->title + FindCase("last")->title, "One - twoLång");
    ASSERT_TRUE(CreateCase("Ny", "År - 1"));
    EXPECT_EQ(Bytes(cases), "first - One - two\r\nlast - L\xE5ng\r\nny - \xC5r - 1\r\n");
    EXPECT_EQ(FillCaseList().back(), "ny - År - 1");
    EXPECT_EQ(Bytes(project + "/Ny/THERMAL.INP"), "XXXXXX\r\n");
    PutBytes(cases, "bare - \r\nlast - x\r\n");
    DeleteCase("LAST");
    EXPECT_EQ(ReadCases().size(), 1u);
    EXPECT_EQ(FindCase("bare")->title, "") << "a trimmed line without a title lost its name";
    EXPECT_TRUE(OnDisk(project + "/first") && !OnDisk(project + "/last"));
}

TEST_F(Lists, MarkingStagesTouchesOneCaseOrAll) {
    MarkStagesToRun(project + "/first", {true, false, false, false, false, true});
    EXPECT_EQ(Bytes(project + "/last/THERMAL.INP"), "OO");
    MarkStagesToRun("ALL", {false, true, false, false, false, false});
    EXPECT_EQ(Bytes(project + "/first/THERMAL.INP"), "XXOOOX\r\nrest\r\n");
    EXPECT_EQ(Bytes(project + "/last/THERMAL.INP").substr(0, 2), "OX");
}

TEST_F(Lists, CopiesBringTheWallLibraryAndNoResults) {
    PutBytes(project + "/WALLS.LIB", "walls");
    PutBytes(project + "/first/sub/Surface.Inp", "deep");
    PutBytes(project + "/keep.txt", "not a case");
    for (const char* name : {"A.TXT", "b.lis", "c.Ddd", "d.ggg", "e.PPP"}) {
        PutBytes(project + "/first/" + name, "old");
    }
    ASSERT_TRUE(CopyCase(*FindCase("first"), "Copy", "C"));
    ASSERT_TRUE(CopyProject(*FindProject("verandis"), "twin"));
    const std::string twin = root + "/PROJECT/twin";
    Files wanted = {{"THERMAL.INP", "OOOOOO\r\nrest\r\n"}, {"sub/Surface.Inp", "deep"}};
    EXPECT_EQ(TreeOf(twin + "/first"), wanted);
    wanted.insert(wanted.begin() + 1, {"Walls.Lib", "walls"});
    EXPECT_EQ(TreeOf(project + "/Copy"), wanted);
    EXPECT_EQ(Bytes(twin + "/keep.txt") + Bytes(twin + "/CASES.LIB"), "not a case" + Bytes(cases));
    EXPECT_EQ(TreeOf(project + "/first").size(), 7u) << "the source lost files";
}

TEST_F(Lists, SlotBecomesItsTemplateWhateverItHeld) {
    PutBytes(cases, "temporar - t\r\nBase1 - b\r\nushape - U\r\n");
    EXPECT_EQ(FillTemplateList(), Texts{"ushape - U"});
    PutBytes(project + "/UShape/Site.inp", "site");
    PutBytes(project + "/UShape/a.lis", "result");
    for (int start = 1; start <= 2; ++start) {
        ASSERT_TRUE(
            CopyCase2(*FindCase("ushape"), "UShape1", [](const std::string&) { return false; }));
        EXPECT_EQ(TreeOf(project + "/UShape1"), (Files{{"Site.inp", "site"}}));
        EXPECT_EQ(Bytes(cases), "temporar - t\r\nBase1 - b\r\nushape - U\r\nushape1 - U\r\n");
        PutBytes(project + "/UShape1/deep/er/SimpResults.Dat", "of an earlier session");
        PutBytes(project + "/UShape1/Site.inp", "edited");
    }
    EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(Lists, SlotIsFoundByItsWholeName) {
    PutBytes(cases, "vshape - of vshape1 - x\r\nvshape10 - ten\r\nVSHAPE1 - V\r\nushape2 - U\r\n");
    session.ActiveShape = kShapeU;
    session.ActiveCaseNo = 2;
    EXPECT_TRUE(ActivateSlot(1, kShapeV, ""));
    EXPECT_EQ(session.CaseName + session.CaseTitle, "vshape1V");
    EXPECT_FALSE(ActivateSlot(3, kShapeI, ""));
    EXPECT_EQ(session.CaseName, "vshape1") << "a missing slot closed the open one";
    ReactivateEditedSlot();
    EXPECT_EQ(session.CaseName, "ushape2") << "opening a slot changed what the window edits";
    session.PropertyValue = "vshape1";
    SlotWord(9);
    EXPECT_TRUE(ActivateSlot(1, 9, "")) << "a bad shape must leave the name as it was";
    EXPECT_EQ(session.CaseName, "vshape1");
}

}  // namespace
}  // namespace verandis
