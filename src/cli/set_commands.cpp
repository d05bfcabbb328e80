#include "cli/set_commands.h"

#include <algorithm>

#include "app/program_text.h"
#include "app/session.h"
#include "cli/commands.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "projects/saved_cases.h"
#include "projects/slot_activation.h"
#include "text/characters.h"

namespace verandis {
namespace {

enum : int { kSavedWord = 903, kLoadedWord = 904 };

}  // namespace

int SaveCommand(const CommandCall& call) {
    const std::string name(TrimBlanks(call.arguments[0]));
    if (const int refusal = RefusalOfSetName(name)) {
        StopCommand(call, Text(refusal) + ": " + name);
        return kExitUsage;
    }
    std::vector<Slot> slots;
    for (std::size_t at = 1; at < call.arguments.size(); ++at) {
        const int opened = OpenLabelledSlot(call, call.arguments[at], slots.emplace_back());
        if (opened != kExitDone) return opened;
    }
    // In the order of the slots, each once.
    std::vector<Slot> ordered;
    for (const Slot& slot : AllSlots()) {
        if (std::find(slots.begin(), slots.end(), slot) != slots.end()) ordered.push_back(slot);
    }
    if (!SaveSlots(name, ordered)) return kExitStopped;
    for (const Slot& slot : ordered) {
        call.out << Text(kSavedWord) << "\t" << name << "!" << SlotLabel(slot) << ".CAS\n";
    }
    return kExitDone;
}

int LoadCommand(const CommandCall& call) {
    const std::string& file = call.arguments[0];
    const bool bareName = file.find_first_of("/\\") == std::string::npos;
    if (!bareName || !FileExists(JoinPath(session.ProjectFolder, file))) {
        return StopCommand(call, "There is no saved case " + file + ": sets lists them");
    }
    if (!LoadSavedCase(file)) return kExitStopped;
    call.out << Text(kLoadedWord) << "\t" << file << "\n";
    return kExitDone;
}

int SetsCommand(const CommandCall& call) {
    for (const SavedCase& saved : SavedCases()) {
        call.out << saved.file << "\t" << saved.set << "\t"
                 << (IsShape(saved.slot.shape) ? SlotLabel(saved.slot) : "-") << "\n";
    }
    return kExitDone;
}

}  // namespace verandis
