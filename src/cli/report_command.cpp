#include "cli/report_command.h"

#include "app/session.h"
#include "cli/commands.h"
#include "platform/run_and_wait.h"
#include "projects/slot_activation.h"
#include "results/case_report.h"

namespace verandis {
namespace {

constexpr const char* kWindowProgram = "verandis";

/// The window program draws the report, without a display: one that is named may not answer.
ProgramCall PdfCall(const CommandLine& line, const std::vector<std::string>& labels) {
    ProgramCall call;
    call.program = CompanionProgram(kWindowProgram);
    call.arguments = {"--report",   line.pdf,
                      "--system",   session.SystemFolder,
                      "--language", std::to_string(session.Language),
                      "--"};
    call.arguments.insert(call.arguments.end(), labels.begin(), labels.end());
    call.environment = {{"QT_QPA_PLATFORM", "offscreen"}};
    return call;
}

/// The sentences that the window program wrote itself stand on standard error already.
int WritePdf(const CommandCall& call, const std::vector<std::string>& labels) {
    const ProgramCall pdf = PdfCall(call.line, labels);
    const ProgramResult result = RunAndWait(pdf);
    switch (result.end) {
        case ProgramEnd::Finished: return result.code;
        case ProgramEnd::NotStarted:
            return StopCommand(
                call, "The program " + pdf.program + ", which draws the report, cannot be started");
        case ProgramEnd::Crashed: break;
    }
    return StopCommand(
        call, "The program " + pdf.program + " was ended by signal " + std::to_string(result.code));
}

}  // namespace

int ReportCommand(const CommandCall& call) {
    std::vector<ReportCase> cases;
    std::vector<std::string> labels;
    std::string chosen;
    for (const std::string& label : call.arguments) {
        Slot slot;
        const int opened = OpenLabelledSlot(call, label, slot);
        if (opened != kExitDone) return opened;
        cases.push_back(WorkingCase(slot));
        labels.push_back(SlotLabel(slot));
        chosen += (chosen.empty() ? "" : " ") + labels.back();
    }
    ReactivateEditedSlot();
    if (!call.line.pdf.empty()) return WritePdf(call, labels);
    auto lines = CaseReport(chosen, cases);
    if (call.line.differs) {
        lines.emplace_back();
        for (std::string& line : DifferenceLines(cases, "\t")) lines.push_back(std::move(line));
    }
    for (const std::string& line : lines) call.out << line << "\n";
    return WriteReport(lines) ? kExitDone : kExitStopped;
}

}  // namespace verandis
