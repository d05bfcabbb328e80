#include "app/picture_run_form.h"

#include <QSize>

#include "app/session.h"
#include "app/settings.h"
#include "app/start_up.h"
#include "calc/run_control.h"
#include "case/shapes.h"
#include "platform/files.h"
#include "platform/prompts.h"
#include "results/diagram_pictures_form.h"

namespace verandis {
namespace {

enum : int { kDone = 0, kUsage = 1, kStopped = 2 };

constexpr QSize kPictureSize(960, 600);

bool MarkSlot(const std::string& label) {
    const Slot slot = SlotOfLabel(label);
    if (!IsShape(slot.shape)) {
        ShowMessage("There is no slot " + label + ": a slot is written U1 to I4");
        return false;
    }
    auto& row = session.ChkCase[static_cast<std::size_t>(slot.shape)];
    row[static_cast<std::size_t>(slot.caseNo)] = true;
    return true;
}

}  // namespace

int WriteDiagramsOf(const std::vector<std::string>& labels, const std::string& folder,
                    const std::string& system) {
    const std::string target = AbsolutePath(folder);  // the current folder moves with the project
    const bool stored = ReadSystemSettings();
    if (!system.empty()) UseSystemPath(system);
    if ((!stored && system.empty()) || !OpenSession()) {
        ShowMessage("There is no data root yet: start the program once, or use verandis-cli init");
        return kStopped;
    }
    for (const std::string& label : labels) {
        if (!MarkSlot(label)) return kUsage;
    }
    session.CalcMode = kSteadyState;
    RunDisplay nothing;
    if (Calculate_Click(nothing) != RunOutcome::Done) return kStopped;
    return SaveDiagramPictures(target, kPictureSize) ? kDone : kStopped;
}

}  // namespace verandis
