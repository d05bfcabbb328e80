#include "climate/synthetic_sun.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "text/numbers.h"

namespace verandis {
namespace {

constexpr double kMostTwilight = 2.0;      // kWh/m2 in a month, light while the sun is down
constexpr double kTwilightDepth = 0.1045;  // sine of 6 degrees: civil twilight
constexpr double kClearestHour = 0.88;     // clearness that no hour exceeds
constexpr double kClearestMonth = 0.76;    // nor a month

/// The days of a month with what the atmosphere receives, Wh/m2.
struct MonthDays {
    int firstDay = 0;
    std::vector<double> outside;
    double Sum() const { return std::accumulate(outside.begin(), outside.end(), 0.0); }
};

MonthDays DaysOfMonth(int month, const std::vector<SunHour>& sun) {
    const MonthSpan span = HoursOfMonth(month);
    MonthDays days{span.first / 24, {}};
    for (int hour = span.first; hour < span.end; ++hour) {
        if (hour % 24 == 0) days.outside.push_back(0);
        days.outside.back() += ExtraterrestrialHorizontal(sun[std::size_t(hour)]);
    }
    return days;
}

/// Distribution of the days of a month over their clearness. Bendt, P., Collares-Pereira, M. and
/// Rabl, A.: The frequency distribution of daily insolation values. Solar Energy 27 (1), 1981.
struct ClearnessSpread {
    double lowest = 0;
    double highest = 0;
    double steepness = 0;

    /// The clearness below which the share `part` of all days lies.
    double At(double part) const {
        if (std::abs(steepness) < 1e-6) return lowest + part * (highest - lowest);
        const double rise = std::exp(steepness * (highest - lowest));
        return lowest + std::log(1 - part + part * rise) / steepness;
    }
};

/// Highest clearness of a day in a month of this mean: Hollands, K. G. T. and Huget, R. G.: A
/// probability density function for the clearness index. Solar Energy 30 (3), 1983.
double HighestClearness(double mean) {
    const double high = 0.6313 + 0.267 * mean - 11.9 * std::pow(mean - 0.75, 8);
    return std::clamp(high, mean + 0.02, 0.85);
}

/// Place of each day in the order of its month, evened to the middle of its share: 0 to 1.
std::vector<double> RanksOf(const std::vector<double>& values, int first, std::size_t count) {
    std::vector<std::size_t> order(count);
    std::iota(order.begin(), order.end(), std::size_t(0));
    const auto at = [&](std::size_t day) { return values[std::size_t(first) + day]; };
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return at(a) < at(b); });
    std::vector<double> ranks(count);
    for (std::size_t place = 0; place < count; ++place) {
        ranks[order[place]] = (static_cast<double>(place) + 0.5) / static_cast<double>(count);
    }
    return ranks;
}

/// Clearness of each day, so that the month receives `target` Wh/m2 in all.
std::vector<double> ClearnessOfDays(const MonthDays& days, const std::vector<double>& ranks,
                                    double target) {
    const double mean = target / days.Sum();
    ClearnessSpread spread{std::min(0.05, 0.4 * mean), HighestClearness(mean), 0};
    const auto sumAt = [&](double steepness) {
        spread.steepness = steepness;
        double sum = 0;
        for (std::size_t day = 0; day < ranks.size(); ++day) {
            sum += spread.At(ranks[day]) * days.outside[day];
        }
        return sum;
    };
    double low = -200;
    double high = 200;
    for (int step = 0; step < 60; ++step) {
        const double middle = (low + high) / 2;
        (sumAt(middle) < target ? low : high) = middle;
    }
    spread.steepness = (low + high) / 2;
    std::vector<double> clearness;
    for (const double rank : ranks) clearness.push_back(spread.At(rank));
    return clearness;
}

