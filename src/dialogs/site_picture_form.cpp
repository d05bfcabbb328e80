#include "dialogs/site_picture_form.h"

#include <QPainter>
#include <QStringList>
#include <algorithm>
#include <cmath>

#include "ui/controls.h"
#include "ui/polygon.h"
#include "ui/qt_text.h"
#include "ui/theme.h"

namespace verandis {
namespace {

constexpr int kFacingLetters = 807;  // north, east, south, west, parted by blanks
constexpr int kTickStep = 15;        // degrees
constexpr int kLongTickStep = 45;

const QColor kOpaque(190, 80, 0);
const QColor kGlazed(250, 250, 0);
const QColor kOutline(0, 0, 0);

/// The point at an angle, clockwise from north, on a circle around the origin.
QPointF OnCircle(double radius, double degrees) {
    const double radians = degrees * 3.14159265358979 / 180;
    return {radius * std::sin(radians), -radius * std::cos(radians)};
}

}  // namespace

SitePicture::SitePicture(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void SitePicture::ShowPlan(const SitePlan& plan) {
    plan_ = plan;
    update();
}

QSize SitePicture::sizeHint() const {
    const int line = fontMetrics().height();
    return {18 * line, 18 * line};
}

QSize SitePicture::minimumSizeHint() const {
    const int line = fontMetrics().height();
    return {12 * line, 12 * line};
}

void SitePicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect()).center());
    const double letter = fontMetrics().height() + kTightGap;
    const double radius = std::min(width(), height()) / 2.0 - letter;
    PaintCompass(painter, radius);
    if (plan_.radius <= 0) return;
    const double scale = (radius - 1.5 * kGap) / plan_.radius;
    for (const SiteFace& face : plan_.faces) {
        QPolygonF corners;
        for (const PlanPoint& corner : face.corners) {
            corners << QPointF(corner.x * scale, corner.y * scale);
        }
        Polygon(corners, face.glazed ? kGlazed : kOpaque, kOutline).Draw(painter);
    }
}

void SitePicture::PaintCompass(QPainter& painter, double radius) {
    painter.setPen(QPen(TintOf(Tint::Muted, *this), 1));
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawEllipse(QPointF(0, 0), radius, radius);
    for (int degrees = 0; degrees < 360; degrees += kTickStep) {
        const double length = degrees % kLongTickStep == 0 ? kGap : kTightGap;
        painter.drawLine(OnCircle(radius - length, degrees), OnCircle(radius, degrees));
    }
    painter.setPen(palette().color(QPalette::WindowText));
    const double letter = fontMetrics().height();
    int degrees = 0;
    for (const QString& facing : Label(kFacingLetters).split(' ', Qt::SkipEmptyParts)) {
        QRectF box(0, 0, 2 * letter, letter);
        box.moveCenter(OnCircle(radius + letter / 2 + 1, degrees));
        QFont font = painter.font();
        font.setBold(degrees == 0);
        painter.setFont(font);
        painter.drawText(box, Qt::AlignCenter, facing);
        degrees += 90;
    }
}

}  // namespace verandis
