#include "results/guide_form.h"

#include <QAbstractItemView>
#include <QPdfWriter>
#include <QTimer>

#include "app/data_root.h"
#include "app/program_text.h"
#include "calc/results.h"
#include "results/guide_print_form.h"
#include "results/msg_form.h"
#include "support/form_test.h"
#include "ui/theme.h"

namespace verandis {
namespace {

using testing_support::Control;
using testing_support::Press;
using Words = std::vector<std::string>;

/// Two calculated cases, both too cold; the second has no power to spare.
class GuideWindow : public testing_support::SessionTest {
protected:
    GuideWindow() {
        session.SimulatorFolder = DeliveredFolder() + "/MWTHARM";
        LoadProgramText();
        runResults.CaseResultCount[kShapeU][1] = runResults.CaseResultCount[kShapeV][3] = 1;
        for (std::size_t position : {1u, 2u}) {
            for (auto& month : runResults.MonthResults[position]) month = {2, 12, 800, 0, 0, 0, 0};
            runResults.CaseResults[position] = {5, 10, 1000, -1, -1, "U", 20, std::nullopt};
        }
        runResults.CaseResults[2].PowerDemandMax = 700;
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { PressNext(); });
    }

    /// Chooses a row and presses these buttons of the questions; an empty name presses Escape.
    void Choose(Ststcalcchart& window, int row, const Words& buttons) {
        buttons_ = buttons;
        asked.clear();
        timer_.start(1);
        auto& cases = Control<QComboBox>(window, "Combo1");
        cases.showPopup();
        cases.view()->setCurrentIndex(cases.model()->index(row, 0));
        QTest::keyClick(cases.view(), Qt::Key_Enter);
    }

    static QColor Ground(Ststcalcchart& window, const char* label) {
        return Control<QLabel>(window, label).palette().window().color();
    }

    static std::string TextOf(Ststcalcchart& window, const char* label) {
        return Control<QLabel>(window, label).text().toStdString();
    }

    Words asked;

private:
    void PressNext() {
        auto* box = qobject_cast<MsgForm*>(QApplication::activeModalWidget());
        if (!box || asked.size() == buttons_.size()) return;
        const std::string button = buttons_[asked.size()];
        const QString question = Control<QPlainTextEdit>(*box, "Text1").toPlainText();
        asked.push_back(question.section('\n', 0, 0).toStdString());
        if (!button.empty()) return Press(Control(*box, button.c_str()));
        QTest::keyClick(box, Qt::Key_Escape);
    }

    Words buttons_;
    QTimer timer_;
};

TEST_F(GuideWindow, AsksShowsAndJudgesTheChosenCase) {
    Ststcalcchart window;
    window.show();
    EXPECT_FALSE(Control(window, "Redesign").isVisible());
    EXPECT_FALSE(Control(window, "Command2").isEnabled()) << "nothing to print yet";
    EXPECT_EQ(Ground(window, "MIT"), window.palette().base().color());
    Choose(window, 0, {"Command1_1", "Command1_1"});
    EXPECT_EQ(asked, (Words{"Tmin < Tmin.demand", "The glazed space may be too warm in summer."}));
    EXPECT_EQ(TextOf(window, "Identification"), "Case / UShape 1");
    EXPECT_EQ(TextOf(window, "MITRes") + TextOf(window, "PDHRES") + TextOf(window, "METREs"),
              "Tmin < Tmin.demPh < Ph.demTmean > Tmean.dem");
    EXPECT_EQ(Ground(window, "MIT"), TintOf(Tint::Judged, window));
    EXPECT_EQ(Ground(window, "Redesign"), TintOf(Tint::Accepted, window));
    Choose(window, 1, {"Command1_1"});
    EXPECT_EQ(prompts.Texts(), Words{"Change the design so that Ph <= Ph.demand"});
    EXPECT_EQ(Ground(window, "Redesign"), TintOf(Tint::Redesign, window));
    EXPECT_EQ(TextOf(window, "METREs"), "") << "of the case before";
    EXPECT_EQ(runResults.CaseResults[1].Verdict + runResults.CaseResults[2].Verdict, "FT");
    EXPECT_TRUE(Control(window, "Command2").isEnabled());
}

TEST_F(GuideWindow, RunsAgainForTheSameCaseAndTakesAClosedBoxForANo) {
    Ststcalcchart window;
    window.show();
    for (const char* button : {"Command1_0", ""}) {
        session.MsgFormAnswer = 1;
        runResults.CaseResults[1].Verdict = "U";
        Choose(window, 0, {button});
        EXPECT_EQ(session.MsgFormAnswer, 0) << button;
        EXPECT_EQ(runResults.CaseResults[1].Verdict, "T") << button;
    }
    for (const QColor theme : {QColor(32, 32, 32), QColor(Qt::white)}) {
        window.setPalette(QPalette(theme));
        EXPECT_EQ(Ground(window, "MIT"), TintOf(Tint::Judged, window)) << "colours of the palette";
        EXPECT_EQ(Ground(window, "MET"), window.palette().base().color());
    }
}

TEST_F(GuideWindow, PrintsOnePageWithItsWordsOnIt) {
    const auto print = [&](const GuideSheet& sheet) {
        QPdfWriter device(QString::fromStdString(Path("guide.pdf")));
        PrintGuide(device, sheet);
        return testing_support::Bytes(Path("guide.pdf"));
    };
    const std::string full = print(SheetOfRow(0));
    EXPECT_TRUE(full.starts_with("%PDF"));
    EXPECT_GT(full.size(), print({}).size() + 1000);
    EXPECT_NE(full.find("/Count 1"), std::string::npos) << "one page";
}

}  // namespace
}  // namespace verandis
