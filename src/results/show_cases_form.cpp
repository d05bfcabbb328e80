#include "results/show_cases_form.h"

#include <QFontDatabase>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>

#include "app/program_text.h"
#include "platform/clock.h"
#include "platform/prompts.h"
#include "projects/saved_cases.h"
#include "results/case_report.h"
#include "results/report_choice.h"
#include "results/report_pages_form.h"
#include "results/run_report.h"
#include "ui/controls.h"
#include "ui/help.h"
#include "ui/output.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

enum : int {
    kHelpText = 13,
    kCloseText = 155,
    kPrintText = 181,
    kSavedText = 529,
    kWorkingText = 632,
    kFourText = 634,
    kCopyText = 635,
    kSaveCsvText = 636,
    kReportText = 637,
    kTablesText = 638,
    kTablesTip = 639,
    kReadText = 640,
    kReadTip = 641,
    kNothingChosen = 642,
    kSavePdfText = 643,
    kTitleText = 673,
    kSavedTip = 674,
    kMarkTip = 675,
    kNoSavedText = 676,
    kPrintTip = 678,
    kDifferTitle = 935
};

constexpr int kHelpTopic = 13040;
constexpr int kWindowColumns = 190;  // average characters
constexpr int kWindowLines = 38;
constexpr int kPaneShares[] = {5, 7, 9};
constexpr int kFarMore = 1000;  // sizes beyond the window are shared out in their proportion
constexpr int kSlotRole = Qt::UserRole;  // place of a slot among all

QLabel* CaptionOf(const QString& text, QWidget* buddy) {
    auto* caption = new QLabel(text);
    caption->setBuddy(buddy);
    buddy->setAccessibleName(text);
    return caption;
}

QListWidgetItem* AddMarkRow(QListWidget& list, const QString& text, bool marked) {
    auto* item = new QListWidgetItem(text, &list);
    item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
    item->setCheckState(marked ? Qt::Checked : Qt::Unchecked);
    return item;
}

QList<QListWidgetItem*> MarkedRows(const QListWidget& list) {
    QList<QListWidgetItem*> marked;
    for (int row = 0; row < list.count(); ++row) {
        if (list.item(row)->checkState() == Qt::Checked) marked.append(list.item(row));
    }
    return marked;
}

QWidget* PaneOf(const QList<QWidget*>& widgets) {
    auto* pane = new QWidget;
    auto* column = new QVBoxLayout(pane);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kTightGap);
    for (QWidget* widget : widgets) column->addWidget(widget);
    return pane;
}

QString WithoutPoints(QString text) {
    while (text.endsWith('.')) text.chop(1);
    return text;
}

/// The report and what differs, for paper.
PrintJob JobOf(const QString& title, const QString& report, const ReportTable& table) {
    return {title, QPageLayout::Portrait, [=](QPagedPaintDevice& device) {
                const std::string foot = std::string(kProgramTitle) + "  " + CurrentClock().Date();
                ReportPages pages(device, Shown(foot));
                if (!pages.IsOpen()) return;
                if (!table.rows.empty()) pages.AddTable(table);
                pages.NextPage();
                pages.AddListing(report.split('\n'));
            }};
}

}  // namespace

