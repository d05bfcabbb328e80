#include "results/diagram_tabs_form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTabBar>
#include <QVBoxLayout>

#include "app/program_text.h"
#include "app/session.h"
#include "results/diagram_chart_form.h"
#include "results/diagram_texts.h"
#include "results/enlarged_form.h"
#include "ui/controls.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

enum : int {
    kMeanText = 71,
    kMinimumText = 270,
    kOutdoorText = 278,
    kFirstText = 605,
    kSecondText = 606,
    kTwoCasesText = 616,
    kRedrawText = 617,
    kTwoCasesTip = 618,
    kRedrawTip = 620,
    kBoxTip = 623,
    kSelectorTip = 624
};

// What the selector of a page calls its diagrams, in their order.
constexpr int kSelectorTexts[] = {kFirstText, kSecondText, kOutdoorText};

constexpr std::size_t kFunctionTab = 0;

}  // namespace

DiagramTabs::DiagramTabs(QWidget* parent) : QTabWidget(parent) {
    setObjectName("SSTab1");
    setUsesScrollButtons(true);
    setElideMode(Qt::ElideNone);
    setDocumentMode(true);
    MakeDynamicTools();
    for (std::size_t at = 0; at < pages_.size(); ++at) AddPage(at);
    ResetSeriesBoxes();
    ShowPage(0);
    connect(this, &QTabWidget::currentChanged, this, [this](int tab) {
        SSTab1_Click(tab);
        ShowPage(tab);
    });
}

void DiagramTabs::MakeDynamicTools() {
    dynamicTools_ = new QWidget(this);
    auto* row = new QHBoxLayout(dynamicTools_);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kGap);
    DCheck2 = Named("DCheck2", new QCheckBox(Label(kTwoCasesText)));
    DCheck2->setToolTip(Label(kTwoCasesTip));
    DCheck2->setEnabled(false);
    redraw_ = Named("Diagram", new QPushButton(Label(kRedrawText)));
    redraw_->setToolTip(Label(kRedrawTip));
    row->addWidget(DCheck2);
    row->addWidget(redraw_);
    dynamicTools_->hide();
    connect(DCheck2, &QCheckBox::toggled, this, [this] {
        if (filled_ == Filled::Dynamic) ShowDynamicDiagrams();
    });
    connect(redraw_, &QPushButton::clicked, this, &DiagramTabs::ShowDynamicDiagrams);
}

void DiagramTabs::AddPage(std::size_t at) {
    auto* widget = new QWidget;
    Page& page = pages_[at];
    page.column = new QVBoxLayout(widget);
    page.column->setContentsMargins(kGap, kGap, kGap, kTightGap);
    page.column->setSpacing(kTightGap);
    page.row = new QHBoxLayout;
    page.row->setSpacing(kMargin);
    if (at == kFunctionTab) {
        AddOptions(page);
    } else if (kDiagramTabs[at].count > 1) {
        AddSelector(page, at);
    }
    page.first = AddBox(page, at, kDiagramTabs[at].first, false);
    page.second = AddBox(page, at, kDiagramTabs[at].second, true);
    page.row->addStretch(1);
    page.column->addLayout(page.row);
    page.column->addStretch(0);
    page.outdoor = new QLabel;
    page.outdoor->setTextFormat(Qt::PlainText);
    page.outdoor->setWordWrap(true);
    page.outdoor->setTextInteractionFlags(Qt::TextSelectableByMouse);
    page.outdoor->hide();
    page.column->addWidget(page.outdoor);
    addTab(widget, ShownInCaption(DiagramTabCaption(kDiagramTabs[at])));
}

/// The two function diagrams; three more options are kept for further ones.
void DiagramTabs::AddOptions(Page& page) {
    Option1 = Named("Option1", new QRadioButton(Label(kMinimumText)));
    Option2 = Named("Option2", new QRadioButton(Label(kMeanText)));
    Option1->setChecked(true);
    for (QRadioButton* option : {Option1, Option2}) {
        option->setToolTip(Label(kSelectorTip));
        page.row->addWidget(option);
        connect(option, &QRadioButton::toggled, this, [this](bool on) {
            if (on) FillMadePages();
        });
    }
    for (const char* name : {"Option3", "Option4", "Option5"}) {
        auto* reserved = Named(name, new QRadioButton);
        page.row->addWidget(reserved);
        reserved->hide();
    }
}

void DiagramTabs::AddSelector(Page& page, std::size_t at) {
    page.selector = new QComboBox;
    page.selector->setObjectName(IndexedName("DiagramSelector", static_cast<int>(at)));
    page.selector->setToolTip(Label(kSelectorTip));
    page.selector->setAccessibleName(Label(kSelectorTip));
    for (std::size_t kind = 0; kind < kDiagramTabs[at].count; ++kind) {
        page.selector->addItem(Label(kSelectorTexts[kind]));
    }
    page.row->addWidget(page.selector);
    connect(page.selector, &QComboBox::currentIndexChanged, this, &DiagramTabs::FillMadePages);
}

QCheckBox* DiagramTabs::AddBox(Page& page, std::size_t at, const SeriesBox& box, bool second) {
    if (!box.name) return nullptr;
    const QString quantity = Label(QuantityText(kDiagramTabs[at].kinds[0], second));
    auto* check = Named(box.name, new QCheckBox(quantity));
    check->setToolTip(Label(kBoxTip) + " " + quantity.toLower());
    page.row->addWidget(check);
    connect(check, &QCheckBox::toggled, this, [this, at] { ApplyBoxes(at); });
    return check;
}

void DiagramTabs::SetBoxes(std::size_t at) {
    const Page& page = pages_[at];
    if (page.first) page.first->setChecked(kDiagramTabs[at].first.atStart);
    if (page.second) page.second->setChecked(kDiagramTabs[at].second.atStart);
}

