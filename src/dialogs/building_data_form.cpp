#include "dialogs/building_data_form.h"

#include <QMouseEvent>
#include <QVBoxLayout>
#include <memory>

#include "app/program_text.h"
#include "app/session.h"
#include "case/shapes.h"
#include "dialogs/building_data_dialogs_form.h"
#include "dialogs/case_title.h"
#include "projects/slot_activation.h"
#include "ui/controls.h"
#include "ui/help.h"
#include "ui/qt_text.h"
#include "ui/theme.h"

namespace verandis {
namespace {

enum : int { kHelpText = 13, kCancelText = 42, kEditText = 62, kCloseText = 155 };

constexpr int kHelpTopic = 12137;

}  // namespace

EditBuildingData::EditBuildingData(QWidget* parent)
    : QDialog(parent),
      CClose(Named("CClose", new QPushButton(Label(kCloseText)))),
      Command1(Named("Command1", new QPushButton(Label(kCancelText)))),
      CHelp(Named("CHelp", new QPushButton(Label(kHelpText)))) {
    setObjectName("EditBuildingData");
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(2 * kGap);
    grid->setVerticalSpacing(kGap);
    grid->setColumnStretch(1, 1);
    for (const CaseDataRow& row : CaseDataRows()) AddRow(*grid, row);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    rows->setSpacing(kMargin);
    rows->addLayout(grid);
    rows->addStretch();
    rows->addLayout(MakeButtonRow(CHelp, {CClose, Command1}));
    connect(CClose, &QPushButton::clicked, this, &EditBuildingData::CClose_Click);
    connect(Command1, &QPushButton::clicked, this, &EditBuildingData::Command1_Click);
    connect(CHelp, &QPushButton::clicked, this, &EditBuildingData::CHelp_Click);
    Refresh();
    AssignMnemonics(*this);
}

void EditBuildingData::AddRow(QGridLayout& grid, const CaseDataRow& row) {
    Row& made = rows_[static_cast<std::size_t>(row.data)];
    const int at = grid.rowCount();
    made.option = Named(row.option, new QRadioButton(Label(row.caption)));
    made.option->setToolTip(Label(row.tip));
    grid.addWidget(made.option, at, 0);
    connect(made.option, &QRadioButton::clicked, this, [this, row] { Open(row.data); });
    if (!*row.label) return;
    made.label = Named(row.label, new QLabel);
    made.label->setTextFormat(Qt::PlainText);
    made.label->setToolTip(Label(row.tip));
    made.label->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
    made.label->installEventFilter(this);
    QPalette muted = palette();
    muted.setColor(QPalette::WindowText, TintOf(Tint::Muted, *this));
    made.label->setPalette(muted);
    grid.addWidget(made.label, at, 1);
}

void EditBuildingData::Refresh() {
    setWindowTitle(Shown(CaseDialogTitle(kEditText, session.ActiveShape)));
    for (const CaseDataRow& row : CaseDataRows()) {
        const Row& shown = rows_[static_cast<std::size_t>(row.data)];
        const bool opens = CanOpen(row.data);
        shown.option->setEnabled(opens);
        shown.option->setToolTip(Label(row.tip));
        if (!shown.label) continue;
        const QString state = Shown(StoredState(row.data));
        const QFontMetrics metrics(shown.label->font());
        shown.label->setText(
            metrics.elidedText(state, Qt::ElideRight, metrics.averageCharWidth() * 60));
        shown.label->setToolTip(shown.option->toolTip());
        shown.label->setCursor(opens ? Qt::PointingHandCursor : Qt::ArrowCursor);
        shown.option->setAccessibleDescription(state);
    }
}

bool EditBuildingData::CanOpen(CaseData kind) const {
    // A case that is no slot has no dialogs: they would write into it what is shown of a slot.
    if (!EditedSlotIsOpen()) return false;
    if (kind == CaseData::Demands) return true;
    return static_cast<bool>(CaseDialogFactory(kind, session.ActiveShape));
}

void EditBuildingData::Open(CaseData kind) {
    if (!CanOpen(kind)) return;
    // A kind left by an earlier dialog must not be written behind what the next one stores.
    session.ElementKindMark = 0;
    if (kind == CaseData::Demands) {
        hide();
        ClearOptions();
        emit DemandsWanted();
        return;
    }
    rows_[static_cast<std::size_t>(kind)].option->setChecked(true);
    const std::unique_ptr<QDialog> dialog(CaseDialogFactory(kind, session.ActiveShape)(this));
    dialog->exec();
    ClearOptions();
    Refresh();
}

void EditBuildingData::ClearOptions() {
    // Exclusive options refuse to be all clear, so they are free for a moment.
    for (const Row& row : rows_) row.option->setAutoExclusive(false);
    for (const Row& row : rows_) row.option->setChecked(false);
    for (const Row& row : rows_) row.option->setAutoExclusive(true);
}

bool EditBuildingData::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        for (const CaseDataRow& row : CaseDataRows()) {
            const QLabel* label = rows_[static_cast<std::size_t>(row.data)].label;
            if (label != watched || mouse->button() != Qt::LeftButton) continue;
            if (label->rect().contains(mouse->position().toPoint())) Open(row.data);
        }
    }
    return QDialog::eventFilter(watched, event);
}

void EditBuildingData::showEvent(QShowEvent* event) {
    Refresh();
    QDialog::showEvent(event);
}

void EditBuildingData::CClose_Click() {
    accept();
}

void EditBuildingData::Command1_Click() {
    reject();
}

void EditBuildingData::CHelp_Click() {
    ShowHelp(kHelpTopic);
}

}  // namespace verandis
