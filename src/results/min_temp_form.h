#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include "results/data_table_form.h"
#include "results/min_temp.h"

namespace verandis {

/// The months of the calculated cases with minimum temperatures and energy; two boxes show and hide
/// the columns of the building and of the outdoor air.
class BMinTemp : public QDialog {
    Q_OBJECT
public:
    explicit BMinTemp(QWidget* parent = nullptr);

private:
    MinTempColumns Wanted() const;
    void CheckBuilding_Click();
    void CheckOutdoor_Click();
    void PCMT_Click();
    void Save();

    DataTable* table_;
    QCheckBox* CheckBuilding;
    QCheckBox* CheckOutdoor;
    QPushButton* PCMT;
    QPushButton* save_;
    QPushButton* Command2;
};

}  // namespace verandis
