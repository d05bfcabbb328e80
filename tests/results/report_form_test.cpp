#include <QClipboard>
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <QPushButton>

#include "app/data_root.h"
#include "app/program_text.h"
#include "platform/files.h"
#include "projects/saved_cases.h"
#include "results/diagram_cases.h"
#include "results/enlarged_form.h"
#include "results/min_temp_form.h"
#include "results/print_diagram_form.h"
#include "results/run_report_form.h"
#include "results/show_cases_form.h"
#include "support/form_test.h"
#include "ui/output.h"

namespace verandis {
namespace {

using namespace testing_support;
using Words = std::vector<std::string>;

/// Count of the pages of a PDF file; fails the test when it is none.
int PagesOf(const std::string& pdf) {
    EXPECT_TRUE(pdf.starts_with("%PDF"));
    int pages = 0;
    for (std::size_t at = pdf.find("/Type /Page\n"); at != std::string::npos;
         at = pdf.find("/Type /Page\n", at + 1)) {
        ++pages;
    }
    return pages;
}

/// Paper is a PDF document, and every file that is asked for has the same name.
class PaperAndFile : public Outputs {
public:
    explicit PaperAndFile(std::string file) : file_(std::move(file)) {}

    void Print(QWidget*, const PrintJob& job) override {
        printed.push_back(PagesOf(PdfOf(job).toStdString()));
        names.push_back(job.name.toStdString());
    }
    QString FileToSave(QWidget*, const QString&, const QString&, const QString&) override {
        return QString::fromStdString(file_);
    }

    std::vector<int> printed;  // pages of each document
    Words names;

private:
    std::string file_;
};

class ReportForms : public SmallRootTest {
protected:
    ReportForms() : outputs(Path("out")) {
        session.SimulatorFolder = DeliveredFolder() + "/MWTHARM";
        LoadProgramText();
        UseOutputs(&outputs);
        MakeSlot({kShapeU, 1}, "DIMENSION_WIDTHB\t 20\n");
        MakeSlot({kShapeU, 2}, "DIMENSION_WIDTHB\t 25\n");
        MakeSlot({kShapeO, 4}, "DIMENSION_WIDTHB\t 30\n");
        PutCase({kShapeU, 1}, 1, 0);
        PutCase({kShapeO, 4}, 2, 5);
    }
    ~ReportForms() override { UseOutputs(nullptr); }

    static void Mark(ShowCases& window, const char* list, int row, bool on = true) {
        Control<QListWidget>(window, list)
            .item(row)
            ->setCheckState(on ? Qt::Checked : Qt::Unchecked);
    }
    static QString ReportText(ShowCases& window) {
        return Control<QPlainTextEdit>(window, "Text2").toPlainText();
    }

    PaperAndFile outputs;
};

TEST_F(ReportForms, CompareMarkedCasesAsTextTableAndFile) {
    ASSERT_TRUE(SaveSlots("Old", {{kShapeU, 2}}));
    session.ChkCase[kShapeU][1] = session.ChkCase[kShapeO][4] = true;
    ShowCases window;
    window.show();
    Mark(window, "File1", 0);
    Press(Control(window, "TAbles"));
    EXPECT_EQ(ReportText(window).section('\n', 2, 2), "U1 O4 Old!U2.CAS");
    auto& table = Control<DataTable>(window, "Differences");
    EXPECT_EQ(table.AsText(false),
              "Input\tU1\tO4\tOld!U2.CAS\n"
              "Width of the building (m)\t20\t30\t25\n");
    Press(Control(window, "CopyDifferences"));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), table.AsText(false));
    Press(Control(window, "SaveCsv"));
    EXPECT_EQ(Bytes(Path("out")), "Input,U1,O4,Old!U2.CAS\nWidth of the building (m),20,30,25\n");
    Press(Control(window, "Command1"));
    EXPECT_GE(outputs.printed.at(0), 3) << "a page of differences, then the report";
    EXPECT_NE(Bytes(project + "/Slask.Res").find("Old!U2.CAS"), std::string::npos);
}

