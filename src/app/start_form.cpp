#include "app/start_form.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QVBoxLayout>

#include "app/case_changes.h"
#include "app/help_form.h"
#include "app/program_text.h"
#include "app/session.h"
#include "app/settings.h"
#include "app/slot_selection.h"
#include "app/start_up.h"
#include "app/sys_init_form.h"
#include "calc/results.h"
#include "projects/slot_activation.h"
#include "ui/controls.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

constexpr int kNoSuchSlot = 564;

constexpr QSize kLeastSize(1024, 700);
constexpr QSize kFirstSize(1280, 820);

}  // namespace

StartForm::StartForm(QWidget* parent) : QMainWindow(parent) {
    setObjectName("StartForm");
    UseHelpWindow(this);
    BuildWindow();
    ConnectSlots();
    ConnectCalculation();
    ConnectMenus();
    Form_Load();
}

StartForm::~StartForm() {
    OnCaseChanged({});
    static Progress invisible;
    UseProgress(invisible);
}

void StartForm::BuildWindow() {
    menus_ = std::make_unique<StartMenus>(*this);
    auto* content = new QWidget;
    auto* row = new QHBoxLayout(content);
    row->setContentsMargins(kMargin, kMargin, kMargin, kGap);
    row->setSpacing(kMargin);
    row->addWidget(BuildSideBar());
    row->addWidget(BuildResults(), 1);
    setCentralWidget(content);
    statusBar();
    setMinimumSize(kLeastSize);
    progress_ = std::make_unique<BarProgress>(*ProgressBar1);
    UseProgress(*progress_);
}

QWidget* StartForm::BuildSideBar() {
    auto* column = new QWidget;
    auto* list = new QVBoxLayout(column);
    list->setContentsMargins(0, 0, 0, 0);
    list->setSpacing(kGap);
    for (int shape = 1; shape <= kShapeCount; ++shape) {
        auto* family = new FamilyFrame(shape);
        families_[static_cast<std::size_t>(shape - 1)] = family;
        list->addWidget(family);
    }
    panel_ = new CalculationPanel;
    list->addWidget(panel_);
    list->addStretch();

    auto* area = new QScrollArea;  // for large fonts on small screens
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(column);
    column->installEventFilter(this);
    sideBar_ = area;
    return area;
}

/// As wide as its words need, with room for a scroll bar.
void StartForm::FitSideBar() {
    sideBar_->setFixedWidth(sideBar_->widget()->sizeHint().width() +
                            sideBar_->verticalScrollBar()->sizeHint().width());
}

QWidget* StartForm::BuildResults() {
    auto* side = new QWidget;
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kGap);
    header_ = new SlotHeader;
    column->addWidget(header_);

    Frame8 = Named("Frame8", new QGroupBox);
    auto* frame = new QVBoxLayout(Frame8);
    frame->setContentsMargins(kGap, kTightGap, kGap, kGap);
    ProgressBar1 = Named("ProgressBar1", new QProgressBar);
    ProgressBar1->setTextVisible(false);  // its last step never lands: a full bar would say 99 %
    frame->addWidget(ProgressBar1);
    Frame8->hide();
    column->addWidget(Frame8);

    Image1 = Named("Image1", new PlanView);
    Image1->SetDetail(PlanView::Detail::Full);
    column->addWidget(Image1, 1);
    results_ = column;
    MakeDiagramTabs();
    return side;
}

/// The tabs take their words when they are made.
void StartForm::MakeDiagramTabs() {
    delete SSTab1;
    SSTab1 = new DiagramTabs;
    SSTab1->hide();
    results_->addWidget(SSTab1, 1);
}

