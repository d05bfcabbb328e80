#include "climate/epw_year.h"

#include <algorithm>
#include <cmath>

#include "climate/radiation_split.h"
#include "climate/sky_temperature.h"
#include "text/numbers.h"

namespace verandis {
namespace {

using Column = std::vector<std::optional<double>>;

constexpr int kMostMissing = kHoursOfYear / 10;
constexpr double kLargestJump = 15;    // K from hour to hour
constexpr double kDewPointMargin = 2;  // K above the temperature
constexpr double kNightLight = 20;     // W/m2 while the sun is down
constexpr double kLightMargin = 80;    // W/m2 between global and its parts
constexpr double kFairLight = 25;      // W/m2 from which a day hour without parts is odd
constexpr double kOrdinaryClearness = 0.4;

/// Gaps become values on a straight line between the neighbours; the year closes on itself. A
/// column without any value stays as it is.
void FillGaps(Column& column) {
    const std::size_t count = column.size();
    const auto first = std::find_if(column.begin(), column.end(),
                                    [](const auto& value) { return value.has_value(); });
    if (first == column.end()) return;
    const auto start = static_cast<std::size_t>(first - column.begin());
    std::size_t known = start;
    for (std::size_t step = 1; step <= count; ++step) {
        const std::size_t at = (start + step) % count;
        if (!column[at]) continue;
        const std::size_t gap = (at + count - known - 1) % count + 1;
        for (std::size_t inside = 1; inside < gap; ++inside) {
            const double part = static_cast<double>(inside) / static_cast<double>(gap);
            column[(known + inside) % count] =
                *column[known] + part * (*column[at] - *column[known]);
        }
        known = at;
    }
}

class EpwCompleter {
public:
    EpwCompleter(const EpwReading& reading, const std::vector<SunHour>& sun)
        : reading_(reading), sun_(sun) {
        result_.doubts = reading.doubts;
        result_.year.site = reading.site;
        result_.year.source = "EPW weather file";
        result_.year.hours.resize(kHoursOfYear);
    }

    EpwYear Complete() {
        CompleteAir();
        if (!result_.fault) CompleteLight();
        if (!result_.fault) CompleteSky();
        std::stable_sort(result_.doubts.begin(), result_.doubts.end(),
                         [](const auto& a, const auto& b) { return a.line < b.line; });
        return std::move(result_);
    }

private:
    const EpwReading& reading_;
    const std::vector<SunHour>& sun_;
    EpwYear result_;
    Column dewPoint_;

    WeatherHour& Hour(std::size_t hour) { return result_.year.hours[hour]; }

    void Doubt(std::size_t hour, EpwField field, std::string reason) {
        const auto& value = reading_.rows[hour].At(field);
        result_.doubts.push_back({reading_.rows[hour].line, EpwFieldName(field),
                                  value ? TrimmedNumberText(*value) : "missing",
                                  std::move(reason)});
    }

    /// A column with its gaps filled and listed. Without any value it is one doubt, not 8760.
    Column FilledColumn(EpwField field, const char* whenNever) {
        Column column;
        std::vector<std::size_t> gaps;
        for (std::size_t hour = 0; hour < kHoursOfYear; ++hour) {
            column.push_back(reading_.rows[hour].At(field));
            if (!column.back()) gaps.push_back(hour);
        }
        if (gaps.size() == kHoursOfYear) {
            Doubt(0, field, std::string("never given; ") + whenNever);
            return column;
        }
        for (const std::size_t hour : gaps) Doubt(hour, field, "filled between its neighbours");
        FillGaps(column);
        return column;
    }

    void CompleteAir() {
        Column temperature = FilledColumn(EpwField::DryBulb, "");
        int missing = 0;
        for (const EpwRow& row : reading_.rows) missing += row.At(EpwField::DryBulb) ? 0 : 1;
        if (missing > kMostMissing) return RefuseMissing(EpwField::DryBulb, missing, "rows");
        Column humidity = FilledColumn(EpwField::Humidity, "taken from the dew point, else 75 %");
        const Column wind = FilledColumn(EpwField::Wind, "taken as 3 m/s");
        dewPoint_ = FilledColumn(EpwField::DewPoint, "taken from the humidity");
        for (std::size_t hour = 0; hour < kHoursOfYear; ++hour) {
            WeatherHour& weather = Hour(hour);
            weather.temperature = *temperature[hour];
            weather.wind = wind[hour].value_or(3);
            if (!humidity[hour]) {
                humidity[hour] =
                    dewPoint_[hour] ? RelativeHumidity(weather.temperature, *dewPoint_[hour]) : 75;
            }
            weather.humidity = std::min(100.0, *humidity[hour]);
            if (!dewPoint_[hour]) dewPoint_[hour] = DewPoint(weather.temperature, weather.humidity);
            CheckAir(hour);
        }
    }

    void CheckAir(std::size_t hour) {
        const double temperature = Hour(hour).temperature;
        if (hour > 0 && std::abs(temperature - Hour(hour - 1).temperature) > kLargestJump) {
            Doubt(hour, EpwField::DryBulb, "jumps by more than 15 degrees in an hour");
        }
        if (*dewPoint_[hour] > temperature + kDewPointMargin) {
            Doubt(hour, EpwField::DewPoint, "above the temperature of the air");
        }
    }

