#include <gtest/gtest.h>

#include "app/session.h"
#include "projects/case_list.h"
#include "projects/project_list.h"
#include "support/session_test.h"

// What the Ok of each dialog of projects and cases takes and refuses, and with which words.

namespace verandis {
namespace {

using testing_support::Bytes;
using testing_support::OnDisk;
using testing_support::PutBytes;
using testing_support::TreeOf;
using Texts = std::vector<std::string>;

class Dialogs : public testing_support::SmallRootTest {
protected:
    Dialogs() : list(root + "/PROJECT/PROJECTS.LIB") {
        session.SimulatorFolder = root + "/PROJECT/mwtharm";
        Reset();
    }

    void Reset() {
        prompts.shown.clear();
        PutBytes(list, "verandis\t" + project + "\r\nold\t" + root + "/PROJECT/taken\r\n");
        PutBytes(project + "/CASES.LIB", "first - One - two\r\nother - Three\r\n");
        PutBytes(project + "/first/THERMAL.INP", "OOOOOO\r\n");
        PutBytes(project + "/other/THERMAL.INP", "OOOOOO\r\n");
        OpenProject(*FindProject("verandis"));
        OpenCase(*FindCase("first"));
    }

    std::string list;
};

using Press = bool (*)(const std::string& name);
const Press kNewProject = CreateProject;
const Press kCopyProject = [](const std::string& name) {
    return CopyProject(*FindProject("verandis"), name);
};
const Press kRenProject = [](const std::string& name) {
    return RenameProject(*FindProject("old"), name);
};
const Press kNewCase = [](const std::string& name) { return CreateCase(name, "A title"); };
const Press kCopyCase = [](const std::string& name) {
    return CopyCase(*FindCase("first"), name, "A title");
};
const Press kRenCase = [](const std::string& name) {
    return RenameCase(*FindCase("first"), name, "New");
};

constexpr const char* kBadProject = "Name must be <= 8 characters long and no spaces in the name !";
constexpr const char* kBadTarget = "Target name must be <= 8 characters long";
constexpr const char* kSameProject = "A project with the same name or path already exists";
constexpr const char* kBadCase =
    "Case name must be <= 8 characters long with no spacec in the name !";
constexpr const char* kSameCase = "A case with the same name already exists";

struct Ok {
    const char* fault;
    Press press;
    const char* name;
    const char* message;  // none when the name is taken
};

const Ok kOks[] = {
    {"eight characters", kNewProject, "abcdefgh", nullptr},
    {"characters, not bytes", kNewProject, "åäöåäöåä", nullptr},
    {"outer blanks do not count", kNewProject, "  abcdefgi  ", nullptr},
    {"blanks are no name", kNewProject, "   ", "Name and path must be set"},
    {"nine characters", kNewProject, "abcdefghi", kBadProject},
    {"blank inside", kNewProject, "ab cd", kBadProject},
    {"parent folder", kNewProject, "..", kBadProject},
    {"other folder", kNewProject, "../../x", kBadProject},
    {"folder below", kNewProject, "a/b", kBadProject},
    {"folder below, other sign", kNewProject, "a\\b", kBadProject},
    {"hidden folder", kNewProject, ".x", kBadProject},
    {"folder of the delivered libraries", kNewProject, "MWtharm",
     "Projectpath can not be the same as System-, Local- or Thermal-path"},
    {"same name in upper case", kNewProject, "VERANDIS", kSameProject},
    {"same path under another name", kNewProject, "Taken", kSameProject},
    {"no name", kCopyProject, " ", "Target name must be set"},
    {"nine characters", kCopyProject, "abcdefghi", kBadTarget},
    {"parent folder", kCopyProject, "..", kBadTarget},
    {"same name", kCopyProject, "OLD", kSameProject},
    {"good name", kCopyProject, "fresh", nullptr},
    {"no name", kRenProject, "", "Projectname must be set"},
    {"other folder", kRenProject, "../x", kBadProject},
    {"same name", kRenProject, "Verandis", "A project with the same name already exist"},
    {"good name", kRenProject, "Fresh", nullptr},
    {"no name", kNewCase, " ", "Casename must be set"},
    {"eight characters", kNewCase, "Abcdefgh", nullptr},
    {"å is a letter", kNewCase, "å2345678", nullptr},
    {"nine characters", kNewCase, "abcdefghi", kBadCase},
    {"digit first", kNewCase, "1abc", kBadCase},
    {"blank inside", kNewCase, "a b", kBadCase},
    {"drive", kNewCase, "a:b", kBadCase},
    {"parent folder", kNewCase, "..", kBadCase},
    {"other folder", kNewCase, "a/../../x", kBadCase},
    {"folder below, other sign", kNewCase, "a\\b", kBadCase},
    {"same name in upper case", kNewCase, "FIRST", kSameCase},
    {"onto itself", kCopyCase, "first", kSameCase},
    {"digit first", kCopyCase, "2nd", kBadCase},
    {"good name", kCopyCase, "Second", nullptr},
    {"no name", kRenCase, "", "Casename must be set"},
    {"other folder", kRenCase, "../x", kBadCase},
    {"same name", kRenCase, "Other", kSameCase},
    {"title alone", kRenCase, "First", nullptr},
    {"good name", kRenCase, "Later", nullptr},
};

TEST_F(Dialogs, TakeANameOrRefuseItAndLeaveTheDiskAlone) {
    for (const Ok& row : kOks) {
        SCOPED_TRACE(std::string(row.fault) + ": " + row.name);
        Reset();
        const auto before = TreeOf(root);
        EXPECT_EQ(row.press(row.name), row.message == nullptr);
        EXPECT_EQ(prompts.Texts(), row.message ? Texts{row.message} : Texts{});
        EXPECT_EQ(TreeOf(root) == before, row.message != nullptr);
        for (const auto& shown : prompts.shown) {
            EXPECT_EQ(shown.title, "MESSAGE");
            EXPECT_EQ(shown.icon, Icon::Exclamation);
        }
    }
    EXPECT_FALSE(OnDisk(root + "/x"));
}

TEST_F(Dialogs, RenamingAsksForAnOpenCaseAndForTheLists) {
    const CaseRow row = *FindCase("first");
    std::remove((project + "/CASES.LIB").c_str());
    std::remove(list.c_str());
    EXPECT_FALSE(RenameCase(row, "later", ""));
    EXPECT_FALSE(RenameProject({"old", root + "/PROJECT/old"}, "new"));
    session.CaseName.clear();
    EXPECT_FALSE(RenameCase(row, "later", ""));
    EXPECT_EQ(prompts.Texts(), (Texts{"Casefile does not exist", "Projectfile does not exist",
                                      "No Case has been opened"}));
}

TEST_F(Dialogs, NewProjectIsOpenedAndGetsTheDeliveredLibraries) {
    for (const char* name : {"GASTP.INP", "GLASSTP.INP", "WNDTP.lib", "OPAQUE.LIB"}) {
        PutBytes(session.SimulatorFolder + "/" + name, name);
    }
    ASSERT_TRUE(CreateProject("Ny"));
    EXPECT_EQ(ReadProjects().back().name, "ny");
    EXPECT_EQ(session.ProjectName + "/" + session.CaseName, "ny/");
    EXPECT_EQ(session.WindowTitle, "THARM (ny)");
    EXPECT_EQ(TreeOf(root + "/PROJECT/Ny").size(), 4u);
}

TEST_F(Dialogs, DeletingAsksAndTheLastProjectTakesTheListAlong) {
    PutBytes(root + "/PROJECT/taken/a/b.txt", "x");
    const ProjectRow old = *FindProject("old");
    prompts.answers = {false, true, true};
    EXPECT_FALSE(DeleteProject(old));
    EXPECT_TRUE(OnDisk(root + "/PROJECT/taken/a/b.txt"));
    EXPECT_TRUE(DeleteProject(old));
    EXPECT_FALSE(OnDisk(root + "/PROJECT/taken"));
    EXPECT_EQ(Bytes(list), "verandis\t" + project + "\r\n");
    EXPECT_EQ(session.CaseName, "first") << "deleting another project closed the open one";
    EXPECT_TRUE(DeleteProject(*FindProject("verandis")));
    EXPECT_FALSE(OnDisk(list));
    EXPECT_FALSE(OnDisk(project));
    EXPECT_EQ(session.ProjectName + session.ProjectFolder + session.CaseName + session.CaseFolder,
              "");
    EXPECT_EQ(session.WindowTitle, "THARM");
    const std::string other = "Do you want to delete the project old ?";
    EXPECT_EQ(prompts.Texts(),
              (Texts{other, other, "Do you really want to delete the CURRENT project verandis ?"}));
}

TEST_F(Dialogs, ConversionTouchesOnlyListsOfTheOldForm) {
    std::remove(list.c_str());
    ConvertProjectList();
    for (const char* current : {"a\tc:\\x\\a\r\n", "a\t/home/x/a\r\n"}) {
        PutBytes(list, current);
        ConvertProjectList();
        EXPECT_EQ(Bytes(list), current);
    }
    EXPECT_FALSE(OnDisk(root + "/PROJECT/PROJECTS.OLD"));
    const std::string old = "a\t\\THARM\\Work\\a\r\nb\t\\x\\b\r\n";
    PutBytes(list, old);
    ConvertProjectList();
    EXPECT_EQ(Bytes(list), "a\twork\\a\r\nb\tb\r\n");
    EXPECT_EQ(Bytes(root + "/PROJECT/PROJECTS.OLD"), old);
    EXPECT_EQ(
        prompts.Texts(),
        (Texts{"Can't find file " + list, "File " + list + " is already converted",
               "File " + list + " is already converted", "File " + list + " will be converted"}));
    EXPECT_EQ(prompts.shown[0].title, "Convert");
}

}  // namespace
}  // namespace verandis
