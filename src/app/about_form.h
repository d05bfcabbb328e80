#pragma once

#include <QDialog>

namespace verandis {

/// What the program is and which version of it runs.
class AboutBox : public QDialog {
    Q_OBJECT
public:
    explicit AboutBox(QWidget* parent = nullptr);

private:
    void OpenContact();
};

}  // namespace verandis
