#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace verandis {

/// A property of the open case as text; `kNotSet` when there is no row.
std::string PropertyText(std::string_view section, std::string_view key);

/// A property of the open case as a number (point or comma); nothing when it is not set.
std::optional<double> PropertyNumber(std::string_view section, std::string_view key);

/// A dimension of the open case in m, or its roof tilt in degrees; 0 when it is not set.
double Dimension(std::string_view key);

}  // namespace verandis
