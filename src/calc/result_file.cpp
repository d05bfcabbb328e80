#include "calc/result_file.h"

#include <string>
#include <vector>

#include "app/run_stop.h"
#include "calc/marked_slots.h"
#include "calc/results.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "text/numbers.h"

namespace verandis {
namespace {

constexpr const char* kEndMark = "U";  // of every shape, and never the guide's verdict

std::vector<std::string> ResultLines(const CaseResult& result, const RunResults::Year& year) {
    std::vector<std::string> lines;
    const auto add = [&](float value) { lines.push_back(NumberText(value)); };
    for (const float value : {result.SetPointG, result.TdgMean, result.PowerDemandMax,
                              result.HeatEnergyMax, result.CoolEnergyMax}) {
        add(value);
    }
    for (std::size_t month = 1; month <= kMonths; ++month) {
        const MonthResult& each = year[month];
        for (const float value :
             {each.Tmin, each.Tmean, each.Ph, each.Eh, each.Ec, each.Reserved, each.TempOut}) {
            add(value);
        }
    }
    lines.emplace_back(kEndMark);
    return lines;
}

}  // namespace

void WriteSteadyResults() {
    std::size_t position = 0;
    for (const Slot& slot : MarkedSlots()) {
        ++position;
        ActivateForRun(slot);
        const std::string path = JoinPath(session.CaseFolder, kResultFileName);
        const auto lines =
            ResultLines(runResults.CaseResults[position], runResults.MonthResults[position]);
        if (!WriteLines(path, lines)) StopRun("the file " + path + " cannot be written");
    }
}

}  // namespace verandis
