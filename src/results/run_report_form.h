#pragma once

#include <QPagedPaintDevice>
#include <QWidget>
#include <string>

namespace verandis {

/// Draws the report of the last run: its cases, what differs between them, the months, the guide's
/// verdicts, the steady-state diagrams.
void DrawRunReport(QPagedPaintDevice& device);

/// Writes the report of the last run as a PDF file. False, after a message, when there are no
/// results or the file cannot be written.
bool WriteRunReport(const std::string& pdfPath);

/// Asks for a file and writes the report into it.
void ReportRun(QWidget* parent);

}  // namespace verandis
