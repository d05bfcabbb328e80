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

class LoggingDisplay : public RunDisplay {
public:
    std::function<void()> guide = [] {};  // what happens while the guide opens

    void HideDiagrams() override { runLog += "hide "; }
    void SetCaption(const std::string& text) override { runLog += "[" + text + "] "; }
    void AllowPrinting(bool allowed) override { runLog += allowed ? "print+ " : "print- "; }
    void AllowCancel(bool allowed) override { runLog += allowed ? "cancel+ " : "cancel- "; }
    void OpenGuide() override { runLog += "guide ", guide(); }
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
        runLog += "make" + SlotLabel({shape, caseNo}) + " ";
        if (cancel) session.StopCalculation = kOn;
    }
    void RunStageChain(int caseNo, int shape) override {
        runLog += "run" + SlotLabel({shape, caseNo}) + " ";
    }
    bool ReadDynamicResults(int caseNo, int shape, int position) override {
        runLog += SlotLabel({shape, caseNo}) + "@" + std::to_string(position) + " ";
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
            "DIMENSION_WIDTHB\t20\nDIMENSION_DEPTHB\t21\nDIMENSION_HIGTHB\t9\nHVACG_INF\t1\n"
            "DIMENSION_WIDTHG\t10\nDIMENSION_DEPTHG\t10\nDIMENSION_OFFD\t5\nTDG_TDGMEAN\t8\n"
            "DIMENSION_TILT\t30\nCLIMATE_FILE\tTOWN_1\nHVACG_HEATING\t" +
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

constexpr const char* kNone = "No case is marked.\n\n\n\n";
constexpr const char* kTooMany =
    "At most four cases are calculated in one run; three or fewer are easier to read.\n\n\n\n";
constexpr const char* kSteadyLog =
    "[Results glazed space; steady-state calculation] cancel- ";

TEST_F(Runs, MarksDecideWhatIsCalculatedAndTold) {
    const std::tuple<Labels, float, RunOutcome, const char*, const char*> rows[] = {
        {{}, kSteadyState, RunOutcome::NothingMarked, kNone, ""},
        {{"U1"}, kNoCalculation, RunOutcome::NothingChosen, "", "cancel- "},
        {{"U1", "I4", "V2"}, kSteadyState, RunOutcome::Done, "", kSteadyLog},
        {{"U1", "U2", "U3", "U4"}, kSteadyState, RunOutcome::Done, kTooMany, kSteadyLog},
        {{"U1", "U2", "U3", "U4", "O1"}, kSteadyState, RunOutcome::TooManyMarked, kTooMany, ""}};
    for (const auto& [labels, mode, outcome, message, log] : rows) {
        SCOPED_TRACE(labels.size());
        session.CalcMode = mode;
        EXPECT_EQ(Run(labels), outcome);
        EXPECT_EQ(runLog, std::string("hide print- [Results] ") + log + "black");
        EXPECT_EQ(prompts.shown.empty() ? "" : prompts.shown.at(0).text, message);
        EXPECT_EQ(prompts.shown.empty() ? "Calculation" : prompts.shown[0].title, "Calculation");
        for (const char* label : labels) {
            EXPECT_EQ(OnDisk(ResultPath(label)), outcome == RunOutcome::Done) << label;
            std::remove(ResultPath(label).c_str());
        }
        EXPECT_EQ(session.CaseName, "vshape1") << "the edited slot must be open again";
    }
}

TEST_F(Runs, PositionsGoByShapeAndCaseWhateverTheOrderOfMarks) {
    SetCaseProperty("TDG", "TDGMIN", "3");  // in I4, the slot made last
    ASSERT_EQ(Run({"I4", "U3", "U1"}), RunOutcome::Done);
    const auto& cases = runResults.CaseResults;
    EXPECT_EQ(cases[1].SetPointG, 11);
    EXPECT_EQ(cases[2].SetPointG, 13);
    EXPECT_EQ(cases[3].SetPointG, 44);
    EXPECT_EQ(cases[3].Verdict, "U");
    EXPECT_EQ(cases[3].TdgMin, 3);
    EXPECT_FALSE(cases[1].TdgMin.has_value());
    EXPECT_EQ(runResults.SlotClimateLabels[4][4], "Climate:TOWN");
    const auto& counts = runResults.CaseResultCount;
    EXPECT_EQ(counts[1][3] + counts[4][4] + counts[1][2], 2);
    const MonthResult& month = runResults.MonthResults[2][12];
    EXPECT_EQ(month.TempOut + month.Tmean + month.Eh + month.Ec + month.Reserved, -5);
    EXPECT_GT(month.Tmin, -5);
    EXPECT_TRUE(Bytes(ResultPath("U3")).starts_with(" 13\r\n 8\r\n-1\r\n-1\r\n-1\r\n"));
}

TEST_F(Runs, GuideComesBeforeTheFilesAndTheLastStepNeverLands) {
    session.ShowGuide = kOn;
    display.guide = [&] {
        EXPECT_FALSE(OnDisk(ResultPath("O2")));
        EXPECT_EQ(Calculate_Click(display), RunOutcome::NothingChosen) << "a click within a run";
    };
    Run({"O2"});
    EXPECT_EQ(progress.maximum(), 72);
    EXPECT_EQ(progress.value(), 71);
    display.guide = [] {};
    session.ShowDiagrams = kOn;
    Run({"O2"});
    EXPECT_EQ(progress.maximum(), 73);
    EXPECT_EQ(progress.value(), 72);
    EXPECT_EQ(runLog,
              "hide print- [Results] [Results glazed space; steady-state calculation] guide "
              "steady show print+ cancel- black");
}

TEST_F(Runs, ErrorLeavesTheWindowIdleAndTheEditedSlotOpen) {
    const std::string good = Properties({kShapeU, 3});
    const std::tuple<std::string, std::string, std::string> breaks[] = {
        {"TOWN_1", "TOWN", "\"TOWN\""},
        {"WIDTHG\t10", "WIDTHG\t0", "floor area"},
        {"TOWN_1", "TOWN_1", "SimpResults.Dat"}};
    for (const auto& [word, bad, told] : breaks) {
        std::string properties = good;
        MakeSlot({kShapeU, 3}, properties.replace(good.find(word), word.size(), bad));
        // A folder in place of the result file is met when nothing else stops the run.
        std::filesystem::create_directories(ResultPath("U3"));
        session.StopCalculation = kOn;
        EXPECT_EQ(Run({"U1", "U3"}), RunOutcome::Stopped);
        ASSERT_EQ(prompts.shown.size(), 1u);
        const std::string& text = prompts.shown[0].text;
        EXPECT_TRUE(text.starts_with("Run-time error: Case ushape3")) << text;
        EXPECT_NE(text.find(told), std::string::npos) << text;
        EXPECT_TRUE(runLog.ends_with("cancel- hide [Results] print- ")) << runLog;
        EXPECT_EQ(session.StopCalculation + progress.value(), 0);
        EXPECT_EQ(runResults.CaseResultCount[1][1], 0);
        EXPECT_EQ(session.CaseName, "vshape1");
        EXPECT_FALSE(session.RunInProgress);
    }
}

TEST_F(Runs, DynamicRunGeneratesAllBeforeAnyStage) {
    static LoggingDynamicRun run;  // stays installed
    UseDynamicRun(run);
    session.CalcMode = kDynamic;
    session.ShowGuide = kOn;
    // What is done, and where the bar stands in the end: at 0 after a cancel, at 7 without
    // diagrams.
    const std::tuple<Labels, std::string, int> rows[] = {
        {{"U2", "U1"}, "makeU1 makeU2 runU1 runU2 U1@1 U2@2 dynamic two+ print+ series show ", 15},
        {{"I1", "U2", "U1"},
         "makeU1 makeU2 makeI1 runU1 runU2 runI1 U1@1 U2@2 I1@3 dynamic two- print+ series show ",
         22},
        {{"U1", "U2", "U3"},
         "makeU1 makeU2 makeU3 runU1 runU2 runU3 U1@1 U2@2 U3@3 dynamic two- print+ series show ",
         22},
        {{"U1"}, "makeU1 runU1 U1@1 ", 7},
        {{"U1", "V1"}, "makeU1 makeV1 [Results] ", 0}};
    for (const auto& [labels, log, value] : rows) {
        run.cancel = value == 0;
        session.ShowDiagrams = value == 7 ? kOff : kOn;
        EXPECT_EQ(Run(labels), run.cancel ? RunOutcome::Cancelled : RunOutcome::Done);
        EXPECT_EQ(runLog,
                  "hide print- [Results] cancel+ [Results glazed space; dynamic calculation] " +
                      log + "cancel- black");
        EXPECT_EQ(progress.maximum(), 13 * int(labels.size()) + (value == 7 ? 0 : 1));
        EXPECT_EQ(progress.value(), value) << log;
        EXPECT_EQ(runResults.CaseResultCount[1][1], run.cancel ? 0 : 1) << log;
        EXPECT_EQ(runResults.CaseResultCount[1][2] + session.StopCalculation, 0) << log;
    }
}

TEST_F(Runs, ResultFileHoldsNinetyLinesByPosition) {
    session.CaseMarks[3][2] = 1;
    PutBytes(ResultPath("V2"), std::string(5000, 'x'));
    PutBytes(ResultPath("V1"), "of an unmarked slot");
    runResults.CaseResults[1] = {-100, 8.5f, -1, 12500, -1, "F", 20, 3.0f};
    std::string wanted = "-100\r\n 8.5\r\n-1\r\n 12500\r\n-1\r\n";
    for (std::size_t month = 1; month <= 12; ++month) {
        runResults.MonthResults[1][month] = {-0.5f, 0, 1234567, 0, 0, 0, 0.1f + float(month)};
        wanted +=
            "-0.5\r\n 0\r\n 1234567\r\n 0\r\n 0\r\n 0\r\n " + std::to_string(month) + ".1\r\n";
    }
    WriteSteadyResults();
    EXPECT_EQ(Bytes(ResultPath("V2")), wanted + "U\r\n");
    EXPECT_EQ(Bytes(ResultPath("V1")), "of an unmarked slot");
}

}  // namespace
}  // namespace verandis
