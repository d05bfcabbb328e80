#include "dialogs/building_data_form.h"

#include <QAbstractButton>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTimer>
#include <functional>
#include <memory>
#include <vector>

#include "app/session.h"
#include "case/property_file.h"
#include "dialogs/geometry_form.h"
#include "dialogs/shade_site_form.h"
#include "support/form_test.h"

namespace verandis {
namespace {

using namespace testing_support;

class CaseDialogs : public SmallRootTest {
protected:
    CaseDialogs() { session.ProgramText = Catalogue({"20220, Dimensions", "20222, No number"}); }

    void Open(int shape, const std::string& properties = "CASE_NOTE\tx\n") {
        slot = {shape, 1};
        MakeSlot(slot, properties);
        session.ActiveShape = shape;
        session.ActiveCaseNo = 1;
    }
    std::string File() const { return Bytes(SlotFile(slot, "SimpPropertiesOfCase.Dat")); }

    Slot slot;
};

template <class Window>
std::unique_ptr<Window> Shown() {
    auto window = std::make_unique<Window>();
    window->show();
    window->activateWindow();
    return window;
}

QString TextOf(QWidget& window, const char* field) {
    return Control<QLineEdit>(window, field).text();
}

TEST_F(CaseDialogs, EachGeometryDialogHasItsValuesInItsOwnBoxes) {
    struct Row {
        int shape;
        std::function<std::unique_ptr<GeometryForm>()> make;
        QStringList texts;  // Text1 to Text4, Text5_0, Text5_1
    };
    const std::string properties =
        "DIMENSION_WIDTHB\t 31\nDIMENSION_DEPTHB\t 32\nDIMENSION_HIGTHB\t 33\n"
        "DIMENSION_WIDTHG\t 14\nDIMENSION_DEPTHG\t 15\nDIMENSION_OFFD\t 16\nDIMENSION_TILT\t 17\n";
    const Row rows[] = {
        {kShapeU, Shown<GeoUShape>, {"31", "14", "32", "15", "17", "33"}},
        {kShapeO, Shown<GeoOShape>, {"31", "14", "32", "15", "33", "17"}},
        {kShapeV, Shown<GeoVShape>, {"31", "16", "32", "33", "", "17"}},
        {kShapeI, Shown<GeoIShape>, {"31", "14", "32", "", "17", "33"}},
    };
    const char* names[] = {"Text1", "Text2", "Text3", "Text4", "Text5_0", "Text5_1"};
    for (const Row& row : rows) {
        Open(row.shape, properties);
        const auto window = row.make();
        for (int at = 0; at < 6; ++at) {
            const auto* box = window->findChild<QLineEdit*>(names[at]);
            EXPECT_EQ(box ? box->text() : "", row.texts[at]) << row.shape << names[at];
        }
    }
}

TEST_F(CaseDialogs, RefusesTellsAndKeepsTheFocusOnTheLastBadField) {
    Open(kShapeU);
    const std::string before = File();
    const auto window = Shown<GeoUShape>();
    Type(Control(*window, "Text1"), "0");
    Type(Control(*window, "Text2"), "-");
    Press(Control(*window, "Command3"));
    ASSERT_EQ(prompts.shown.size(), 1u);
    EXPECT_EQ(prompts.shown[0].title, "Dimensions");
    EXPECT_EQ(prompts.shown[0].icon, Icon::Exclamation);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->focusWidget(), &Control(*window, "Text2"));
    EXPECT_EQ(Control<QLineEdit>(*window, "Text2").selectedText(), "-");
    EXPECT_EQ(File(), before);
}

TEST_F(CaseDialogs, CloseStoresWhatIsTypedAndEscapeNothing) {
    Open(kShapeI);
    const std::string before = File();
    auto window = Shown<GeoIShape>();
    Type(Control(*window, "Text3"), "40");
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(File(), before);
    window = Shown<GeoIShape>();
    Type(Control(*window, "Text3"), "40");
    QTest::keyClick(&Control(*window, "Text3"), Qt::Key_Return);
    EXPECT_FALSE(window->isVisible());
    EXPECT_NE(File().find("DIMENSION_DEPTHG\t 40\r\n"), std::string::npos);
}

TEST_F(CaseDialogs, TheLeanToTellsItsSteepestTiltWhileTyping) {
    session.ProgramText = Catalogue({"20108, at most", "20806, degrees"});
    Open(kShapeV);
    const auto window = Shown<GeoVShape>();
    Type(Control(*window, "Text4"), "5");
    Type(Control(*window, "Text2"), "4");
    EXPECT_EQ(Control<QLabel>(*window, "TiltRemark").text(), "at most 45 degrees");
}

TEST_F(CaseDialogs, SiteStoresTheBarsAngleAndTheChosenRow) {
    PutBytes(root + "/CLIM/OSLO_1S.dat", "");
    PutBytes(root + "/CLIM/ZORN_1S.dat", "");
    Open(kShapeU, "CLIMATE_FILE\tOSLO_1\nROTATION_ANGLE\t 10.5\n");
    auto window = Shown<ShadeSite>();
    // Looking at a stored angle with decimals does not round it.
    EXPECT_EQ(TextOf(*window, "Angle"), "169.5");
    EXPECT_EQ(Control<QListWidget>(*window, "List1").currentRow(), 0);
    Press(Control(*window, "Command1"));
    EXPECT_EQ(File(), Dos("CLIMATE_FILE\tOSLO_1\nROTATION_ANGLE\t 10.5\n"));

    window = Shown<ShadeSite>();
    Control<QScrollBar>(*window, "scrAngle").setValue(359);
    EXPECT_EQ(TextOf(*window, "Angle"), "359");
    QTest::keyClick(&Control(*window, "scrAngle"), Qt::Key_Right);
    QTest::keyClick(&Control(*window, "scrAngle"), Qt::Key_Right);
    EXPECT_EQ(TextOf(*window, "Angle"), "360");
    Type(Control(*window, "Angle"), "367");  // the last would leave the circle
    EXPECT_EQ(Control<QScrollBar>(*window, "scrAngle").value(), 36);
    QTest::keyClick(&Control(*window, "List1"), Qt::Key_Down);
    Press(Control(*window, "Command1"));
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(File(), Dos("CLIMATE_FILE\tZORN_1\nROTATION_ANGLE\t 144\n"));
}

TEST_F(CaseDialogs, SiteRemarksOnAClimateThatIsNotThereAndCancelsQuietly) {
    session.ProgramText = Catalogue({"20825, no %1 there"});
    PutBytes(root + "/CLIM/OSLO_1S.dat", "");
    Open(kShapeO, "CLIMATE_FILE\tNOWHERE_1\nROTATION_ANGLE\t 0\n");
    const std::string before = File();
    const auto window = Shown<ShadeSite>();
    EXPECT_EQ(Control<QLabel>(*window, "ClimateRemark").text(), "no NOWHERE_1 there");
    Control<QScrollBar>(*window, "scrAngle").setValue(90);
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(File(), before);
}

/// Rows of the middle column of a picture that are painted as glass.
std::vector<int> GlassRows(QWidget& picture) {
    const QImage image = picture.grab().toImage();
    std::vector<int> rows;
    for (int y = 0; y < image.height(); ++y) {
        if (image.pixelColor(image.width() / 2, y) == QColor(250, 250, 0)) rows.push_back(y);
    }
    return rows;
}

TEST_F(CaseDialogs, TheGlassTurnsFromTheFootOfThePictureToItsHead) {
    Open(kShapeV);
    const auto window = Shown<ShadeSite>();
    auto& picture = Control(*window, "pboxHouse");
    const auto south = GlassRows(picture);
    Control<QScrollBar>(*window, "scrAngle").setValue(0);
    const auto north = GlassRows(picture);
    ASSERT_FALSE(south.empty() || north.empty());
    EXPECT_GT(south.front(), picture.height() / 2);
    EXPECT_LT(north.back(), picture.height() / 2);
}

/// Presses something that opens a modal dialog; gives that dialog's name after cancelling it.
QString OpenedBy(const std::function<void()>& press) {
    QString name = "nothing";
    QTimer::singleShot(0, [&] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            name = dialog->objectName();
            dialog->reject();
        }
    });
    press();
    return name;
}

