#include "libraries/type_editor.h"

#include "app/data_root.h"
#include "app/program_text.h"
#include "app/session.h"
#include "libraries/simple_libraries.h"
#include "support/session_test.h"

// What the dialogs of the simple libraries do on each event, without their windows.

namespace verandis {
namespace {

using Texts = std::vector<std::string>;

class Types : public testing_support::SmallRootTest {
protected:
    Types() {
        session.SimulatorFolder = DeliveredFolder() + "/MWTHARM";
        LoadProgramText();
    }

    /// The window library after the change of mode that lets it be edited.
    static TypeEditor Editable() {
        TypeEditor editor(TypeKind::Window);
        editor.ChooseReferences();
        editor.ChooseTypes();
        return editor;
    }

    TextTable& windows = simpleLibraries.WindowTable;
    TextTable& walls = simpleLibraries.WallTable;
};

TEST_F(Types, WindowsOpenForReadingAndAreEditedAfterAChangeOfMode) {
    TypeEditor editor(TypeKind::Window);
    EXPECT_FALSE(editor.editable() || editor.references());
    EXPECT_EQ(editor.entry.TT, "83");
    editor.ChooseTypes();
    EXPECT_FALSE(editor.editable()) << "a press on the option that is chosen already";
    EXPECT_EQ(editor.ChooseRow(2), "");
    EXPECT_EQ(editor.ChooseReferences(), "");
    EXPECT_EQ(editor.Names(), (Texts{"RefWin1", "RefWin2", "RefWin3"}));
    EXPECT_EQ(editor.selected(), 0);
    editor.entry.TT = "";
    EXPECT_EQ(editor.ChooseRow(1), "") << "a reference window is only shown";
    EXPECT_EQ(editor.entry.TT, "70");
    EXPECT_FALSE(editor.editable());
    editor.ChooseTypes();
    EXPECT_TRUE(editor.editable());
    EXPECT_EQ(editor.selected(), 2) << "the type that was chosen before";
    EXPECT_EQ(windows.Cell(3, kTransmittance), " 0.45") << "not the reference window's";
    EXPECT_EQ(editor.entry.TN, "3");
}

TEST_F(Types, LeavingATypeStoresItOrGoesNowhere) {
    TypeEditor editor = Editable();
    editor.entry.TT = "80";  // 80 + 8 + 9 is not 100
    EXPECT_EQ(editor.ChooseRow(1), "TT");
    EXPECT_EQ(editor.selected(), 0);
    EXPECT_EQ(editor.entry.TT, "80") << "what was typed stays";
    EXPECT_EQ(editor.ChooseReferences(), "TT");
    EXPECT_FALSE(editor.references());
    EXPECT_EQ(editor.Add(), "TT");
    EXPECT_EQ(prompts.shown.size(), 3u);
    EXPECT_EQ(windows.Cell(1, kTransmittance), " 0.83");
    editor.entry.TR = "11";
    EXPECT_EQ(editor.ChooseRow(1), "");
    EXPECT_EQ(windows.Cell(1, kTransmittance), " 0.8");
    EXPECT_EQ(windows.Cell(2, kTransmittance), "0.70") << "the row that is left is stored";
}

TEST_F(Types, ANewTypeIsNamedThenFilledIn) {
    TypeEditor editor = Editable();
    editor.entry.TU = "5.5";
    EXPECT_EQ(editor.Add(), "");  // the input box is cancelled
    EXPECT_EQ(windows.rows(), 3);
    EXPECT_EQ(editor.entry.TT, "83");
    prompts.replies = {"New type 1"};
    EXPECT_EQ(editor.Add(), "TT");
    EXPECT_EQ(windows.Cell(1, kWindowU), " 5.5");
    EXPECT_EQ(editor.selected(), 3);
    EXPECT_EQ(editor.Names().back(), "New type 1");
    EXPECT_EQ(editor.entry.TT + editor.entry.TU + editor.entry.TN, "");
    EXPECT_EQ(editor.ChooseRow(0), "TT") << "it cannot be left blank";
    editor.entry = {"60", "20", "20", "1.5", "2"};
    EXPECT_EQ(editor.ChooseRow(0), "");
    EXPECT_EQ(windows.Cell(4, kWindowU), " 1.5");
}

TEST_F(Types, DeletingChoosesTheLastAndSkipsTheCheckOnce) {
    TypeEditor editor = Editable();
    editor.entry.TT = "bad";
    editor.Delete();
    EXPECT_EQ(editor.Names(), (Texts{"Clear2", "LowE-3"}));
    EXPECT_EQ(editor.selected(), 1);
    EXPECT_EQ(editor.entry.TT, "45");
    editor.entry.TT = "bad";
    EXPECT_EQ(editor.ChooseRow(0), "TT") << "the skip was for the delete's own choice";
    editor.Delete();
    editor.entry.TT = "bad";
    editor.Delete();  // the only one left
    EXPECT_EQ(windows.rows(), 1);
    EXPECT_EQ(editor.entry.TT, "bad");
    EXPECT_EQ(prompts.shown.size(), 1u) << "it is kept in silence";
}

TEST_F(Types, ARefusedDeleteSkipsTheCheckOfTheNextChoice) {
    MakeSlot({kShapeU, 1}, "XU201-S_GLAZEDID\tClear1\n");
    TypeEditor editor = Editable();
    editor.Delete();
    EXPECT_EQ(prompts.shown.back().text, "Window type is used in Case : U-shape 1");
    EXPECT_EQ(editor.selected(), 0);
    editor.entry.TT = "bad";
    EXPECT_EQ(editor.ChooseRow(1), "");
    EXPECT_EQ(windows.Cell(1, kTransmittance), " 0.83") << "nothing of the bad entry is stored";
    editor.entry.TT = "bad";
    EXPECT_EQ(editor.ChooseRow(0), "TT") << "once only";
}

TEST_F(Types, WallsAreEditedAtOnce) {
    session.Decimals = DecimalMode::Comma;
    TypeEditor editor(TypeKind::Wall);
    EXPECT_TRUE(editor.editable());
    EXPECT_EQ(editor.entry.TU, "0,5");
    editor.entry.TU = "0.7";
    EXPECT_EQ(editor.ChooseRow(1), "TU") << "the other decimal sign";
    EXPECT_EQ(editor.selected(), 0);
    editor.entry.TU = "0,7";
    prompts.replies = {"Wall of hay"};
    EXPECT_EQ(editor.Add(), "TU");
    EXPECT_EQ(walls.Cell(1, kWallU), " 0.7");
    EXPECT_EQ(editor.entry.TU, "");
    editor.entry.TU = "0,1";
    editor.ChooseRow(2);
    EXPECT_EQ(walls.Cell(4, kWallU), " 0.1");
}

TEST_F(Types, AMissingLibraryOpensEmpty) {
    std::remove((project + "/SimpWalls.lib").c_str());
    TypeEditor editor(TypeKind::Wall);
    EXPECT_EQ(prompts.Texts(), Texts{"No File Exist"});
    EXPECT_EQ(editor.selected(), -1);
    editor.Delete();
    editor.entry.TU = "1";
    prompts.replies = {"First wall"};
    EXPECT_EQ(editor.Add(), "TU");
    EXPECT_EQ(editor.selected(), 0);
}

}  // namespace
}  // namespace verandis
