#include "climate/synthetic_year.h"

#include <algorithm>
#include <cmath>

#include "climate/noise.h"
#include "climate/sky_temperature.h"
#include "climate/synthetic_sun.h"
#include "climate/synthetic_temperature.h"

namespace verandis {
namespace {

/// Dew point at noon of each day: the lowest temperature of the day, as is usual where humidity was
/// not measured (Allen, R. G. et al.: FAO Irrigation and Drainage Paper 56, 1998, equation 48), and
/// somewhat below it on fair days.
std::vector<double> DewPointsOfDays(const std::vector<double>& temperatures,
                                    const std::vector<double>& fairness) {
    std::vector<double> dewPoints;
    for (std::size_t day = 0; day < kDaysOfYear; ++day) {
        const auto first = temperatures.begin() + static_cast<std::ptrdiff_t>(day * 24);
        dewPoints.push_back(*std::min_element(first, first + 24) - 0.3 - 1.5 * fairness[day]);
    }
    return dewPoints;
}

/// Value at an hour between the values at the noons of two days; the year closes on itself.
double BetweenNoons(const std::vector<double>& days, std::size_t hour) {
    const std::size_t sinceNoon = hour + kHoursOfYear - 12;
    const std::size_t low = sinceNoon / 24 % kDaysOfYear;
    const double part = (static_cast<double>(sinceNoon % 24) + 0.5) / 24;
    return days[low] + part * (days[(low + 1) % kDaysOfYear] - days[low]);
}

/// Wind of an hour: spells of some days, and more of it in the afternoon.
double WindOf(double mean, double spell, std::size_t hour) {
    const double clock = static_cast<double>(hour % 24) + 0.5;
    const double daily = 1 + 0.15 * std::cos(15 * (clock - 14) * kRadiansPerDegree);
    return mean * daily * std::max(0.2, 1 + 0.4 * spell);
}

}  // namespace

SyntheticYear MakeSyntheticYear(const NormalsTable& table, const std::vector<SunHour>& sun) {
    SyntheticYear result;
    result.year.site = table.site;
    result.year.source = table.source;
    Noise noise(table.base);
    const SyntheticSunResult light = MakeSyntheticSun(table, sun, noise);
    result.fault = light.fault;
    if (result.fault) return result;
    const SyntheticTemperatures air = MakeSyntheticTemperatures(table, light.year.fairness, noise);
    result.fault = air.fault;
    if (result.fault) return result;

    const std::vector<double> dewPoints = DewPointsOfDays(air.hours, light.year.fairness);
    const std::vector<double> windSpells = noise.Series(kDaysOfYear, 0.6, 0.8);
    for (std::size_t hour = 0; hour < kHoursOfYear; ++hour) {
        WeatherHour weather;
        weather.temperature = air.hours[hour];
        weather.directNormal = light.year.hours[hour].directNormal;
        weather.diffuse = light.year.hours[hour].diffuse;
        const double dewPoint = std::min(weather.temperature, BetweenNoons(dewPoints, hour));
        weather.humidity = RelativeHumidity(weather.temperature, dewPoint);
        weather.wind = WindOf(table.wind, BetweenNoons(windSpells, hour), hour);
        const double cloud = BetweenNoons(light.year.cloud, hour);
        weather.skyTemperature = SkyTemperature(weather.temperature, dewPoint, cloud,
                                                static_cast<double>(hour % 24) + 0.5);
        result.year.hours.push_back(weather);
    }
    return result;
}

}  // namespace verandis
