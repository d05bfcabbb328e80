#include "dialogs/hvac.h"

#include "app/data_root.h"
#include "app/program_text.h"
#include "app/session.h"
#include "case/property_file.h"
#include "dialogs/case_title.h"
#include "dialogs/demands.h"
#include "support/session_test.h"
#include "text/separators.h"

// The two dialogs on running conditions without their windows, with the delivered texts.

namespace verandis {
namespace {

using testing_support::Bytes;
using testing_support::Dos;

/// Types "HG=20;CG=5" over the boxes.
ConditionTexts Over(ConditionTexts boxes, std::string_view typed) {
    while (!typed.empty()) {
        const std::string_view box = LeftOfSeparator(typed, ";");
        boxes[std::string(LeftOfSeparator(box, "="))] = RightOfSeparator(box, "=");
        typed = RightOfSeparator(typed, ";");
    }
    return boxes;
}

HvacTexts Hvac(std::string_view typed, int forced = 0) {
    constexpr const char* kGood = "HG=;HB=20;CG=;CB=26;IG=0.5;IB=0;ILG=0;ILB=4;FVV=";
    return {Over(Over({}, kGood), typed), forced};
}

class Conditions : public testing_support::SmallRootTest {
protected:
    Conditions() {
        session.SimulatorFolder = DeliveredFolder() + "/MWTHARM";
        LoadProgramText();
    }

