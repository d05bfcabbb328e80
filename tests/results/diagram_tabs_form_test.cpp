#include "results/diagram_tabs_form.h"

#include <QApplication>
#include <QChart>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QLineSeries>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <algorithm>
#include <memory>

#include "results/diagram_cases.h"
#include "results/diagram_chart_form.h"
#include "results/diagram_pictures_form.h"
#include "results/diagram_texts.h"
#include "results/enlarged_form.h"
#include "support/form_test.h"

namespace verandis {
namespace {

using namespace testing_support;

/// Two cases with results, in a tab control that stands alone.
class DiagramTabsForm : public SessionTest {
protected:
    DiagramTabsForm() {
        UseDiagramWords();
        PutCase({kShapeO, 3}, 1, 0);
        PutCase({kShapeI, 1}, 2, 5);
        tabs.resize(640, 420);
        tabs.show();
    }
    ~DiagramTabsForm() override { UseDynamicSeries(nullptr); }

    DiagramChart& Chart() { return *tabs.ActiveChart(); }

    /// How many lines can be seen.
    int VisibleLines() {
        int lines = 0;
        for (QAbstractSeries* series : Chart().chart()->series()) {
            const auto* line = qobject_cast<QLineSeries*>(series);
            if (line && line->isVisible() && line->count() > 0) ++lines;
        }
        return lines;
    }

    EnlargedForm* Enlarged(const char* name) { return tabs.findChild<EnlargedForm*>(name); }

