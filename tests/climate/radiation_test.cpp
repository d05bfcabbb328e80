#include <gtest/gtest.h>

#include <cmath>
#include <numeric>

#include "climate/glass.h"
#include "climate/month_summary.h"
#include "climate/radiation_split.h"
#include "climate/sky_model.h"
#include "climate/sky_temperature.h"

namespace verandis {
namespace {

SunHour SunAtSine(double up, double litShare = 1) {
    return {{std::sqrt(1 - up * up), 0, up}, 0, litShare, 1367};
}

void ExpectSoundSky(SkyModel model, const SplitRadiation& light, const SunHour& sun) {
    const SkyParts parts = PartsOfSky(model, light, sun);
    const double global = light.directNormal * sun.sun.up + light.diffuse;
    EXPECT_NEAR(parts.beam * sun.sun.up + parts.dome, global, 1e-9);
    EXPECT_GE(parts.beam, light.directNormal);
    for (int tilt = 0; tilt <= 90; tilt += 10) {
        const double sine = std::sin(tilt * kRadiansPerDegree);
        EXPECT_GE(parts.dome * SkyViewFactor(tilt) + parts.horizon * sine, -1e-9);
    }
}

// Worked by hand for n = 1.526 and extinction x thickness 0.1.
// Normal: surface 0.526^2 / 2.526^2 = 0.04336, passing e^-0.1 = 0.9048;
// 0.9048 x 0.95664^2 / (1 - 0.04336^2 x 0.8187) = 0.8293.
// 60 degrees: angle inside 34.58, surfaces 0.1855 and 0.0014, passing e^(-0.1/0.8234) = 0.8856;
// 0.8856 x 0.8145^2 / (1 - 0.1855^2 x 0.7843) = 0.6039 and 0.8831; the mean is 0.7435.
// Two panes, normal: reflectance of one pane 0.04336 x (1 + 0.9048 x 0.8293) = 0.0759;
// 0.8293^2 / (1 - 0.0759^2) = 0.6918. Multiplying the panes alone gives 0.6878.
TEST(Glass, PanesByHand) {
    EXPECT_NEAR(PaneTransmittance(1, 1), 0.8293, 0.0003);
    EXPECT_NEAR(PaneTransmittance(1, 0.5), 0.7435, 0.0005);
    EXPECT_NEAR(PaneTransmittance(2, 1), 0.6918, 0.0005);
    EXPECT_NEAR(PaneTransmittance(3, 1), 0.58, 0.01);  // as the delivered reference window
}

TEST(Glass, BoundsAndOrder) {
    const GlassTable table;
    for (double cosine = 0; cosine <= 1; cosine += 1.0 / 4096) {
        for (int panes = 0; panes < kPlaneKinds; ++panes) {
            const double exact = PaneTransmittance(panes, cosine);
            ASSERT_NEAR(table.At(cosine)[std::size_t(panes)], exact, 2e-4);
            ASSERT_LE(exact, PaneTransmittance(panes - 1, cosine)) << panes << " at " << cosine;
        }
    }
    EXPECT_EQ(PaneTransmittance(0, 0.3), 1);
    for (const int panes : {1, 2, 3}) EXPECT_NEAR(PaneTransmittance(panes, 1e-9), 0, 1e-6);
}

// Relative air mass as its tables print it. Diffuse shares by hand: 1.020 - 0.0508 + 0.0062 =
// 0.9754; 1.4 - 0.8745 + 0.0885 = 0.614; floor 0.1 just below clearness 0.78; 0.3888 - 0.091 =
// 0.2978.
TEST(Split, AirMassAndDiffuseShareByHand) {
    EXPECT_NEAR(AirMass(0.5), 1.994, 0.002);
    EXPECT_NEAR(AirMass(0), 38.0, 0.5);
    EXPECT_NEAR(DiffuseShare(0.2, 0.5), 0.9754, 1e-4);
    EXPECT_NEAR(DiffuseShare(0.5, 0.5), 0.6140, 1e-4);
    EXPECT_NEAR(DiffuseShare(0.779, 0.1), 0.1, 1e-9);
    EXPECT_NEAR(DiffuseShare(0.8, 0.5), 0.2978, 1e-4);
}

// By hand: clearness (8 + 1.1955) / 2.1955 = 4.19 is the sixth class; brightness 100 x 1.9943 /
// 1367 = 0.1459; circumsolar 1.132 - 0.1805 - 0.4314 = 0.5201; horizon 0.288 - 0.1201 + 0.0586 =
// 0.2266.
TEST(Sky, PerezByHand) {
    const SkyParts parts = PartsOfSky(SkyModel::Perez, {700, 100}, SunAtSine(0.5));
    EXPECT_NEAR(parts.beam, 700 + 52.01 / 0.5, 0.1);
    EXPECT_NEAR(parts.dome, 47.99, 0.05);
    EXPECT_NEAR(parts.horizon, 22.66, 0.05);
    EXPECT_NEAR(parts.ground, 0.2 * 450, 1e-9);
}

// Neither splitting nor the sky may lose light on the horizontal or make a plane darker than dark.
TEST(Light, NothingIsLostOrBlownUp) {
    for (const double up : {0.0005, 0.01, 0.05, 0.2, 0.5, 0.9, 0.999}) {
        for (const double share : {0.02, 0.7, 1.0}) {
            const SunHour sun = SunAtSine(up, share);
            for (const double global : {0.0, 0.5, 20.0, 300.0, 950.0, 1400.0}) {
                const SplitRadiation split = SplitGlobal(global, sun);
                EXPECT_NEAR(split.directNormal * up + split.diffuse, global, 1e-9);
                EXPECT_TRUE(split.diffuse >= 0 && split.directNormal >= 0);
                EXPECT_LE(split.directNormal, 1100 * share);
                for (const SplitRadiation& light :
                     {split, SplitRadiation{global, 0}, SplitRadiation{1, global}}) {
                    ExpectSoundSky(SkyModel::Perez, light, sun);
                    ExpectSoundSky(SkyModel::Isotropic, light, sun);
                }
            }
        }
    }
    EXPECT_DOUBLE_EQ(SplitGlobal(12, SunAtSine(-0.1, 0)).diffuse, 12);
}

// Steam tables: 2339 Pa at 20 C, 611 Pa at 0 C; air of 20 C and 50 % has its dew point at 9.3 C. A
// black body of 0 C sends 315.6 W/m2. Clear sky, dew point 0, at noon: emissivity 0.711 - 0.013 =
// 0.698, so 283.15 K x 0.698^0.25 = 258.8 K.
TEST(SkyTemperature, PublishedFigures) {
    EXPECT_NEAR(SaturationPressure(20), 2339, 8);
    EXPECT_NEAR(SaturationPressure(0), 611, 1);
    EXPECT_NEAR(DewPoint(20, 50), 9.3, 0.1);
    EXPECT_NEAR(RelativeHumidity(20, 9.3), 50, 0.5);
    EXPECT_EQ(RelativeHumidity(5, 8), 100);
    EXPECT_NEAR(SkyTemperatureOfInfrared(315.6), 0, 0.05);
    EXPECT_NEAR(SkyTemperature(10, 0, 0, 12), 258.8 - 273.15, 0.1);
    EXPECT_NEAR(SkyTemperature(10, 0, 10, 12), 7.5, 2.5) << "overcast: a little below the air";
}

const ClimateSite kSite{"Test", 55, 15, 15};

/// Clear air that depends on the altitude only, so that mornings and afternoons are alike.
WeatherYear ClearYearOf(const std::vector<SunHour>& sun) {
    WeatherYear year{kSite, "", std::vector<WeatherHour>(kHoursOfYear)};
    for (std::size_t hour = 0; hour < year.hours.size(); ++hour) {
        if (sun[hour].litShare <= 0) continue;
        const double up = sun[hour].sun.up;
        year.hours[hour].directNormal = 900 * std::exp(-0.15 / up) * sun[hour].litShare;
        year.hours[hour].diffuse = 90 * std::sqrt(up);
    }
    return year;
}

double Total(const std::array<double, 12>& months) {
    return std::accumulate(months.begin(), months.end(), 0.0);
}

class ClearYear : public testing::TestWithParam<SkyModel> {
protected:
    const std::vector<SunHour> sun_ = SunOfYear(kSite);
    const WeatherYear year_ = ClearYearOf(sun_);
    const std::vector<PlaneSums> sums_ = SumPlanes(year_, sun_, GetParam(), TabulatedPlanes());

