#pragma once

#include <string>

#include "results/diagrams.h"

// What is told of a diagram in words and figures. Figures on screen carry the session's decimal
// sign, those in CSV a point.

namespace verandis {

/// The diagram with the series that are shown; scales stay.
Diagram WithShown(Diagram diagram, bool first, bool second);

/// Vertical title and unit as they stand at the axis; a title that ends in the unit has it once.
std::string VerticalAxisTitle(const Diagram& diagram);

/// The unit without its brackets, for a value.
std::string ValueUnit(const Diagram& diagram);

/// "U-1 Glazed space, Climate:GOTEBORG"; what is empty is left out.
std::string LegendText(const DiagramSeries& series);

/// One point in words: "U-1 Glazed space, Jan: -3.1 ºC". `at` counts from 0 and must be in range.
std::string PointText(const Diagram& diagram, const DiagramSeries& series, std::size_t at);

/// Title and the range of each series, for those who hear a diagram; without series it says so.
std::string DiagramSummary(const Diagram& diagram);

/// Comma-separated values: a head, then one line a month (by name) or horizontal value, one column
/// a series; lines ended by a line feed.
std::string DiagramCsv(const Diagram& diagram);

/// January's outdoor temperature of each calculated case in one line; empty without results.
std::string OutdoorText();

}  // namespace verandis
