#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QTimer>
#include <memory>

#include "app/case_changes.h"
#include "app/data_root.h"
#include "app/program_text.h"
#include "app/session.h"
#include "case/property_file.h"
#include "projects/saved_default_form.h"
#include "projects/saved_list_form.h"
#include "projects/saved_slots_form.h"
#include "projects/saved_target_form.h"
#include "support/form_test.h"

namespace verandis {
namespace {

using testing_support::Bytes;
using testing_support::Control;
using testing_support::Dos;
using testing_support::OnDisk;
using testing_support::Press;
using testing_support::PutBytes;

/// Slots U2 and V1, of which V1 is edited, and the saved cases A!U2, b!V1 and one without a slot.
class SavedCaseWindows : public testing_support::SmallRootTest {
protected:
    SavedCaseWindows() {
        session.SimulatorFolder = DeliveredFolder() + "/MWTHARM";
        LoadProgramText();
        MakeSlot({1, 2}, "CASE_NOTE\tu < two\n");
        MakeSlot({3, 1}, "CASE_NOTE\tv one\n");
        session.ActiveShape = 3;
        session.ActiveCaseNo = 1;
        for (const char* file : {"A!U2.CAS", "b!V1.CAS", "loose.CAS"}) {
            PutBytes(Saved(file), Dos(std::string("***** SimpPropertiesOfCase.Dat\nCASE_NOTE\t") +
                                      file + "\n***** SimpResults.Dat\n"));
        }
        OnCaseChanged([this](bool outdated) { changes += outdated ? "outdated " : "plain "; });
    }
    ~SavedCaseWindows() override { OnCaseChanged({}); }

    std::string Saved(const std::string& file) const { return project + "/" + file; }
    std::string SlotNote(const Slot& slot) const {
        return Bytes(SlotFile(slot, kPropertyFileName));
    }

    std::string LastWords() const { return prompts.shown.empty() ? "" : prompts.shown.back().text; }

    static void Choose(QWidget& window, int row) {
        auto& list = Control<QTreeWidget>(window, "File1");
        list.setCurrentItem(list.topLevelItem(row));
    }
    static std::string DoneOf(QWidget& window) {
        return Control<QLabel>(window, "Done").text().toStdString();
    }
    static int Rows(QWidget& window) {
        return Control<QTreeWidget>(window, "File1").topLevelItemCount();
    }
    static void ClickRow(QWidget& window, int row, bool twice) {
        auto& list = Control<QTreeWidget>(window, "File1");
        const QPoint at = list.visualItemRect(list.topLevelItem(row)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
        if (twice) QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, at);
    }

