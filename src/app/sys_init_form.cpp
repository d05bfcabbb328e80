#include "app/sys_init_form.h"

#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include "app/folder_browser_form.h"
#include "ui/help.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

constexpr int kHelpTopic = 13013;
constexpr std::array<const char*, 2> kLanguages = {"1", "2"};

/// A caption that also stands before there is a catalogue.
QString Caption(int text, const char* builtIn) {
    return Shown(TextOr(text, builtIn));
}

QLabel* Remark(const QString& text) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

void Fill(QComboBox& list, const std::vector<std::string>& rows, int current) {
    for (const std::string& row : rows) list.addItem(Shown(row));
    list.setCurrentIndex(current);
}

}  // namespace

SysInit::SysInit(QWidget* parent)
    : QDialog(parent),
      SysPath(Named("SysPath", new QLineEdit)),
      LocalPath(Named("LocalPath", new QLineEdit)),
      Lan_Comb(Named("Lan_Comb", new QComboBox)),
      Combo1(Named("Combo1", new QComboBox)),
      decimalSign_(Named("DecimalSign", new QComboBox)),
      progress_(Named("CopyProgress", new QProgressBar)),
      Command1(Named("Command1", new QPushButton(Caption(246, "OK")))),
      Command2(Named("Command2", new QPushButton(Caption(42, "Cancel")))),
      Command3(Named("Command3", new QPushButton(Caption(13, "Help")))) {
    setObjectName("SysInit");
    setWindowTitle(Caption(245, "System settings"));
    setModal(true);
    PrepareProgress();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    if (IsFirstStart()) {
        column->addWidget(Remark(Caption(667,
                                         "Choose where the program keeps its data. A folder that "
                                         "is missing is created.")));
    }
    auto* grid = new FieldGrid;
    AddPath(*grid, Caption(431, "Folder of the data"), SysPath,
            new FolderBrowser(SysPath, "Drive3", "Dir2"));
    AddPath(*grid, Caption(432, "Own working folder"), LocalPath,
            new FolderBrowser(LocalPath, "Drive2", "Dir3"));
    AddLanguage(*grid);
    grid->AddField(Caption(436, "Accuracy of the temperature calculation"), Combo1);
    grid->AddField(Caption(438, "Decimal sign"), decimalSign_);
    column->addLayout(grid);
    column->addWidget(progress_);
    column->addStretch();
    column->addLayout(ButtonLine());
    FillLists();
    AssignMnemonics(*this);
}

void SysInit::PrepareProgress() {
    // The bar appears while no event can run: its place is kept from the first.
    QSizePolicy keepsItsPlace = progress_->sizePolicy();
    keepsItsPlace.setRetainSizeWhenHidden(true);
    progress_->setSizePolicy(keepsItsPlace);
    progress_->setFormat(Caption(442, "The data are being copied") + "  %p %");
    progress_->hide();
}

void SysInit::AddPath(FieldGrid& grid, const QString& caption, QLineEdit* field, QWidget* browser) {
    field->setMinimumWidth(fontMetrics().averageCharWidth() * kLongestSystemPath);
    grid.AddField(caption, field);
    auto* browse = Named(qPrintable("Browse" + field->objectName()), new QToolButton);
    browse->setText(Caption(666, "Browse"));
    browse->setAccessibleName(browse->text() + ": " + caption);
    browse->setCheckable(true);
    browse->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    browse->setArrowType(Qt::RightArrow);
    grid.addWidget(browse, grid.rowCount() - 1, 2);
    browser->hide();
    grid.addWidget(browser, grid.rowCount(), 1);
    connect(browse, &QToolButton::toggled, this, [=, this](bool open) {
        browse->setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
        browser->setVisible(open);
        if (!open) adjustSize();
    });
}

void SysInit::AddLanguage(FieldGrid& grid) {
    grid.AddField(Caption(433, "Language"), Lan_Comb);
    const int row = grid.rowCount() - 1;
    Named("Language", grid.itemAtPosition(row, 0)->widget());
    if (IsFirstStart()) return;
    Lan_Comb->setToolTip(Caption(668, "The language holds from the next start."));
    QLabel* remark = Remark(Lan_Comb->toolTip());
    remark->setForegroundRole(QPalette::PlaceholderText);
    grid.addWidget(remark, row + 1, 1);
}

QLayout* SysInit::ButtonLine() {
    Command1->setDefault(true);
    connect(Command1, &QPushButton::clicked, this, &SysInit::accept);
    connect(Command2, &QPushButton::clicked, this, &QDialog::reject);
    connect(Command3, &QPushButton::clicked, this, [] { ShowHelp(kHelpTopic); });
    auto* line = new QHBoxLayout;
    line->setSpacing(kGap);
    line->addWidget(Command3);
    line->addStretch();
    line->addWidget(Command1);
    line->addWidget(Command2);
    return line;
}

void SysInit::FillLists() {
    const Settings settings = ProposedSettings();
    SysPath->setText(Shown(settings.SystemPath));
    LocalPath->setText(Shown(settings.LocalPath));
    Fill(*Lan_Comb, {TextOr(434, "Svenska"), TextOr(435, "English")},
         settings.Language == kLanguages[0] ? 0 : 1);
    Fill(*Combo1, AccuracyRows(), RowOf(kAccuracyLevels, settings.AccuracyLevelTL));
    Fill(*decimalSign_, DecimalRows(), RowOf(kDecimalSigns, settings.Regional));
}

Settings SysInit::Values() const {
    const auto at = [](const std::array<const char*, 2>& values, const QComboBox* list) {
        return values[static_cast<std::size_t>(list->currentIndex())];
    };
    return {Typed(SysPath->text()), Typed(LocalPath->text()), at(kAccuracyLevels, Combo1),
            at(kLanguages, Lan_Comb), at(kDecimalSigns, decimalSign_)};
}

void SysInit::ShowProgress(int done, int all) {
    progress_->setMaximum(all);
    progress_->setValue(done);
    progress_->show();
    progress_->repaint();  // at once: no event runs while the files are copied
}

void SysInit::accept() {
    outcome_ = AcceptSettings(Values(), [this](int done, int all) { ShowProgress(done, all); });
    progress_->hide();
    if (outcome_.stored) return QDialog::accept();
    QLineEdit* field = outcome_.fault == SettingsField::LocalPath ? LocalPath : SysPath;
    field->setFocus();
    field->selectAll();
}

}  // namespace verandis
