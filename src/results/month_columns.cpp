#include "results/month_columns.h"

#include <algorithm>

#include "text/numbers.h"

namespace verandis {

double MeanOf(const RunResults::Year& year, float MonthResult::*value) {
    double sum = 0;
    for (std::size_t month = 1; month <= kMonths; ++month) sum += double(year[month].*value);
    return sum / kMonths;
}

double LargestOf(const RunResults::Year& year, float MonthResult::*value) {
    float largest = year[1].*value;
    for (std::size_t month = 1; month <= kMonths; ++month) {
        largest = std::max(largest, year[month].*value);
    }
    return double(largest);
}

std::string MonthCell(double value, const MonthColumn& column) {
    return FixedText(value, column.decimals);
}

}  // namespace verandis
