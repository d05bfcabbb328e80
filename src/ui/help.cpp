#include "ui/help.h"

#include "app/program_text.h"
#include "platform/prompts.h"

namespace verandis {
namespace {

enum : int { kHelpWord = 13, kNoHelpText = 472 };

std::function<void(int)>& Viewer() {
    static std::function<void(int)> viewer;
    return viewer;
}

}  // namespace

void ShowHelp(int topic) {
    if (Viewer()) return Viewer()(topic);
    ShowMessage(Text(kNoHelpText), Text(kHelpWord), Icon::Information);
}

void UseHelpViewer(std::function<void(int topic)> viewer) {
    Viewer() = std::move(viewer);
}

}  // namespace verandis
