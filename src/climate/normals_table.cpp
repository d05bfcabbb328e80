#include "climate/normals_table.h"

#include <algorithm>
#include <cmath>

#include "text/characters.h"

namespace verandis {
namespace {

using Fault = std::optional<ClimateFault>;

struct NumberKey {
    std::string_view name;
    double* value;
    double low;
    double high;
    bool seen = false;
};

/// Reads line by line; each routine returns the fault that ends the reading.
class NormalsReader {
public:
    NormalsReading Read(const std::vector<std::string>& lines) {
        for (const std::string& text : lines) {
            ++line_;
            std::string plain = text;
            std::replace(plain.begin(), plain.end(), '\t', ' ');
            const std::string_view trimmed = TrimBlanks(plain);
            if (trimmed.empty() || trimmed.front() == '#') continue;
            const auto colon = trimmed.find(':');
            Fault fault = colon == std::string_view::npos
                              ? ReadMonth(trimmed)
                              : ReadKey(trimmed.substr(0, colon), trimmed.substr(colon + 1));
            if (fault) return {reading_.table, fault};
        }
        reading_.fault = Missing();
        return reading_;
    }

private:
    NormalsReading reading_;
    NormalsTable& table_ = reading_.table;
    int line_ = 0;
    std::array<NumberKey, 4> numbers_ = {
        {{"Latitude", &reading_.table.site.latitude, -90, 90},
         {"Longitude", &reading_.table.site.longitude, -180, 180},
         {"Time meridian", &reading_.table.site.timeMeridian, -180, 180},
         {"Wind speed", &reading_.table.wind, 0, 30, true}}};

    Fault At(std::string field, std::string reason) const {
        return ClimateFault{line_, std::move(field), std::move(reason)};
    }

    Fault ReadKey(std::string_view key, std::string_view text) {
        key = TrimBlanks(key);
        text = TrimBlanks(text);
        for (NumberKey& number : numbers_) {
            if (EqualNoCase(key, number.name)) return ReadNumber(number, text);
        }
        if (EqualNoCase(key, "Place")) {
            table_.site.place = HeaderText(text);
        } else if (EqualNoCase(key, "Base")) {
            table_.base = text;
            const std::string refusal = CheckBaseName(text);
            if (!refusal.empty()) return At("Base", refusal);
        } else if (EqualNoCase(key, "Source")) {
            if (!table_.source.empty()) table_.source += " ";
            table_.source += HeaderText(text);
        } else if (EqualNoCase(key, "Sun")) {
            return ReadSunKind(text);
        } else {
            return At("", "the key " + Quoted(key) + " is not known");
        }
        return std::nullopt;
    }

    Fault ReadNumber(NumberKey& number, std::string_view text) {
        const auto value = WholeTextNumber(text);
        if (!value || *value < number.low || *value > number.high) {
            return At(std::string(number.name), Quoted(text) + " is not a number within " +
                                                    std::to_string(int(number.low)) + " to " +
                                                    std::to_string(int(number.high)));
        }
        *number.value = *value;
        number.seen = true;
        return std::nullopt;
    }

    Fault ReadSunKind(std::string_view text) {
        table_.sunIsHours = EqualNoCase(text, "hours");
        if (table_.sunIsHours || EqualNoCase(text, "kWh/m2")) return std::nullopt;
        return At("Sun", Quoted(text) + " is neither \"kWh/m2\" nor \"hours\"");
    }

    Fault ReadMonth(std::string_view text) {
        constexpr std::array<const char*, 5> kColumns = {
            "month", "mean temperature", "mean daily minimum", "mean daily maximum", "sun"};
        std::array<double, 5> values{};
        for (std::size_t column = 0; column < kColumns.size(); ++column) {
            text = TrimLeadingBlanks(text);
            const std::string_view word = text.substr(0, text.find(' '));
            const auto value = WholeTextNumber(word);
            if (!value) return At(kColumns[column], Quoted(word) + " is not a number");
            values[column] = *value;
            text.remove_prefix(word.size());
        }
        if (!TrimBlanks(text).empty())
            return At("", "more than five columns in the row of a month");
        const double number = values[0];
        if (number < 1 || number > 12 || number != std::floor(number)) {
            return At("month", "a month is a whole number from 1 to 12");
        }
        MonthNormals& month = table_.months[static_cast<std::size_t>(number) - 1];
        if (month.line > 0) return At("month", "this month stands in an earlier row too");
        month = {values[1], values[2], values[3], values[4], line_};
        return CheckMonth(month);
    }

    Fault CheckMonth(const MonthNormals& month) const {
        const double range = month.dailyMaximum - month.dailyMinimum;
        if (month.dailyMinimum < -70 || month.dailyMaximum > 60) {
            return At("mean daily minimum and maximum", "outside of -70 to 60 C");
        }
        if (range < 0.5) return At("mean daily maximum", "not 0.5 degrees above the minimum");
        const double place = (month.mean - month.dailyMinimum) / range;
        if (place < 0.3 || place > 0.7) {
            return At("mean temperature", "not near the middle of daily minimum and maximum");
        }
        if (month.sun < 0) return At("sun", "below zero");
        return std::nullopt;
    }

    Fault Missing() const {
        const auto lacks = [](const std::string& what) {
            return ClimateFault{0, "", "the table has no " + what};
        };
        if (table_.site.place.empty()) return lacks("line \"Place:\"");
        if (table_.base.empty()) return lacks("line \"Base:\"");
        if (table_.source.empty()) return lacks("line \"Source:\"");
        for (const NumberKey& number : numbers_) {
            if (!number.seen) return lacks("line \"" + std::string(number.name) + ":\"");
        }
        for (std::size_t month = 0; month < 12; ++month) {
            if (table_.months[month].line == 0)
                return lacks("row of month " + std::to_string(month + 1));
        }
        return std::nullopt;
    }
};

}  // namespace

NormalsReading ReadNormals(const std::vector<std::string>& lines) {
    return NormalsReader().Read(lines);
}

}  // namespace verandis
