#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "case/shapes.h"
#include "results/diagram_axis.h"

// The diagrams of a run as plain data, without a window: titles in the session's language, scales,
// and one series a calculated case and quantity.

namespace verandis {

/// All diagrams. The first ten are filled by a steady-state run, in this order; the others, and the
/// first ones too, by a dynamic run.
enum class DiagramKind {
    MinimumTemperature,
    MeanTemperature,
    MinimumSecond,
    MeanSecond,
    OutdoorMinimum,
    OutdoorMean,
    MinimumFunction,
    MeanFunction,
    PowerDemand,
    PowerDemandSecond,
    MaximumTemperature,
    TemperatureFrequency,
    MaximumPower,
    PowerFrequency,
    Energy
};
inline constexpr int kDiagramKinds = 15;
inline constexpr int kSteadyDiagrams = 10;

struct DiagramPoint {
    double x = 0;  // month 1 to 12, or the value on the horizontal axis
    double y = 0;
};

/// One quantity of one case.
struct DiagramSeries {
    Slot slot;
    int number = 0;        // running number of the case among those with results, 1 to 4
    bool second = false;   // the second quantity of a pair
    std::string label;     // "U-1"; in a second diagram with the word for case in front
    std::string climate;   // as the run stored it, "Climate:GOTEBORG"
    std::string quantity;  // "Glazed space"; empty in a diagram of one quantity
    std::vector<DiagramPoint> points;
};

struct Diagram {
    DiagramKind kind = DiagramKind::MinimumTemperature;
    std::string title;
    std::string verticalTitle;
    std::string unit;  // as it stands beside the title, "ºC" or "(ºC)"
    std::string horizontalTitle;
    bool months = true;  // the horizontal axis holds the months by name
    DiagramAxis horizontal{1, 12, 1};
    DiagramAxis axis;  // over all series, shown or not: hiding one never moves the others
    int decimals = 1;  // of a value that is told
    std::vector<DiagramSeries> series;
};

/// A slot with results and its running number, which is its run position too.
struct DiagramCase {
    Slot slot;
    int number = 0;
};

/// The slots with results, in the order of the run; never more than the tables hold.
std::vector<DiagramCase> DiagramCases();

/// A diagram of the last steady-state run. Those of a dynamic run, and all when no slot has
/// results, come without series.
Diagram SteadyDiagram(DiagramKind kind);

/// Gives the series of a dynamic run; slot, number, quantity flag and points are enough.
using DynamicSeriesSource = std::function<std::vector<DiagramSeries>(DiagramKind)>;

/// Sets where dynamic diagrams get their series from. Until then they have none.
void UseDynamicSeries(DynamicSeriesSource source);

/// A diagram of the last dynamic run. `firstOnly` leaves out the second quantity, to compare the
/// glazed spaces of two cases.
Diagram DynamicDiagram(DiagramKind kind, bool firstOnly = false);

/// True when the diagram has a pair of quantities, each with its own series.
bool HasTwoQuantities(DiagramKind kind);

/// Catalogue text of the first or second quantity of a pair; 0 when there is none.
int QuantityText(DiagramKind kind, bool second);

/// Name for a file of the diagram: ASCII, without an ending.
const char* DiagramFileName(DiagramKind kind);

/// Names of the months 1 to 12.
std::string MonthName(int month);

}  // namespace verandis
