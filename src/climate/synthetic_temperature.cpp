#include "climate/synthetic_temperature.h"

#include <algorithm>
#include <cmath>

#include "climate/sun_position.h"

namespace verandis {
namespace {

constexpr double kTolerance = 0.001;  // C
constexpr int kMostRounds = 150;

/// A place between two entries of a ring of days or months.
struct Between {
    std::size_t low = 0;
    std::size_t high = 0;
    double part = 0;

    template <class Values>
    double Of(const Values& values) const {
        return values[low] + part * (values[high] - values[low]);
    }
};

Between OnRing(double place, int count) {
    const double whole = std::floor(place);
    const auto low = (static_cast<int>(whole) + count) % count;
    return {std::size_t(low), std::size_t((low + 1) % count), place - whole};
}

/// The hours' places between the middles of the months and between the noons of the days.
struct HourPlace {
    Between months;
    Between days;
    double course = 0;  // of the day: 0 at the lowest, 1 at the highest, before it is bent
};

/// Course of the day. The lowest is taken at sunrise, the highest some hours after noon, the two
/// joined by half waves of a cosine.
double CourseOfDay(const ClimateSite& site, int day, double clock) {
    const YearlySun sun = YearlySunAt(site, day, 12);
    const double noon = 12 - HourAngle(site, 12, sun.equationOfTime) / kRadiansPerDegree / 15;
    const double sunset = SunsetAngle(site.latitude, sun.declination) / kRadiansPerDegree;
    const double half = std::clamp(sunset, 60.0, 120.0) / 15;
    const double lowest = noon - half;
    const double highest = noon + 1.5 + 0.2 * half;
    const double sinceLowest = clock - lowest - 24 * std::floor((clock - lowest) / 24);
    const double rise = highest - lowest;
    const double turn =
        sinceLowest < rise ? sinceLowest / rise : 1 + (sinceLowest - rise) / (24 - rise);
    return (1 - std::cos(180 * turn * kRadiansPerDegree)) / 2;
}

std::vector<HourPlace> PlacesOfHours(const ClimateSite& site) {
    std::vector<HourPlace> places;
    int month = 0;
    for (int hour = 0; hour < kHoursOfYear; ++hour) {
        if (hour >= HoursOfMonth(month).end) ++month;
        const MonthSpan span = HoursOfMonth(month);
        const double monthPlace = month + (hour + 0.5 - span.first) / (span.end - span.first) - 0.5;
        places.push_back({OnRing(monthPlace, 12), OnRing((hour + 0.5) / 24 - 0.5, kDaysOfYear),
                          CourseOfDay(site, hour / 24, hour % 24 + 0.5)});
    }
    return places;
}

/// What the months are fitted by. Between the middles of months the figures run evenly, so that no
/// step stands at midnight of the last day.
struct MonthFit {
    std::array<double, 12> middle{};  // C
    std::array<double, 12> swing{};   // K, from lowest to highest of a day
    std::array<double, 12> bend{};    // exponent of the course: above 1 for long cold nights
};

struct MonthMeans {
    double mean = 0;
    double dailyMinimum = 0;
    double dailyMaximum = 0;
};

MonthMeans MeansOfMonth(const std::vector<double>& hours, int month) {
    const MonthSpan span = HoursOfMonth(month);
    MonthMeans means;
    for (int hour = span.first; hour < span.end; hour += 24) {
        const auto day = hours.begin() + hour;
        const auto [low, high] = std::minmax_element(day, day + 24);
        means.dailyMinimum += *low;
        means.dailyMaximum += *high;
        for (auto each = day; each != day + 24; ++each) means.mean += *each / 24;
    }
    const double days = (span.end - span.first) / 24.0;
    return {means.mean / days, means.dailyMinimum / days, means.dailyMaximum / days};
}

/// Day by day departures: K above the month's mean, and the factor of the swing.
struct DayMoods {
    std::vector<double> warmth;
    std::vector<double> swing;
};

DayMoods MoodsOfDays(const NormalsTable& table, const std::vector<double>& fairness, Noise& noise) {
    const std::vector<double> spells = noise.Series(kDaysOfYear, 0.8, 0.6);
    DayMoods moods;
    int month = 0;
    for (int day = 0; day < kDaysOfYear; ++day) {
        if (day * 24 >= HoursOfMonth(month).end) ++month;
        const MonthNormals& normals = table.months[std::size_t(month)];
        const double range = normals.dailyMaximum - normals.dailyMinimum;
        // Cold places and months vary more from day to day; mild coasts hardly more than they
        // swing, the tropics less.
        const double northerly = std::clamp(std::abs(table.site.latitude) / 35, 0.3, 1.0);
        const double deviation =
            std::min(0.9 * range, northerly * std::clamp(3.6 - 0.1 * (normals.mean - 5), 2.4, 6.0));
        const double fair = 2 * fairness[std::size_t(day)] - 1;
        const double summer =
            YearlySunAt(day).declination / 0.409 * (table.site.latitude < 0 ? -1 : 1);
        const double spell = std::clamp(spells[std::size_t(day)], -2.6, 2.6);
        moods.warmth.push_back(deviation * (0.9 * spell + 0.7 * summer * fair));
        moods.swing.push_back(1 + 0.45 * fair);
    }
    return moods;
}

std::vector<double> HoursOf(const MonthFit& fit, const DayMoods& moods, double spellShare,
                            const std::vector<HourPlace>& places) {
    std::vector<double> hours;
    hours.reserve(places.size());
    for (const HourPlace& place : places) {
        const double course = std::pow(place.course, place.months.Of(fit.bend));
        const double swing = place.months.Of(fit.swing) * place.days.Of(moods.swing);
        hours.push_back(place.months.Of(fit.middle) + spellShare * place.days.Of(moods.warmth) +
                        swing * (course - 0.5));
    }
    return hours;
}

/// Moves the fit of a month towards its normals; gives the largest departure, K.
double Improve(MonthFit& fit, std::size_t month, const MonthMeans& is, const MonthNormals& want) {
    const double rangeIs = std::max(0.01, is.dailyMaximum - is.dailyMinimum);
    const double rangeWant = want.dailyMaximum - want.dailyMinimum;
    const double placeIs = (is.mean - is.dailyMinimum) / rangeIs;
    const double placeWant = (want.mean - want.dailyMinimum) / rangeWant;
    fit.middle[month] += want.mean - is.mean;
    fit.swing[month] = std::max(0.0, fit.swing[month] + rangeWant - rangeIs);
    fit.bend[month] = std::clamp(fit.bend[month] * std::exp(3 * (placeIs - placeWant)), 0.1, 10.0);
    return std::max({std::abs(want.mean - is.mean), std::abs(want.dailyMinimum - is.dailyMinimum),
                     std::abs(want.dailyMaximum - is.dailyMaximum)});
}

/// Fits all months together. Gives the month that cannot be met, -1 when all are.
int FitMonths(const NormalsTable& table, const DayMoods& moods, double spellShare,
              const std::vector<HourPlace>& places, std::vector<double>& hours) {
    MonthFit fit;
    for (std::size_t month = 0; month < 12; ++month) {
        const MonthNormals& normals = table.months[month];
        fit.middle[month] = normals.mean;
        fit.swing[month] = normals.dailyMaximum - normals.dailyMinimum;
        fit.bend[month] = 1;
    }
    int worst = 0;
    for (int round = 0; round < kMostRounds; ++round) {
        hours = HoursOf(fit, moods, spellShare, places);
        double largest = 0;
        for (std::size_t month = 0; month < 12; ++month) {
            const double departure =
                Improve(fit, month, MeansOfMonth(hours, int(month)), table.months[month]);
            if (departure > largest) {
                largest = departure;
                worst = int(month);
            }
        }
        if (largest < kTolerance) return -1;
    }
    return worst;
}

}  // namespace

SyntheticTemperatures MakeSyntheticTemperatures(const NormalsTable& table,
                                                const std::vector<double>& fairness, Noise& noise) {
    const DayMoods moods = MoodsOfDays(table, fairness, noise);
    const std::vector<HourPlace> places = PlacesOfHours(table.site);
    SyntheticTemperatures result;
    int unmet = 0;
    // Where warm and cold spells alone swing more than the table allows, they are made milder.
    for (const double spellShare : {1.0, 0.5, 0.2}) {
        unmet = FitMonths(table, moods, spellShare, places, result.hours);
        if (unmet < 0) return result;
    }
    result.fault = ClimateFault{table.months[std::size_t(unmet)].line, "mean temperature",
                                "no course of days has this mean between these minima and maxima"};
    return result;
}

}  // namespace verandis
