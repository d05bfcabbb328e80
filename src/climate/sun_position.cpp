#include "climate/sun_position.h"

#include <algorithm>
#include <cmath>

namespace verandis {
namespace {

constexpr double kPi = 180.0 * kRadiansPerDegree;
constexpr double kHourAngleOfHour = 15.0 * kRadiansPerDegree;
constexpr double kSolarConstant = 1367.0;  // W/m2, World Radiation Centre

constexpr double kEpochDays = 365.5;  // from noon of 1 January 2000 to the start of 2001

SunVector VectorOf(double latitude, double declination, double hourAngle) {
    const double sinLatitude = std::sin(latitude * kRadiansPerDegree);
    const double cosLatitude = std::cos(latitude * kRadiansPerDegree);
    const double sinDeclination = std::sin(declination);
    const double cosDeclination = std::cos(declination);
    const double cosHour = std::cos(hourAngle);
    return {cosDeclination * sinLatitude * cosHour - sinDeclination * cosLatitude,
            -cosDeclination * std::sin(hourAngle),
            sinLatitude * sinDeclination + cosLatitude * cosDeclination * cosHour};
}

struct AngleSpan {
    double from = 0;
    double to = 0;
};

/// The sunlit part of the hour whose middle has this hour angle. On the few nights in which the sun
/// sets and rises within one hour, the longer part stands for both.
AngleSpan LitSpan(double middle, double sunset) {
    const double from = middle - kHourAngleOfHour / 2;
    const double to = middle + kHourAngleOfHour / 2;
    if (sunset >= kPi) return {from, to};
    const AngleSpan lit{std::max(from, -sunset), std::min(to, sunset)};
    return lit.to > lit.from ? lit : AngleSpan{middle, middle};
}

}  // namespace

// Michalsky, J. J.: The Astronomical Almanac's algorithm for approximate solar position
// (1950-2050). Solar Energy 40 (3), 1988. Good to 0.01 degrees.
YearlySun YearlySunAt(double days) {
    const double n = days + kEpochDays;
    const double meanLongitude = 280.460 + 0.9856474 * n;
    const double anomaly = (357.528 + 0.9856003 * n) * kRadiansPerDegree;
    const double longitude =
        (meanLongitude + 1.915 * std::sin(anomaly) + 0.020 * std::sin(2 * anomaly)) *
        kRadiansPerDegree;
    const double obliquity = (23.439 - 0.0000004 * n) * kRadiansPerDegree;
    const double ascension =
        std::atan2(std::cos(obliquity) * std::sin(longitude), std::cos(longitude));
    YearlySun sun;
    sun.declination = std::asin(std::sin(obliquity) * std::sin(longitude));
    sun.equationOfTime = 4 * std::remainder(meanLongitude - ascension / kRadiansPerDegree, 360.0);
    sun.distance = 1.00014 - 0.01671 * std::cos(anomaly) - 0.00014 * std::cos(2 * anomaly);
    return sun;
}

YearlySun YearlySunAt(const ClimateSite& site, int day, double clock) {
    return YearlySunAt(day + (clock - site.timeMeridian / 15) / 24);
}

double HourAngle(const ClimateSite& site, double clock, double equationOfTime) {
    const double minutes = 4 * (site.longitude - site.timeMeridian) + equationOfTime;
    return std::remainder((clock + minutes / 60 - 12) * kHourAngleOfHour, 2 * kPi);
}

double SunsetAngle(double latitude, double declination) {
    const double cosine = -std::tan(latitude * kRadiansPerDegree) * std::tan(declination);
    return std::acos(std::clamp(cosine, -1.0, 1.0));
}

SunVector SunAt(const ClimateSite& site, int day, double clock) {
    const YearlySun sun = YearlySunAt(site, day, clock);
    return VectorOf(site.latitude, sun.declination, HourAngle(site, clock, sun.equationOfTime));
}

SunHour SunOfHour(const ClimateSite& site, int hour) {
    const double clock = hour % 24 + 0.5;
    const YearlySun sun = YearlySunAt(site, hour / 24, clock);
    const AngleSpan lit = LitSpan(HourAngle(site, clock, sun.equationOfTime),
                                  SunsetAngle(site.latitude, sun.declination));
    SunHour result;
    result.litShare = (lit.to - lit.from) / kHourAngleOfHour;
    result.hourAngle = (lit.from + lit.to) / 2;
    result.sun = VectorOf(site.latitude, sun.declination, result.hourAngle);
    result.extraterrestrial = kSolarConstant / (sun.distance * sun.distance);
    return result;
}

std::vector<SunHour> SunOfYear(const ClimateSite& site) {
    std::vector<SunHour> hours;
    hours.reserve(kHoursOfYear);
    for (int hour = 0; hour < kHoursOfYear; ++hour) hours.push_back(SunOfHour(site, hour));
    return hours;
}

}  // namespace verandis
