#include "climate/sky_temperature.h"

#include <algorithm>
#include <cmath>

#include "climate/sun_position.h"

namespace verandis {
namespace {

constexpr double kKelvin = 273.15;
constexpr double kStefanBoltzmann = 5.6697e-8;  // W/(m2 K4)
constexpr double kMagnusFactor = 17.625;
constexpr double kMagnusOffset = 243.04;    // C
constexpr double kMagnusPressure = 610.94;  // Pa

}  // namespace

// Alduchov, O. A. and Eskridge, R. E.: Improved Magnus form approximation of saturation vapor
// pressure. Journal of Applied Meteorology 35 (4), 1996.
double SaturationPressure(double temperature) {
    return kMagnusPressure * std::exp(kMagnusFactor * temperature / (kMagnusOffset + temperature));
}

double DewPoint(double temperature, double humidity) {
    const double logarithm = std::log(std::max(1.0, humidity) / 100) +
                             kMagnusFactor * temperature / (kMagnusOffset + temperature);
    return kMagnusOffset * logarithm / (kMagnusFactor - logarithm);
}

double RelativeHumidity(double temperature, double dewPoint) {
    return std::min(100.0, 100 * SaturationPressure(dewPoint) / SaturationPressure(temperature));
}

// Clear sky: Berdahl, P. and Martin, M.: Emissivity of clear skies. Solar Energy 32 (5), 1984.
// Clouds: Martin, M. and Berdahl, P.: Characteristics of infrared sky radiation in the United
// States. Solar Energy 33 (3/4), 1984; black clouds with their base at 2 km.
double SkyTemperature(double temperature, double dewPoint, double cloudTenths, double clock) {
    const double dew = dewPoint / 100;
    const double clear =
        0.711 + 0.56 * dew + 0.73 * dew * dew + 0.013 * std::cos(15 * clock * kRadiansPerDegree);
    const double cloud = std::clamp(cloudTenths / 10, 0.0, 1.0) * std::exp(-2.0 / 8.2);
    const double emissivity = std::min(1.0, clear + (1 - clear) * cloud);
    return (temperature + kKelvin) * std::pow(emissivity, 0.25) - kKelvin;
}

double SkyTemperatureOfInfrared(double infrared) {
    return std::pow(infrared / kStefanBoltzmann, 0.25) - kKelvin;
}

}  // namespace verandis
