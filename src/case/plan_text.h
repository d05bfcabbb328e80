#pragma once

#include <string>

#include "case/plan.h"

// What a drawn plan says in words, in the session's language and decimal sign.

namespace verandis {

/// "10.5 m" or "30º", at most two decimals; with its letter "c = 10.5 m".
std::string MeasureText(const PlanMeasure& measure, bool withLetter);

/// Why there is no drawing; empty when there is one or the shape is unknown.
std::string PlanFaultText(PlanFault fault);

/// The plan for those who do not see it: "U-shape 20 x 21 m, glazed space 10 x 10 m, height 9 m,
/// roof tilt 30º, turned 0º".
std::string PlanDescription(int shape, const PlanDimensions& dimensions);

}  // namespace verandis
