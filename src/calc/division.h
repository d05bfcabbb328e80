#pragma once

#include <string>
#include <string_view>

namespace verandis {

/// Stops the run with a sentence that names the open case, the element (when there is one) and what
/// is wrong.
[[noreturn]] void StopRun(std::string_view what, std::string_view element = {});

/// a / b; a divisor of 0 stops the run (0 / 0 too). `what` names the divisor.
double Divide(double a, double b, std::string_view what, std::string_view element = {});

}  // namespace verandis
