#include "results/diagram_chart_form.h"

#include <QCategoryAxis>
#include <QChart>
#include <QFontInfo>
#include <QGraphicsLayout>
#include <QKeyEvent>
#include <QLineSeries>
#include <QLocale>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "app/session.h"
#include "results/diagram_texts.h"
#include "ui/controls.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

constexpr int kNothingText = 619;

constexpr std::size_t kMostMarkedPoints = 31;  // a denser curve is a line alone
constexpr double kReach = 14;                  // pixels from the pointer to a point

QColor Mixed(const QColor& color, const QColor& ground, double share) {
    const auto mix = [share](int a, int b) {
        return static_cast<int>(a * share + b * (1 - share));
    };
    return QColor(mix(color.red(), ground.red()), mix(color.green(), ground.green()),
                  mix(color.blue(), ground.blue()));
}

/// Figures on screen carry the session's decimal sign; German has the comma and a plain minus.
QLocale ShownLocale() {
    QLocale locale =
        session.Decimals == DecimalMode::Comma ? QLocale(QLocale::German) : QLocale::c();
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale;
}

QCategoryAxis* MonthAxis() {
    auto* axis = new QCategoryAxis;
    axis->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    for (int month = 1; month <= 12; ++month) axis->append(Shown(MonthName(month)), month);
    axis->setRange(0.5, 12.5);
    return axis;
}

void SetScale(QValueAxis& axis, const DiagramAxis& scale) {
    axis.setRange(scale.least, scale.most);
    axis.setTickCount(static_cast<int>(std::lround((scale.most - scale.least) / scale.step)) + 1);
    axis.setLabelFormat(QString("%.%1f").arg(DecimalsOf(scale)));
}

}  // namespace

DiagramChart::DiagramChart(QWidget* parent) : QChartView(parent) {
    setRenderHint(QPainter::Antialiasing);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    viewport()->setMouseTracking(true);
    chart()->legend()->hide();
    chart()->setLocalizeNumbers(true);
    chart()->setBackgroundRoundness(0);
    chart()->layout()->setContentsMargins(0, 0, 0, 0);
    vertical_ = new QValueAxis;
    months_ = MonthAxis();
    values_ = new QValueAxis;
    chart()->addAxis(vertical_, Qt::AlignLeft);
    chart()->addAxis(months_, Qt::AlignBottom);
    chart()->addAxis(values_, Qt::AlignBottom);
    AddSeriesPool();
    AddActions();
    ApplyTheme(palette());
    SetDiagram({});
}

void DiagramChart::AddSeriesPool() {
    for (Drawn& drawn : pool_) {
        drawn = {new QLineSeries, new QScatterSeries};
        for (QXYSeries* series :
             {static_cast<QXYSeries*>(drawn.line), static_cast<QXYSeries*>(drawn.marks)}) {
            chart()->addSeries(series);
            series->attachAxis(vertical_);
        }
    }
}

void DiagramChart::SetDiagram(const Diagram& diagram) {
    diagram_ = diagram;
    current_.reset();
    UseHorizontalAxis(diagram.months);
    FillAxes();
    FillSeries();
    ShowSeries();
}

void DiagramChart::ShowQuantities(bool first, bool second) {
    firstShown_ = first;
    secondShown_ = second;
    SetCurrent(std::nullopt, false);
    ShowSeries();
}

Diagram DiagramChart::ShownDiagram() const {
    return WithShown(diagram_, firstShown_, secondShown_);
}

void DiagramChart::UseHorizontalAxis(bool months) {
    QAbstractAxis* wanted = months ? months_ : values_;
    if (wanted == horizontal_) return;
    for (const Drawn& drawn : pool_) {
        for (QXYSeries* series :
             {static_cast<QXYSeries*>(drawn.line), static_cast<QXYSeries*>(drawn.marks)}) {
            if (horizontal_) series->detachAxis(horizontal_);
            series->attachAxis(wanted);
        }
    }
    horizontal_ = wanted;
    months_->setVisible(months);
    values_->setVisible(!months);
}

void DiagramChart::FillAxes() {
    chart()->setLocale(ShownLocale());
    chart()->setTitle(Shown(diagram_.title).toHtmlEscaped());
    horizontal_->setTitleText(Shown(diagram_.horizontalTitle).toHtmlEscaped());
    SetScale(*vertical_, diagram_.axis);
    if (!diagram_.months) SetScale(*values_, diagram_.horizontal);
}

DiagramChart::Drawn& DiagramChart::DrawnOf(const DiagramSeries& series) {
    const int column = 2 * (series.number - 1) + (series.second ? 1 : 0);
    return pool_[static_cast<std::size_t>(column) % pool_.size()];
}

