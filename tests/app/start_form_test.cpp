#include "app/start_form.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTimer>

#include "app/program_text.h"
#include "app/settings.h"
#include "calc/results.h"
#include "case/property_file.h"
#include "platform/files.h"
#include "projects/case_list.h"
#include "projects/slot_activation.h"
#include "support/form_test.h"

namespace verandis {
namespace {

using testing_support::Bytes;
using testing_support::Control;
using testing_support::OnDisk;
using testing_support::Press;
using testing_support::Type;

class MainWindow : public testing_support::DeliveredRootTest {
protected:
    MainWindow() {
        form = std::make_unique<StartForm>();
        form->show();
    }

    template <class Widget = QWidget>
    Widget& Get(const char* name) {
        return Control<Widget>(*form, name);
    }
    void Press(const char* name) { testing_support::Press(Get<QWidget>(name)); }

    /// The first cases in the order of the run.
    void MarkCases(int count) {
        for (int each = 0; each < count; ++each) {
            const int shape = each / kCasesPerShape + 1;
            const int caseNo = each % kCasesPerShape + 1;
            Press(QString("ChkCase%1%2").arg(shape).arg(caseNo).toLatin1().data());
        }
    }

    std::string ResultFile(const char* slot) { return project + "/" + slot + "/SimpResults.Dat"; }

    void ExpectIdle() {
        EXPECT_FALSE(Get<QWidget>("SSTab1").isVisible());
        EXPECT_TRUE(Get<QWidget>("Image1").isVisible());
        EXPECT_FALSE(Get<QWidget>("PrintOut").isEnabled());
        EXPECT_FALSE(Get<QWidget>("Command1").isEnabled());
        EXPECT_TRUE(Get<QWidget>("Calculate").isEnabled());
        EXPECT_EQ(Get<QProgressBar>("ProgressBar1").value(), 0);
    }

