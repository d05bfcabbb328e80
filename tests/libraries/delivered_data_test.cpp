#include <gtest/gtest.h>

#include <set>

#include "app/data_root.h"
#include "app/session.h"
#include "case/property_file.h"
#include "case/shapes.h"
#include "case/slot_files.h"
#include "libraries/library_entry.h"
#include "libraries/simple_libraries.h"
#include "platform/files.h"
#include "support/session_test.h"
#include "text/characters.h"
#include "text/numbers.h"
#include "text/separators.h"

namespace verandis {
namespace {

using testing_support::DeliveredRootTest;

class DeliveredData : public DeliveredRootTest {
protected:
    DeliveredData() {
        session.ProjectFolder = project;
        ReadWindows();
        ReadRefWindows();
        ReadWalls();
    }
};

struct NameRule {
    const TextTable& table;
    std::size_t shortest;
    std::size_t longest;
    const char* forbidden;
    int least;  // rows
};

// The detailed lists find a type by the first row that contains its name.
TEST_F(DeliveredData, NoTypeCanBeTakenForAnother) {
    const NameRule rules[] = {{simpleLibraries.WindowTable, 6, 10, " ,\t|", 15},
                              {simpleLibraries.WallTable, 6, 16, ",", 16}};
    for (const NameRule& rule : rules) {
        const auto names = rule.table.Column(1);
        EXPECT_GE(rule.table.rows(), rule.least);
        EXPECT_LE(rule.table.rows(), kMostTypes);
        for (const std::string& name : names) {
            EXPECT_GE(Length(name), rule.shortest) << name;
            EXPECT_LE(Length(name), rule.longest) << name;
            EXPECT_EQ(name.find_first_of(rule.forbidden), std::string::npos) << name;
            EXPECT_EQ(TrimBlanks(name), name);
            EXPECT_FALSE(IsDigitsOnly(name)) << name;
            for (const std::string& other : names) {
                EXPECT_TRUE(&name == &other || !ContainsNoCase(other, name)) << name << other;
            }
        }
    }
}

TEST_F(DeliveredData, EveryWindowPassesTheCheckOfItsOwnDialog) {
    for (const TextTable* table : {&simpleLibraries.WindowTable, &simpleLibraries.RefWindowTable}) {
        for (int row = 1; row <= table->rows(); ++row) {
            EXPECT_EQ(CheckWindowEntry(ShownWindow(*table, row)).text, "") << table->Cell(row, 1);
        }
    }
    EXPECT_EQ(simpleLibraries.RefWindowTable.Column(kPanes),
              (std::vector<std::string>{"1", "2", "3"}));
}

// A row behind a line that holds its words anywhere would never be read.
TEST_F(DeliveredData, EveryRowOfATemplateIsFoundByItsOwnWords) {
    for (const Slot& slot : AllSlots()) {
        const std::string folder = project + "/" + std::string(WordsOf(slot.shape).folder);
        const auto lines = ReadLines(folder + "/" + TemplateName(slot.shape, slot.caseNo));
        ASSERT_TRUE(lines) << SlotLabel(slot);
        session.CaseFolder = project;
        ASSERT_TRUE(WriteLines(PropertyFilePath(), *lines));
        for (const std::string& line : *lines) {
            const std::string_view name = LeftOfSeparator(line, "\t");
            const auto section = LeftOfSeparator(name, "_");
            std::string value;
            GetCaseProperty(LeftOfSeparator(section, "-"), RightOfSeparator(name, "_"), value);
            EXPECT_EQ(value, RightOfSeparator(line, "\t")) << SlotLabel(slot) << ": " << line;
        }
        EXPECT_TRUE(lines->back().starts_with("CASE_NOTE\t"));
    }
}

TEST_F(DeliveredData, EveryNameInATemplateStandsInItsLibrary) {
    const auto windows = simpleLibraries.WindowTable.Column(1);
    const auto walls = simpleLibraries.WallTable.Column(1);
    const std::set<std::string> windowNames(windows.begin(), windows.end());
    const std::set<std::string> wallNames(walls.begin(), walls.end());
    for (const Slot& slot : AllSlots()) {
        const std::string folder = project + "/" + std::string(WordsOf(slot.shape).folder);
        const auto lines = ReadLines(folder + "/" + TemplateName(slot.shape, slot.caseNo));
        ASSERT_TRUE(lines) << SlotLabel(slot);
        int glazed = 0;
        for (const std::string& line : *lines) {
            const std::string value(RightOfSeparator(line, "\t"));
            const NameAndKind named = SplitKind(value);
            if (line.find("_WALLTYPE\t") != std::string::npos) {
                EXPECT_TRUE(wallNames.contains(value)) << SlotLabel(slot) << ": " << line;
            } else if (line.find("_GLAZEDID\t") != std::string::npos) {
                const auto& names = named.kind == 2 ? wallNames : windowNames;
                EXPECT_TRUE(names.contains(named.name)) << SlotLabel(slot) << ": " << line;
                ++glazed;
            } else if (line.starts_with("CLIMATE_FILE\t")) {
                EXPECT_TRUE(FileExists(root + "/CLIM/" + value + "S.dat")) << line;
                EXPECT_TRUE(FileExists(root + "/CLIM/" + value + "D.cli")) << line;
            }
        }
        EXPECT_GE(glazed, 4) << SlotLabel(slot);
    }
}

}  // namespace
}  // namespace verandis
