#include <filesystem>
#include <set>

#include "app/session.h"
#include "case/shapes.h"
#include "case/site_file.h"
#include "case/slot_files.h"
#include "platform/files.h"
#include "support/session_test.h"

namespace verandis {
namespace {

using Slots = testing_support::SmallRootTest;
using testing_support::Bytes;
using testing_support::Dos;
using testing_support::OnDisk;
using testing_support::PutBytes;

TEST(Shapes, HaveTheirOwnCountsOfElements) {
    struct Row {
        std::size_t envelope, partition, glazing, dimensions;
    };
    const Row rows[] = {{11, 4, 5, 6}, {12, 5, 4, 6}, {5, 2, 6, 5}, {10, 3, 6, 5}};
    std::set<std::string_view> all;
    for (int shape = 1; shape <= kShapeCount; ++shape) {
        const Row& row = rows[shape - 1];
        const std::string prefix = std::string("X") + WordsOf(shape).letter;
        EXPECT_EQ(ElementsOf(shape, Series::Envelope).size(), row.envelope);
        EXPECT_EQ(ElementsOf(shape, Series::Partition).size(), row.partition);
        EXPECT_EQ(ElementsOf(shape, Series::Glazing).size(), row.glazing);
        EXPECT_EQ(DimensionKeysOf(shape).size(), row.dimensions);
        for (const Series series : {Series::Envelope, Series::Partition, Series::Glazing}) {
            int number = 0;  // numbered without a gap within its series
            for (const std::string_view id : ElementsOf(shape, series)) {
                const std::string digits =
                    std::to_string(static_cast<int>(series) * 100 + ++number);
                const std::string begin =
                    prefix + std::string(3 - digits.size(), '0') + digits + "-";
                EXPECT_TRUE(id.starts_with(begin) && id.size() == 7) << id;
                EXPECT_NE(std::string_view("NESWFR").find(id.back()), std::string_view::npos) << id;
                all.insert(id);
            }
        }
    }
    EXPECT_EQ(all.size(), 73u);
    EXPECT_TRUE(ElementsOf(5, Series::Glazing).empty());
    EXPECT_TRUE(DimensionKeysOf(0).empty());
}

TEST(Shapes, SidesAndDimensionsAreThoseOfThePlans) {
    const auto sides = [](int shape, Series series) {
        std::string letters;
        for (const std::string_view id : ElementsOf(shape, series)) letters += id.back();
        return letters;
    };
    const char* plans[][3] = {{"WSSENFFFRRR", "WENF", "SSNWE"},
                              {"SENWFRFRFRFR", "SWNEF", "SNWE"},
                              {"ENWRF", "SF", "WESWES"},
                              {"SNWFRSENFR", "WEF", "SNSNWE"}};
    for (int shape = 1; shape <= kShapeCount; ++shape) {
        EXPECT_EQ(sides(shape, Series::Envelope), plans[shape - 1][0]);
        EXPECT_EQ(sides(shape, Series::Partition), plans[shape - 1][1]);
        EXPECT_EQ(sides(shape, Series::Glazing), plans[shape - 1][2]);
    }
    const auto has = [](int shape, std::string_view key) {
        const auto keys = DimensionKeysOf(shape);
        return std::find(keys.begin(), keys.end(), key) != keys.end();
    };
    EXPECT_FALSE(has(kShapeV, "WIDTHG"));
    EXPECT_TRUE(has(kShapeV, "OFFD"));
    EXPECT_FALSE(has(kShapeI, "DEPTHG"));
    EXPECT_TRUE(has(kShapeI, "WIDTHG"));
}

TEST(Shapes, LabelsAndNamesLeadBackToTheirSlot) {
    for (const Slot& slot : AllSlots()) {
        EXPECT_EQ(SlotOfLabel(SlotLabel(slot)), slot);
        EXPECT_EQ(ShapeNumber(WordsOf(slot.shape).folder), slot.shape);
    }
    EXPECT_EQ(SlotOfLabel("i4"), (Slot{kShapeI, 4}));
    EXPECT_EQ(SlotFolderName({kShapeO, 3}), "OShape3");
    EXPECT_EQ(SlotCaseName({kShapeV, 2}), "vshape2");
    for (const char* label : {"", "U", "U0", "U5", "X1", "U11", " U1"}) {
        EXPECT_EQ(SlotOfLabel(label).shape, 0) << label;
    }
    for (const char* name : {"ushape", "UShape1", ""}) EXPECT_EQ(ShapeNumber(name), 0) << name;
}

TEST_F(Slots, ModelFilesAreCutOutBetweenTheirMarkers) {
    PutBytes(project + "/all.dat", Dos("U-SITE.inp\n u1 \n\tu2\t\nc_... not yet\nC_... end\n"
                                       "stray\nmore V-Site.INP more\nv1\nC_...\n"
                                       "V-OUTPUT.inp\nopen\n\nend"));
    struct Row {
        char shape;
        const char *file, *content;
    };
    const Row rows[] = {{'U', "SITE.inp", "u1\r\n\tu2\t\r\nc_... not yet\r\n"},
                        {'V', "SITE.inp", "v1\r\n"},
                        {'V', "OUTPUT.inp", "open\r\n\r\nend\r\n"},  // without its closing line
                        {'O', "SITE.inp", "kept"},                   // only other letters' markers
                        {'V', "GENPARS.inp", "kept"}};
    for (const Row& row : rows) {
        PutBytes(Path("target"), "kept");
        SplitDynamicFile(project + "/all.dat", Path("target"), row.shape, row.file);
        EXPECT_EQ(Bytes(Path("target")), row.content) << row.shape << row.file;
    }
    EXPECT_TRUE(prompts.shown.empty());
    SplitDynamicFile(Path("none"), Path("target"), 'U', "SITE.inp");
    EXPECT_EQ(Bytes(Path("target")), "kept");
    EXPECT_EQ(prompts.Texts(), std::vector<std::string>{"No File exist"});
}

TEST_F(Slots, AMissingTemplateLeavesItsSlotAlone) {
    for (const char* slot : {"/OShape1", "/OShape2"}) {
        PutBytes(project + slot + "/SimpPropertiesOfCase.Dat", "old");
        for (const char* brought : {"O1", "o2", "O4", "U1"}) {
            PutBytes(project + slot + "/SimpPropertiesOfCase" + brought + ".Dat", "");
        }
    }
    PutBytes(project + "/OShape/SimpPropertiesOfCaseO2.dat", "template\t\xE5 no line end");
    RemoveSlotTemplates(kShapeO);
    InstallSlotFiles(kShapeO);
    EXPECT_EQ(Bytes(SlotFile({kShapeO, 1}, "SimpPropertiesOfCase.Dat")), "old");
    EXPECT_EQ(Bytes(SlotFile({kShapeO, 2}, "SimpPropertiesOfCase.Dat")),
              "template\t\xE5 no line end");
    EXPECT_EQ(ListFolder(project + "/OShape2"),
              (std::vector<std::string>{"SimpPropertiesOfCase.Dat", "SimpPropertiesOfCaseU1.Dat"}));
    EXPECT_TRUE(OnDisk(project + "/OShape/SimpPropertiesOfCaseO2.dat"));
    EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(Slots, ASiteFileTakesOnlyAClimateThatItCanHold) {
    const std::string site = project + "/UShape1/Site.INP";
    const std::string before = "1\r\n2\r\n3\r\n4\r\n  YYY\\CLIM\\ZZZ \r\n6\r\n";
    PutBytes(site, before);
    EXPECT_EQ(SiteClimate(project + "/ushape1"), "YYY\\CLIM\\ZZZ");
    std::string longest = Path("");
    longest.append(70 - longest.size(), 'x');
    for (const std::string& file : {longest, longest + "x", Path("a b")}) PutBytes(file, "");
    for (const std::string& refused : {longest + "x", Path("a b"), Path("none")}) {
        EXPECT_FALSE(SetSiteClimate(project + "/UShape1", refused)) << refused;
        EXPECT_EQ(Bytes(site), before);
    }
    EXPECT_TRUE(SetSiteClimate(project + "/UShape1", longest));
    EXPECT_EQ(Bytes(site), "1\r\n2\r\n3\r\n4\r\n" + longest + "\r\n6\r\n");
    PutBytes(site, "1\r\n2\r\n3\r\n4\r\n");
    EXPECT_EQ(SiteClimate(project + "/UShape1"), std::nullopt);
    EXPECT_FALSE(SetSiteClimate(project + "/UShape1", longest));
    EXPECT_FALSE(SetSiteClimate(project + "/none", longest));
}

TEST_F(Slots, TheClimateFolderStandsBesideTheLastFolderNamedProject) {
    const std::pair<const char*, std::optional<std::string>> rows[] = {
        {"/none/PROJECT/x", "/none/CLIM"},
        {"/none/projects/root/Project/x/y", "/none/projects/root/CLIM"},
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