    const PlaneSums& At(int tilt, int direction) const {
        if (direction == kHorizontalDirection) return sums_.at(0);
        return sums_.at(std::size_t(1 + 28 * tilt / 10 + direction / 10));
    }
};

INSTANTIATE_TEST_SUITE_P(Skies, ClearYear, testing::Values(SkyModel::Perez, SkyModel::Isotropic));

// Beam lost at sunrise, diffuse counted twice, or a mean that drifts would all show here. Flat
// planes are the horizontal one whatever their direction.
TEST_P(ClearYear, TheHorizontalIsTheGlobalOfTheHours) {
    const PlaneSums& horizontal = At(0, kHorizontalDirection);
    for (int month = 0; month < 12; ++month) {
        double global = 0;
        for (int hour = HoursOfMonth(month).first; hour < HoursOfMonth(month).end; ++hour) {
            const WeatherHour& weather = year_.hours[std::size_t(hour)];
            global += weather.directNormal * sun_[std::size_t(hour)].sun.up + weather.diffuse;
        }
        EXPECT_NEAR(horizontal[0][std::size_t(month)], global / 1000, 1e-9);
    }
    for (int direction = 0; direction <= 270; direction += 10) {
        for (std::size_t value = 0; value < kPlaneKinds * 12; ++value) {
            const double flat = At(0, direction)[value / 12][value % 12];
            EXPECT_NEAR(flat, horizontal[value / 12][value % 12], 1e-9) << direction;
        }
    }
}

// The place stands on its meridian; the hours lie evenly about noon but for the equation of time.
TEST_P(ClearYear, EastEqualsWestUnderAnEvenSky) {
    for (const int tilt : {30, 60, 90}) {
        EXPECT_NEAR(Total(At(tilt, 90)[0]) / Total(At(tilt, 270)[0]), 1, 0.01) << tilt;
        EXPECT_NEAR(Total(At(tilt, 150)[2]) / Total(At(tilt, 210)[2]), 1, 0.01) << tilt;
    }
}

TEST_P(ClearYear, MorePanesPassLess) {
    for (const PlaneSums& plane : sums_) {
        for (std::size_t month = 0; month < 12; ++month) {
            for (std::size_t kind = 1; kind < kPlaneKinds; ++kind) {
                ASSERT_LT(plane[kind][month], plane[kind - 1][month]);
                ASSERT_GT(plane[kind][month], 0.2 * plane[0][month]);
            }
        }
    }
}

/// A year that is dark but for one hour.
WeatherYear OneHour(std::size_t hour, double direct, double diffuse) {
    WeatherYear year{kSite, "", std::vector<WeatherHour>(kHoursOfYear)};
    year.hours[hour].directNormal = direct;
    year.hours[hour].diffuse = diffuse;
    return year;
}

// Isotropic and by hand: 100 W/m2 of diffuse light give a wall 50 from the sky and 0.2 x 50 from
// the ground, a plane of 60 degrees 75 and 5; 744 hours of January.
TEST(PlaneSums, EvenSkyByHand) {
    const std::vector<SolarPlane> planes{{90, 0}, {90, 180}, {90, 270}, {60, 40}};
    WeatherYear year = OneHour(0, 0, 0);
    for (WeatherHour& hour : year.hours) hour.diffuse = 100;
    const auto sums = SumPlanes(year, SunOfYear(kSite), SkyModel::Isotropic, planes);
    for (const std::size_t wall : {0, 1, 2}) EXPECT_NEAR(sums[wall][0][0], 60 * 0.744, 1e-6);
    EXPECT_NEAR(sums[3][0][0], 80 * 0.744, 1e-6);
}

// Noon of the equinox at 60 degrees, where the sun stands 30 degrees high; by hand as for the sky
// model: half of the dome's 48, 22.7 of the horizon and half of the ground's 90 reach the north.
TEST(PlaneSums, AnisotropicSkyByHand) {
    const auto noon = std::size_t(HoursOfMonth(2).first) + 19 * 24 + 12;
    const auto sums = SumPlanes(OneHour(noon, 700, 100), SunOfYear({"", 60, 15, 15}),
                                SkyModel::Perez, {{90, 180}, {90, 0}});
    EXPECT_NEAR(sums[0][0][2] * 1000, 91.7, 1.5);
    EXPECT_NEAR(sums[1][0][2] * 1000, 91.7 + 804 * std::sqrt(0.75), 8);
}

// One hour of beam in the morning of midsummer reaches the east and not the west.
TEST(MonthSummaries, MorningSunIsEasternSun) {
    const auto sun = SunOfYear(kSite);
    const std::size_t hour = std::size_t(HoursOfMonth(5).first) + 20 * 24 + 8;
    const SunVector& at = sun[hour].sun;
    const auto year = SummarizeYear(OneHour(hour, 1000, 0), sun, SkyModel::Isotropic);
    const MonthSummary& june = year.months[5];
    EXPECT_NEAR(june.horizontal, at.up, 1e-9);
    EXPECT_NEAR(june.east, at.east + 0.1 * at.up, 1e-9);
    EXPECT_GT(june.east, 0.75);
    EXPECT_NEAR(june.south, at.south + 0.1 * at.up, 1e-9);
    EXPECT_NEAR(june.west, 0.1 * at.up, 1e-9);
    EXPECT_NEAR(june.north, 0.1 * at.up, 1e-9);
}

TEST(MonthSummaries, TemperaturesAreThoseOfTheHoursOfTheMonth) {
    WeatherYear year = OneHour(0, 0, 0);
    for (std::size_t hour = 0; hour < year.hours.size(); ++hour) {
        year.hours[hour].temperature = hour % 24 < 12 ? -2 : 4;
    }
    year.hours[std::size_t(HoursOfMonth(1).end) - 1].temperature = 30;
    const auto months = SummarizeYear(year, SunOfYear(kSite), SkyModel::Perez).months;
    EXPECT_DOUBLE_EQ(months[1].highest, 30);
    EXPECT_DOUBLE_EQ(months[2].highest, 4);
    EXPECT_DOUBLE_EQ(months[2].mean, 1);
    EXPECT_NEAR(months[1].meanDailyMaximum, 4 + 26.0 / 28, 1e-9);
    EXPECT_DOUBLE_EQ(months[1].meanDailyMinimum, -2);
}

}  // namespace
}  // namespace verandis