void DiagramChart::FillSeries() {
    for (Drawn& drawn : pool_) {
        drawn.line->clear();
        drawn.marks->clear();
    }
    for (const DiagramSeries& series : diagram_.series) {
        QList<QPointF> points;
        for (const DiagramPoint& point : series.points) points.append({point.x, point.y});
        Drawn& drawn = DrawnOf(series);
        drawn.line->setName(Shown(LegendText(series)));
        drawn.line->replace(points);
        if (series.points.size() <= kMostMarkedPoints) drawn.marks->replace(points);
    }
}

bool DiagramChart::IsShown(const DiagramSeries& series) const {
    return series.second ? secondShown_ : firstShown_;
}

void DiagramChart::ShowSeries() {
    for (const DiagramSeries& series : diagram_.series) {
        const Drawn& drawn = DrawnOf(series);
        drawn.line->setVisible(IsShown(series));
        drawn.marks->setVisible(IsShown(series));
    }
    setAccessibleName(Shown(DiagramSummary(ShownDiagram())));
    ArrangeTexts();
}

void DiagramChart::ApplyTheme(const QPalette& colors) {
    ground_ = colors.color(QPalette::Base);
    text_ = colors.color(QPalette::Text);
    chart()->setBackgroundBrush(ground_);
    chart()->setBackgroundPen(Qt::NoPen);
    setBackgroundBrush(ground_);
    QFont title = font();
    title.setBold(true);
    chart()->setTitleFont(title);
    chart()->setTitleBrush(text_);
    for (QAbstractAxis* axis : chart()->axes()) {
        axis->setLabelsFont(font());
        axis->setTitleFont(font());
        axis->setLabelsColor(text_);
        axis->setTitleBrush(text_);
        axis->setLinePen(QPen(Mixed(text_, ground_, 0.45), 1));
        axis->setGridLinePen(QPen(Mixed(text_, ground_, 0.14), 1));
    }
    for (std::size_t at = 0; at < pool_.size(); ++at) {
        const SeriesLook look = LookOf(static_cast<int>(at / 2) + 1, at % 2 == 1, ground_);
        pool_[at].line->setPen(look.line);
        pool_[at].marks->setMarkerShape(look.shape);
        pool_[at].marks->setMarkerSize(look.markSize);
        pool_[at].marks->setPen(look.markEdge);
        pool_[at].marks->setBrush(look.markFill);
    }
}

/// Legend and axis title depend on the room that there is.
void DiagramChart::ArrangeTexts() {
    std::vector<LegendEntry> entries;
    for (const DiagramSeries& series : diagram_.series) {
        if (!IsShown(series)) continue;
        entries.push_back(
            {Shown(LegendText(series)), LookOf(series.number, series.second, ground_)});
    }
    const QFontMetricsF metrics(font());
    legend_.Arrange(entries, chart()->size().width() - 2 * kGap, metrics);
    const int below = static_cast<int>(legend_.height()) + kTightGap;
    chart()->setMargins(QMargins(kGap, kTightGap, kMargin, below));
    const QString whole = Shown(VerticalAxisTitle(diagram_));
    const double room = chart()->size().height() - below - 5.5 * metrics.height();
    const bool fits = metrics.horizontalAdvance(whole) < room;
    vertical_->setTitleText((fits ? whole : Shown(ValueUnit(diagram_))).toHtmlEscaped());
    viewport()->update();
}

QPointF DiagramChart::PositionOf(const PointPlace& place) const {
    const DiagramSeries& series = diagram_.series[place.series];
    const DiagramPoint& point = series.points[place.point];
    auto* line = const_cast<DiagramChart*>(this)->DrawnOf(series).line;
    return chart()->mapToPosition({point.x, point.y}, line);
}

std::optional<DiagramChart::PointPlace> DiagramChart::NearestTo(const QPoint& place) const {
    std::optional<PointPlace> nearest;
    double least = kReach;
    for (std::size_t at = 0; at < diagram_.series.size(); ++at) {
        if (!IsShown(diagram_.series[at])) continue;
        for (std::size_t point = 0; point < diagram_.series[at].points.size(); ++point) {
            const QPointF apart = PositionOf({at, point}) - mapToScene(place);
            const double distance = std::hypot(apart.x(), apart.y());
            if (distance >= least) continue;
            least = distance;
            nearest = PointPlace{at, point};
        }
    }
    return nearest;
}

