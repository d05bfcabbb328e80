#include "ui/plan_view.h"

#include <QPainter>
#include <algorithm>

#include "case/plan_text.h"
#include "ui/controls.h"
#include "ui/qt_text.h"
#include "ui/theme.h"

namespace verandis {
namespace {

constexpr double kStaleOpacity = 0.4;

enum : int {
    kBuildingText = 201,
    kGlazedSpaceText = 203,
    kNorthText = 720,
    kPlanText = 726,
    kSectionText = 727,
    kGlazedFacadeText = 728
};

constexpr double kMostPixelsPerMetre = 60;
constexpr double kWideEnough = 1.3;  // width by height from which the section stands beside

using LegendEntry = PlanLegendEntry;

QList<LegendEntry> LegendOf(const PlanStyle& style, int shape) {
    QList<LegendEntry> entries = {
        {Label(kBuildingText), style.building, style.buildingEdge, 1.4, false},
        {Label(kGlazedSpaceText), style.glass, style.glassEdge, 1.0, false},
    };
    // A court that is closed all around has no glazed facade.
    if (shape != kShapeO) {
        entries.append({Label(kGlazedFacadeText), QColor(), style.glassEdge, 3.0, true});
    }
    return entries;
}

/// Pixels a metre at which a box of metres and its margin in pixels fill the room.
double ScaleFor(const QSizeF& room, const QSizeF& margin, const QSizeF& metres) {
    return std::min((room.width() - margin.width()) / metres.width(),
                    (room.height() - margin.height()) / metres.height());
}

/// The room of two boxes side by side or one above the other.
QSizeF Together(const QSizeF& one, const QSizeF& other, bool beside) {
    if (beside) return {one.width() + other.width(), std::max(one.height(), other.height())};
    return {std::max(one.width(), other.width()), one.height() + other.height()};
}

/// Parts an area so that both boxes have the same free room.
std::pair<QRectF, QRectF> Split(const QRectF& area, const QSizeF& one, const QSizeF& other,
                                bool beside) {
    QRectF first = area;
    QRectF second = area;
    if (beside) {
        first.setRight(area.left() + (area.width() + one.width() - other.width()) / 2);
        second.setLeft(first.right());
    } else {
        first.setBottom(area.top() + (area.height() + one.height() - other.height()) / 2);
        second.setTop(first.bottom());
    }
    return {first, second};
}

}  // namespace

PlanView::PlanView(QWidget* parent) : QWidget(parent) {
    SetDetail(Detail::Full);
}

void PlanView::SetDetail(Detail detail) {
    detail_ = detail;
    const auto policy = detail == Detail::Full ? QSizePolicy::Expanding : QSizePolicy::Preferred;
    setSizePolicy(policy, policy);
    updateGeometry();
    update();
}

void PlanView::SetTurning(Turning turning) {
    turning_ = turning;
    update();
}

void PlanView::SetSection(bool shown) {
    withSection_ = shown;
    update();
}

void PlanView::SetLetters(bool shown) {
    letters_ = shown;
    update();
}

void PlanView::Highlight(std::vector<std::string> elements) {
    highlight_ = std::move(elements);
    update();
}

void PlanView::ShowSlot(const Slot& slot) {
    ShowFigures(slot.shape, ReadPlanDimensions(slot));
}

void PlanView::ShowFigures(int shape, const PlanDimensions& dimensions) {
    shape_ = shape;
    dimensions_ = dimensions;
    ShapeDrawing plan = PlanOf(shape, dimensions);
    ShapeDrawing section = SectionOf(shape, dimensions);
    const PlanFault worst = plan.valid() ? section.fault : plan.fault;
    stale_ = letters_ && worst != PlanFault::None;
    if (stale_) {
        KeepADrawing(shape);
    } else {
        plan_ = std::move(plan);
        section_ = std::move(section);
    }
    fault_ = worst;
    setAccessibleName(Label(kPlanText));
    const std::string fault = PlanFaultText(stale_ ? worst : plan_.fault);
    setAccessibleDescription(Shown(fault.empty() ? PlanDescription(shape, dimensions) : fault));
    setToolTip(Shown(fault));
    update();
}

/// Where letters are told, the last figures that gave a drawing stay, or else those of a new case:
/// a complaint speaks of the letters.
void PlanView::KeepADrawing(int shape) {
    if (plan_.valid() && section_.valid() && !plan_.parts.empty()) return;
    plan_ = PlanOf(shape, DefaultDimensions(shape));
    section_ = SectionOf(shape, DefaultDimensions(shape));
}

QSize PlanView::sizeHint() const {
    const int line = fontMetrics().height();
    return detail_ == Detail::Full ? QSize(line * 34, line * 22) : QSize(line * 5, line * 5);
}

QSize PlanView::minimumSizeHint() const {
    const int line = fontMetrics().height();
    return detail_ == Detail::Full ? QSize(line * 14, line * 11) : QSize(line * 3, line * 3);
}

double PlanView::PlanRotation() const {
    return turning_ == Turning::Plan ? dimensions_.rotation : 0;
}

double PlanView::ArrowRotation() const {
    return turning_ == Turning::Arrow ? dimensions_.rotation : 0;
}

void PlanView::paintEvent(QPaintEvent*) {
    if (!IsShape(shape_)) return;
    QPainter painter(this);
    if (!plan_.valid()) return PaintFault(painter);
    if (detail_ == Detail::Thumbnail) {
        PaintThumbnail(painter);
    } else {
        PaintFull(painter);
    }
}

/// The reason where it has room, else a sign; the tool tip tells it anyway.
void PlanView::PaintFault(QPainter& painter) {
    const int inset = std::min(width(), height()) / 20;
    const QRect room = rect().adjusted(inset, inset, -inset, -inset);
    constexpr int kFlags = Qt::AlignCenter | Qt::TextWordWrap;
    const QString reason = Shown(PlanFaultText(plan_.fault));
    const bool fits = room.contains(painter.boundingRect(room, kFlags, reason));
    painter.setPen(TintOf(Tint::Muted, *this));
    painter.drawText(room, kFlags, fits ? reason : QString("!"));
}

void PlanView::PaintThumbnail(QPainter& painter) {
    PlanStyle style = PlanStyleOf(*this);
    style.highlight = highlight_;
    const double radius = fontMetrics().height() * 0.42;
    QRectF area(rect());
    area.setLeft(area.left() + 2 * radius + 2);
    const double rotation = PlanRotation();
    const double scale =
        ScaleFor(area.size(), TurnedMargin(MeasureMargin(fontMetrics(), style), rotation),
                 TurnedExtent(plan_, rotation));
    if (scale > 0) {
        PaintDrawing(painter, plan_, PlanTransform(plan_, area, scale, rotation), style);
    }
    PaintNorthArrow(painter, QPointF(radius + 1, radius + 2), radius, ArrowRotation(), {},
                    style.measure);
}

/// The reason why the drawing does not follow the figures, at the foot; tells its height.
double PlanView::PaintStaleReason(QPainter& painter, const QRectF& area) {
    const QString reason = Shown(PlanFaultText(fault_));
    constexpr int kFlags = Qt::AlignHCenter | Qt::AlignBottom | Qt::TextWordWrap;
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(area, kFlags, reason);
    painter.setOpacity(kStaleOpacity);
    return painter.boundingRect(area, kFlags, reason).height() + kGap;
}

void PlanView::PaintFull(QPainter& painter) {
    QRectF area = QRectF(rect()).adjusted(kGap, kGap, -kGap, -kGap);
    if (stale_) area.setBottom(area.bottom() - PaintStaleReason(painter, area));
    area.setBottom(area.bottom() - PaintLegend(painter, area) - kGap);
    const double line = fontMetrics().height();
    const double radius = line * 0.8;
    PaintNorthArrow(painter, area.topLeft() + QPointF(radius + line, radius + line), radius,
                    ArrowRotation(), Label(kNorthText), palette().color(QPalette::WindowText));
    area.setLeft(area.left() + 2 * radius + line);
    PaintPair(painter, area);
}

/// Plan and section at the same scale, side by side or one above the other as the room allows.
void PlanView::PaintPair(QPainter& painter, const QRectF& area) {
    PlanStyle style;
    style.measures = true;
    const double margin = MeasureMargin(QFontMetricsF(font()), style);
    const QSizeF caption(0, fontMetrics().height());
    const double rotation = PlanRotation();
    const QSizeF planBox = TurnedExtent(plan_, rotation);
    const QSizeF planMargin = TurnedMargin(margin, rotation) + caption;
    const auto scaleOf = [&](const QSizeF& margins, const QSizeF& box) {
        return std::min(ScaleFor(area.size(), margins, box), kMostPixelsPerMetre);
    };
    if (!withSection_) {
        return PaintOne(painter, plan_, area, scaleOf(planMargin, planBox), rotation, {});
    }
    // A section that cannot be drawn takes the room of a plain box of the building's height.
    const QSizeF cutBox = section_.valid() ? QSizeF(section_.extent.x, section_.extent.y)
                                           : QSizeF(dimensions_.widthB, dimensions_.heightB);
    const QSizeF cutMargin = TurnedMargin(margin, 0) + caption;
    const bool beside = area.width() > area.height() * kWideEnough;
    const double scale =
        scaleOf(Together(planMargin, cutMargin, beside), Together(planBox, cutBox, beside));
    const auto [first, second] =
        Split(area, planBox * scale + planMargin, cutBox * scale + cutMargin, beside);
    PaintOne(painter, plan_, first, scale, rotation, Label(kPlanText));
    PaintOne(painter, section_, second, scale, 0, Label(kSectionText));
}

void PlanView::PaintOne(QPainter& painter, const ShapeDrawing& drawing, const QRectF& area,
                        double scale, double rotation, const QString& caption) {
    PlanStyle style = PlanStyleOf(*this);
    style.measures = true;
    style.letters = letters_;
    style.highlight = highlight_;
    QRectF room = area;
    room.setBottom(area.bottom() - fontMetrics().height());
    if (!drawing.valid()) {
        painter.setPen(style.measure);
        painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap,
                         Shown(PlanFaultText(drawing.fault)));
    } else if (scale > 0) {
        PaintDrawing(painter, drawing, PlanTransform(drawing, room, scale, rotation), style);
    }
    painter.setPen(style.measure);
    painter.drawText(QRectF(area.left(), room.bottom(), area.width(), fontMetrics().height()),
                     Qt::AlignCenter | Qt::TextSingleLine, caption);
}