    std::unique_ptr<StartForm> form;
};

TEST_F(MainWindow, StartsIdleWithTheFirstCaseOfTheLeanToOpen) {
    ExpectIdle();
    EXPECT_FALSE(Get<QWidget>("Frame8").isVisible());
    EXPECT_EQ(form->windowTitle(), "THARM (verandis - vshape1)");
    EXPECT_TRUE(Get<QRadioButton>("ActiveCase1").isChecked());
    EXPECT_TRUE(Get<QPushButton>("CommV1_0").isEnabled());
    EXPECT_FALSE(Get<QPushButton>("CommU1_0").isEnabled());
    EXPECT_FALSE(Get<QCheckBox>("Check1").isChecked());
    EXPECT_TRUE(Get<QCheckBox>("Check2").isChecked());
    EXPECT_FALSE(Get<QWidget>("DCheck2").isEnabled());
    EXPECT_FALSE(Get<QAction>("M_Export").isVisible());
    EXPECT_TRUE(Get<QAction>("M_OpenProject").isEnabled());
    EXPECT_TRUE(Get<QAction>("M_ThermalLoads").isEnabled());
    for (const char* never : {"M_Library", "M_MOdel", "M_Output", "M_Surfaces"}) {
        EXPECT_FALSE(Get<QAction>(never).isEnabled()) << never;
        EXPECT_NE(Get<QAction>(never).toolTip(), Get<QAction>(never).text()) << never;
    }
}

TEST_F(MainWindow, ButtonsOpenTheSlotTheyName) {
    Press("Frame2");
    EXPECT_EQ(session.CaseName, "ushape1");
    EXPECT_TRUE(Get<QPushButton>("CommU1_3").isEnabled());
    EXPECT_FALSE(Get<QPushButton>("CommV1_0").isEnabled());

    Press("ActiveCase3");
    EXPECT_EQ(session.CaseName, "ushape3");
    EXPECT_TRUE(Get<QPushButton>("CommU1_2").isChecked());

    Press("CommU1_1");
    EXPECT_EQ(session.ActiveCaseNo, 2);
    EXPECT_TRUE(Get<QRadioButton>("ActiveCase2").isChecked());
    EXPECT_EQ(form->windowTitle(), "THARM (verandis - ushape2)");
    EXPECT_TRUE(prompts.shown.empty());

    // A second press on the active case opens its data.
    Press("CommU1_1");
    auto* editor = form->findChild<EditBuildingData*>();
    ASSERT_TRUE(editor);
    EXPECT_TRUE(editor->isVisible());
    EXPECT_FALSE(editor->isModal());
    EXPECT_TRUE(Get<QPushButton>("CommU1_1").isChecked());

    // Another family always begins with its first case.
    Press("Frame5");
    EXPECT_EQ(session.CaseName, "ishape1");
    EXPECT_TRUE(Get<QRadioButton>("ActiveCase1").isChecked());
}

struct MarksRow {
    int marks;
    bool calculated;
    int message;  // 0 for none
};

class RunWithMarks : public MainWindow, public testing::WithParamInterface<MarksRow> {};

TEST_P(RunWithMarks, CalculatesOneToFourAndWarnsFromFour) {
    const MarksRow& row = GetParam();
    Press("CalcStSt");
    MarkCases(row.marks);
    EXPECT_EQ(session.MarkedCount, 0);
    Press("Calculate");
    EXPECT_EQ(session.MarkedCount, row.marks);
    EXPECT_EQ(Get<QWidget>("SSTab1").isVisible(), row.calculated);
    EXPECT_EQ(Get<QWidget>("PrintOut").isEnabled(), row.calculated);
    EXPECT_TRUE(Get<QWidget>("Frame8").isVisible());
    EXPECT_EQ(OnDisk(ResultFile("UShape1")), row.calculated);
    std::vector<std::string> expected;
    if (row.message) expected.push_back(Text(row.message) + "\n\n\n\n");
    EXPECT_EQ(prompts.Texts(), expected);
    // Whatever was calculated, the slot that the window edits is open again.
    EXPECT_EQ(session.CaseName, "vshape1");
}

INSTANTIATE_TEST_SUITE_P(Marks, RunWithMarks,
                         testing::Values(MarksRow{0, false, 267}, MarksRow{1, true, 0},
                                         MarksRow{3, true, 0}, MarksRow{4, true, 268},
                                         MarksRow{5, false, 268}),
                         [](const auto& row) { return "Of" + std::to_string(row.param.marks); });

TEST_F(MainWindow, AnyChangeOfMarkOrSlotTakesTheDiagramsAwayButNotTheFiles) {
    Press("CalcStSt");
    Press("ChkCase31");
    for (const char* control : {"ChkCase32", "Frame3", "ActiveCase2", "CommO1_2", "Command10"}) {
        session.ChkCase[3][1] = true;
        session.CalcMode = kSteadyState;
        Press("Calculate");
        EXPECT_TRUE(Get<QWidget>("SSTab1").isVisible()) << control;
        Press(control);
        ExpectIdle();
        EXPECT_TRUE(OnDisk(ResultFile("VShape1"))) << control;
    }
    // The last one also cleared marks and choice.
    EXPECT_FALSE(Get<QCheckBox>("ChkCase32").isChecked());
    EXPECT_FALSE(Get<QRadioButton>("CalcStSt").isChecked());
    EXPECT_EQ(session.CalcMode, kNoCalculation);
    EXPECT_EQ(runResults.CaseResultCount[3][1], 0);
}

TEST_F(MainWindow, NothingRunsWithoutAChosenCalculation) {
    Press("ChkCase11");
    Press("Calculate");
    ExpectIdle();
    EXPECT_EQ(form->statusBar()->currentMessage().toStdString(), Text(563));
    EXPECT_FALSE(OnDisk(ResultFile("UShape1")));
}

TEST_F(MainWindow, WithoutDiagramsTheFilesAreWrittenAllTheSame) {
    Press("CalcStSt");
    Press("Check2");
    Press("ChkCase11");
    Press("Calculate");
    EXPECT_FALSE(Get<QWidget>("SSTab1").isVisible());
    EXPECT_FALSE(Get<QWidget>("PrintOut").isEnabled());
    EXPECT_TRUE(OnDisk(ResultFile("UShape1")));
}

TEST_F(MainWindow, ARunErrorLeavesItIdleAndTheNextRunWorks) {
    Press("CalcStSt");
    Press("ChkCase41");
    Press("Calculate");
    ActivateSlot(1, 4, "");
    SetCaseProperty("CLIMATE", "FILE", "NOWHERE");
    Press("Calculate");
    ASSERT_EQ(prompts.shown.size(), 1u);
    EXPECT_TRUE(prompts.shown[0].text.starts_with("Run-time error: "));
    ExpectIdle();
    EXPECT_EQ(session.CaseName, "vshape1");
    EXPECT_FALSE(session.RunInProgress);

    Press("ChkCase41");
    Press("ChkCase42");
    Press("Calculate");
    EXPECT_TRUE(Get<QWidget>("SSTab1").isVisible());
}

TEST_F(MainWindow, TheGuideOpensBesideASteadyRunAndClosesWithTheNext) {
    Press("CalcStSt");
    Press("Check1");
    Press("ChkCase11");
    Press("Calculate");
    auto* guide = form->findChild<Ststcalcchart*>();
    ASSERT_TRUE(guide);
    EXPECT_TRUE(guide->isVisible());
    EXPECT_FALSE(guide->isModal());
    EXPECT_TRUE(Get<QWidget>("SSTab1").isVisible());
    const QPointer<QWidget> first = guide;
    Press("Check1");
    Press("Calculate");
    EXPECT_FALSE(first);
}

/// A detailed side that acts like a user while it runs.
class PressingRun : public DynamicRun {
public:
    std::function<void()> whileGenerating = [] {};
    std::vector<std::string> done;