    void RefuseMissing(EpwField field, int missing, const char* what) {
        const auto row = std::find_if(reading_.rows.begin(), reading_.rows.end(),
                                      [&](const EpwRow& each) { return !each.At(field); });
        result_.fault =
            ClimateFault{row == reading_.rows.end() ? 0 : row->line, EpwFieldName(field),
                         "missing here and in " + std::to_string(missing) + " " + what +
                             " in all, too many to be filled"};
    }

    static bool IsDay(const SunHour& sun) { return ExtraterrestrialHorizontal(sun) > 0; }

    void CompleteLight() {
        Column clearness(kHoursOfYear);
        std::vector<std::size_t> unknown;
        for (std::size_t hour = 0; hour < kHoursOfYear; ++hour) {
            const auto light = LightOfRow(hour);
            if (light) {
                Hour(hour).directNormal = light->directNormal;
                Hour(hour).diffuse = light->diffuse;
                if (IsDay(sun_[hour])) clearness[hour] = ClearnessOf(*light, sun_[hour]);
            } else {
                unknown.push_back(hour);
            }
        }
        if (unknown.size() > kMostMissing / 2) {
            return RefuseMissing(EpwField::Global, static_cast<int>(unknown.size()),
                                 "hours of daylight");
        }
        FillGaps(clearness);
        for (const std::size_t hour : unknown) {
            const double outside = ExtraterrestrialHorizontal(sun_[hour]);
            const double global = outside * clearness[hour].value_or(kOrdinaryClearness);
            const SplitRadiation light = SplitGlobal(global, sun_[hour]);
            Hour(hour).directNormal = light.directNormal;
            Hour(hour).diffuse = light.diffuse;
            Doubt(hour, EpwField::Global, "estimated from the clearness of the hours around");
        }
    }

    static double ClearnessOf(const SplitRadiation& light, const SunHour& sun) {
        const double global = light.directNormal * sun.sun.up + light.diffuse;
        return std::clamp(global / ExtraterrestrialHorizontal(sun), 0.0, 0.85);
    }

    /// Beam and diffuse light of a row, as far as the row itself can tell.
    std::optional<SplitRadiation> LightOfRow(std::size_t hour) {
        const SunHour& sun = sun_[hour];
        const EpwRow& row = reading_.rows[hour];
        const auto& global = row.At(EpwField::Global);
        const auto& direct = row.At(EpwField::Direct);
        const auto& diffuse = row.At(EpwField::Diffuse);
        if (!IsDay(sun)) return NightLight(hour);
        if (direct && diffuse) {
            const bool noParts = *direct == 0 && *diffuse == 0;
            if (noParts && global.value_or(0) > kFairLight) {
                Doubt(hour, EpwField::Diffuse, "no parts of the global radiation; it was split");
                return SplitGlobal(*global, sun);
            }
            CheckLight(hour);
            return SplitRadiation{*direct, *diffuse};
        }
        if (global && diffuse) {
            Doubt(hour, EpwField::Direct, "taken from global and diffuse radiation");
            return BeamFromDiffuse(*global, *diffuse, sun);
        }
        if (global && direct) {
            Doubt(hour, EpwField::Diffuse, "taken from global and direct radiation");
            return SplitRadiation{*direct, std::max(0.0, *global - *direct * sun.sun.up)};
        }
        if (!global) return std::nullopt;
        Doubt(hour, EpwField::Direct, "global radiation was split");
        return SplitGlobal(*global, sun);
    }

    SplitRadiation NightLight(std::size_t hour) {
        const EpwRow& row = reading_.rows[hour];
        for (const EpwField field : {EpwField::Direct, EpwField::Diffuse}) {
            if (row.At(field).value_or(0) <= kNightLight) continue;
            Doubt(hour, field, "light while the sun is down");
        }
        return {row.At(EpwField::Direct).value_or(0), row.At(EpwField::Diffuse).value_or(0)};
    }

    void CheckLight(std::size_t hour) {
        const EpwRow& row = reading_.rows[hour];
        const SunHour& sun = sun_[hour];
        if (!row.At(EpwField::Global) || !LitThroughout(sun)) return;
        const double parts = *row.At(EpwField::Direct) * sun.sun.up + *row.At(EpwField::Diffuse);
        const double apart = std::abs(*row.At(EpwField::Global) - parts);
        if (apart > kLightMargin + 0.15 * parts) {
            Doubt(hour, EpwField::Global,
                  "direct and diffuse radiation make " + FixedText(parts, 0) + "; they are used");
        }
    }

    void CompleteSky() {
        const Column infrared =
            FilledColumn(EpwField::Infrared, "sky taken from dew point and clouds");
        Column cloud;
        for (const EpwRow& row : reading_.rows) {
            const auto& opaque = row.At(EpwField::OpaqueCloud);
            cloud.push_back(opaque ? opaque : row.At(EpwField::TotalCloud));
        }
        FillGaps(cloud);
        for (std::size_t hour = 0; hour < kHoursOfYear; ++hour) {
            WeatherHour& weather = Hour(hour);
            weather.skyTemperature =
                infrared[hour]
                    ? SkyTemperatureOfInfrared(*infrared[hour])
                    : SkyTemperature(weather.temperature, *dewPoint_[hour], cloud[hour].value_or(5),
                                     static_cast<double>(hour % 24) + 0.5);
        }
    }
};

}  // namespace

EpwYear MakeEpwYear(const EpwReading& reading, const std::vector<SunHour>& sun) {
    return EpwCompleter(reading, sun).Complete();
}

}  // namespace verandis
