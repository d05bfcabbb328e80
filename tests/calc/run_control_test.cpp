#include "calc/run_control.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "app/data_root.h"
#include "app/program_text.h"
#include "calc/result_file.h"
#include "calc/results.h"
#include "case/property_file.h"
#include "support/session_test.h"

namespace verandis {
namespace {

using testing_support::Bytes;
using testing_support::OnDisk;
using testing_support::PutBytes;
using Labels = std::vector<const char*>;

std::string runLog;  // what a run did to its window and its dynamic side, in order

/// Writes down what a run does; what happens while the guide opens can be set.
class LoggingDisplay : public RunDisplay {
public:
    std::function<void()> guide = [] {};

    void HideDiagrams() override { runLog += "hide "; }
    void SetCaption(const std::string& text) override { runLog += "[" + text + "] "; }
    void AllowPrinting(bool allowed) override { runLog += allowed ? "print+ " : "print- "; }
    void AllowCancel(bool allowed) override { runLog += allowed ? "cancel+ " : "cancel- "; }
    void OpenGuide() override {
        runLog += "guide ";
        guide();
    }
    void ShowSteadyCharts() override { runLog += "steady "; }
    void ShowDynamicCharts() override { runLog += "dynamic "; }
    void ShowDiagrams() override { runLog += "show "; }
    void AllowTwoCaseView(bool allowed) override { runLog += allowed ? "two+ " : "two- "; }
    void ResetSeriesBoxes() override { runLog += "series "; }
    void BlackenMarkLabels() override { runLog += "black"; }
};

/// A detailed side that finds results for U1 alone and can press Cancel while it generates.
class LoggingDynamicRun : public DynamicRun {
public:
    bool cancel = false;

    void GenerateDynamicCase(int caseNo, int shape) override {
        runLog += "generate" + SlotLabel({shape, caseNo}) + " ";
        if (cancel) session.StopCalculation = kOn;
    }
    void RunStageChain(int caseNo, int shape) override {
        runLog += "chain" + SlotLabel({shape, caseNo}) + " ";
    }
    bool ReadDynamicResults(int caseNo, int shape, int position) override {
        runLog += "read" + SlotLabel({shape, caseNo}) + "@" + std::to_string(position) + " ";
        return shape == kShapeU && caseNo == 1;
    }
};

class Runs : public testing_support::SmallRootTest {
protected:
    Runs() {
        session.SimulatorFolder = DeliveredFolder() + "/MWTHARM";
        LoadProgramText();
        for (const Slot& slot : AllSlots()) MakeSlot(slot, Properties(slot));
        std::string climate = "1\n2\n3\n";
        for (int month = 1; month <= 12; ++month) climate += std::to_string(month) + "\t-5\t0\t0\n";
        PutBytes(root + "/CLIM/TOWN_1S.dat", climate);
        session.ActiveShape = kShapeV;
        session.ActiveCaseNo = 1;
        session.CalcMode = kSteadyState;
    }

    /// The set point tells the cases apart: 11 for U1, 34 for V4.
    static std::string Properties(const Slot& slot) {
        std::string text =
            "DIMENSION_WIDTHB\t20\nDIMENSION_DEPTHB\t21\nDIMENSION_HIGTHB\t9\nDIMENSION_"
            "WIDTHG\t10\n"
            "DIMENSION_DEPTHG\t10\nDIMENSION_OFFD\t5\nDIMENSION_TILT\t30\nCLIMATE_FILE\tTOWN_1\n"
            "HVACG_INF\t1\nTDG_TDGMEAN\t8\nHVACG_HEATING\t" +
            std::to_string(10 * slot.shape + slot.caseNo) + "\n";
        for (const auto id : ElementsOf(slot.shape, Series::Glazing)) {
            text += std::string(id) + "_ORIENTATION\t0\n";
        }
        return text;
    }

    RunOutcome Run(const Labels& labels) {
        session.ChkCase = {};
        for (const char* label : labels) {
            const Slot slot = SlotOfLabel(label);
            session.ChkCase.at(std::size_t(slot.shape)).at(std::size_t(slot.caseNo)) = true;
        }
        runLog.clear();
        prompts.shown.clear();
        return Calculate_Click(display);
    }

    std::string ResultPath(const char* label) const {
        return SlotFile(SlotOfLabel(label), "SimpResults.Dat");
    }