TEST_F(ReportForms, ReadOneSavedCaseOrTheWorkingOnesAlone) {
    ASSERT_TRUE(SaveSlots("Old", {{kShapeU, 2}}));
    session.ActiveShape = kShapeO;
    session.ActiveCaseNo = 4;
    ShowCases window;
    window.show();
    EXPECT_FALSE(Control(window, "Command1").isEnabled()) << "nothing to print yet";
    Press(Control(window, "TAbles"));
    EXPECT_EQ(prompts.Texts(), Words{"No case is chosen."});
    Control<QListWidget>(window, "File1").setCurrentRow(0);
    EXPECT_EQ(ReportText(window).section('\n', 2, 2), "Old!U2.CAS");
    Mark(window, "File1", 0);
    Press(Control(window, "Command5"));
    EXPECT_EQ(ReportText(window).section('\n', 2, 2), "O4") << "the active case";
    Mark(window, "WorkingCases", 1);
    Press(Control(window, "Command5"));
    EXPECT_EQ(ReportText(window).section('\n', 2, 2), "U2") << "without the saved one";
}

TEST_F(ReportForms, TakeFourMarksAtMostFromBothLists) {
    ASSERT_TRUE(SaveSlots("Old", {{kShapeU, 2}}));
    ShowCases window;
    window.show();
    for (int row = 0; row < 4; ++row) Mark(window, "WorkingCases", row);
    Mark(window, "File1", 0);
    EXPECT_EQ(Control<QListWidget>(window, "File1").item(0)->checkState(), Qt::Unchecked);
    EXPECT_TRUE(Control(window, "Limit").isVisible());
    Mark(window, "WorkingCases", 3, false);
    EXPECT_FALSE(Control(window, "Limit").isVisible());
    Mark(window, "File1", 0);
    EXPECT_EQ(Control<QListWidget>(window, "File1").item(0)->checkState(), Qt::Checked);
}

TEST_F(ReportForms, TableOfMinimaHidesColumnsOnScreenPaperAndFile) {
    BMinTemp window;
    window.show();
    auto& table = Control<DataTable>(window, "Table");
    Press(Control(window, "CheckBuilding"));
    EXPECT_EQ(table.AsText(false).section('\n', 1, 1), "U1\tJan\t1.0\t-9.0\t0\t0");
    Press(Control(window, "CheckOutdoor"));
    Press(Control(window, "CheckBuilding"));
    EXPECT_EQ(table.AsText(false).section('\n', 1, 1), "U1\tJan\t1.0\t20.0\t0\t0");
    Press(Control(window, "SaveCsv"));
    EXPECT_EQ(ReadUtf8Lines(Path("out"))->at(3), "Jan;1.0;20.0;0;0");
    Press(Control(window, "PCMT"));
    EXPECT_EQ(outputs.printed, std::vector<int>{1});
}

TEST_F(ReportForms, AListedDiagramOpensItsFormAndIsPrinted) {
    PrintDiagram window;
    window.show();
    auto& list = Control<QListWidget>(window, "List1");
    ASSERT_EQ(list.count(), 9);
    const auto click = [&](int row) {
        const QRect place = list.visualItemRect(list.item(row));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place.center());
    };
    const char* const forms[] = {"SOTB",   "SMITB", "SLTB", "SPDB", "SVEB",
                                 "SMITDB", "SMETB", "SCDB", "SHDB"};
    for (const int row : {0, 1, 3, 5, 6}) {
        click(row);
        EXPECT_TRUE(Control<EnlargedForm>(window, forms[row]).isVisible()) << forms[row];
        EXPECT_EQ(outputs.names.back(), list.item(row)->text().toStdString());
    }
    EXPECT_EQ(outputs.printed, std::vector<int>(5, 1));
    for (const int row : {2, 7}) {
        EXPECT_TRUE(list.item(row)->text().endsWith(" frequency"));
        click(row);
        EXPECT_FALSE(window.findChild<EnlargedForm*>(forms[row])) << "a steady run has none";
    }
    EXPECT_EQ(prompts.shown.size(), 2u);
}

TEST_F(ReportForms, ReportOfTheRunIsWrittenInBothLanguages) {
    for (const int language : {1, 2}) {
        session.Language = language;
        ReportRun(nullptr);
        // Tables on a page or two, then four diagrams on two pages.
        EXPECT_EQ(PagesOf(Bytes(Path("out"))), 4) << language;
        SaveRunTables(nullptr);
        const std::string tables = Bytes(Path("out"));
        EXPECT_NE(tables.find(Text(401)), std::string::npos) << "the months are among them";
        PrintRun(nullptr);
        EXPECT_EQ(outputs.printed.back(), 4);
    }
    EXPECT_FALSE(WriteRunReport(Path("nowhere/out.pdf")));
    runResults = {};
    EXPECT_FALSE(WriteRunReport(Path("none.pdf")));
    EXPECT_EQ(prompts.shown.size(), 2u);
    EXPECT_FALSE(OnDisk(Path("none.pdf")));
}

}  // namespace
}  // namespace verandis
