#include "cli/report_command.h"

#include "cli/commands.h"
#include "projects/slot_activation.h"
#include "results/case_report.h"

namespace verandis {

int ReportCommand(const CommandCall& call) {
    std::vector<ReportCase> cases;
    std::string chosen;
    for (const std::string& label : call.arguments) {
        Slot slot;
        const int opened = OpenLabelledSlot(call, label, slot);
        if (opened != kExitDone) return opened;
        cases.push_back(WorkingCase(slot));
        chosen += (chosen.empty() ? "" : " ") + SlotLabel(slot);
    }
    ReactivateEditedSlot();
    auto lines = CaseReport(chosen, cases);
    if (call.line.differs) {
        lines.emplace_back();
        for (std::string& line : DifferenceLines(cases, "\t")) lines.push_back(std::move(line));
    }
    for (const std::string& line : lines) call.out << line << "\n";
    return WriteReport(lines) ? kExitDone : kExitStopped;
}

}  // namespace verandis
