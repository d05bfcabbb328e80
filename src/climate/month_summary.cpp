#include "climate/month_summary.h"

#include <algorithm>

#include "text/numbers.h"

namespace verandis {
namespace {

MonthSummary TemperaturesOf(const std::vector<WeatherHour>& hours, int month) {
    const MonthSpan span = HoursOfMonth(month);
    MonthSummary result;
    result.lowest = result.highest = hours[std::size_t(span.first)].temperature;
    for (int day = span.first; day < span.end; day += 24) {
        double low = hours[std::size_t(day)].temperature;
        double high = low;
        for (int hour = day; hour < day + 24; ++hour) {
            const double temperature = hours[std::size_t(hour)].temperature;
            result.mean += temperature;
            low = std::min(low, temperature);
            high = std::max(high, temperature);
        }
        result.meanDailyMinimum += low;
        result.meanDailyMaximum += high;
        result.lowest = std::min(result.lowest, low);
        result.highest = std::max(result.highest, high);
    }
    const double count = span.end - span.first;
    result.mean /= count;
    result.meanDailyMinimum /= count / 24;
    result.meanDailyMaximum /= count / 24;
    return result;
}

struct Face {
    SolarPlane plane;
    double MonthSummary::*sum;
};
constexpr Face kFaces[] = {
    {{0, kHorizontalDirection}, &MonthSummary::horizontal},
    {{90, 180}, &MonthSummary::north},
    {{90, 90}, &MonthSummary::east},
    {{90, 0}, &MonthSummary::south},
    {{90, 270}, &MonthSummary::west},
};

/// A column of the table; the last ones are sums over the year.
struct TableColumn {
    const char* title;
    const char* unit;
    double MonthSummary::*value;
    int decimals;
};
constexpr TableColumn kColumns[] = {
    {"Mean", "C", &MonthSummary::mean, 2},
    {"Lowest", "C", &MonthSummary::lowest, 1},
    {"Highest", "C", &MonthSummary::highest, 1},
    {"Horizontal", "kWh/m2", &MonthSummary::horizontal, 1},
    {"North", "kWh/m2", &MonthSummary::north, 1},
    {"East", "kWh/m2", &MonthSummary::east, 1},
    {"South", "kWh/m2", &MonthSummary::south, 1},
    {"West", "kWh/m2", &MonthSummary::west, 1},
};

std::string RightAligned(const std::string& text, std::size_t width) {
    return text.size() < width ? std::string(width - text.size(), ' ') + text : text;
}

MonthSummary YearOf(const std::array<MonthSummary, 12>& months) {
    MonthSummary year = months[0];
    year.mean = 0;
    for (const Face& face : kFaces) year.*face.sum = 0;
    for (std::size_t month = 0; month < 12; ++month) {
        year.mean += months[month].mean * kMonthDays[month] / kDaysOfYear;
        year.lowest = std::min(year.lowest, months[month].lowest);
        year.highest = std::max(year.highest, months[month].highest);
        for (const Face& face : kFaces) year.*face.sum += months[month].*face.sum;
    }
    return year;
}

}  // namespace

ClimateYear SummarizeYear(WeatherYear weather, const std::vector<SunHour>& sun, SkyModel model) {
    ClimateYear year;
    year.planes = TabulatedPlanes();
    year.sums = SumPlanes(weather, sun, model, year.planes);
    for (int month = 0; month < 12; ++month) {
        year.months[std::size_t(month)] = TemperaturesOf(weather.hours, month);
    }
    for (std::size_t plane = 0; plane < year.planes.size(); ++plane) {
        for (const Face& face : kFaces) {
            if (year.planes[plane].tilt != face.plane.tilt ||
                year.planes[plane].direction != face.plane.direction) {
                continue;
            }
            for (std::size_t month = 0; month < 12; ++month) {
                year.months[month].*face.sum = year.sums[plane][0][month];
            }
        }
    }
    year.weather = std::move(weather);
    return year;
}

std::vector<std::string> MonthTable(const std::array<MonthSummary, 12>& months) {
    constexpr std::size_t kWidth = 11;
    std::string titles = "Month";
    std::string units = "     ";
    for (const TableColumn& column : kColumns) {
        titles += RightAligned(column.title, kWidth);
        units += RightAligned(column.unit, kWidth);
    }
    std::vector<std::string> lines{titles, units};
    const auto add = [&](const std::string& name, const MonthSummary& month) {
        std::string line = RightAligned(name, 5);
        for (const TableColumn& column : kColumns) {
            line += RightAligned(FixedText(month.*column.value, column.decimals), kWidth);
        }
        lines.push_back(line);
    };
    for (std::size_t month = 0; month < 12; ++month) add(std::to_string(month + 1), months[month]);
    add("Year", YearOf(months));
    return lines;
}

}  // namespace verandis
