#include "app/slot_header_form.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "case/property_file.h"
#include "case/shapes.h"
#include "platform/files.h"
#include "projects/slot_activation.h"
#include "text/separators.h"
#include "ui/controls.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

enum : int {
    kCaseWord = 196,
    kClimateWord = 242,
    kNoteWord = 50,
    kActiveCase = 554,
    kNoteCommand = 516,
    kDataCommand = 515,
    kActiveTip = 578
};

constexpr double kTitleSize = 1.35;  // of the text size

/// Silent: a case need not have such a file.
std::string PropertyOrNothing(const char* section, const char* key) {
    if (session.CaseName.empty() || !FileExists(PropertyFilePath())) return {};
    std::string value;
    GetCaseProperty(section, key, value);
    return value == kNotSet ? std::string() : value;
}

/// "GOTEBORG" of "GOTEBORG_1".
QString Place() {
    return Shown(LeftOfSeparator(PropertyOrNothing("CLIMATE", "FILE"), "_"));
}

}  // namespace

SlotHeader::SlotHeader(QWidget* parent)
    : QWidget(parent),
      title_(Named("ActiveSlot", new QLabel)),
      facts_(Named("SlotFacts", new QLabel)),
      caseWord_(new QLabel),
      note_(Named("EditNote", new QPushButton)),
      data_(Named("EditData", new QPushButton)) {
    for (QLabel* label : {title_, facts_}) label->setTextFormat(Qt::PlainText);
    facts_->installEventFilter(this);
    facts_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * kTitleSize);
    large.setBold(true);
    title_->setFont(large);
    auto* upper = new QHBoxLayout;
    upper->setSpacing(kGap);
    upper->addWidget(title_, 1);
    upper->addWidget(data_);
    upper->addWidget(note_);
    auto* lower = new QHBoxLayout;
    lower->setSpacing(kGap);
    lower->addWidget(facts_, 1);
    lower->addWidget(caseWord_);
    for (int caseNo = 1; caseNo <= kCasesPerShape; ++caseNo) {
        auto* option = new QRadioButton(QString::number(caseNo));
        option->setObjectName(QString("ActiveCase%1").arg(caseNo));
        connect(option, &QRadioButton::clicked, this, [this, caseNo] { emit CaseChosen(caseNo); });
        lower->addWidget(option);
        options_[static_cast<std::size_t>(caseNo - 1)] = option;
    }
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kTightGap);
    column->addLayout(upper);
    column->addLayout(lower);
    connect(note_, &QPushButton::clicked, this, &SlotHeader::NotePressed);
    connect(data_, &QPushButton::clicked, this, &SlotHeader::DataPressed);
}

void SlotHeader::TakeTexts() {
    caseWord_->setText(Label(kActiveCase));
    note_->setText(Label(kNoteCommand));
    data_->setText(Label(kDataCommand));
    for (QRadioButton* option : options_) {
        option->setToolTip(Label(kActiveTip));
        option->setAccessibleName(QString("%1 %2").arg(Label(kActiveCase), option->text()));
    }
}

/// The slot in words; the name of an open case that is no slot.
QString SlotHeader::Title() const {
    if (!EditedSlotIsOpen()) return Shown(session.CaseName);
    const QString word = Label(WordsOf(session.ActiveShape).textNumber);
    const QString caseWord = Label(kCaseWord).toLower();
    return QString("%1, %2 %3").arg(word, caseWord).arg(session.ActiveCaseNo);
}

void SlotHeader::Refresh() {
    const bool hasData = FileExists(PropertyFilePath()) && !session.CaseName.empty();
    note_->setEnabled(hasData);
    data_->setEnabled(hasData && EditedSlotIsOpen());
    title_->setText(Title());
    QStringList facts;
    if (const QString place = Place(); !place.isEmpty()) {
        facts.append(QString("%1: %2").arg(Label(kClimateWord), place));
    }
    if (const auto note = PropertyOrNothing("CASE", "NOTE"); !note.empty()) {
        facts.append(QString("%1: %2").arg(Label(kNoteWord), Shown(note)));
    }
    factText_ = facts.join("   ");
    ShowFacts();
}

/// One line; what does not fit is in the tool tip.
void SlotHeader::ShowFacts() {
    facts_->setText(facts_->fontMetrics().elidedText(factText_, Qt::ElideRight, facts_->width()));
    facts_->setToolTip(factText_.toHtmlEscaped());
}

bool SlotHeader::eventFilter(QObject* watched, QEvent* event) {
    if (watched == facts_ && event->type() == QEvent::Resize) ShowFacts();
    return QWidget::eventFilter(watched, event);
}

void SlotHeader::SetActiveCase(int caseNo) {
    options_[static_cast<std::size_t>(caseNo - 1)]->setChecked(true);
}

}  // namespace verandis
