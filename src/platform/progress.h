#pragma once

namespace verandis {

/// The bar of a long run. One instance serves the process.
class Progress {
public:
    virtual ~Progress() = default;

    void SetMaximum(int maximum);
    void SetValue(int value);
    int maximum() const { return maximum_; }
    int value() const { return value_; }

    /// Lets waiting events run; the only place in a run where the user can press anything.
    virtual void LetEventsRun() {}

protected:
    /// Shows the current value and maximum.
    virtual void Show() {}

private:
    int maximum_ = 100;
    int value_ = 0;
};

/// Sets the instance; it must outlive its use. Until then an invisible bar counts.
void UseProgress(Progress& progress);

Progress& CurrentProgress();

/// Lets waiting events run, then adds the step to the bar if the sum stays below its maximum: the
/// last step of a run never lands, so a rounding difference cannot fail.
void IncreaseProgress(int step);

}  // namespace verandis