/// Global radiation of the 24 hours of a day: more towards noon than outside the atmosphere, with
/// passing clouds on days that are neither clear nor dull. Collares-Pereira, M. and Rabl, A.: The
/// average distribution of solar radiation. Solar Energy 22 (2), 1979.
void FillDay(const SunHour* sun, double clearness, double cloudiness, Noise& noise,
             double* global) {
    std::array<double, 24> most{};
    double sunset = 0;
    double outside = 0;
    for (std::size_t hour = 0; hour < 24; ++hour) {
        const double extraterrestrial = ExtraterrestrialHorizontal(sun[hour]);
        most[hour] = kClearestHour * extraterrestrial;
        outside += extraterrestrial;
        if (sun[hour].litShare > 0) sunset = std::max(sunset, std::abs(sun[hour].hourAngle));
    }
    const double shift = std::sin(sunset - 60 * kRadiansPerDegree);
    const double even = 0.409 + 0.5016 * shift;
    const double noon = 0.6609 - 0.4767 * shift;
    double sum = 0;
    for (std::size_t hour = 0; hour < 24; ++hour) {
        const double passing = 1 + cloudiness * std::clamp(noise.Normal(), -2.0, 2.0);
        const double shape = std::max(0.1, even + noon * std::cos(sun[hour].hourAngle));
        global[hour] = most[hour] * shape * std::max(0.1, passing);
        sum += global[hour];
    }
    // Scaling to the day's sum may lift an hour above the clearest; what is cut goes to the others.
    for (int round = 0; round < 6 && sum > 0; ++round) {
        const double scale = clearness * outside / sum;
        sum = 0;
        for (std::size_t hour = 0; hour < 24; ++hour) {
            global[hour] = std::min(most[hour], global[hour] * scale);
            sum += global[hour];
        }
    }
}

/// Light of the sky around noon while the sun stays down, so that a month reaches its sum.
void AddTwilight(int month, double missing, const std::vector<SunHour>& sun,
                 std::vector<SplitRadiation>& hours) {
    const MonthSpan span = HoursOfMonth(month);
    const auto weight = [&](int hour) {
        return std::max(0.001, sun[std::size_t(hour)].sun.up + kTwilightDepth) *
               (std::abs(sun[std::size_t(hour)].hourAngle) < 0.6 ? 1.0 : 0.0);
    };
    double sum = 0;
    for (int hour = span.first; hour < span.end; ++hour) sum += weight(hour);
    for (int hour = span.first; hour < span.end; ++hour) {
        hours[std::size_t(hour)].diffuse += missing * weight(hour) / sum;
    }
}

/// Tenths of cloud on a day of this clearness, from dull to clear days of middle latitudes.
double CloudOf(double clearness) {
    return std::clamp(10 * (0.75 - clearness) / 0.65, 0.0, 10.0);
}

/// Global radiation of the hours of a month, Wh/m2, whose sum is `target`; sets the clouds of days.
std::vector<double> GlobalOfHours(const MonthDays& days, const std::vector<double>& ranks,
                                  double target, const std::vector<SunHour>& sun, Noise& noise,
                                  double* cloud) {
    std::vector<double> global(ranks.size() * 24, 0.0);
    const std::vector<double> clearness = ClearnessOfDays(days, ranks, target);
    for (std::size_t day = 0; day < ranks.size(); ++day) {
        cloud[day] = CloudOf(clearness[day]);
        const double passing = 0.05 + 1.2 * ranks[day] * (1 - ranks[day]);
        FillDay(&sun[(std::size_t(days.firstDay) + day) * 24], clearness[day], passing, noise,
                &global[day * 24]);
    }
    const double sum = std::accumulate(global.begin(), global.end(), 0.0);
    for (double& hour : global) hour *= sum > 0 ? target / sum : 0;
    return global;
}

