#include "app/calculation_panel_form.h"

#include <QGridLayout>
#include <QHBoxLayout>

#include "app/session.h"
#include "ui/controls.h"
#include "ui/qt_text.h"
#include "ui/theme.h"

namespace verandis {
namespace {

struct PanelText {
    const char* control;
    int text;
    int role;
    int tip;
};

constexpr PanelText kTexts[] = {
    {"CalcStSt", 59, 1, 570},   {"CalcDyn", 272, 1, 571},   {"Check1", 558, 1, 576},
    {"Check2", 559, 1, 577},    {"Calculate", 544, 1, 572}, {"Command1", 42, 1, 573},
    {"Command10", 568, 1, 574}, {"PrintOut", 569, 1, 575},
};

enum : int { kCalculationWord = 58, kMarkHint = 555, kMarkedWord = 556 };

}  // namespace

CalculationPanel::CalculationPanel(QWidget* parent)
    : QGroupBox(parent),
      CalcStSt(Named("CalcStSt", new QRadioButton)),
      CalcDyn(Named("CalcDyn", new QRadioButton)),
      SteadyItems(Named("SteadyItems", new QWidget)),
      Check1(Named("Check1", new QCheckBox)),
      Check2(Named("Check2", new QCheckBox)),
      Calculate(Named("Calculate", new QPushButton)),
      Command1(Named("Command1", new QPushButton)),
      Command10(Named("Command10", new QPushButton)),
      PrintOut(Named("PrintOut", new QPushButton)),
      Label3(Named("Label3", new QLabel)),
      Label4(Named("Label4", new QLabel)) {
    auto* steady = new QHBoxLayout(SteadyItems);
    steady->setContentsMargins(0, 0, 0, 0);
    steady->addWidget(Check1);
    Calculate->setDefault(true);
    Command1->setEnabled(false);
    PrintOut->setEnabled(false);
    Label3->setWordWrap(true);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(kMargin, kGap, kMargin, kGap);
    grid->setHorizontalSpacing(kGap);
    grid->setVerticalSpacing(kTightGap);
    grid->addWidget(Label3, 0, 0, 1, 2);
    grid->addWidget(Label4, 0, 2, Qt::AlignRight);
    grid->addWidget(CalcStSt, 1, 0);
    grid->addWidget(CalcDyn, 1, 1, 1, 2);
    grid->addWidget(Check2, 2, 0);
    grid->addWidget(SteadyItems, 2, 1, 1, 2);
    grid->addWidget(Calculate, 3, 0, 1, 2);
    grid->addWidget(Command1, 3, 2);
    grid->addWidget(Command10, 4, 0, 1, 2);
    grid->addWidget(PrintOut, 4, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    const QList<QWidget*> order = {CalcStSt,  CalcDyn,  Check2,    Check1,
                                   Calculate, Command1, Command10, PrintOut};
    for (qsizetype at = 1; at < order.size(); ++at) setTabOrder(order[at - 1], order[at]);
}

void CalculationPanel::TakeTexts() {
    setTitle(Label(kCalculationWord));
    Label3->setText(Label(kMarkHint));
    for (const PanelText& each : kTexts) {
        auto* button = findChild<QAbstractButton*>(each.control);
        button->setText(Label(each.text, each.role));
        button->setToolTip(Label(each.tip));
    }
}

void CalculationPanel::ShowMarked(int marked) {
    Label4->setText(QString("%1 %2").arg(marked).arg(Label(kMarkedWord)));
    if (marked > kMostMarkedCases) return ColourMarkLabels(TintOf(Tint::Redesign, *this));
    Blacken();
}

void CalculationPanel::Blacken() {
    ColourMarkLabels(palette().color(QPalette::WindowText));
}

void CalculationPanel::ColourMarkLabels(const QColor& colour) {
    for (QLabel* label : {Label3, Label4}) {
        QPalette own = label->palette();
        own.setColor(QPalette::WindowText, colour);
        label->setPalette(own);
    }
}

void CalculationPanel::ClearChoice() {
    // Options of one group cannot all be off while they exclude each other.
    for (QRadioButton* option : {CalcStSt, CalcDyn}) {
        option->setAutoExclusive(false);
        option->setChecked(false);
        option->setAutoExclusive(true);
    }
}

}  // namespace verandis
