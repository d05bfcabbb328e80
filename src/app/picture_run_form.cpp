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
#include "results/run_report_form.h"

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

/// Settings, catalogue and project, as the run wants them.
bool Prepare(const WindowlessRun& run) {
    const bool stored = ReadSystemSettings();
    if (run.language != 0) session.Language = run.language;
    if (!run.system.empty()) UseSystemPath(run.system);
    if ((stored || !run.system.empty()) && OpenSession()) return true;
    ShowMessage("There is no data root yet: start the program once, or use verandis-cli init");
    return false;
}

}  // namespace

int RunWithoutWindow(const WindowlessRun& run) {
    // The current folder moves with the project.
    const std::string pictures = run.pictures.empty() ? "" : AbsolutePath(run.pictures);
    const std::string report = run.report.empty() ? "" : AbsolutePath(run.report);
    if (!Prepare(run)) return kStopped;
    for (const std::string& label : run.labels) {
        if (!MarkSlot(label)) return kUsage;
    }
    session.CalcMode = kSteadyState;
    RunDisplay nothing;
    if (Calculate_Click(nothing) != RunOutcome::Done) return kStopped;
    if (!pictures.empty() && !SaveDiagramPictures(pictures, kPictureSize)) return kStopped;
    return report.empty() || WriteRunReport(report) ? kDone : kStopped;
}

}  // namespace verandis
