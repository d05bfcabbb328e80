#include "results/diagram_texts.h"

#include <algorithm>
#include <set>

#include "app/program_text.h"
#include "app/session.h"
#include "calc/results.h"
#include "text/csv.h"
#include "text/numbers.h"

namespace verandis {
namespace {

enum : int { kNothingText = 619, kJanuaryOutdoorText = 622 };

std::string ShownNumber(double value, int decimals) {
    return PointToDecimal(FixedText(value, decimals), session.Decimals);
}

std::string CaseAndQuantity(const DiagramSeries& series) {
    return series.quantity.empty() ? series.label : series.label + " " + series.quantity;
}

std::string RangeText(const Diagram& diagram, const DiagramSeries& series) {
    const auto [least, most] = std::minmax_element(
        series.points.begin(), series.points.end(),
        [](const DiagramPoint& left, const DiagramPoint& right) { return left.y < right.y; });
    if (least == series.points.end()) return CaseAndQuantity(series);
    return CaseAndQuantity(series) + ": " + ShownNumber(least->y, diagram.decimals) + " – " +
           ShownNumber(most->y, diagram.decimals) + " " + ValueUnit(diagram);
}

std::string PlaceText(const Diagram& diagram, double x) {
    return diagram.months ? MonthName(static_cast<int>(x)) : TrimmedNumberText(x);
}

std::string CsvNumber(double value) {
    return TrimmedNumberText(static_cast<float>(value));
}

/// The series' value at x; empty when it has none.
std::string CsvValueAt(const DiagramSeries& series, double x) {
    const auto found = std::find_if(series.points.begin(), series.points.end(),
                                    [x](const DiagramPoint& point) { return point.x == x; });
    return found == series.points.end() ? "" : CsvNumber(found->y);
}

}  // namespace

Diagram WithShown(Diagram diagram, bool first, bool second) {
    std::erase_if(diagram.series,
                  [&](const DiagramSeries& series) { return series.second ? !second : !first; });
    return diagram;
}

std::string VerticalAxisTitle(const Diagram& diagram) {
    if (diagram.verticalTitle.find(diagram.unit) != std::string::npos) return diagram.verticalTitle;
    return diagram.verticalTitle + " " + diagram.unit;
}

std::string ValueUnit(const Diagram& diagram) {
    std::string unit = diagram.unit;
    std::erase_if(unit, [](char c) { return c == '(' || c == ')'; });
    return unit;
}

std::string LegendText(const DiagramSeries& series) {
    return CaseAndQuantity(series) + (series.climate.empty() ? "" : ", " + series.climate);
}

std::string PointText(const Diagram& diagram, const DiagramSeries& series, std::size_t at) {
    const DiagramPoint& point = series.points[at];
    std::string place = PointToDecimal(PlaceText(diagram, point.x), session.Decimals);
    if (!diagram.months) place = diagram.horizontalTitle + " " + place;
    return CaseAndQuantity(series) + ", " + place + ": " + ShownNumber(point.y, diagram.decimals) +
           " " + ValueUnit(diagram);
}

std::string DiagramSummary(const Diagram& diagram) {
    std::string summary = diagram.title + ". ";
    if (diagram.series.empty()) return summary + Text(kNothingText);
    for (const DiagramSeries& series : diagram.series) {
        if (&series != &diagram.series.front()) summary += "; ";
        summary += RangeText(diagram, series);
    }
    return summary;
}

std::string DiagramCsv(const Diagram& diagram) {
    std::string text = CsvText(diagram.horizontalTitle);
    std::set<double> places;
    for (const DiagramSeries& series : diagram.series) {
        text += "," + CsvText(LegendText(series) + " (" + ValueUnit(diagram) + ")");
        for (const DiagramPoint& point : series.points) places.insert(point.x);
    }
    text += "\n";
    for (const double x : places) {
        text += CsvText(PlaceText(diagram, x));
        for (const DiagramSeries& series : diagram.series) text += "," + CsvValueAt(series, x);
        text += "\n";
    }
    return text;
}

std::string OutdoorText() {
    std::string text;
    for (const DiagramCase& each : DiagramCases()) {
        const auto position = static_cast<std::size_t>(each.number);
        const float outdoor = runResults.MonthResults[position][1].TempOut;
        text += text.empty() ? Text(kJanuaryOutdoorText) + ": " : "; ";
        text += WordsOf(each.slot.shape).letter;
        text +=
            "-" + std::to_string(each.slot.caseNo) + " " + ShownNumber(double(outdoor), 1) + " ºC";
    }
    return text;
}

}  // namespace verandis
