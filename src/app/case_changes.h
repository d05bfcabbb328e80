#pragma once

#include <functional>

namespace verandis {

/// Tells whoever shows the open case that a dialog has stored something in it. `resultsOutdated`:
/// shown diagrams no longer belong to the stored data and are not to be printed.
void TellCaseChanged(bool resultsOutdated);

/// Sets who is told; an empty function tells nobody.
void OnCaseChanged(std::function<void(bool resultsOutdated)> listener);

}  // namespace verandis
