#include "results/print_diagram_form.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/program_text.h"
#include "app/session.h"
#include "platform/prompts.h"
#include "results/diagram_chart_form.h"
#include "results/diagram_tabs.h"
#include "results/enlarged_form.h"
#include "ui/controls.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

enum : int {
    kCloseText = 155,
    kNothingText = 619,
    kTitleText = 646,
    kClickTip = 647,
    kListText = 648
};

// In the order of the list; the forms of the third and the eighth stand for their frequencies.
constexpr DiagramKind kListed[] = {
    DiagramKind::OutdoorMinimum,
    DiagramKind::MinimumTemperature,
    DiagramKind::TemperatureFrequency,
    DiagramKind::PowerDemand,
    DiagramKind::Energy,
    DiagramKind::MinimumFunction,
    DiagramKind::MeanTemperature,
    DiagramKind::PowerFrequency,
    DiagramKind::MaximumPower,
};

Diagram LastRuns(DiagramKind kind) {
    return session.CalcMode == kDynamic ? DynamicDiagram(kind) : SteadyDiagram(kind);
}

}  // namespace

PrintDiagram::PrintDiagram(QWidget* parent)
    : QDialog(parent), List1(Named("List1", new QListWidget)) {
    setObjectName("PrintDiagram");
    setWindowTitle(Label(kTitleText));
    for (const DiagramKind kind : kListed) List1->addItem(Shown(LastRuns(kind).title));
    auto* caption = new QLabel(Label(kListText));
    caption->setBuddy(List1);
    List1->setAccessibleName(caption->text());
    List1->setToolTip(Label(kClickTip));
    List1->setMinimumWidth(List1->sizeHintForColumn(0) + 3 * kMargin);
    List1->setMinimumHeight(fontMetrics().lineSpacing() * (List1->count() + 2));
    List1->installEventFilter(this);
    auto* hint = new QLabel(Label(kClickTip));
    hint->setWordWrap(true);
    auto* close = Named("Command2", new QPushButton(Label(kCloseText)));
    connect(List1, &QListWidget::itemClicked, this, &PrintDiagram::List1_Click);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    column->addWidget(caption);
    column->addWidget(List1, 1);
    column->addWidget(hint);
    column->addLayout(MakeButtonRow(nullptr, {close}));
    AssignMnemonics(*this);
}

void PrintDiagram::List1_Click() {
    const int row = List1->currentRow();
    if (row < 0) return;
    const DiagramKind kind = kListed[row];
    const Diagram diagram = LastRuns(kind);
    if (diagram.series.empty()) return ShowMessage(Text(kNothingText), diagram.title);
    const Enlarged wanted = EnlargedFormOf(kind);
    auto* form = findChild<EnlargedForm*>(EnlargedName(wanted), Qt::FindDirectChildrenOnly);
    if (!form) {
        form = new EnlargedForm(wanted, this);
        form->setAttribute(Qt::WA_DeleteOnClose);
    }
    const ShownQuantities shown = ShownAtStart(kind);
    form->Take(diagram, shown.first, shown.second);
    form->show();
    form->raise();
    form->Print();
}

bool PrintDiagram::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            List1_Click();
            return true;
        }
    }
    return QDialog::eventFilter(object, event);
}

}  // namespace verandis
