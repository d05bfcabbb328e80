#include "climate/epw_file.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "text/characters.h"

namespace verandis {
namespace {

using Fault = std::optional<ClimateFault>;

constexpr std::size_t kHeaderLines = 8;
constexpr std::size_t kFieldsNeeded = 22;  // up to the wind speed; the clouds may be cut off
constexpr int kLeapDayStart = (31 + 28) * 24;

/// Where a field stands in the row (from 1), the code from which on it means "missing", and the
/// bounds of what can have been measured.
struct FieldRule {
    std::size_t place;
    const char* name;
    double missingFrom;
    double low;
    double high;
};
constexpr std::array<FieldRule, kEpwFields> kFieldRules = {{
    {7, "dry bulb temperature", 99.9, -70, 70},
    {8, "dew point temperature", 99.9, -70, 70},
    {9, "relative humidity", 999, 0, 110},
    {13, "infrared radiation of the sky", 9999, 50, 700},
    {14, "global horizontal radiation", 9999, 0, 1500},
    {15, "direct normal radiation", 9999, 0, 1415},
    {16, "diffuse horizontal radiation", 9999, 0, 1000},
    {22, "wind speed", 999, 0, 60},
    {23, "total sky cover", 99, 0, 10},
    {24, "opaque sky cover", 99, 0, 10},
}};

std::vector<std::string_view> SplitAtCommas(std::string_view line) {
    std::vector<std::string_view> fields;
    while (true) {
        const auto comma = line.find(',');
        fields.push_back(TrimBlanks(line.substr(0, comma)));
        if (comma == std::string_view::npos) return fields;
        line.remove_prefix(comma + 1);
    }
}

bool IsEmptyRow(const std::string& line) {
    return line.find_first_not_of(", \t\x1A") == std::string::npos;
}

std::optional<int> WholeOf(std::string_view text) {
    const auto value = WholeTextNumber(text);
    if (!value || *value != std::floor(*value) || std::abs(*value) > 1e6) return std::nullopt;
    return static_cast<int>(*value);
}

/// Month and day (both from 1) of an hour of the year.
struct CalendarHour {
    int month = 1;
    int day = 1;
    int hour = 1;
};

CalendarHour CalendarOf(int hour) {
    int month = 0;
    while (month < 11 && hour >= HoursOfMonth(month).end) ++month;
    const int within = hour - HoursOfMonth(month).first;
    return {month + 1, within / 24 + 1, within % 24 + 1};
}

std::string CalendarText(const CalendarHour& when) {
    return "month " + std::to_string(when.month) + " day " + std::to_string(when.day) + " hour " +
           std::to_string(when.hour);
}

class EpwReader {
public:
    EpwReading Read(const std::vector<std::string>& lines) {
        reading_.fault = ReadHeader(lines);
        if (reading_.fault) return std::move(reading_);
        std::size_t end = lines.size();
        while (end > kHeaderLines && IsEmptyRow(lines[end - 1])) --end;
        reading_.rows.reserve(kHoursOfYear);
        for (std::size_t at = kHeaderLines; at < end && !reading_.fault; ++at) {
            line_ = static_cast<int>(at) + 1;
            reading_.fault = ReadRow(lines[at]);
        }
        if (!reading_.fault) reading_.fault = CheckEnd();
        return std::move(reading_);
    }

private:
    EpwReading reading_;
    int line_ = 0;
    int leapHours_ = 0;

    Fault At(std::string field, std::string reason) const {
        return ClimateFault{line_, std::move(field), std::move(reason)};
    }

    Fault ReadHeader(const std::vector<std::string>& lines) {
        line_ = 1;
        if (lines.empty()) return At("", "the file is empty");
        std::string_view first = lines[0];
        // Some editors put a mark of three bytes in front, which either reading leaves in the line.
        const auto start = first.substr(0, 16).find("LOCATION");
        if (start == std::string_view::npos) return At("", "the line does not begin with LOCATION");
        const auto fields = SplitAtCommas(first.substr(start));
        if (Fault fault = ReadLocation(fields)) return fault;
        line_ = static_cast<int>(kHeaderLines);
        if (lines.size() < kHeaderLines ||
            !StartsWithNoCase(lines[kHeaderLines - 1], "DATA PERIODS")) {
            return At("", "the eighth line does not begin with DATA PERIODS");
        }
        const auto periods = SplitAtCommas(lines[kHeaderLines - 1]);
        if (periods.size() > 2 && WholeOf(periods[2]).value_or(1) != 1) {
            return At("3 (records an hour)", Quoted(periods[2]) + " is not 1");
        }
        return std::nullopt;
    }

