#pragma once

#include <QColor>
#include <QPainter>
#include <QTransform>
#include <string>
#include <vector>

#include "case/plan.h"

namespace verandis {

/// How a plan or section is drawn.
struct PlanStyle {
    QColor building;
    QColor buildingEdge;
    QColor glass;
    QColor glassEdge;
    QColor text;
    QColor measure;  // dimension lines
    QColor accent;   // the highlighted elements
    bool measures = false;
    bool letters = false;                // in front of each measure's value
    std::vector<std::string> highlight;  // elements' identifiers, whole or short
};

/// Colours for a widget's palette.
PlanStyle PlanStyleOf(const QWidget& widget);

/// Pixels that the dimension lines take at each side of a drawing.
double MeasureMargin(const QFontMetricsF& metrics, const PlanStyle& style);

/// The upright box, in m, that a drawing needs when it is turned anti-clockwise by `rotation`
/// degrees.
QSizeF TurnedExtent(const ShapeDrawing& drawing, double rotation);

/// The same for a margin of one pixel on each side: what has to be left free, in pixels.
QSizeF TurnedMargin(double margin, double rotation);

/// From the drawing's metres to pixels: turned and centred in `area`, `scale` pixels a metre.
QTransform PlanTransform(const ShapeDrawing& drawing, const QRectF& area, double scale,
                         double rotation);

/// Draws a plan or section.
void PaintDrawing(QPainter& painter, const ShapeDrawing& drawing, const QTransform& toPixels,
                  const PlanStyle& style);

/// Draws the arrow to north, turned clockwise by `turned` degrees from straight up, within a circle
/// of this radius; the letter is left out when empty.
void PaintNorthArrow(QPainter& painter, const QPointF& centre, double radius, double turned,
                     const QString& letter, const QColor& color);

}  // namespace verandis
