#pragma once

#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <array>

#include "dialogs/building_data.h"

namespace verandis {

/// The small modeless form that leads to the dialogs of the active case, with what the case has
/// stored of each. It holds no data of its own.
class EditBuildingData : public QDialog {
    Q_OBJECT
public:
    explicit EditBuildingData(QWidget* parent = nullptr);

    /// Shows the active case as it is now. To be called when the active case or its data change.
    void Refresh();

    void CClose_Click();
    void Command1_Click();
    void CHelp_Click();

signals:
    /// The form has hidden itself and the design demands are to be opened.
    void DemandsWanted();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    struct Row {
        QRadioButton* option = nullptr;
        QLabel* label = nullptr;  // none for the demands
    };

    void AddRow(QGridLayout& grid, const CaseDataRow& row);
    void Open(CaseData kind);
    void ClearOptions();
    bool CanOpen(CaseData kind) const;

    std::array<Row, kCaseDataCount> rows_;
    QPushButton* CClose;
    QPushButton* Command1;
    QPushButton* CHelp;
};

}  // namespace verandis