    DiagramTabs tabs;
};

struct BoxRow {
    int tab;
    const char* first;
    const char* second;
    bool secondAtStart;
};
constexpr BoxRow kBoxes[] = {
    {1, "MinGlazedSpacecheck", "MinOutDoorCheck", false},
    {3, "MaxGlazedSpaceCheck", "MaxOutdoorCheck", false},
    {4, "MeanGlazedSpaceCheck", "MeanOutdoorCheck", false},
    {5, "GlazedSpaceTempCheck", "OutdoorTempCheck", false},
    {6, "MPHCheck", "MPCCheck", true},
    {7, "PDHCheck", "PDCCheck", true},
    {8, "EDHCheck", "EDCCheck", true},
};

void UseTwoDynamicCases() {
    UseDynamicSeries([](DiagramKind) {
        std::vector<DiagramSeries> all(4);
        for (std::size_t at = 0; at < all.size(); ++at) {
            all[at].slot = {kShapeU, static_cast<int>(at / 2) + 1};
            all[at].number = static_cast<int>(at / 2) + 1;
            all[at].second = at % 2 == 1;
            all[at].points = {{1, double(at)}, {12, 3.0 * double(at)}};
        }
        return all;
    });
}

TEST_F(DiagramTabsForm, BoxesShowAndHideAloneAndATabClickRestoresThem) {
    UseTwoDynamicCases();
    tabs.ShowDynamicDiagrams();
    for (const BoxRow& row : kBoxes) {
        tabs.setCurrentIndex(row.tab);
        auto& first = Control<QCheckBox>(tabs, row.first);
        auto& second = Control<QCheckBox>(tabs, row.second);
        EXPECT_EQ(VisibleLines(), row.secondAtStart ? 4 : 2) << row.first;
        const DiagramAxis axis = Chart().diagram().axis;
        Press(second);
        EXPECT_EQ(Chart().secondShown(), !row.secondAtStart) << row.second;
        Press(first);
        EXPECT_EQ(VisibleLines(), row.secondAtStart ? 0 : 2) << row.first;
        EXPECT_EQ(Chart().diagram().axis, axis);
        tabs.SSTab1_Click(row.tab);
        EXPECT_TRUE(first.isChecked() && second.isChecked() == row.secondAtStart) << row.first;
        first.setChecked(false);
    }
    tabs.ResetSeriesBoxes();
    for (const BoxRow& row : kBoxes) EXPECT_TRUE(Control<QCheckBox>(tabs, row.first).isChecked());
}

TEST_F(DiagramTabsForm, EachCalculationHasItsTabs) {
    struct Row {
        float mode;
        const char* enabled;  // by tab
    };
    const Row rows[] = {{kSteadyState, "111010000"},
                        {kDynamic, "010111111"},
                        {kNoCalculation, "010111111"},
                        {kSteadyState, "111010000"}};
    for (const Row& row : rows) {
        tabs.EnableTabsFor(row.mode);
        for (int tab = 0; tab < tabs.count(); ++tab) {
            EXPECT_EQ(tabs.isTabEnabled(tab), row.enabled[tab] == '1') << row.mode << " " << tab;
        }
        EXPECT_TRUE(tabs.isTabEnabled(tabs.currentIndex()));
    }
}

TEST_F(DiagramTabsForm, ChartsAreMadeWhenTheirPageShows) {
    EXPECT_TRUE(tabs.findChildren<DiagramChart*>().empty());
    tabs.setCurrentIndex(2);
    tabs.ShowSteadyStateDiagrams();
    EXPECT_EQ(tabs.findChildren<DiagramChart*>().size(), 1);
    EXPECT_EQ(Chart().diagram().kind, DiagramKind::PowerDemand);
    EXPECT_EQ(VisibleLines(), 2);
}

TEST_F(DiagramTabsForm, ReachEveryDiagramOfASteadyRun) {
    tabs.ShowSteadyStateDiagrams();
    std::vector<DiagramKind> seen;
    for (const int tab : {0, 1, 2, 4}) {
        tabs.setCurrentIndex(tab);
        auto* selector = tabs.currentWidget()->findChild<QComboBox*>();
        for (int at = 0; at < (selector ? selector->count() : 2); ++at) {
            if (selector) {
                selector->setCurrentIndex(at);
            } else {
                Press(Control<QRadioButton>(tabs, at == 0 ? "Option1" : "Option2"));
            }
            seen.push_back(Chart().diagram().kind);
            EXPECT_EQ(VisibleLines(), 2) << Chart().diagram().title;
        }
    }
    std::sort(seen.begin(), seen.end());
    ASSERT_EQ(seen.size(), std::size_t{kSteadyDiagrams});
    for (int at = 0; at < kSteadyDiagrams; ++at) {
        EXPECT_EQ(seen[static_cast<std::size_t>(at)], static_cast<DiagramKind>(at));
    }
    EXPECT_FALSE(Control<QCheckBox>(tabs, "MeanOutdoorCheck").isEnabled());
}

TEST_F(DiagramTabsForm, TheTwoCaseViewLeavesTheGlazedSpaces) {
    UseTwoDynamicCases();
    tabs.ShowDynamicDiagrams();
    tabs.setCurrentIndex(8);
    auto& box = Control<QCheckBox>(tabs, "DCheck2");
    EXPECT_FALSE(box.isEnabled());
    tabs.AllowTwoCaseView(true);
    Press(box);
    EXPECT_EQ(VisibleLines(), 2);
    tabs.AllowTwoCaseView(false);
    EXPECT_FALSE(box.isChecked());
    EXPECT_EQ(VisibleLines(), 4);
    UseDynamicSeries(nullptr);
    Press(Control<QPushButton>(tabs, "Diagram"));
    EXPECT_EQ(VisibleLines(), 0);
}

TEST_F(DiagramTabsForm, ADoubleClickEnlargesWhatIsShown) {
    tabs.ShowSteadyStateDiagrams();
    tabs.setCurrentIndex(1);
    Press(Control<QCheckBox>(tabs, "MinOutDoorCheck"));
    QTest::mouseDClick(Chart().viewport(), Qt::LeftButton);
    QPointer<EnlargedForm> form = Enlarged("SMITB");
    ASSERT_TRUE(form);
    EXPECT_EQ(form->windowTitle(), "Least-glazed space");
    EXPECT_FALSE(form->isModal());
    EXPECT_TRUE(Control<DiagramChart>(*form, "Chart").secondShown());
    QTest::mouseDClick(Chart().viewport(), Qt::LeftButton);
    EXPECT_EQ(tabs.findChildren<EnlargedForm*>().size(), 1);
    PutCase({kShapeI, 1}, 2, 40);
    tabs.ShowSteadyStateDiagrams();
    EXPECT_EQ(Control<DiagramChart>(*form, "Chart").diagram().series[2].points[0].y, 41);
    QTest::keyClick(form, Qt::Key_Escape);
    EXPECT_FALSE(form && form->isVisible());
    QTest::keyClick(&Chart(), Qt::Key_Return);
    ASSERT_TRUE(Enlarged("SMITB"));
    tabs.UnLoadGraphics();
    EXPECT_EQ(VisibleLines(), 0);
    for (const auto* open : tabs.findChildren<EnlargedForm*>()) EXPECT_FALSE(open->isVisible());
}

TEST_F(DiagramTabsForm, EachEnlargedFormStandsAlone) {
    const std::pair<std::unique_ptr<EnlargedForm>, const char*> forms[] = {
        {std::make_unique<SMITB>(), "Least-glazed space"},
        {std::make_unique<SOTB>(), "Least Outdoor"},
        {std::make_unique<SLTB>(), "Most Glazed Space"},
        {std::make_unique<SMETB>(), "Mean-Glazed Space"},
        {std::make_unique<SPDB>(), "Power Glazed Space"},
        {std::make_unique<SHDB>(), "Top Glazed Space"},
        {std::make_unique<SCDB>(), "Power frequency"},
        {std::make_unique<SVEB>(), "Need Glazed Space"},
        {std::make_unique<SMITDB>(), "Least Glazed Space(ºC) = f( Mean Outdoor )"},
        {std::make_unique<SMETDB>(), "Mean Glazed Space(ºC) = f( Mean Outdoor )"},
    };
    for (const auto& [form, title] : forms) EXPECT_EQ(form->windowTitle(), title);
    for (int kind = 0; kind < kDiagramKinds; ++kind) {
        const int form = static_cast<int>(EnlargedFormOf(static_cast<DiagramKind>(kind)));
        EXPECT_LT(form, kEnlargedForms) << kind;
    }
}

TEST_F(DiagramTabsForm, TellsTheValueUnderThePointerAndByKeys) {
    tabs.ShowSteadyStateDiagrams();
    tabs.setCurrentIndex(1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Chart().chart()->plotArea().width() > 300; }, 2000));
    auto* line = qobject_cast<QLineSeries*>(Chart().chart()->series().at(0));
    const QPointF march = Chart().chart()->mapToPosition({3, 3}, line);
    EXPECT_EQ(Chart().ValueAt(march.toPoint() + QPoint(3, 2)), "O-3 Glazed Space, M3: 3.0 ºC");
    EXPECT_EQ(Chart().ValueAt({1, 1}), "");
    for (const auto key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Down}) {
        QTest::keyClick(&Chart(), key);
    }
    // The outdoor series between the two are hidden and passed over.
    EXPECT_EQ(Chart().accessibleDescription(), "I-1 Glazed Space, M2: 7.0 ºC");
    EXPECT_TRUE(Chart().accessibleName().startsWith("Least-glazed space. O-3 Glazed Space: 1.0"));
}

