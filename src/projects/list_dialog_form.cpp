#include "projects/list_dialog_form.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include "app/session.h"
#include "projects/case_list.h"
#include "projects/project_list.h"
#include "text/characters.h"
#include "ui/controls.h"
#include "ui/qt_text.h"
#include "ui/theme.h"

namespace verandis::forms {
namespace {

enum : int {
    kCancelText = 42,
    kTitleText = 745,
    kProjectsText = 741,
    kCasesText = 746,
    kNoProjects = 747,
    kNoCases = 748,
    kNoProjectOpen = 749,
    kTitleTip = 752
};

constexpr int kListColumns = 56;  // average characters
constexpr int kListLines = 9;

/// A list that tells calmly why it is empty.
class RemarkList : public QListWidget {
public:
    explicit RemarkList(const QString& remark) : remark_(remark) {}

protected:
    void paintEvent(QPaintEvent* event) override {
        QListWidget::paintEvent(event);
        if (count() > 0) return;
        QPainter painter(viewport());
        painter.setPen(TintOf(Tint::Muted, *this));
        painter.drawText(viewport()->rect().adjusted(kGap, kGap, -kGap, -kGap),
                         Qt::AlignCenter | Qt::TextWordWrap, remark_);
    }

private:
    QString remark_;
};

bool OfProjects(const ListDialogFacts& facts) {
    return facts.kind == ListKind::Projects;
}

QString CaptionOf(const ListDialogFacts& facts) {
    QString caption = Label(facts.caption);
    while (caption.endsWith('.')) caption.chop(1);
    return caption;
}

QString RemarkOf(const ListDialogFacts& facts) {
    if (OfProjects(facts)) return Label(kNoProjects);
    return Label(session.ProjectFolder.empty() ? kNoProjectOpen : kNoCases);
}

std::string OpenName(const ListDialogFacts& facts) {
    return OfProjects(facts) ? session.ProjectName : session.CaseName;
}

}  // namespace

ListDialog::ListDialog(const ListDialogFacts& facts, QWidget* parent)
    : QDialog(parent),
      facts_(facts),
      list_(Named(OfProjects(facts) ? "ProjectList" : "CaseList", new RemarkList(RemarkOf(facts)))),
      Command1(Named("Command1", new QPushButton(Label(facts.acceptText)))),
      Command2(Named("Command2", new QPushButton(Label(kCancelText)))) {
    setObjectName(QString::fromLatin1(facts.window));
    setWindowTitle(CaptionOf(facts));
    ReadRows();
    Build();
    Connect();
    ChooseOpenRow();
    Command1->setEnabled(MayAccept());
    AssignMnemonics(*this);
}

void ListDialog::ReadRows() {
    if (OfProjects(facts_)) {
        for (const ProjectRow& row : ReadProjects()) {
            rows_.push_back({row.name, row.path});
            list_->addItem(Shown(ProjectListRow(row)));
        }
    } else if (!session.ProjectFolder.empty()) {
        for (const CaseRow& row : ReadCases()) {
            rows_.push_back({row.name, row.title});
            list_->addItem(Shown(CaseListRow(row)));
        }
    }
}

void ListDialog::Build() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);

    auto* caption = new QLabel(Label(OfProjects(facts_) ? kProjectsText : kCasesText));
    caption->setBuddy(list_);
    list_->setAccessibleName(caption->text());
    list_->setAccessibleDescription(rows_.empty() ? RemarkOf(facts_) : Label(facts_.listTip));
    list_->setToolTip(Label(facts_.listTip));
    list_->setMinimumSize(fontMetrics().averageCharWidth() * kListColumns,
                          fontMetrics().lineSpacing() * kListLines);
    if (facts_.use == RowUse::Shown) list_->setSelectionMode(QAbstractItemView::NoSelection);
    column->addWidget(caption);
    column->addWidget(list_, 1);

    auto* fields = new FieldGrid;
    if (facts_.nameField) {
        name_ = Named(facts_.nameField, new QLineEdit);
        name_->setToolTip(Label(facts_.nameTip));
        fields->AddField(Label(facts_.nameLabel), name_);
    }
    if (facts_.hasTitle) {
        title_ = Named("CaseTitle", new QLineEdit);
        title_->setToolTip(Label(kTitleTip));
        fields->AddField(Label(kTitleText), title_);
    }
    column->addLayout(fields);

    column->addLayout(MakeButtonRow(nullptr, {Command1, Command2}));
    (name_ ? static_cast<QWidget*>(name_) : list_)->setFocus();
}

void ListDialog::Connect() {
    connect(Command1, &QPushButton::clicked, this, &ListDialog::accept);
    connect(Command2, &QPushButton::clicked, this, &QDialog::reject);
    connect(list_, &QListWidget::itemSelectionChanged, this, &ListDialog::TakeRow);
    switch (facts_.use) {
        case RowUse::Shown: break;
        case RowUse::AskedAtOnce:
            connect(list_, &QListWidget::itemClicked, this, &ListDialog::accept);
            list_->installEventFilter(this);
            break;
        case RowUse::Needed:
        case RowUse::OpenOne:
            connect(list_, &QListWidget::itemDoubleClicked, this, &ListDialog::accept);
            break;
    }
}

/// The open project or case is the likely choice, except where a choice is a deletion.
void ListDialog::ChooseOpenRow() {
    if (facts_.use == RowUse::Shown || facts_.use == RowUse::AskedAtOnce) return;
    const std::string open = OpenName(facts_);
    for (std::size_t at = 0; at < rows_.size(); ++at) {
        if (!open.empty() && EqualNoCase(rows_[at].name, open)) {
            list_->setCurrentRow(static_cast<int>(at));
        }
    }
}

void ListDialog::TakeRow() {
    Command1->setEnabled(MayAccept());
    if (!facts_.namePrefilled || list_->selectedItems().isEmpty()) return;
    const ListRow row = ChosenRow();
    name_->setText(Shown(row.name));
    name_->selectAll();
    if (title_) title_->setText(Shown(row.detail));
}

bool ListDialog::MayAccept() const {
    const bool chosen = !list_->selectedItems().isEmpty();
    switch (facts_.use) {
        case RowUse::Shown: return OfProjects(facts_) || !session.ProjectFolder.empty();
        case RowUse::Needed:
        case RowUse::AskedAtOnce: return chosen;
        // Without anything to choose, the press tells what is missing.
        case RowUse::OpenOne: return chosen || rows_.empty() || OpenName(facts_).empty();
    }
    return false;
}

ListRow ListDialog::ChosenRow() const {
    const auto selected = list_->selectedItems();
    if (!selected.isEmpty()) return rows_[static_cast<std::size_t>(list_->row(selected.first()))];
    return {OpenName(facts_), OfProjects(facts_) ? "" : session.CaseTitle};
}

bool ListDialog::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Delete) {
            accept();
            return true;
        }
    }
    return QDialog::eventFilter(object, event);
}

void ListDialog::accept() {
    if (!MayAccept()) return;
    const std::string name = name_ ? Typed(name_->text()) : "";
    const std::string title = title_ ? Typed(title_->text()) : "";
    if (facts_.accept(ChosenRow(), name, title)) return QDialog::accept();
    if (!name_) return;
    name_->setFocus();
    name_->selectAll();
}

}  // namespace verandis::forms
