#include "projects/saved_default_form.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/session.h"
#include "case/shapes.h"
#include "projects/saved_cases.h"
#include "projects/saved_list_form.h"
#include "ui/controls.h"
#include "ui/help.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

enum : int { kHelpText = 13, kCancelText = 42, kTitle = 583, kRedefineText = 999 };

constexpr int kHelpTopic = 13034;
constexpr int kTextWidth = 60;  // average characters

}  // namespace

BasRedef::BasRedef(QWidget* parent) : QDialog(parent) {
    setObjectName("BasRedef");
    setWindowTitle(TitleFromEntry(kTitle));
    setModal(true);
    auto* explanation = Named("Label1", new QLabel(Shown(RedefineExplanation())));
    explanation->setTextFormat(Qt::PlainText);
    explanation->setWordWrap(true);
    explanation->setMinimumWidth(fontMetrics().averageCharWidth() * kTextWidth);
    auto* redefine = Named("Command1", new QPushButton(Label(kRedefineText)));
    auto* cancel = Named("Command2", new QPushButton(Label(kCancelText)));
    auto* help = Named("Command3", new QPushButton(Label(kHelpText)));
    redefine->setEnabled(IsShape(session.ActiveShape));
    redefine->setAccessibleDescription(explanation->text());
    connect(redefine, &QPushButton::clicked, this, [this] {
        if (RedefineDefault()) accept();
    });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(help, &QPushButton::clicked, this, [] { ShowHelp(kHelpTopic); });

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kMargin);
    column->addWidget(explanation);
    column->addStretch();
    column->addLayout(MakeButtonRow(help, {redefine, cancel}));
    AssignMnemonics(*this);
}

}  // namespace verandis
