#include "dialogs/glazing.h"

#include "case/property_file.h"
#include "dialogs/construction_slot.h"

namespace verandis {
namespace {

using Glazing = testing_support::ConstructionSlot;

// The last element of a row is the one that is read.
TEST_F(Glazing, EachGroupReadsItsElementAndStoresAllOfThem) {
    const struct {
        int shape;
        std::uint16_t code;
        const char* read;
        const char* changed;
    } rows[] = {
        {kShapeU, 10, "XU204-W", "XU204-W_GLAZEDID=Clear2 XU205-E_GLAZEDID=Clear2"},
        {kShapeU, 20, "XU201-S", "XU201-S_GLAZEDID=Clear2"},
        {kShapeU, 30, "XU202-S", "XU202-S_GLAZEDID=Clear2 XU203-N_GLAZEDID=Clear2"},
        {kShapeO, 10, "XO204-E", "XO203-W_GLAZEDID=Clear2 XO204-E_GLAZEDID=Clear2"},
        {kShapeO, 20, "XO201-S", "XO201-S_GLAZEDID=Clear2 XO202-N_GLAZEDID=Clear2"},
        {kShapeV, 10, "XV206-S", "XV206-S_GLAZEDID=Clear2, 1"},
        {kShapeV, 20, "XV201-W", "XV201-W_GLAZEDID=Clear2 XV202-E_GLAZEDID=Clear2"},
        {kShapeV, 30, "XV203-S", "XV203-S_GLAZEDID=Clear2"},
        {kShapeV, 40, "XV204-W", "XV204-W_GLAZEDID=Clear2 XV205-E_GLAZEDID=Clear2"},
        {kShapeI, 10, "XI205-W", "XI205-W_GLAZEDID=Clear2 XI206-E_GLAZEDID=Clear2"},
        {kShapeI, 20, "XI201-S", "XI201-S_GLAZEDID=Clear2 XI202-N_GLAZEDID=Clear2"},
        {kShapeI, 30, "XI203-S", "XI203-S_GLAZEDID=Clear2 XI204-N_GLAZEDID=Clear2"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.changed);
        Open(row.shape);
        SetCaseProperty(row.read, "GLAZEDID", "LowE-3");
        GlazingChoice choice = LoadGlazing(row.shape);
        ChooseGlazingGroup(choice, row.code);
        EXPECT_EQ(choice.glazingRow, 2);
        choice.glazingRow = 1;
        EXPECT_TRUE(CloseGlazing(choice));
        EXPECT_EQ(Changed(), row.changed);
        EXPECT_EQ(session.ElementKindMark, 0);
    }
}

TEST_F(Glazing, LeavingAGroupStoresItAndACancelDoesNotTakeItBack) {
    Open(kShapeI);
    session.CasePropertyTable = {{"XI101", "WALLTYPE", "left by another dialog"}};
    GlazingChoice choice = LoadGlazing(kShapeI);
    EXPECT_TRUE(session.CasePropertyTable.empty());
    choice.glazingRow = 1;
    EXPECT_TRUE(ApplyGlazing(choice));
    EXPECT_EQ(Changed(), "") << "no group is chosen yet";
    ChooseGlazingGroup(choice, 10);
    choice.glazingRow = 1;
    ChooseGlazingGroup(choice, 20);
    choice.glazingRow = 2;
    StageCaseProperty("XI101", "WALLTYPE", "WallB2");
    LeaveGlazing();
    EXPECT_EQ(Changed(), "XI205-W_GLAZEDID=Clear2 XI206-E_GLAZEDID=Clear2");
    EXPECT_TRUE(session.CasePropertyTable.empty());
}

// The roof of the V shape may be glazed or opaque, so its value carries a kind.
TEST_F(Glazing, WhatAStoredValueShowsAndBecomes) {
    const struct {
        int shape;
        const char* stored;
        int kind;
        int glazingRow;  // 2 at first
        int wallRow;
        const char* closed;
    } rows[] = {
        {kShapeU, "Clear2", 1, 1, 0, "Clear2"},
        {kShapeU, "-999999", 1, 2, 0, "LowE-3"},
        {kShapeU, "Gone", 1, 0, 0, "Clear1"},
        {kShapeU, "clear2", 1, 0, 0, "Clear1"},
        {kShapeU, "Clear2, 1", 1, 0, 0, "Clear1"},
        {kShapeV, "Clear2", 1, 1, 0, "Clear2, 1"},
        {kShapeV, "Clear2, 1", 1, 1, 0, "Clear2, 1"},
        {kShapeV, "WallB2,2", 2, 2, 1, "WallB2, 2"},
        {kShapeV, "WallB2, 70000", 2, 2, 1, "WallB2, 2"},
        {kShapeV, "WallB2, x", 2, 2, 1, "WallB2, 2"},
        {kShapeV, "-999999", 1, 2, 0, "LowE-3, 1"},
        {kShapeV, "Gone, 2", 2, 2, 0, "WallA1, 2"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.stored);
        const bool roof = row.shape == kShapeV;
        const std::string element = roof ? "XV206" : "XU201";
        Open(row.shape, element + "_GLAZEDID\t" + row.stored + "\n");
        GlazingChoice choice = LoadGlazing(row.shape);
        choice.glazingRow = 2;
        ChooseGlazingGroup(choice, roof ? 10 : 20);
        EXPECT_EQ(choice.KindShown(), roof);
        EXPECT_EQ(choice.Mode(), row.kind);
        EXPECT_EQ(choice.glazingRow, row.glazingRow);
        EXPECT_EQ(choice.wallRow, roof ? row.wallRow : -1);
        EXPECT_TRUE(CloseGlazing(choice));
        std::string value;
        GetCaseProperty(element, "GLAZEDID", value);
        EXPECT_EQ(value, row.closed);
        EXPECT_EQ(session.ElementKindMark, 0);
        EXPECT_TRUE(prompts.shown.empty());
    }
}

TEST_F(Glazing, AnApplyOfTheRoofLeavesItsGroup) {
    Open(kShapeV);
    GlazingChoice choice = LoadGlazing(kShapeV);
    ChooseGlazingGroup(choice, 10);
    ChooseKind(choice, kOpaqueKind);
    choice.wallRow = 2;
    EXPECT_TRUE(ApplyGlazing(choice));
    EXPECT_EQ(session.GlazingGroup, kNoGroup);
    EXPECT_FALSE(choice.KindShown());
    EXPECT_EQ(choice.Mode(), kGlazedKind);
    // Neither the Close nor the next group may store the wall without its kind, or a kind at all.
    ChooseGlazingGroup(choice, 30);
    choice.glazingRow = 1;
    EXPECT_TRUE(CloseGlazing(choice));
    EXPECT_EQ(Changed(), "XV203-S_GLAZEDID=Clear2 XV206-S_GLAZEDID=FloorC, 2");
}

TEST_F(Glazing, MissingFilesTakeNothingAndStopNothing) {
    Open(kShapeV);
    ::remove((project + "/SimpWindows.lib").c_str());
    ::remove((project + "/SimpWalls.lib").c_str());
    GlazingChoice choice = LoadGlazing(kShapeV);
    EXPECT_EQ(prompts.Texts(), (std::vector<std::string>{"No File Exist", "No File Exist"}));
    ChooseGlazingGroup(choice, 20);
    ChooseGlazingGroup(choice, 10);
    ChooseKind(choice, kOpaqueKind);
    EXPECT_TRUE(CloseGlazing(choice));
    EXPECT_EQ(Changed(), "");
    EXPECT_EQ(ShownWindowU(choice.glazingRow) + ShownWallUValue(choice.wallRow), "");

    ::remove(File().c_str());
    choice = LoadGlazing(kShapeV);
    ChooseGlazingGroup(choice, 10);
    EXPECT_TRUE(CloseGlazing(choice));
    EXPECT_EQ(session.ElementKindMark, 0);
}

TEST_F(Glazing, FiguresAndPresentTypesAreShownAsTheUserReadsThem) {
    Open(kShapeO, "XO203_GLAZEDID\tClear2\nXO201_GLAZEDID\tGone\nXO202_GLAZEDID\t-999999\n");
    session.ProgramText = Catalogue({"20849, unknown"});
    const GlazingChoice choice = LoadGlazing(kShapeO);
    EXPECT_EQ(PresentGlazing(choice, choice.dialog->groups[0]), "Clear2 / Clear1");
    EXPECT_EQ(PresentGlazing(choice, choice.dialog->groups[1]), "Gone (unknown)");
    EXPECT_EQ(ElementList(choice.dialog->groups[0]), "XO203-W, XO204-E");
    EXPECT_EQ(ShownWindowU(2), "1.1");
    session.Decimals = DecimalMode::Comma;
    EXPECT_EQ(ShownWindowU(2), "1,1");
    EXPECT_EQ(ShownWindowTransmittance(2), "45");
    EXPECT_EQ(ShownWindowTransmittance(1), "70");
    EXPECT_EQ(ShownWindowU(3) + ShownWindowU(-1), "");
}

}  // namespace
}  // namespace verandis