/// One month: clearness by day, light by hour. `target` in Wh/m2.
void FillMonth(int month, double target, const std::vector<SunHour>& sun,
               const std::vector<double>& moods, Noise& noise, SyntheticSun& year) {
    const MonthDays days = DaysOfMonth(month, sun);
    const auto firstDay = std::size_t(days.firstDay);
    const std::vector<double> ranks = RanksOf(moods, days.firstDay, days.outside.size());
    for (std::size_t day = 0; day < ranks.size(); ++day) {
        year.fairness[firstDay + day] = ranks[day];
        year.cloud[firstDay + day] = 10 * (1 - ranks[day]);
    }
    const double reachable = std::min(target, kClearestMonth * days.Sum());
    if (reachable > 0) {
        const std::vector<double> global =
            GlobalOfHours(days, ranks, reachable, sun, noise, &year.cloud[firstDay]);
        for (std::size_t hour = 0; hour < global.size(); ++hour) {
            const SunHour& at = sun[firstDay * 24 + hour];
            year.hours[firstDay * 24 + hour] =
                LitThroughout(at) ? SplitGlobal(global[hour], at) : SplitRadiation{0, global[hour]};
        }
    }
    if (target > reachable) AddTwilight(month, target - reachable, sun, year.hours);
}

/// Hours in which the sun is up.
double PossibleHours(int month, const std::vector<SunHour>& sun) {
    const MonthSpan span = HoursOfMonth(month);
    double hours = 0;
    for (int hour = span.first; hour < span.end; ++hour) hours += sun[std::size_t(hour)].litShare;
    return hours;
}

/// What the row of a month asks for against what the sun can give there.
std::optional<ClimateFault> CheckMonth(const NormalsTable& table, int month, double asked,
                                       const std::vector<SunHour>& sun) {
    const MonthNormals& row = table.months[std::size_t(month)];
    const double possible = PossibleHours(month, sun);
    if (table.sunIsHours && row.sun > possible + 0.5) {
        return ClimateFault{row.line, "sun",
                            FixedText(row.sun, 1) + " hours are more than the " +
                                FixedText(possible, 1) + " in which the sun is up there"};
    }
    const double most = kClearestMonth * DaysOfMonth(month, sun).Sum() / 1000;
    if (asked <= most + kMostTwilight) return std::nullopt;
    return ClimateFault{row.line, "sun",
                        FixedText(asked, 1) + " kWh/m2 are more than the " + FixedText(most, 1) +
                            " of the clearest month there"};
}

}  // namespace

// Hours of sunshine: Angstrom and Prescott's relation with the coefficients 0.25 and 0.50 of Allen,
// R. G. et al.: Crop evapotranspiration. FAO Irrigation and Drainage Paper 56, 1998.
std::array<double, 12> GlobalOfMonths(const NormalsTable& table, const std::vector<SunHour>& sun) {
    std::array<double, 12> global{};
    for (int month = 0; month < 12; ++month) {
        const double given = table.months[std::size_t(month)].sun;
        const double possible = PossibleHours(month, sun);
        const double bright = possible > 0 ? std::min(1.0, given / possible) : 0;
        const double outside = DaysOfMonth(month, sun).Sum() / 1000;
        global[std::size_t(month)] = table.sunIsHours ? outside * (0.25 + 0.50 * bright) : given;
    }
    return global;
}

SyntheticSunResult MakeSyntheticSun(const NormalsTable& table, const std::vector<SunHour>& sun,
                                    Noise& noise) {
    SyntheticSunResult result;
    result.year.hours.resize(kHoursOfYear);
    result.year.fairness.resize(kDaysOfYear);
    result.year.cloud.resize(kDaysOfYear);
    const std::array<double, 12> global = GlobalOfMonths(table, sun);
    const std::vector<double> moods = noise.Series(kDaysOfYear, 0.5, 0.866);
    for (int month = 0; month < 12; ++month) {
        const double asked = global[std::size_t(month)];
        result.fault = CheckMonth(table, month, asked, sun);
        if (result.fault) return result;
        FillMonth(month, asked * 1000, sun, moods, noise, result.year);
    }
    return result;
}

}  // namespace verandis
