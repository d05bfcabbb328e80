#pragma once

#include <QDialog>

QT_BEGIN_NAMESPACE
class QLabel;
QT_END_NAMESPACE

namespace verandis {

/// Whom to turn to, and what he needs to know about the installation.
class ContactWindow : public QDialog {
    Q_OBJECT
public:
    explicit ContactWindow(QWidget* parent = nullptr);

private:
    void CopyDetails();

    QString details_;
    QLabel* copied_;
};

}  // namespace verandis