ShowCases::ShowCases(QWidget* parent)
    : QDialog(parent),
      File1(Named("File1", new QListWidget)),
      slots_(Named("WorkingCases", new QListWidget)),
      limit_(Named("Limit", new QLabel(Label(kFourText)))),
      Text2(Named("Text2", new QPlainTextEdit)),
      differences_(Named("Differences", new DataTable)),
      remark_(Named("Remark", new QLabel)),
      TAbles(Named("TAbles", new QPushButton(Label(kTablesText)))),
      Command1(Named("Command1", new QPushButton(Label(kPrintText)))),
      Command2(Named("Command2", new QPushButton(Label(kHelpText)))),
      Command3(Named("Command3", new QPushButton(Label(kCloseText)))),
      Command5(Named("Command5", new QPushButton(Label(kReadText)))),
      copy_(Named("CopyDifferences", new QPushButton(Label(kCopyText)))),
      saveCsv_(Named("SaveCsv", new QPushButton(Label(kSaveCsvText)))),
      savePdf_(Named("SavePdf", new QPushButton(Label(kSavePdfText)))) {
    setObjectName("ShowCases");
    setWindowTitle(Label(kTitleText));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    FillLists();
    auto* panes = new QSplitter;
    panes->setChildrenCollapsible(false);
    panes->setHandleWidth(kGap);
    for (QWidget* pane : {ChoicePane(), ReportPane(), DifferencePane()}) panes->addWidget(pane);
    for (int pane = 0; pane < panes->count(); ++pane) {
        panes->setStretchFactor(pane, kPaneShares[pane]);
    }
    panes->setSizes(
        {kPaneShares[0] * kFarMore, kPaneShares[1] * kFarMore, kPaneShares[2] * kFarMore});
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    column->addWidget(panes, 1);
    column->addLayout(MakeButtonRow(Command2, {TAbles, Command5, savePdf_, Command1, Command3}));
    ConnectControls();
    ShowReport({});
    resize(fontMetrics().averageCharWidth() * kWindowColumns,
           fontMetrics().lineSpacing() * kWindowLines);
    slots_->setFocus();
    AssignMnemonics(*this);
    // What is marked in the main window is what the designer is about to compare.
    if (!MarkedSlotsOfList().empty()) TAbles_Click();
}

void ShowCases::FillLists() {
    for (const SavedCase& each : SavedCases()) AddMarkRow(*File1, Shown(each.file), false);
    const auto marked = SlotsMarkedAtStart();
    int place = 0;
    for (const Slot& slot : AllSlots()) {
        const bool isMarked = std::find(marked.begin(), marked.end(), slot) != marked.end();
        auto* item = AddMarkRow(*slots_, Shown(WorkingSlotCaption(slot)), isMarked);
        item->setData(kSlotRole, place++);
    }
}

QWidget* ShowCases::ChoicePane() {
    File1->setToolTip(Label(File1->count() ? kSavedTip : kNoSavedText));
    slots_->setToolTip(Label(kMarkTip));
    limit_->setWordWrap(true);
    limit_->hide();
    QSizePolicy keepsItsPlace = limit_->sizePolicy();
    keepsItsPlace.setRetainSizeWhenHidden(true);
    limit_->setSizePolicy(keepsItsPlace);
    auto* none = new QLabel(Label(kNoSavedText));
    none->setVisible(File1->count() == 0);
    QWidget* pane = PaneOf({CaptionOf(Label(kSavedText), File1), none, File1,
                            CaptionOf(Label(kWorkingText), slots_), slots_, limit_});
    static_cast<QVBoxLayout*>(pane->layout())->setStretchFactor(File1, 1);
    static_cast<QVBoxLayout*>(pane->layout())->setStretchFactor(slots_, 2);
    return pane;
}

QWidget* ShowCases::ReportPane() {
    Text2->setReadOnly(true);
    Text2->setLineWrapMode(QPlainTextEdit::NoWrap);
    Text2->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    QFont letters = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    letters.setPointSizeF(font().pointSizeF());
    Text2->setFont(letters);
    return PaneOf({CaptionOf(Label(kReportText), Text2), Text2});
}

QWidget* ShowCases::DifferencePane() {
    remark_->setWordWrap(true);
    remark_->setTextFormat(Qt::PlainText);
    QWidget* pane = PaneOf({CaptionOf(Label(kDifferTitle), differences_), remark_, differences_});
    auto* row = new QHBoxLayout;
    row->setSpacing(kGap);
    for (QPushButton* button : {copy_, saveCsv_}) {
        button->setAutoDefault(false);
        row->addWidget(button);
    }
    row->addStretch();
    static_cast<QVBoxLayout*>(pane->layout())->addLayout(row);
    return pane;
}

void ShowCases::ConnectControls() {
    TAbles->setToolTip(Label(kTablesTip));
    Command5->setToolTip(Label(kReadTip));
    Command1->setToolTip(Label(kPrintTip));
    connect(File1, &QListWidget::itemSelectionChanged, this, &ShowCases::File1_Click);
    for (QListWidget* list : {File1, slots_}) {
        connect(list, &QListWidget::itemChanged, this, &ShowCases::KeepToFour);
    }
    connect(TAbles, &QPushButton::clicked, this, &ShowCases::TAbles_Click);
    connect(Command1, &QPushButton::clicked, this, &ShowCases::Command1_Click);
    connect(Command2, &QPushButton::clicked, this, &ShowCases::Command2_Click);
    connect(Command3, &QPushButton::clicked, this, &QDialog::reject);
    connect(Command5, &QPushButton::clicked, this, &ShowCases::Command5_Click);
    connect(copy_, &QPushButton::clicked, differences_, &DataTable::Copy);
    connect(saveCsv_, &QPushButton::clicked, this, &ShowCases::SaveCsv);
    connect(savePdf_, &QPushButton::clicked, this, &ShowCases::SavePdf);
}

