#include "results/enlarged_form.h"

#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <iterator>

#include "results/diagram_chart_form.h"
#include "results/diagram_tabs.h"
#include "ui/controls.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

struct Row {
    const char* name;
    DiagramKind first;   // shown until another one is taken over
    DiagramKind second;  // the same quantity once more
};

using K = DiagramKind;

// In the order of Enlarged. The forms of powers and energy belong to dynamic runs, as does SLTB.
constexpr std::array<Row, kEnlargedForms> kForms = {{
    {"SMITB", K::MinimumTemperature, K::MinimumSecond},
    {"SOTB", K::OutdoorMinimum, K::OutdoorMean},
    {"SLTB", K::MaximumTemperature, K::TemperatureFrequency},
    {"SMETB", K::MeanTemperature, K::MeanSecond},
    {"SPDB", K::PowerDemand, K::PowerDemandSecond},
    {"SHDB", K::MaximumPower, K::MaximumPower},
    {"SCDB", K::PowerFrequency, K::PowerFrequency},
    {"SVEB", K::Energy, K::Energy},
    {"SMITDB", K::MinimumFunction, K::MinimumFunction},
    {"SMETDB", K::MeanFunction, K::MeanFunction},
}};

const Row& RowOf(Enlarged form) {
    return kForms[static_cast<std::size_t>(form)];
}

}  // namespace

EnlargedForm::EnlargedForm(Enlarged form, QWidget* parent)
    : QDialog(parent), chart_(Named("Chart", new DiagramChart)) {
    setObjectName(EnlargedName(form));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(chart_);
    for (QAction* action : chart_->actions()) {
        if (action->objectName() == "Enlarge") action->setVisible(false);
    }
    resize(fontMetrics().averageCharWidth() * 130, fontMetrics().height() * 36);
    const DiagramKind kind = RowOf(form).first;
    const ShownQuantities shown = ShownAtStart(kind);
    Take(SteadyDiagram(kind), shown.first, shown.second);
}

void EnlargedForm::Take(const Diagram& diagram, bool firstShown, bool secondShown) {
    chart_->ShowQuantities(firstShown, secondShown);
    Refresh(diagram);
}

void EnlargedForm::Refresh(const Diagram& diagram) {
    setWindowTitle(Shown(diagram.title));
    chart_->SetDiagram(diagram);
}

DiagramKind EnlargedForm::kind() const {
    return chart_->diagram().kind;
}

void EnlargedForm::Print() {
    chart_->Print();
}

Enlarged EnlargedFormOf(DiagramKind kind) {
    const auto found = std::find_if(kForms.begin(), kForms.end(), [kind](const Row& row) {
        return row.first == kind || row.second == kind;
    });
    return static_cast<Enlarged>(std::distance(kForms.begin(), found));
}

const char* EnlargedName(Enlarged form) {
    return RowOf(form).name;
}

}  // namespace verandis
