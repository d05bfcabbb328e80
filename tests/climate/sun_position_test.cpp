#include "climate/sun_position.h"

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

namespace verandis {
namespace {

int DayOf(int month, int day) {
    return HoursOfMonth(month - 1).first / 24 + day - 1;
}

// The worked example of Reda and Andreas (2003) for Golden, Colorado, 17 October 2003 12:30:30
// mountain standard time: zenith angle 50.111, direction 194.340 clockwise from north. The sun of
// 2001 stands within half a day's course of that. Sunrise of Greenwich at the equinox is due east
// at 6 o'clock, less the equation of time. At noon the altitude is 90 - latitude + declination,
// which is 23.44 at the solstices and 0 at the equinoxes; noon is 12 o'clock less the almanac's
// equation of time. Directions are anti-clockwise from south: east is 90.
TEST(SunPosition, PublishedPositionsAreMet) {
    const ClimateSite golden{"", 39.742, -105.179, -105};
    const ClimateSite stockholm{"", 59.34, 15, 15};
    using Row = std::tuple<const char*, ClimateSite, int, double, double, double>;
    const Row rows[] = {
        {"hour convention or longitude sign", golden, DayOf(10, 17), 12.508, 39.89, -14.34},
        {"east and west swapped", {"", 51.48, 0, 0}, DayOf(3, 20), 6.125, 0, 90},
        {"no southern hemisphere", {"", -51.48, 0, 0}, DayOf(12, 21), 11.97, 61.96, 180},
        {"declination in summer", stockholm, DayOf(6, 21), 12.03, 54.10, 0},
        {"declination in winter", stockholm, DayOf(12, 21), 11.968, 7.22, 0},
        {"equinox of spring", stockholm, DayOf(3, 20), 12.124, 30.66, 0},
        {"equinox of autumn", stockholm, DayOf(9, 22), 11.878, 30.66, 0},
    };
    for (const auto& [fault, site, day, clock, altitude, direction] : rows) {
        const SunVector sun = SunAt(site, day, clock);
        EXPECT_NEAR(std::asin(sun.up) / kRadiansPerDegree, altitude, 0.3) << fault;
        const double is = std::atan2(sun.east, sun.south) / kRadiansPerDegree;
        EXPECT_NEAR(std::remainder(is - direction, 360.0), 0, 0.4) << fault;
        EXPECT_NEAR(std::hypot(sun.south, sun.east, sun.up), 1, 1e-12) << fault;
    }
}

// Duffie and Beckman's example: Madison, 89.4 degrees west, 10:30 central time, equation of time
// -13.5 minutes, is solar time 10:19. Seven and a half degrees east of its meridian noon is early.
TEST(SunPosition, HourAngleCountsLongitudeToTheEast) {
    const double madison = HourAngle({"", 43.1, -89.4, -90}, 10.5, -13.5);
    EXPECT_NEAR(madison / kRadiansPerDegree, -15 * (1 + 41.1 / 60), 0.01);
    EXPECT_NEAR(HourAngle({"", 0, 7.5, 0}, 12, 0) / kRadiansPerDegree, 7.5, 1e-9);
}

// Extremes of the equation of time as almanacs print them, in minutes.
TEST(SunPosition, EquationOfTimeHasItsSignAndSize) {
    const std::pair<int, double> rows[] = {
        {DayOf(2, 11), -14.2}, {DayOf(5, 14), 3.7}, {DayOf(7, 26), -6.5}, {DayOf(11, 3), 16.4}};
    for (const auto& [day, minutes] : rows) {
        EXPECT_NEAR(YearlySunAt(day + 0.5).equationOfTime, minutes, 0.35) << day;
    }
}

// The sun of hour index h is that of clock h + 0.5, not of h or h + 1.
TEST(SunHours, StandInTheMiddleOfTheHour) {
    const ClimateSite site{"", 45, 0, 0};
    const int day = DayOf(4, 15);  // equation of time 0
    const SunHour noon = SunOfHour(site, day * 24 + 11);
    EXPECT_NEAR(noon.hourAngle / kRadiansPerDegree, -7.5, 0.1);
    EXPECT_DOUBLE_EQ(noon.litShare, 1);
    EXPECT_FALSE(LitThroughout(SunOfHour(site, day * 24)));
}

// Daylight adds up to the day's length, by hand 2/15 of the arc cosine of -tan(latitude)
// tan(declination): the partial hours must carry their share and stand above the horizon.
TEST(SunHours, PartialHoursMakeTheLengthOfTheDay) {
    const std::tuple<double, int, double> rows[] = {
        {0, DayOf(2, 10), 12},    {40, DayOf(6, 21), 14.84},   {60, DayOf(12, 21), 5.51},
        {60, DayOf(3, 20), 12},   {-35, DayOf(12, 21), 14.36}, {67.83, DayOf(12, 21), 0},
        {67.83, DayOf(6, 21), 24}};
    for (const auto& [latitude, day, hours] : rows) {
        double lit = 0;
        for (int hour = 0; hour < 24; ++hour) {
            const SunHour sun = SunOfHour({"", latitude, 4, 0}, day * 24 + hour);
            lit += sun.litShare;
            EXPECT_TRUE(sun.litShare == 0 || (sun.sun.up > 0 && sun.litShare <= 1 + 1e-12));
        }
        EXPECT_NEAR(lit, hours, 0.05) << latitude << " on day " << day;
    }
}

}  // namespace
}  // namespace verandis
