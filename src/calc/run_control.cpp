#include "calc/run_control.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "app/program_text.h"
#include "app/run_stop.h"
#include "calc/climate_file.h"
#include "calc/heat_balance.h"
#include "calc/marked_slots.h"
#include "calc/properties.h"
#include "calc/result_file.h"
#include "calc/results.h"
#include "case/property_file.h"
#include "libraries/simple_libraries.h"
#include "platform/errors.h"
#include "platform/progress.h"
#include "platform/prompts.h"
#include "projects/slot_activation.h"
#include "text/characters.h"

namespace verandis {
namespace {

/// Catalogue texts of a run.
enum : int {
    kCalculationWord = 58,
    kSteadyWord = 59,
    kResultsWord = 61,
    kGlazedSpaceWord = 203,
    kClimateWord = 242,
    kMarksTitle = 244,
    kNothingMarkedText = 267,
    kTooManyText = 268,
    kDynamicWord = 272,
    kNotInstalledText = 462
};

constexpr int kStepsPerMonth = 6;
constexpr int kStepsPerDynamicCase = 13;
constexpr int kStepsPerResult = 6;
constexpr int kLessReadable = 4;  // from this count of marks on the warning comes

DynamicRun*& InstalledDynamicRun() {
    static DynamicRun* run = nullptr;
    return run;
}

std::string FrameCaption(const std::string& calculation) {
    return TextFor(kResultsWord, 1) + " " + LowerCase(Text(kGlazedSpaceWord)) + "; " +
           LowerCase(calculation) + " " + LowerCase(TextFor(kCalculationWord, 1));
}

int WithDiagramStep(int steps) {
    return session.ShowDiagrams != kOff ? steps + 1 : steps;
}

std::int16_t& ResultCount(const Slot& slot) {
    return runResults.CaseResultCount[static_cast<std::size_t>(slot.shape)]
                                     [static_cast<std::size_t>(slot.caseNo)];
}

void StoreClimateLabels() {
    for (const Slot& slot : MarkedSlots()) {
        ActivateForRun(slot);
        runResults.SlotClimateLabels[static_cast<std::size_t>(slot.shape)]
                                    [static_cast<std::size_t>(slot.caseNo)] = ClimateLabel();
    }
}

/// A result at the precision of the tables; one that is too large for it stops the run.
float Stored(double value, const char* name) {
    const auto single = static_cast<float>(value);
    if (!std::isfinite(single)) StopRun(std::string(name) + " is not a finite number");
    return single;
}

void StoreMonth(int month) {
    MonthResult& result =
        runResults.MonthResults[runResults.RunPosition][static_cast<std::size_t>(month)];
    result = {};
    result.Tmin = Stored(heatBalance.TempGFree, "the temperature of the glazed space");
    result.Ph = Stored(heatBalance.HeatDemandG, "the heat demand of the glazed space");
    result.TempOut = Stored(heatBalance.TempOut, "the outdoor temperature");
}

void StoreCase(const Slot& slot) {
    const HeatBalance& balance = heatBalance;
    CaseResult& result = runResults.CaseResults[runResults.RunPosition];
    result.SetPointG = Stored(balance.SetPointG, "HVACG/HEATING");
    result.TdgMean = Stored(double(balance.TdgMean), "TDG/TDGMEAN");
    result.PowerDemandMax = Stored(double(balance.PowerDemandMax), "TDG/POWDEMHEAT");
    result.HeatEnergyMax = Stored(double(balance.HeatEnergyMax), "TDG/ENERDEMHEAT");
    result.CoolEnergyMax = Stored(double(balance.CoolEnergyMax), "TDG/ENERDEMCOOL");
    result.Verdict = "U";
    result.TempB = Stored(balance.TempB, "the temperature of the building");
    result.TdgMin.reset();
    if (balance.TdgMin) result.TdgMin = Stored(*balance.TdgMin, "TDG/TDGMIN");
    ResultCount(slot) = 1;
}

RunOutcome RunSteadyState(RunDisplay& display) {
    display.SetCaption(FrameCaption(TextFor(kSteadyWord, 1)));
    CurrentProgress().SetMaximum(WithDiagramStep(session.MarkedCount * kMonths * kStepsPerMonth));
    ReadRefWindows();
    runResults.RunPosition = 0;
    for (const Slot& slot : MarkedSlots()) {
        ++runResults.RunPosition;
        CalculateSlot(slot, [](int month) {
            StoreMonth(month);
            IncreaseProgress(1);
        });
        StoreCase(slot);
    }
    if (session.ShowGuide != kOff) display.OpenGuide();
    WriteSteadyResults();
    if (session.ShowDiagrams != kOff) {
        display.ShowSteadyCharts();
        display.ShowDiagrams();
        IncreaseProgress(1);
        display.AllowPrinting(true);
    }
    return RunOutcome::Done;
}

/// True when one shape alone has marked slots, and exactly two.
bool TwoCasesOfOneShape(const std::array<int, kShapeCount + 1>& counts) {
    const auto used = std::count_if(counts.begin(), counts.end(), [](int n) { return n > 0; });
    return used == 1 && *std::max_element(counts.begin(), counts.end()) == 2;
}

std::array<int, kShapeCount + 1> ReadAllDynamicResults(DynamicRun& run) {
    std::array<int, kShapeCount + 1> counts{};
    int position = 0;
    for (const Slot& slot : MarkedSlots()) {
        ++counts[static_cast<std::size_t>(slot.shape)];
        ++position;
        if (run.ReadDynamicResults(slot.caseNo, slot.shape, position)) ResultCount(slot) = 1;
        IncreaseProgress(kStepsPerResult);
    }
    return counts;
}

void ShowDynamicResults(RunDisplay& display, const std::array<int, kShapeCount + 1>& counts) {
    display.ShowDynamicCharts();
    display.AllowTwoCaseView(TwoCasesOfOneShape(counts));
    display.AllowPrinting(true);
    display.ResetSeriesBoxes();
    display.ShowDiagrams();
    IncreaseProgress(1);
}

RunOutcome RunDynamic(RunDisplay& display) {
    DynamicRun* run = InstalledDynamicRun();
    if (!run) {
        ShowMessage(Text(kNotInstalledText), Text(kMarksTitle), Icon::Information);
        return RunOutcome::NotInstalled;
    }
    session.StopCalculation = kOff;  // a press in the last moments of an earlier run
    display.AllowCancel(true);
    display.SetCaption(FrameCaption(Text(kDynamicWord)));
    CurrentProgress().SetValue(0);
    CurrentProgress().SetMaximum(WithDiagramStep(session.MarkedCount * kStepsPerDynamicCase));
    for (const Slot& slot : MarkedSlots()) {
        run->GenerateDynamicCase(slot.caseNo, slot.shape);
        IncreaseProgress(1);
    }
    for (const Slot& slot : MarkedSlots()) {
        if (session.StopCalculation == kOff) run->RunStageChain(slot.caseNo, slot.shape);
    }
    if (session.StopCalculation != kOff) {
        session.StopCalculation = kOff;
        CurrentProgress().SetValue(0);
        display.SetCaption(TextFor(kResultsWord, 1));
        return RunOutcome::Cancelled;
    }
    const auto counts = ReadAllDynamicResults(*run);
    if (session.ShowDiagrams != kOff) ShowDynamicResults(display, counts);
    return RunOutcome::Done;
}

RunOutcome RunMarkedSlots(RunDisplay& display) {
    StoreClimateLabels();
    RunOutcome outcome = RunOutcome::NothingChosen;
    if (session.CalcMode == kSteadyState) outcome = RunSteadyState(display);
    if (session.CalcMode == kDynamic) outcome = RunDynamic(display);
    display.AllowCancel(false);
    return outcome;
}

/// Stands behind the run on purpose: four marks are calculated, and still the warning comes.
RunOutcome CheckMarks(RunDisplay& display, RunOutcome outcome) {
    display.BlackenMarkLabels();
    const auto tell = [](int text) {
        ShowMessage(Text(text) + "\n\n\n\n", Text(kMarksTitle), Icon::Information);
    };
    if (session.MarkedCount < 1) {
        tell(kNothingMarkedText);
        return RunOutcome::NothingMarked;
    }
    if (session.MarkedCount >= kLessReadable) tell(kTooManyText);
    return session.MarkedCount > kMostMarkedCases ? RunOutcome::TooManyMarked : outcome;
}

void ClearAfterRunError(RunDisplay& display) {
    session.ElementKindMark = 0;
    display.AllowCancel(false);
    session.StopCalculation = kOff;
    CurrentProgress().SetValue(0);
    display.CloseGuide();
    display.HideDiagrams();
    display.SetCaption(TextFor(kResultsWord, 1));
    display.AllowPrinting(false);
    runResults.CaseResultCount = {};
}

RunOutcome RunOnce(RunDisplay& display) {
    display.CloseGuide();
    display.HideDiagrams();
    display.AllowPrinting(false);
    display.SetCaption(TextFor(kResultsWord, 1));
    ResetMonthHours();
    runResults.CaseResultCount = {};
    SetActiveRuns();
    CurrentProgress().SetValue(0);
    RunOutcome outcome = RunOutcome::NothingMarked;
    if (session.MarkedCount >= 1 && session.MarkedCount <= kMostMarkedCases) {
        outcome = RunMarkedSlots(display);
    }
    return CheckMarks(display, outcome);
}

}  // namespace

void UseDynamicRun(DynamicRun& run) {
    InstalledDynamicRun() = &run;
}

std::string ClimateLabel() {
    session.PropertyValue
        .clear();  // so that a slot without its file does not take the last climate
    GetCaseProperty("CLIMATE", "FILE", session.PropertyValue);
    const std::string& climate = session.PropertyValue;
    const std::size_t mark = climate.find('_');
    if (mark == std::string::npos) {
        StopRun("the climate name \"" + climate + "\" in CLIMATE/FILE holds no \"_\"");
    }
    return Text(kClimateWord) + ":" + climate.substr(0, mark);
}

void CalculateSlot(const Slot& slot, const std::function<void(int month)>& afterMonth) {
    ActivateForRun(slot);
    ReadClimateFile();
    ReadHvacData();
    heatBalance.TdgMin = PropertyNumber("TDG", "TDGMIN");
    PrepareShapeConstants(slot.shape);
    for (int month = 1; month <= kMonths; ++month) {
        heatBalance.MonthHoursNow = heatBalance.MonthHours[static_cast<std::size_t>(month)];
        CalcMonthBalance(slot.shape, month);
        CalcGlazedSpaceTemperature();
        IncreaseProgress(1);
        CalcDemands();
        for (int step = 2; step < kStepsPerMonth; ++step) IncreaseProgress(1);
        afterMonth(month);
    }
}

RunOutcome Calculate_Click(RunDisplay& display) {
    if (session.RunInProgress) return RunOutcome::NothingChosen;
    session.RunInProgress = true;
    RunOutcome outcome = RunOutcome::Stopped;
    try {
        outcome = RunOnce(display);
    } catch (const RunError& error) {
        ClearAfterRunError(display);
        ShowMessage(std::string("Run-time error: ") + error.what(), kProgramTitle,
                    Icon::Exclamation);
    }
    ReactivateEditedSlot();
    session.RunInProgress = false;
    return outcome;
}

}  // namespace verandis
