#pragma once

#include <array>
#include <string>

#include "results/diagrams.h"

namespace verandis {

/// A box that shows or hides the series of one quantity.
struct SeriesBox {
    const char* name = nullptr;  // null: no box
    bool atStart = false;        // also after a dynamic run and when its tab is clicked
};

/// One page of the tab control: its diagrams, the first shown at first, and its pair of boxes for
/// the first and second quantity.
struct DiagramTab {
    int text;        // catalogue text of its caption
    bool frequency;  // the caption is the name of a frequency diagram
    bool steady;     // can be chosen for a steady-state run
    bool dynamic;    // can be chosen for a dynamic run
    std::array<DiagramKind, 3> kinds;
    std::size_t count;  // how many of `kinds` are used
    SeriesBox first;
    SeriesBox second;
};

inline constexpr std::size_t kDiagramTabCount = 9;

/// The pages in their order.
// clang-format off
inline constexpr std::array<DiagramTab, kDiagramTabCount> kDiagramTabs = {{
    {607, false, true, false,
     {DiagramKind::MinimumFunction, DiagramKind::MeanFunction}, 2, {}, {}},
    {270, false, true, true,
     {DiagramKind::MinimumTemperature, DiagramKind::MinimumSecond, DiagramKind::OutdoorMinimum}, 3,
     {"MinGlazedSpacecheck", true}, {"MinOutDoorCheck", false}},
    {110, false, true, false,
     {DiagramKind::PowerDemand, DiagramKind::PowerDemandSecond}, 2, {}, {}},
    {600, false, false, true,
     {DiagramKind::MaximumTemperature}, 1,
     {"MaxGlazedSpaceCheck", true}, {"MaxOutdoorCheck", false}},
    {71, false, true, true,
     {DiagramKind::MeanTemperature, DiagramKind::MeanSecond, DiagramKind::OutdoorMean}, 3,
     {"MeanGlazedSpaceCheck", true}, {"MeanOutdoorCheck", false}},
    {266, true, false, true,
     {DiagramKind::TemperatureFrequency}, 1,
     {"GlazedSpaceTempCheck", true}, {"OutdoorTempCheck", false}},
    {601, false, false, true,
     {DiagramKind::MaximumPower}, 1, {"MPHCheck", true}, {"MPCCheck", true}},
    {263, true, false, true,
     {DiagramKind::PowerFrequency}, 1, {"PDHCheck", true}, {"PDCCheck", true}},
    {262, false, false, true,
     {DiagramKind::Energy}, 1, {"EDHCheck", true}, {"EDCCheck", true}},
}};
// clang-format on

/// Caption of a page in the session's language.
std::string DiagramTabCaption(const DiagramTab& tab);

/// Which quantities of a diagram are shown at first, by its page's boxes.
struct ShownQuantities {
    bool first = true;
    bool second = true;
};
ShownQuantities ShownAtStart(DiagramKind kind);

/// True when the page can be chosen under the calculation, a value of `CalcMode`.
bool IsTabEnabled(const DiagramTab& tab, float calcMode);

}  // namespace verandis
