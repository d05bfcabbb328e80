#include "results/min_temp.h"

#include <algorithm>

#include "app/program_text.h"
#include "app/session.h"
#include "calc/results.h"
#include "results/diagrams.h"
#include "results/run_report.h"
#include "text/numbers.h"

namespace verandis {
namespace {

enum : int {
    kCaseWord = 196,
    kMonthWord = 198,
    kBuildingWord = 201,
    kGlazedWord = 203,
    kClimateWord = 242,
    kOutdoorWord = 278,
    kHeatingWord = 602,
    kCoolingWord = 603,
    kNothingText = 619,
    kTitleText = 644,
    kNoEnergyText = 645
};

constexpr double kWattHours = 1000;  // in a kWh
constexpr const char* kCellSign = ";";
constexpr const char* kLabelSign = " : ";

/// A column of figures; `wanted` is null for one that always stands.
struct Column {
    int word;
    const char* unit;
    int decimals;
    double (*value)(const MonthResult& month, const CaseResult& result);
    bool MinTempColumns::*wanted;
};

constexpr Column kColumns[] = {
    {kGlazedWord, "°C", 1, [](const MonthResult& m, const CaseResult&) { return double(m.Tmin); },
     nullptr},
    {kBuildingWord, "°C", 1,
     [](const MonthResult&, const CaseResult& result) { return double(result.TempB); },
     &MinTempColumns::building},
    {kOutdoorWord, "°C", 1,
     [](const MonthResult& m, const CaseResult&) { return double(m.TempOut); },
     &MinTempColumns::outdoor},
    {kHeatingWord, "kWh", 0,
     [](const MonthResult& m, const CaseResult&) { return double(m.Eh) / kWattHours; }, nullptr},
    {kCoolingWord, "kWh", 0,
     [](const MonthResult& m, const CaseResult&) { return double(m.Ec) / kWattHours; }, nullptr},
};

std::vector<std::string> Heads(const MinTempColumns& wanted) {
    std::vector<std::string> heads = {Text(kMonthWord)};
    for (const Column& column : kColumns) {
        if (column.wanted && !(wanted.*column.wanted)) continue;
        heads.push_back(TextFor(column.word, 1) + " (" + column.unit + ")");
    }
    return heads;
}

std::vector<std::string> MonthCells(const DiagramCase& each, int month,
                                    const MinTempColumns& wanted) {
    const auto position = static_cast<std::size_t>(each.number);
    const auto& result = runResults.MonthResults[position][static_cast<std::size_t>(month)];
    std::vector<std::string> cells = {MonthName(month)};
    for (const Column& column : kColumns) {
        if (column.wanted && !(wanted.*column.wanted)) continue;
        const double value = column.value(result, runResults.CaseResults[position]);
        cells.push_back(PointToDecimal(FixedText(value, column.decimals), session.Decimals));
    }
    return cells;
}

bool AnyEnergy() {
    for (const DiagramCase& each : DiagramCases()) {
        const auto& year = runResults.MonthResults[static_cast<std::size_t>(each.number)];
        const bool any = std::any_of(year.begin(), year.end(), [](const MonthResult& month) {
            return month.Eh != 0 || month.Ec != 0;
        });
        if (any) return true;
    }
    return false;
}

std::string Joined(const std::vector<std::string>& cells) {
    std::string line;
    for (std::size_t at = 0; at < cells.size(); ++at) line += (at ? kCellSign : "") + cells[at];
    return line;
}

}  // namespace

ReportTable MinTempTable(const MinTempColumns& columns) {
    ReportTable table;
    table.section = Text(kTitleText);
    table.firstFigure = 2;
    table.heads = Heads(columns);
    table.heads.insert(table.heads.begin(), Text(kCaseWord));
    for (const DiagramCase& each : DiagramCases()) {
        for (int month = 1; month <= kMonths; ++month) {
            auto row = MonthCells(each, month, columns);
            row.insert(row.begin(), SlotLabel(each.slot));
            table.rows.push_back(std::move(row));
        }
    }
    if (table.rows.empty()) {
        table.remark = Text(kNothingText);
    } else if (!AnyEnergy()) {
        table.remark = Text(kNoEnergyText);
    }
    return table;
}

std::vector<std::string> MinTempLines(const MinTempColumns& columns) {
    std::vector<std::string> lines;
    for (const DiagramCase& each : DiagramCases()) {
        lines.push_back(Text(kCaseWord) + kLabelSign + SlotLabel(each.slot));
        lines.push_back(Text(kClimateWord) + kLabelSign + ClimateOfRun(each.slot));
        lines.push_back(Joined(Heads(columns)));
        for (int month = 1; month <= kMonths; ++month) {
            lines.push_back(Joined(MonthCells(each, month, columns)));
        }
    }
    return lines;
}

}  // namespace verandis
