#include "climate/plane_sums.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

#include "climate/month_summary.h"

namespace verandis {
namespace {

const ClimateSite kSite{"Test", 55, 15, 15};

using LightOf = std::function<SplitRadiation(const SunHour&)>;

WeatherYear YearOf(const std::vector<SunHour>& sun, const LightOf& light) {
    WeatherYear year;
    year.site = kSite;
    for (const SunHour& hour : sun) {
        const SplitRadiation parts = light(hour);
        WeatherHour weather;
        weather.directNormal = parts.directNormal;
        weather.diffuse = parts.diffuse;
        year.hours.push_back(weather);
    }
    return year;
}

/// Clear air that depends on the altitude only, so that mornings and afternoons are alike.
SplitRadiation ClearLight(const SunHour& sun) {
    if (sun.litShare <= 0) return {0, 0};
    return {900 * std::exp(-0.15 / sun.sun.up) * sun.litShare, 90 * std::sqrt(sun.sun.up)};
}

class ClearYear : public testing::TestWithParam<SkyModel> {
protected:
    const std::vector<SunHour> sun_ = SunOfYear(kSite);
    const WeatherYear year_ = YearOf(sun_, ClearLight);
    const std::vector<SolarPlane> planes_ = TabulatedPlanes();
    const std::vector<PlaneSums> sums_ = SumPlanes(year_, sun_, GetParam(), planes_);

    const PlaneSums& At(int tilt, int direction) const {
        const auto found = std::find_if(planes_.begin(), planes_.end(), [&](const SolarPlane& p) {
            return p.tilt == tilt && p.direction == direction;
        });
        return sums_.at(static_cast<std::size_t>(found - planes_.begin()));
    }

