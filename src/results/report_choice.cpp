#include "results/report_choice.h"

#include "app/program_text.h"
#include "app/session.h"
#include "case/property_file.h"
#include "platform/prompts.h"
#include "projects/saved_cases.h"
#include "results/case_report.h"
#include "text/characters.h"

namespace verandis {
namespace {

enum : int { kCaseWord = 196, kNoSlotText = 900, kCannotReadText = 902 };

void Tell(int text, const std::string& what) {
    ShowMessage(Text(text) + " " + what, kProgramTitle, Icon::Exclamation);
}

}  // namespace

std::vector<Slot> SlotsMarkedAtStart() {
    std::vector<Slot> marked;
    for (const Slot& slot : AllSlots()) {
        const auto& row = session.ChkCase[static_cast<std::size_t>(slot.shape)];
        if (!row[static_cast<std::size_t>(slot.caseNo)]) continue;
        if (marked.size() < kMostReportCases) marked.push_back(slot);
    }
    return marked;
}

std::string WorkingSlotCaption(const Slot& slot) {
    std::string caption = SlotLabel(slot) + "  " + Text(WordsOf(slot.shape).textNumber) + ", " +
                          LowerCase(Text(kCaseWord)) + " " + std::to_string(slot.caseNo);
    const std::string note(TrimBlanks(PropertyIn(WorkingCase(slot).lines, "CASE", "NOTE")));
    return note.empty() || note == kNotSet ? caption : caption + ": " + note;
}

std::vector<ReportCase> ChosenCases(const std::vector<std::string>& files,
                                    const std::vector<Slot>& slots) {
    std::vector<ReportCase> cases;
    for (const Slot& slot : slots) {
        ReportCase each = WorkingCase(slot);
        if (each.lines.empty()) {
            Tell(kCannotReadText, each.name);
            continue;
        }
        cases.push_back(std::move(each));
    }
    for (const std::string& file : files) {
        if (auto saved = SavedReportCase(file)) {
            cases.push_back(std::move(*saved));
        } else {
            Tell(IsShape(SavedCaseOf(file).slot.shape) ? kCannotReadText : kNoSlotText, file);
        }
    }
    return cases;
}

std::string NamesOf(const std::vector<ReportCase>& cases) {
    std::string names;
    for (const ReportCase& each : cases) names += (names.empty() ? "" : " ") + each.name;
    return names;
}

std::vector<std::string> MakeReport(const std::vector<ReportCase>& cases) {
    auto lines = CaseReport(NamesOf(cases), cases);
    if (cases.size() > 1) {
        lines.emplace_back();
        for (std::string& line : DifferenceLines(cases, "\t")) lines.push_back(std::move(line));
    }
    WriteReport(lines);
    return lines;
}

}  // namespace verandis
