#pragma once

#include <array>
#include <string>
#include <vector>

#include "case/shapes.h"

// The design guide: holds the months of a calculated case against what the designer demands, asks
// him on the way, and ends in one verdict.

namespace verandis {

inline constexpr const char* kGuideCaption = "Design guide";  // in every language
inline constexpr int kGuideFigureCount = 5;

/// The figures that are judged, in the order of the window.
enum class GuideFigure { Tmin, Tmean, Ph, Eh, Ec };

/// A row of the list of cases. Row i (from 0) stands at run position i + 1.
struct GuideRow {
    Slot slot;
    std::string caption;  // "UShape / Case 1"
};

/// One row for each slot that has results, in the order of the run; at most as many as a run has.
std::vector<GuideRow> GuideRows();

/// What the window shows of a figure.
struct FigureState {
    bool judgedLabel = false;   // blue ground of the figure's label, else the plain one
    bool judgedResult = false;  // the same for the text of the result
    std::string result;         // "Tmin < Tmin.dem", empty while it was not judged
};

enum class Conclusion { None, Redesign, Accepted };  // hidden, red, green

/// What the window shows of the guide's way so far.
struct GuideState {
    std::string Identification;  // "Case / UShape 1"
    std::array<FigureState, kGuideFigureCount> figures;
    Conclusion conclusion = Conclusion::None;
    std::string Redesign;  // text of the conclusion
};

/// Where the guide shows its way and puts its questions.
class GuideDesk {
public:
    virtual ~GuideDesk() = default;

    /// Called when something has changed and before each question and message.
    virtual void Show(const GuideState& state) = 0;

    /// The designer's answer to a question of yes or no.
    virtual bool Accepts(const std::string& question) = 0;
};

/// Walks through row `row` (from 0) of the list and sets the case's `Verdict`: "T" redesign, "F"
/// accepted. One way leaves the verdict as it was: the designer does not want the glazed space
/// cooled. False, and nothing done, when there is no such row (any more).
bool RunGuide(std::size_t row, GuideDesk& desk);

/// A figure of a case as words, for window and paper.
struct FigureWords {
    std::string label;   // catalogue's name
    std::string symbol;  // "Eh, heating": how the result names it
    std::string demand;  // "5 °C", or that there is none
    std::string worst;   // "-3,2 °C (Jan)": the month that is furthest from the demand
};

/// Words of one figure of a row; demand and month stay empty when there is no such row.
FigureWords WordsOfFigure(GuideFigure figure, std::size_t row);

/// What stands on the window and on paper: the way so far and the figures behind it.
struct GuideSheet {
    GuideState state;
    std::string climate;  // label of the climate that the case was calculated with
    std::array<FigureWords, kGuideFigureCount> figures;
};

/// The sheet of a row before its walk; without a climate when there is no such row.
GuideSheet SheetOfRow(std::size_t row);

}  // namespace verandis
