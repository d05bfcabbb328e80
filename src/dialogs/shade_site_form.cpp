#include "dialogs/shade_site_form.h"

#include <QRegularExpressionValidator>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include "app/program_text.h"
#include "app/session.h"
#include "dialogs/case_title.h"
#include "text/numbers.h"
#include "ui/controls.h"
#include "ui/help.h"
#include "ui/qt_text.h"
#include "ui/theme.h"

namespace verandis {
namespace {

enum : int {
    kHelpText = 13,
    kCancelText = 42,
    kAngleText = 56,
    kClimateText = 242,
    kOkText = 246,
    kDegreesText = 806,
    kEmptyFolderText = 813,
    kNothingChosenText = 814,
    kNotInFolderText = 825,
    kPictureText = 826,
    kAngleTip = 827
};

constexpr int kHelpTopic = 12136;
constexpr int kPageOfAngle = 15;  // degrees
constexpr const char* kShownAngles =
    R"((\d{1,2}|[0-2]\d\d|3[0-5]\d)?([.,]\d{0,2})?|360([.,]0{0,2})?)";
constexpr int kPlaceRole = Qt::UserRole;

/// Shows the place in front of the base name, which is what a row stands for.
class ClimateRow : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& row) const override {
        QStyledItemDelegate::initStyleOption(option, row);
        const QString place = row.data(kPlaceRole).toString();
        if (!place.isEmpty()) option->text = place + "  (" + option->text + ")";
    }
};

QLabel* MakeRemark(const QWidget& window) {
    auto* remark = new QLabel;
    remark->setTextFormat(Qt::PlainText);
    remark->setWordWrap(true);
    QPalette muted = remark->palette();
    muted.setColor(QPalette::WindowText, TintOf(Tint::Muted, window));
    remark->setPalette(muted);
    return remark;
}

}  // namespace

ShadeSite::ShadeSite(QWidget* parent)
    : QDialog(parent),
      List1(Named("List1", new QListWidget)),
      ClimateRemark(Named("ClimateRemark", MakeRemark(*this))),
      pboxHouse(Named("pboxHouse", new SitePicture)),
      Angle(Named("Angle", new NumberField)),
      scrAngle(Named("scrAngle", new QScrollBar(Qt::Horizontal))),
      TurnRemark(Named("TurnRemark", MakeRemark(*this))),
      AngleHint(Named("AngleHint", MakeRemark(*this))),
      Command1(Named("Command1", new QPushButton(Label(kOkText)))),
      Command2(Named("Command2", new QPushButton(Label(kCancelText)))),
      Command3(Named("Command3", new QPushButton(Label(kHelpText)))) {
    setObjectName("ShadeSite");
    auto* sides = new QHBoxLayout;
    sides->setSpacing(2 * kGap);
    sides->addLayout(MakeClimateSide(), 2);
    sides->addLayout(MakeAngleSide(), 3);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    rows->setSpacing(kMargin);
    rows->addLayout(sides, 1);
    rows->addWidget(AngleHint);
    rows->addLayout(MakeButtonRow(Command3, {Command1, Command2}));
    Form_Load();
    connect(List1, &QListWidget::currentRowChanged, this, &ShadeSite::ShowClimateRemark);
    connect(List1, &QListWidget::itemDoubleClicked, this, &ShadeSite::Command1_Click);
    connect(scrAngle, &QScrollBar::valueChanged, this, &ShadeSite::scrAngle_Change);
    connect(Angle, &QLineEdit::textChanged, this, &ShadeSite::Angle_Change);
    connect(Command1, &QPushButton::clicked, this, &ShadeSite::Command1_Click);
    connect(Command2, &QPushButton::clicked, this, &ShadeSite::Command2_Click);
    connect(Command3, &QPushButton::clicked, this, &ShadeSite::Command3_Click);
    QWidget* const order[] = {List1, scrAngle, Angle, Command1, Command2, Command3};
    for (std::size_t at = 1; at < std::size(order); ++at) setTabOrder(order[at - 1], order[at]);
    AssignMnemonics(*this);
}

QLayout* ShadeSite::MakeClimateSide() {
    auto* caption = new QLabel(Label(kClimateText));
    caption->setBuddy(List1);
    List1->setAccessibleName(Label(kClimateText));
    List1->setItemDelegate(new ClimateRow(List1));
    List1->setMinimumWidth(fontMetrics().averageCharWidth() * 30);
    auto* column = new QVBoxLayout;
    column->setSpacing(kTightGap);
    column->addWidget(caption);
    column->addWidget(List1, 1);
    column->addWidget(ClimateRemark);
    return column;
}