    Fault ReadLocation(const std::vector<std::string_view>& fields) {
        struct Coordinate {
            std::size_t place;
            const char* name;
            double* value;
            double factor;
        };
        ClimateSite& site = reading_.site;
        for (const Coordinate& each : {Coordinate{7, "latitude", &site.latitude, 1},
                                       Coordinate{8, "longitude", &site.longitude, 1},
                                       Coordinate{9, "time zone", &site.timeMeridian, 15}}) {
            const auto text =
                each.place <= fields.size() ? fields[each.place - 1] : std::string_view();
            const auto value = WholeTextNumber(text);
            const std::string field = std::to_string(each.place) + " (" + each.name + ")";
            if (!value) return At(field, Quoted(text) + " is not a number");
            *each.value = *value * each.factor;
        }
        const std::string refusal =
            CheckCoordinates(site.latitude, site.longitude, site.timeMeridian);
        if (!refusal.empty()) return At("7 to 9", refusal);
        site.place = HeaderText(fields[1]);
        if (site.place.empty()) site.place = "unknown place";
        if (!fields[3].empty()) site.place += ", " + HeaderText(fields[3]);
        CheckMeridian(fields[7]);
        return std::nullopt;
    }

    /// A longitude of the wrong sign shows as a place far from its own time.
    void CheckMeridian(std::string_view text) {
        constexpr double kFarFromMeridian = 35;
        const double apart =
            std::remainder(reading_.site.longitude - reading_.site.timeMeridian, 360.0);
        if (std::abs(apart) < kFarFromMeridian) return;
        reading_.doubts.push_back({line_, "8 (longitude)", std::string(text),
                                   "far from the meridian of the time zone; taken as it stands"});
    }

    Fault ReadRow(const std::string& text) {
        const auto fields = SplitAtCommas(text);
        std::array<int, 5> when{};
        constexpr std::array<const char*, 5> kNames = {"1 (year)", "2 (month)", "3 (day)",
                                                       "4 (hour)", "5 (minute)"};
        for (std::size_t at = 0; at < when.size(); ++at) {
            const auto word = at < fields.size() ? fields[at] : std::string_view();
            const auto value = WholeOf(word);
            if (!value) return At(kNames[at], Quoted(word) + " is not a whole number");
            when[at] = *value;
        }
        bool leap = false;
        if (Fault fault = CheckDate({when[1], when[2], when[3]}, leap)) return fault;
        if (when[4] != 0 && when[4] != 60) {
            reading_.doubts.push_back({line_, kNames[4], std::string(fields[4]),
                                       "neither 0 nor 60; the hour is taken as a whole"});
        }
        if (fields.size() < kFieldsNeeded) {
            return At(
                std::to_string(fields.size() + 1),
                "the row ends after " + std::to_string(fields.size()) + " of at least 22 fields");
        }
        EpwRow row;
        row.line = line_;
        if (Fault fault = ReadValues(fields, row)) return fault;
        if (!leap) reading_.rows.push_back(row);
        return std::nullopt;
    }

    Fault CheckDate(const CalendarHour& is, bool& leap) {
        const int done = static_cast<int>(reading_.rows.size());
        leap = is.month == 2 && is.day == 29 && done == kLeapDayStart;
        if (!leap && done == kLeapDayStart && leapHours_ % 24 != 0) {
            return At("2 to 4 (date)", "29 February is not whole");
        }
        if (!leap && done >= kHoursOfYear) {
            return At("", "more rows than the 8760 hours of a year");
        }
        CalendarHour want = CalendarOf(std::min(done, kHoursOfYear - 1));
        if (leap) want = {2, 29, ++leapHours_};
        if (is.month == want.month && is.day == want.day && is.hour == want.hour) {
            return std::nullopt;
        }
        return At("2 to 4 (date)",
                  CalendarText(is) + " stands where " + CalendarText(want) + " was expected");
    }

    Fault ReadValues(const std::vector<std::string_view>& fields, EpwRow& row) {
        for (std::size_t at = 0; at < kEpwFields; ++at) {
            const FieldRule& rule = kFieldRules[at];
            if (rule.place > fields.size() || fields[rule.place - 1].empty()) continue;
            const std::string_view text = fields[rule.place - 1];
            const auto value = WholeTextNumber(text);
            if (!value) return At(EpwFieldName(EpwField(at)), Quoted(text) + " is not a number");
            if (*value >= rule.missingFrom) continue;
            if (*value >= rule.low && *value <= rule.high) {
                row.values[at] = value;
            } else {
                reading_.doubts.push_back({line_, EpwFieldName(EpwField(at)), std::string(text),
                                           "cannot have been measured; taken as missing"});
            }
        }
        return std::nullopt;
    }

    Fault CheckEnd() const {
        if (reading_.rows.size() == kHoursOfYear) return std::nullopt;
        const CalendarHour next = CalendarOf(static_cast<int>(reading_.rows.size()));
        return At("", "the file ends after " + std::to_string(reading_.rows.size()) +
                          " of 8760 hours; " + CalendarText(next) + " was expected next");
    }
};

}  // namespace

std::string EpwFieldName(EpwField field) {
    const FieldRule& rule = kFieldRules[std::size_t(field)];
    return std::to_string(rule.place) + " (" + rule.name + ")";
}

EpwReading ReadEpw(const std::vector<std::string>& lines) {
    return EpwReader().Read(lines);
}

}  // namespace verandis
