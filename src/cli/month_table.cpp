#include "cli/month_table.h"

#include <cmath>

#include "app/program_text.h"
#include "calc/marked_slots.h"
#include "calc/properties.h"
#include "projects/slot_activation.h"
#include "results/diagrams.h"
#include "results/month_columns.h"
#include "text/characters.h"
#include "text/csv.h"
#include "text/numbers.h"

namespace verandis {
namespace {

constexpr int kMonthWord = 198;

constexpr std::size_t kWidths[] = {8, 7, 8};  // of the columns, in their order
constexpr std::size_t kFirstWidth = 10;
constexpr std::size_t kCaseWidth = 23;

std::string Right(const std::string& text, std::size_t width) {
    const std::size_t length = Length(text);
    return (length < width ? std::string(width - length, ' ') : "") + text;
}

std::string LeftAligned(const std::string& text, std::size_t width) {
    const std::size_t length = Length(text);
    return text + (length < width ? std::string(width - length, ' ') : "");
}

template <class ValueOf>
std::string Row(const std::string& head, const std::vector<CalculatedCase>& cases,
                const ValueOf& valueOf) {
    std::string line = LeftAligned(head, kFirstWidth);
    for (const CalculatedCase& each : cases) {
        for (std::size_t at = 0; at < kMonthColumns.size(); ++at) {
            const MonthColumn& column = kMonthColumns[at];
            line += Right(MonthCell(valueOf(each.months, column.value), column), kWidths[at]);
        }
    }
    return line + "\n";
}

std::string Heads(const std::vector<CalculatedCase>& cases) {
    std::string names(kFirstWidth, ' ');
    std::string columns = LeftAligned(Text(kMonthWord), kFirstWidth);
    for (const CalculatedCase& each : cases) {
        names += Right(SlotLabel(each.slot) + " " + each.climate, kCaseWidth);
        for (std::size_t at = 0; at < kMonthColumns.size(); ++at) {
            columns += Right(kMonthColumns[at].head, kWidths[at]);
        }
    }
    return names + "\n" + columns + "\n";
}

std::string JsonText(const std::string& text) {
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') quoted += '\\';
        if (static_cast<unsigned char>(c) >= 0x20) quoted += c;
    }
    return quoted + "\"";
}

/// JSON has no word for what is no number.
std::string JsonNumber(float value) {
    return std::isfinite(value) ? TrimmedNumberText(value) : "null";
}

std::string JsonMonth(std::size_t month, const MonthResult& result) {
    std::string text = "{\"month\": " + std::to_string(month);
    for (const MonthColumn& column : kMonthColumns) {
        text += std::string(", \"") + column.key + "\": " + JsonNumber(result.*column.value);
    }
    return text + "}";
}

std::string JsonCase(const CalculatedCase& each) {
    std::string text = "    {\"slot\": " + JsonText(SlotLabel(each.slot)) +
                       ", \"climate\": " + JsonText(each.climate) +
                       ", \"setPointG\": " + JsonNumber(each.result.SetPointG) +
                       ", \"tempB\": " + JsonNumber(each.result.TempB) + ", \"months\": [\n";
    for (std::size_t month = 1; month <= kMonths; ++month) {
        text += "        " + JsonMonth(month, each.months[month]);
        text += month < kMonths ? ",\n" : "\n";
    }
    return text + "    ]}";
}

}  // namespace

std::vector<CalculatedCase> CalculatedCases() {
    std::vector<CalculatedCase> cases;
    std::size_t position = 0;
    for (const Slot& slot : MarkedSlots()) {
        ++position;
        ActivateForRun(slot);
        cases.push_back({slot, std::string(TrimBlanks(PropertyText("CLIMATE", "FILE"))),
                         runResults.CaseResults[position], runResults.MonthResults[position]});
    }
    ReactivateEditedSlot();
    return cases;
}

std::string MonthTable(const std::vector<CalculatedCase>& cases) {
    std::string table = Heads(cases);
    for (std::size_t month = 1; month <= kMonths; ++month) {
        table += Row(MonthName(static_cast<int>(month)), cases,
                     [&](const RunResults::Year& year, float MonthResult::*value) {
                         return double(year[month].*value);
                     });
    }
    table += Row(Text(kMeanWord), cases, MeanOf);
    table += Row(Text(kLargestWord), cases, LargestOf);
    table += "\n";
    for (const MonthColumn& column : kMonthColumns) {
        table += std::string(column.head) + "  " + Text(column.word) + ", " + column.unit + "\n";
    }
    return table;
}

std::string MonthCsv(const std::vector<CalculatedCase>& cases) {
    std::string text = "slot,climate,month";
    for (const MonthColumn& column : kMonthColumns) text += std::string(",") + column.key;
    text += "\n";
    for (const CalculatedCase& each : cases) {
        for (std::size_t month = 1; month <= kMonths; ++month) {
            text +=
                SlotLabel(each.slot) + "," + CsvText(each.climate) + "," + std::to_string(month);
            for (const MonthColumn& column : kMonthColumns) {
                text += "," + TrimmedNumberText(each.months[month].*column.value);
            }
            text += "\n";
        }
    }
    return text;
}

std::string MonthJson(const std::vector<CalculatedCase>& cases) {
    std::string text = "{\"cases\": [\n";
    for (std::size_t at = 0; at < cases.size(); ++at) {
        text += JsonCase(cases[at]);
        text += at + 1 < cases.size() ? ",\n" : "\n";
    }
    return text + "]}\n";
}

}  // namespace verandis
