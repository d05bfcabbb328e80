#include "ui/input_box.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/input_check.h"
#include "platform/prompts.h"
#include "ui/controls.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

enum : int { kOkText = 246, kCancelText = 42 };

}  // namespace

InpBox::InpBox(QWidget* parent)
    : QDialog(parent), Label1(Named("Label1", new QLabel)), Text1(Named("Text1", new NumberField)) {
    setObjectName("InpBox");
    Label1->setTextFormat(Qt::PlainText);
    Label1->setWordWrap(true);
    Label1->setBuddy(Text1);
    Text1->setMinimumWidth(fontMetrics().averageCharWidth() * 55);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    Named("Command1", buttons->button(QDialogButtonBox::Ok));
    Named("Command2", buttons->button(QDialogButtonBox::Cancel));
    if (!Label(kOkText).isEmpty()) {
        buttons->button(QDialogButtonBox::Ok)->setText(Label(kOkText));
        buttons->button(QDialogButtonBox::Cancel)->setText(Label(kCancelText));
    }
    connect(buttons, &QDialogButtonBox::accepted, this, &InpBox::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    column->addWidget(Label1);
    column->addWidget(Text1);
    column->addStretch();
    column->addWidget(buttons);
}

void InpBox::Ask(const InputQuestion& question) {
    question_ = question;
    setWindowTitle(Shown(question.title));
    Label1->setText(Shown(question.prompt));
    Text1->setAccessibleName(Shown(question.prompt));
    Text1->setText(Shown(question.initial));
    Text1->SetGuarded(question.numeric);
    if (question.longest) Text1->setMaxLength(*question.longest);
    Text1->selectAll();
    Text1->setFocus();
}

std::string InpBox::reply() const {
    return Typed(Text1->text());
}

void InpBox::accept() {
    if (question_.numeric) {
        const std::string complaint =
            NumericReplyComplaint(reply(), question_.least, question_.most);
        if (!complaint.empty()) {
            ShowMessage(complaint, question_.title, Icon::Exclamation);
            Text1->selectAll();
            Text1->setFocus();
            return;
        }
    }
    QDialog::accept();
}

}  // namespace verandis
