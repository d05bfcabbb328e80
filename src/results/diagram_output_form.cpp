// What leaves a chart: its menu, pictures, values, paper.

#include <QAction>
#include <QBuffer>
#include <QChart>
#include <QClipboard>
#include <QFileDialog>
#include <QGraphicsLayout>
#include <QGraphicsScene>
#include <QGuiApplication>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QStandardPaths>

#include "platform/files.h"
#include "platform/prompts.h"
#include "results/diagram_chart_form.h"
#include "results/diagram_texts.h"
#include "widgets/controls.h"
#include "widgets/qt_text.h"

namespace verandis {
namespace {

enum : int {
    kCannotWriteText = 608,
    kEnlargeText = 609,
    kCopyPictureText = 610,
    kSavePictureText = 611,
    kCopyCsvText = 612,
    kSaveCsvText = 613,
    kPrintText = 614,
    kSavePdfText = 615
};

QPalette PaperPalette() {
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}

bool Written(const std::string& path, const QByteArray& bytes) {
    const std::string_view view(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    if (!bytes.isEmpty() && WriteBytes(path, view)) return true;
    ShowMessage(Typed(Label(kCannotWriteText)) + " " + path, kProgramTitle, Icon::Exclamation);
    return false;
}

}  // namespace

void DiagramChart::AddActions() {
    const auto add = [this](int text, const char* name, auto&& act) {
        auto* action = Named(name, new QAction(Label(text), this));
        connect(action, &QAction::triggered, this, act);
        addAction(action);
    };
    const auto part = [this] {
        auto* line = new QAction(this);
        line->setSeparator(true);
        addAction(line);
    };
    add(kEnlargeText, "Enlarge", [this] { emit EnlargeWanted(); });
    part();
    add(kCopyPictureText, "CopyPicture", [this] { CopyPicture(); });
    add(kSavePictureText, "SavePicture",
        [this] { AskAndSave(kSavePictureText, ".png", &DiagramChart::SavePicture); });
    part();
    add(kCopyCsvText, "CopyCsv", [this] { CopyCsv(); });
    add(kSaveCsvText, "SaveCsv",
        [this] { AskAndSave(kSaveCsvText, ".csv", &DiagramChart::SaveCsv); });
    part();
    add(kPrintText, "Print", [this] { Print(); });
    add(kSavePdfText, "SavePdf",
        [this] { AskAndSave(kSavePdfText, ".pdf", &DiagramChart::SavePdf); });
}

/// For a moment the chart has the colours of paper and the proportions of the target.
void DiagramChart::DrawOn(QPainter& painter, const QRectF& target) {
    const QSizeF size(width(), width() * target.height() / target.width());
    ApplyTheme(PaperPalette());
    chart()->resize(size);
    ArrangeTexts();
    chart()->layout()->activate();
    scene()->render(&painter, target, QRectF(QPointF(0, 0), size));
    painter.save();
    painter.translate(target.topLeft());
    painter.scale(target.width() / size.width(), target.height() / size.height());
    DrawTexts(painter);
    painter.restore();
    ApplyTheme(palette());
    chart()->resize(viewport()->size());
    ArrangeTexts();
}

QImage DiagramChart::Picture() {
    constexpr int kFiner = 2;
    QImage picture(size() * kFiner, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    DrawOn(painter, picture.rect());
    return picture;
}

void DiagramChart::CopyPicture() {
    QGuiApplication::clipboard()->setImage(Picture());
}

void DiagramChart::CopyCsv() {
    QGuiApplication::clipboard()->setText(QString::fromStdString(DiagramCsv(ShownDiagram())));
}

bool DiagramChart::SavePicture(const std::string& path) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    Picture().save(&buffer, "PNG");
    return Written(path, bytes);
}

bool DiagramChart::SaveCsv(const std::string& path) {
    return Written(path, QByteArray::fromStdString(DiagramCsv(ShownDiagram())));
}

bool DiagramChart::SavePdf(const std::string& path) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(Shown(diagram_.title));
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageOrientation(QPageLayout::Landscape);
    writer.setPageMargins(QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter);
    QPainter painter(&writer);
    DrawOn(painter, QRectF(0, 0, writer.width(), writer.height()));
    painter.end();
    return Written(path, bytes);
}

void DiagramChart::Print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageOrientation(QPageLayout::Landscape);
    printer.setDocName(Shown(diagram_.title));
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() != QDialog::Accepted) return;
    QPainter painter;
    if (!painter.begin(&printer)) return;
    DrawOn(painter, QRectF(0, 0, printer.width(), printer.height()));
}

void DiagramChart::AskAndSave(int title, const char* ending,
                              bool (DiagramChart::*save)(const std::string&)) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString name = QString(DiagramFileName(diagram_.kind)) + ending;
    QString path = QFileDialog::getSaveFileName(this, Label(title), folder + "/" + name,
                                                QString("*%1").arg(ending));
    if (path.isEmpty()) return;
    if (!path.endsWith(ending, Qt::CaseInsensitive)) path += ending;
    (this->*save)(Typed(path));
}

}  // namespace verandis
