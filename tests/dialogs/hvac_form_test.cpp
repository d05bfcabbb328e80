#include "dialogs/hvac_form.h"

#include "app/session.h"
#include "dialogs/demands_form.h"
#include "support/form_test.h"

namespace verandis {
namespace {

using namespace testing_support;

class ConditionDialogs : public SmallRootTest {
protected:
    ConditionDialogs() {
        session.ProgramText = Catalogue({"20111, Check of values"});
        MakeSlot({kShapeU, 1},
                 "HVACG_INF\t 0.5\nHVACB_INF\t 0.3\nHVACG_INTLOAD\t 0\nHVACB_INTLOAD\t 2\n"
                 "HVAC_FVI\t 1\nHVAC_FVV\t 30\nTDG_TDGMIN\t 12\n");
    }
    std::string File() const { return Bytes(SlotFile({kShapeU, 1}, "SimpPropertiesOfCase.Dat")); }

    static void Open(QDialog& dialog) {
        dialog.show();
        dialog.activateWindow();
    }
};

TEST_F(ConditionDialogs, DemandsStayOpenUntilTheyPassAndAreThenStored) {
    HVACformX dialog;
    Open(dialog);
    const std::string before = File();
    EXPECT_EQ(Control<QLineEdit>(dialog, "MTB3").text(), "12");
    Press(Control(dialog, "Command2"));
    EXPECT_EQ(prompts.Texts(), std::vector<std::string>{"...will be implemented soon.."});
    Type(Control(dialog, "MTB2"), "51");
    Press(Control(dialog, "Command1"));
    EXPECT_EQ(prompts.shown.back().title, "Check of values");
    EXPECT_EQ(prompts.shown.back().icon, Icon::Exclamation);
    EXPECT_EQ(dialog.focusWidget(), &Control(dialog, "MTB2"));
    EXPECT_EQ(Control<QLineEdit>(dialog, "MTB2").selectedText(), "51");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(File(), before);
    Type(Control(dialog, "MTB2"), "2");
    QTest::keyClick(&Control(dialog, "MTB2"), Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_NE(File().find("AIRCHANGE_ACHB\t 2\r\n"), std::string::npos);
}

TEST_F(ConditionDialogs, TheListSwitchesTheFlow) {
    HVACForm dialog;
    Open(dialog);
    auto& list = Control<QComboBox>(dialog, "CMBFV");
    auto& flow = Control<QLineEdit>(dialog, "FVV");
    EXPECT_EQ(list.currentIndex(), 1);
    EXPECT_EQ(flow.text(), "30");
    QTest::keyClick(&list, Qt::Key_Up);
    EXPECT_EQ(flow.text(), "");
    EXPECT_FALSE(flow.isEnabled());
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_TRUE(flow.isEnabled());
    Press(Control(dialog, "Command3"));
    EXPECT_EQ(dialog.focusWidget(), &Control(dialog, "CB"));
    Type(flow, "18");
    Press(Control(dialog, "Command3"));
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_NE(File().find("HVAC_FVI\t 1\r\nHVAC_FVV\t 18\r\n"), std::string::npos);
}

TEST_F(ConditionDialogs, CancelAndEscapeStoreNothing) {
    const std::string before = File();
    HVACForm hvac;
    Open(hvac);
    Type(Control(hvac, "IG"), "9");
    Press(Control(hvac, "Command2"));
    HVACformX demands;
    Open(demands);
    Type(Control(demands, "MTB1"), "9");
    QTest::keyClick(&demands, Qt::Key_Escape);
    EXPECT_FALSE(hvac.isVisible() || demands.isVisible());
    EXPECT_EQ(File(), before);
}

}  // namespace
}  // namespace verandis
