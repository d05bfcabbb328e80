#include "climate/climate_writer.h"

#include <cmath>

#include "climate/climate_input.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "text/numbers.h"

namespace verandis {
namespace {

constexpr int kDataYear = 2001;  // any year without a leap day; weather years mix their months

/// One decimal where that says it all: time zones of quarter hours need two.
std::string MeridianText(double meridian) {
    const bool tenths = std::abs(meridian * 10 - std::round(meridian * 10)) < 1e-6;
    return FixedText(meridian, tenths ? 1 : 2);
}

void AddBlocks(const ClimateYear& year, std::size_t kind, std::vector<std::string>& lines) {
    for (std::size_t at = 0; at < year.planes.size(); ++at) {
        const SolarPlane& plane = year.planes[at];
        lines.push_back(std::to_string(kind) + "\t" + std::to_string(plane.tilt) + "\t" +
                        std::to_string(plane.direction));
        std::string values;
        for (std::size_t month = 0; month < 12; ++month) {
            if (month > 0) values += "\t";
            values += FixedText(year.sums[at][kind][month], 2);
        }
        lines.push_back(values);
    }
}

std::string HourRow(int month, int day, int hour, const WeatherHour& weather) {
    std::string row = std::to_string(kDataYear);
    for (const int part : {month, day, hour}) row += "\t" + std::to_string(part);
    const auto add = [&](double value, int decimals) { row += "\t" + FixedText(value, decimals); };
    add(weather.temperature, 2);
    add(weather.directNormal, 1);
    add(weather.diffuse, 1);
    add(weather.humidity, 1);
    add(weather.wind, 1);
    add(weather.skyTemperature, 1);
    return row;
}

}  // namespace

std::vector<std::string> MonthlyFileLines(const ClimateYear& year) {
    const ClimateSite& site = year.weather.site;
    std::vector<std::string> lines;
    lines.push_back("Monthly climate of " + HeaderText(site.place) + ", latitude " +
                    FixedText(site.latitude, 2) + ", longitude " + FixedText(site.longitude, 2));
    lines.push_back("Source " + HeaderText(year.weather.source));
    lines.push_back(
        "Month, mean temperature C, mean daily minimum C, global radiation kWh/m2; then panes, "
        "tilt, "
        "direction (S 0, E 90, N 180, W 270) and radiation kWh/m2 of the months");
    for (std::size_t month = 0; month < 12; ++month) {
        const MonthSummary& summary = year.months[month];
        lines.push_back(std::to_string(month + 1) + "\t" + FixedText(summary.mean, 2) + "\t" +
                        FixedText(summary.meanDailyMinimum, 2) + "\t" +
                        FixedText(summary.horizontal, 3));
    }
    for (std::size_t kind = 0; kind < kPlaneKinds; ++kind) AddBlocks(year, kind, lines);
    lines.push_back("End");
    return lines;
}

std::vector<std::string> HourlyFileLines(const WeatherYear& year) {
    const std::string first = std::to_string(kDataYear);
    std::vector<std::string> lines{
        "Hourly climate data, source " + HeaderText(year.source),
        "Place: " + HeaderText(year.site.place),
        "Latitude: " + FixedText(year.site.latitude, 2),
        "Longitude: " + FixedText(year.site.longitude, 2),
        "Time meridian: " + MeridianText(year.site.timeMeridian),
        "1:st day: " + first + ".1.1",
        "Last day: " + first + ".12.31",
        "Columns: year, month, day, hour (1 to 24, local standard time, mean of the hour), outdoor "
        "temperature C, direct normal radiation W/m2, diffuse horizontal radiation W/m2, relative "
        "humidity %, wind speed m/s, sky temperature C",
        "Data:"};
    lines.reserve(lines.size() + kHoursOfYear);
    std::size_t at = 0;
    for (int month = 1; month <= 12; ++month) {
        for (int day = 1; day <= kMonthDays[std::size_t(month - 1)]; ++day) {
            for (int hour = 1; hour <= 24; ++hour) {
                lines.push_back(HourRow(month, day, hour, year.hours[at++]));
            }
        }
    }
    return lines;
}

std::string WriteClimatePair(const ClimateYear& year, const std::string& base,
                             const std::string& folder) {
    if (!MakeFolders(folder)) return folder;
    const std::string monthly = JoinPath(folder, base + "S.dat");
    const std::string hourly = JoinPath(folder, base + "D.cli");
    if (!WriteLines(hourly, HourlyFileLines(year.weather))) {
        DeleteFile(hourly);
        return hourly;
    }
    if (!WriteLines(monthly, MonthlyFileLines(year))) {
        DeleteFile(monthly);
        DeleteFile(hourly);
        return monthly;
    }
    return "";
}

}  // namespace verandis
