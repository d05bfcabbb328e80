#include "results/diagrams.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

#include "app/program_text.h"
#include "calc/results.h"
#include "text/characters.h"

namespace verandis {
namespace {

/// Catalogue texts of the diagrams.
enum : int {
    kMeanText = 71,
    kPowerText = 110,
    kCaseText = 196,
    kMonthText = 198,
    kGlazedText = 203,
    kEnergyText = 262,
    kHeatPowerText = 263,
    kAirText = 266,
    kMinimumText = 270,
    kOutdoorText = 278,
    kJanuaryText = 401,
    kMaximumText = 600,
    kMaximumPowerText = 601,
    kHeatingText = 602,
    kCoolingText = 603,
    kHoursText = 604
};

enum class Form { Plain, LowerSecond, Frequency };

/// How a title is joined: text, sign, text, literal. Text 0 is nothing.
struct Wording {
    int first = 0;
    const char* between = "";
    int second = 0;
    const char* behind = "";
    Form form = Form::Plain;
};

enum class Horizontal { Months, Temperature, Hours };

/// Where a steady-state run has the values; null gives none.
struct Source {
    float MonthResult::*first = nullptr;
    float MonthResult::*second = nullptr;
    float divisor = 1;
};

/// Catalogue texts of the two quantities; 0 in a diagram of one quantity.
struct Pair {
    int first = 0;
    int second = 0;
};

struct Row {
    DiagramKind kind;
    const char* fileName;
    Wording title;  // of the vertical axis
    const char* unit;
    Wording horizontalTitle;
    Horizontal horizontal;
    Source source;
    Pair names;
    bool longLabel = false;  // the word for case stands in the label
};

using K = DiagramKind;
using M = MonthResult;
constexpr auto kMonths12 = Horizontal::Months;
constexpr auto kLine = Horizontal::Temperature;
constexpr auto kByHour = Horizontal::Hours;
constexpr Wording kMonth{kMonthText};
constexpr Wording kMonthAndPlace{kMonthText, " ", kGlazedText};
constexpr Wording kHours{kHoursText};
// The horizontal axis of both function diagrams, also of the mean's.
constexpr Wording kOutdoorMinimum{kMinimumText, " ", kOutdoorText, "(ºC)"};
constexpr Wording kTemperatures{kAirText, "", 0, "", Form::Frequency};
constexpr Wording kPowers{kHeatPowerText, "", 0, "", Form::Frequency};
constexpr Source kMinimum{&M::Tmin, &M::TempOut};
constexpr Source kMean{&M::Tmean, &M::TempOut};
constexpr Source kOutdoor{&M::TempOut};
constexpr Source kJanuaryMinimum{&M::Tmin};
constexpr Source kPower{&M::Ph, nullptr, 1000};
constexpr Pair kPlaces{kGlazedText, kOutdoorText};
constexpr Pair kHeatCool{kHeatingText, kCoolingText};

// In the order of DiagramKind. The first title alone has its second text in lower case.
// clang-format off
constexpr std::array<Row, kDiagramKinds> kInventory = {{
    {K::MinimumTemperature, "minimum_temperature",
     {kMinimumText, "-", kGlazedText, "", Form::LowerSecond}, "ºC",
     kMonth, kMonths12, kMinimum, kPlaces},
    {K::MeanTemperature, "mean_temperature",
     {kMeanText, "-", kGlazedText}, "(ºC)", kMonth, kMonths12, kMean, kPlaces},
    {K::MinimumSecond, "minimum_temperature_2",
     {kMinimumText, " ", kGlazedText}, "ºC", kMonthAndPlace, kMonths12, kMinimum, kPlaces, true},
    {K::MeanSecond, "mean_temperature_2",
     {kMeanText, " ", kGlazedText}, "ºC", kMonthAndPlace, kMonths12, kMean, kPlaces, true},
    {K::OutdoorMinimum, "outdoor_minimum",
     {kMinimumText, " ", kOutdoorText}, "ºC", kMonth, kMonths12, kOutdoor, {}},
    {K::OutdoorMean, "outdoor_mean",
     {kMeanText, " ", kOutdoorText}, "ºC", kMonth, kMonths12, kOutdoor, {}},
    {K::MinimumFunction, "minimum_function",
     {kMinimumText, " ", kGlazedText, "(ºC)"}, "ºC", kOutdoorMinimum, kLine, kJanuaryMinimum, {}},
    {K::MeanFunction, "mean_function",
     {kMeanText, " ", kGlazedText, "(ºC)"}, "ºC", kOutdoorMinimum, kLine, kJanuaryMinimum, {}},
    {K::PowerDemand, "power_demand",
     {kPowerText, " ", kGlazedText}, "kW", kMonth, kMonths12, kPower, {}},
    {K::PowerDemandSecond, "power_demand_2",
     {kPowerText, " ", kGlazedText}, "kW", kMonth, kMonths12, kPower, {}, true},
    {K::MaximumTemperature, "maximum_temperature",
     {kMaximumText, " ", kGlazedText}, "ºC", kMonth, kMonths12, {}, kPlaces},
    {K::TemperatureFrequency, "temperature_frequency",
     kTemperatures, "ºC", kHours, kByHour, {}, kPlaces},
    {K::MaximumPower, "maximum_power",
     {kMaximumPowerText, " ", kGlazedText}, "kW", kMonth, kMonths12, {}, kHeatCool},
    {K::PowerFrequency, "power_frequency",
     kPowers, "kW", kHours, kByHour, {}, kHeatCool},
    {K::Energy, "energy",
     {kEnergyText, " ", kGlazedText}, "kWh", kMonth, kMonths12, {}, kHeatCool},
}};
// clang-format on

constexpr bool InOrder() {
    for (int at = 0; at < kDiagramKinds; ++at) {
        if (static_cast<int>(kInventory[static_cast<std::size_t>(at)].kind) != at) return false;
    }
    return true;
}
static_assert(InOrder());

// Ends of the straight lines, in the order of their points; the axis just holds them.
constexpr double kLineStart = 20;
constexpr double kLineEnd = -21;

const Row& RowOf(DiagramKind kind) {
    return kInventory[static_cast<std::size_t>(kind)];
}

std::string Joined(const Wording& wording) {
    if (wording.form == Form::Frequency) return FrequencyCaption(wording.first);
    const std::string second = wording.second ? TextFor(wording.second, 1) : "";
    return TextFor(wording.first, 1) + wording.between +
           (wording.form == Form::LowerSecond ? LowerCase(second) : second) + wording.behind;
}

bool IsPower(const Row& row) {
    return row.unit[0] == 'k';
}

Diagram Empty(const Row& row) {
    Diagram diagram;
    diagram.kind = row.kind;
    diagram.verticalTitle = Joined(row.title);
    diagram.title = diagram.verticalTitle;
    if (row.horizontal == Horizontal::Temperature) {
        diagram.title += " = f( " + Joined({kMeanText, " ", kOutdoorText}) + " )";
    }
    diagram.unit = row.unit;
    diagram.horizontalTitle = Joined(row.horizontalTitle);
    diagram.months = row.horizontal == Horizontal::Months;
    diagram.decimals = IsPower(row) ? 2 : 1;
    return diagram;
}

/// The straight line of a case at the outdoor temperature x: through January's point, reaching the
/// building's temperature where it is as warm outdoors.
double LineAt(double x, const MonthResult& january, double building) {
    const double glazed = double(january.Tmin);
    const double outdoor = double(january.TempOut);
    if (building == outdoor) return glazed;
    return glazed + (x - outdoor) * (building - glazed) / (building - outdoor);
}

std::vector<DiagramPoint> PointsOf(const Row& row, float MonthResult::*value,
                                   std::size_t position) {
    const RunResults::Year& year = runResults.MonthResults[position];
    std::vector<DiagramPoint> points;
    if (row.horizontal == Horizontal::Temperature) {
        const double building = double(runResults.CaseResults[position].TempB);
        for (const double x : {kLineStart, kLineEnd}) {
            points.push_back({x, LineAt(x, year[1], building)});
        }
        return points;
    }
    for (std::size_t month = 1; month <= kMonths; ++month) {
        points.push_back({double(month), double(year[month].*value) / double(row.source.divisor)});
    }
    return points;
}

/// Puts the words on a series that has its slot, number, quantity and points.
void Name(const Row& row, DiagramSeries& series) {
    const auto shape = static_cast<std::size_t>(series.slot.shape);
    const auto caseNo = static_cast<std::size_t>(series.slot.caseNo);
    series.label = row.longLabel ? Text(kCaseText) + " " : "";
    series.label += WordsOf(series.slot.shape).letter;
    series.label += "-" + std::to_string(series.slot.caseNo);
    series.climate = runResults.SlotClimateLabels[shape][caseNo];
    const int quantity = series.second ? row.names.second : row.names.first;
    series.quantity = quantity ? Text(quantity) : "";
}

void AddSeries(const Row& row, const DiagramCase& each, bool second, Diagram& diagram) {
    DiagramSeries series;
    series.slot = each.slot;
    series.number = each.number;
    series.second = second;
    series.points = PointsOf(row, second ? row.source.second : row.source.first,
                             static_cast<std::size_t>(each.number));
    Name(row, series);
    diagram.series.push_back(std::move(series));
}

/// The scale over one coordinate of all points.
DiagramAxis ScaleOf(const Diagram& diagram, double DiagramPoint::*coordinate, bool fromZero) {
    double least = std::numeric_limits<double>::infinity();
    double most = -least;
    for (const DiagramSeries& series : diagram.series) {
        for (const DiagramPoint& point : series.points) {
            least = std::min(least, point.*coordinate);
            most = std::max(most, point.*coordinate);
        }
    }
    return NiceAxis(least, most, fromZero);
}

void SetScales(const Row& row, Diagram& diagram) {
    diagram.axis = ScaleOf(diagram, &DiagramPoint::y, IsPower(row));
    switch (row.horizontal) {
        case Horizontal::Months: break;
        case Horizontal::Temperature:
            diagram.horizontal = NiceAxis(kLineEnd, kLineStart, false);
            break;
        case Horizontal::Hours:
            diagram.horizontal = ScaleOf(diagram, &DiagramPoint::x, true);
            break;
    }
}

DynamicSeriesSource& DynamicSource() {
    static DynamicSeriesSource source;
    return source;
}

}  // namespace

std::vector<DiagramCase> DiagramCases() {
    std::vector<DiagramCase> cases;
    for (const Slot& slot : AllSlots()) {
        const auto count = runResults.CaseResultCount[static_cast<std::size_t>(slot.shape)]
                                                     [static_cast<std::size_t>(slot.caseNo)];
        if (count <= 0 || cases.size() == kMostMarkedCases) continue;
        cases.push_back({slot, static_cast<int>(cases.size()) + 1});
    }
    return cases;
}

Diagram SteadyDiagram(DiagramKind kind) {
    const Row& row = RowOf(kind);
    Diagram diagram = Empty(row);
    for (const DiagramCase& each : DiagramCases()) {
        if (row.source.first) AddSeries(row, each, false, diagram);
        if (row.source.second) AddSeries(row, each, true, diagram);
    }
    SetScales(row, diagram);
    return diagram;
}

void UseDynamicSeries(DynamicSeriesSource source) {
    DynamicSource() = std::move(source);
}

Diagram DynamicDiagram(DiagramKind kind, bool firstOnly) {
    const Row& row = RowOf(kind);
    Diagram diagram = Empty(row);
    if (DynamicSource()) {
        for (DiagramSeries& series : DynamicSource()(kind)) {
            if (firstOnly && series.second) continue;
            Name(row, series);
            diagram.series.push_back(std::move(series));
        }
    }
    SetScales(row, diagram);
    return diagram;
}

bool HasTwoQuantities(DiagramKind kind) {
    return RowOf(kind).names.second != 0;
}

int QuantityText(DiagramKind kind, bool second) {
    return second ? RowOf(kind).names.second : RowOf(kind).names.first;
}

const char* DiagramFileName(DiagramKind kind) {
    return RowOf(kind).fileName;
}

std::string MonthName(int month) {
    return Text(kJanuaryText + month - 1);
}

}  // namespace verandis
