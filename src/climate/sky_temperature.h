#pragma once

namespace verandis {

/// Saturation pressure of water vapour over water, Pa, at a temperature in C.
double SaturationPressure(double temperature);

/// Dew point in C of air of this temperature (C) and relative humidity (%, at least 1 is taken).
double DewPoint(double temperature, double humidity);

/// Relative humidity in %, at most 100.
double RelativeHumidity(double temperature, double dewPoint);

/// Effective temperature of the sky in C; cloud cover in tenths, `clock` in hours from midnight.
double SkyTemperature(double temperature, double dewPoint, double cloudTenths, double clock);

/// The same from the sky's thermal radiation on the horizontal, W/m2.
double SkyTemperatureOfInfrared(double infrared);

}  // namespace verandis
