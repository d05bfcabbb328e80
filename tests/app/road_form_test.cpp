// The whole road of a designer: change a case through its windows, calculate, read the result file.

#include <QApplication>
#include <QListWidget>
#include <QTimer>
#include <sstream>

#include "app/program_text.h"
#include "app/start_form.h"
#include "support/form_test.h"
#include "text/numbers.h"

namespace verandis {
namespace {

using testing_support::Bytes;
using testing_support::Control;
using testing_support::Press;
using testing_support::Type;

class Road : public testing_support::DeliveredRootTest {
protected:
    Road() {
        form.show();
        testing_support::Press(Control(form, "Frame2"));
        testing_support::Press(Control(form, "CommU1_0"));  // the active case: opens its data
        editor = form.findChild<EditBuildingData*>();
    }

    /// Opens a dialog of the case by its option and acts in it until it closes.
    void In(const char* option, const std::function<void(QWidget&)>& act) {
        QTimer::singleShot(0, [&] { act(*QApplication::activeModalWidget()); });
        Press(Control(*editor, option));
        EXPECT_FALSE(QApplication::activeModalWidget()) << option;
    }

    /// The twelve heat demands in W: the figures behind the twelve temperatures of each month.
    std::vector<double> Numbers() {
        Press(Control(form, "Calculate"));
        std::istringstream file(Bytes(project + "/UShape1/SimpResults.Dat"));
        std::vector<double> numbers;
        for (std::string line; std::getline(file, line);) numbers.push_back(PlainNumber(line));
        return numbers;
    }

    StartForm form;
    EditBuildingData* editor = nullptr;
};

TEST_F(Road, WhatTheWindowsStoreIsWhatTheNextRunUses) {
    ASSERT_TRUE(editor && editor->isVisible());
    Press(Control(form, "CalcStSt"));
    Press(Control(form, "ChkCase11"));
    const auto before = Numbers();
    ASSERT_EQ(before.size(), 90u);
    ASSERT_TRUE(Control(form, "PrintOut").isEnabled());

    In("Option2", [](QWidget& dialog) {
        Type(Control(dialog, "Text1"), "30");  // width of the building
        Press(Control(dialog, "Command3"));
    });
    EXPECT_FALSE(Control(form, "PrintOut").isEnabled()) << "the diagrams belong to other data";
    // The building's own width has no part in the balance of the glazed space.
    EXPECT_EQ(Numbers(), before);

    In("Option2", [](QWidget& dialog) {
        Type(Control(dialog, "Text2"), "12");  // width of the glazed space, 8 before
        Press(Control(dialog, "Command3"));
    });
    const auto wider = Numbers();
    EXPECT_NE(wider, before);

    In("Option4", [](QWidget& dialog) {
        Press(Control(dialog, "Option1"));  // the roof
        auto& glazes = Control<QListWidget>(dialog, "Glazes");
        glazes.setCurrentRow(glazes.count() - 1);
        Press(Control(dialog, "Command3"));
    });
    const auto glazed = Numbers();
    EXPECT_NE(glazed, wider);

    In("Option5", [](QWidget& dialog) {
        Type(Control(dialog, "HG"), "18");
        Press(Control(dialog, "Command3"));
    });
    const auto heated = Numbers();
    EXPECT_EQ(heated[0], 18) << "the set point is the first line";
    double demand = 0;
    for (const double each : heated) demand = std::max(demand, each);
    EXPECT_GT(demand, 1000) << "W: the court was cold before";

    In("Option1", [](QWidget& dialog) {
        auto& climates = Control<QListWidget>(dialog, "List1");
        const auto found = climates.findItems("KIRUNA", Qt::MatchContains);
        ASSERT_EQ(found.size(), 1);
        climates.setCurrentItem(found.front());
        Press(Control(dialog, "Command1"));
    });
    const auto north = Numbers();
    double northern = 0;
    for (const double each : north) northern = std::max(northern, each);
    EXPECT_GT(northern, demand) << "it is colder in Kiruna than in Goteborg";
    EXPECT_TRUE(Control<QLabel>(form, "SlotFacts").text().contains("KIRUNA"));
    EXPECT_TRUE(prompts.shown.empty()) << prompts.shown.front().text;
}

TEST_F(Road, DemandsAndLibrariesOpenFromTheMenusToo) {
    const std::pair<const char*, const char*> rows[] = {
        {"M_DesignDemands", "HVACformX"},
        {"M_ReferenceWindows", "ReferenceWindowsLib"},
        {"M_OpaqueWalls", "OpaqueWallsLib"}};
    for (const auto& [command, window] : rows) {
        QString opened;
        QTimer::singleShot(0, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog) return;
            opened = dialog->objectName();
            dialog->reject();
        });
        Control<QAction>(form, command).trigger();
        EXPECT_EQ(opened.toStdString(), window);
    }
    // The last option hides the editor, since the main window opens what it stands for.
    QTimer::singleShot(0,
                       [] { qobject_cast<QDialog*>(QApplication::activeModalWidget())->reject(); });
    Press(Control(*editor, "Option6"));
    EXPECT_FALSE(editor->isVisible());
}

}  // namespace
}  // namespace verandis