void StartForm::ConnectSlots() {
    for (FamilyFrame* family : families_) {
        connect(family, &FamilyFrame::Chosen, this, &StartForm::ChooseFamily);
        connect(family, &FamilyFrame::CasePressed, this, &StartForm::PressCase);
        connect(family, &FamilyFrame::MarkPressed, this, &StartForm::Mark);
    }
    connect(header_, &SlotHeader::CaseChosen, this, &StartForm::ChooseCase);
    connect(header_, &SlotHeader::NotePressed, this, &StartForm::GS_Notes_Click);
    connect(header_, &SlotHeader::DataPressed, this, &StartForm::OpenCaseData);
}

void StartForm::ConnectCalculation() {
    connect(panel_->CalcStSt, &QRadioButton::clicked, this,
            [this] { ChooseCalculation(kSteadyState); });
    connect(panel_->CalcDyn, &QRadioButton::clicked, this, [this] { ChooseCalculation(kDynamic); });
    connect(panel_->Check1, &QCheckBox::clicked, this,
            [this](bool on) { Want(session.ShowGuide, on); });
    connect(panel_->Check2, &QCheckBox::clicked, this,
            [this](bool on) { Want(session.ShowDiagrams, on); });
    connect(panel_->Calculate, &QPushButton::clicked, this, &StartForm::Calculate_Click);
    connect(panel_->Command1, &QPushButton::clicked, this, [] { session.StopCalculation = kOn; });
    connect(panel_->Command10, &QPushButton::clicked, this, &StartForm::Command10_Click);
    connect(panel_->PrintOut, &QPushButton::clicked, this, [this] { SSTab1->PrintActive(); });
}

void StartForm::TakeTexts() {
    menus_->TakeTexts();
    for (FamilyFrame* family : families_) family->TakeTexts();
    panel_->TakeTexts();
    header_->TakeTexts();
    ProgressBar1->setAccessibleName(Label(58));
    MakeDiagramTabs();
    delete editor_;  // both take their words when they are made
    delete picture_;
    AssignMnemonics(*this);
    SetCaption(TextFor(61, 1));
}

/// The load of the window. Nothing of it can stop the start: what is missing shows up later.
void StartForm::Form_Load() {
    if (!ReadSystemSettings()) SysInit(this).exec();
    UseQtWordsOf(session.Language);
    StartSession();
    TakeTexts();
    resize(kFirstSize.boundedTo(screen()->availableSize()));
    move(screen()->availableGeometry().center() - rect().center());
    Command10_Click();
    TakeSession();
    panel_->Calculate->setFocus();
}

/// Shows the session as it stands after a start.
void StartForm::TakeSession() {
    menus_->Command("M_Export").setVisible(!SimulatorSystemPath().empty());
    panel_->Check1->setChecked(session.ShowGuide != kOff);
    panel_->Check2->setChecked(session.ShowDiagrams != kOff);
    SSTab1->AllowTwoCaseView(false);
    GoIdle();
    UnLoadGraphics();
    runResults.CaseResultCount = {};
    Frame8->hide();
    ShowPlans();
    StartUp();
}

void StartForm::StartUp() {
    menus_->Follow(verandis::StartUp());
    menus_->Command("M_Print").setEnabled(panel_->PrintOut->isEnabled());
    AllowResultCommands();
    for (const char* command : {"M_EditBuildingData", "M_DesignDemands", "M_BuildingPicture"}) {
        menus_->Command(command).setEnabled(EditedSlotIsOpen());
    }
    setWindowTitle(Shown(session.WindowTitle.empty() ? kProgramTitle : session.WindowTitle));
    header_->Refresh();
    if (editor_) editor_->Refresh();
}

/// What tells of a steady-state run; a dynamic one leaves nothing for it.
void StartForm::AllowResultCommands() {
    for (const char* command : {"M_DesignGuide", "M_MinTemp", "M_PrintDiagram", "M_ReportPdf",
                                "M_ReportCsv", "M_ReportPrint"}) {
        menus_->Command(command).setEnabled(HasSteadyResults());
    }
}