    static double OverYear(const std::array<double, 12>& months) {
        double sum = 0;
        for (const double month : months) sum += month;
        return sum;
    }
};

INSTANTIATE_TEST_SUITE_P(Skies, ClearYear, testing::Values(SkyModel::Perez, SkyModel::Isotropic));

TEST_P(ClearYear, TheFileHasItsPlanesInOrder) {
    ASSERT_EQ(planes_.size(), 281u);
    EXPECT_EQ(planes_[0].direction, -10);
    EXPECT_EQ(planes_[1].tilt, 0);
    EXPECT_EQ(planes_[28].direction, 270);
    EXPECT_EQ(planes_[29].tilt, 10);
    EXPECT_EQ(planes_[280].tilt, 90);
}

// Beam lost at sunrise, diffuse counted twice, or a mean that drifts would all show here.
TEST_P(ClearYear, TheHorizontalIsTheGlobalOfTheHours) {
    for (int month = 0; month < 12; ++month) {
        double global = 0;
        const MonthSpan span = HoursOfMonth(month);
        for (auto hour = std::size_t(span.first); hour < std::size_t(span.end); ++hour) {
            global += year_.hours[hour].directNormal * std::max(0.0, sun_[hour].sun.up) +
                      year_.hours[hour].diffuse;
        }
        EXPECT_NEAR(At(0, kHorizontalDirection)[0][std::size_t(month)], global / 1000, 1e-9);
    }
}

TEST_P(ClearYear, FlatPlanesAreTheHorizontalWhateverTheirDirection) {
    for (int direction = 0; direction <= 270; direction += 10) {
        for (std::size_t kind = 0; kind < kPlaneKinds; ++kind) {
            for (std::size_t month = 0; month < 12; ++month) {
                EXPECT_NEAR(At(0, direction)[kind][month], At(0, kHorizontalDirection)[kind][month],
                            1e-9);
            }
        }
    }
}

// The place stands on its meridian; the hours lie evenly about noon but for the equation of time.
TEST_P(ClearYear, EastEqualsWestUnderAnEvenSky) {
    for (const int tilt : {30, 60, 90}) {
        const double east = OverYear(At(tilt, 90)[0]);
        EXPECT_NEAR(east / OverYear(At(tilt, 270)[0]), 1, 0.01) << tilt;
        EXPECT_NEAR(OverYear(At(tilt, 150)[2]) / OverYear(At(tilt, 210)[2]), 1, 0.01) << tilt;
    }
}

TEST_P(ClearYear, SouthIsBrightestAndMorePanesPassLess) {
    for (std::size_t month = 0; month < 12; ++month) {
        EXPECT_GT(At(90, 0)[0][month], At(90, 180)[0][month]);
        for (std::size_t plane = 0; plane < sums_.size(); ++plane) {
            for (std::size_t kind = 1; kind < kPlaneKinds; ++kind) {
                ASSERT_TRUE(std::isfinite(sums_[plane][kind][month]));
                ASSERT_LT(sums_[plane][kind][month], sums_[plane][kind - 1][month]);
                ASSERT_GT(sums_[plane][kind][month], 0.2 * sums_[plane][0][month]);
            }
        }
    }
    EXPECT_GT(At(90, 0)[0][11], At(0, 0)[0][11]) << "the low winter sun favours the wall";
    EXPECT_LT(At(90, 0)[0][5], At(0, 0)[0][5]) << "the high summer sun favours the flat";
}

// Isotropic and by hand: 100 W/m2 of diffuse light give a wall 50 from the sky and 0.2 x 50 from
// the ground, a plane of 60 degrees 75 and 5; 744 hours of January.
TEST(PlaneSums, EvenSkyByHand) {
    const auto sun = SunOfYear(kSite);
    const auto year = YearOf(sun, [](const SunHour&) { return SplitRadiation{0, 100}; });
    const auto sums =
        SumPlanes(year, sun, SkyModel::Isotropic, {{90, 0}, {90, 180}, {90, 270}, {60, 40}});
    EXPECT_NEAR(sums[0][0][0], 60 * 0.744, 1e-6);
    EXPECT_NEAR(sums[1][0][0], 60 * 0.744, 1e-6);
    EXPECT_NEAR(sums[2][0][0], 60 * 0.744, 1e-6);
    EXPECT_NEAR(sums[3][0][0], 80 * 0.744, 1e-6);
}

// One hour of beam in the morning of midsummer reaches the east and not the west.
TEST(PlaneSums, MorningSunIsEasternSun) {
    const auto sun = SunOfYear(kSite);
    WeatherYear year = YearOf(sun, [](const SunHour&) { return SplitRadiation{0, 0}; });
    const std::size_t hour = std::size_t(HoursOfMonth(5).first) + 20 * 24 + 8;
    year.hours[hour].directNormal = 1000;
    const auto sums = SumPlanes(year, sun, SkyModel::Isotropic, {{90, 90}, {90, 270}, {90, 180}});
    const double ground = 0.2 * sun[hour].sun.up / 2;
    EXPECT_NEAR(sums[0][0][5], sun[hour].sun.east + ground, 1e-9);
    EXPECT_GT(sums[0][0][5], 0.75);
    EXPECT_NEAR(sums[1][0][5], ground, 1e-9);
    EXPECT_NEAR(sums[2][0][5], ground, 1e-9);
}

// Noon of the equinox at 60 degrees, where the sun stands 30 degrees high; by hand as for the sky
// model: half of the dome's 48, 22.7 of the horizon and half of the ground's 90 reach the north.
TEST(PlaneSums, AnisotropicSkyByHand) {
    const ClimateSite site{"", 60, 15, 15};
    const auto sun = SunOfYear(site);
    WeatherYear year = YearOf(sun, [](const SunHour&) { return SplitRadiation{0, 0}; });
    WeatherHour& noon = year.hours[std::size_t(HoursOfMonth(2).first) + 19 * 24 + 12];
    noon.directNormal = 700;
    noon.diffuse = 100;
    const auto sums = SumPlanes(year, sun, SkyModel::Perez, {{90, 180}, {90, 0}});
    EXPECT_NEAR(sums[0][0][2] * 1000, 91.7, 1.5);
    EXPECT_NEAR(sums[1][0][2] * 1000, 91.7 + 804 * std::sqrt(0.75), 8);
}

TEST(MonthSummaries, AreTakenFromTheHoursOfTheirMonth) {
    const auto sun = SunOfYear(kSite);
    WeatherYear year = YearOf(sun, ClearLight);
    for (std::size_t hour = 0; hour < year.hours.size(); ++hour) {
        year.hours[hour].temperature = hour % 24 < 12 ? -2 : 4;
    }
    year.hours[std::size_t(HoursOfMonth(1).end) - 1].temperature = 30;
    const auto months = SummarizeYear(year, sun, SkyModel::Perez).months;
    EXPECT_DOUBLE_EQ(months[1].highest, 30);
    EXPECT_DOUBLE_EQ(months[2].highest, 4);
    EXPECT_DOUBLE_EQ(months[2].mean, 1);
    EXPECT_NEAR(months[1].meanDailyMaximum, 4 + 26.0 / 28, 1e-9);
    EXPECT_DOUBLE_EQ(months[1].meanDailyMinimum, -2);
    EXPECT_GT(months[11].south, months[11].north);
    EXPECT_NE(months[5].east, months[5].west);
}

}  // namespace
}  // namespace verandis
