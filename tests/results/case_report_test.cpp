#include "results/case_report.h"

#include <algorithm>

#include "app/data_root.h"
#include "app/program_text.h"
#include "app/session.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "projects/saved_cases.h"
#include "support/session_test.h"

namespace verandis {
namespace {

class FixedClock : public Clock {
public:
    std::string Date() const override { return "2026-11-21"; }
    std::string Time() const override { return "14:05"; }
};

class Report : public testing_support::SmallRootTest {
protected:
    Report() {
        static const FixedClock clock;
        UseClock(clock);
        session.SimulatorFolder = DeliveredFolder() + "/MWTHARM";
        LoadProgramText();
    }
    /// True when the report of a case holds this line.
    static bool Holds(const std::vector<std::string>& lines, const std::string& line) {
        return std::find(lines.begin(), lines.end(), line) != lines.end();
    }
};

TEST_F(Report, TellsInputsWithWordsUnitsAndTheSessionsDecimalSign) {
    MakeSlot({1, 1},
             "DIMENSION_WIDTHB\t 20.5\nXU001-W_ORIENTATION\t 270\nXU102-E_PCNTW\t "
             "30\nHVACG_HEATING\t-999999\n"
             "HVAC_FVI\t 2\nCASE_NOTE\tAt the sea\n");
    session.Decimals = DecimalMode::Comma;
    const auto lines = CaseReport("U1", {WorkingCase({1, 1})});
    EXPECT_EQ(lines[0], "Utskrift gjord 2026-11-21 klockan 14:05");
    EXPECT_EQ(lines[1], "============================================= ");
    EXPECT_EQ(lines[2], "U1");
    EXPECT_EQ(lines[3], "Shape:\u00A0U-shape -- index Case 1");
    EXPECT_EQ(lines[4], "------------------------------------ ");
    for (const char* line :
         {"Width of the building (m): 20,5", " X U102-E  -  Window share (%):30",
          "  XU001-W  -  Direction(\u00BA):270", "Heating set point, glazed space (\u00BAC): -",
          "Note: At the sea", "Forced ventilation: Flow from\u00A0Building -> Glazed space"}) {
        EXPECT_TRUE(Holds(lines, line)) << line;
    }
}

TEST_F(Report, ReadsOneRoofUnderANameThatNoFileHolds) {
    MakeSlot({2, 1}, "XO008-R_WALLTYPE\tWallA1\nXO006-R_WALLTYPE\tWallA1\n");
    const auto lines = CaseReport("", {WorkingCase({2, 1})});
    EXPECT_TRUE(Holds(lines, "  XO008-R  -  Wall type: -"));
    EXPECT_TRUE(Holds(lines, "  XO006-R  -  Wall type: WallA1"));
}

TEST_F(Report, OfDifferencesComparesNumbersAsNumbersAndElementsWithinAShape) {
    MakeSlot({1, 1}, "DIMENSION_WIDTHB\t 20\nDIMENSION_TILT\t 30\nXU201-S_GLAZEDID\tClear1\n");
    MakeSlot({1, 2}, "DIMENSION_WIDTHB\t20.0\nDIMENSION_TILT\t 45\nXU201-S_GLAZEDID\tClear2\n");
    MakeSlot({3, 1}, "DIMENSION_WIDTHB\t 20\nDIMENSION_TILT\t 30\nXV203-S_GLAZEDID\tClear1\n");
    const std::vector<ReportCase> cases = {WorkingCase({1, 1}), WorkingCase({1, 2}),
                                           WorkingCase({3, 1})};
    EXPECT_EQ(DifferenceLines(cases, "|"),
              (std::vector<std::string>{"Inputs that differ", "Input|U1|U2|V1",
                                        "Tilt of the roof (\u00BA)|30|45|30",
                                        "Glazing, south (XU201-S): Window type|Clear1|Clear2|-"}));
    EXPECT_EQ(DifferenceLines({cases[0], cases[0]}, "|"),
              std::vector<std::string>{"Nothing differs between the cases."});
}

TEST_F(Report, TakesSavedCasesFromTheirFiles) {
    MakeSlot({1, 2}, "DIMENSION_WIDTHB\t 20\n");
    ASSERT_TRUE(SaveSlots("Plan", {{1, 2}}));
    MakeSlot({1, 2}, "DIMENSION_WIDTHB\t 25\n");
    const auto saved = SavedReportCase("Plan!U2.CAS");
    ASSERT_TRUE(saved);
    EXPECT_EQ(DifferenceLines({WorkingCase({1, 2}), *saved}, "|")[2],
              "Width of the building (m)|25|20");
    EXPECT_FALSE(SavedReportCase("nowhere!U2.CAS"));
}

}  // namespace
}  // namespace verandis
