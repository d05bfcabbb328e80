#include "results/run_report.h"

#include "app/data_root.h"
#include "app/program_text.h"
#include "results/diagram_cases.h"
#include "results/min_temp.h"
#include "results/report_choice.h"
#include "support/session_test.h"

namespace verandis {
namespace {

using testing_support::PutCase;
using Cells = std::vector<std::string>;

/// Two calculated cases; in month m the glazed space of the second has 5 + m degrees.
class RunReport : public testing_support::SmallRootTest {
protected:
    RunReport() {
        session.SimulatorFolder = DeliveredFolder() + "/MWTHARM";
        LoadProgramText();
        MakeSlot({kShapeU, 2}, "CASE_NOTE\tNarrow\nDIMENSION_WIDTHB\t 20.5\n");
        MakeSlot({kShapeV, 1}, "CASE_NOTE\t-999999\nDIMENSION_WIDTHB\t 18\n");
        PutCase({kShapeU, 2}, 1, -4.25f);
        PutCase({kShapeV, 1}, 2, 5);
    }
};

TEST_F(RunReport, HoldsCasesDifferencesMonthsAndVerdicts) {
    session.Decimals = DecimalMode::Comma;
    runResults.CaseResults[1] = {5, 10, -1, -1, -1, "F", 20, std::nullopt};
    runResults.CaseResults[2].Verdict = "T";
    const auto tables = RunReportTables();
    ASSERT_EQ(tables.size(), 5u);
    EXPECT_EQ(tables[0].rows, (std::vector<Cells>{{"U2", "U-shape", "TOWN", "Narrow"},
                                                  {"V1", "V-shape", "TOWN", ""}}));
    EXPECT_EQ(tables[1].rows, (std::vector<Cells>{{"Note", "Narrow", "-"},
                                                  {"Width of the building (m)", "20,5", "18"}}));
    const ReportTable& months = tables[2];
    EXPECT_EQ(months.heads[6], "V1\nPh, W");
    EXPECT_EQ(months.rows[11], (Cells{"Dec", "-2,2", "7,8", "7750", "7,0", "17,0", "17000"}));
    // Of the months 1 to 12 the mean is 6.5 above the base, the largest 12.
    EXPECT_EQ(months.rows[12], (Cells{"Mean", "-7,8", "2,2", "2250", "1,5", "11,5", "11500"}));
    EXPECT_EQ(months.rows[13], (Cells{"Largest", "-2,2", "7,8", "7750", "7,0", "17,0", "17000"}));
    EXPECT_EQ(tables[3].title, "U2: the design is accepted");
    EXPECT_EQ(tables[3].rows[0],
              (Cells{"Minimum temperature", "Tmin", "5,0 \u00B0C", "-3,2 \u00B0C (Jan)"}));
    EXPECT_EQ(tables[4].title, "V1: redesign");
    runResults.CaseResults[2].Verdict = "U";
    EXPECT_EQ(RunReportTables()[4].title, "V1: the guide has not been run");
}

TEST_F(RunReport, OfOneCaseComparesNothingAndWithoutResultsIsEmpty) {
    runResults.CaseResultCount[kShapeV][1] = 0;
    EXPECT_EQ(RunReportTables().size(), 3u) << "cases, months, one verdict";
    EXPECT_EQ(DifferenceTable({WorkingCase({kShapeU, 2})}).remark,
              "Choose at least two cases to see what differs.");
    runResults = {};
    EXPECT_TRUE(RunReportTables().empty());
    EXPECT_TRUE(ReportDiagrams().empty());
}

TEST_F(RunReport, LeavesOutDiagramsThatRepeatOthersOrAreZero) {
    std::vector<DiagramKind> kinds;
    for (const Diagram& diagram : ReportDiagrams()) kinds.push_back(diagram.kind);
    using K = DiagramKind;
    EXPECT_EQ(kinds, (std::vector<K>{K::MinimumTemperature, K::OutdoorMinimum, K::MinimumFunction,
                                     K::PowerDemand}));
}

TEST_F(RunReport, TableOfMinimaHasARowAMonthAndTheWantedColumns) {
    runResults.MonthResults[2][3].Eh = 12500;
    const ReportTable table = MinTempTable({});
    ASSERT_EQ(table.rows.size(), 24u);
    EXPECT_EQ(table.rows[14], (Cells{"V1", "Mar", "8.0", "20.0", "-2.0", "12", "0"}));
    EXPECT_TRUE(table.heads[kBuildingColumn].starts_with("Building"));
    EXPECT_TRUE(table.heads[kOutdoorColumn].starts_with("Outdoor"));
    EXPECT_EQ(table.remark, "");
    const auto lines = MinTempLines({false, true});
    ASSERT_EQ(lines.size(), 30u);
    EXPECT_EQ(lines[15], "Case : V1");
    EXPECT_EQ(lines[16], "Climate : TOWN");
    EXPECT_EQ(lines[20], "Mar;8.0;-2.0;12;0");
    runResults.MonthResults[2][3].Eh = 0;
    EXPECT_NE(MinTempTable({}).remark, "") << "a column of zeros is not told as an energy";
}

TEST_F(RunReport, ChoiceTellsWhatCannotBeReadAndGoesOn) {
    const auto cases = ChosenCases({"gone!U1.CAS", "nameless.CAS"}, {{kShapeU, 2}, {kShapeO, 1}});
    EXPECT_EQ(NamesOf(cases), "U2");
    EXPECT_EQ(prompts.Texts(), (Cells{"Cannot be read: O1", "Cannot be read: gone!U1.CAS",
                                      "The file name tells no slot: nameless.CAS"}));
    for (auto& row : session.ChkCase) row.fill(true);
    EXPECT_EQ(SlotsMarkedAtStart().size(), 4u);
}

TEST(Csv, OfATableKeepsCellsThatHoldItsSigns) {
    EXPECT_EQ(TableCsv({"", "", {"Input", "U1"}, {{"Note", "a, \"b\""}}, 0, ""}),
              "Input,U1\nNote,\"a, \"\"b\"\"\"\n");
}

}  // namespace
}  // namespace verandis
