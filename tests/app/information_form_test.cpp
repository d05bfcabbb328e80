#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPdfWriter>
#include <QPlainTextEdit>
#include <QTimer>

#include "app/about_form.h"
#include "app/building_picture_form.h"
#include "app/contact_form.h"
#include "app/data_root.h"
#include "app/program_text.h"
#include "app/session.h"
#include "support/form_test.h"
#include "ui/theme.h"

namespace verandis {
namespace {

using testing_support::Bytes;
using testing_support::Control;
using testing_support::Press;

class Information : public testing_support::SmallRootTest {
protected:
    Information() {
        session.SimulatorFolder = DeliveredFolder() + "/MWTHARM";
        LoadProgramText();
    }

    void UseSlot(const Slot& slot) {
        session.ActiveShape = slot.shape;
        session.ActiveCaseNo = slot.caseNo;
        MakeSlot(slot, "DIMENSION_WIDTHB\t 24\nCASE_NOTE\tCourt & street\n");
    }

    static std::string TitleOf(BuildingPicture& window) {
        return Control<QLabel>(window, "SlotTitle").text().toStdString();
    }
};

TEST_F(Information, TellsTheVersionAndLeadsToTheContact) {
    QApplication::setApplicationVersion("7.8.9");
    AboutBox about;
    about.show();
    EXPECT_EQ(Control<QLabel>(about, "Version").text(), "Version 7.8.9");
    bool opened = false;
    QTimer::singleShot(0, &about, [&] {
        auto* contact = qobject_cast<ContactWindow*>(QApplication::activeModalWidget());
        opened = contact != nullptr;
        if (contact) QTest::keyClick(contact, Qt::Key_Escape);
    });
    Press(Control(about, "Contact"));
    EXPECT_TRUE(opened);
    Press(Control(about, "cmdOK"));
    EXPECT_FALSE(about.isVisible());
}

TEST_F(Information, CopiesWhatTheSupplierNeedsToKnow) {
    ContactWindow contact;
    contact.show();
    Press(Control(contact, "Copy"));
    const std::string text = QGuiApplication::clipboard()->text().toStdString();
    EXPECT_EQ(text, Control<QPlainTextEdit>(contact, "Details").toPlainText().toStdString());
    for (const std::string& part :
         {"Folder of the data: " + root + "\n", "Folder of the settings: " + Path("config") + "\n",
          std::string("Language: English\n"), std::string("Qt ") + qVersion()}) {
        EXPECT_NE(text.find(part), std::string::npos) << part << "\n" << text;
    }
    EXPECT_FALSE(Control<QLabel>(contact, "Copied").text().isEmpty());
}

TEST_F(Information, ShowsTheActiveSlotAlsoWhenItChanges) {
    BuildingPicture window;
    window.show();
    EXPECT_FALSE(Control(window, "SavePicture").isEnabled()) << "no case is open";
    UseSlot({kShapeU, 1});
    window.hide();
    window.show();
    EXPECT_EQ(TitleOf(window), "U-shape / Case 1: Court & street");
    UseSlot({kShapeV, 3});
    window.ShowActiveSlot();
    EXPECT_EQ(TitleOf(window), "V-shape / Case 3: Court & street");
    EXPECT_TRUE(Control(window, "SavePicture").isEnabled());
}

TEST_F(Information, GivesThePictureAwayOnWhite) {
    UseSlot({kShapeU, 1});
    BuildingPicture window;
    window.setPalette(QPalette(QColor(32, 32, 32)));
    window.show();
    ASSERT_TRUE(window.SavePicture(Path("u1.png")));
    const QImage saved = QImage::fromData(QByteArray::fromStdString(Bytes(Path("u1.png"))));
    EXPECT_EQ(saved.pixelColor(1, 1), QColor(Qt::white));
    QWidget light;
    light.setPalette(QPalette(Qt::white));
    int glass = 0;
    for (int y = 0; y < saved.height(); ++y) {
        for (int x = 0; x < saved.width(); ++x) {
            glass += saved.pixelColor(x, y) == TintOf(Tint::Glass, light);
        }
    }
    EXPECT_GT(glass, saved.width() * saved.height() / 50);
    Press(Control(window, "CopyPicture"));
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), saved.size());
    QPdfWriter paper(QString::fromStdString(Path("u1.pdf")));
    window.PrintOn(paper);
    EXPECT_TRUE(Bytes(Path("u1.pdf")).starts_with("%PDF"));
    EXPECT_FALSE(window.SavePicture(Path("none/u1.png")));
    EXPECT_EQ(prompts.Texts().size(), 1u);
}

}  // namespace
}  // namespace verandis
