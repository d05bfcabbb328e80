#include "dialogs/opaque_form.h"

#include "dialogs/construction_slot.h"
#include "dialogs/glazing_form.h"
#include "support/form_test.h"
#include "ui/help.h"

namespace verandis {
namespace {

using testing_support::Control;
using testing_support::Press;
using testing_support::Type;

class ConstructionWindows : public testing_support::ConstructionSlot {
protected:
    template <class Window>
    Window& Show(int shape, const std::string& first = "") {
        Open(shape, first);
        auto opened = std::make_unique<Window>();
        Window& shown = *opened;
        window_ = std::move(opened);
        shown.show();
        QApplication::setActiveWindow(&shown);
        return shown;
    }

    QWidget& Get(const char* name) { return Control<QWidget>(*window_, name); }
    QString Text(const char* name) { return Control<QLineEdit>(*window_, name).text(); }
    void Pick(const char* list, int row) {
        Control<QListWidget>(*window_, list).setCurrentRow(row);
    }

    std::unique_ptr<QDialog> window_;
};

template <class Window>
std::unique_ptr<QDialog> Make() {
    return std::make_unique<Window>();
}

TEST_F(ConstructionWindows, EveryControlIsThereAndTheHelpIsItsOwn) {
    const struct {
        std::unique_ptr<QDialog> (*make)();
        int shape;
        int topic;
        const char* controls;
    } rows[] = {
        {Make<GlazingUShape>, kShapeU, 12164, "Option1 Option2 Option3 Glazes Text2 Text3"},
        {Make<GlazingOShape>, kShapeO, 12165, "Option1 Option2 Glazes Text2 Text3"},
        {Make<GlazingVShape>, kShapeV, 12166, "Option1 Option2 Option3 Option4 Text4 Walls"},
        {Make<GlazingIShape>, kShapeI, 12167, "Option1 Option2 Option3 Glazes Text2 Text3"},
        {Make<OpaqueConstrUShape>, kShapeU, 12169,
         "Option1_0 Option1_1 Option1_2 Option1_3 Option1_4 Option1_5 Option2 Option3 Text3"},
        {Make<OPaqueConstrOShape>, kShapeO, 12170,
         "Option1 Option2 Option3 Option4 Option5 Option6 Option7 Option8 Text4"},
        {Make<OpaqueConstrVShape>, kShapeV, 12171, "Option1 Option2 Option3 Option4 Option5 Text4"},
        {Make<OpaqueConstrIShape>, kShapeI, 12172,
         "Option1 Option2_0 Option2_1 Option3 Option4 Option5 Text3"},
    };
    int asked = 0;
    UseHelpViewer([&](int topic) { asked = topic; });
    for (const auto& row : rows) {
        Open(row.shape);
        window_ = row.make();
        window_->show();
        for (const QString& name : QString(row.controls).split(' ')) {
            EXPECT_NO_THROW(Get(name.toLatin1().data()));
        }
        Press(Get("Command1"));
        EXPECT_EQ(asked, row.topic);
        Press(Get("Command3"));
        EXPECT_FALSE(window_->isVisible());
        EXPECT_EQ(Changed(), "");
    }
    UseHelpViewer({});
}

TEST_F(ConstructionWindows, ARoofIsMadeOpaqueByPressing) {
    Show<GlazingVShape>(kShapeV, "XV206_GLAZEDID\tLowE-3, 1\n");
    EXPECT_FALSE(Get("Option5").isVisible());
    EXPECT_FALSE(Get("Apply").isEnabled());
    Press(Get("Option1"));
    EXPECT_EQ(Text("Text2") + " " + Text("Text3"), "1.1 45");
    EXPECT_TRUE(Get("Label12").isVisible());
    Press(Get("Option6"));
    EXPECT_FALSE(Get("Glazes").isEnabled() || Get("Text2").isEnabled());
    EXPECT_TRUE(Get("Walls").isEnabled() && Get("Label20").isEnabled());
    Pick("Walls", 2);
    EXPECT_EQ(Text("Text4"), "0.4");
    Press(Get("Apply"));
    EXPECT_FALSE(Control<QRadioButton>(*window_, "Option1").isChecked());
    EXPECT_FALSE(Get("Option6").isVisible() || Get("Walls").isEnabled());
    Press(Get("Option1"));
    EXPECT_TRUE(Control<QRadioButton>(*window_, "Option6").isChecked());
    Press(Get("Option2"));
    Pick("Glazes", 1);
    Press(Get("Option1"));
    EXPECT_EQ(session.ElementKindMark, kOpaqueKind);
    QTest::keyClick(window_.get(), Qt::Key_Escape);
    EXPECT_FALSE(window_->isVisible());
    EXPECT_EQ(Changed(),
              "XV206_GLAZEDID=FloorC, 2 XV201-W_GLAZEDID=Clear2 XV202-E_GLAZEDID=Clear2");
    EXPECT_EQ(session.ElementKindMark, 0);
}

TEST_F(ConstructionWindows, ClosingByTheFrameIsACancel) {
    Show<OpaqueConstrIShape>(kShapeI);
    Press(Get("Option1"));
    Press(Get("ApplyC"));
    EXPECT_EQ(session.CasePropertyTable.size(), 6U);
    window_->close();
    EXPECT_TRUE(session.CasePropertyTable.empty());
    EXPECT_EQ(Changed(), "");
}

TEST_F(ConstructionWindows, AWallIsEditedCopiedAndStored) {
    Show<OpaqueConstrIShape>(kShapeI);
    EXPECT_FALSE(Get("Text3").isVisible() || Get("MTB2").isVisible());
    QTest::mouseClick(&Get("Option2_1"), Qt::RightButton);
    EXPECT_TRUE(session.CasePropertyTable.empty());
    Press(Get("Option2_0"));
    EXPECT_EQ(Text("Text3"), "20");
    Pick("Walls", 1);
    Pick("Glazes", 2);
    EXPECT_EQ(Text("Text1") + " " + Text("Text2") + " " + Text("Text4"), "0.25 1.1 45");
    Type(Get("Text3"), "0");
    EXPECT_FALSE(Get("Glazes").isEnabled() || Get("Text4").isEnabled());
    Type(Get("Text3"), "0.1");
    EXPECT_TRUE(Get("Glazes").isEnabled());
    QTest::mouseClick(&Get("Option1"), Qt::RightButton);
    EXPECT_TRUE(session.CasePropertyTable.empty());
    QTest::mouseClick(&Get("Option2_1"), Qt::RightButton, {}, QPoint(8, 8));
    EXPECT_TRUE(Control<QRadioButton>(*window_, "Option2_0").isChecked());
    Press(Get("Option5"));
    EXPECT_TRUE(Get("MTB2").isVisible());
    Type(Get("MTB2"), "35");
    QTest::keyClick(window_.get(), Qt::Key_Return);
    EXPECT_FALSE(window_->isVisible());
    EXPECT_EQ(Changed(),
              "XI101-W_WALLTYPE=WallB2 XI101-W_GLAZEDID=LowE-3 XI101-W_PCNTW= 0.1 "
              "XI102-E_WALLTYPE=WallB2 XI102-E_GLAZEDID=LowE-3 XI102-E_PCNTW= 0.1 "
              "XI103-F_ABSX1= 35");
}

TEST_F(ConstructionWindows, ABadNumberKeepsItsGroupAndGetsTheFocus) {
    Show<OPaqueConstrOShape>(kShapeO);
    session.ProgramText = Catalogue({"20335, - bad"});
    Press(Get("Option4"));
    Type(Get("MTB1"), "-");
    Press(Get("ApplyC"));
    EXPECT_EQ(prompts.shown.size(), 1U);
    EXPECT_EQ(QApplication::focusWidget(), &Get("MTB1"));
    EXPECT_EQ(Control<QLineEdit>(*window_, "MTB1").selectedText(), "-");
    EXPECT_TRUE(Control<QRadioButton>(*window_, "Option4").isChecked());
    Press(Get("CopyWalls"));
    EXPECT_EQ(prompts.shown.size(), 2U);
    Press(Get("Command3"));
    EXPECT_FALSE(window_->isVisible());
    EXPECT_EQ(Changed(), "");
}

}  // namespace
}  // namespace verandis
