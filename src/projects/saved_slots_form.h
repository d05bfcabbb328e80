#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <array>
#include <vector>

#include "case/shapes.h"

namespace verandis {

/// Saves marked slots under one set name. Sixteen boxes `Check1_1` to `Check1_16`, shape by shape,
/// begin as the slots are marked for the calculation. `Command1` marks all, `Command4` none,
/// `Command5` saves, `Command2` is the help, `Command3` closes. It stays open and tells in `Done`
/// what was saved.
class SaveCases : public QDialog {
    Q_OBJECT
public:
    explicit SaveCases(QWidget* parent = nullptr);

private:
    QGridLayout* BuildBoxes();
    QCheckBox* MakeBox(const Slot& slot);
    void Build();
    void MarkAll(bool marked);
    std::vector<Slot> Marked() const;
    void FollowMarks();
    void Command5_Click();

    std::array<QCheckBox*, kShapeCount * kCasesPerShape> boxes_{};
    QLabel* Done;
    QPushButton* Command1;
    QPushButton* Command2;
    QPushButton* Command3;
    QPushButton* Command4;
    QPushButton* Command5;
};

}  // namespace verandis
