// What a run does to the main window.

#include <QStatusBar>

#include "app/session.h"
#include "app/start_form.h"
#include "calc/results.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

/// What the status line says after a run; the other outcomes have told themselves in a box.
int ToldAfter(RunOutcome outcome) {
    switch (outcome) {
        case RunOutcome::Done: return 580;
        case RunOutcome::NothingChosen: return 563;
        default: return 0;
    }
}

}  // namespace

void StartForm::Calculate_Click() {
    if (session.RunInProgress) return;
    statusBar()->clearMessage();
    Frame8->show();
    RunOutcome outcome = RunOutcome::Stopped;
    {
        const RunGuard guard(*panel_->Command1);
        outcome = verandis::Calculate_Click(*this);
    }
    steadyResults_ = outcome == RunOutcome::Done && session.CalcMode == kSteadyState;
    if (const int text = ToldAfter(outcome)) ShowTold(text);
    StartUp();
}

bool StartForm::HasSteadyResults() const {
    return steadyResults_;
}

void StartForm::HideDiagrams() {
    // A hidden chart would leave the keys nowhere.
    if (SSTab1->isAncestorOf(focusWidget())) panel_->Calculate->setFocus();
    SSTab1->hide();
    Image1->show();
}

void StartForm::SetCaption(const std::string& text) {
    Frame8->setTitle(ShownInCaption(text));
}

void StartForm::AllowPrinting(bool allowed) {
    panel_->PrintOut->setEnabled(allowed);
    menus_->Command("M_Print").setEnabled(allowed);
}

void StartForm::AllowCancel(bool allowed) {
    // The one button that works during a run is at hand for the keyboard too.
    const bool waited = panel_->Command1->hasFocus();
    panel_->Command1->setEnabled(allowed);
    if (allowed) panel_->Command1->setFocus();
    if (!allowed && waited) panel_->Calculate->setFocus();
}

void StartForm::CloseGuide() {
    delete guide_;
}

void StartForm::OpenGuide() {
    CloseGuide();
    guide_ = new Ststcalcchart(this);
    guide_->setAttribute(Qt::WA_DeleteOnClose);
    guide_->show();
}

void StartForm::OpenDesignGuide() {
    if (HasSteadyResults()) OpenGuide();
}

void StartForm::ShowSteadyCharts() {
    SSTab1->ShowSteadyStateDiagrams();
}

void StartForm::ShowDynamicCharts() {
    SSTab1->ShowDynamicDiagrams();
}

void StartForm::ShowDiagrams() {
    Image1->hide();
    SSTab1->show();
}

void StartForm::AllowTwoCaseView(bool allowed) {
    SSTab1->AllowTwoCaseView(allowed);
}

void StartForm::ResetSeriesBoxes() {
    SSTab1->ResetSeriesBoxes();
}

void StartForm::BlackenMarkLabels() {
    panel_->Blacken();
}

}  // namespace verandis
