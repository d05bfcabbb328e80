#include "app/building_picture_form.h"

#include <QBuffer>
#include <QClipboard>
#include <QEvent>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QStandardPaths>
#include <QVBoxLayout>

#include "app/program_text.h"
#include "app/session.h"
#include "case/property_file.h"
#include "platform/files.h"
#include "platform/prompts.h"
#include "ui/controls.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

enum : int {
    kCloseText = 155,
    kCaseWord = 196,
    kCannotWriteText = 608,
    kCopyText = 610,
    kSaveText = 611,
    kPrintText = 614,
    kTitleText = 959,
    kNoCaseText = 963
};

constexpr QSize kSheet(960, 640);  // of a saved picture, in the units of the screen
constexpr int kFiner = 2;
constexpr double kLargerLetters = 1.35;

/// "U-shape / Case 1: Courtyard", with the note when there is one.
QString SlotTitle(const Slot& slot) {
    if (!IsShape(slot.shape)) return Label(kNoCaseText);
    std::string note(kNotSet);
    if (FileExists(PropertyFilePath())) GetCaseProperty("CASE", "NOTE", note);
    const QString title = QString("%1 / %2 %3")
                              .arg(Label(WordsOf(slot.shape).textNumber), Label(kCaseWord))
                              .arg(slot.caseNo);
    return note == kNotSet || note.empty() ? title : title + ": " + Shown(note);
}

QPalette PaperPalette() {
    QPalette palette(Qt::white);
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::Base, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text}) {
        palette.setColor(role, Qt::black);
    }
    return palette;
}

void Enlarge(QFont& font) {
    font.setPointSizeF(font.pointSizeF() * kLargerLetters);
    font.setWeight(QFont::DemiBold);
}

}  // namespace

BuildingPicture::BuildingPicture(QWidget* parent)
    : QDialog(parent),
      title_(Named("SlotTitle", new QLabel)),
      plan_(Named("Picture", new PlanView)),
      copy_(Named("CopyPicture", new QPushButton(Label(kCopyText)))),
      save_(Named("SavePicture", new QPushButton(Label(kSaveText)))),
      print_(Named("PrintPicture", new QPushButton(Label(kPrintText)))) {
    setObjectName("BuildingPicture");
    setWindowTitle(Label(kTitleText));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    title_->setTextFormat(Qt::PlainText);
    title_->setWordWrap(true);
    QFont large = title_->font();
    Enlarge(large);
    title_->setFont(large);
    plan_->SetLetters(true);
    auto* close = Named("ClosePicture", new QPushButton(Label(kCloseText)));
    connect(copy_, &QPushButton::clicked, this, &BuildingPicture::CopyPicture);
    connect(save_, &QPushButton::clicked, this, &BuildingPicture::AskAndSave);
    connect(print_, &QPushButton::clicked, this, &BuildingPicture::Print);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kMargin);
    column->addWidget(title_);
    column->addWidget(plan_, 1);
    column->addLayout(MakeButtonRow(nullptr, {close, copy_, save_, print_}));
    resize(fontMetrics().averageCharWidth() * 110, fontMetrics().height() * 38);
    ShowActiveSlot();
    AssignMnemonics(*this);
}

void BuildingPicture::ShowActiveSlot() {
    slot_ = {session.ActiveShape, session.ActiveCaseNo};
    title_->setText(SlotTitle(slot_));
    plan_->ShowSlot(slot_);
    for (QPushButton* button : {copy_, save_, print_}) button->setEnabled(IsShape(slot_.shape));
}

void BuildingPicture::showEvent(QShowEvent* event) {
    ShowActiveSlot();
    QDialog::showEvent(event);
}

void BuildingPicture::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) ShowActiveSlot();
    QDialog::changeEvent(event);
}

/// Title and drawing in the colours of paper, whatever those of the screen are.
void BuildingPicture::DrawSheet(QPainter& painter, QSize size) const {
    painter.save();
    QFont large = font();
    Enlarge(large);
    painter.setFont(large);
    painter.setPen(Qt::black);
    const int line = QFontMetrics(large).lineSpacing();
    painter.drawText(QRect(kMargin, kMargin, size.width() - 2 * kMargin, line), Qt::AlignLeft,
                     title_->text());
    painter.restore();
    PlanView sheet;
    sheet.setPalette(PaperPalette());
    sheet.setFont(font());
    sheet.SetLetters(true);
    sheet.resize(size.width(), size.height() - line - 2 * kMargin);
    sheet.ShowSlot(slot_);
    sheet.render(&painter, QPoint(0, line + 2 * kMargin));
}

QImage BuildingPicture::Picture() const {
    QImage picture(kSheet * kFiner, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.scale(kFiner, kFiner);
    DrawSheet(painter, kSheet);
    return picture;
}

void BuildingPicture::CopyPicture() {
    QGuiApplication::clipboard()->setImage(Picture());
}

bool BuildingPicture::SavePicture(const std::string& path) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    Picture().save(&buffer, "PNG");
    const std::string_view view(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    if (!bytes.isEmpty() && WriteBytes(path, view)) return true;
    ShowMessage(Text(kCannotWriteText) + " " + path, kProgramTitle, Icon::Exclamation);
    return false;
}

void BuildingPicture::AskAndSave() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString name = folder + "/" + QString::fromStdString(SlotLabel(slot_)) + ".png";
    QString path = QFileDialog::getSaveFileName(this, Label(kSaveText), name, "*.png");
    if (path.isEmpty()) return;
    if (!path.endsWith(".png", Qt::CaseInsensitive)) path += ".png";
    SavePicture(Typed(path));
}

void BuildingPicture::PrintOn(QPaintDevice& device) {
    QPainter painter;
    if (!painter.begin(&device)) return;
    const double scale = device.width() / static_cast<double>(kSheet.width());
    painter.scale(scale, scale);
    DrawSheet(painter, {kSheet.width(), static_cast<int>(device.height() / scale)});
}

void BuildingPicture::Print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageOrientation(QPageLayout::Landscape);
    printer.setDocName(title_->text());
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted) PrintOn(printer);
}

}  // namespace verandis
