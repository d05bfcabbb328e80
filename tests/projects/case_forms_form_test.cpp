#include "projects/case_forms_form.h"

#include <functional>
#include <memory>

#include "app/data_root.h"
#include "app/program_text.h"
#include "app/session.h"
#include "projects/case_list.h"
#include "projects/project_list.h"
#include "support/form_test.h"

namespace verandis::forms {
namespace {

using testing_support::Bytes;
using testing_support::Control;
using testing_support::OnDisk;
using testing_support::Press;
using testing_support::PutBytes;
using testing_support::SmallRootTest;
using testing_support::Type;

using Opener = std::unique_ptr<ListDialog> (*)();

template <class Dialog>
std::unique_ptr<ListDialog> Open() {
    return std::make_unique<Dialog>();
}

/// Two projects; the open one has two cases, "first" is open.
class ListDialogs : public SmallRootTest {
protected:
    ListDialogs() {
        session.SimulatorFolder = DeliveredFolder() + "/MWTHARM";
        LoadProgramText();
        session.SimulatorFolder = root + "/MWTHARM";
        PutBytes(root + "/PROJECT/PROJECTS.LIB",
                 "verandis\t" + project + "\r\nother\t" + root + "/PROJECT/other\r\n");
        PutBytes(root + "/PROJECT/other/CASES.LIB", "");
        AddCase("second", "Title two");
        AddCase("first", "Title one");
        PutBytes(project + "/second/Keep.inp", "k");
        PutBytes(project + "/second/Result.TXT", "r");
    }

    /// Opens a dialog, chooses a row (none: -1), types, and presses Ok.
    void Play(Opener open, int row, const char* name = "", const char* title = nullptr) {
        dialog = open();
        dialog->show();
        auto& list = *dialog->findChild<QListWidget*>();
        if (row >= 0) list.setCurrentRow(row);
        for (const char* field : {"ProjectName", "TargetName", "CaseName"}) {
            if (auto* found = dialog->findChild<QLineEdit*>(field)) Type(*found, name);
        }
        if (title) Type(Control<QLineEdit>(*dialog, "CaseTitle"), title);
        auto& ok = Control<QPushButton>(*dialog, "Command1");
        enabled = ok.isEnabled();
        Press(ok);
    }

    bool Closed() const { return !dialog->isVisible() && dialog->result() == QDialog::Accepted; }

