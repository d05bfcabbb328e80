#include "results/guide_form.h"

#include <QEvent>
#include <QVBoxLayout>

#include "app/session.h"
#include "case/shapes.h"
#include "results/guide_print_form.h"
#include "results/msg_form.h"
#include "ui/controls.h"
#include "ui/output.h"
#include "ui/qt_text.h"
#include "ui/theme.h"

namespace verandis {
namespace {

enum : int {
    kCloseText = 155,
    kPrintText = 181,
    kCaseText = 196,
    kDemandText = 650,
    kWorstText = 651,
    kOutcomeText = 653,
    kChooseText = 654,
    kFigureText = 657,
    kPrintTip = 658,
    kChooseTip = 659
};

/// Names of a figure's label and of its result, in the order of GuideFigure.
constexpr const char* kNames[][2] = {
    {"MIT", "MITRes"}, {"MET", "METREs"}, {"PDH", "PDHRES"}, {"EDH", "EDHRES"}, {"EDC", "EDCRES"}};

constexpr int kCaseRole = Qt::UserRole + 1;  // of a row, behind its shape
constexpr const char* kWidestResult = "Tmean > Tmean.dem";
constexpr const char* kWidestDemand = "00000000 kWh";
constexpr const char* kWidestMonth = "00000000 kWh (mmm)";
constexpr double kLargerLetters = 1.25;

QLabel* PlainLabel(const QString& text = {}) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    return label;
}

/// A label with a ground of its own.
QLabel* GroundedLabel(const char* name) {
    auto* label = Named(name, PlainLabel());
    label->setAutoFillBackground(true);
    label->setContentsMargins(kGap, kTightGap, kGap, kTightGap);
    return label;
}

void SetGround(QLabel& label, const QColor& ground, const QColor& letters) {
    QPalette palette = label.palette();
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::WindowText, letters);
    label.setPalette(palette);
}

void SetTint(QLabel& label, Tint tint) {
    const QColor ground = TintOf(tint, *label.parentWidget());
    SetGround(label, ground, ground.lightnessF() < 0.5 ? Qt::white : Qt::black);
}

void Enlarge(QLabel& label) {
    QFont font = label.font();
    font.setPointSizeF(font.pointSizeF() * kLargerLetters);
    font.setWeight(QFont::DemiBold);
    label.setFont(font);
}

/// A choice starts a walk with questions: a turn of the wheel chooses nothing, and an arrow key
/// opens the list instead of stepping through it.
class CaseCombo : public QComboBox {
protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
    void keyPressEvent(QKeyEvent* event) override {
        const bool arrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
        if (arrow) return showPopup();
        QComboBox::keyPressEvent(event);
    }
};

}  // namespace

Ststcalcchart::Ststcalcchart(QWidget* parent)
    : QDialog(parent),
      Combo1(Named("Combo1", new CaseCombo)),
      Identification(Named("Identification", PlainLabel())),
      climate_(PlainLabel()),
      Redesign(GroundedLabel("Redesign")),
      Command1(Named("Command1", new QPushButton(Label(kCloseText)))),
      Command2(Named("Command2", new QPushButton(Label(kPrintText)))) {
    setObjectName("Ststcalcchart");
    setWindowTitle(kGuideCaption);
    Enlarge(*Identification);
    Enlarge(*Redesign);
    Redesign->setAlignment(Qt::AlignCenter);
    QSizePolicy keepsItsPlace = Redesign->sizePolicy();
    keepsItsPlace.setRetainSizeWhenHidden(true);
    Redesign->setSizePolicy(keepsItsPlace);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(2 * kGap);
    grid->setVerticalSpacing(kTightGap);
    AddFigureRows(*grid);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    column->addLayout(CaseLine());
    column->addSpacing(kGap);
    column->addWidget(Identification);
    column->addWidget(climate_);
    column->addSpacing(kGap);
    column->addLayout(grid);
    column->addSpacing(kGap);
    column->addWidget(Redesign);
    column->addSpacing(kGap);
    column->addStretch();
    column->addLayout(ButtonLine());
    FillCases();
    sheet_ = SheetOfRow(GuideRows().size());
    ShowSheet();
    Combo1->setFocus();
    AssignMnemonics(*this);
}

QLayout* Ststcalcchart::CaseLine() {
    auto* caption = PlainLabel(Label(kCaseText));
    caption->setBuddy(Combo1);
    Combo1->setAccessibleName(Label(kCaseText));
    Combo1->setToolTip(Label(kChooseTip));
    Combo1->setPlaceholderText(Label(kChooseText));
    connect(Combo1, &QComboBox::activated, this, &Ststcalcchart::Combo1_Click);
    auto* line = new QHBoxLayout;
    line->setSpacing(kGap);
    line->addWidget(caption);
    line->addWidget(Combo1, 1);
    return line;
}

