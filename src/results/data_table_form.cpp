#include "results/data_table_form.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <algorithm>

#include "ui/controls.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

constexpr int kCopyText = 635;
constexpr int kWidestFirst = 46;  // average characters
constexpr int kWidestColumn = 22;

/// A cell's text on one line, so that a pasted table keeps its rows.
QString OnOneLine(QString text) {
    return text.replace('\n', ' ').replace('\t', ' ');
}

}  // namespace

DataTable::DataTable(QWidget* parent) : QTableWidget(parent) {
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    auto* copy = Named("CopyTable", new QAction(Label(kCopyText), this));
    connect(copy, &QAction::triggered, this, &DataTable::Copy);
    addAction(copy);
}

void DataTable::Show(const ReportTable& table) {
    clear();
    setRowCount(static_cast<int>(table.rows.size()));
    setColumnCount(table.rows.empty() ? 0 : static_cast<int>(table.heads.size()));
    for (int column = 0; column < columnCount(); ++column) {
        const auto at = static_cast<std::size_t>(column);
        const bool right = table.firstFigure > 0 && at >= table.firstFigure;
        const auto side = (right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
        auto* head = new QTableWidgetItem(Shown(table.heads[at]));
        head->setTextAlignment(side);
        setHorizontalHeaderItem(column, head);
        for (int row = 0; row < rowCount(); ++row) {
            const QString text = Shown(table.rows[static_cast<std::size_t>(row)][at]);
            auto* item = new QTableWidgetItem(text);
            item->setTextAlignment(side);
            item->setToolTip(text.toHtmlEscaped());
            setItem(row, column, item);
        }
    }
    resizeColumnsToContents();
    resizeRowsToContents();
    for (int column = 0; column < columnCount(); ++column) {
        const int widest = column == 0 ? kWidestFirst : kWidestColumn;
        setColumnWidth(column, std::min(columnWidth(column) + kGap,
                                        fontMetrics().averageCharWidth() * widest));
    }
}

QString DataTable::AsText(bool selectedRowsOnly) const {
    const auto line = [this](const auto& textOf) {
        QStringList cells;
        for (int column = 0; column < columnCount(); ++column) {
            if (!isColumnHidden(column)) cells.append(OnOneLine(textOf(column)));
        }
        return cells.join('\t') + '\n';
    };
    if (columnCount() == 0) return {};
    QString text = line([this](int column) { return horizontalHeaderItem(column)->text(); });
    for (int row = 0; row < rowCount(); ++row) {
        if (selectedRowsOnly && !selectionModel()->rowIntersectsSelection(row)) continue;
        text += line([&](int column) { return item(row, column)->text(); });
    }
    return text;
}

void DataTable::Copy() {
    QGuiApplication::clipboard()->setText(AsText(selectionModel()->hasSelection()));
}

void DataTable::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) return Copy();
    QTableWidget::keyPressEvent(event);
}

}  // namespace verandis
