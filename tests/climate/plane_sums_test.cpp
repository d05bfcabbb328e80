#include "climate/plane_sums.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>

#include "climate/month_summary.h"

namespace verandis {
namespace {

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

double YearOf(const std::array<double, 12>& months) {
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
        const MonthSpan span = HoursOfMonth(month);
        for (auto hour = std::size_t(span.first); hour < std::size_t(span.end); ++hour) {
            global += year_.hours[hour].directNormal * std::max(0.0, sun_[hour].sun.up) +
                      year_.hours[hour].diffuse;
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
        EXPECT_NEAR(YearOf(At(tilt, 90)[0]) / YearOf(At(tilt, 270)[0]), 1, 0.01) << tilt;
        EXPECT_NEAR(YearOf(At(tilt, 150)[2]) / YearOf(At(tilt, 210)[2]), 1, 0.01) << tilt;
    }
}

TEST_P(ClearYear, SouthIsBrightestAndMorePanesPassLess) {
    for (std::size_t month = 0; month < 12; ++month) {
        EXPECT_GT(At(90, 0)[0][month], At(90, 180)[0][month]);
        for (const PlaneSums& plane : sums_) {
            for (std::size_t kind = 1; kind < kPlaneKinds; ++kind) {
                ASSERT_LT(plane[kind][month], plane[kind - 1][month]);
                ASSERT_GT(plane[kind][month], 0.2 * plane[0][month]);
            }
        }
    }
    EXPECT_GT(At(90, 0)[0][11], At(0, 0)[0][11]) << "the low winter sun favours the wall";
    EXPECT_LT(At(90, 0)[0][5], At(0, 0)[0][5]) << "the high summer sun favours the flat";
}

/// A year that is dark but for one hour.
WeatherYear OneHour(std::size_t hour, double direct, double diffuse) {
    WeatherYear year{kSite, "", std::vector<WeatherHour>(kHoursOfYear)};
    year.hours[hour].directNormal = direct;
    year.hours[hour].diffuse = diffuse;
    return year;
}

// Isotropic and by hand: 100 W/m2 of diffuse light give a wall 50 from the sky and 0.2 x 50 from
// the ground, a plane of 60 degrees 75 and 5.
TEST(PlaneSums, EvenSkyByHand) {
    const std::vector<SolarPlane> planes{{90, 0}, {90, 180}, {90, 270}, {60, 40}};
    const auto sums =
        SumPlanes(OneHour(0, 0, 100), SunOfYear(kSite), SkyModel::Isotropic, planes);
    for (const std::size_t wall : {0, 1, 2}) EXPECT_NEAR(sums[wall][0][0], 0.060, 1e-9);
    EXPECT_NEAR(sums[3][0][0], 0.080, 1e-9);
}

// One hour of beam in the morning of midsummer reaches the east and not the west.
TEST(PlaneSums, MorningSunIsEasternSun) {
    const auto sun = SunOfYear(kSite);
    const std::size_t hour = std::size_t(HoursOfMonth(5).first) + 20 * 24 + 8;
    const auto sums = SumPlanes(OneHour(hour, 1000, 0), sun, SkyModel::Isotropic,
                                {{90, 90}, {90, 270}, {90, 180}});
    const double ground = 0.2 * sun[hour].sun.up / 2;
    EXPECT_NEAR(sums[0][0][5], sun[hour].sun.east + ground, 1e-9);
    EXPECT_GT(sums[0][0][5], 0.75);
    EXPECT_NEAR(sums[1][0][5], ground, 1e-9);
    EXPECT_NEAR(sums[2][0][5], ground, 1e-9);
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

TEST(MonthSummaries, AreTakenFromTheHoursOfTheirMonth) {
    const auto sun = SunOfYear(kSite);
    WeatherYear year = ClearYearOf(sun);
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
