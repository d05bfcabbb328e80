#include "results/report_table.h"

#include "text/csv.h"

namespace verandis {
namespace {

std::string CsvLine(const std::vector<std::string>& cells) {
    std::string line;
    for (std::size_t at = 0; at < cells.size(); ++at) {
        if (at > 0) line += ",";
        line += CsvText(cells[at]);
    }
    return line + "\n";
}

}  // namespace

std::string TableCsv(const ReportTable& table) {
    std::string text = CsvLine(table.heads);
    for (const auto& row : table.rows) text += CsvLine(row);
    return text;
}

}  // namespace verandis
