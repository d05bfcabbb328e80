#include "libraries/type_library_form.h"

#include "app/session.h"
#include "libraries/simple_libraries.h"
#include "support/form_test.h"

namespace verandis {
namespace {

using namespace testing_support;

class LibraryDialogs : public SmallRootTest {
protected:
    LibraryDialogs() {
        session.ProgramText = Catalogue({"20128, Window types", "20129, Reference window types",
                                         "20154, Library", "20167, Check"});
    }

    static void Open(QDialog& dialog) {
        dialog.show();
        dialog.activateWindow();
    }
    static void PressRow(QDialog& dialog, int row) {
        auto& list = Control<QListWidget>(dialog, "List1");
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                          list.visualItemRect(list.item(row)).center());
        QCoreApplication::sendPostedEvents();
    }
    static QString Caption(QDialog& dialog, const char* label) {
        return Control<QLabel>(dialog, label).text().remove('&');
    }
};

TEST_F(LibraryDialogs, WindowsOpenForReadingUntilTheModeChangesBack) {
    ReferenceWindowsLib dialog;
    Open(dialog);
    const auto enabled = [&] {
        int count = 0;
        for (const char* name :
             {"TT", "TR", "TA", "TU", "TN", "Command3", "Command4", "Command5"}) {
            count += Control(dialog, name).isEnabled();
        }
        return count;
    };
    EXPECT_EQ(enabled(), 0);
    EXPECT_EQ(Caption(dialog, "Label1"), "Library");
    Press(Control(dialog, "Option2"));
    EXPECT_EQ(Caption(dialog, "Label1"), "Reference window types");
    EXPECT_EQ(Control<QLineEdit>(dialog, "TT").text(), "80");
    EXPECT_EQ(enabled(), 0);
    Press(Control(dialog, "Option1"));
    EXPECT_EQ(Caption(dialog, "Label1"), "Window types");
    EXPECT_EQ(enabled(), 8);
    Type(Control(dialog, "TN"), "4");
    Press(Control(dialog, "Option2"));
    EXPECT_TRUE(Control<QRadioButton>(dialog, "Option1").isChecked());
    EXPECT_EQ(dialog.focusWidget(), &Control(dialog, "TN"));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(LibraryDialogs, ARefusedChoiceLeavesTheRowMarked) {
    ReferenceWindowsLib dialog;
    Open(dialog);
    Press(Control(dialog, "Option2"));
    Press(Control(dialog, "Option1"));
    auto& list = Control<QListWidget>(dialog, "List1");
    Type(Control(dialog, "TA"), "");
    PressRow(dialog, 2);
    EXPECT_EQ(prompts.shown.size(), 1u);
    EXPECT_EQ(list.selectedItems(), QList{list.item(0)});
    EXPECT_EQ(dialog.focusWidget(), &Control(dialog, "TA"));
    QTest::keyClick(&list, Qt::Key_Down);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(prompts.shown.size(), 2u);
    EXPECT_EQ(list.selectedItems(), QList{list.item(0)});
    EXPECT_EQ(list.currentRow(), 0);
    Type(Control(dialog, "TA"), "9");
    PressRow(dialog, 2);
    EXPECT_EQ(Control<QLineEdit>(dialog, "TT").text(), "45");
}

TEST_F(LibraryDialogs, WallsAreAddedAndDeletedInTheList) {
    OpaqueWallsLib dialog;
    Open(dialog);
    auto& list = Control<QListWidget>(dialog, "List1");
    prompts.replies = {"Wall of hay"};
    Press(Control(dialog, "Command1"));
    EXPECT_EQ(list.currentItem()->text(), "Wall of hay");
    EXPECT_EQ(dialog.focusWidget(), &Control(dialog, "TU"));
    Press(Control(dialog, "Command2"));
    EXPECT_EQ(list.count(), 3);
    EXPECT_EQ(list.currentRow(), 2);
    Type(Control(dialog, "TU"), "9");
    Press(Control(dialog, "Command5"));
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(simpleLibraries.WallTable.Cell(3, kWallU), "0,4") << "closing stores nothing";
}

}  // namespace
}  // namespace verandis
