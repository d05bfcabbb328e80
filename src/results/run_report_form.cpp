#include "results/run_report_form.h"

#include "app/program_text.h"
#include "platform/prompts.h"
#include "results/report_pages_form.h"
#include "results/run_report.h"
#include "text/csv.h"
#include "ui/output.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

enum : int { kNothingText = 619, kSaveTitle = 631, kTablesTitle = 588 };

constexpr const char* kProposedName = "report";

bool RefusedWithoutResults() {
    if (!DiagramCases().empty()) return false;
    ShowMessage(Text(kNothingText), kProgramTitle, Icon::Exclamation);
    return true;
}

/// The points of a menu entry are no part of a title.
QString WithoutPoints(QString text) {
    while (text.endsWith('.')) text.chop(1);
    return text;
}

}  // namespace

void DrawRunReport(QPagedPaintDevice& device) {
    const ReportHead head = HeadOfRunReport();
    ReportPages pages(device, Shown(std::string(kProgramTitle) + "  " + head.when));
    if (!pages.IsOpen()) return;
    pages.AddTitle(Shown(head.title));
    pages.AddText(Shown(head.project.empty() ? head.when : head.project + ", " + head.when));
    for (const ReportTable& table : RunReportTables()) pages.AddTable(table);
    const auto diagrams = ReportDiagrams();
    if (!diagrams.empty()) pages.NextPage();
    for (const Diagram& diagram : diagrams) pages.AddDiagram(diagram);
}

bool WriteRunReport(const std::string& pdfPath) {
    if (RefusedWithoutResults()) return false;
    return SaveOutput(
        pdfPath, PdfOf({Shown(HeadOfRunReport().title), QPageLayout::Portrait, DrawRunReport}));
}

std::string RunTablesCsv() {
    std::string text;
    for (const ReportTable& table : RunReportTables()) {
        if (!text.empty()) text += "\n";
        const std::string& title = table.title.empty() ? table.section : table.title;
        if (!title.empty()) text += CsvText(title) + "\n";
        text += TableCsv(table);
    }
    return text;
}

void SaveRunTables(QWidget* parent) {
    if (RefusedWithoutResults()) return;
    const QString path = CurrentOutputs().FileToSave(parent, WithoutPoints(Label(kTablesTitle)),
                                                     kProposedName, ".csv");
    if (!path.isEmpty()) SaveOutput(Typed(path), QByteArray::fromStdString(RunTablesCsv()));
}

void PrintRun(QWidget* parent) {
    if (RefusedWithoutResults()) return;
    CurrentOutputs().Print(parent,
                           {Shown(HeadOfRunReport().title), QPageLayout::Portrait, DrawRunReport});
}

void ReportRun(QWidget* parent) {
    if (RefusedWithoutResults()) return;
    const QString path = CurrentOutputs().FileToSave(parent, WithoutPoints(Label(kSaveTitle)),
                                                     kProposedName, ".pdf");
    if (!path.isEmpty()) WriteRunReport(Typed(path));
}

}  // namespace verandis