    std::string changes;
};

TEST_F(SavedCaseWindows, LoadIntoTheSlotOfTheName) {
    LoadCases window;
    window.show();
    prompts.answers = {false, true};
    Press(Control(window, "Command3"));
    EXPECT_EQ(LastWords(), "Load the saved case\u00A0A!U2.CAS over the working\u00A0case ?");
    EXPECT_EQ(changes + DoneOf(window), "") << "a no changes nothing";
    ClickRow(window, 0, true);
    EXPECT_EQ(SlotNote({1, 2}), "CASE_NOTE\tA!U2.CAS\r\n");
    EXPECT_EQ(changes, "outdated ");
    EXPECT_EQ(DoneOf(window), "Loaded A!U2.CAS");
    EXPECT_TRUE(window.isVisible());
    Choose(window, 2);
    prompts.answers = {true};
    Press(Control(window, "Command3"));
    EXPECT_EQ(LastWords(), "The file name tells no slot: loose.CAS");
    EXPECT_EQ(DoneOf(window), "");
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(SavedCaseWindows, LoadIntoAnotherSlot) {
    LoadCases window;
    window.show();
    Choose(window, 2);
    prompts.answers = {true};
    QTimer::singleShot(0, &window, [&] {
        auto& target = Control<TargetFile>(window, "TargetFile");
        EXPECT_FALSE(Control(target, "Command1").isEnabled()) << "no slot is known";
        Press(Control(target, "Option1_1"));
        Control<QComboBox>(target, "target").setCurrentIndex(1);
        EXPECT_EQ(Control<QLineEdit>(target, "TagretFile").text(), "loose!U2.CAS");
        QTest::keyClick(&target, Qt::Key_Return);
        EXPECT_FALSE(target.isVisible());
        if (target.isVisible()) target.reject();
    });
    Press(Control(window, "Command4"));
    EXPECT_EQ(SlotNote({1, 2}), "CASE_NOTE\tloose.CAS\r\n");
    EXPECT_EQ(DoneOf(window), "Loaded loose.CAS - U-shape 2");
    EXPECT_FALSE(OnDisk(Saved("loose!U2.CAS"))) << "only copying makes a file";
    QTimer::singleShot(0, &window,
                       [&] { QTest::keyClick(&Control(window, "TargetFile"), Qt::Key_Escape); });
    Press(Control(window, "Command4"));
    EXPECT_EQ(changes, "outdated ");
}

TEST_F(SavedCaseWindows, TargetStaysAfterARefusedCopy) {
    TargetFile target;
    target.Ask("A!U2.CAS", TargetUse::Copy);
    target.show();
    EXPECT_EQ(Control<QLineEdit>(target, "SourceFile").text(), "A!U2.CAS");
    Press(Control(target, "Command1"));
    EXPECT_EQ(prompts.Texts(),
              std::vector<std::string>{"Refused: New name belongs to a saved case already"});
    EXPECT_TRUE(target.isVisible());
    EXPECT_EQ(Control<QLabel>(target, "Remark").text(), "");
    Press(Control(target, "Option1_4"));
    EXPECT_NE(Control<QLabel>(target, "Remark").text(), "") << "the shape is another one";
    Press(Control(target, "Command1"));
    EXPECT_EQ(Bytes(Saved("A!I2.CAS")), Bytes(Saved("A!U2.CAS")));
    EXPECT_EQ(target.result(), QDialog::Accepted);
}

TEST_F(SavedCaseWindows, DeleteUntilTheListIsEmpty) {
    DeleteCases window;
    window.show();
    auto& list = Control<QTreeWidget>(window, "File1");
    Choose(window, 1);
    prompts.answers = {false, true, true, true};
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(LastWords(), "Confirm: Delete Case b!V1.CAS");
    EXPECT_EQ(Rows(window), 3);
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_FALSE(OnDisk(Saved("b!V1.CAS")));
    EXPECT_EQ(DoneOf(window), "Deleted: b!V1.CAS");
    EXPECT_EQ(window.ChosenFile(), "loose.CAS") << "the next one stands in its place";
    const std::size_t asked = prompts.shown.size();
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(prompts.shown.size(), asked + 1) << "Enter asks once";
    Press(Control(window, "Command2"));
    EXPECT_EQ(Rows(window), 0);
    EXPECT_FALSE(Control(window, "Command2").isEnabled());
    EXPECT_NE(list.accessibleDescription(), "");
}

TEST_F(SavedCaseWindows, CopyAtAClick) {
    CopyCaseInLib window;
    window.show();
    prompts.replies = {"C"};
    ClickRow(window, 1, false);
    EXPECT_EQ(Bytes(Saved("C!V1.CAS")), Bytes(Saved("b!V1.CAS")));
    EXPECT_EQ(DoneOf(window), "Copied: C!V1.CAS");
    EXPECT_EQ(Rows(window), 4);
    EXPECT_EQ(window.ChosenFile(), "b!V1.CAS");
    QTest::keyClick(&Control(window, "File1"), Qt::Key_Down);
    EXPECT_EQ(prompts.shown.size(), 1u) << "moving about asks nothing";
    LIstOfSavedCases list;
    list.show();
    ClickRow(list, 1, true);
    EXPECT_EQ(prompts.shown.size(), 1u);
    const auto* row = Control<QTreeWidget>(list, "File1").topLevelItem(0);
    EXPECT_EQ(row->text(0) + "/" + row->text(1) + "/" + row->text(2), "A/U-shape 2/A!U2.CAS");
}

TEST_F(SavedCaseWindows, SaveTheMarkedSlots) {
    session.ChkCase[1][2] = true;
    session.ChkCase[1][3] = true;  // not in this project
    SaveCases window;
    window.show();
    const auto box = [&](int number) -> QCheckBox& {
        return Control<QCheckBox>(window, ("Check1_" + std::to_string(number)).c_str());
    };
    auto& save = Control(window, "Command5");
    EXPECT_TRUE(box(2).isChecked());
    EXPECT_FALSE(box(3).isChecked() || box(3).isEnabled());
    EXPECT_EQ(box(2).toolTip(), "<span>u &lt; two</span>");
    Press(Control(window, "Command4"));
    EXPECT_FALSE(save.isEnabled());
    Press(Control(window, "Command1"));
    EXPECT_TRUE(box(2).isChecked() && box(9).isChecked());
    Press(box(2));
    prompts.replies = {std::nullopt, "two words", "Set"};
    Press(save);
    EXPECT_EQ(DoneOf(window), "") << "cancelled";
    Press(save);
    EXPECT_EQ(DoneOf(window), "Saved in the set Set: V1");
    EXPECT_TRUE(OnDisk(Saved("Set!V1.CAS")));
    EXPECT_FALSE(OnDisk(Saved("Set!U2.CAS")));
    EXPECT_TRUE(window.isVisible());
}

TEST_F(SavedCaseWindows, RedefineAndClose) {
    PutBytes(project + "/VShape/SimpPropertiesOfCaseV1.Dat", "old");
    BasRedef window;
    window.show();
    EXPECT_TRUE(Control<QLabel>(window, "Label1").text().contains("the slot V-shape 1 "));
    prompts.answers = {false, true};
    Press(Control(window, "Command1"));
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(Bytes(project + "/VShape/SimpPropertiesOfCaseV1.Dat"), "old");
    Press(Control(window, "Command1"));
    EXPECT_EQ(Bytes(project + "/VShape/SimpPropertiesOfCaseV1.Dat"), SlotNote({3, 1}));
    EXPECT_FALSE(window.isVisible());
    session.ActiveShape = 0;
    EXPECT_FALSE(Control(*std::make_unique<BasRedef>(), "Command1").isEnabled());
}

}  // namespace
}  // namespace verandis