std::vector<std::string> ShowCases::MarkedFiles() const {
    std::vector<std::string> files;
    for (const QListWidgetItem* item : MarkedRows(*File1)) files.push_back(Typed(item->text()));
    return files;
}

std::vector<Slot> ShowCases::MarkedSlotsOfList() const {
    std::vector<Slot> marked;
    for (const QListWidgetItem* item : MarkedRows(*slots_)) {
        marked.push_back(AllSlots()[item->data(kSlotRole).toUInt()]);
    }
    return marked;
}

/// A fifth mark does not stay.
void ShowCases::KeepToFour(QListWidgetItem* changed) {
    const std::size_t marks = MarkedFiles().size() + MarkedSlotsOfList().size();
    limit_->setVisible(marks > kMostReportCases);
    if (marks <= kMostReportCases) return;
    const QSignalBlocker quiet(changed->listWidget());
    changed->setCheckState(Qt::Unchecked);
}

void ShowCases::ShowReport(const std::vector<ReportCase>& cases) {
    cases_ = cases;
    QStringList lines;
    if (!cases.empty()) {
        for (const std::string& line : MakeReport(cases)) lines.append(Shown(line));
    }
    Text2->setPlainText(lines.join('\n'));
    const ReportTable table = DifferenceTable(cases);
    differences_->Show(table);
    remark_->setText(Shown(table.remark));
    remark_->setVisible(!table.remark.empty());
    for (QPushButton* button : {copy_, saveCsv_}) button->setEnabled(!table.rows.empty());
    for (QPushButton* button : {Command1, savePdf_}) button->setEnabled(!cases.empty());
}

void ShowCases::TAbles_Click() {
    auto files = MarkedFiles();
    const auto marked = MarkedSlotsOfList();
    if (files.empty() && marked.empty()) {
        for (const QListWidgetItem* item : File1->selectedItems()) {
            files.push_back(Typed(item->text()));
        }
    }
    if (files.empty() && marked.empty()) {
        return ShowMessage(Text(kNothingChosen), Typed(windowTitle()), Icon::Information);
    }
    ShowReport(ChosenCases(files, marked));
}

void ShowCases::File1_Click() {
    const auto chosen = File1->selectedItems();
    if (!chosen.isEmpty()) ShowReport(ChosenCases({Typed(chosen.first()->text())}, {}));
}

void ShowCases::Command5_Click() {
    auto marked = MarkedSlotsOfList();
    if (marked.empty() && IsShape(session.ActiveShape)) {
        marked.push_back({session.ActiveShape, session.ActiveCaseNo});
    }
    if (marked.empty()) {
        return ShowMessage(Text(kNothingChosen), Typed(windowTitle()), Icon::Information);
    }
    ShowReport(ChosenCases({}, marked));
}

void ShowCases::Command2_Click() {
    ShowHelp(kHelpTopic);
}

void ShowCases::Command1_Click() {
    CurrentOutputs().Print(this,
                           JobOf(windowTitle(), Text2->toPlainText(), DifferenceTable(cases_)));
}

void ShowCases::SavePdf() {
    const QString path =
        CurrentOutputs().FileToSave(this, WithoutPoints(Label(kSavePdfText)), "cases", ".pdf");
    if (path.isEmpty()) return;
    SaveOutput(Typed(path),
               PdfOf(JobOf(windowTitle(), Text2->toPlainText(), DifferenceTable(cases_))));
}

void ShowCases::SaveCsv() {
    const QString path = CurrentOutputs().FileToSave(this, WithoutPoints(Label(kSaveCsvText)),
                                                     "differences", ".csv");
    if (path.isEmpty()) return;
    SaveOutput(Typed(path), QByteArray::fromStdString(TableCsv(DifferenceTable(cases_))));
}

}  // namespace verandis