    void GenerateDynamicCase(int caseNo, int shape) override {
        done.push_back("generate " + SlotLabel({shape, caseNo}));
        whileGenerating();
    }
    void RunStageChain(int caseNo, int shape) override {
        done.push_back("chain " + SlotLabel({shape, caseNo}));
    }
    bool ReadDynamicResults(int caseNo, int shape, int) override {
        done.push_back("read " + SlotLabel({shape, caseNo}));
        return true;
    }
};

class DynamicWindow : public MainWindow {
protected:
    static PressingRun& Run() {
        static PressingRun run;
        return run;
    }
    DynamicWindow() {
        Run() = {};
        UseDynamicRun(Run());
        Press("Check1");
        Press("CalcDyn");
        Press("ChkCase11");
        Press("ChkCase13");
    }
};

TEST_F(DynamicWindow, ShowsItsOwnTabsAndNoGuide) {
    EXPECT_FALSE(Get<QWidget>("SteadyItems").isVisible());
    Press("Calculate");
    EXPECT_EQ(Run().done, (std::vector<std::string>{"generate U1", "generate U3", "chain U1",
                                                    "chain U3", "read U1", "read U3"}));
    auto& tabs = Get<QTabWidget>("SSTab1");
    EXPECT_TRUE(tabs.isVisible());
    for (int tab = 0; tab < 9; ++tab)
        EXPECT_EQ(tabs.isTabEnabled(tab), tab != 0 && tab != 2) << tab;
    EXPECT_TRUE(Get<QWidget>("DCheck2").isEnabled());
    EXPECT_FALSE(form->findChild<Ststcalcchart*>());
}

TEST_F(DynamicWindow, OnlyTheCancelButtonReactsDuringARun) {
    Run().whileGenerating = [&] {
        EXPECT_TRUE(Get<QWidget>("Command1").isEnabled());
        Press("Frame3");
        Press("ChkCase22");
        Press("ActiveCase2");
        Press("Calculate");
        QTest::keyClick(form.get(), Qt::Key_F5);
        form->close();
        Press("Command1");
    };
    Press("Calculate");
    EXPECT_EQ(Run().done, (std::vector<std::string>{"generate U1", "generate U3"}));
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(session.CaseName, "vshape1");
    EXPECT_FALSE(Get<QCheckBox>("ChkCase22").isChecked());
    EXPECT_EQ(session.StopCalculation, kOff);
    ExpectIdle();
}

TEST_F(MainWindow, FollowsTheProjectAndCaseThatADialogOpens) {
    const auto run = [&](const char* command, const std::function<void(QWidget&)>& inDialog) {
        QTimer::singleShot(0, [&] { inDialog(*QApplication::activeModalWidget()); });
        Get<QAction>(command).trigger();
    };
    const auto choose = [](const char* list, int row) {
        return [=](QWidget& dialog) {
            Control<QListWidget>(dialog, list).setCurrentRow(row);
            testing_support::Press(Control<QPushButton>(dialog, "Command1"));
        };
    };
    const auto slots_ = ReadCases();
    const auto at = [&](const char* name) {
        return static_cast<int>(std::find_if(slots_.begin(), slots_.end(),
                                             [&](const auto& row) { return row.name == name; }) -
                                slots_.begin());
    };
    run("M_OpenCase", choose("CaseList", at("oshape3")));
    EXPECT_EQ(form->windowTitle(), "THARM (verandis - oshape3)");
    EXPECT_EQ(session.ActiveShape, 2);
    EXPECT_TRUE(Get<QRadioButton>("ActiveCase3").isChecked());
    EXPECT_TRUE(Get<QPushButton>("CommO1_2").isChecked());

    run("M_OpenCase", choose("CaseList", at("oshape")));  // a template, which is no slot
    EXPECT_EQ(Get<QLabel>("ActiveSlot").text(), "oshape");
    EXPECT_FALSE(Get<QWidget>("EditData").isEnabled());
    Press("CommO1_2");  // and back to the slot
    EXPECT_EQ(session.CaseName, "oshape3");

    run("M_NewProject", [](QWidget& dialog) {
        Type(Control<QLineEdit>(dialog, "ProjectName"), "second");
        testing_support::Press(Control<QPushButton>(dialog, "Command1"));
    });
    EXPECT_EQ(form->windowTitle(), "THARM (second)");
    EXPECT_FALSE(Get<QAction>("M_Case").isEnabled());
    EXPECT_FALSE(Get<QAction>("M_OpenCase").isEnabled());
    EXPECT_FALSE(Get<QWidget>("EditNote").isEnabled());
    Press("Frame2");
    EXPECT_EQ(form->statusBar()->currentMessage().toStdString(), Text(564));
    EXPECT_TRUE(prompts.shown.empty()) << prompts.shown[0].text;
}

TEST_F(MainWindow, ANoteIsShownAndStored) {
    prompts.replies = {std::string(51, 'x'), "South terrace & garden"};
    Get<QAction>("GS_Notes").trigger();
    ASSERT_EQ(prompts.shown.size(), 3u);
    EXPECT_EQ(prompts.shown[1].text, Text(185));
    EXPECT_TRUE(Get<QLabel>("SlotFacts").text().contains("South terrace & garden"));
    EXPECT_NE(Bytes(project + "/VShape1/SimpPropertiesOfCase.Dat").find("South terrace"),
              std::string::npos);
}

TEST_F(MainWindow, EveryWordStandsInBothLanguagesAndEveryLetterOnce) {
    for (const char* language : {"1", "2"}) {
        auto settings = StoredSettings();
        settings.Language = language;
        ASSERT_TRUE(WriteSystemSettings(settings));
        StartForm window;
        for (const QAction* action : window.findChildren<QAction*>()) {
            if (!action->isSeparator() && !action->objectName().isEmpty()) {
                EXPECT_FALSE(action->text().isEmpty()) << action->objectName().toStdString();
            }
        }
        for (const char* name : {"CalcStSt", "CalcDyn", "Check1", "Check2", "Calculate", "Command1",
                                 "Command10", "PrintOut"}) {
            EXPECT_TRUE(Control<QAbstractButton>(window, name).text().contains('&')) << name;
        }
        EXPECT_EQ(Control<QGroupBox>(window, "Frame8").title().toStdString(), TextFor(61, 1));
    }
}

TEST_F(MainWindow, ClosingEndsWithItsOtherWindows) {
    Press("CalcStSt");
    Press("Check1");
    Press("ChkCase11");
    Press("Calculate");
    form->close();
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        EXPECT_FALSE(window->isVisible()) << window->objectName().toStdString();
    }
}

}  // namespace
}  // namespace verandis
