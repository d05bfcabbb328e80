// What leaves a chart: its menu, pictures, values, paper.

#include <QAction>
#include <QBuffer>
#include <QChart>
#include <QClipboard>
#include <QGraphicsLayout>
#include <QGraphicsScene>
#include <QGuiApplication>

#include "results/diagram_chart_form.h"
#include "results/diagram_texts.h"
#include "ui/controls.h"
#include "ui/output.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

enum : int {
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
    return SaveOutput(path, bytes);
}

bool DiagramChart::SaveCsv(const std::string& path) {
    return SaveOutput(path, QByteArray::fromStdString(DiagramCsv(ShownDiagram())));
}

/// The chart fills a landscape page.
PrintJob DiagramChart::Page() {
    return {Shown(diagram_.title), QPageLayout::Landscape, [this](QPagedPaintDevice& device) {
                QPainter painter;
                if (!painter.begin(&device)) return;
                DrawOn(painter, QRectF(0, 0, device.width(), device.height()));
            }};
}

bool DiagramChart::SavePdf(const std::string& path) {
    return SaveOutput(path, PdfOf(Page()));
}

void DiagramChart::Print() {
    CurrentOutputs().Print(this, Page());
}

void DiagramChart::AskAndSave(int title, const char* ending,
                              bool (DiagramChart::*save)(const std::string&)) {
    const QString path =
        CurrentOutputs().FileToSave(this, Label(title), DiagramFileName(diagram_.kind), ending);
    if (!path.isEmpty()) (this->*save)(Typed(path));
}

}  // namespace verandis
