#pragma once

namespace verandis {

/// Sets `heatBalance.SolarGainG`: the month's radiation through the glazed elements of the open
/// case. The window of the first element stands for all of them. Throws RunError when an element's
/// direction or tilt lies outside the radiation table.
void CalcSolarGain(int shape, int month);

/// Sets `heatBalance.SunPanelFactor` from the absorptance of the inner surfaces.
void CalcSunPanelFactor(int shape);

/// A direction in degrees brought into 0 to 360 by one step: a negative one is 360 less its amount,
/// one of 360 or more loses 360.
double TurnedDirection(double direction);

}  // namespace verandis
