#pragma once

#include <QTabWidget>
#include <array>

#include "results/diagram_tabs.h"

QT_BEGIN_NAMESPACE
class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QRadioButton;
class QVBoxLayout;
QT_END_NAMESPACE

namespace verandis {

class DiagramChart;
class EnlargedForm;

/// The tab control `SSTab1` with the diagrams of the last run. A page's chart is made when the page
/// is first shown with results.
class DiagramTabs : public QTabWidget {
    Q_OBJECT
public:
    explicit DiagramTabs(QWidget* parent = nullptr);

    /// Fills all charts from the result tables.
    void ShowSteadyStateDiagrams();
    void ShowDynamicDiagrams();

    /// What a click on a tab does: its boxes go to their defaults. The tab of the function diagrams
    /// has none.
    void SSTab1_Click(int tab);

    /// Enables the tabs that the calculation fills; with another value than those of the two
    /// calculations all stay as they are.
    void EnableTabsFor(float calcMode);

    /// All fourteen boxes to the state after a dynamic run.
    void ResetSeriesBoxes();

    /// Allows `DCheck2`, which compares the two cases of one shape; forbidden, it is cleared.
    void AllowTwoCaseView(bool allowed);

    /// Empties the charts and closes the enlarged forms.
    void UnLoadGraphics();

    /// The chart of the current page; null before the first run.
    DiagramChart* ActiveChart() const;

    /// Prints the chart of the current page by the print dialog; nothing without one.
    void PrintActive();

    /// Puts the chart of the current page on the clipboard; nothing without one.
    void CopyActive();

private:
    enum class Filled { Nothing, Steady, Dynamic };
    struct Page {
        QVBoxLayout* column = nullptr;
        QHBoxLayout* row = nullptr;
        DiagramChart* chart = nullptr;
        QComboBox* selector = nullptr;
        QCheckBox* first = nullptr;
        QCheckBox* second = nullptr;
        QLabel* outdoor = nullptr;
    };

    void AddPage(std::size_t at);
    void AddOptions(Page& page);
    void AddSelector(Page& page, std::size_t at);
    QCheckBox* AddBox(Page& page, std::size_t at, const SeriesBox& box, bool second);
    void MakeDynamicTools();
    void ShowPage(int tab);
    void FillPage(std::size_t at);
    void FillMadePages();
    void Refill(Filled filled);
    void ApplyBoxes(std::size_t at);
    void SetBoxes(std::size_t at);
    DiagramKind KindOf(std::size_t at) const;
    Diagram Made(DiagramKind kind) const;
    void Enlarge(std::size_t at);
    void UpdateEnlarged();
    QList<EnlargedForm*> EnlargedForms() const;

    std::array<Page, kDiagramTabCount> pages_;
    Filled filled_ = Filled::Nothing;
    QRadioButton* Option1 = nullptr;
    QRadioButton* Option2 = nullptr;
    QWidget* dynamicTools_ = nullptr;  // stands on the page that is shown
    QCheckBox* DCheck2 = nullptr;
    QPushButton* redraw_ = nullptr;
};

}  // namespace verandis
