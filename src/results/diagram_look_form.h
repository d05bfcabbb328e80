#pragma once

#include <QBrush>
#include <QFontMetricsF>
#include <QPainter>
#include <QPen>
#include <QScatterSeries>
#include <QString>
#include <vector>

namespace verandis {

/// How a series is drawn. The case tells colour, line pattern and mark, so that it can be made out
/// without colours; the second quantity of a case is thinner and has hollow marks.
struct SeriesLook {
    QPen line;
    QScatterSeries::MarkerShape shape = QScatterSeries::MarkerShapeCircle;
    QPen markEdge;
    QBrush markFill;
    qreal markSize = 9;
};

/// The look of a case by its running number from 1 (beyond 4 it begins again), on this ground.
SeriesLook LookOf(int number, bool second, const QColor& ground);

struct LegendEntry {
    QString text;
    SeriesLook look;
};

/// The legend below a diagram: line with mark and text, in columns of equal width.
class DiagramLegend {
public:
    /// Arranges the entries; texts that are wider than the whole legend are cut with "…".
    void Arrange(const std::vector<LegendEntry>& entries, qreal width, const QFontMetricsF& font);

    qreal height() const { return rowHeight_ * static_cast<qreal>(rows_); }

    /// Draws the columns, centred as a whole, from this corner.
    void Draw(QPainter& painter, const QPointF& corner, const QColor& text) const;

private:
    std::vector<LegendEntry> entries_;
    std::size_t columns_ = 1;
    std::size_t rows_ = 0;
    qreal columnWidth_ = 0;
    qreal rowHeight_ = 0;
    qreal width_ = 0;
};

}  // namespace verandis
