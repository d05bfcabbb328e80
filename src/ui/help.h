#pragma once

#include <functional>

namespace verandis {

/// Opens the help at a topic number. Until a viewer is set, a message tells that there is none.
void ShowHelp(int topic);

/// Sets what `ShowHelp` opens.
void UseHelpViewer(std::function<void(int topic)> viewer);

}  // namespace verandis
