#pragma once

#include <functional>
#include <string>

#include "case/shapes.h"

namespace verandis {

/// What a run does to the window that started it. Every member may be left out: a program without a
/// window has nothing to show.
class RunDisplay {
public:
    virtual ~RunDisplay() = default;

    virtual void HideDiagrams() {}                           // SSTab1
    virtual void SetCaption(const std::string& /*text*/) {}  // of Frame8
    virtual void AllowPrinting(bool /*allowed*/) {}          // PrintOut
    virtual void AllowCancel(bool /*allowed*/) {}            // Command1
    virtual void CloseGuide() {}
    virtual void OpenGuide() {}
    virtual void ShowSteadyCharts() {}
    virtual void ShowDynamicCharts() {}
    virtual void ShowDiagrams() {}                      // SSTab1
    virtual void AllowTwoCaseView(bool /*allowed*/) {}  // DCheck2
    virtual void ResetSeriesBoxes() {}
    virtual void BlackenMarkLabels() {}  // Label3 and Label4
};

/// The detailed side of a dynamic run, slot by slot.
class DynamicRun {
public:
    virtual ~DynamicRun() = default;

    /// Turns the slot into a full model.
    virtual void GenerateDynamicCase(int caseNo, int shape) = 0;
    /// Runs the stage programs of the slot.
    virtual void RunStageChain(int caseNo, int shape) = 0;
    /// Reads the slot's hourly results; false when there are none.
    virtual bool ReadDynamicResults(int caseNo, int shape, int position) = 0;
};

/// Sets the dynamic side; it must outlive its use. Until then a dynamic run tells that it is not
/// there yet.
void UseDynamicRun(DynamicRun& run);

enum class RunOutcome {
    Done,
    NothingMarked,  // told by a message
    TooManyMarked,  // told by a message
    NothingChosen,  // no calculation is chosen
    Cancelled,
    NotInstalled,  // the dynamic side is not there; told by a message
    Stopped        // a run error; told by a message
};

/// The button `Calculate`: runs the chosen calculation for the marked slots, fills the result
/// tables, writes the result files and brings up what is wanted. It catches every RunError, and
/// leaves the slot open that the window edits. A call during a run returns at once.
RunOutcome Calculate_Click(RunDisplay& display);

/// The steady-state calculation of one slot, month by month; `afterMonth` is called with the month
/// when its figures stand in `heatBalance`. Steps the bar five times a month. Throws RunError.
void CalculateSlot(const Slot& slot, const std::function<void(int month)>& afterMonth);

/// Text for a diagram's legend: the word for climate, ":" and the open case's climate up to its
/// first "_". Throws RunError when it holds none.
std::string ClimateLabel();

}  // namespace verandis
