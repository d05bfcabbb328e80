#include "app/about_form.h"

#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>

#include "app/contact_form.h"
#include "case/shapes.h"
#include "platform/prompts.h"
#include "ui/controls.h"
#include "ui/plan_view.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

enum : int {
    kOkText = 246,
    kTitleText = 551,
    kWhatItIs = 566,
    kVersionText = 567,
    kContactText = 950,
    kWhatItDoes = 951
};

constexpr double kLargerLetters = 1.8;
constexpr int kTextWidth = 52;  // characters

QLabel* PlainLabel(const char* name, const QString& text) {
    auto* label = Named(name, new QLabel(text));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

}  // namespace

AboutBox::AboutBox(QWidget* parent) : QDialog(parent) {
    setObjectName("AboutBox");
    setWindowTitle(Label(kTitleText));
    setModal(true);
    auto* name = PlainLabel("ProgramName", kProgramTitle);
    QFont large = name->font();
    large.setPointSizeF(large.pointSizeF() * kLargerLetters);
    large.setWeight(QFont::DemiBold);
    name->setFont(large);
    auto* version =
        PlainLabel("Version", Label(kVersionText) + " " + QApplication::applicationVersion());
    version->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* what = PlainLabel("WhatItDoes", Label(kWhatItIs) + "\n\n" + Label(kWhatItDoes));
    what->setMinimumWidth(fontMetrics().averageCharWidth() * kTextWidth);

    auto* picture = new PlanView;
    picture->SetDetail(PlanView::Detail::Thumbnail);
    picture->ShowFigures(kShapeU, DefaultDimensions(kShapeU));
    picture->setFixedSize(fontMetrics().height() * 8, fontMetrics().height() * 8);
    auto* words = new QVBoxLayout;
    words->setSpacing(kTightGap);
    words->addWidget(name);
    words->addWidget(version);
    words->addSpacing(kGap);
    words->addWidget(what);
    words->addStretch();
    auto* row = new QHBoxLayout;
    row->setSpacing(2 * kMargin);
    row->addWidget(picture, 0, Qt::AlignTop);
    row->addLayout(words, 1);

    auto* contact = Named("Contact", new QPushButton(Label(kContactText)));
    auto* ok = Named("cmdOK", new QPushButton(Label(kOkText)));
    connect(contact, &QPushButton::clicked, this, &AboutBox::OpenContact);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(2 * kMargin);
    column->addLayout(row);
    column->addLayout(MakeButtonRow(contact, {ok}));
    AssignMnemonics(*this);
    ok->setFocus();
}

void AboutBox::OpenContact() {
    ContactWindow(this).exec();
}

}  // namespace verandis
