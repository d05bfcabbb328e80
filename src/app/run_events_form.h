#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QProgressBar>

#include "platform/progress.h"

namespace verandis {

/// The run's bar on the main window.
class BarProgress : public Progress {
public:
    explicit BarProgress(QProgressBar& bar);

    /// Lets waiting events run, the only place where the system does; at most some thirty times a
    /// second, so that looking does not cost more than calculating.
    void LetEventsRun() override;

protected:
    void Show() override;

private:
    QProgressBar& bar_;
    QElapsedTimer sinceEvents_;
};

/// While it lives, the user reaches nothing but one control and the modal box on top: all other
/// presses, keys and close requests are dropped.
class RunGuard : public QObject {
    Q_OBJECT
public:
    explicit RunGuard(QWidget& allowed);
    ~RunGuard() override;

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    QWidget& allowed_;
};

}  // namespace verandis
