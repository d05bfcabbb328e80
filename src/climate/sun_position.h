#pragma once

#include <vector>

#include "climate/weather_year.h"

namespace verandis {

inline constexpr double kRadiansPerDegree = 3.14159265358979 / 180.0;

/// The unit vector towards the sun: south, east and up. `up` is the sine of the altitude.
struct SunVector {
    double south = 0;
    double east = 0;
    double up = 0;
};

/// The sun of one hour of local standard time.
struct SunHour {
    SunVector sun;                // in the middle of the sunlit part of the hour
    double hourAngle = 0;         // radians at that moment, negative before solar noon
    double litShare = 0;          // part of the hour in which the sun is up, 0 to 1
    double extraterrestrial = 0;  // W/m2 on a plane that faces the sun outside the atmosphere
};

/// True when the sun is up from the beginning to the end of the hour.
inline bool LitThroughout(const SunHour& hour) {
    return hour.litShare > 0.999;
}

/// Where the sun stands on its yearly path.
struct YearlySun {
    double declination = 0;     // radians
    double equationOfTime = 0;  // minutes, solar time minus mean time
    double distance = 1;        // in mean distances
};

/// The sun's yearly path at a moment of the year 2001, which the hourly files name; days since
/// 1 January 0 o'clock universal time.
YearlySun YearlySunAt(double days);

/// The same at local standard time; `day` counts from 0, `clock` is in hours.
YearlySun YearlySunAt(const ClimateSite& site, int day, double clock);

/// Hour angle of the sun in radians within -pi to pi, negative before solar noon.
double HourAngle(const ClimateSite& site, double clock, double equationOfTime);

/// Hour angle of sunset in radians: 0 when the sun stays down, pi when it stays up.
double SunsetAngle(double latitude, double declination);

/// Where the sun stands at a moment of local standard time, without refraction.
SunVector SunAt(const ClimateSite& site, int day, double clock);

/// The sun of hour `hour` (0 to 8759) of the year.
SunHour SunOfHour(const ClimateSite& site, int hour);

/// `SunOfHour` for all hours of the year.
std::vector<SunHour> SunOfYear(const ClimateSite& site);

}  // namespace verandis
