#pragma once

#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <array>

#include "results/design_guide.h"

namespace verandis {

/// Window of the design guide, modeless: a choice of a calculated case walks through it, and asks
/// the designer on the way.
class Ststcalcchart : public QDialog, private GuideDesk {
    Q_OBJECT
public:
    explicit Ststcalcchart(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    /// The controls of one figure.
    struct FigureRow {
        QLabel* label;
        QLabel* symbol;
        QLabel* demand;
        QLabel* worst;
        QLabel* result;
    };

    void AddFigureRows(QGridLayout& grid);
    QLayout* CaseLine();
    QLayout* ButtonLine();
    void FillCases();

    void Combo1_Click(int row);
    void Command2_Click();

    void Show(const GuideState& state) override;
    bool Accepts(const std::string& question) override;
    void ShowSheet();

    QComboBox* Combo1;
    QLabel* Identification;
    QLabel* climate_;
    std::array<FigureRow, kGuideFigureCount> figures_{};
    QLabel* Redesign;
    QPushButton* Command1;
    QPushButton* Command2;
    GuideSheet sheet_;
};

}  // namespace verandis
