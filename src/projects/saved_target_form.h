#pragma once

#include <QButtonGroup>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <string>

#include "case/shapes.h"

namespace verandis {

/// What another slot is chosen for.
enum class TargetUse { Load, Copy };

/// Asks for the slot that a saved case is loaded into or copied to: its shape (`Option1_1` to
/// `Option1_4`) and its case (`target`). Ok (`Command1`) does it, with its own questions and
/// complaints, and closes once it is done; Cancel is `Command2`.
class TargetFile : public QDialog {
    Q_OBJECT
public:
    explicit TargetFile(QWidget* parent = nullptr);

    /// The saved case, by its file name, and what is wanted. The slot of the name is chosen at
    /// first, none when the name does not tell.
    void Ask(const std::string& file, TargetUse use);

    /// The file name with the mark of the chosen slot; empty while none is chosen.
    std::string Target() const;

    void accept() override;

private:
    void Build();
    Slot ChosenSlot() const;
    void ShowTarget();

    std::string file_;
    TargetUse use_ = TargetUse::Load;
    QLineEdit* SourceFile;
    QLineEdit* TagretFile;
    QButtonGroup* shapes_;
    QComboBox* target;
    QLabel* targetLabel_;
    QLabel* remark_;
    QPushButton* Command1;
    QPushButton* Command2;
};

}  // namespace verandis
