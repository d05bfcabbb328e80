#include "ui/plan_painter.h"

#include <QFontMetricsF>
#include <QLineF>
#include <QPainterPath>
#include <QWidget>
#include <QtMath>
#include <algorithm>
#include <cmath>

#include "case/plan_text.h"
#include "ui/qt_text.h"
#include "ui/theme.h"

namespace verandis {
namespace {

constexpr double kBarDistance = 7;  // pixels between the bars of a glazed roof, at least

QPointF PointOf(const PlanPoint& point) {
    return {point.x, point.y};
}

QPolygonF OutlineOf(const PlanPart& part, const QTransform& toPixels) {
    QPolygonF outline;
    for (const PlanPoint& corner : part.corners) outline << toPixels.map(PointOf(corner));
    return outline;
}

/// All faces of a material as one area, so that no seam shows between neighbours.
QPainterPath AreaOf(const ShapeDrawing& drawing, PlanMaterial material,
                    const QTransform& toPixels) {
    QPainterPath area;
    for (const PlanPart& part : drawing.parts) {
        if (part.material != material) continue;
        QPainterPath face;
        face.addPolygon(OutlineOf(part, toPixels));
        face.closeSubpath();
        area = area.united(face);
    }
    return area;
}

/// The glazing bars of a roof slope run down its fall, which the letter of its identifier tells.
void PaintBars(QPainter& painter, const PlanPart& part, const QTransform& toPixels,
               const QColor& color) {
    const std::string_view slope = part.elements[0];
    if (part.material != PlanMaterial::Glass || slope.ends_with("-F")) return;
    const QPolygonF outline = OutlineOf(part, toPixels);
    const bool southward = slope.ends_with("-S");
    const QLineF begins(outline[0], southward ? outline[1] : outline[3]);
    const QLineF ends(southward ? outline[3] : outline[1], outline[2]);
    const int bars = std::clamp(static_cast<int>(begins.length() / (2 * kBarDistance)) * 2, 2, 24);
    QColor faint = color;
    faint.setAlphaF(0.45F);
    painter.setPen(QPen(faint, 1));
    for (int bar = 1; bar < bars; ++bar) {
        const double at = static_cast<double>(bar) / bars;
        painter.drawLine(QLineF(begins.pointAt(at), ends.pointAt(at)));
    }
}

QPen PenOf(PlanLine kind, const PlanStyle& style) {
    switch (kind) {
        case PlanLine::Wall: return QPen(style.buildingEdge, 1.6);
        case PlanLine::Partition: return QPen(style.buildingEdge, 1.2);
        case PlanLine::Glazing: return QPen(style.glassEdge, 3);
        case PlanLine::Ridge: break;
    }
    return QPen(style.glassEdge, 1.4);
}

/// Text in the direction of a line, never upside down, its middle at `centre`.
void PaintAlong(QPainter& painter, const QString& text, const QPointF& centre, const QLineF& line) {
    double degrees = -line.angle();
    while (degrees <= -90) degrees += 180;
    while (degrees > 90) degrees -= 180;
    // A line that runs straight up is read from the right.
    if (std::abs(degrees - 90) < 0.5) degrees = -90;
    const QSizeF size(painter.fontMetrics().horizontalAdvance(text) + 2,
                      painter.fontMetrics().height());
    painter.save();
    painter.translate(centre);
    painter.rotate(degrees);
    painter.drawText(QRectF(QPointF(-size.width() / 2, -size.height() / 2), size),
                     Qt::AlignCenter | Qt::TextSingleLine, text);
    painter.restore();
}

QPointF UnitOf(const QPointF& vector) {
    const double length = std::hypot(vector.x(), vector.y());
    return length > 0 ? vector / length : vector;
}

/// The slope's figure stands above its middle.
void PaintSlope(QPainter& painter, const PlanMeasure& measure, const QTransform& toPixels,
                const PlanStyle& style) {
    const QLineF line(toPixels.map(PointOf(measure.from)), toPixels.map(PointOf(measure.to)));
    const QPointF across = UnitOf({line.dy(), -line.dx()});
    painter.setPen(style.text);
    PaintAlong(painter, Shown(MeasureText(measure, style.letters)),
               line.center() + across * (painter.fontMetrics().height() * 0.5 + 3), line);
}

/// A dimension line stands outside the whole drawing, with extension lines from what it measures.
void PaintMeasure(QPainter& painter, const PlanMeasure& measure, const ShapeDrawing& drawing,
                  const QTransform& toPixels, const PlanStyle& style) {
    if (measure.degrees) return PaintSlope(painter, measure, toPixels, style);
    const PlanPoint& out = measure.outward;
    const double edgeX = out.x > 0 ? drawing.extent.x : 0;
    const double edgeY = out.y > 0 ? drawing.extent.y : 0;
    const auto atEdge = [&](const PlanPoint& point) {
        return toPixels.map(QPointF(out.x != 0 ? edgeX : point.x, out.y != 0 ? edgeY : point.y));
    };
    const QPointF outward =
        UnitOf(toPixels.map(QPointF(out.x, out.y)) - toPixels.map(QPointF(0, 0)));
    const double height = painter.fontMetrics().height();
    const QPointF away = outward * (height * 0.6);
    const QLineF line(atEdge(measure.from) + away, atEdge(measure.to) + away);
    painter.setPen(QPen(style.measure, 1));
    painter.drawLine(line);
    for (const auto& [begin, end] : {std::pair(measure.from, line.p1()), {measure.to, line.p2()}}) {
        QColor faint = style.measure;
        faint.setAlphaF(0.5F);
        painter.setPen(QPen(faint, 1));
        painter.drawLine(QLineF(toPixels.map(PointOf(begin)) + outward * 3, end + outward * 3));
        const QPointF tick = (UnitOf(line.p2() - line.p1()) + outward) * 3;
        painter.setPen(QPen(style.measure, 1.4));
        painter.drawLine(QLineF(end - tick, end + tick));
    }
    painter.setPen(style.text);
    PaintAlong(painter, Shown(MeasureText(measure, style.letters)),
               line.center() + outward * (height * 0.5 + 3), line);
}

bool IsHighlighted(const PlanElements& elements, const PlanStyle& style) {
    return std::any_of(style.highlight.begin(), style.highlight.end(),
                       [&](const std::string& id) { return HoldsElement(elements, id); });
}

void PaintHighlight(QPainter& painter, const ShapeDrawing& drawing, const QTransform& toPixels,
                    const PlanStyle& style) {
    QColor veil = style.accent;
    veil.setAlphaF(0.35F);
    for (const PlanPart& part : drawing.parts) {
        if (!IsHighlighted(part.elements, style)) continue;
        painter.setPen(Qt::NoPen);
        painter.setBrush(veil);
        painter.drawPolygon(OutlineOf(part, toPixels));
    }
    painter.setPen(QPen(style.accent, 5, Qt::SolidLine, Qt::RoundCap));
    for (const PlanEdge& edge : drawing.edges) {
        if (!IsHighlighted(edge.elements, style)) continue;
        painter.drawLine(QLineF(toPixels.map(PointOf(edge.from)), toPixels.map(PointOf(edge.to))));
    }
}

}  // namespace

PlanStyle PlanStyleOf(const QWidget& widget) {
    PlanStyle style;
    style.building = TintOf(Tint::Building, widget);
    style.buildingEdge = TintOf(Tint::BuildingEdge, widget);
    style.glass = TintOf(Tint::Glass, widget);
    style.glassEdge = TintOf(Tint::GlassEdge, widget);
    style.text = widget.palette().color(QPalette::WindowText);
    style.measure = TintOf(Tint::Muted, widget);
    style.accent = TintOf(Tint::Accent, widget);
    return style;
}

double MeasureMargin(const QFontMetricsF& metrics, const PlanStyle& style) {
    return style.measures ? metrics.height() * 1.6 + 6 : 3;
}

QSizeF TurnedExtent(const ShapeDrawing& drawing, double rotation) {
    const double c = std::abs(std::cos(qDegreesToRadians(rotation)));
    const double s = std::abs(std::sin(qDegreesToRadians(rotation)));
    return {drawing.extent.x * c + drawing.extent.y * s,
            drawing.extent.x * s + drawing.extent.y * c};
}

QSizeF TurnedMargin(double margin, double rotation) {
    const double c = std::abs(std::cos(qDegreesToRadians(rotation)));
    const double s = std::abs(std::sin(qDegreesToRadians(rotation)));
    return QSizeF(1, 1) * (2 * margin * (c + s));
}

QTransform PlanTransform(const ShapeDrawing& drawing, const QRectF& area, double scale,
                         double rotation) {
    QTransform toPixels;
    toPixels.translate(area.center().x(), area.center().y());
    toPixels.rotate(-rotation);
    toPixels.scale(scale, -scale);
    toPixels.translate(-drawing.extent.x / 2, -drawing.extent.y / 2);
    return toPixels;
}

void PaintDrawing(QPainter& painter, const ShapeDrawing& drawing, const QTransform& toPixels,
                  const PlanStyle& style) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(AreaOf(drawing, PlanMaterial::Building, toPixels), style.building);
    painter.fillPath(AreaOf(drawing, PlanMaterial::Glass, toPixels), style.glass);
    for (const PlanPart& part : drawing.parts) {
        PaintBars(painter, part, toPixels, style.glassEdge);
    }
    for (const PlanEdge& edge : drawing.edges) {
        QPen pen = PenOf(edge.kind, style);
        pen.setCapStyle(Qt::SquareCap);
        painter.setPen(pen);
        painter.drawLine(QLineF(toPixels.map(PointOf(edge.from)), toPixels.map(PointOf(edge.to))));
    }
    if (!style.highlight.empty()) PaintHighlight(painter, drawing, toPixels, style);
    if (style.measures) {
        for (const PlanMeasure& measure : drawing.measures) {
            PaintMeasure(painter, measure, drawing, toPixels, style);
        }
    }
    painter.restore();
}

void PaintNorthArrow(QPainter& painter, const QPointF& centre, double radius, double turned,
                     const QString& letter, const QColor& color) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(centre);
    painter.save();
    painter.rotate(turned);
    const double half = radius * 0.45;
    const QPointF tip(0, -radius), foot(0, radius * 0.45);
    painter.setPen(QPen(color, 1));
    painter.setBrush(color);
    painter.drawPolygon(QPolygonF({tip, foot, QPointF(-half, radius)}));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolygon(QPolygonF({tip, foot, QPointF(half, radius)}));
    painter.restore();
    if (!letter.isEmpty()) {
        const double angle = qDegreesToRadians(turned);
        const double reach = radius + painter.fontMetrics().height() * 0.6;
        const QPointF at(std::sin(angle) * reach, -std::cos(angle) * reach);
        const double box = painter.fontMetrics().height();
        painter.setPen(color);
        painter.drawText(QRectF(at - QPointF(box / 2, box / 2), QSizeF(box, box)), Qt::AlignCenter,
                         letter);
    }
    painter.restore();
}

}  // namespace verandis