QLayout* Ststcalcchart::ButtonLine() {
    Command2->setToolTip(Label(kPrintTip));
    Command2->setEnabled(false);
    Command2->setAutoDefault(false);
    Command1->setDefault(true);
    connect(Command1, &QPushButton::clicked, this, &QDialog::close);
    connect(Command2, &QPushButton::clicked, this, &Ststcalcchart::Command2_Click);
    auto* line = new QHBoxLayout;
    line->setSpacing(kGap);
    line->addStretch();
    line->addWidget(Command2);
    line->addWidget(Command1);
    return line;
}

void Ststcalcchart::AddFigureRows(QGridLayout& grid) {
    const int heads[] = {kFigureText, 0, kDemandText, kWorstText, kOutcomeText};
    for (int column = 0; column < 5; ++column) {
        auto* head = PlainLabel(heads[column] ? Label(heads[column]) : QString());
        if (column % 4 == 0) head->setContentsMargins(kGap, 0, kGap, 0);
        grid.addWidget(head, 0, column);
    }
    for (int row = 0; row < kGuideFigureCount; ++row) {
        FigureRow& figure = figures_[static_cast<std::size_t>(row)];
        figure = {GroundedLabel(kNames[row][0]), PlainLabel(), PlainLabel(), PlainLabel(),
                  GroundedLabel(kNames[row][1])};
        int column = 0;
        for (QLabel* label :
             {figure.label, figure.symbol, figure.demand, figure.worst, figure.result}) {
            grid.addWidget(label, row + 1, column++);
        }
    }
    const auto keepFree = [&](int column, const char* text, int margins) {
        grid.setColumnMinimumWidth(column, fontMetrics().horizontalAdvance(text) + margins);
    };
    keepFree(2, kWidestDemand, 0);
    keepFree(3, kWidestMonth, 0);
    keepFree(4, kWidestResult, 2 * kGap);
    grid.setColumnStretch(4, 1);
}

void Ststcalcchart::FillCases() {
    for (const GuideRow& row : GuideRows()) {
        Combo1->addItem(Shown(row.caption), row.slot.shape);
        Combo1->setItemData(Combo1->count() - 1, row.slot.caseNo, kCaseRole);
    }
    Combo1->setCurrentIndex(-1);
    Combo1->setEnabled(Combo1->count() > 0);
}

void Ststcalcchart::Combo1_Click(int row) {
    if (row < 0) return;
    if (session.RunInProgress) return Combo1->setCurrentIndex(-1);  // its tables are not whole yet
    const auto index = static_cast<std::size_t>(row);
    sheet_ = SheetOfRow(index);
    Command2->setEnabled(RunGuide(index, *this));
    ShowSheet();
}

void Ststcalcchart::Command2_Click() {
    CurrentOutputs().Print(this, {kGuideCaption, QPageLayout::Portrait,
                                  [this](QPagedPaintDevice& page) { PrintGuide(page, sheet_); }});
}

void Ststcalcchart::Show(const GuideState& state) {
    sheet_.state = state;
    ShowSheet();
}

bool Ststcalcchart::Accepts(const std::string& question) {
    MsgForm form(this);
    form.SetQuestion(question);
    form.exec();
    return session.MsgFormAnswer != 0;
}

void Ststcalcchart::ShowSheet() {
    const GuideState& state = sheet_.state;
    Identification->setText(Shown(state.Identification));
    climate_->setText(Shown(sheet_.climate));
    const auto ground = [&](QLabel& label, bool judged, QPalette::ColorRole plain) {
        if (judged) return SetTint(label, Tint::Judged);
        SetGround(label, palette().color(plain), palette().color(QPalette::Text));
    };
    for (std::size_t at = 0; at < kGuideFigureCount; ++at) {
        const FigureWords& words = sheet_.figures[at];
        const FigureState& shown = state.figures[at];
        const FigureRow& row = figures_[at];
        row.label->setText(Shown(words.label));
        row.symbol->setText(Shown(words.symbol));
        row.demand->setText(Shown(words.demand));
        row.worst->setText(Shown(words.worst));
        row.result->setText(Shown(shown.result));
        ground(*row.label, shown.judgedLabel, QPalette::Base);
        ground(*row.result, shown.judgedResult, QPalette::Window);
    }
    Redesign->setText(Shown(state.Redesign));
    Redesign->setVisible(state.conclusion != Conclusion::None);
    SetTint(*Redesign, state.conclusion == Conclusion::Redesign ? Tint::Redesign : Tint::Accepted);
}

void Ststcalcchart::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && Redesign) ShowSheet();
}

}  // namespace verandis
