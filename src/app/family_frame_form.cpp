#include "app/family_frame_form.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOption>
#include <algorithm>

#include "ui/controls.h"
#include "ui/qt_text.h"
#include "ui/theme.h"

namespace verandis {
namespace {

enum : int {
    kCaseWord = 196,
    kCompareWord = 557,
    kFamilyTip = 560,
    kCaseTip = 561,
    kMarkTip = 562,
    kActiveTip = 579
};

constexpr int kPlanLines = 6;   // height of the small plan, in lines of text
constexpr int kMostPlan = 110;  // but not more than this, in pixels: large text needs the room
constexpr int kButtonLetters = 7;
constexpr qreal kCorner = 6;

std::size_t IndexOf(int caseNo) {
    return static_cast<std::size_t>(caseNo - 1);
}

QString FrameName(int shape) {
    return QString("Frame%1").arg(shape + 1);
}

}  // namespace

FamilyFrame::FamilyFrame(int shape, QWidget* parent)
    : QFrame(parent),
      shape_(shape),
      title_(new QLabel),
      caseWord_(new QLabel),
      compareWord_(new QLabel),
      plan_(new PlanView) {
    setObjectName(FrameName(shape));
    setFocusPolicy(Qt::TabFocus);
    plan_->setObjectName(QString("Plan%1").arg(QChar(WordsOf(shape).letter)));
    plan_->SetDetail(PlanView::Detail::Thumbnail);
    const int side = std::min(fontMetrics().height() * kPlanLines, kMostPlan);
    plan_->setFixedSize(side, side);
    QFont bold = font();
    bold.setBold(true);
    title_->setFont(bold);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(kTightGap);
    grid->setVerticalSpacing(2);
    grid->addWidget(title_, 0, 0, 1, kCasesPerShape + 1);
    grid->addWidget(caseWord_, 1, 0);
    grid->addWidget(compareWord_, 2, 0);
    for (int caseNo = 1; caseNo <= kCasesPerShape; ++caseNo) BuildCase(*grid, caseNo);
    grid->setColumnStretch(0, 1);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(kGap, kTightGap, kGap, kTightGap);
    row->setSpacing(kMargin);
    row->addWidget(plan_);
    row->addLayout(grid, 1);
}

void FamilyFrame::BuildCase(QGridLayout& grid, int caseNo) {
    const auto buttonName = QString("Comm%1").arg(QChar(WordsOf(shape_).letter)) + "1";
    auto* button = new QPushButton(QString::number(caseNo));
    button->setObjectName(IndexedName(buttonName.toLatin1(), caseNo - 1));
    button->setCheckable(true);
    button->setFixedWidth(fontMetrics().averageCharWidth() * kButtonLetters);
    connect(button, &QPushButton::clicked, this, [this, button, caseNo] {
        button->setChecked(true);  // the window decides anew which case is the active one
        emit CasePressed(caseNo);
    });
    auto* mark = new QCheckBox;
    mark->setObjectName(QString("ChkCase%1%2").arg(shape_).arg(caseNo));
    connect(mark, &QCheckBox::clicked, this,
            [this, caseNo](bool on) { emit MarkPressed(shape_, caseNo, on); });
    grid.addWidget(button, 1, caseNo);
    grid.addWidget(mark, 2, caseNo, Qt::AlignHCenter);
    buttons_[IndexOf(caseNo)] = button;
    marks_[IndexOf(caseNo)] = mark;
}

void FamilyFrame::TakeTexts() {
    const QString word = Label(WordsOf(shape_).textNumber);
    title_->setText(word);
    caseWord_->setText(Label(kCaseWord));
    compareWord_->setText(Label(kCompareWord));
    setToolTip(Label(kFamilyTip));
    setAccessibleName(word);
    for (int caseNo = 1; caseNo <= kCasesPerShape; ++caseNo) {
        const QString name = QString("%1, %2 %3").arg(word, Label(kCaseWord)).arg(caseNo);
        QPushButton& button = *buttons_[IndexOf(caseNo)];
        button.setAccessibleName(name);
        button.setToolTip(Label(kCaseTip));
        QCheckBox& mark = *marks_[IndexOf(caseNo)];
        mark.setAccessibleName(QString("%1: %2").arg(Label(kCompareWord), name));
        mark.setToolTip(Label(kMarkTip));
    }
}

void FamilyFrame::ShowPlan(int caseNo) {
    plan_->ShowSlot({shape_, caseNo});
}

void FamilyFrame::SetActive(bool active, int caseNo) {
    active_ = active;
    for (int each = 1; each <= kCasesPerShape; ++each) {
        buttons_[IndexOf(each)]->setEnabled(active);
        buttons_[IndexOf(each)]->setChecked(active && each == caseNo);
    }
    title_->setToolTip(active ? Label(kActiveTip) : QString());
    update();
}

void FamilyFrame::ClearMarks() {
    for (QCheckBox* mark : marks_) mark->setChecked(false);
}

void FamilyFrame::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal width = active_ ? 2 : 1;
    const QColor edge = active_ ? TintOf(Tint::Accent, *this) : palette().color(QPalette::Mid);
    painter.setPen(QPen(edge, width));
    painter.setBrush(active_ ? palette().base() : palette().window());
    const qreal inset = width / 2;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), kCorner,
                            kCorner);
}

void FamilyFrame::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) emit Chosen(shape_);
}

void FamilyFrame::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter) {
        emit Chosen(shape_);
        return;
    }
    QFrame::keyPressEvent(event);
}

}  // namespace verandis
