#include "app/help_form.h"

#include <QDialog>
#include <QLineEdit>
#include <QTextBlock>
#include <QToolButton>
#include <cstdlib>

#include "app/data_root.h"
#include "app/program_text.h"
#include "app/session.h"
#include "support/form_test.h"
#include "ui/help.h"

namespace verandis {
namespace {

using testing_support::Control;
using testing_support::Press;
using testing_support::Type;

class HelpViewer : public testing_support::SessionTest {
protected:
    HelpViewer() {
        session.SimulatorFolder = DeliveredFolder() + "/MWTHARM";
        LoadProgramText();
        UseHelpWindow(&owner);
    }

    static std::string Title(HelpWindow& window) {
        return Control<QTextBrowser>(window, "Page").document()->firstBlock().text().toStdString();
    }

    static std::string Chosen(HelpWindow& window) {
        return Control<QTreeWidget>(window, "Contents").currentItem()->text(0).toStdString();
    }

    static void PressAction(HelpWindow& window, const char* name) {
        for (auto* button : window.findChildren<QToolButton*>()) {
            if (button->defaultAction()->objectName() == name) return Press(*button);
        }
        FAIL() << name;
    }

    HelpWindow& OpenAt(int topic) {
        ShowHelp(topic);
        auto* window = owner.findChild<HelpWindow*>();
        if (!window || !window->isVisible()) throw std::runtime_error("no help window");
        return *window;
    }

    QWidget owner;
};

TEST_F(HelpViewer, OpensTopicsInOneWindowAndFollowsThemInTheContents) {
    HelpWindow& window = OpenAt(12134);
    EXPECT_EQ(Title(window), "Dimensions: O-shape");
    EXPECT_EQ(Chosen(window), "Dimensions: O-shape");
    EXPECT_EQ(&OpenAt(4711), &window);
    EXPECT_EQ(Title(window), "Verandis") << "an unknown topic opens the first page";

    auto& page = Control<QTextBrowser>(window, "Page");
    QTest::keyClick(&page, Qt::Key_Tab);
    QTest::keyClick(&page, Qt::Key_Enter);
    EXPECT_EQ(Title(window), "First steps") << "the first link of the page, by keyboard";
    EXPECT_EQ(Chosen(window), "First steps");
    PressAction(window, "Back");
    EXPECT_EQ(Chosen(window), "Verandis");
    PressAction(window, "Forward");
    EXPECT_EQ(Title(window), "First steps");
    QTest::keyClick(&Control(window, "Contents"), Qt::Key_Up);
    EXPECT_EQ(Title(window), "Verandis");
}

TEST_F(HelpViewer, F1InADialogOpensItsPage) {
    QDialog dialog(&owner);
    dialog.setObjectName("RenCase");
    QLineEdit field(&dialog);
    dialog.show();
    QTest::keyClick(&field, Qt::Key_F1);
    auto* window = owner.findChild<HelpWindow*>();
    ASSERT_TRUE(window && window->isVisible());
    EXPECT_EQ(Title(*window), "Cases of a project");
}

TEST_F(HelpViewer, ShowsThePicturesOfAPageAndLetsItsTextGrow) {
    HelpWindow& window = OpenAt(12133);
    auto& page = Control<QTextBrowser>(window, "Page");
    const auto picture =
        page.document()->resource(QTextDocument::ImageResource, QUrl("help:/en/shape_u.png"));
    EXPECT_FALSE(picture.value<QImage>().isNull());
    const double before = page.font().pointSizeF();
    PressAction(window, "Larger");
    EXPECT_GT(page.font().pointSizeF(), before);
}

TEST_F(HelpViewer, SearchesMarksAndTakesTheSearchBack) {
    HelpWindow& window = OpenAt(kHelpContentsTopic);
    auto& search = Control<QLineEdit>(window, "Search");
    auto& hits = Control<QListWidget>(window, "Hits");
    Type(search, "ground resistance");
    ASSERT_TRUE(hits.isVisible());
    QTest::keyClick(&search, Qt::Key_Return);
    EXPECT_EQ(Title(window), "The steady-state balance");
    EXPECT_GE(Control<QTextBrowser>(window, "Page").extraSelections().size(), 2);
    Type(search, "xyzzy");
    EXPECT_EQ(hits.item(0)->text(), "No page holds these words.");
    QTest::keyClick(&search, Qt::Key_Return);
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_TRUE(Control(window, "Contents").isVisible());
    EXPECT_TRUE(window.isVisible());
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(HelpViewer, BelongsToAModalDialogWhileThatIsOpen) {
    QDialog dialog(&owner);
    dialog.setModal(true);
    dialog.show();
    ShowHelp(12168);
    auto* window = dialog.findChild<HelpWindow*>();
    ASSERT_TRUE(window) << "else the dialog would keep all keys from it";
    EXPECT_EQ(Title(*window), "Set points and loads");
    dialog.accept();
    EXPECT_EQ(window->parentWidget(), &owner);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(HelpViewer, TellsThatThePagesAreMissing) {
    ::setenv("VERANDIS_DELIVERED", Path("none").c_str(), 1);
    session.SimulatorFolder = Path("MWTHARM");
    HelpWindow& window = OpenAt(12168);
    EXPECT_EQ(Title(window), "The help pages are not in the folder");
    testing_support::PutBytes(Path("MWTHARM/help/en/contents.txt"), "0\ta.html\t1\tAtrium\n");
    HelpWindow torn;
    torn.ShowTopic(1);
    EXPECT_EQ(Title(torn), "The page is missing: Atrium");
    EXPECT_TRUE(prompts.Texts().empty());
}

}  // namespace
}  // namespace verandis
