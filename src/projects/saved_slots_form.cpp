#include "projects/saved_slots_form.h"

#include <QSize>
#include <QVBoxLayout>

#include "projects/saved_cases.h"
#include "projects/saved_list_form.h"
#include "ui/controls.h"
#include "ui/help.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

enum : int {
    kHelpText = 13,
    kCloseText = 155,
    kCaseText = 196,
    kTitle = 530,
    kNoSuchSlot = 564,
    kMarkAllText = 989,
    kClearAllText = 990,
    kSaveText = 991
};

constexpr int kHelpTopic = 13030;
constexpr QSize kDoneSize(46, 3);  // average characters, lines: what the longest words need

QPushButton* MakeButton(const char* name, int text) {
    return Named(name, new QPushButton(Label(text)));
}

}  // namespace

SaveCases::SaveCases(QWidget* parent)
    : QDialog(parent),
      Done(Named("Done", new QLabel)),
      Command1(MakeButton("Command1", kMarkAllText)),
      Command2(MakeButton("Command2", kHelpText)),
      Command3(MakeButton("Command3", kCloseText)),
      Command4(MakeButton("Command4", kClearAllText)),
      Command5(MakeButton("Command5", kSaveText)) {
    setObjectName("SaveCases");
    setWindowTitle(TitleFromEntry(kTitle));
    setModal(true);
    Build();
    connect(Command1, &QPushButton::clicked, this, [this] { MarkAll(true); });
    connect(Command2, &QPushButton::clicked, this, [] { ShowHelp(kHelpTopic); });
    connect(Command3, &QPushButton::clicked, this, &QDialog::reject);
    connect(Command4, &QPushButton::clicked, this, [this] { MarkAll(false); });
    connect(Command5, &QPushButton::clicked, this, &SaveCases::Command5_Click);
    FollowMarks();
    AssignMnemonics(*this);
}

QCheckBox* SaveCases::MakeBox(const Slot& slot) {
    auto* box = new QCheckBox;
    const auto shape = static_cast<std::size_t>(slot.shape);
    const auto caseNo = static_cast<std::size_t>(slot.caseNo);
    box->setAccessibleName(Shown(SlotCaption(slot)));
    const bool there = ProjectHasSlot(slot);
    box->setEnabled(there);
    box->setChecked(there && session.ChkCase[shape][caseNo]);
    const QString note = there ? Shown(NoteOfSlot(slot)) : Label(kNoSuchSlot);
    const QString tip = note.isEmpty() ? box->accessibleName() : note;
    box->setToolTip(QString("<span>%1</span>").arg(tip.toHtmlEscaped()));  // a note may hold "<"
    box->setAccessibleDescription(note);
    connect(box, &QCheckBox::toggled, this, &SaveCases::FollowMarks);
    return box;
}

QGridLayout* SaveCases::BuildBoxes() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(kMargin);
    grid->setVerticalSpacing(kGap);
    for (int caseNo = 1; caseNo <= kCasesPerShape; ++caseNo) {
        auto* head = new QLabel(QString("%1 %2").arg(Label(kCaseText)).arg(caseNo));
        grid->addWidget(head, 0, caseNo, Qt::AlignHCenter);
        grid->setColumnStretch(caseNo, 1);
    }
    for (int shape = 1; shape <= kShapeCount; ++shape) {
        grid->addWidget(new QLabel(Label(WordsOf(shape).textNumber)), shape, 0);
    }
    int number = 0;
    for (const Slot& slot : AllSlots()) {
        QCheckBox* box = MakeBox(slot);
        boxes_[static_cast<std::size_t>(number)] = box;
        box->setObjectName(IndexedName("Check1", ++number));
        grid->addWidget(box, slot.shape, slot.caseNo, Qt::AlignHCenter);
    }
    return grid;
}

void SaveCases::Build() {
    Done->setTextFormat(Qt::PlainText);
    Done->setWordWrap(true);
    Done->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    Done->setMinimumSize(fontMetrics().averageCharWidth() * kDoneSize.width(),
                         fontMetrics().lineSpacing() * kDoneSize.height());
    auto* marks = new QHBoxLayout;
    marks->setSpacing(kGap);
    for (QPushButton* button : {Command1, Command4}) {
        button->setAutoDefault(false);
        marks->addWidget(button);
    }
    marks->addStretch();

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kMargin);
    column->addLayout(BuildBoxes());
    column->addLayout(marks);
    column->addWidget(Done);
    column->addStretch();
    column->addLayout(MakeButtonRow(Command2, {Command5, Command3}));
}

void SaveCases::MarkAll(bool marked) {
    for (QCheckBox* box : boxes_) box->setChecked(marked && box->isEnabled());
}

std::vector<Slot> SaveCases::Marked() const {
    std::vector<Slot> marked;
    for (std::size_t at = 0; at < boxes_.size(); ++at) {
        if (boxes_[at]->isChecked()) marked.push_back(AllSlots()[at]);
    }
    return marked;
}

void SaveCases::FollowMarks() {
    Command5->setEnabled(!Marked().empty());
}

void SaveCases::Command5_Click() {
    Done->setText(Shown(SaveUnderAskedName(Marked())));
}

}  // namespace verandis