double PlanView::EntryWidth(const QString& text) const {
    return fontMetrics().height() * 0.8 + kTightGap + fontMetrics().horizontalAdvance(text) +
           2 * kGap;
}

/// The legend's entries in as many lines as they need.
std::vector<QList<PlanLegendEntry>> PlanView::LegendLines(double width) const {
    std::vector<QList<LegendEntry>> lines(1);
    double used = 0;
    for (const LegendEntry& entry : LegendOf(PlanStyleOf(*this), shape_)) {
        used += EntryWidth(entry.text);
        if (used - 2 * kGap > width && !lines.back().isEmpty()) {
            lines.emplace_back();
            used = EntryWidth(entry.text);
        }
        lines.back().append(entry);
    }
    return lines;
}

/// Draws the legend at the foot of the area and tells its height.
double PlanView::PaintLegend(QPainter& painter, const QRectF& area) {
    const auto lines = LegendLines(area.width());
    const double height = fontMetrics().height() + kTightGap;
    double y = area.bottom() - height * static_cast<double>(lines.size());
    for (const QList<LegendEntry>& line : lines) {
        double total = -2 * kGap;
        for (const LegendEntry& entry : line) total += EntryWidth(entry.text);
        double x = area.left() + std::max(0.0, (area.width() - total) / 2);
        for (const LegendEntry& entry : line) {
            PaintEntry(painter, entry, QRectF(x, y, EntryWidth(entry.text), height));
            x += EntryWidth(entry.text);
        }
        y += height;
    }
    return height * static_cast<double>(lines.size());
}

void PlanView::PaintEntry(QPainter& painter, const PlanLegendEntry& entry, const QRectF& room) {
    const double box = fontMetrics().height() * 0.8;
    const QRectF sign(room.left(), room.center().y() - box / 2, box, box);
    painter.setPen(QPen(entry.edge, entry.edgeWidth));
    if (entry.line) {
        painter.drawLine(QLineF(sign.left(), sign.center().y(), sign.right(), sign.center().y()));
    } else {
        painter.setBrush(entry.fill);
        painter.drawRect(sign);
    }
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(room.adjusted(box + kTightGap, 0, 0, 0), Qt::AlignVCenter | Qt::TextSingleLine,
                     entry.text);
}

}  // namespace verandis
