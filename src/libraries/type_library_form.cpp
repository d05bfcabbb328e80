#include "libraries/type_library_form.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <span>

#include "ui/controls.h"
#include "ui/help.h"
#include "ui/number_field.h"
#include "ui/qt_text.h"
#include "ui/theme.h"

namespace verandis {

/// A field: its control and label by name, the label's text, its unit and what it shows.
struct TypeField {
    const char* control;
    const char* labelControl;
    int label;
    const char* unit;
    std::string WindowEntry::*value;
};

/// What tells the two dialogs apart.
struct TypeLibraryLayout {
    const char* name;
    TypeKind kind;
    int title;
    int listLabel;
    std::span<const TypeField> fields;
    const char* help;  // names of the buttons
    const char* contents;
    const char* close;
    const char* cancel;
    const char* add;
    const char* remove;
    int helpTopic;
};

namespace {

enum : int {
    kHelpText = 13,
    kCancelText = 42,
    kDeleteText = 48,
    kAddText = 60,
    kWindowTypesText = 128,
    kReferencesText = 129,
    kCloseText = 155,
    kContentsText = 247,
    kReadOnlyRemark = 870,
    kReferencesRemark = 871,
    kChangesRemark = 872,
    kAddTip = 873,
    kDeleteTip = 874
};
constexpr int kContentsTopic = 11999;

constexpr TypeField kWindowFields[] = {
    {"TT", "Label2", 77, "%", &WindowEntry::TT},
    {"TR", "Label3", 78, "%", &WindowEntry::TR},
    {"TA", "Label4", 157, "%", &WindowEntry::TA},
    {"TU", "Label5", 179, "W/m\u00B2K", &WindowEntry::TU},
    {"TN", "Label6", 180, "", &WindowEntry::TN},
};
constexpr TypeField kWallFields[] = {{"TU", "Label2", 179, "W/m\u00B2K", &WindowEntry::TU}};

constexpr TypeLibraryLayout kWindowLibrary = {"ReferenceWindowsLib",
                                              TypeKind::Window,
                                              127,
                                              154,
                                              kWindowFields,
                                              "Command1",
                                              "Command6",
                                              "Command2",
                                              "Command3",
                                              "Command4",
                                              "Command5",
                                              12112};
constexpr TypeLibraryLayout kWallLibrary = {
    "OpaqueWallsLib", TypeKind::Wall, 168,        169,        kWallFields, "Command4",
    "Command6",       "Command5",     "Command3", "Command1", "Command2",  12113};

QPushButton* MakeButton(const char* name, int text) {
    auto* button = Named(name, new QPushButton(Label(text)));
    button->setAutoDefault(false);
    return button;
}

}  // namespace

TypeLibraryForm::TypeLibraryForm(const TypeLibraryLayout& layout, QWidget* parent)
    : QDialog(parent),
      layout_(layout),
      editor_(layout.kind),
      Label1(Named("Label1", new QLabel(Label(layout.listLabel)))),
      List1(Named("List1", new QListWidget)),
      remark_(Named("Remark", new QLabel)),
      help_(MakeButton(layout.help, kHelpText)),
      contents_(MakeButton(layout.contents, kContentsText)),
      close_(MakeButton(layout.close, kCloseText)),
      cancel_(MakeButton(layout.cancel, kCancelText)),
      add_(MakeButton(layout.add, kAddText)),
      delete_(MakeButton(layout.remove, kDeleteText)) {
    setObjectName(layout.name);
    setWindowTitle(Label(layout.title));
    auto* sides = new QHBoxLayout;
    sides->setSpacing(2 * kMargin);
    sides->addLayout(MakeList(), 1);
    sides->addLayout(MakeFields());
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    rows->setSpacing(kMargin);
    if (layout.kind == TypeKind::Window) rows->addLayout(MakeOptions());
    rows->addLayout(sides, 1);
    rows->addLayout(MakeButtons());
    Connect();
    Show("");
    List1->setFocus();
}

QLayout* TypeLibraryForm::MakeOptions() {
    Option1 = Named("Option1", new QRadioButton(Label(kWindowTypesText)));
    Option2 = Named("Option2", new QRadioButton(Label(kReferencesText)));
    auto* row = new QHBoxLayout;
    row->setSpacing(2 * kMargin);
    row->addWidget(Option1);
    row->addWidget(Option2);
    row->addStretch();
    return row;
}

QLayout* TypeLibraryForm::MakeList() {
    Label1->setBuddy(List1);
    List1->setAccessibleName(Label(layout_.title));
    List1->setMinimumSize(fontMetrics().averageCharWidth() * 28, fontMetrics().height() * 12);
    add_->setToolTip(Label(kAddTip));
    delete_->setToolTip(Label(kDeleteTip));
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(kGap);
    buttons->addWidget(add_);
    buttons->addWidget(delete_);
    buttons->addStretch();
    auto* column = new QVBoxLayout;
    column->setSpacing(kGap);
    column->addWidget(Label1);
    column->addWidget(List1, 1);
    column->addLayout(buttons);
    return column;
}

QLayout* TypeLibraryForm::MakeFields() {
    auto* grid = new FieldGrid;
    QPalette muted = palette();
    muted.setColor(QPalette::WindowText, TintOf(Tint::Muted, *this));
    // The figures must be read while they cannot be edited.
    muted.setColor(QPalette::Disabled, QPalette::Text, TintOf(Tint::Muted, *this));
    for (const TypeField& field : layout_.fields) {
        auto* box = Named(field.control, new NumberField);
        box->setFixedWidth(fontMetrics().averageCharWidth() * 12);
        box->setPalette(muted);
        fields_.append(box);
        grid->AddField(Label(field.label), box, field.unit);
        grid->itemAtPosition(grid->rowCount() - 1, 0)->widget()->setObjectName(field.labelControl);
    }
    remark_->setPalette(muted);
    remark_->setTextFormat(Qt::PlainText);
    remark_->setWordWrap(true);
    remark_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // Room for the longest remark, so that another one moves nothing.
    remark_->setFixedWidth(fontMetrics().averageCharWidth() * 38);
    remark_->setMinimumHeight(fontMetrics().lineSpacing() * 3);
    auto* column = new QVBoxLayout;
    column->setSpacing(kMargin);
    column->addLayout(grid);
    column->addWidget(remark_);
    column->addStretch();
    return column;
}

QLayout* TypeLibraryForm::MakeButtons() {
    QHBoxLayout* row = MakeButtonRow(help_, {close_, cancel_});
    row->insertWidget(1, contents_);
    // Enter ends a field; as it closes without storing, Close must not answer to it.
    close_->setDefault(false);
    close_->setAutoDefault(false);
    return row;
}

void TypeLibraryForm::Connect() {
    const auto onClick = [this](QAbstractButton* button, std::string (TypeEditor::*step)()) {
        if (button) connect(button, &QAbstractButton::clicked, this, [=, this] { Do(step); });
    };
    onClick(Option1, &TypeEditor::ChooseTypes);
    onClick(Option2, &TypeEditor::ChooseReferences);
    onClick(add_, &TypeEditor::Add);
    onClick(delete_, &TypeEditor::Delete);
    connect(List1, &QListWidget::currentRowChanged, this, &TypeLibraryForm::ChooseRow);
    connect(close_, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
    connect(help_, &QPushButton::clicked, this, [this] { ShowHelp(layout_.helpTopic); });
    connect(contents_, &QPushButton::clicked, this, [] { ShowHelp(kContentsTopic); });
}

void TypeLibraryForm::Do(std::string (TypeEditor::*step)()) {
    TakeEntry();
    Show((editor_.*step)());
}

void TypeLibraryForm::ChooseRow(int row) {
    if (row < 0) return;
    TakeEntry();
    Show(editor_.ChooseRow(row));
    // A press on a row goes on to mark it after this event, also when the choice was refused.
    QMetaObject::invokeMethod(this, &TypeLibraryForm::ShowRows, Qt::QueuedConnection);
}

void TypeLibraryForm::TakeEntry() {
    for (qsizetype at = 0; at < fields_.size(); ++at) {
        const TypeField& field = layout_.fields[static_cast<std::size_t>(at)];
        editor_.entry.*field.value = Typed(fields_[at]->text());
    }
}

void TypeLibraryForm::Show(const std::string& focus) {
    ShowRows();
    if (Option1) {
        (editor_.references() ? Option2 : Option1)->setChecked(true);
        // The list has its general name until one of the options is chosen.
        if (editor_.references()) Label1->setText(Label(kReferencesText));
        if (editor_.editable()) Label1->setText(Label(kWindowTypesText));
    }
    for (QPushButton* button : {cancel_, add_, delete_}) button->setEnabled(editor_.editable());
    for (qsizetype at = 0; at < fields_.size(); ++at) {
        const TypeField& field = layout_.fields[static_cast<std::size_t>(at)];
        fields_[at]->setText(Shown(editor_.entry.*field.value));
        fields_[at]->setEnabled(editor_.editable());
        if (focus != field.control) continue;
        fields_[at]->selectAll();
        fields_[at]->setFocus();
    }
    remark_->setText(Remark());
    AssignMnemonics(*this);  // again, since the list's name changes
}

void TypeLibraryForm::ShowRows() {
    const QSignalBlocker quiet(List1);
    QStringList names;
    for (const std::string& name : editor_.Names()) names.append(Shown(name));
    QStringList shown;
    for (int row = 0; row < List1->count(); ++row) shown.append(List1->item(row)->text());
    // A press on a row must find its rows still there: they are made anew only when they differ.
    if (names != shown) {
        List1->clear();
        List1->addItems(names);
    }
    List1->setCurrentRow(editor_.selected());
}

QString TypeLibraryForm::Remark() const {
    if (editor_.editable()) return Label(kChangesRemark);
    return Label(editor_.references() ? kReferencesRemark : kReadOnlyRemark);
}

ReferenceWindowsLib::ReferenceWindowsLib(QWidget* parent)
    : TypeLibraryForm(kWindowLibrary, parent) {}

OpaqueWallsLib::OpaqueWallsLib(QWidget* parent) : TypeLibraryForm(kWallLibrary, parent) {}

}  // namespace verandis
