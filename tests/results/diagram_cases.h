#pragma once

#include <string>
#include <vector>

#include "app/session.h"
#include "calc/results.h"
#include "case/shapes.h"

namespace verandis::testing_support {

/// Short words for all texts of the diagrams, with capitals where lower-casing has to show.
inline void UseDiagramWords() {
    std::vector<std::string> lines = {"10071, Medel|Emissivitet",
                                      "20071, Mean|Emissivity",
                                      "10110, Effekt",
                                      "20110, Power",
                                      "20196, Case",
                                      "10198, Månad",
                                      "20198, Month",
                                      "10203, Ätrum",
                                      "20203, Glazed Space",
                                      "20262, Need|Glass",
                                      "10263, Effekt för värme",
                                      "20263, Power for heat",
                                      "10266, Temperatur i luften",
                                      "20266, Temperature of air",
                                      "10270, Lägst",
                                      "20270, Least",
                                      "10278, Ute",
                                      "20278, Outdoor",
                                      "20600, Most",
                                      "20601, Top",
                                      "20602, Heat",
                                      "20603, Cool",
                                      "10604, Timmar",
                                      "20604, Hours",
                                      "20607, Function",
                                      "20608, Not written:",
                                      "20619, Nothing",
                                      "20621, Not saved:",
                                      "20622, January outdoors"};
    for (int month = 1; month <= kMonths; ++month) {
        lines.push_back(std::to_string(20400 + month) + ", M" + std::to_string(month));
    }
    session.ProgramText = Catalogue(lines);
}

/// Results of a slot: in month m `Tmin` is base + m, `TempOut` 10 less, `Ph` 1000 times as much.
inline void PutCase(const Slot& slot, std::size_t position, float base) {
    const auto shape = static_cast<std::size_t>(slot.shape);
    const auto caseNo = static_cast<std::size_t>(slot.caseNo);
    runResults.CaseResultCount[shape][caseNo] = 1;
    runResults.SlotClimateLabels[shape][caseNo] = "Climate:TOWN";
    runResults.CaseResults[position].TempB = 20;
    for (std::size_t month = 1; month <= kMonths; ++month) {
        MonthResult& result = runResults.MonthResults[position][month];
        result.Tmin = base + static_cast<float>(month);
        result.TempOut = result.Tmin - 10;
        result.Ph = result.Tmin * 1000;
    }
}

}  // namespace verandis::testing_support
