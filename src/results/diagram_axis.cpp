#include "results/diagram_axis.h"

#include <algorithm>
#include <cmath>

namespace verandis {
namespace {

// One less than the most steps that are wanted: both ends may need a part of a step more.
constexpr double kRoughSteps = 9;
// Share of the range beyond its ends, so that no mark is cut by the frame.
constexpr double kMarkRoom = 0.02;

double NiceStep(double rough) {
    const double power = std::pow(10.0, std::floor(std::log10(rough)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= rough * (1 - 1e-9)) return factor * power;
    }
    return 10 * power;
}

}  // namespace

DiagramAxis NiceAxis(double least, double most, bool fromZero) {
    if (!std::isfinite(least) || !std::isfinite(most)) return {};
    if (least > most) std::swap(least, most);
    const bool negative = least < 0;
    // Less apart than a float can tell counts as equal.
    if (most - least <= 1e-6 * std::max(std::abs(least), std::abs(most))) {
        const double apart = std::max(1.0, std::abs(most) / 10);
        least -= apart;
        most += apart;
    }
    const double room = kMarkRoom * (most - least);
    most += room;
    least = fromZero && !negative ? 0 : least - room;
    const double step = NiceStep((most - least) / kRoughSteps);
    return {std::floor(least / step + 1e-9) * step, std::ceil(most / step - 1e-9) * step, step};
}

int DecimalsOf(const DiagramAxis& axis) {
    return std::clamp(static_cast<int>(std::ceil(-std::log10(axis.step) - 1e-9)), 0, 6);
}

}  // namespace verandis
