#pragma once

#include <QList>
#include <QWidget>
#include <string>
#include <vector>

#include "case/plan.h"
#include "ui/plan_painter.h"

namespace verandis {

/// What a colour or line of the drawing means.
struct PlanLegendEntry {
    QString text;
    QColor fill;
    QColor edge;
    double edgeWidth;
    bool line;
};

/// Draws the plan of a shape to scale, building and glass told apart, with an arrow to north; in
/// full detail also the section, the dimensions in metres and a legend. Figures that give no plan
/// show the reason instead. Everything is also told in words to assistive tools.
class PlanView : public QWidget {
    Q_OBJECT
public:
    enum class Detail { Thumbnail, Full };

    /// What turns with the building's rotation: the plan under a fixed arrow, or the arrow beside a
    /// plan that stays square to the window.
    enum class Turning { Plan, Arrow };

    explicit PlanView(QWidget* parent = nullptr);

    void SetDetail(Detail detail);
    void SetTurning(Turning turning);

    /// The section beside the plan in full detail; on at first.
    void SetSection(bool shown);

    /// The letters of the dimension dialogs in front of the figures; off at first.
    void SetLetters(bool shown);

    /// Marks the lines and faces of these elements ("XU204-W" or "XU204").
    void Highlight(std::vector<std::string> elements);

    /// Reads the slot of the open project anew and draws it. A slot without a file shows the
    /// figures that a new case starts from.
    void ShowSlot(const Slot& slot);

    /// Draws figures as they are, say while they are typed.
    void ShowFigures(int shape, const PlanDimensions& dimensions);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintFault(QPainter& painter);
    void KeepADrawing(int shape);
    double PaintStaleReason(QPainter& painter, const QRectF& area);
    void PaintThumbnail(QPainter& painter);
    void PaintFull(QPainter& painter);
    void PaintPair(QPainter& painter, const QRectF& area);
    void PaintOne(QPainter& painter, const ShapeDrawing& drawing, const QRectF& area, double scale,
                  double rotation, const QString& caption);
    double EntryWidth(const QString& text) const;
    std::vector<QList<PlanLegendEntry>> LegendLines(double width) const;
    double PaintLegend(QPainter& painter, const QRectF& area);
    void PaintEntry(QPainter& painter, const PlanLegendEntry& entry, const QRectF& room);
    double PlanRotation() const;
    double ArrowRotation() const;

    int shape_ = 0;
    PlanDimensions dimensions_;
    ShapeDrawing plan_;
    ShapeDrawing section_;
    Detail detail_ = Detail::Full;
    Turning turning_ = Turning::Plan;
    bool withSection_ = true;
    bool letters_ = false;
    bool stale_ = false;  // the drawing is of earlier figures
    PlanFault fault_ = PlanFault::None;
    std::vector<std::string> highlight_;
};

}  // namespace verandis
