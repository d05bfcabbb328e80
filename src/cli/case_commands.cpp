#include "cli/case_commands.h"

#include "app/data_root.h"
#include "app/program_text.h"
#include "app/session.h"
#include "app/settings.h"
#include "app/start_up.h"
#include "case/property_file.h"
#include "cli/commands.h"
#include "platform/files.h"
#include "platform/prompts.h"
#include "projects/slot_activation.h"
#include "text/characters.h"

namespace verandis {
namespace {

constexpr int kRebuiltWord = 467;

std::string Shown(std::string_view section, std::string_view key) {
    std::string value;
    GetCaseProperty(section, key, value);
    return value == kNotSet ? "" : std::string(TrimBlanks(value));
}

bool HoldsLineEnd(const std::string& text) {
    return text.find_first_of("\r\n") != std::string::npos;
}

}  // namespace

int StopCommand(const CommandCall& call, const std::string& sentence) {
    call.err << "[" << kProgramTitle << "] " << sentence << "\n";
    return kExitStopped;
}

int OpenLabelledSlot(const CommandCall& call, const std::string& label, Slot& slot) {
    slot = SlotOfLabel(label);
    if (slot.shape == 0) {
        StopCommand(call, "There is no slot " + label +
                              ": slots are U1 to U4, O1 to O4, V1 to V4, I1 to I4");
        return kExitUsage;
    }
    if (ActivateSlot(slot.caseNo, slot.shape, "")) return kExitDone;
    return StopCommand(call, "Slot " + SlotLabel(slot) + " is not there yet: run start first");
}

int InitCommand(const CommandCall& call) {
    const std::string folder = AbsolutePath(call.arguments[0]);
    const std::string complaint = MakeDataRoot(folder);
    if (!complaint.empty()) return StopCommand(call, complaint);
    Settings settings = StoredSettings();
    if (settings.SystemPath.empty()) {
        settings.SystemPath = folder;
        if (!WriteSystemSettings(settings)) {
            return StopCommand(call, "The settings file cannot be written");
        }
    }
    call.out << folder << "\n";
    return kExitDone;
}

int StartCommand(const CommandCall& call) {
    if (!StartSession()) {
        return StopCommand(call,
                           "The slots cannot be made from the templates in " + session.ProjectRoot);
    }
    call.out << Text(kRebuiltWord) << ": " << TrueSpelling(session.ProjectFolder) << "\n";
    return kExitDone;
}

int SlotsCommand(const CommandCall& call) {
    for (const Slot& slot : AllSlots()) {
        call.out << SlotLabel(slot) << "\t" << Text(WordsOf(slot.shape).textNumber) << "\t";
        if (ActivateSlot(slot.caseNo, slot.shape, "")) {
            call.out << session.CaseName << "\t" << Shown("CLIMATE", "FILE") << "\t"
                     << Shown("CASE", "NOTE") << "\n";
        } else {
            call.out << "-\t-\t-\n";
        }
    }
    ReactivateEditedSlot();
    return kExitDone;
}

int GetCommand(const CommandCall& call) {
    Slot slot;
    const int opened = OpenLabelledSlot(call, call.arguments[0], slot);
    if (opened != kExitDone) return opened;
    const bool there = FileExists(PropertyFilePath());
    std::string value;
    GetCaseProperty(call.arguments[1], call.arguments[2], value);  // tells of a missing file itself
    if (!there) return kExitStopped;
    call.out << value << "\n";
    return kExitDone;
}

int SetCommand(const CommandCall& call) {
    const std::string& section = call.arguments[1];
    const std::string& key = call.arguments[2];
    const std::string& value = call.arguments[3];
    const bool badName = section.find('\t') != std::string::npos ||
                         key.find('\t') != std::string::npos || section.empty() || key.empty();
    if (badName || HoldsLineEnd(section + key + value)) {
        StopCommand(call,
                    "Section and key must be filled, without a TAB, and no line may end in them or "
                    "in the value");
        return kExitUsage;
    }
    Slot slot;
    const int opened = OpenLabelledSlot(call, call.arguments[0], slot);
    if (opened != kExitDone) return opened;
    session.ElementKindMark = static_cast<std::int16_t>(call.line.kind);
    const bool stored = SetCaseProperty(section, key, value);
    session.ElementKindMark = 0;
    if (stored) return kExitDone;
    return StopCommand(call, "The value is not stored in " + PropertyFilePath());
}

}  // namespace verandis
