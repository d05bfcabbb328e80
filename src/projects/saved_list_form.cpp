#include "projects/saved_list_form.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>

#include "app/case_changes.h"
#include "app/program_text.h"
#include "projects/saved_cases.h"
#include "projects/saved_target_form.h"
#include "ui/controls.h"
#include "ui/help.h"
#include "ui/qt_text.h"
#include "ui/theme.h"

namespace verandis {
namespace {

enum : int {
    kHelpText = 13,
    kDeleteText = 48,
    kNoteText = 50,
    kCloseText = 155,
    kLoadTitle = 531,
    kDeleteTitle = 533,
    kCopyTitle = 581,
    kListTitle = 582,
    kLoadedText = 904,
    kSetText = 908,
    kSlotText = 909,
    kListText = 980,
    kEmptyRemark = 981,
    kLoadTip = 982,
    kDeleteTip = 983,
    kCopyTip = 984,
    kLoadText = 985,
    kLoadElsewhereText = 986,
    kCopyText = 987,
    kCopyElsewhereText = 988,
    kDeletedText = 992,
    kCopiedText = 993
};

constexpr QSize kListSize(88, 11);  // average characters, lines: room for a whole note
constexpr QSize kLeastList(44, 6);
constexpr int kFileRole = Qt::UserRole;

std::string Told(int text, const std::string& file) {
    return Text(text) + " " + file;
}

std::string LoadedWords(const std::string& file) {
    TellCaseChanged(true);
    return Told(kLoadedText, file);
}

std::string Load(const std::string& file) {
    return LoadSavedCase(file) ? LoadedWords(file) : "";
}

/// Asks for the slot. The file that results, empty after a cancel.
std::string AskTarget(const std::string& file, TargetUse use, QWidget* parent) {
    TargetFile dialog(parent);
    dialog.Ask(file, use);
    return dialog.exec() == QDialog::Accepted ? dialog.Target() : "";
}

std::string LoadElsewhere(const std::string& file, QWidget* parent) {
    const std::string target = AskTarget(file, TargetUse::Load, parent);
    if (target.empty()) return "";
    return LoadedWords(file) + " - " + SlotCaption(SavedCaseOf(target).slot);
}

std::string Delete(const std::string& file) {
    return DeleteSavedCase(file) ? Told(kDeletedText, file) : "";
}

std::string Copy(const std::string& file) {
    const auto copy = CopySavedCase(file);
    return copy ? Told(kCopiedText, *copy) : "";
}

std::string CopyElsewhere(const std::string& file, QWidget* parent) {
    const std::string target = AskTarget(file, TargetUse::Copy, parent);
    return target.empty() ? "" : Told(kCopiedText, target);
}

constexpr SavedListFacts kLoadCases = {
    .window = "LoadCases",
    .title = kLoadTitle,
    .listTip = kLoadTip,
    .closeName = "Command2",
    .helpName = "Command1",
    .helpTopic = 13031,
    .act = Load,
    .actName = "Command3",
    .actText = kLoadText,
    .actElsewhere = LoadElsewhere,
    .elsewhereText = kLoadElsewhereText,
};

constexpr SavedListFacts kDeleteCases = {
    .window = "DeleteCases",
    .title = kDeleteTitle,
    .listTip = kDeleteTip,
    .closeName = "Command3",
    .helpName = "Command1",
    .helpTopic = 13032,
    .act = Delete,
    .actName = "Command2",
    .actText = kDeleteText,
    .actOnDelete = true,
};

constexpr SavedListFacts kCopyCaseInLib = {
    .window = "CopyCaseInLib",
    .title = kCopyTitle,
    .listTip = kCopyTip,
    .closeName = "Command2",
    .helpName = "Command3",
    .helpTopic = 13033,
    .act = Copy,
    .actName = "Command1",
    .actText = kCopyText,
    .actOnClick = true,
    .actElsewhere = CopyElsewhere,
    .elsewhereText = kCopyElsewhereText,
};

constexpr SavedListFacts kListOfSavedCases = {
    .window = "LIstOfSavedCases",
    .title = kListTitle,
    .listTip = 0,
    .closeName = "Command2",
    .helpName = "Command1",
    .helpTopic = 13030,
};

/// A list that tells calmly why it is empty.
class RemarkTree : public QTreeWidget {
public:
    QSize sizeHint() const override { return InText(kListSize); }
    QSize minimumSizeHint() const override { return InText(kLeastList); }

protected:
    void paintEvent(QPaintEvent* event) override {
        QTreeWidget::paintEvent(event);
        if (topLevelItemCount() > 0) return;
        QPainter painter(viewport());
        painter.setPen(TintOf(Tint::Muted, *this));
        painter.drawText(viewport()->rect().adjusted(kGap, kGap, -kGap, -kGap),
                         Qt::AlignCenter | Qt::TextWordWrap, Label(kEmptyRemark));
    }

private:
    QSize InText(const QSize& size) const {
        return {fontMetrics().averageCharWidth() * size.width(),
                fontMetrics().lineSpacing() * size.height()};
    }
};

QPushButton* MakeButton(const char* name, int text) {
    return Named(name, new QPushButton(Label(text)));
}

}  // namespace

QString TitleFromEntry(int text) {
    QString title = Label(text);
    while (title.endsWith('.')) title.chop(1);
    return title;
}

SavedList::SavedList(const SavedListFacts& facts, QWidget* parent)
    : QDialog(parent),
      facts_(facts),
      File1(Named("File1", new RemarkTree)),
      Done(Named("Done", new QLabel)),
      close_(MakeButton(facts.closeName, kCloseText)),
      help_(MakeButton(facts.helpName, kHelpText)) {
    setObjectName(QString::fromLatin1(facts.window));
    setWindowTitle(TitleFromEntry(facts.title));
    setModal(true);
    if (facts.act) act_ = MakeButton(facts.actName, facts.actText);
    if (facts.actElsewhere) elsewhere_ = MakeButton("Command4", facts.elsewhereText);
    Build();
    Connect();
    ReadRows();
    AssignMnemonics(*this);
}

void SavedList::Build() {
    auto* caption = new QLabel(Label(kListText));
    caption->setBuddy(File1);
    File1->setAccessibleName(caption->text());
    File1->setHeaderLabels({Label(kSetText), Label(kSlotText), Label(kNoteText)});
    File1->setRootIsDecorated(false);
    File1->setUniformRowHeights(true);
    File1->setAllColumnsShowFocus(true);
    File1->header()->setSectionsMovable(false);
    if (facts_.listTip) File1->setToolTip(Label(facts_.listTip));
    Done->setTextFormat(Qt::PlainText);
    Done->setWordWrap(true);

    QList<QPushButton*> buttons;
    for (QPushButton* button : {act_, elsewhere_, close_}) {
        if (button) buttons.append(button);
    }
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    column->addWidget(caption);
    column->addWidget(File1, 1);
    column->addWidget(Done);
    column->addLayout(MakeButtonRow(help_, buttons));
    File1->setFocus();
}

void SavedList::Connect() {
    connect(help_, &QPushButton::clicked, this, [this] { ShowHelp(facts_.helpTopic); });
    connect(close_, &QPushButton::clicked, this, &QDialog::reject);
    if (!act_) return;
    connect(act_, &QPushButton::clicked, this, &SavedList::Act);
    if (elsewhere_) connect(elsewhere_, &QPushButton::clicked, this, &SavedList::ActElsewhere);
    connect(File1, &QTreeWidget::itemSelectionChanged, this, [this] {
        act_->setEnabled(!ChosenFile().empty());
        if (elsewhere_) elsewhere_->setEnabled(act_->isEnabled());
    });
    // Enter in the list is a press on the default button.
    connect(File1, facts_.actOnClick ? &QTreeWidget::itemClicked : &QTreeWidget::itemDoubleClicked,
            this, &SavedList::Act);
    if (facts_.actOnDelete) File1->installEventFilter(this);
}

bool SavedList::eventFilter(QObject* watched, QEvent* event) {
    const bool deletes = event->type() == QEvent::KeyPress &&
                         static_cast<QKeyEvent*>(event)->matches(QKeySequence::Delete);
    if (deletes) Act();
    return deletes || QDialog::eventFilter(watched, event);
}

/// Reads the list anew; the choice stays on its file, else on its place. At first it is the first.
void SavedList::ReadRows() {
    const std::string chosen = ChosenFile();
    const int place = File1->indexOfTopLevelItem(File1->currentItem());
    const auto rows = SavedCaseRows();
    File1->clear();
    for (const SavedCaseRow& row : rows) {
        auto* item = new QTreeWidgetItem({Shown(row.set), Shown(row.slot), Shown(row.note)});
        item->setData(0, kFileRole, Shown(row.file));
        File1->addTopLevelItem(item);
        if (row.file == chosen) File1->setCurrentItem(item);
    }
    for (int at = 0; at + 1 < File1->columnCount(); ++at) File1->resizeColumnToContents(at);
    File1->setHeaderHidden(rows.empty());
    File1->setAccessibleDescription(rows.empty() ? Label(kEmptyRemark) : File1->toolTip());
    if (ChosenFile().empty() && !rows.empty()) {
        const int last = File1->topLevelItemCount() - 1;
        File1->setCurrentItem(File1->topLevelItem(std::clamp(place, 0, last)));
    }
    const bool any = !ChosenFile().empty();
    for (QPushButton* button : {act_, elsewhere_}) {
        if (button) button->setEnabled(any);
    }
}

std::string SavedList::ChosenFile() const {
    const auto selected = File1->selectedItems();
    return selected.isEmpty() ? "" : Typed(selected.first()->data(0, kFileRole).toString());
}

void SavedList::ShowDone(const std::string& words) {
    Done->setText(Shown(words));
    ReadRows();
}

void SavedList::Act() {
    const std::string file = ChosenFile();
    if (!file.empty()) ShowDone(facts_.act(file));
}

void SavedList::ActElsewhere() {
    const std::string file = ChosenFile();
    if (!file.empty()) ShowDone(facts_.actElsewhere(file, this));
}

LoadCases::LoadCases(QWidget* parent) : SavedList(kLoadCases, parent) {}
DeleteCases::DeleteCases(QWidget* parent) : SavedList(kDeleteCases, parent) {}
CopyCaseInLib::CopyCaseInLib(QWidget* parent) : SavedList(kCopyCaseInLib, parent) {}
LIstOfSavedCases::LIstOfSavedCases(QWidget* parent) : SavedList(kListOfSavedCases, parent) {}

}  // namespace verandis
