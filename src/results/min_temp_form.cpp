#include "results/min_temp_form.h"

#include <QVBoxLayout>

#include "platform/clock.h"
#include "platform/files.h"
#include "platform/prompts.h"
#include "results/report_pages_form.h"
#include "ui/controls.h"
#include "ui/output.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

enum : int {
    kCloseText = 155,
    kPrintText = 181,
    kBuildingText = 201,
    kOutdoorText = 278,
    kCannotWriteText = 608,
    kSaveText = 636,
    kTitleText = 644,
    kColumnTip = 649,
    kPrintTip = 679
};

constexpr int kTableColumns = 130;  // average characters
constexpr int kTableLines = 18;

}  // namespace

BMinTemp::BMinTemp(QWidget* parent)
    : QDialog(parent),
      table_(Named("Table", new DataTable)),
      CheckBuilding(Named("CheckBuilding", new QCheckBox(Label(kBuildingText)))),
      CheckOutdoor(Named("CheckOutdoor", new QCheckBox(Label(kOutdoorText)))),
      PCMT(Named("PCMT", new QPushButton(Label(kPrintText)))),
      save_(Named("SaveCsv", new QPushButton(Label(kSaveText)))),
      Command2(Named("Command2", new QPushButton(Label(kCloseText)))) {
    setObjectName("BMinTemp");
    setWindowTitle(Label(kTitleText));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    const ReportTable table = MinTempTable({});
    table_->Show(table);
    table_->setAccessibleName(Label(kTitleText));
    table_->setMinimumHeight(fontMetrics().lineSpacing() * kTableLines / 2);
    auto* boxes = new QHBoxLayout;
    boxes->setSpacing(kMargin);
    for (QCheckBox* box : {CheckBuilding, CheckOutdoor}) {
        box->setChecked(true);
        box->setToolTip(Label(kColumnTip) + " " + box->text().toLower());
        boxes->addWidget(box);
    }
    boxes->addStretch();
    auto* remark = new QLabel(Shown(table.remark));
    remark->setTextFormat(Qt::PlainText);
    remark->setWordWrap(true);
    remark->setVisible(!table.remark.empty());
    PCMT->setToolTip(Label(kPrintTip));
    PCMT->setEnabled(!table.rows.empty());
    save_->setEnabled(!table.rows.empty());
    connect(CheckBuilding, &QCheckBox::clicked, this, &BMinTemp::CheckBuilding_Click);
    connect(CheckOutdoor, &QCheckBox::clicked, this, &BMinTemp::CheckOutdoor_Click);
    connect(PCMT, &QPushButton::clicked, this, &BMinTemp::PCMT_Click);
    connect(save_, &QPushButton::clicked, this, &BMinTemp::Save);
    connect(Command2, &QPushButton::clicked, this, &QDialog::reject);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    column->addLayout(boxes);
    column->addWidget(table_, 1);
    column->addWidget(remark);
    column->addLayout(MakeButtonRow(nullptr, {PCMT, save_, Command2}));
    resize(fontMetrics().averageCharWidth() * kTableColumns,
           fontMetrics().lineSpacing() * kTableLines * 2);
    AssignMnemonics(*this);
}

MinTempColumns BMinTemp::Wanted() const {
    return {CheckBuilding->isChecked(), CheckOutdoor->isChecked()};
}

void BMinTemp::CheckBuilding_Click() {
    if (table_->columnCount()) table_->setColumnHidden(kBuildingColumn, !Wanted().building);
}

void BMinTemp::CheckOutdoor_Click() {
    if (table_->columnCount()) table_->setColumnHidden(kOutdoorColumn, !Wanted().outdoor);
}

void BMinTemp::PCMT_Click() {
    const QString foot = Shown(std::string(kProgramTitle) + "  " + CurrentClock().Date());
    CurrentOutputs().Print(this,
                           {windowTitle(), QPageLayout::Portrait, [&](QPagedPaintDevice& device) {
                                ReportPages pages(device, foot);
                                if (pages.IsOpen()) pages.AddTable(MinTempTable(Wanted()));
                            }});
}

void BMinTemp::Save() {
    QString title = save_->text().remove('&');
    while (title.endsWith('.')) title.chop(1);
    const QString path = CurrentOutputs().FileToSave(this, title, "minimum_temperatures", ".csv");
    if (path.isEmpty() || WriteUtf8Lines(Typed(path), MinTempLines(Wanted()))) return;
    ShowMessage(Typed(Label(kCannotWriteText) + " " + path), kProgramTitle, Icon::Exclamation);
}

}  // namespace verandis
