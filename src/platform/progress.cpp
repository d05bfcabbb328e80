#include "platform/progress.h"

namespace verandis {
namespace {

Progress*& Instance() {
    static Progress invisible;
    static Progress* instance = &invisible;
    return instance;
}

}  // namespace

void Progress::SetMaximum(int maximum) {
    maximum_ = maximum;
    Show();
}

void Progress::SetValue(int value) {
    value_ = value;
    Show();
}

void UseProgress(Progress& progress) {
    Instance() = &progress;
}

Progress& CurrentProgress() {
    return *Instance();
}

void IncreaseProgress(int step) {
    Progress& progress = CurrentProgress();
    progress.LetEventsRun();
    if (progress.value() + step < progress.maximum()) progress.SetValue(progress.value() + step);
}

}  // namespace verandis
