#include "results/diagram_look_form.h"

#include <QPolygonF>
#include <algorithm>
#include <array>

namespace verandis {
namespace {

struct CaseLook {
    const char* onLight;
    const char* onDark;
    QScatterSeries::MarkerShape shape;
    std::array<qreal, 4> pattern;  // of the line, in its own widths; 0 first: solid
};

// Colours that are told apart by people who see reds and greens alike.
constexpr std::array<CaseLook, 4> kCases = {{
    {"#0072b2", "#56b4e9", QScatterSeries::MarkerShapeCircle, {0}},
    {"#d55e00", "#f0a030", QScatterSeries::MarkerShapeRectangle, {3.5, 2, 3.5, 2}},
    {"#00805c", "#3fd0a4", QScatterSeries::MarkerShapeTriangle, {1.5, 2, 1.5, 2}},
    {"#a5437f", "#eba3cd", QScatterSeries::MarkerShapeRotatedRectangle, {7, 2, 1.5, 2}},
}};

constexpr qreal kSampleWidth = 40;
constexpr qreal kInnerGap = 6;
constexpr qreal kEntryGap = 18;

QColor Blend(const QColor& color, const QColor& ground, double share) {
    const auto mix = [share](int a, int b) { return static_cast<int>(a + (b - a) * share); };
    return QColor(mix(color.red(), ground.red()), mix(color.green(), ground.green()),
                  mix(color.blue(), ground.blue()));
}

QPolygonF MarkShape(QScatterSeries::MarkerShape shape, qreal half) {
    switch (shape) {
        case QScatterSeries::MarkerShapeTriangle:
            return QPolygonF({{0, -half}, {half, half}, {-half, half}});
        case QScatterSeries::MarkerShapeRotatedRectangle:
            return QPolygonF({{0, -half}, {half, 0}, {0, half}, {-half, 0}});
        default: return QPolygonF({{-half, -half}, {half, -half}, {half, half}, {-half, half}});
    }
}

void DrawSample(QPainter& painter, const QPointF& left, const SeriesLook& look) {
    painter.setPen(look.line);
    painter.drawLine(left, left + QPointF(kSampleWidth, 0));
    painter.setPen(look.markEdge);
    painter.setBrush(look.markFill);
    const QPointF centre = left + QPointF(kSampleWidth / 2, 0);
    const qreal half = look.markSize / 2;
    if (look.shape == QScatterSeries::MarkerShapeCircle) {
        painter.drawEllipse(centre, half, half);
    } else {
        painter.drawPolygon(MarkShape(look.shape, half).translated(centre));
    }
}

}  // namespace

SeriesLook LookOf(int number, bool second, const QColor& ground) {
    const CaseLook& each = kCases[static_cast<std::size_t>(number - 1) % kCases.size()];
    const QColor full(ground.lightness() < 128 ? each.onDark : each.onLight);
    const QColor color = second ? Blend(full, ground, 0.25) : full;
    SeriesLook look;
    look.line = QPen(color, second ? 1.3 : 2.4);
    look.line.setCapStyle(Qt::FlatCap);
    if (each.pattern[0] > 0) {
        look.line.setDashPattern(QList<qreal>(each.pattern.begin(), each.pattern.end()));
    }
    look.shape = each.shape;
    look.markEdge = QPen(color, 1.4);
    look.markFill = second ? ground : color;
    look.markSize = second ? 7 : 9;
    return look;
}

void DiagramLegend::Arrange(const std::vector<LegendEntry>& entries, qreal width,
                            const QFontMetricsF& font) {
    entries_ = entries;
    width_ = width;
    rowHeight_ = font.height() + kInnerGap;
    columnWidth_ = 1;
    for (LegendEntry& entry : entries_) {
        const qreal most = width - kSampleWidth - kInnerGap - kEntryGap;
        entry.text = font.elidedText(entry.text, Qt::ElideRight, most);
        columnWidth_ = std::max(columnWidth_, kSampleWidth + kInnerGap + kEntryGap +
                                                  font.horizontalAdvance(entry.text));
    }
    columns_ = std::max<std::size_t>(1, static_cast<std::size_t>(width / columnWidth_));
    columns_ = std::min(columns_, std::max<std::size_t>(1, entries_.size()));
    // Three columns would tear pairs apart and leave a last row of one.
    if (columns_ % 2 == 1 && entries_.size() > columns_)
        columns_ = std::max<std::size_t>(1, columns_ - 1);
    rows_ = (entries_.size() + columns_ - 1) / columns_;
}

void DiagramLegend::Draw(QPainter& painter, const QPointF& corner, const QColor& text) const {
    const qreal start = (width_ - columnWidth_ * static_cast<qreal>(columns_) + kEntryGap) / 2;
    for (std::size_t at = 0; at < entries_.size(); ++at) {
        const QPointF place = corner + QPointF(start + columnWidth_ * qreal(at % columns_),
                                               rowHeight_ * qreal(at / columns_));
        DrawSample(painter, place + QPointF(0, rowHeight_ / 2), entries_[at].look);
        painter.setPen(text);
        const qreal indent = kSampleWidth + kInnerGap;
        painter.drawText(QRectF(place.x() + indent, place.y(), columnWidth_ - indent, rowHeight_),
                         Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, entries_[at].text);
    }
}

}  // namespace verandis
