#include "dialogs/geometry_form.h"

#include <QVBoxLayout>
#include <cmath>

#include "app/program_text.h"
#include "app/session.h"
#include "dialogs/case_title.h"
#include "platform/prompts.h"
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
    kAtMostText = 108,
    kCloseText = 155,
    kDimensionsText = 220,
    kDegreesText = 806
};

/// A limit cut to one decimal, so that the figure shown is one that passes.
std::string LimitShown(double degrees) {
    return NumberOnScreen(std::floor(degrees * 10) / 10);
}

}  // namespace

GeometryForm::GeometryForm(int shape, const char* name, QWidget* parent)
    : QDialog(parent),
      dialog_(DimensionDialogOf(shape)),
      tiltRemark_(Named("TiltRemark", new QLabel)),
      sketch_(Named("Sketch", new PlanView)),
      Command1(Named("Command1", new QPushButton(Label(kHelpText)))),
      Command2(Named("Command2", new QPushButton(Label(kCancelText)))),
      Command3(Named("Command3", new QPushButton(Label(kCloseText)))) {
    setObjectName(name);
    sketch_->SetLetters(true);
    const int line = fontMetrics().height();
    sketch_->setMinimumSize(line * 24, line * 18);
    auto* sides = new QHBoxLayout;
    sides->setSpacing(2 * kGap);
    sides->addLayout(MakeFields());
    sides->addWidget(sketch_, 1);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    rows->setSpacing(kMargin);
    rows->addLayout(sides, 1);
    rows->addLayout(MakeButtonRow(Command1, {Command3, Command2}));
    Form_Load();
    for (NumberField* field : fields_) {
        connect(field, &QLineEdit::textChanged, this, &GeometryForm::ShowFigures);
    }
    connect(Command1, &QPushButton::clicked, this, &GeometryForm::Command1_Click);
    connect(Command2, &QPushButton::clicked, this, &GeometryForm::Command2_Click);
    connect(Command3, &QPushButton::clicked, this, &GeometryForm::Command3_Click);
    for (qsizetype at = 1; at < fields_.size(); ++at) setTabOrder(fields_[at - 1], fields_[at]);
    setTabOrder(fields_.back(), Command3);
    setTabOrder(Command3, Command2);
    setTabOrder(Command2, Command1);
    AssignMnemonics(*this);
}

QLayout* GeometryForm::MakeFields() {
    auto* grid = new FieldGrid;
    for (const DimensionField& field : dialog_.fields) {
        auto* box = Named(field.control, new NumberField);
        box->setFixedWidth(fontMetrics().averageCharWidth() * 12);
        fields_.append(box);
        grid->AddField(QString("%1  %2").arg(field.letter).arg(Label(field.label)), box,
                       field.isAngle() ? Label(kDegreesText) : QString("m"));
    }
    QPalette muted = palette();
    muted.setColor(QPalette::WindowText, TintOf(Tint::Muted, *this));
    tiltRemark_->setPalette(muted);
    grid->addWidget(tiltRemark_, grid->rowCount(), 1, 1, 2);
    if (!dialog_.tiltLimited) tiltRemark_->hide();
    auto* column = new QVBoxLayout;
    column->addLayout(grid);
    column->addStretch();
    return column;
}

void GeometryForm::Form_Load() {
    setWindowTitle(Shown(CaseDialogTitle(kDimensionsText, dialog_.shape)));
    const DimensionTexts texts = LoadDimensions(dialog_);
    for (std::size_t at = 0; at < texts.size(); ++at) {
        fields_[static_cast<qsizetype>(at)]->setText(Shown(texts[at]));
    }
    ShowFigures();
}

bool GeometryForm::IsNumberText(const std::string& text) {
    return verandis::IsNumberText(text, session.Decimals);
}

bool GeometryForm::ValidateDimensions() {
    const DimensionComplaints found = CheckDimensions(dialog_, Texts());
    if (found.empty()) return true;
    ShowMessage(found.text, Text(kDimensionsText), Icon::Exclamation);
    const auto fieldOf = [&](char letter) {
        return fields_[static_cast<qsizetype>(dialog_.IndexOf(letter))];
    };
    for (const char letter : found.selected) fieldOf(letter)->selectAll();
    if (found.focus) fieldOf(found.focus)->setFocus();
    return false;
}

void GeometryForm::Command1_Click() {
    ShowHelp(dialog_.helpTopic);
}

void GeometryForm::Command2_Click() {
    reject();
}

void GeometryForm::Command3_Click() {
    if (ValidateDimensions() && StoreDimensions(dialog_, Texts())) accept();
}

DimensionTexts GeometryForm::Texts() const {
    DimensionTexts texts;
    for (const NumberField* field : fields_) texts.push_back(Typed(field->text()));
    return texts;
}

void GeometryForm::ShowFigures() {
    const DimensionTexts texts = Texts();
    sketch_->ShowFigures(dialog_.shape, FiguresOf(dialog_, texts));
    const auto limit = TiltLimit(dialog_, texts);
    tiltRemark_->setText(limit ? Label(kAtMostText) + " " + Shown(LimitShown(*limit)) + " " +
                                     Label(kDegreesText)
                               : QString());
}

}  // namespace verandis
