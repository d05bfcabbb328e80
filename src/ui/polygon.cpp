#include "ui/polygon.h"

#include <utility>

namespace verandis {

Polygon::Polygon(QPolygonF corners, QColor fill, QColor outline)
    : corners_(std::move(corners)), fill_(fill), outline_(outline) {}

void Polygon::Draw(QPainter& painter) const {
    const QPen pen = painter.pen();
    const QBrush brush = painter.brush();
    painter.setPen(QPen(outline_, 1));
    painter.setBrush(fill_);
    painter.drawPolygon(corners_);
    painter.setPen(pen);
    painter.setBrush(brush);
}

}  // namespace verandis
