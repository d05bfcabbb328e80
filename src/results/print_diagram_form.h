#pragma once

#include <QDialog>
#include <QListWidget>

namespace verandis {

/// The list of diagrams that can be printed: a click (or Enter) opens the diagram's enlarged form
/// and prints it.
class PrintDiagram : public QDialog {
    Q_OBJECT
public:
    explicit PrintDiagram(QWidget* parent = nullptr);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void List1_Click();

    QListWidget* List1;
};

}  // namespace verandis
