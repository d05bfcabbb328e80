#pragma once

#include <string>
#include <vector>

namespace verandis {

/// A table as data, for a window, paper or a file. Every row has as many cells as there are heads.
struct ReportTable {
    std::string section;  // stands above it in larger letters; empty: it belongs to the one before
    std::string title;    // empty for none
    std::vector<std::string> heads;
    std::vector<std::vector<std::string>> rows;
    std::size_t firstFigure = 0;  // place from which the cells of a row are figures; 0: none are
    std::string remark;           // below it; stands alone when there are no rows
};

/// The table as comma-separated values, heads first, lines ended by a line feed.
std::string TableCsv(const ReportTable& table);

}  // namespace verandis
