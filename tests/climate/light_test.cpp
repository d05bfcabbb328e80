#include <gtest/gtest.h>

#include <cmath>

#include "climate/glass.h"
#include "climate/radiation_split.h"
#include "climate/sky_model.h"
#include "climate/sky_temperature.h"

namespace verandis {
namespace {

SunHour SunAtSine(double up, double litShare = 1) {
    return {{std::sqrt(1 - up * up), 0, up}, 0, litShare, 1367};
}

// Worked by hand for n = 1.526 and extinction x thickness 0.1.
// Normal: surface 0.526^2 / 2.526^2 = 0.04336, passing e^-0.1 = 0.9048;
// 0.9048 x 0.95664^2 / (1 - 0.04336^2 x 0.8187) = 0.8293.
// 60 degrees: angle inside 34.58, surfaces 0.1855 and 0.0014, passing e^(-0.1/0.8234) = 0.8856;
// 0.8856 x 0.8145^2 / (1 - 0.1855^2 x 0.7843) = 0.6039 and 0.8831; the mean is 0.7435.
TEST(Glass, OnePaneByHand) {
    EXPECT_NEAR(PaneTransmittance(1, 1), 0.8293, 0.0003);
    EXPECT_NEAR(PaneTransmittance(1, 0.5), 0.7435, 0.0005);
}

// Two panes, normal: reflectance of one pane 0.04336 x (1 + 0.9048 x 0.8293) = 0.0759;
// 0.8293^2 / (1 - 0.0759^2) = 0.6918. Multiplying the panes alone gives 0.6878.
TEST(Glass, PanesReflectOnEachOther) {
    EXPECT_NEAR(PaneTransmittance(2, 1), 0.6918, 0.0005);
    EXPECT_NEAR(PaneTransmittance(3, 1), 0.58, 0.01);  // as the delivered reference window
}

TEST(Glass, BoundsAndOrder) {
    const GlassTable table;
    for (double cosine = 0; cosine <= 1; cosine += 1.0 / 4096) {
        const auto row = table.At(cosine);
        for (int panes = 0; panes < kPlaneKinds; ++panes) {
            const double exact = PaneTransmittance(panes, cosine);
            ASSERT_TRUE(std::isfinite(exact)) << panes << " panes at " << cosine;
            ASSERT_NEAR(row[std::size_t(panes)], exact, 2e-4);
            ASSERT_LE(exact, PaneTransmittance(panes - 1, cosine));
        }
    }
    EXPECT_EQ(PaneTransmittance(0, 0.3), 1);
    for (int panes = 1; panes < kPlaneKinds; ++panes) {
        EXPECT_NEAR(PaneTransmittance(panes, 1e-9), 0, 1e-6);
        EXPECT_EQ(PaneTransmittance(panes, 0), 0);
    }
}

// Relative air mass as its tables print it.
TEST(Split, AirMass) {
    EXPECT_NEAR(AirMass(1), 1.0, 0.001);
    EXPECT_NEAR(AirMass(0.5), 1.994, 0.002);
    EXPECT_NEAR(AirMass(0), 38.0, 0.5);
}

// By hand: 1.020 - 0.0508 + 0.0062 = 0.9754; 1.4 - 0.8745 + 0.0885 = 0.614; floor 0.1 just below
// clearness 0.78; 0.3888 - 0.091 = 0.2978.
TEST(Split, DiffuseShareByHand) {
    EXPECT_NEAR(DiffuseShare(0.2, 0.5), 0.9754, 1e-4);
    EXPECT_NEAR(DiffuseShare(0.5, 0.5), 0.6140, 1e-4);
    EXPECT_NEAR(DiffuseShare(0.779, 0.1), 0.1, 1e-9);
    EXPECT_NEAR(DiffuseShare(0.8, 0.5), 0.2978, 1e-4);
}

TEST(Split, NothingIsLostOrBlownUp) {
    for (const double up : {0.001, 0.01, 0.05, 0.2, 0.5, 0.9}) {
        for (const double share : {0.02, 0.5, 1.0}) {
            const SunHour sun = SunAtSine(up, share);
            for (const double global : {0.0, 1.0, 20.0, 300.0, 1400.0}) {
                const SplitRadiation light = SplitGlobal(global, sun);
                EXPECT_NEAR(light.directNormal * up + light.diffuse, global, 1e-9);
                EXPECT_GE(light.diffuse, 0);
                EXPECT_GE(light.directNormal, 0);
                EXPECT_LE(light.directNormal, 1100 * share);
            }
        }
    }
    EXPECT_DOUBLE_EQ(SplitGlobal(12, SunAtSine(-0.1, 0)).diffuse, 12);
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

TEST(Sky, HorizontalKeepsTheGlobalAndNoPlaneGoesNegative) {
    for (const SkyModel model : {SkyModel::Perez, SkyModel::Isotropic}) {
        for (const double up : {0.0005, 0.02, 0.08, 0.3, 0.7, 0.999}) {
            for (const double direct : {0.0, 1.0, 100.0, 950.0}) {
                for (const double diffuse : {0.0, 0.5, 60.0, 500.0}) {
                    const SplitRadiation light{direct, diffuse};
                    const SkyParts parts = PartsOfSky(model, light, SunAtSine(up, 0.7));
                    EXPECT_NEAR(parts.beam * up + parts.dome, direct * up + diffuse, 1e-9);
                    EXPECT_GE(parts.beam, direct);
                    for (int tilt = 0; tilt <= 90; tilt += 10) {
                        const double sine = std::sin(tilt * kRadiansPerDegree);
                        EXPECT_GE(parts.dome * SkyViewFactor(tilt) + parts.horizon * sine, -1e-9);
                    }
                }
            }
        }
    }
}

// Steam tables: 2339 Pa at 20 C, 611 Pa at 0 C; air of 20 C and 50 % has its dew point at 9.3 C.
TEST(SkyTemperature, MoistAir) {
    EXPECT_NEAR(SaturationPressure(20), 2339, 8);
    EXPECT_NEAR(SaturationPressure(0), 611, 1);
    EXPECT_NEAR(DewPoint(20, 50), 9.3, 0.1);
    EXPECT_NEAR(RelativeHumidity(20, 9.3), 50, 0.5);
    EXPECT_EQ(RelativeHumidity(5, 8), 100);
}

// A black body of 0 C sends 315.6 W/m2. Clear sky, dew point 0, at noon: emissivity 0.711 - 0.013 =
// 0.698, so 283.15 K x 0.698^0.25 = 258.8 K.
TEST(SkyTemperature, InfraredAndClearSky) {
    EXPECT_NEAR(SkyTemperatureOfInfrared(315.6), 0, 0.05);
    EXPECT_NEAR(SkyTemperature(10, 0, 0, 12), 258.8 - 273.15, 0.1);
    EXPECT_GT(SkyTemperature(10, 0, 10, 12), 5);
    EXPECT_LT(SkyTemperature(10, 0, 10, 12), 10);
}

}  // namespace
}  // namespace verandis