QLayout* ShadeSite::MakeAngleSide() {
    pboxHouse->setAccessibleName(Label(kPictureText));
    Angle->setMaximumWidth(fontMetrics().averageCharWidth() * 10);
    Angle->setToolTip(Label(kAngleTip));
    Angle->setValidator(new QRegularExpressionValidator(QRegularExpression(kShownAngles), Angle));
    scrAngle->setRange(0, kMostShownAngle);
    scrAngle->setPageStep(kPageOfAngle);
    scrAngle->setInvertedControls(false);  // the right key turns on, as the bar's right end does
    scrAngle->setFocusPolicy(Qt::StrongFocus);
    scrAngle->setAccessibleName(Label(kAngleText));
    scrAngle->setToolTip(Label(kAngleTip));
    // Room for the hint is kept, so that nothing moves under the hand that turns the building.
    AngleHint->setMinimumHeight(2 * fontMetrics().lineSpacing());
    AngleHint->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* caption = new QLabel(Label(kAngleText));
    caption->setBuddy(Angle);
    Angle->setAccessibleName(Label(kAngleText));
    auto* row = new QHBoxLayout;
    row->setSpacing(kGap);
    row->addWidget(caption);
    row->addWidget(Angle);
    row->addWidget(new QLabel(Label(kDegreesText)));
    TurnRemark->setWordWrap(false);
    TurnRemark->setMinimumWidth(fontMetrics().horizontalAdvance(Shown(TurnText("0"))));
    row->addWidget(TurnRemark, 1);
    auto* column = new QVBoxLayout;
    column->setSpacing(kGap);
    column->addWidget(pboxHouse, 1);
    column->addWidget(scrAngle);
    column->addLayout(row);
    return column;
}

void ShadeSite::Form_Load() {
    setWindowTitle(Shown(SiteTitle()));
    figures_ = ReadPlanDimensions(session.ActiveShape, session.CaseFolder);
    facings_ = ReadFacings(session.ActiveShape);
    FillSite();
    Angle_Change();
    ShowClimateRemark();
}

void ShadeSite::FillSite() {
    const SiteChoice choice = verandis::FillSite();
    wanted_ = choice.wanted;
    List1->clear();
    for (const Climate& climate : choice.climates) {
        auto* row = new QListWidgetItem(Shown(climate.baseName), List1);
        row->setData(kPlaceRole, Shown(climate.place));
        row->setData(Qt::AccessibleTextRole, Shown(climate.place + " " + climate.baseName));
    }
    List1->setCurrentRow(choice.selected);
    // A stored angle with decimals stays as it is until the bar is moved.
    const QSignalBlocker quiet(scrAngle);
    scrAngle->setValue(WholeNumber(ToNumber(choice.angle)));
    Angle->setText(Shown(choice.angle));
}

void ShadeSite::DrawPlan() {
    if (!IsShape(session.ActiveShape)) return;
    const std::string shown = Typed(Angle->text());
    pboxHouse->ShowPlan(TurnedPlan(session.ActiveShape, figures_, ToNumber(shown)));
    pboxHouse->setAccessibleDescription(Shown(TurnText(shown)));
}

void ShadeSite::scrAngle_Change() {
    Angle->setText(QString::number(scrAngle->value()));
    DrawPlan();
}

void ShadeSite::Angle_Change() {
    const std::string shown = Typed(Angle->text());
    const QSignalBlocker quiet(scrAngle);
    scrAngle->setValue(WholeNumber(ToNumber(shown)));
    TurnRemark->setText(Shown(TurnText(shown)));
    AngleHint->setText(Shown(FacingHint(facings_, shown)));
    DrawPlan();
}

void ShadeSite::ShowClimateRemark() {
    QString remark;
    if (List1->count() == 0) {
        remark = Label(kEmptyFolderText);
    } else if (List1->currentRow() < 0) {
        remark = wanted_.empty() ? Label(kNothingChosenText)
                                 : Shown(WithValue(Text(kNotInFolderText), "%1", wanted_));
    }
    ClimateRemark->setText(remark);
    ClimateRemark->setVisible(!remark.isEmpty());
}

std::string ShadeSite::ChosenClimate() const {
    const QListWidgetItem* row = List1->currentItem();
    return row ? Typed(row->text()) : "";
}

void ShadeSite::Command1_Click() {
    if (StoreSite(ChosenClimate(), Typed(Angle->text()))) accept();
}

void ShadeSite::Command2_Click() {
    reject();
}

void ShadeSite::Command3_Click() {
    ShowHelp(kHelpTopic);
}

void ShadeSite::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    DrawPlan();
}

}  // namespace verandis
