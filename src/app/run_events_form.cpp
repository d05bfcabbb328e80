#include "app/run_events_form.h"

#include <QApplication>
#include <QEvent>

#include "app/session.h"

namespace verandis {
namespace {

constexpr qint64 kEventPause = 30;  // ms

bool ComesFromUser(QEvent::Type type) {
    switch (type) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::ShortcutOverride:
        case QEvent::Shortcut:
        case QEvent::ContextMenu:
        case QEvent::Close: return true;
        default: return false;
    }
}

}  // namespace

BarProgress::BarProgress(QProgressBar& bar) : bar_(bar) {
    Show();
}

void BarProgress::LetEventsRun() {
    // A dynamic run steps seldom and must not miss a press on its cancel button.
    const bool often = session.CalcMode != kDynamic;
    if (often && sinceEvents_.isValid() && sinceEvents_.elapsed() < kEventPause) return;
    QCoreApplication::processEvents();
    sinceEvents_.start();
}

void BarProgress::Show() {
    // A maximum of 0 would make the bar run to and fro.
    bar_.setMaximum(maximum() > 0 ? maximum() : 1);
    bar_.setValue(value());
}

RunGuard::RunGuard(QWidget& allowed) : allowed_(allowed) {
    qApp->installEventFilter(this);
}

RunGuard::~RunGuard() {
    qApp->removeEventFilter(this);
}

bool RunGuard::eventFilter(QObject* receiver, QEvent* event) {
    if (!ComesFromUser(event->type())) return false;
    const auto* widget = qobject_cast<QWidget*>(receiver);
    const QWidget* modal = QApplication::activeModalWidget();
    const bool reachable = modal ? !widget || widget->window() == modal : receiver == &allowed_;
    if (reachable) return false;
    // Key presses reach menu commands, which are no widgets, as shortcuts.
    if (!widget && event->type() != QEvent::Shortcut) return false;
    if (event->type() == QEvent::Close) event->ignore();
    return true;
}

}  // namespace verandis
