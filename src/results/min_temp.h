#pragma once

#include <string>
#include <vector>

#include "results/report_table.h"

namespace verandis {

/// Which columns of the table of minimum temperatures are wanted beside those that always stand.
struct MinTempColumns {
    bool building = true;
    bool outdoor = true;
};

/// Places of the two columns when all stand.
inline constexpr int kBuildingColumn = 3;
inline constexpr int kOutdoorColumn = 4;

/// One row a month for each calculated case: case, month, minimum of the glazed space, the
/// building, the outdoor air (C), energy for heating and for cooling (kWh). A remark tells when the
/// run gave no energies. Without rows when there are no results.
ReportTable MinTempTable(const MinTempColumns& columns);

/// The same as lines for a file: for each case its label and climate, with " : " between label and
/// value, then heads and months with ";" between the columns.
std::vector<std::string> MinTempLines(const MinTempColumns& columns);

}  // namespace verandis
