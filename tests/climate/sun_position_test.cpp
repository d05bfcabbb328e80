#include "climate/sun_position.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace verandis {
namespace {

constexpr double kPi = 180 * kRadiansPerDegree;

int DayOf(int month, int day) {
    return HoursOfMonth(month - 1).first / 24 + day - 1;
}

double Altitude(const SunVector& sun) {
    return std::asin(sun.up) / kRadiansPerDegree;
}

/// Degrees anti-clockwise from south: east is 90.
double Direction(const SunVector& sun) {
    return std::atan2(sun.east, sun.south) / kRadiansPerDegree;
}

struct Place {
    const char* fault;
    ClimateSite site;
    int month;
    int day;
    double clock;
    double altitude;
    double direction;
    double tolerance;
};

class PublishedPositions : public testing::TestWithParam<Place> {};

TEST_P(PublishedPositions, AreMet) {
    const Place& row = GetParam();
    const SunVector sun = SunAt(row.site, DayOf(row.month, row.day), row.clock);
    EXPECT_NEAR(Altitude(sun), row.altitude, row.tolerance) << row.fault;
    EXPECT_NEAR(std::remainder(Direction(sun) - row.direction, 360.0), 0, row.tolerance)
        << row.fault;
    EXPECT_NEAR(sun.south * sun.south + sun.east * sun.east + sun.up * sun.up, 1, 1e-12);
}

// The worked example of Reda and Andreas (2003) for Golden, Colorado, 17 October 2003 12:30:30
// mountain standard time: zenith angle 50.111, direction 194.340 clockwise from north. The sun of
// 2001 stands within half a day's course of that. Mirrored in longitude and hemisphere, the same
// sun tells a wrong sign. Sunrise of Greenwich at the equinox is due east at 6 o'clock, less the
// equation of time.
INSTANTIATE_TEST_SUITE_P(
    Sun, PublishedPositions,
    testing::Values(
        Place{"hour convention or longitude sign",
              {"Golden", 39.742, -105.179, -105},
              10,
              17,
              12.508,
              39.89,
              -14.34,
              0.3},
        Place{"east and west swapped", {"Greenwich", 51.48, 0, 0}, 3, 20, 6.125, 0.0, 90.0, 0.4},
        Place{"no southern hemisphere",
              {"south of Greenwich", -51.48, 0, 0},
              12,
              21,
              11.97,
              61.96,
              180.0,
              0.3}));

// Altitude at noon is 90 - latitude + declination; the declination is 23.44 at the solstices and 0
// at the equinoxes.
TEST(SunPosition, NoonAltitudesAtTheCardinalDays) {
    const ClimateSite stockholm{"Stockholm", 59.34, 15, 15};
    struct Noon {
        int month;
        int day;
        double altitude;
    };
    for (const Noon& noon :
         {Noon{6, 21, 54.10}, Noon{12, 21, 7.22}, Noon{3, 20, 30.66}, Noon{9, 22, 30.66}}) {
        const double minutes = YearlySunAt(DayOf(noon.month, noon.day)).equationOfTime;
        const SunVector sun = SunAt(stockholm, DayOf(noon.month, noon.day), 12 - minutes / 60);
        EXPECT_NEAR(Altitude(sun), noon.altitude, 0.25) << noon.month;
        EXPECT_NEAR(Direction(sun), 0, 0.2) << noon.month;
    }
}

// Duffie and Beckman's example: Madison, 89.4 degrees west, 10:30 central time, equation of time
// -13.5 minutes, is solar time 10:19. Seven and a half degrees east of its meridian noon is early.
TEST(SunPosition, HourAngleCountsLongitudeToTheEast) {
    const ClimateSite madison{"Madison", 43.1, -89.4, -90};
    EXPECT_NEAR(HourAngle(madison, 10.5, -13.5) / kRadiansPerDegree, -15 * (1 + 41.1 / 60), 0.01);
    const ClimateSite east{"", 0, 7.5, 0};
    EXPECT_NEAR(HourAngle(east, 12, 0) / kRadiansPerDegree, 7.5, 1e-9);
}

// Extremes of the equation of time as almanacs print them, in minutes.
TEST(SunPosition, EquationOfTimeHasItsSignAndSize) {
    const struct {
        int month;
        int day;
        double minutes;
    } rows[] = {{2, 11, -14.2}, {5, 14, 3.7}, {7, 26, -6.5},
                {11, 3, 16.4},  {4, 15, 0},   {12, 25, 0}};
    for (const auto& row : rows) {
        EXPECT_NEAR(YearlySunAt(DayOf(row.month, row.day) + 0.5).equationOfTime, row.minutes, 0.35)
            << row.month;
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
        const ClimateSite site{"", latitude, 4, 0};
        for (const int day : {10, 80, 120, 172, 300}) {
            double lit = 0;
            for (int hour = day * 24; hour < day * 24 + 24; ++hour) {
                const SunHour sun = SunOfHour(site, hour);
                lit += sun.litShare;
                EXPECT_TRUE(sun.litShare == 0 || sun.sun.up > 0);
                EXPECT_LE(sun.litShare, 1 + 1e-12);
            }
            const double sunset = SunsetAngle(latitude, YearlySunAt(day + 0.5).declination);
            EXPECT_NEAR(lit, 24 * sunset / kPi, 0.05) << latitude << " day " << day;
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