    LoggingDisplay display;
};

struct Marks {
    const char* fault;
    Labels labels;
    float mode;
    RunOutcome outcome;
    const char* message;
    const char* log;
};
constexpr const char* kTooMany =
    "At most four cases are calculated in one run; three or fewer are easier to read.\n\n\n\n";
const Marks kMarks[] = {
    {"no mark", {}, kSteadyState, RunOutcome::NothingMarked, "No case is marked.\n\n\n\n", ""},
    {"no calculation", {"U1"}, kNoCalculation, RunOutcome::NothingChosen, nullptr, "cancel- "},
    {"three",
     {"U1", "I4", "V2"},
     kSteadyState,
     RunOutcome::Done,
     nullptr,
     "print- [Results glazed space; steady-state calculation] cancel- "},
    {"four",
     {"U1", "U2", "U3", "U4"},
     kSteadyState,
     RunOutcome::Done,
     kTooMany,
     "print- [Results glazed space; steady-state calculation] cancel- "},
    {"five", {"U1", "U2", "U3", "U4", "O1"}, kSteadyState, RunOutcome::TooManyMarked, kTooMany, ""},
};

TEST_F(Runs, MarksDecideWhatIsCalculatedAndTold) {
    for (const Marks& row : kMarks) {
        SCOPED_TRACE(row.fault);
        session.CalcMode = row.mode;
        EXPECT_EQ(Run(row.labels), row.outcome);
        EXPECT_EQ(runLog, std::string("hide [Results] ") + row.log + "black");
        ASSERT_EQ(prompts.shown.size(), row.message ? 1u : 0u);
        if (row.message) {
            EXPECT_EQ(prompts.shown[0].text, row.message);
            EXPECT_EQ(prompts.shown[0].title, "Calculation");
        }
        for (const char* label : row.labels) {
            EXPECT_EQ(OnDisk(ResultPath(label)), row.outcome == RunOutcome::Done) << label;
            std::remove(ResultPath(label).c_str());
        }
        EXPECT_EQ(session.CaseName, "vshape1") << "the edited slot must be open again";
    }
}

TEST_F(Runs, PositionsGoByShapeAndCaseWhateverTheOrderOfMarks) {
    SetCaseProperty("TDG", "TDGMIN", "3");  // in I4, the slot made last
    ASSERT_EQ(Run({"I4", "U3", "U1"}), RunOutcome::Done);
    EXPECT_EQ(runResults.CaseResults[1].SetPointG, 11);
    EXPECT_EQ(runResults.CaseResults[2].SetPointG, 13);
    EXPECT_EQ(runResults.CaseResults[3].SetPointG, 44);
    EXPECT_FALSE(runResults.CaseResults[1].TdgMin.has_value());
    EXPECT_EQ(runResults.CaseResults[3].TdgMin, 3);
    EXPECT_EQ(runResults.CaseResults[3].Verdict, "U");
    EXPECT_EQ(runResults.SlotClimateLabels[4][4], "Climate:TOWN");
    EXPECT_EQ(runResults.CaseResultCount[1][3] + runResults.CaseResultCount[4][4], 2);
    EXPECT_EQ(runResults.CaseResultCount[1][2], 0);
    const MonthResult& month = runResults.MonthResults[2][12];
    EXPECT_EQ(month.TempOut, -5);
    EXPECT_EQ(month.Tmean + month.Eh + month.Ec + month.Reserved, 0);
    EXPECT_GT(month.Tmin, -5);
    EXPECT_TRUE(Bytes(ResultPath("U3")).starts_with(" 13\r\n 8\r\n-1\r\n-1\r\n-1\r\n"));
}

TEST_F(Runs, GuideComesBeforeTheFilesAndTheLastStepNeverLands) {
    session.ShowGuide = kOn;
    RunOutcome inner = RunOutcome::Done;
    display.guide = [&] {
        EXPECT_FALSE(OnDisk(ResultPath("O2")));
        inner = Calculate_Click(display);  // a second click while the run lets events in
    };
    Run({"O2"});
    EXPECT_EQ(inner, RunOutcome::NothingChosen);
    EXPECT_EQ(progress.maximum(), 72);
    EXPECT_EQ(progress.value(), 71);
    display.guide = [] {};
    session.ShowDiagrams = kOn;
    Run({"O2"});
    EXPECT_EQ(progress.maximum(), 73);
    EXPECT_EQ(progress.value(), 72);
    EXPECT_EQ(runLog,
              "hide [Results] print- [Results glazed space; steady-state calculation] guide "
              "steady show print+ cancel- black");
}

TEST_F(Runs, ErrorLeavesTheWindowIdleAndTheEditedSlotOpen) {
    const std::string good = Bytes(SlotFile({2, 3}, "SimpPropertiesOfCase.Dat"));
    const std::pair<const char*, const char*> breaks[] = {
        {"TOWN_1", "\"TOWN\""}, {"WIDTHG\t10", "floor area"}, {"HEATING", "SimpResults.Dat"}};
    for (const auto& [word, told] : breaks) {
        std::string bad = good;
        bad.replace(bad.find(word), std::string(word).size(),
                    word == std::string("TOWN_1") ? "TOWN" : "X");
        PutBytes(SlotFile({2, 3}, "SimpPropertiesOfCase.Dat"), bad);
        if (word == std::string("HEATING")) std::filesystem::create_directories(ResultPath("O3"));
        session.StopCalculation = kOn;
        EXPECT_EQ(Run({"U1", "O3"}), RunOutcome::Stopped);
        ASSERT_EQ(prompts.shown.size(), 1u);
        EXPECT_TRUE(prompts.shown[0].text.starts_with("Run-time error: Case oshape3"));
        EXPECT_NE(prompts.shown[0].text.find(told), std::string::npos) << prompts.shown[0].text;
        EXPECT_TRUE(runLog.ends_with("cancel- hide print- ")) << runLog;
        EXPECT_EQ(session.StopCalculation, kOff);
        EXPECT_EQ(progress.value(), 0);
        EXPECT_EQ(runResults.CaseResultCount[1][1], 0);
        EXPECT_EQ(session.CaseName, "vshape1");
        EXPECT_FALSE(session.RunInProgress);
    }
}

struct Dynamic {
    const char* fault;
    Labels labels;
    bool cancel;
    bool diagrams;
    int value;  // of the bar in the end
    const char* log;
};
const Dynamic kDynamics[] = {
    {"two cases of one shape",
     {"U2", "U1"},
     false,
     true,
     15,
     "generateU1 generateU2 chainU1 chainU2 readU1@1 readU2@2 dynamic two+ print+ series show "},
    {"two shapes",
     {"I1", "U1"},
     false,
     true,
     15,
     "generateU1 generateI1 chainU1 chainI1 readU1@1 readI1@2 dynamic two- print+ series show "},
    {"two cases and another shape",
     {"U1", "U2", "I1"},
     false,
     true,
     22,
     "generateU1 generateU2 generateI1 chainU1 chainU2 chainI1 readU1@1 readU2@2 readI1@3 dynamic "
     "two- print+ series show "},
    {"no diagrams", {"U1"}, false, false, 7, "generateU1 chainU1 readU1@1 "},
    {"cancel while generating", {"U1", "V1"}, true, true, 0, "generateU1 generateV1 "},
};

TEST_F(Runs, DynamicRunGeneratesAllBeforeAnyStage) {
    static LoggingDynamicRun run;  // stays installed
    UseDynamicRun(run);
    session.CalcMode = kDynamic;
    session.ShowGuide = kOn;
    for (const Dynamic& row : kDynamics) {
        SCOPED_TRACE(row.fault);
        run.cancel = row.cancel;
        session.ShowDiagrams = row.diagrams ? kOn : kOff;
        EXPECT_EQ(Run(row.labels), row.cancel ? RunOutcome::Cancelled : RunOutcome::Done);
        EXPECT_EQ(runLog,
                  std::string("hide [Results] cancel+ print- [Results glazed space; dynamic "
                              "calculation] ") +
                      row.log + "cancel- black");
        EXPECT_EQ(progress.maximum(), 13 * int(row.labels.size()) + (row.diagrams ? 1 : 0));
        EXPECT_EQ(progress.value(), row.value);
        EXPECT_EQ(runResults.CaseResultCount[1][1], row.cancel ? 0 : 1);
        EXPECT_EQ(runResults.CaseResultCount[1][2] + runResults.CaseResultCount[4][1], 0);
        EXPECT_EQ(session.StopCalculation, kOff);
    }
}

TEST_F(Runs, ResultFileHoldsNinetyLinesByPosition) {
    session.CaseMarks[3][2] = 1;
    PutBytes(ResultPath("V2"), std::string(5000, 'x'));
    PutBytes(ResultPath("V1"), "of an unmarked slot");
    runResults.CaseResults[1] = {-100, 8.5f, -1, 12500, -1, "F", 20, 3.0f};
    std::string wanted = "-100\r\n 8.5\r\n-1\r\n 12500\r\n-1\r\n";
    for (std::size_t month = 1; month <= 12; ++month) {
        runResults.MonthResults[1][month] = {-0.5f, 0, 1234567, 0, 0, 0, float(month) / 4};
        const char* quarters[] = {"", ".25", ".5", ".75"};
        const std::string whole = std::to_string(month / 4);
        wanted +=
            "-0.5\r\n 0\r\n 1234567\r\n 0\r\n 0\r\n 0\r\n " + whole + quarters[month % 4] + "\r\n";
    }
    WriteSteadyResults();
    EXPECT_EQ(Bytes(ResultPath("V2")), wanted + "U\r\n");
    EXPECT_EQ(Bytes(ResultPath("V1")), "of an unmarked slot");
}

}  // namespace
}  // namespace verandis