    void Open(const std::string& properties) { MakeSlot({kShapeU, 1}, properties); }
    std::string FilePath() const { return SlotFile({kShapeU, 1}, kPropertyFileName); }
};

TEST_F(Conditions, TitlesCountTheIShapeByNumber) {
    session.ActiveCaseNo = 3;
    session.ActiveShape = kShapeI;
    EXPECT_EQ(CountedCaseTitle(822), "Design demands (I-shape/Case number 3)");
    session.ActiveShape = kShapeV;
    EXPECT_EQ(CountedCaseTitle(821), "Set points and loads (V-shape/Case index 3)");
}

TEST_F(Conditions, DemandsShowTheirDefaultsAndTheUsersDecimalSign) {
    session.Decimals = DecimalMode::Comma;
    Open("AIRCHANGE_ACHG\t 0.75\nTDG_TDGMEAN\t-999999\nTDG_POWDEMHEAT\t 1500\n");
    session.ElementKindMark = 2;
    const char* shown = "MTB1=0,75;MTB2=0;MTB3=5;MTB4=10;MTB5=20;MTB6=1500;MTB7=;MTB8=";
    EXPECT_EQ(LoadDemands(), Over({}, shown));
    EXPECT_EQ(session.ElementKindMark, 0) << "a kind would be stored behind each value";
}

TEST_F(Conditions, DemandsAreCheckedOneByOne) {
    Open("CASE_NOTE\tx\n");
    const struct {
        const char* typed;
        std::string text;
        std::string focus;
    } rows[] = {
        {"MTB1=50;MTB3=40;MTB6=99999", "", ""},
        {"MTB1=;MTB5=", "", ""},
        {"MTB1=50.5", "Airchanges in glazed space - out of bounds\r", "MTB1"},
        {"MTB6=100000", "Design max power demand - out of bounds\r", "MTB6"},
        {"MTB3=-5", "Design min temperature in glazed space - not correct\r", "MTB3"},
        {"MTB5=41", "Design mean temperature in glazed space - out of bounds\r", "MTB5"},
        {"MTB8=1E3;MTB2=1,5",
         "Airchanges in building - not correct\rDesign max cooling energy demand - not correct\r",
         "MTB8"},
    };
    for (const auto& row : rows) {
        const ConditionComplaints found = CheckDemands(Over(LoadDemands(), row.typed));
        EXPECT_EQ(found.text, row.text);
        EXPECT_EQ(found.focus, row.focus);
    }
}

TEST_F(Conditions, DemandsAreStoredInTheirOrderAndEmptyOnesAsNotSet) {
    session.Decimals = DecimalMode::Comma;
    Open("CASE_NOTE\tx\n");
    EXPECT_TRUE(StoreDemands(Over(LoadDemands(), "MTB1=;MTB3=7,5;MTB7=90000")));
    EXPECT_EQ(Bytes(FilePath()),
              Dos("CASE_NOTE\tx\nAIRCHANGE_ACHG\t-999999\nAIRCHANGE_ACHB\t 0\n"
                  "TDG_TDGMIN\t 7.5\nTDG_TDGMEAN\t 10\nTDG_POWDEMHEAT\t-999999\n"
                  "TDG_ENERDEMHEAT\t 90000\nTDG_ENERDEMCOOL\t-999999\nTB_SETMINMAX\t 20\n"));
}

TEST_F(Conditions, ForcedFlowFollowsItsModeAndUnknownModesAreNone) {
    Open("HVAC_FVI\t 1\nHVAC_FVV\t 30\n");
    const std::pair<const char*, int> modes[] = {
        {" 1", 1}, {" 2", 2}, {" 0", 0}, {"-999999", 0}, {" 3", 0}};
    for (const auto& [mode, row] : modes) {
        SetCaseProperty("HVAC", "FVI", mode);
        EXPECT_EQ(LoadHvac().CMBFV, row) << mode;
        EXPECT_EQ(LoadHvac().boxes.at("FVV"), row ? "30" : "") << mode;
    }
    EXPECT_EQ(ForcedFlowRows()[2], "Flow from\u00A0Building -> Glazed space");
    session.Language = 1;
    EXPECT_EQ(ForcedFlowRows()[0], "Ingen forcerad ventilation");
    EXPECT_EQ(ForcedFlowRows()[1], "Mek.vent. från\u00A0Glasrum -> Byggnad");
}

TEST_F(Conditions, HvacIsCheckedWithItsOwnFocus) {
    const std::string above = "The heating set point lies above the cooling set point\r";
    const std::string noNumber = ": the typed text is not a number\r";
    const std::string outsideHB = "Heat B: the value lies outside -50 to 50\r";
    const struct {
        const char* fault;
        HvacTexts typed;
        std::string text;
        std::string focus;
    } rows[] = {
        {"blanks are no text", Hvac("HG=  "), "", ""},
        {"heating may equal cooling", Hvac("HG=20;CG=20"), "", ""},
        {"one alone is not compared", Hvac("CG=20;HB=;CB=5"), "", ""},
        {"bounds are allowed", Hvac("HB=50;CB=50"), "", ""},
        {"no sign", Hvac("HG=-5"), "Heat G" + noNumber, "HG"},
        {"too hot", Hvac("CG=50.1"), "Cool G: the value lies outside -10 to 50\r", "CG"},
        {"a bad one is not compared", Hvac("HB=51;CB=5"), outsideHB, "HB"},
        {"own text", Hvac("CB=x"), "Cool B - the typed text is not a number\r", "CB"},
        {"crossed in both zones", Hvac("HG=21;CG=20;HB=30"), above + above, "HB"},
        {"needed", Hvac("IG= "), "Infiltration" + noNumber, "IG"},
        {"the other sign", Hvac("IB=1,5"), "Infiltration" + noNumber, "IB"},
        {"flow out of use", Hvac("FVV=x"), "", ""},
        {"flow goes to another box", Hvac("", 2), "Forced flow is not a number\r", "CB"},
        {"loads go to another box", Hvac("ILG=;ILB=+"),
         "Internal load, glazed space" + noNumber + "Internal load, building" + noNumber, "IB"},
    };
    for (const auto& row : rows) {
        const ConditionComplaints found = CheckHvac(row.typed);
        EXPECT_EQ(found.text, row.text) << row.fault;
        EXPECT_EQ(found.focus, row.focus) << row.fault;
    }
    EXPECT_EQ(AmountComplaint(333, 7, true, -1), "Internal load, glazed space < 0 ");
    session.Language = 1;
    EXPECT_EQ(CheckHvac(Hvac("ILG=", 1)).text,
              "Forcerat flöde är inte ett tal\rInternlast, glasrum: uppgiften är inte ett tal\r");
    session.ProgramText = {};
    EXPECT_EQ(CheckHvac(Hvac("IG=")).text, "\r") << "refused without a catalogue, too";
}

TEST_F(Conditions, HvacIsStoredInItsOrderAndShownAgain) {
    Open("CASE_NOTE\tx\n");
    EXPECT_TRUE(StoreHvac(Hvac("HG= ;FVV=12.5", 1)));
    EXPECT_EQ(Bytes(FilePath()), Dos("CASE_NOTE\tx\nHVACG_HEATING\t-999999\nHVACB_HEATING\t 20\n"
                                     "HVACG_COOLING\t-999999\nHVACB_COOLING\t 26\n"
                                     "HVACG_INF\t 0.5\nHVACB_INF\t 0\nHVACG_INTLOAD\t 0\n"
                                     "HVACB_INTLOAD\t 4\nHVAC_FVI\t 1\nHVAC_FVV\t 12.5\n"));
    EXPECT_EQ(LoadHvac(), Hvac("FVV=12.5", 1));
    ASSERT_EQ(std::remove(FilePath().c_str()), 0);
    EXPECT_TRUE(StoreHvac(Hvac(""))) << "a missing file takes the values in silence";
    EXPECT_TRUE(prompts.shown.empty());
}

}  // namespace
}  // namespace verandis
