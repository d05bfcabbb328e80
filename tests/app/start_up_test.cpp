#include "app/start_up.h"

#include <algorithm>
#include <filesystem>
#include <functional>

#include "app/session.h"
#include "app/settings.h"
#include "case/property_file.h"
#include "case/shapes.h"
#include "case/site_file.h"
#include "platform/encoding.h"
#include "platform/files.h"
#include "projects/slot_activation.h"
#include "support/session_test.h"
#include "text/characters.h"

namespace verandis {
namespace {

namespace fs = std::filesystem;
using testing_support::Bytes;
using testing_support::OnDisk;
using testing_support::PutBytes;
using testing_support::TreeOf;

class Start : public testing_support::DeliveredRootTest {
protected:
    std::string In(const Slot& slot, const std::string& file) const {
        return project + "/" + SlotFolderName(slot) + "/" + file;
    }

    /// What the next run of the program does: a new session from the settings on disk.
    static bool Again() {
        session = {};
        return ReadSystemSettings() && StartSession();
    }

    /// Names of the files that are not the same in both trees.
    using Tree = std::vector<std::pair<std::string, std::string>>;
    static std::vector<std::string> Differences(const Tree& a, const Tree& b) {
        Tree differing;
        std::set_symmetric_difference(a.begin(), a.end(), b.begin(), b.end(),
                                      std::back_inserter(differing));
        std::vector<std::string> names;
        for (const auto& file : differing) names.push_back(file.first);
        return names;
    }
};

TEST_F(Start, LeavesTheSameTreesWhateverASessionDid) {
    ASSERT_TRUE(StartSession());
    EXPECT_EQ(prompts.Texts(), std::vector<std::string>{});
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
    EXPECT_EQ(Differences(before, TreeOf(root)), std::vector<std::string>{});
}

TEST_F(Start, FillsEverySlotFromItsTemplate) {
    PutBytes(root + "/CLIM/aaa_1D.CLI", "first by name, in whatever letter case");
    ASSERT_TRUE(StartSession());
    for (const Slot& slot : AllSlots()) {
        SCOPED_TRACE(SlotLabel(slot));
        const std::string family = project + "/" + std::string(WordsOf(slot.shape).folder);
        EXPECT_EQ(Bytes(In(slot, "SimpPropertiesOfCase.Dat")),
                  Bytes(family + "/SimpPropertiesOfCase" + SlotLabel(slot) + ".Dat"));
        const auto site = ReadLines(In(slot, "SITE.inp"));
        ASSERT_TRUE(site && site->size() > 4);
        EXPECT_EQ((*site)[4], root + "/CLIM/aaa_1D.CLI");
        const auto files = ListFolder(project + "/" + SlotFolderName(slot));
        EXPECT_EQ(files, ListFolder(project + "/" + SlotFolderName({slot.shape, 1})));
        EXPECT_EQ(files.size(), 8u) << "seven model files, the properties, no templates";
        EXPECT_EQ(Bytes(In(slot, "SURFACE.inp")), Bytes(family + "/SURFACE.inp"));
        EXPECT_EQ(SiteClimate(family), "YYY\\CLIM\\ZZZ") << "a template stays one";
    }
    EXPECT_EQ(ReadLines(project + "/CASES.LIB")->size(), 20u);
}

TEST_F(Start, OpensTheFirstSlotOfShapeV) {
    session.ElementKindMark = 2;
    session.ShowGuide = kOn;
    ASSERT_TRUE(StartSession());
    EXPECT_EQ(session.ActiveShape, kShapeV);
    EXPECT_EQ(session.ActiveCaseNo, 1);
    EXPECT_EQ(session.CaseName, "vshape1");
    EXPECT_EQ(session.ElementKindMark, 0);
    EXPECT_EQ(session.ShowGuide, kOff);
    EXPECT_EQ(session.ShowDiagrams, kOn);
    const MenuState menus = StartUp();
    EXPECT_TRUE(menus.projectCommands && menus.projectDependent && menus.caseCommands);
    EXPECT_FALSE(menus.modelCommands);
    fs::remove(root + "/PROJECT/PROJECTS.LIB");
    session.ProjectName.clear();
    session.CaseName.clear();
    const MenuState none = StartUp();
    EXPECT_FALSE(none.projectCommands || none.projectDependent || none.caseCommands);
}

TEST_F(Start, KeepsTheListsLinesOfSlotsThatStandThere) {
    PutBytes(project + "/CASES.LIB", Bytes(project + "/CASES.LIB") +
                                         "USHAPE2 - V\xE5r egen titel\r\nmine - Another case\r\n");
    ASSERT_TRUE(StartSession());
    const auto lines = ReadLines(project + "/CASES.LIB");
    EXPECT_EQ(std::count(lines->begin(), lines->end(), "USHAPE2 - Vår egen titel"), 1);
    EXPECT_EQ(lines->size(), 21u);
}

// Each row breaks one thing before the first start, which has to reach its end all the same.
TEST_F(Start, GoesOnWithoutWhatIsMissing) {
    struct Row {
        const char* fault;
        std::function<void()> damage;
        bool started;
        Slot whole;  // a slot that is filled all the same
        std::vector<std::string> messages;
    };
    const auto remove = [&](const std::string& path) { return [=] { fs::remove_all(path); }; };
    const Slot o1 = {kShapeO, 1};
    const Row rows[] = {
        {"a template case", remove(project + "/VShape"), true, o1, {}},
        {"a template file",
         remove(project + "/UShape/SimpPropertiesOfCaseU2.Dat"),
         true,
         {1, 3},
         {}},
        {"the model files", remove(project + "/DynamicFilesUOVI.dat"), true, o1, {"No File exist"}},
        {"the climate folder", remove(root + "/CLIM"), true, o1, {}},
        {"the catalogue", remove(root + "/MWTHARM"), true, o1, {}},
        {"the case list", remove(project + "/CASES.LIB"), false, {}, {}},
        {"the project list", remove(root + "/PROJECT/PROJECTS.LIB"), false, {}, {}},
    };
    const std::string spare = Path("Spare");
    fs::copy(root, spare, fs::copy_options::recursive);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        fs::remove_all(root);
        fs::copy(spare, root, fs::copy_options::recursive);
        prompts.shown.clear();
        row.damage();
        EXPECT_EQ(Again(), row.started);
        EXPECT_EQ(prompts.Texts(), row.messages);
        if (row.whole.shape == 0) continue;
        EXPECT_TRUE(OnDisk(In(row.whole, "SimpPropertiesOfCase.Dat")));
    }
}

TEST_F(Start, ARootThatASiteFileCannotNameLeavesTheTokens) {
    const std::string moved = Path("Ro ot åäö #&");
    fs::rename(root, moved);
    UseSystemPath(moved);
    ASSERT_TRUE(StartSession());
    EXPECT_EQ(SiteClimate(moved + "/PROJECT/verandis/UShape1"), "YYY\\CLIM\\ZZZ");
    EXPECT_TRUE(OnDisk(moved + "/PROJECT/verandis/IShape4/SimpPropertiesOfCase.Dat"));
    EXPECT_EQ(Bytes(moved + "/PROJECT/PROJECTS.LIB"),
              ToWindows1252(LowerCase("verandis\t" + moved + "/project/verandis\r\n")))
        << "the line follows the moved root";
}

TEST_F(Start, AProjectLineElsewhereIsNotMended) {
    fs::create_directories(Path("Other"));
    fs::copy(project, Path("Other"), fs::copy_options::recursive);
    PutBytes(root + "/PROJECT/PROJECTS.LIB", "first\t/x\r\nVerandis\t" + Path("Other") + "\r\n");
    const std::string before = Bytes(root + "/PROJECT/PROJECTS.LIB");
    ASSERT_TRUE(StartSession());
    EXPECT_EQ(Bytes(root + "/PROJECT/PROJECTS.LIB"), before);
    EXPECT_TRUE(OnDisk(Path("Other/UShape1/SimpPropertiesOfCase.Dat")));
}

TEST_F(Start, TheExportIsOfferedOnlyWithASimulatorsSettings) {
    EXPECT_EQ(SimulatorSystemPath(), "");
    PutBytes(Path("config/THARM.ini"), "[Tharm]\nSystemPath=" + std::string(70, 'x'));
    EXPECT_EQ(SimulatorSystemPath(), std::string(63, 'x'));
}

}  // namespace
}  // namespace verandis