int DarkPixels(const QImage& image) {
    int dark = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) dark += qGray(image.pixel(x, y)) < 100;
    }
    return dark;
}

TEST_F(DiagramTabsForm, WhatLeavesTheChartIsDarkOnWhite) {
    QPalette night;
    night.setColor(QPalette::Base, QColor(20, 20, 20));
    night.setColor(QPalette::Text, Qt::white);
    tabs.setPalette(night);
    tabs.ShowSteadyStateDiagrams();
    tabs.setCurrentIndex(2);
    EXPECT_LT(qGray(Chart().grab().toImage().pixel(3, 3)), 60);
    const QImage picture = Chart().Picture();
    EXPECT_EQ(picture.size(), Chart().size() * 2);
    EXPECT_EQ(picture.pixel(3, 3), QColor(Qt::white).rgb());
    EXPECT_GT(DarkPixels(picture), 2000);
    EXPECT_LT(qGray(Chart().grab().toImage().pixel(3, 3)), 60);
    Control<QAction>(Chart(), "CopyCsv").trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), DiagramCsv(Chart().diagram()));
    tabs.CopyActive();
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), picture.size());
}

TEST_F(DiagramTabsForm, TheMenuOpensByMouseAndByKey) {
    tabs.ShowSteadyStateDiagrams();
    for (const bool byMouse : {true, false}) {
        QStringList names;
        QTimer::singleShot(50, &tabs, [&names] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (!menu) return;
            for (const QAction* action : menu->actions()) names << action->objectName();
            menu->close();
        });
        QContextMenuEvent event(byMouse ? QContextMenuEvent::Mouse : QContextMenuEvent::Keyboard,
                                QPoint(9, 9), Chart().mapToGlobal(QPoint(9, 9)));
        QApplication::sendEvent(byMouse ? Chart().viewport() : static_cast<QWidget*>(&Chart()),
                                &event);
        for (const char* name : {"CopyPicture", "SavePicture", "SaveCsv", "Print", "SavePdf"}) {
            EXPECT_TRUE(names.contains(name)) << byMouse << " " << name;
        }
    }
}

TEST_F(DiagramTabsForm, FilesOfAChart) {
    tabs.ShowSteadyStateDiagrams();
    ASSERT_TRUE(Chart().SavePdf(Path("å.pdf")));
    EXPECT_EQ(Bytes(Path("å.pdf")).substr(0, 4), "%PDF");
    ASSERT_TRUE(Chart().SaveCsv(Path("a.csv")));
    EXPECT_EQ(Bytes(Path("a.csv")), DiagramCsv(Chart().diagram()));
    EXPECT_FALSE(Chart().SavePicture(Path("none/a.png")));
    ASSERT_EQ(prompts.shown.size(), 1u);
    EXPECT_EQ(prompts.shown[0].text, "Not written: " + Path("none/a.png"));
}

TEST_F(DiagramTabsForm, PicturesOfARunGoIntoAFolder) {
    ASSERT_TRUE(SaveDiagramPictures(Path("out/pictures"), QSize(500, 320)));
    const auto files = TreeOf(Path("out/pictures"));
    ASSERT_EQ(files.size(), std::size_t{kSteadyDiagrams});
    for (const auto& [name, bytes] : files) {
        QImage image;
        ASSERT_TRUE(image.loadFromData(QByteArray::fromStdString(bytes), "PNG")) << name;
        EXPECT_EQ(image.size(), QSize(1000, 640)) << name;
        EXPECT_GT(DarkPixels(image), 1500) << name;
    }
    EXPECT_FALSE(SaveDiagramPictures(Path("out/pictures/" + files[0].first), QSize(500, 320)));
    runResults = {};
    EXPECT_FALSE(SaveDiagramPictures(Path("other"), QSize(500, 320)));
    EXPECT_EQ(prompts.shown.size(), 2u);
    EXPECT_FALSE(OnDisk(Path("other")));
}

}  // namespace
}  // namespace verandis
