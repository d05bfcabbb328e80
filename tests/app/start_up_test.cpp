#include "app/start_up.h"

#include <algorithm>
#include <filesystem>

#include "app/data_root.h"
#include "app/session.h"
#include "app/settings.h"
#include "case/property_file.h"
#include "case/site_file.h"
#include "platform/encoding.h"
#include "platform/files.h"
#include "projects/slot_activation.h"
#include "support/session_test.h"
#include "text/characters.h"

namespace verandis {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;
using DataRoot = testing_support::SessionTest;
using testing_support::Bytes;
using testing_support::OnDisk;
using testing_support::PutBytes;
using testing_support::TreeOf;

TEST_F(DataRoot, IsTheDeliveredTreeAndOneProjectLineAndNeverMadeOverAnother) {
    const std::string root = Path("New/Root");
    ASSERT_EQ(MakeDataRoot(root), "");
    EXPECT_EQ(Bytes(root + "/PROJECT/PROJECTS.LIB"),
              "verandis\t" + LowerCase(root) + "/project/verandis\r\n");
    for (const char* folder : {"/CLIM", "/MWTHARM", "/PROJECT/verandis", "/WTHARM"}) {
        EXPECT_TRUE(TreeOf(root + folder) == TreeOf(DeliveredFolder() + folder)) << folder;
    }
    PutBytes(root + "/PROJECT/verandis/CASES.LIB", "mine");
    EXPECT_NE(MakeDataRoot(root), "");
    EXPECT_EQ(Bytes(root + "/PROJECT/verandis/CASES.LIB"), "mine");
}

TEST_F(DataRoot, TellsWhyItCannotBeMadeAndCanBeTriedAgain) {
    PutBytes(Path("Half/CLIM"), "a file where a folder should be");
    for (const char* folder : {"Half/CLIM/below", "a b", "Half"}) {
        EXPECT_NE(MakeDataRoot(Path(folder)), "") << folder;
        EXPECT_FALSE(IsDataRoot(Path(folder))) << folder;
    }
    EXPECT_FALSE(OnDisk(Path("a b")));
    fs::remove(Path("Half/CLIM"));
    EXPECT_EQ(MakeDataRoot(Path("Half")), "");
}

class Start : public testing_support::DeliveredRootTest {
protected:
    /// One climate in letters that a search without regard to case has to sort first.
    Start() {
        fs::remove_all(root + "/CLIM");
        PutBytes(root + "/CLIM/BERLIN_1D.cli", "");
        PutBytes(root + "/CLIM/aaa_1D.CLI", "");
    }

    std::string In(const Slot& slot, const std::string& file) const {
        return project + "/" + SlotFolderName(slot) + "/" + file;
    }

