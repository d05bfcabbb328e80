#pragma once

#include <string_view>

namespace verandis {

/// a / b; a divisor of 0 stops the run (0 / 0 too). `what` names the divisor.
double Divide(double a, double b, std::string_view what, std::string_view element = {});

}  // namespace verandis
