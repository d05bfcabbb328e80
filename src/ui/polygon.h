#pragma once

#include <QColor>
#include <QPainter>
#include <QPolygonF>

namespace verandis {

/// A filled face with an outline, in the coordinates of the painter.
class Polygon {
public:
    Polygon(QPolygonF corners, QColor fill, QColor outline);

    /// Draws the face; pen and brush of the painter are as before afterwards.
    void Draw(QPainter& painter) const;

private:
    QPolygonF corners_;
    QColor fill_;
    QColor outline_;
};

}  // namespace verandis
