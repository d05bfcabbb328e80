#pragma once

#include <QTableWidget>

#include "results/report_table.h"

namespace verandis {

/// A read-only table that copies what is selected (all of it without a selection) as TAB text, by
/// Ctrl+C and its context menu.
class DataTable : public QTableWidget {
    Q_OBJECT
public:
    explicit DataTable(QWidget* parent = nullptr);

    /// Replaces heads and rows.
    void Show(const ReportTable& table);

    /// Heads and cells of the columns that are shown, TAB between them, a line feed behind each
    /// row.
    QString AsText(bool selectedRowsOnly) const;

    void Copy();

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace verandis
