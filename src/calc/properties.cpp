#include "calc/properties.h"

#include "case/property_file.h"
#include "text/numbers.h"

namespace verandis {

std::string PropertyText(std::string_view section, std::string_view key) {
    std::string value;
    GetCaseProperty(section, key, value);
    return value;
}

std::optional<double> PropertyNumber(std::string_view section, std::string_view key) {
    const std::string value = PropertyText(section, key);
    if (value == kNotSet) return std::nullopt;
    return ToNumber(value);
}

double Dimension(std::string_view key) {
    return PropertyNumber("DIMENSION", key).value_or(0.0);
}

}  // namespace verandis
