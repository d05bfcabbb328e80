#include "cli/run_commands.h"

#include <sstream>
#include <utility>

#include "app/program_text.h"
#include "app/session.h"
#include "calc/heat_balance.h"
#include "calc/run_control.h"
#include "cli/commands.h"
#include "cli/month_table.h"
#include "libraries/simple_libraries.h"
#include "platform/files.h"
#include "projects/slot_activation.h"
#include "text/numbers.h"

namespace verandis {
namespace {

constexpr int kResultsInWord = 419;

int ExitCodeOf(RunOutcome outcome) {
    switch (outcome) {
        case RunOutcome::Done: return kExitDone;
        case RunOutcome::NothingMarked:
        case RunOutcome::TooManyMarked:
        case RunOutcome::NothingChosen: return kExitUsage;
        case RunOutcome::Cancelled:
        case RunOutcome::NotInstalled:
        case RunOutcome::Stopped: return kExitStopped;
    }
    return kExitStopped;
}

/// Marks the slots that the command names; the exit code of the first that cannot be.
int MarkSlots(const CommandCall& call) {
    for (std::size_t at = 1; at < call.arguments.size(); ++at) {
        Slot slot;
        const int opened = OpenLabelledSlot(call, call.arguments[at], slot);
        if (opened != kExitDone) return opened;
        session
            .ChkCase[static_cast<std::size_t>(slot.shape)][static_cast<std::size_t>(slot.caseNo)] =
            true;
    }
    ReactivateEditedSlot();
    return kExitDone;
}

bool WriteWanted(const CommandCall& call, const std::string& file, const std::string& text) {
    if (file.empty() || WriteBytes(file, text)) return true;
    StopCommand(call, "The file " + file + " cannot be written");
    return false;
}

int WriteResults(const CommandCall& call) {
    const auto cases = CalculatedCases();
    call.out << MonthTable(cases) << "\n"
             << Text(kResultsInWord) << " " << TrueSpelling(session.ProjectFolder) << "\n";
    const bool written = WriteWanted(call, call.line.csv, MonthCsv(cases)) &&
                         WriteWanted(call, call.line.json, MonthJson(cases));
    return written ? kExitDone : kExitStopped;
}

void WriteMonth(std::ostream& out, int month) {
    out << month << "\t" << TrimmedNumberText(static_cast<float>(heatBalance.TempOut)) << "\t"
        << TrimmedNumberText(heatBalance.TempGFree) << "\t"
        << TrimmedNumberText(heatBalance.HeatDemandG) << "\t"
        << TrimmedNumberText(heatBalance.SolarGainG) << "\n";
}

void WriteTerms(std::ostream& out) {
    const HeatBalance& balance = heatBalance;
    const std::pair<const char*, std::string> terms[] = {
        {"UAGlazing", TrimmedNumberText(balance.UAGlazing)},
        {"UAWalls", TrimmedNumberText(balance.UAWalls)},
        {"VolumeG", TrimmedNumberText(balance.VolumeG)},
        {"VolumeB", TrimmedNumberText(balance.VolumeB)},
        {"AirChangeG", TrimmedNumberText(balance.AirChangeG)},
        {"AirChangeB", TrimmedNumberText(balance.AirChangeB)},
        {"GroundResistance", TrimmedNumberText(balance.GroundResistance)},
        {"SetPointG", TrimmedNumberText(balance.SetPointG)},
        {"TempB", TrimmedNumberText(balance.TempB)},
        {"SunPanelFactor", TrimmedNumberText(balance.SunPanelFactor)},
    };
    for (const auto& [name, value] : terms) out << name << "\t" << value << "\n";
}

}  // namespace

int RunCommand(const CommandCall& call) {
    const std::string& kind = call.arguments[0];
    if (kind != "steady" && kind != "dynamic") {
        StopCommand(call, "A run is steady or dynamic, not " + kind);
        return kExitUsage;
    }
    const int marked = MarkSlots(call);
    if (marked != kExitDone) return marked;
    session.CalcMode = kind == "steady" ? kSteadyState : kDynamic;
    RunDisplay nothing;
    const RunOutcome outcome = Calculate_Click(nothing);
    if (outcome != RunOutcome::Done) return ExitCodeOf(outcome);
    return WriteResults(call);
}

int ExplainCommand(const CommandCall& call) {
    Slot slot;
    const int opened = OpenLabelledSlot(call, call.arguments[0], slot);
    if (opened != kExitDone) return opened;
    ClimateLabel();  // the same refusal of a climate without a "_" as in a run
    ResetMonthHours();
    ReadRefWindows();
    std::ostringstream months;
    CalculateSlot(slot, [&](int month) { WriteMonth(months, month); });
    WriteTerms(call.out);
    call.out << months.str();
    return kExitDone;
}

}  // namespace verandis
