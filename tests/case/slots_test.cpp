#include "app/session.h"
#include "case/shapes.h"
#include "case/site_file.h"
#include "case/slot_files.h"
#include "platform/files.h"
#include "support/session_test.h"

namespace verandis {
namespace {

using Lines = std::vector<std::string>;
using Slots = testing_support::SmallRootTest;
using testing_support::Bytes;
using testing_support::Dos;
using testing_support::PutBytes;

// The side letters of each plan, series by series; their counts are those of its elements.
TEST(Shapes, HaveTheElementsOfTheirPlans) {
    const char* plans[][3] = {{"WSSENFFFRRR", "WENF", "SSNWE"},
                              {"SENWFRFRFRFR", "SWNEF", "SNWE"},
                              {"ENWRF", "SF", "WESWES"},
                              {"SNWFRSENFR", "WEF", "SNSNWE"}};
    for (int shape = 1; shape <= kShapeCount; ++shape) {
        for (int series = 0; series < 3; ++series) {
            std::string expected;
            std::string found;
            int number = series * 100;  // counted without a gap
            for (const char* side = plans[shape - 1][series]; *side; ++side) {
                const std::string digits = std::to_string(1000 + ++number).substr(1);
                expected += std::string("X") + "UOVI"[shape - 1] + digits + "-" + *side + " ";
            }
            for (const auto id : ElementsOf(shape, Series(series))) found += std::string(id) + " ";
            EXPECT_EQ(found, expected);
        }
    }
    EXPECT_TRUE(ElementsOf(5, Series::Glazing).empty());
}

TEST(Shapes, LeadFromLabelsAndNamesBackToTheirSlot) {
    for (const Slot& slot : AllSlots()) {
        EXPECT_EQ(SlotOfLabel(SlotLabel(slot)), slot);
        EXPECT_EQ(ShapeNumber(WordsOf(slot.shape).folder), slot.shape);
    }
    EXPECT_EQ(SlotOfLabel("i4"), (Slot{kShapeI, 4}));
    EXPECT_EQ(SlotFolderName({kShapeO, 3}) + SlotCaseName({kShapeV, 2}), "OShape3vshape2");
    for (const char* none : {"", "U", "U0", "U5", "X1", "U11"})
        EXPECT_EQ(SlotOfLabel(none), Slot{});
    for (const char* none : {"", "ushape", "UShape1"}) EXPECT_EQ(ShapeNumber(none), 0) << none;
}

TEST_F(Slots, ModelFilesAreCutOutBetweenTheirMarkers) {
    PutBytes(project + "/all.dat", Dos("U-SITE.inp\n u1 \n\tu2\t\nx C_... not yet\nC_... end\n"
                                       "stray\nmore V-Site.INP more\nv1\nC_...\n"
                                       "V-OUTPUT.inp\nopen\n\nend"));
    struct Row {
        char shape;
        const char *file, *content;
    };
    const Row rows[] = {{'U', "SITE.inp", "u1\n\tu2\t\nx C_... not yet\n"},
                        {'V', "SITE.inp", "v1\n"},
                        {'V', "OUTPUT.inp", "open\n\nend\n"},  // without its closing line
                        {'O', "SITE.inp", "kept"},             // only other letters' markers
                        {'V', "GENPARS.inp", "kept"}};
    for (const Row& row : rows) {
        PutBytes(Path("target"), "kept");
        SplitDynamicFile(project + "/all.dat", Path("target"), row.shape, row.file);
        EXPECT_EQ(Bytes(Path("target")), Dos(row.content)) << row.shape << row.file;
    }
    EXPECT_TRUE(prompts.shown.empty());
    SplitDynamicFile(Path("none"), Path("target"), 'U', "SITE.inp");
    EXPECT_EQ(Bytes(Path("target")), "kept");
    EXPECT_EQ(prompts.Texts(), Lines{"No File exist"});
}

TEST_F(Slots, AMissingTemplateLeavesItsSlotAlone) {
    for (const char* slot : {"/OShape1", "/OShape2"}) {
        PutBytes(project + slot + "/SimpPropertiesOfCase.Dat", "old");
        for (const char* brought : {"O1", "o2", "O4", "U1"}) {
            PutBytes(project + slot + "/SimpPropertiesOfCase" + brought + ".Dat", "");
        }
    }
    PutBytes(project + "/OShape/SimpPropertiesOfCaseO2.dat", "new\t\xE5, no line end");
    RemoveSlotTemplates(kShapeO);
    InstallSlotFiles(kShapeO);
    EXPECT_EQ(Bytes(project + "/OShape1/SimpPropertiesOfCase.Dat"), "old");
    EXPECT_EQ(Bytes(project + "/OShape2/SimpPropertiesOfCase.Dat"), "new\t\xE5, no line end");
    EXPECT_EQ(ListFolder(project + "/OShape2"),
              (Lines{"SimpPropertiesOfCase.Dat", "SimpPropertiesOfCaseU1.Dat"}));
    EXPECT_EQ(ListFolder(project + "/OShape"), Lines{"SimpPropertiesOfCaseO2.dat"});
    EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(Slots, ASiteFileTakesOnlyAClimateThatItCanHold) {
    const std::string folder = project + "/UShape1";
    const std::string before = "1\r\n2\r\n3\r\n4\r\n  YYY\\CLIM\\ZZZ \r\n6\r\n";
    PutBytes(folder + "/Site.INP", before);
    EXPECT_EQ(SiteClimate(project + "/ushape1"), "YYY\\CLIM\\ZZZ");
    std::string longest = Path("");
    longest.append(70 - longest.size(), 'x');
    for (const std::string& path : {longest, longest + "x", Path("a b")}) PutBytes(path, "");
    for (const std::string& refused : {longest + "x", Path("a b"), Path("none")}) {
        EXPECT_FALSE(SetSiteClimate(folder, refused)) << refused;
        EXPECT_EQ(Bytes(folder + "/Site.INP"), before);
    }
    EXPECT_TRUE(SetSiteClimate(folder, longest));
    EXPECT_EQ(Bytes(folder + "/Site.INP"), "1\r\n2\r\n3\r\n4\r\n" + longest + "\r\n6\r\n");
    PutBytes(folder + "/Site.INP", "1\r\n2\r\n3\r\n4\r\n");
    EXPECT_EQ(SiteClimate(folder), std::nullopt);
    EXPECT_FALSE(SetSiteClimate(folder, longest));
}

TEST_F(Slots, TheClimateFolderStandsBesideTheLastFolderNamedProject) {
    const std::pair<const char*, std::optional<std::string>> rows[] = {
        {"/none/PROJECT/x", "/none/CLIM"},
        {"/none/projects/a/Project/x/y", "/none/projects/a/CLIM"},
        {"/none/project/a/project", "/none/project/a/CLIM"},
        {"/none/projects/x", "/none/CLIM"},
        {"c:\\none\\project\\x", "/none/CLIM"},
        {"/none/x", std::nullopt}};
    for (const auto& [folder, climates] : rows) {
        session.ProjectFolder = folder;
        EXPECT_EQ(ClimateFolder(), climates) << folder;
    }
}

}  // namespace
}  // namespace verandis