    /// What the next run of the program does: a new session from the settings on disk.
    static bool Again() {
        session = {};
        return ReadSystemSettings() && StartSession();
    }
};

TEST_F(Start, LeavesTheSameTreesWhateverASessionDid) {
    const std::string cases = Bytes(project + "/CASES.LIB") + "USHAPE2 - V\xE5r titel\r\n";
    PutBytes(project + "/CASES.LIB", cases);
    ASSERT_TRUE(StartSession());
    EXPECT_TRUE(Bytes(project + "/CASES.LIB").starts_with(cases)) << "a slot keeps its line";
    EXPECT_EQ(ReadLines(project + "/CASES.LIB")->size(), 4u + 16u);
    const auto before = TreeOf(root);
    for (const Slot& slot : AllSlots()) {
        ActivateSlot(slot.caseNo, slot.shape, "");
        ASSERT_TRUE(SetCaseProperty("CASE", "NOTE", "edited " + SlotLabel(slot)));
        PutBytes(In(slot, "SimpResults.Dat"), "-100\r\n");
        PutBytes(In(slot, "Vol_Load.TXT"), "of an earlier run");
        PutBytes(In(slot, "old/ADVCONN.INP"), "left over");
        PutBytes(In(slot, "SITE.inp"), "spoilt");
    }
    fs::remove_all(project + "/IShape1");
    fs::remove(In({kShapeO, 4}, "SimpPropertiesOfCase.Dat"));
    ASSERT_TRUE(Again());
    const auto after = TreeOf(root);
    std::vector<std::pair<std::string, std::string>> differing;
    std::set_symmetric_difference(before.begin(), before.end(), after.begin(), after.end(),
                                  std::back_inserter(differing));
    for (const auto& [name, bytes] : differing) ADD_FAILURE() << name;
    EXPECT_EQ(prompts.Texts(), Lines{});
}

TEST_F(Start, FillsEverySlotFromItsTemplate) {
    ASSERT_TRUE(StartSession());
    for (const Slot& slot : AllSlots()) {
        SCOPED_TRACE(SlotLabel(slot));
        const std::string family = project + "/" + std::string(WordsOf(slot.shape).folder);
        EXPECT_EQ(Bytes(In(slot, "SimpPropertiesOfCase.Dat")),
                  Bytes(family + "/SimpPropertiesOfCase" + SlotLabel(slot) + ".Dat"));
        EXPECT_EQ(Bytes(In(slot, "SURFACE.inp")), Bytes(family + "/SURFACE.inp"));
        EXPECT_EQ(SiteClimate(In(slot, "")), root + "/CLIM/aaa_1D.CLI") << "in its true spelling";
        EXPECT_EQ(SiteClimate(family), "YYY\\CLIM\\ZZZ") << "a template stays one";
        EXPECT_EQ(ListFolder(In(slot, "")).size(), 8u)
            << "model files and properties, no templates";
    }
}

TEST_F(Start, OpensTheFirstSlotOfShapeV) {
    session.ElementKindMark = 2;
    ASSERT_TRUE(StartSession());
    EXPECT_EQ((Slot{session.ActiveShape, session.ActiveCaseNo}), (Slot{kShapeV, 1}));
    EXPECT_EQ(session.CaseName, "vshape1");
    EXPECT_EQ(session.ElementKindMark, 0);
    EXPECT_EQ(session.ShowDiagrams, kOn);
    const MenuState menus = StartUp();
    EXPECT_TRUE(menus.projectCommands && menus.projectDependent && menus.caseCommands);
    EXPECT_FALSE(menus.modelCommands);
    fs::remove(root + "/PROJECT/PROJECTS.LIB");
    session.ProjectName = session.CaseName = "";
    const MenuState none = StartUp();
    EXPECT_FALSE(none.projectCommands || none.projectDependent || none.caseCommands);
}

// Each row is something that is missing at the first start, which reaches its end all the same.
TEST_F(Start, GoesOnWithoutWhatIsMissing) {
    struct Row {
        std::string missing;
        bool started;
        Lines messages;
    };
    const Row rows[] = {{"PROJECT/verandis/VShape", true, {}},
                        {"PROJECT/verandis/UShape/SimpPropertiesOfCaseU2.Dat", true, {}},
                        {"PROJECT/verandis/DynamicFilesUOVI.dat", true, {"No File exist"}},
                        {"CLIM", true, {}},
                        {"MWTHARM", true, {}},
                        {"PROJECT/verandis/CASES.LIB", false, {}},
                        {"PROJECT/PROJECTS.LIB", false, {}}};
    fs::copy(root, Path("Spare"), fs::copy_options::recursive);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.missing);
        fs::remove_all(root);
        fs::copy(Path("Spare"), root, fs::copy_options::recursive);
        fs::remove_all(root + "/" + row.missing);
        prompts.shown.clear();
        EXPECT_EQ(Again(), row.started);
        EXPECT_EQ(prompts.Texts(), row.messages);
        EXPECT_EQ(OnDisk(In({kShapeO, 4}, "SimpPropertiesOfCase.Dat")), row.started);
    }
}

TEST_F(Start, LeavesAProjectLineThatLeadsSomewhere) {
    fs::copy(project, Path("Other"), fs::copy_options::recursive);
    const std::string lines = "first\t/x\r\nVerandis\t" + Path("Other") + "\r\n";
    PutBytes(root + "/PROJECT/PROJECTS.LIB", lines);
    ASSERT_TRUE(StartSession());
    EXPECT_EQ(Bytes(root + "/PROJECT/PROJECTS.LIB"), lines);
    EXPECT_TRUE(OnDisk(Path("Other/UShape1/SimpPropertiesOfCase.Dat")));
}

TEST_F(Start, InAMovedRootMendsTheProjectLineAndLeavesAPathWithBlanksOutOfTheSiteFiles) {
    const std::string moved = Path("Ro ot åäö #&");
    fs::rename(root, moved);
    UseSystemPath(moved);
    ASSERT_TRUE(StartSession());
    const std::string home = moved + "/PROJECT/verandis";
    EXPECT_EQ(Bytes(moved + "/PROJECT/PROJECTS.LIB"),
              ToWindows1252("verandis\t" + LowerCase(home) + "\r\n"));
    EXPECT_EQ(SiteClimate(home + "/UShape1"), "YYY\\CLIM\\ZZZ");
    EXPECT_TRUE(OnDisk(home + "/IShape4/SimpPropertiesOfCase.Dat"));
}

}  // namespace
}  // namespace verandis