void DiagramTabs::SSTab1_Click(int tab) {
    if (tab > 0 && tab < count()) SetBoxes(static_cast<std::size_t>(tab));
}

void DiagramTabs::ResetSeriesBoxes() {
    for (std::size_t at = 0; at < pages_.size(); ++at) SetBoxes(at);
}

void DiagramTabs::EnableTabsFor(float calcMode) {
    if (calcMode != kSteadyState && calcMode != kDynamic) return;
    // First on, then off: the current tab leaves only for one that may stay.
    for (const bool enabled : {true, false}) {
        for (std::size_t at = 0; at < pages_.size(); ++at) {
            if (IsTabEnabled(kDiagramTabs[at], calcMode) != enabled) continue;
            setTabEnabled(static_cast<int>(at), enabled);
            setTabVisible(static_cast<int>(at), enabled);
        }
    }
}

void DiagramTabs::AllowTwoCaseView(bool allowed) {
    DCheck2->setEnabled(allowed);
    if (!allowed) DCheck2->setChecked(false);
}

DiagramKind DiagramTabs::KindOf(std::size_t at) const {
    std::size_t index = 0;
    if (at == kFunctionTab) index = Option2->isChecked() ? 1 : 0;
    if (pages_[at].selector) index = static_cast<std::size_t>(pages_[at].selector->currentIndex());
    return kDiagramTabs[at].kinds[index];
}

Diagram DiagramTabs::Made(DiagramKind kind) const {
    switch (filled_) {
        case Filled::Steady: return SteadyDiagram(kind);
        case Filled::Dynamic: return DynamicDiagram(kind, DCheck2->isChecked());
        case Filled::Nothing: break;
    }
    return WithShown(SteadyDiagram(kind), false, false);
}

void DiagramTabs::FillPage(std::size_t at) {
    Page& page = pages_[at];
    if (!page.chart) {
        page.chart = new DiagramChart;
        page.chart->setObjectName(IndexedName("Chart", static_cast<int>(at)));
        page.column->insertWidget(1, page.chart, 1);
        connect(page.chart, &DiagramChart::EnlargeWanted, this, [this, at] { Enlarge(at); });
    }
    page.chart->SetDiagram(Made(KindOf(at)));
    ApplyBoxes(at);
    const QString outdoor = filled_ == Filled::Steady ? Shown(OutdoorText()) : QString();
    page.outdoor->setText(outdoor);
    page.outdoor->setVisible(!outdoor.isEmpty());
}

void DiagramTabs::FillMadePages() {
    for (std::size_t at = 0; at < pages_.size(); ++at) {
        if (pages_[at].chart) FillPage(at);
    }
}

/// The boxes choose between the two quantities of a diagram; one with a single quantity is whole.
void DiagramTabs::ApplyBoxes(std::size_t at) {
    const Page& page = pages_[at];
    if (!page.first) return;
    const bool pair = HasTwoQuantities(KindOf(at));
    page.first->setEnabled(pair);
    page.second->setEnabled(pair);
    if (!page.chart) return;
    page.chart->ShowQuantities(!pair || page.first->isChecked(), !pair || page.second->isChecked());
}

void DiagramTabs::ShowPage(int tab) {
    if (tab < 0) return;
    const auto at = static_cast<std::size_t>(tab);
    pages_[at].row->addWidget(dynamicTools_);
    dynamicTools_->setVisible(filled_ == Filled::Dynamic);
    if (filled_ != Filled::Nothing && !pages_[at].chart) FillPage(at);
}

void DiagramTabs::Refill(Filled filled) {
    filled_ = filled;
    FillMadePages();
    ShowPage(currentIndex());
    UpdateEnlarged();
}

void DiagramTabs::ShowSteadyStateDiagrams() {
    EnableTabsFor(kSteadyState);
    Refill(Filled::Steady);
}

void DiagramTabs::ShowDynamicDiagrams() {
    EnableTabsFor(kDynamic);
    Refill(Filled::Dynamic);
}

void DiagramTabs::UnLoadGraphics() {
    for (EnlargedForm* form : EnlargedForms()) form->close();
    Refill(Filled::Nothing);
}

QList<EnlargedForm*> DiagramTabs::EnlargedForms() const {
    return findChildren<EnlargedForm*>(QString(), Qt::FindDirectChildrenOnly);
}

void DiagramTabs::Enlarge(std::size_t at) {
    const DiagramChart& chart = *pages_[at].chart;
    const Enlarged wanted = EnlargedFormOf(chart.diagram().kind);
    auto* form = findChild<EnlargedForm*>(EnlargedName(wanted), Qt::FindDirectChildrenOnly);
    if (!form) {
        form = new EnlargedForm(wanted, this);
        form->setAttribute(Qt::WA_DeleteOnClose);
    }
    form->Take(chart.diagram(), chart.firstShown(), chart.secondShown());
    form->show();
    form->raise();
    form->activateWindow();
}

/// Open forms follow a new run; what they show stays chosen in them.
void DiagramTabs::UpdateEnlarged() {
    for (EnlargedForm* form : EnlargedForms()) form->Refresh(Made(form->kind()));
}

DiagramChart* DiagramTabs::ActiveChart() const {
    return currentIndex() < 0 ? nullptr : pages_[static_cast<std::size_t>(currentIndex())].chart;
}

void DiagramTabs::PrintActive() {
    if (DiagramChart* chart = ActiveChart()) chart->Print();
}

void DiagramTabs::CopyActive() {
    if (DiagramChart* chart = ActiveChart()) chart->CopyPicture();
}

}  // namespace verandis
