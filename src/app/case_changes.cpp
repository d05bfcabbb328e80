#include "app/case_changes.h"

#include <utility>

namespace verandis {
namespace {

std::function<void(bool)>& Listener() {
    static std::function<void(bool)> listener;
    return listener;
}

}  // namespace

void TellCaseChanged(bool resultsOutdated) {
    if (Listener()) Listener()(resultsOutdated);
}

void OnCaseChanged(std::function<void(bool resultsOutdated)> listener) {
    Listener() = std::move(listener);
}

}  // namespace verandis
