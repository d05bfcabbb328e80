#include "results/msg_form.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/session.h"
#include "results/design_guide.h"
#include "ui/controls.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

enum : int { kYesText = 470, kNoText = 471 };

constexpr int kColumns = 52;  // characters of the longest question in one line

}  // namespace

MsgForm::MsgForm(QWidget* parent) : QDialog(parent), Text1(Named("Text1", new QPlainTextEdit)) {
    setObjectName("MsgForm");
    setWindowTitle(kGuideCaption);
    setModal(true);
    Text1->setReadOnly(true);
    Text1->setTabChangesFocus(true);
    Text1->setFrameShape(QFrame::NoFrame);
    Text1->viewport()->setAutoFillBackground(false);
    Text1->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    auto* no = Named("Command1_0", new QPushButton(Label(kNoText)));
    auto* yes = Named("Command1_1", new QPushButton(Label(kYesText)));
    yes->setDefault(true);
    connect(no, &QPushButton::clicked, this, &QDialog::reject);
    connect(yes, &QPushButton::clicked, this, &QDialog::accept);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(kGap);
    buttons->addStretch();
    buttons->addWidget(yes);
    buttons->addWidget(no);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    column->addWidget(Text1);
    column->addLayout(buttons);
    setTabOrder(yes, no);
    setTabOrder(no, Text1);
    yes->setFocus();
    AssignMnemonics(*this);
}

void MsgForm::SetQuestion(const std::string& question) {
    const QString text = Shown(question);
    Text1->setPlainText(text);
    Text1->setAccessibleName(text);
    const QFontMetrics metrics(Text1->font());
    Text1->setMinimumWidth(metrics.averageCharWidth() * kColumns);
    Text1->setFixedHeight(metrics.lineSpacing() * static_cast<int>(text.count('\n') + 2));
}

void MsgForm::done(int result) {
    session.MsgFormAnswer = result == QDialog::Accepted ? 1 : 0;
    QDialog::done(result);
}

}  // namespace verandis
