#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace verandis {

/// The part of the main window that starts a run: which calculation, what is wanted after it, and
/// the buttons. It holds controls only; the main window connects them.
class CalculationPanel : public QGroupBox {
    Q_OBJECT
public:
    explicit CalculationPanel(QWidget* parent = nullptr);

    void TakeTexts();

    /// Shows how many cases are marked, in red when that is more than a run takes.
    void ShowMarked(int marked);

    /// Gives the count of marks the colour of other text again.
    void Blacken();

    /// No calculation chosen.
    void ClearChoice();

    QRadioButton* CalcStSt;
    QRadioButton* CalcDyn;
    QWidget* SteadyItems;  // what only a steady-state run offers
    QCheckBox* Check1;     // the design guide is wanted
    QCheckBox* Check2;     // diagrams are wanted
    QPushButton* Calculate;
    QPushButton* Command1;   // cancel
    QPushButton* Command10;  // clear
    QPushButton* PrintOut;
    QLabel* Label3;  // what to mark
    QLabel* Label4;  // how many are marked

private:
    void ColourMarkLabels(const QColor& colour);
};

}  // namespace verandis
