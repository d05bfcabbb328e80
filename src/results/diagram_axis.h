#pragma once

namespace verandis {

/// A value scale: its ends are whole multiples of its step.
struct DiagramAxis {
    double least = 0;
    double most = 1;
    double step = 0.2;

    friend bool operator==(const DiagramAxis&, const DiagramAxis&) = default;
};

/// The scale that holds both values in at most ten steps of 1, 2 or 5 times a power of ten. Equal
/// values get room on both sides. `fromZero` begins a scale of values that are never negative at 0.
/// Values that are not finite give the scale 0 to 1.
DiagramAxis NiceAxis(double least, double most, bool fromZero);

/// Decimals that the labels of a scale need.
int DecimalsOf(const DiagramAxis& axis);

}  // namespace verandis
