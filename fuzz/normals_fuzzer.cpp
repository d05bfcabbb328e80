#include "climate/normals_table.h"

#include <cmath>

#include "climate/synthetic_year.h"
#include "fuzzing.h"

namespace verandis::fuzzing {
namespace {

double MeanTemperature(const WeatherYear& year, int month) {
    const MonthSpan span = HoursOfMonth(month);
    double sum = 0;
    for (int hour = span.first; hour < span.end; ++hour) {
        sum += year.hours[static_cast<std::size_t>(hour)].temperature;
    }
    return sum / (span.end - span.first);
}

void CheckYear(const NormalsTable& table) {
    const SyntheticYear made = MakeSyntheticYear(table, SunOfYear(table.site));
    if (made.fault) return Require(!made.fault->reason.empty(), "a refusal has a reason");
    Require(made.year.hours.size() == kHoursOfYear, "the year is whole");
    for (const WeatherHour& hour : made.year.hours) {
        const double sum = hour.temperature + hour.directNormal + hour.diffuse + hour.humidity +
                           hour.wind + hour.skyTemperature;
        Require(std::isfinite(sum), "an hour holds numbers");
        Require(hour.directNormal >= 0 && hour.diffuse >= 0, "light is not negative");
    }
    for (int month = 0; month < 12; ++month) {
        const double wanted = table.months[static_cast<std::size_t>(month)].mean;
        const double mean = MeanTemperature(made.year, month);
        Require(std::abs(mean - wanted) < 0.06, "the months have the table's means");
    }
}

}  // namespace
}  // namespace verandis::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace verandis::fuzzing;
    const auto reading = verandis::ReadNormals(LinesOf(TextOf(data, size)));
    if (!reading.fault) {
        CheckYear(reading.table);
        return 0;
    }
    Require(!reading.fault->reason.empty(), "a refusal has a reason");
    verandis::FaultText("table", *reading.fault);
    return 0;
}
