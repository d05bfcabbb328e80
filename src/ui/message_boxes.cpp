#include "ui/message_boxes.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include "ui/input_box.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

enum : int { kYesText = 470, kNoText = 471, kOkText = 246, kCancelText = 42 };

QMessageBox::Icon BoxIcon(Icon icon) {
    switch (icon) {
        case Icon::Information: return QMessageBox::Information;
        case Icon::Exclamation: return QMessageBox::Warning;
        default: return QMessageBox::NoIcon;
    }
}

/// The catalogue's word, or the built-in one while there is no catalogue.
QString WordOr(int text, const char* builtIn) {
    const QString word = Label(text);
    return word.isEmpty() ? QString(builtIn) : word;
}

void Prepare(QMessageBox& box, const std::string& text, const std::string& title) {
    box.setTextFormat(Qt::PlainText);
    box.setWindowTitle(Shown(title));
    box.setText(Shown(text));
}

int Ask(const std::string& text, const std::string& title, bool withCancel) {
    QMessageBox box(QApplication::activeWindow());
    Prepare(box, text, title);
    box.setIcon(QMessageBox::Question);
    box.addButton(WordOr(kYesText, "Yes"), QMessageBox::YesRole)->setObjectName("Yes");
    QPushButton* no = box.addButton(WordOr(kNoText, "No"), QMessageBox::NoRole);
    no->setObjectName("No");
    QPushButton* escape = no;
    if (withCancel) {
        escape = box.addButton(WordOr(kCancelText, "Cancel"), QMessageBox::RejectRole);
        escape->setObjectName("Cancel");
    }
    box.setEscapeButton(escape);
    box.setDefaultButton(no);  // what is asked may delete something
    box.exec();
    return box.buttonRole(box.clickedButton());
}

}  // namespace

void MessageBoxes::Message(const std::string& text, const std::string& title, Icon icon) {
    QMessageBox box(QApplication::activeWindow());
    Prepare(box, text, title);
    box.setIcon(BoxIcon(icon));
    box.addButton(WordOr(kOkText, "OK"), QMessageBox::AcceptRole)->setObjectName("Ok");
    box.exec();
}

bool MessageBoxes::AskYesNo(const std::string& text, const std::string& title) {
    return Ask(text, title, false) == QMessageBox::YesRole;
}

Answer MessageBoxes::AskYesNoCancel(const std::string& text, const std::string& title) {
    switch (Ask(text, title, true)) {
        case QMessageBox::YesRole: return Answer::Yes;
        case QMessageBox::NoRole: return Answer::No;
        default: return Answer::Cancel;
    }
}

std::optional<std::string> MessageBoxes::AskText(const std::string& prompt,
                                                 const std::string& title,
                                                 const std::string& initial) {
    InpBox box(QApplication::activeWindow());
    box.Ask({.prompt = prompt, .title = title, .initial = initial});
    if (box.exec() != QDialog::Accepted) return std::nullopt;
    return box.reply();
}

}  // namespace verandis
