#include "app/contact_form.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSysInfo>
#include <QVBoxLayout>

#include "app/system_details.h"
#include "ui/controls.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

enum : int {
    kCloseText = 155,
    kTitleText = 950,
    kAdviceText = 952,
    kDetailsText = 953,
    kCopyText = 954,
    kCopiedText = 958
};

constexpr int kTextWidth = 64;  // characters
constexpr int kShownLines = 11;

Surroundings CurrentSurroundings() {
    return {QApplication::applicationVersion().toStdString(),
            QSysInfo::prettyProductName().toStdString(),
            "Qt " + std::string(qVersion()) + ", " + QGuiApplication::platformName().toStdString()};
}

}  // namespace

ContactWindow::ContactWindow(QWidget* parent)
    : QDialog(parent),
      details_(Shown(SystemDetailsText(SystemDetails(CurrentSurroundings())))),
      copied_(Named("Copied", new QLabel)) {
    setObjectName("ContactWindow");
    setWindowTitle(Label(kTitleText));
    setModal(true);
    auto* advice = Named("Advice", new QLabel(Label(kAdviceText)));
    advice->setTextFormat(Qt::PlainText);
    advice->setWordWrap(true);
    auto* text = Named("Details", new QPlainTextEdit(details_));
    text->setReadOnly(true);
    text->setTabChangesFocus(true);
    text->setLineWrapMode(QPlainTextEdit::NoWrap);
    text->setAccessibleName(Label(kDetailsText));
    text->setMinimumSize(fontMetrics().averageCharWidth() * kTextWidth,
                         fontMetrics().lineSpacing() * kShownLines);
    auto* caption = new QLabel(Label(kDetailsText));
    caption->setBuddy(text);

    auto* copy = Named("Copy", new QPushButton(Label(kCopyText)));
    auto* close = Named("CloseContact", new QPushButton(Label(kCloseText)));
    connect(copy, &QPushButton::clicked, this, &ContactWindow::CopyDetails);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    column->addWidget(advice);
    column->addSpacing(kGap);
    column->addWidget(caption);
    column->addWidget(text, 1);
    auto* buttons = MakeButtonRow(copy, {close});
    buttons->insertWidget(1, copied_);
    column->addLayout(buttons);
    AssignMnemonics(*this);
    copy->setFocus();
}

void ContactWindow::CopyDetails() {
    QGuiApplication::clipboard()->setText(details_);
    copied_->setText(Label(kCopiedText));
}

}  // namespace verandis
