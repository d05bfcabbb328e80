#include "ui/output.h"

#include <QBuffer>
#include <QFileDialog>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QStandardPaths>

#include "app/program_text.h"
#include "platform/files.h"
#include "platform/prompts.h"

namespace verandis {
namespace {

constexpr int kCannotWriteText = 608;
constexpr qreal kPageMargin = 15;  // mm

Outputs*& Instance() {
    static Outputs* instance = nullptr;
    return instance;
}

}  // namespace

void Outputs::Print(QWidget* parent, const PrintJob& job) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageOrientation(job.orientation);
    printer.setDocName(job.name);
    QPrintDialog dialog(&printer, parent);
    if (dialog.exec() == QDialog::Accepted) job.draw(printer);
}

QString Outputs::FileToSave(QWidget* parent, const QString& title, const QString& name,
                            const QString& ending) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QString path = QFileDialog::getSaveFileName(parent, title, folder + "/" + name + ending,
                                                QString("*%1").arg(ending));
    if (!path.isEmpty() && !path.endsWith(ending, Qt::CaseInsensitive)) path += ending;
    return path;
}

Outputs& CurrentOutputs() {
    static Outputs dialogs;
    return Instance() ? *Instance() : dialogs;
}

void UseOutputs(Outputs* outputs) {
    Instance() = outputs;
}

bool SaveOutput(const std::string& path, const QByteArray& bytes) {
    const std::string_view view(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    if (!bytes.isEmpty() && WriteBytes(path, view)) return true;
    ShowMessage(Text(kCannotWriteText) + " " + path, kProgramTitle, Icon::Exclamation);
    return false;
}

QByteArray PdfOf(const PrintJob& job) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(job.name);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageOrientation(job.orientation);
    writer.setPageMargins(QMarginsF(kPageMargin, kPageMargin, kPageMargin, kPageMargin),
                          QPageLayout::Millimeter);
    job.draw(writer);
    return bytes;
}

}  // namespace verandis
