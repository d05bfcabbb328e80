#include "calc/run_control.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <ostream>

#include "app/data_root.h"
#include "app/program_text.h"
#include "calc/heat_balance.h"
#include "calc/result_file.h"
#include "calc/results.h"
#include "support/session_test.h"

namespace verandis {
namespace {

using testing_support::Bytes;
using testing_support::OnDisk;
using testing_support::PutBytes;
using Texts = std::vector<std::string>;

/// Writes down what a run does to its window; what the guide does can be set.
class RecordingDisplay : public RunDisplay {
public:
    std::string log;
    std::function<void()> guide = [] {};

    void HideDiagrams() override { log += "hide "; }
    void SetCaption(const std::string& text) override { log += "[" + text + "] "; }
    void AllowPrinting(bool allowed) override { log += allowed ? "print+ " : "print- "; }
    void AllowCancel(bool allowed) override { log += allowed ? "cancel+ " : "cancel- "; }
    void OpenGuide() override {
        log += "guide ";
        guide();
    }
    void ShowSteadyCharts() override { log += "steady "; }
    void ShowDynamicCharts() override { log += "dynamic "; }
    void ShowDiagrams() override { log += "show "; }
    void AllowTwoCaseView(bool allowed) override { log += allowed ? "two+ " : "two- "; }
    void ResetSeriesBoxes() override { log += "series "; }
    void BlackenMarkLabels() override { log += "black"; }
};

constexpr const char* kTooMany =
    "At most four cases are calculated in one run; three or fewer are easier to read.\n\n\n\n";
constexpr const char* kStart = "hide [Results] ";

class Runs : public testing_support::SmallRootTest {
protected:
    Runs() {
        session.SimulatorFolder = DeliveredFolder() + "/MWTHARM";
        LoadProgramText();
        for (const Slot& slot : AllSlots()) MakeSlot(slot, Properties(slot));
        std::string climate = "1\n2\n3\n";
        for (int month = 1; month <= 12; ++month) climate += std::to_string(month) + "\t-5\t0\t0\n";
        PutBytes(root + "/CLIM/TOWN_1S.dat", climate);
        session.ActiveShape = kShapeV;
        session.ActiveCaseNo = 1;
        session.CalcMode = kSteadyState;
    }

    /// Set point 11 for U1, 34 for V4 and so on, to tell the cases apart.
    static std::string Properties(const Slot& slot) {
        return "DIMENSION_WIDTHB\t20\nDIMENSION_DEPTHB\t21\nDIMENSION_HIGTHB\t9\nDIMENSION_WIDTHG\t10\n"
               "DIMENSION_DEPTHG\t10\nDIMENSION_OFFD\t5\nDIMENSION_TILT\t30\nCLIMATE_FILE\tTOWN_1\n"
               "HVACG_INF\t1\nTDG_TDGMEAN\t8\nHVACG_HEATING\t" + std::to_string(slot.shape) +
               std::to_string(slot.caseNo) + "\nXU2-XO2-XV2-XI2_ORIENTATION\t0\n" +
               Orientations(slot.shape);
    }

    static std::string Orientations(int shape) {
        std::string text;
        for (const std::string_view id : ElementsOf(shape, Series::Glazing)) {
            text += std::string(id) + "_ORIENTATION\t0\n";
        }
        return text;
    }

    RunOutcome Run(const std::vector<const char*>& labels) {
        session.ChkCase = {};
        for (const char* label : labels) {
            const Slot slot = SlotOfLabel(label);
            session.ChkCase[static_cast<std::size_t>(slot.shape)][static_cast<std::size_t>(slot.caseNo)] =
                true;
        }
        return Calculate_Click(display);
    }

    bool HasResults(const Slot& slot) { return OnDisk(SlotFile(slot, "SimpResults.Dat")); }

    RecordingDisplay display;
};

}  // namespace
}  // namespace verandis
