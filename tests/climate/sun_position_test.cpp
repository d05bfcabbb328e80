#include "climate/sun_position.h"

#include <gtest/gtest.h>

#include <cmath>

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
    const struct {
        const char* fault;
        ClimateSite site;
        int month, day;
        double clock, altitude, direction;
    } rows[] = {
        {"hour convention or longitude sign", golden, 10, 17, 12.508, 39.89, -14.34},
        {"east and west swapped", {"", 51.48, 0, 0}, 3, 20, 6.125, 0, 90},
        {"no southern hemisphere", {"", -51.48, 0, 0}, 12, 21, 11.97, 61.96, 180},
        {"sign of the declination", stockholm, 6, 21, 12.03, 54.10, 0},
        {"sign of the declination", stockholm, 12, 21, 11.968, 7.22, 0},
        {"day of the equinox", stockholm, 3, 20, 12.124, 30.66, 0},
        {"day of the equinox", stockholm, 9, 22, 11.878, 30.66, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        const SunVector sun = SunAt(row.site, DayOf(row.month, row.day), row.clock);
        EXPECT_NEAR(std::asin(sun.up) / kRadiansPerDegree, row.altitude, 0.3);
        const double direction = std::atan2(sun.east, sun.south) / kRadiansPerDegree;
        EXPECT_NEAR(std::remainder(direction - row.direction, 360.0), 0, 0.4);
        EXPECT_NEAR(std::hypot(sun.south, sun.east, sun.up), 1, 1e-12);
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
    const struct {
        int month, day;
        double minutes;
    } rows[] = {{2, 11, -14.2}, {5, 14, 3.7}, {7, 26, -6.5}, {11, 3, 16.4}, {4, 15, 0}};
    for (const auto& row : rows) {
        const double minutes = YearlySunAt(DayOf(row.month, row.day) + 0.5).equationOfTime;
        EXPECT_NEAR(minutes, row.minutes, 0.35) << row.month;
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

// Daylight adds up to the day's length: 2 x sunset angle / 15 hours; the partial hours must carry
// their share and stand above the horizon.
TEST(SunHours, PartialHoursMakeTheLengthOfTheDay) {
    for (const double latitude : {0.0, 40.0, 60.0, 66.5, -35.0}) {
        for (const int day : {10, 80, 120, 172, 300}) {
            double lit = 0;
            for (int hour = day * 24; hour < day * 24 + 24; ++hour) {
                const SunHour sun = SunOfHour({"", latitude, 4, 0}, hour);
                lit += sun.litShare;
                EXPECT_TRUE(sun.litShare == 0 || (sun.sun.up > 0 && sun.litShare <= 1 + 1e-12));
            }
            const double sunset = SunsetAngle(latitude, YearlySunAt(day + 0.5).declination);
            EXPECT_NEAR(lit, sunset / kRadiansPerDegree * 2 / 15, 0.05) << latitude << " " << day;
        }
    }
}

TEST(SunHours, PolarNightAndMidnightSun) {
    const ClimateSite kiruna{"", 67.83, 20.34, 15};
    for (int hour = 0; hour < 24; ++hour) {
        EXPECT_EQ(SunOfHour(kiruna, DayOf(12, 21) * 24 + hour).litShare, 0);
        EXPECT_DOUBLE_EQ(SunOfHour(kiruna, DayOf(6, 21) * 24 + hour).litShare, 1);
    }
}

}  // namespace
}  // namespace verandis
