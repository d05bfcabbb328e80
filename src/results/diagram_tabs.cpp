#include "results/diagram_tabs.h"

#include <algorithm>

#include "app/program_text.h"
#include "app/session.h"

namespace verandis {

std::string DiagramTabCaption(const DiagramTab& tab) {
    return tab.frequency ? FrequencyCaption(tab.text) : TextFor(tab.text, 1);
}

ShownQuantities ShownAtStart(DiagramKind kind) {
    if (!HasTwoQuantities(kind)) return {};
    for (const DiagramTab& tab : kDiagramTabs) {
        const auto end = tab.kinds.begin() + static_cast<std::ptrdiff_t>(tab.count);
        if (std::find(tab.kinds.begin(), end, kind) != end) {
            return {tab.first.atStart, tab.second.atStart};
        }
    }
    return {};
}

bool IsTabEnabled(const DiagramTab& tab, float calcMode) {
    return calcMode == kDynamic ? tab.dynamic : tab.steady;
}

}  // namespace verandis