void StartForm::ShowShapePicture(int shape, int caseNo) {
    if (!IsShape(shape)) return;
    families_[static_cast<std::size_t>(shape - 1)]->ShowPlan(caseNo);
    Image1->ShowSlot({shape, caseNo});
    if (picture_) picture_->ShowActiveSlot();
}

void StartForm::ShowShapeState(int shape) {
    for (int each = 1; each <= kShapeCount; ++each) {
        families_[static_cast<std::size_t>(each - 1)]->SetActive(each == shape,
                                                                 session.ActiveCaseNo);
    }
    if (session.ActiveCaseNo >= 1) header_->SetActiveCase(session.ActiveCaseNo);
}

/// No results are shown any more; the result files stay on disk.
void StartForm::GoIdle() {
    statusBar()->clearMessage();
    HideDiagrams();
    SetCaption(TextFor(61, 1));
    progress_->SetValue(0);
    AllowPrinting(false);
}

void StartForm::ChooseFamily(int shape) {
    if (session.RunInProgress) return;
    GoIdle();
    if (!SelectFamily(shape)) return ShowTold(kNoSuchSlot);
    ShowShapePicture(shape, 1);
    ShowShapeState(shape);
    StartUp();
}

void StartForm::ChooseCase(int caseNo) {
    if (session.RunInProgress) return;
    GoIdle();
    if (!SelectCase(caseNo)) ShowTold(kNoSuchSlot);
    ShowShapePicture(session.ActiveShape, session.ActiveCaseNo);
    ShowShapeState(session.ActiveShape);
    StartUp();
}

void StartForm::PressCase(int caseNo) {
    if (session.RunInProgress) return;
    if (editor_) editor_->Refresh();
    if (session.ActiveCaseNo == caseNo && EditedSlotIsOpen()) {
        ShowShapeState(session.ActiveShape);
        return OpenCaseData();
    }
    ChooseCase(caseNo);
}

void StartForm::Mark(int shape, int caseNo, bool marked) {
    if (session.RunInProgress) return;
    GoIdle();
    auto& row = session.ChkCase[static_cast<std::size_t>(shape)];
    row[static_cast<std::size_t>(caseNo)] = marked;
    int count = 0;
    for (const auto& each : session.ChkCase) {
        count += static_cast<int>(std::count(each.begin(), each.end(), true));
    }
    panel_->ShowMarked(count);
}

void StartForm::Want(std::int16_t& what, bool wanted) {
    if (session.RunInProgress) return;
    what = wanted ? kOn : kOff;
}

void StartForm::ChooseCalculation(float mode) {
    if (session.RunInProgress) return;
    session.CalcMode = mode;
    panel_->SteadyItems->setVisible(mode != kDynamic);
    SSTab1->EnableTabsFor(mode);
}

void StartForm::Command10_Click() {
    if (session.RunInProgress) return;
    GoIdle();
    UnLoadGraphics();
    ClearMarks();
    for (FamilyFrame* family : families_) family->ClearMarks();
    steadyResults_ = false;
    AllowResultCommands();
    panel_->ClearChoice();
    panel_->SteadyItems->show();
    panel_->ShowMarked(0);
}

void StartForm::ShowTold(int text) {
    statusBar()->showMessage(Label(text));
}

void StartForm::UnLoadGraphics() {
    CloseGuide();
    SSTab1->UnLoadGraphics();
}

void StartForm::closeEvent(QCloseEvent* event) {
    if (session.RunInProgress) return event->ignore();
    UnLoadGraphics();
    delete editor_;
    QMainWindow::closeEvent(event);
    QApplication::quit();
}

void StartForm::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange && panel_) panel_->Blacken();
    QMainWindow::changeEvent(event);
}

/// Words and fonts of the side bar change its width.
bool StartForm::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::LayoutRequest && watched == sideBar_->widget()) FitSideBar();
    return QMainWindow::eventFilter(watched, event);
}

}  // namespace verandis