QString DiagramChart::ValueAt(const QPoint& place) const {
    const auto found = NearestTo(place);
    if (!found) return {};
    return Shown(PointText(diagram_, diagram_.series[found->series], found->point));
}

void DiagramChart::SetCurrent(const std::optional<PointPlace>& place, bool tell) {
    if (place == current_) return;
    current_ = place;
    viewport()->update();
    if (tell) Tell();
}

void DiagramChart::Tell() {
    if (!current_) return QToolTip::hideText();
    const QString value =
        Shown(PointText(diagram_, diagram_.series[current_->series], current_->point));
    const QPoint below = mapFromScene(PositionOf(*current_)) + QPoint(0, kMargin);
    QToolTip::showText(viewport()->mapToGlobal(below), value.toHtmlEscaped(), this);
    setAccessibleDescription(value);
}

/// To the next or previous series that is shown, round the end.
void DiagramChart::StepSeries(int step) {
    const std::size_t count = diagram_.series.size();
    std::size_t at = current_ ? current_->series : (step > 0 ? count - 1 : 0);
    for (std::size_t tried = 0; tried < count; ++tried) {
        at = (at + count + static_cast<std::size_t>(step + 1) - 1) % count;
        const DiagramSeries& series = diagram_.series[at];
        if (!IsShown(series) || series.points.empty()) continue;
        const std::size_t point = current_ ? current_->point : 0;
        return SetCurrent(PointPlace{at, std::min(point, series.points.size() - 1)}, true);
    }
}

void DiagramChart::StepPoint(int step) {
    if (!current_) return StepSeries(1);
    const auto most = static_cast<int>(diagram_.series[current_->series].points.size()) - 1;
    const int point = std::clamp(static_cast<int>(current_->point) + step, 0, most);
    SetCurrent(PointPlace{current_->series, static_cast<std::size_t>(point)}, true);
}

void DiagramChart::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left: return StepPoint(-1);
        case Qt::Key_Right: return StepPoint(1);
        case Qt::Key_Up: return StepSeries(-1);
        case Qt::Key_Down: return StepSeries(1);
        case Qt::Key_Return:
        case Qt::Key_Enter: emit EnlargeWanted(); return;
        default: event->ignore();
    }
}

void DiagramChart::mouseMoveEvent(QMouseEvent* event) {
    QChartView::mouseMoveEvent(event);
    SetCurrent(NearestTo(event->pos()), true);
}

void DiagramChart::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) emit EnlargeWanted();
}

void DiagramChart::leaveEvent(QEvent* event) {
    QChartView::leaveEvent(event);
    SetCurrent(std::nullopt, true);
}

void DiagramChart::focusInEvent(QFocusEvent* event) {
    QChartView::focusInEvent(event);
    viewport()->update();
}

void DiagramChart::focusOutEvent(QFocusEvent* event) {
    QChartView::focusOutEvent(event);
    SetCurrent(std::nullopt, true);
    viewport()->update();
}

void DiagramChart::resizeEvent(QResizeEvent* event) {
    QChartView::resizeEvent(event);
    ArrangeTexts();
}

void DiagramChart::changeEvent(QEvent* event) {
    QChartView::changeEvent(event);
    if (event->type() != QEvent::PaletteChange && event->type() != QEvent::FontChange) return;
    ApplyTheme(palette());
    ArrangeTexts();
}

/// Legend, or the word that there is nothing, in the coordinates of the scene.
void DiagramChart::DrawTexts(QPainter& painter) const {
    QFont exact = font();
    exact.setPixelSize(QFontInfo(exact).pixelSize());  // so that it grows with the painter
    painter.setFont(exact);
    const QRectF whole(QPointF(0, 0), chart()->size());
    const qreal top = whole.bottom() - legend_.height() - kTightGap / 2.0;
    legend_.Draw(painter, {whole.left() + kGap, top}, text_);
    if (!diagram_.series.empty()) return;
    painter.setPen(Mixed(text_, ground_, 0.65));
    painter.drawText(chart()->plotArea(), Qt::AlignCenter, Label(kNothingText));
}

void DiagramChart::drawForeground(QPainter* painter, const QRectF&) {
    painter->save();
    DrawTexts(*painter);
    painter->setBrush(Qt::NoBrush);
    if (current_) {
        painter->setPen(QPen(text_, 1.5));
        painter->drawEllipse(PositionOf(*current_), 7, 7);
    }
    if (hasFocus()) {
        painter->setPen(QPen(palette().color(QPalette::Highlight), 1));
        painter->drawRect(QRectF(viewport()->rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    }
    painter->restore();
}

}  // namespace verandis
