#include "results/run_report.h"

#include <algorithm>

#include "app/program_text.h"
#include "app/session.h"
#include "calc/results.h"
#include "case/property_file.h"
#include "platform/clock.h"
#include "results/case_report.h"
#include "results/design_guide.h"
#include "results/diagram_tabs.h"
#include "results/diagram_texts.h"
#include "results/month_columns.h"
#include "text/characters.h"
#include "text/numbers.h"
#include "text/separators.h"

namespace verandis {
namespace {

enum : int {
    kNoteWord = 50,
    kCaseWord = 196,
    kMonthWord = 198,
    kClimateWord = 242,
    kRedesignText = 250,
    kAcceptedText = 256,
    kShapeWord = 258,
    kTitleText = 625,
    kCasesTitle = 626,
    kMonthsTitle = 627,
    kVerdictsTitle = 628,
    kNotJudgedText = 629,
    kTwoCasesText = 633,
    kDemandWord = 650,
    kWorstWord = 651,
    kFigureWord = 657,
    kDifferTitle = 935,
    kNothingDiffers = 936,
    kInputWord = 937
};

std::vector<ReportCase> CasesOfRun() {
    std::vector<ReportCase> cases;
    for (const DiagramCase& each : DiagramCases()) cases.push_back(WorkingCase(each.slot));
    return cases;
}

std::string NoteOf(const ReportCase& each) {
    const std::string note(TrimBlanks(PropertyIn(each.lines, "CASE", "NOTE")));
    return note == kNotSet ? "" : note;
}

ReportTable CaseTable(const std::vector<ReportCase>& cases) {
    ReportTable table;
    table.section = Text(kCasesTitle);
    table.heads = {Text(kCaseWord), Text(kShapeWord), Text(kClimateWord), Text(kNoteWord)};
    for (const ReportCase& each : cases) {
        table.rows.push_back({each.name, Text(WordsOf(each.slot.shape).textNumber),
                              ClimateOfRun(each.slot), NoteOf(each)});
    }
    return table;
}

std::string OnScreen(double value, const MonthColumn& column) {
    return PointToDecimal(MonthCell(value, column), session.Decimals);
}

template <class ValueOf>
std::vector<std::string> MonthRow(const std::string& head, const ValueOf& valueOf) {
    std::vector<std::string> row = {head};
    for (const DiagramCase& each : DiagramCases()) {
        const auto& year = runResults.MonthResults[static_cast<std::size_t>(each.number)];
        for (const MonthColumn& column : kMonthColumns) {
            row.push_back(OnScreen(valueOf(year, column.value), column));
        }
    }
    return row;
}

ReportTable MonthTableOfRun() {
    using Value = float MonthResult::*;
    ReportTable table;
    table.section = Text(kMonthsTitle);
    table.firstFigure = 1;
    table.heads = {Text(kMonthWord)};
    for (const DiagramCase& each : DiagramCases()) {
        for (const MonthColumn& column : kMonthColumns) {
            table.heads.push_back(SlotLabel(each.slot) + "\n" + column.head + ", " + column.unit);
        }
    }
    for (int month = 1; month <= kMonths; ++month) {
        const auto at = static_cast<std::size_t>(month);
        table.rows.push_back(MonthRow(
            MonthName(month),
            [at](const RunResults::Year& year, Value value) { return double(year[at].*value); }));
    }
    table.rows.push_back(MonthRow(Text(kMeanWord), MeanOf));
    table.rows.push_back(MonthRow(Text(kLargestWord), LargestOf));
    for (const MonthColumn& column : kMonthColumns) {
        table.remark += (table.remark.empty() ? "" : "; ") + std::string(column.head) + ": " +
                        LowerCase(Text(column.word)) + ", " + column.unit;
    }
    return table;
}

std::string VerdictWords(const std::string& verdict) {
    if (verdict == "T") return LowerCase(Text(kRedesignText));
    if (verdict == "F") return LowerCase(TextFor(kAcceptedText, 1));
    return Text(kNotJudgedText);
}

ReportTable GuideTable(const DiagramCase& each) {
    const auto position = static_cast<std::size_t>(each.number);
    const GuideSheet sheet = SheetOfRow(position - 1);
    ReportTable table;
    table.title =
        SlotLabel(each.slot) + ": " + VerdictWords(runResults.CaseResults[position].Verdict);
    table.heads = {Text(kFigureWord), "", Text(kDemandWord), Text(kWorstWord)};
    for (const FigureWords& words : sheet.figures) {
        table.rows.push_back({words.label, words.symbol, words.demand, words.worst});
    }
    return table;
}

bool AllZero(const Diagram& diagram) {
    return std::all_of(diagram.series.begin(), diagram.series.end(), [](const auto& series) {
        return std::all_of(series.points.begin(), series.points.end(),
                           [](const DiagramPoint& point) { return point.y == 0; });
    });
}

bool SameCurves(const Diagram& left, const Diagram& right) {
    if (ValueUnit(left) != ValueUnit(right)) return false;
    const auto samePoint = [](const DiagramPoint& a, const DiagramPoint& b) {
        return a.x == b.x && a.y == b.y;
    };
    return std::equal(left.series.begin(), left.series.end(), right.series.begin(),
                      right.series.end(), [&](const auto& a, const auto& b) {
                          return a.slot == b.slot &&
                                 std::equal(a.points.begin(), a.points.end(), b.points.begin(),
                                            b.points.end(), samePoint);
                      });
}

}  // namespace

ReportHead HeadOfRunReport() {
    return {Text(kTitleText), CurrentClock().Date() + " " + CurrentClock().Time(),
            session.ProjectName};
}

std::string ClimateOfRun(const Slot& slot) {
    const auto shape = static_cast<std::size_t>(slot.shape);
    const std::string& label =
        runResults.SlotClimateLabels[shape][static_cast<std::size_t>(slot.caseNo)];
    const std::string_view name = RightOfSeparator(label, ":");
    return std::string(TrimBlanks(name.empty() ? std::string_view(label) : name));
}

ReportTable DifferenceTable(const std::vector<ReportCase>& cases) {
    ReportTable table;
    table.section = Text(kDifferTitle);
    table.heads = {Text(kInputWord)};
    for (const ReportCase& each : cases) table.heads.push_back(each.name);
    for (const CaseDifference& each : WhatDiffers(cases)) {
        const std::string label(TrimBlanks(each.label));
        std::vector<std::string> row = {each.unit.empty() ? label : label + " (" + each.unit + ")"};
        row.insert(row.end(), each.values.begin(), each.values.end());
        table.rows.push_back(std::move(row));
    }
    if (table.rows.empty()) table.remark = Text(cases.size() < 2 ? kTwoCasesText : kNothingDiffers);
    return table;
}

std::vector<ReportTable> RunReportTables() {
    const std::vector<ReportCase> cases = CasesOfRun();
    if (cases.empty()) return {};
    std::vector<ReportTable> tables = {CaseTable(cases)};
    if (cases.size() > 1) tables.push_back(DifferenceTable(cases));
    tables.push_back(MonthTableOfRun());
    const std::size_t firstGuide = tables.size();
    for (const DiagramCase& each : DiagramCases()) tables.push_back(GuideTable(each));
    tables[firstGuide].section = Text(kVerdictsTitle);
    return tables;
}

std::vector<Diagram> ReportDiagrams() {
    std::vector<Diagram> diagrams;
    for (int at = 0; at < kSteadyDiagrams; ++at) {
        const auto kind = static_cast<DiagramKind>(at);
        const ShownQuantities shown = ShownAtStart(kind);
        const Diagram diagram = WithShown(SteadyDiagram(kind), shown.first, shown.second);
        const bool repeats = std::any_of(diagrams.begin(), diagrams.end(), [&](const auto& before) {
            return SameCurves(before, diagram);
        });
        if (!repeats && !AllZero(diagram)) diagrams.push_back(diagram);
    }
    return diagrams;
}

}  // namespace verandis
