#pragma once

#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <vector>

#include "results/case_inputs.h"
#include "results/data_table_form.h"

namespace verandis {

/// Compares up to four saved or working cases: a report as text, and a table of the inputs in which
/// they differ.
class ShowCases : public QDialog {
    Q_OBJECT
public:
    explicit ShowCases(QWidget* parent = nullptr);

private:
    void FillLists();
    void ConnectControls();
    QWidget* ChoicePane();
    QWidget* ReportPane();
    QWidget* DifferencePane();

    std::vector<std::string> MarkedFiles() const;
    std::vector<Slot> MarkedSlotsOfList() const;
    void KeepToFour(QListWidgetItem* changed);
    void ShowReport(const std::vector<ReportCase>& cases);

    void TAbles_Click();    // the marked cases, else the chosen saved one
    void File1_Click();     // the chosen saved case alone
    void Command5_Click();  // the marked working cases, else the active one
    void Command1_Click();  // prints
    void Command2_Click();  // help
    void SavePdf();
    void SaveCsv();

    QListWidget* File1;
    QListWidget* slots_;
    QLabel* limit_;
    QPlainTextEdit* Text2;
    DataTable* differences_;
    QLabel* remark_;
    QPushButton* TAbles;
    QPushButton* Command1;
    QPushButton* Command2;
    QPushButton* Command3;
    QPushButton* Command5;
    QPushButton* copy_;
    QPushButton* saveCsv_;
    QPushButton* savePdf_;
    std::vector<ReportCase> cases_;  // of the report
};

}  // namespace verandis
