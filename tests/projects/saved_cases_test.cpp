#include "projects/saved_cases.h"

#include "app/program_text.h"
#include "app/session.h"
#include "app/start_up.h"
#include "case/property_file.h"
#include "platform/clock.h"
#include "projects/slot_activation.h"
#include "support/session_test.h"

namespace verandis {
namespace {

using testing_support::Bytes;
using testing_support::Dos;
using testing_support::OnDisk;
using testing_support::PutBytes;
using testing_support::TreeOf;

class FixedClock : public Clock {
public:
    std::string Date() const override { return "2026-11-21"; }
    std::string Time() const override { return "14:05"; }
};

class SavedCaseFiles : public testing_support::SmallRootTest {
protected:
    SavedCaseFiles() {
        static const FixedClock clock;
        UseClock(clock);
        MakeSlot({1, 2}, "DIMENSION_WIDTHB\t20\n");
        MakeSlot({3, 1}, "DIMENSION_WIDTHB\t30\n");
        session.ActiveShape = 3;
        session.ActiveCaseNo = 1;
    }
    std::string Saved(const std::string& file) const { return project + "/" + file; }
};

TEST_F(SavedCaseFiles, HoldPropertiesAndResultsBehindTheirMarkers) {
    PutBytes(SlotFile({1, 2}, "SimpResults.Dat"), "1\r\n2\r\n");
    ASSERT_TRUE(SaveSlots("Plan_A", {{1, 2}, {3, 1}}));
    EXPECT_EQ(Bytes(Saved("Plan_A!U2.CAS")),
              Dos("***** SimpPropertiesOfCase.Dat-Saved 2026-11-21/14:05\n"
                  "DIMENSION_WIDTHB\t20\n***** SimpResults.Dat\n1\n2\n"));
    EXPECT_EQ(Bytes(Saved("Plan_A!V1.CAS")),
              Dos("***** SimpPropertiesOfCase.Dat-Saved 2026-11-21/14:05\n"
                  "DIMENSION_WIDTHB\t30\n***** SimpResults.Dat\n"));
    EXPECT_EQ(session.CaseName, "vshape1") << "the edited slot is open again";
}

struct LoadRow {
    const char* fault;
    const char* content;
    const char* properties;
};

TEST_F(SavedCaseFiles, GiveBackPropertiesOnly) {
    constexpr LoadRow kRows[] = {
        {"both markers", "***** SimpPropertiesOfCase.Dat-x\na_b\t1\n***** SimpResults.Dat\n9\n",
         "a_b\t1\n"},
        {"no second marker", "***** SimpPropertiesOfCase.Dat\na_b\t1\nc_d\t2\n",
         "a_b\t1\nc_d\t2\n"},
        {"no marker at all empties the slot", "a_b\t1\n", ""},
        {"a line with the marker's text ends it",
         "***** SimpPropertiesOfCase.Dat\na_b\t1\nx ***** SimpResults.Dat y\nc_d\t2\n", "a_b\t1\n"},
    };
    PutBytes(SlotFile({1, 2}, "SimpResults.Dat"), "old\r\n");
    for (const LoadRow& row : kRows) {
        PutBytes(Saved("S!U2.CAS"), Dos(row.content));
        prompts.answers = {true};
        EXPECT_TRUE(LoadSavedCase("S!U2.CAS")) << row.fault;
        EXPECT_EQ(Bytes(SlotFile({1, 2}, kPropertyFileName)), Dos(row.properties)) << row.fault;
        EXPECT_EQ(Bytes(SlotFile({1, 2}, "SimpResults.Dat")), "old\r\n");
    }
    const std::string before = Bytes(SlotFile({3, 1}, kPropertyFileName));
    prompts.answers = {false};
    EXPECT_FALSE(LoadSavedCase("S!U2.CAS", Slot{3, 1})) << "a no changes nothing";
    EXPECT_EQ(Bytes(SlotFile({3, 1}, kPropertyFileName)), before);
    prompts.answers = {true};
    EXPECT_TRUE(LoadSavedCase("S!U2.CAS", Slot{3, 1})) << "another slot can be named";
    EXPECT_NE(Bytes(SlotFile({3, 1}, kPropertyFileName)), before);
    EXPECT_FALSE(LoadSavedCase("nowhere.CAS"));
}

TEST_F(SavedCaseFiles, NamesAreAskedForUntilTheyAreGood) {
    const std::string twenty(20, 'n');
    prompts.replies = {"two words", twenty + "n", "a/b", ".hidden", " " + twenty + " "};
    EXPECT_EQ(AskSetName(), twenty);
    prompts.replies = {""};
    EXPECT_EQ(AskSetName(), "") << "an empty name is good";
    prompts.replies = {std::nullopt};
    EXPECT_EQ(AskSetName(), std::nullopt);
}

TEST_F(SavedCaseFiles, AreCopiedUnderAnotherNameButNeverOverACase) {
    PutBytes(Saved("Old!U2.CAS"), "old");
    PutBytes(Saved("Taken!U2.CAS"), "taken");
    prompts.replies = {"Taken"};
    EXPECT_FALSE(CopySavedCase("Old!U2.CAS"));
    EXPECT_EQ(Bytes(Saved("Taken!U2.CAS")), "taken");
    prompts.replies = {"New"};
    EXPECT_TRUE(CopySavedCase("Old!U2.CAS"));
    EXPECT_EQ(Bytes(Saved("New!U2.CAS")), "old");
    prompts.answers = {false, true};
    EXPECT_FALSE(DeleteSavedCase("New!U2.CAS"));
    EXPECT_TRUE(DeleteSavedCase("New!U2.CAS"));
    EXPECT_FALSE(OnDisk(Saved("New!U2.CAS")));
}

struct NameRow {
    const char* file;
    const char* set;
    Slot slot;
    const char* inO3;
};

TEST_F(SavedCaseFiles, TellSetAndSlotByTheirNames) {
    constexpr NameRow kRows[] = {
        {"A!U2.CAS", "A", {1, 2}, "A!O3.CAS"},
        {"!i4.cas", "", {4, 4}, "!O3.cas"},
        {"a!b.c!V1.CAS", "a!b.c", {3, 1}, "a!b.c!O3.CAS"},
        {"A!U2 old.CAS", "A", {1, 2}, "A!O3.CAS"},  // only two characters are read
        {"A!U5.CAS", "A", {}, "A!O3.CAS"},
        {"A!.CAS", "A", {}, "A!O3.CAS"},
        {"my.loose.CAS", "", {}, "my.loose!O3.CAS"},
    };
    for (const NameRow& row : kRows) {
        const SavedCase saved = SavedCaseOf(row.file);
        EXPECT_EQ(saved.set, row.set) << row.file;
        EXPECT_EQ(saved.slot, row.slot) << row.file;
        EXPECT_EQ(FileInSlot(row.file, {2, 3}), row.inO3);
    }
}

TEST_F(SavedCaseFiles, TellWhatIsOnDiskWhenSavingStops) {
    session.ProgramText = Catalogue({"20906, In %1:", "20907, none", "20901, No:"});
    PutBytes(Saved("Half!V1.CAS/in_the_way"), "");
    prompts.replies = {"Half", ""};
    EXPECT_EQ(SaveUnderAskedName({{1, 1}, {1, 2}, {3, 1}}), "In Half: U2");
    EXPECT_EQ(prompts.shown.back().text, "No: Half!V1.CAS");
    EXPECT_EQ(SaveUnderAskedName({{3, 1}, {1, 2}}), "In none: V1, U2");
    EXPECT_EQ(SaveUnderAskedName({{1, 1}}), "") << "cancelled";
}

class AllSlotsSaved : public testing_support::DeliveredRootTest {};

TEST_F(AllSlotsSaved, ComeBackAfterAStartAsTheyWere) {
    ASSERT_TRUE(StartSession());
    for (const Slot& slot : AllSlots()) {
        ASSERT_TRUE(ActivateSlot(slot.caseNo, slot.shape, ""));
        ASSERT_TRUE(SetCaseProperty("DIMENSION", "WIDTHB", SlotLabel(slot)));
    }
    const auto edited = TreeOf(project);
    ASSERT_TRUE(SaveSlots("all", {AllSlots().begin(), AllSlots().end()}));
    ASSERT_TRUE(StartSession());
    EXPECT_EQ(SavedCases().size(), 16u);
    for (const SavedCase& saved : SavedCases()) {
        prompts.answers = {true};
        EXPECT_TRUE(LoadSavedCase(saved.file)) << saved.file;
        prompts.answers = {true};
        DeleteSavedCase(saved.file);
    }
    EXPECT_EQ(TreeOf(project), edited);
}

TEST_F(AllSlotsSaved, ACaseCanBecomeWhatItsSlotStartsWith) {
    ASSERT_TRUE(StartSession());
    SetCaseProperty("DIMENSION", "WIDTHB", " 33");
    prompts.answers = {true};
    ASSERT_TRUE(RedefineDefault());
    SetCaseProperty("DIMENSION", "WIDTHB", " 44");
    ASSERT_TRUE(StartSession());
    std::string width;
    GetCaseProperty("DIMENSION", "WIDTHB", width);
    EXPECT_EQ(width, " 33");
}

}  // namespace
}  // namespace verandis