    std::unique_ptr<ListDialog> dialog;
    bool enabled = false;
};

void LoseProjects() {
    std::remove((session.ProjectRoot + "/PROJECTS.LIB").c_str());
}

void LoseCases() {
    std::remove((session.ProjectRoot + "/verandis/CASES.LIB").c_str());
}

void CloseCase() {
    verandis::OpenProject({session.ProjectName, session.ProjectFolder});
}

void RootIsTheNewPath() {
    session.SimulatorFolder = session.ProjectRoot + "/MWTHARM";
}

struct Complaint {
    Opener open;
    int row;
    const char* typed;
    const char* message;
    void (*before)() = nullptr;
};

constexpr const char* kProjectNameRule =
    "Name must be <= 8 characters long and no spaces in the name !";
constexpr const char* kCaseNameRule =
    "Case name must be <= 8 characters long with no spacec in the name !";

constexpr Complaint kComplaints[] = {
    {Open<NewProject>, -1, "  ", "Name and path must be set"},
    {Open<NewProject>, -1, "ninechars", kProjectNameRule},
    {Open<NewProject>, -1, "a b", kProjectNameRule},
    {Open<NewProject>, -1, "OTHER", "A project with the same name or path already exists"},
    {Open<NewProject>, -1, "mwtharm",
     "Projectpath can not be the same as System-, Local- or Thermal-path", RootIsTheNewPath},
    {Open<CopyProject>, 0, "", "Target name must be set"},
    {Open<CopyProject>, 0, "ninechars", "Target name must be <= 8 characters long"},
    {Open<CopyProject>, 0, "Other", "A project with the same name or path already exists"},
    {Open<RenProject>, 1, "", "Projectname must be set"},
    {Open<RenProject>, 1, "Verandis", "A project with the same name already exist"},
    {Open<RenProject>, -1, "x", "Projectfile does not exist", LoseProjects},
    {Open<NewCase>, -1, "", "Casename must be set"},
    {Open<NewCase>, -1, "1st", kCaseNameRule},
    {Open<NewCase>, -1, "a:b", kCaseNameRule},
    {Open<NewCase>, -1, "Second", "A case with the same name already exists"},
    {Open<CopyCase>, 0, "", "Casename must be set"},
    {Open<CopyCase>, 0, "FIRST", "A case with the same name already exists"},
    {Open<RenCase>, 0, "x", "No Case has been opened", CloseCase},
    {Open<RenCase>, -1, "x", "No Case has been opened", CloseCase},
    {Open<RenCase>, 0, "", "Casename must be set"},
    {Open<RenCase>, -1, "x", "Casefile does not exist", LoseCases},
    {Open<RenCase>, 0, "first", "A case with the same name already exists"},
};

TEST_F(ListDialogs, ComplainAndStayWithTheNameSelected) {
    for (const Complaint& each : kComplaints) {
        SCOPED_TRACE(each.message);
        const std::string projects = Bytes(root + "/PROJECT/PROJECTS.LIB");
        const std::string cases = Bytes(project + "/CASES.LIB");
        const Session before = session;
        prompts.shown.clear();
        if (each.before) each.before();
        Play(each.open, each.row, each.typed);
        EXPECT_EQ(prompts.Texts(), std::vector<std::string>{each.message});
        for (const auto& shown : prompts.shown) {
            EXPECT_EQ(shown.title, "MESSAGE");
            EXPECT_EQ(shown.icon, Icon::Exclamation);
        }
        EXPECT_TRUE(dialog->isVisible());
        auto* field = qobject_cast<QLineEdit*>(dialog->focusWidget());
        ASSERT_TRUE(field);
        EXPECT_EQ(field->selectedText(), QString(each.typed));
        QTest::keyClick(dialog.get(), Qt::Key_Escape);
        EXPECT_EQ(dialog->result(), QDialog::Rejected);
        session = before;
        PutBytes(root + "/PROJECT/PROJECTS.LIB", projects);
        PutBytes(project + "/CASES.LIB", cases);
    }
    EXPECT_FALSE(OnDisk(project + "/x"));
}

TEST_F(ListDialogs, DoNothingWithoutARow) {
    CloseCase();
    session.ProjectName.clear();
    for (const Opener open :
         {Open<OpenProject>, Open<CopyProject>, Open<DelProject>, Open<OpenCase>, Open<CopyCase>}) {
        Play(open, -1, "x");
        EXPECT_FALSE(enabled) << dialog->objectName().toStdString();
        QTest::keyClick(dialog.get(), Qt::Key_Return);
        EXPECT_TRUE(dialog->isVisible());
    }
    session.ProjectFolder.clear();
    Play(Open<NewCase>, -1, "x", "y");
    EXPECT_FALSE(enabled) << "no project is open";
    EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(ListDialogs, WorkOnProjects) {
    Play(Open<NewProject>, -1, " Mine ");  // no delivered libraries: nothing is said
    EXPECT_TRUE(Closed());
    EXPECT_EQ(session.ProjectName, "mine");
    EXPECT_EQ(session.WindowTitle, "THARM (mine)");
    Play(Open<CopyProject>, 0, "Twin");
    EXPECT_TRUE(Closed());
    EXPECT_TRUE(OnDisk(root + "/PROJECT/Twin/second/Keep.inp"));
    EXPECT_FALSE(OnDisk(root + "/PROJECT/Twin/second/Result.TXT"));
    EXPECT_TRUE(OnDisk(project + "/second/Result.TXT"));
    Play(Open<RenProject>, 3, "Dual");
    EXPECT_TRUE(Closed());
    EXPECT_EQ(session.ProjectName, "dual") << "the open project follows";
    std::string names;
    for (const ProjectRow& row : ReadProjects()) names += row.name + " ";
    EXPECT_EQ(names, "verandis other mine dual ");
    Play(Open<OpenProject>, 1);
    EXPECT_TRUE(Closed());
    EXPECT_EQ(session.ProjectName, "other");
    EXPECT_EQ(session.CaseName, "");
    EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(ListDialogs, DeletionAsksOncePerChoice) {
    const auto choose = [&](int row, bool yes) {
        prompts.shown.clear();
        prompts.answers = {yes};
        dialog = Open<DelProject>();
        dialog->show();
        auto& list = Control<QListWidget>(*dialog, "ProjectList");
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                          list.visualItemRect(list.item(row)).center());
        ASSERT_EQ(prompts.shown.size(), 1u);
    };
    choose(0, false);
    EXPECT_EQ(prompts.shown[0].text, "Do you really want to delete the CURRENT project verandis ?");
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(OnDisk(project));
    choose(1, true);
    EXPECT_EQ(prompts.shown[0].text, "Do you want to delete the project other ?");
    EXPECT_TRUE(Closed());
    EXPECT_FALSE(OnDisk(root + "/PROJECT/other"));
    prompts.shown.clear();
    prompts.answers = {true};
    dialog = Open<DelProject>();
    dialog->show();
    auto& list = Control<QListWidget>(*dialog, "ProjectList");
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_TRUE(prompts.shown.empty()) << "moving about asks nothing";
    list.setCurrentRow(0);
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_TRUE(Closed());
    EXPECT_EQ(session.WindowTitle, "THARM");
    EXPECT_FALSE(OnDisk(root + "/PROJECT/PROJECTS.LIB")) << "the emptied list goes";
}

TEST_F(ListDialogs, WorkOnCases) {
    Play(Open<NewCase>, -1, "Third", "En tredje & \xC3\xA5");
    EXPECT_TRUE(Closed());
    EXPECT_EQ(session.WindowTitle, "THARM (verandis - third)");
    EXPECT_EQ(Bytes(project + "/Third/THERMAL.INP"), "XXXXXX\r\n");
    Play(Open<CopyCase>, 0, "copy", "of two");
    EXPECT_TRUE(Closed());
    EXPECT_EQ(Bytes(project + "/copy/Keep.inp"), "k");
    EXPECT_FALSE(OnDisk(project + "/copy/Result.TXT"));
    Play(Open<OpenCase>, 1);
    EXPECT_TRUE(Closed());
    EXPECT_EQ(session.CaseName + "/" + session.CaseTitle, "first/Title one");
    EXPECT_EQ(Bytes(project + "/CASES.LIB"),
              "second - Title two\r\nfirst - Title one\r\nthird - En tredje & \xE5\r\n"
              "copy - of two\r\n");
    EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(ListDialogs, RenameStartsFromTheOpenCase) {
    PutBytes(project + "/first/THERMAL.INP", "------\r\n");
    dialog = Open<RenCase>();
    dialog->show();
    EXPECT_EQ(Control<QLineEdit>(*dialog, "CaseName").text(), "first");
    EXPECT_EQ(Control<QLineEdit>(*dialog, "CaseTitle").text(), "Title one");
    Type(Control<QLineEdit>(*dialog, "CaseTitle"), "Better");
    QTest::keyClick(&Control<QLineEdit>(*dialog, "CaseTitle"), Qt::Key_Return);
    EXPECT_TRUE(Closed()) << "Enter accepts";
    EXPECT_EQ(session.CaseTitle, "Better");
    EXPECT_EQ(Bytes(project + "/first/THERMAL.INP"), "XXXXXX\r\n");
    Play(Open<RenCase>, 0, "moved", "New");
    EXPECT_TRUE(OnDisk(project + "/moved/Keep.inp"));
    EXPECT_FALSE(OnDisk(project + "/second"));
    EXPECT_EQ(session.CaseName, "first") << "another case than the open one was renamed";
    EXPECT_EQ(Bytes(project + "/CASES.LIB"), "moved - New\r\nfirst - Better\r\n");
}

TEST_F(ListDialogs, ADoubleClickOpens) {
    dialog = Open<OpenCase>();
    dialog->show();
    auto& list = Control<QListWidget>(*dialog, "CaseList");
    EXPECT_EQ(list.currentRow(), 1) << "the open case is chosen at first";
    const QPoint at = list.visualItemRect(list.item(0)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, at);
    EXPECT_TRUE(Closed());
    EXPECT_EQ(session.CaseName, "second");
}

}  // namespace
}  // namespace verandis::forms
