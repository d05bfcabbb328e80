#pragma once

#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QString>
#include <QWidget>
#include <functional>
#include <string>

// What leaves a window: paper and files.

namespace verandis {

/// Something to print. `draw` gets a device whose page is laid out.
struct PrintJob {
    QString name;  // of the document
    QPageLayout::Orientation orientation = QPageLayout::Portrait;
    std::function<void(QPagedPaintDevice& device)> draw;
};

/// How a user is asked for a printer or a file. One instance serves the process.
class Outputs {
public:
    virtual ~Outputs() = default;

    /// Asks by the platform's print dialog and prints; nothing after a cancel.
    virtual void Print(QWidget* parent, const PrintJob& job);

    /// Asks for a file to write; `name` is proposed in the folder of documents. The path ends in
    /// `ending` (".pdf"); empty after a cancel.
    virtual QString FileToSave(QWidget* parent, const QString& title, const QString& name,
                               const QString& ending);
};

Outputs& CurrentOutputs();

/// Sets the instance, which must outlive its use; null brings the dialogs back.
void UseOutputs(Outputs* outputs);

/// Writes a file. False, after a message, when there is nothing to write or it cannot be written.
bool SaveOutput(const std::string& path, const QByteArray& bytes);

/// A PDF document on A4 with margins, drawn by `draw`; empty when it cannot be made.
QByteArray PdfOf(const PrintJob& job);

}  // namespace verandis
