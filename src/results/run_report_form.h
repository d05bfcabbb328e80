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

/// Asks for a file and writes the report into it, as PDF or its tables as comma-separated values.
void ReportRun(QWidget* parent);
void SaveRunTables(QWidget* parent);

/// Asks for a printer and prints the report.
void PrintRun(QWidget* parent);

/// The tables of the last run as comma-separated values, each below its title, parted by an empty
/// line; empty without results.
std::string RunTablesCsv();

}  // namespace verandis
