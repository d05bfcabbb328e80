#pragma once

#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <array>

#include "case/shapes.h"
#include "ui/plan_view.h"

namespace verandis {

/// One shape family on the main window: its plan, its four case buttons and their marks. A click
/// beside the buttons, or Space and Enter on the frame, chooses the family.
class FamilyFrame : public QFrame {
    Q_OBJECT
public:
    explicit FamilyFrame(int shape, QWidget* parent = nullptr);

    /// Puts the catalogue's texts on the frame.
    void TakeTexts();

    /// Shows the plan of one of the family's cases.
    void ShowPlan(int caseNo);

    /// Marks the family and one of its cases as the ones that are edited (0: none of them). Only an
    /// active family's case buttons can be pressed.
    void SetActive(bool active, int caseNo);

    void ClearMarks();

signals:
    void Chosen(int shape);
    void CasePressed(int caseNo);
    void MarkPressed(int shape, int caseNo, bool marked);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void BuildCase(QGridLayout& grid, int caseNo);

    int shape_;
    bool active_ = false;
    QLabel* title_;
    QLabel* caseWord_;
    QLabel* compareWord_;
    PlanView* plan_;
    std::array<QPushButton*, kCasesPerShape> buttons_{};
    std::array<QCheckBox*, kCasesPerShape> marks_{};
};

}  // namespace verandis