TEST_F(CaseDialogs, OptionsAndLabelsOpenTheDialogOfTheActiveShape) {
    const QStringList geometry = {"GeoUShape", "GeoOShape", "GeoVShape", "GeoIShape"};
    const auto window = Shown<EditBuildingData>();
    for (const int shape : {kShapeU, kShapeO, kShapeV, kShapeI}) {
        Open(shape);
        window->Refresh();
        session.ElementKindMark = 2;
        auto& option = Control<QAbstractButton>(*window, "Option2");
        EXPECT_EQ(OpenedBy([&] { Press(option); }), geometry[shape - 1]);
        EXPECT_EQ(session.ElementKindMark, 0);
        EXPECT_FALSE(option.isChecked());
        EXPECT_TRUE(window->isVisible());
        EXPECT_EQ(OpenedBy([&] { Press(Control(*window, "LSite")); }), "ShadeSite");
    }
}

TEST_F(CaseDialogs, DemandsHideTheEditorAndAreAskedOfTheMainWindow) {
    Open(kShapeU);
    const auto window = Shown<EditBuildingData>();
    session.ElementKindMark = 1;
    int asked = 0;
    QObject::connect(window.get(), &EditBuildingData::DemandsWanted, [&] {
        ++asked;
        EXPECT_FALSE(window->isVisible());
        EXPECT_EQ(session.ElementKindMark, 0);
    });
    Press(Control(*window, "Option6"));
    EXPECT_EQ(asked, 1);
    EXPECT_FALSE(Control<QAbstractButton>(*window, "Option6").isChecked());
}

TEST_F(CaseDialogs, TheEditorOpensNothingWithoutACase) {
    const auto window = Shown<EditBuildingData>();
    for (const char* name : {"Option1", "Option2", "Option6"}) {
        EXPECT_FALSE(Control(*window, name).isEnabled()) << name;
    }
    EXPECT_EQ(OpenedBy([&] { Press(Control(*window, "LDimensions")); }), "nothing");
    EXPECT_TRUE(prompts.shown.empty());
}

}  // namespace
}  // namespace verandis
