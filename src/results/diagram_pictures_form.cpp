#include "results/diagram_pictures_form.h"

#include "app/program_text.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/prompts.h"
#include "results/diagram_chart_form.h"
#include "results/diagram_tabs.h"

namespace verandis {
namespace {

enum : int { kNothingText = 619, kNotSavedText = 621 };

bool Refuse(const std::string& text) {
    ShowMessage(text, kProgramTitle, Icon::Exclamation);
    return false;
}

}  // namespace

bool SaveDiagramPictures(const std::string& folder, QSize size) {
    if (DiagramCases().empty()) return Refuse(Text(kNothingText));
    if (!MakeFolders(folder)) return Refuse(Text(kNotSavedText) + " " + folder);
    DiagramChart chart;
    chart.resize(size);
    for (int at = 0; at < kSteadyDiagrams; ++at) {
        const auto kind = static_cast<DiagramKind>(at);
        const ShownQuantities shown = ShownAtStart(kind);
        chart.SetDiagram(SteadyDiagram(kind));
        chart.ShowQuantities(shown.first, shown.second);
        const std::string name = std::string(DiagramFileName(kind)) + ".png";
        if (!chart.SavePicture(JoinPath(folder, name))) return false;
    }
    return true;
}

}  // namespace verandis
