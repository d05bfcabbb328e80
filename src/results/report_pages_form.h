#pragma once

#include <QFont>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QString>
#include <QStringList>

#include "results/diagrams.h"
#include "results/report_table.h"

namespace verandis {

/// Fills the pages of a printer or a PDF document from the top: titles, texts, tables, diagrams. A
/// page that is full is ended with its foot, and the next begins; a table's heads are repeated.
class ReportPages {
public:
    /// `foot` stands at the left below each page, the page's number at the right.
    ReportPages(QPagedPaintDevice& device, const QString& foot);

    /// Ends the last page.
    ~ReportPages();
    ReportPages(const ReportPages&) = delete;
    ReportPages& operator=(const ReportPages&) = delete;

    /// False when nothing can be drawn on the device.
    bool IsOpen() const { return painter_.isActive(); }

    void AddTitle(const QString& text);
    void AddHeading(const QString& text);
    void AddText(const QString& text);

    /// Lines in letters of one width; one that is too long for the page goes on below.
    void AddListing(const QStringList& lines);

    void AddTable(const ReportTable& table);

    /// A diagram over the whole width and nearly half a page.
    void AddDiagram(const Diagram& diagram);

    /// The rest of the page stays free, unless it is still empty.
    void NextPage();

private:
    QFont Letters(qreal points, QFont::Weight weight = QFont::Normal) const;
    QFont CellLetters(const ReportTable& table, QFont::Weight weight = QFont::Normal) const;
    qreal HeightOf(const QString& text, const QFont& font, qreal width) const;
    qreal Millimetres(qreal count) const;
    void AddBlock(const QString& text, const QFont& font, qreal keepBelow);
    void DrawFoot();
    bool Fits(qreal height) const { return y_ + height <= bottom_; }
    QList<qreal> ColumnWidths(const ReportTable& table) const;
    qreal RowHeight(const std::vector<std::string>& cells, const QFont& font,
                    const QList<qreal>& widths) const;
    void DrawRow(const std::vector<std::string>& cells, const QFont& font,
                 const QList<qreal>& widths, std::size_t firstFigure, qreal height);
    qreal KeptTogether(const ReportTable& table, const QList<qreal>& widths) const;
    void AddRows(const ReportTable& table, const QList<qreal>& widths);
    void DrawRule(const QColor& colour);
    void DrawHeads(const ReportTable& table, const QList<qreal>& widths);

    QPagedPaintDevice& device_;
    QPainter painter_;
    QString foot_;
    qreal width_ = 0;
    qreal bottom_ = 0;  // of what stands above the foot
    qreal y_ = 0;
    int page_ = 1;
};

}  // namespace verandis
