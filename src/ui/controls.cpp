#include "ui/controls.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QTabWidget>
#include <functional>

namespace verandis {
namespace {

/// The letter behind the first single "&"; null when there is none.
QChar LetterOf(const QString& caption) {
    for (qsizetype at = 0; at + 1 < caption.size(); ++at) {
        if (caption[at] != '&') continue;
        if (caption[at + 1] != '&') return caption[at + 1].toLower();
        ++at;
    }
    return {};
}

/// The caption with a mnemonic whose letter is not taken: the first letter of a word before others.
QString WithMnemonic(const QString& caption, QSet<QChar>& taken) {
    const auto usable = [&](qsizetype at) {
        return caption[at].isLetterOrNumber() && !taken.contains(caption[at].toLower());
    };
    const auto startsWord = [&](qsizetype at) { return at == 0 || caption[at - 1].isSpace(); };
    for (const bool wordStart : {true, false}) {
        for (qsizetype at = 0; at < caption.size(); ++at) {
            if (!usable(at) || startsWord(at) != wordStart) continue;
            taken.insert(caption[at].toLower());
            return QString(caption).insert(at, '&');
        }
    }
    return caption;
}

struct Captioned {
    QString text;
    std::function<void(const QString&)> set;
};

void Assign(const QList<Captioned>& captions) {
    QSet<QChar> taken;
    for (const Captioned& each : captions) {
        if (const QChar letter = LetterOf(each.text); !letter.isNull()) taken.insert(letter);
    }
    for (const Captioned& each : captions) {
        // A figure on a button is no word to pick a letter from.
        const bool word = each.text.size() > 1 && LetterOf(each.text).isNull();
        if (word && each.set) each.set(WithMnemonic(each.text, taken));
    }
}

void AssignInMenu(const QList<QAction*>& actions) {
    QList<Captioned> captions;
    for (QAction* action : actions) {
        if (action->isSeparator() || action->text().isEmpty()) continue;
        captions.append({action->text(), [action](const QString& text) { action->setText(text); }});
        if (action->menu()) AssignInMenu(action->menu()->actions());
    }
    Assign(captions);
}

}  // namespace

QString IndexedName(const char* name, int index) {
    return QString("%1_%2").arg(name).arg(index);
}

FieldGrid::FieldGrid(QWidget* parent) : QGridLayout(parent) {
    setHorizontalSpacing(kGap);
    setVerticalSpacing(kGap);
    setColumnStretch(1, 1);
}

void FieldGrid::AddField(const QString& label, QWidget* field, const QString& unit) {
    const int row = rowCount();
    auto* caption = new QLabel(label);
    caption->setTextFormat(Qt::PlainText);
    caption->setBuddy(field);
    field->setAccessibleName(label);
    addWidget(caption, row, 0);
    addWidget(field, row, 1);
    if (!unit.isEmpty()) addWidget(new QLabel(unit), row, 2);
}

QHBoxLayout* MakeButtonRow(QPushButton* help, const QList<QPushButton*>& right) {
    auto* row = new QHBoxLayout;
    row->setSpacing(kGap);
    if (help) {
        help->setAutoDefault(false);
        row->addWidget(help);
    }
    row->addStretch();
    for (QPushButton* button : right) {
        button->setAutoDefault(button == right.front());
        row->addWidget(button);
    }
    if (!right.isEmpty()) right.front()->setDefault(true);
    return row;
}

void AssignMnemonics(QWidget& window) {
    QList<Captioned> captions;
    if (const auto* bar = window.findChild<QMenuBar*>()) {
        AssignInMenu(bar->actions());
        // Their letters are taken for the rest of the window.
        for (const QAction* menu : bar->actions()) captions.append({menu->text(), {}});
    }
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (auto* button = qobject_cast<QAbstractButton*>(widget);
            button && !button->text().isEmpty()) {
            captions.append(
                {button->text(), [button](const QString& text) { button->setText(text); }});
        } else if (auto* tabs = qobject_cast<QTabWidget*>(widget)) {
            for (int tab = 0; tab < tabs->count(); ++tab) {
                captions.append({tabs->tabText(tab), [tabs, tab](const QString& text) {
                                     tabs->setTabText(tab, text);
                                 }});
            }
        } else if (auto* label = qobject_cast<QLabel*>(widget); label && label->buddy()) {
            captions.append(
                {label->text(), [label](const QString& text) { label->setText(text); }});
        }
    }
    Assign(captions);
}

}  // namespace verandis
