#pragma once

#include <QChartView>
#include <QValueAxis>
#include <array>
#include <cstddef>
#include <optional>
#include <string>

#include "results/diagram_look_form.h"
#include "results/diagrams.h"
#include "ui/output.h"

QT_BEGIN_NAMESPACE
class QLineSeries;
QT_END_NAMESPACE

namespace verandis {

/// A chart of one diagram. Values show under the pointer, or step by step with the arrow keys; the
/// context menu copies, saves and prints. What leaves the window is drawn dark on white, whatever
/// the palette.
class DiagramChart : public QChartView {
    Q_OBJECT
public:
    explicit DiagramChart(QWidget* parent = nullptr);

    /// Replaces titles, scales and points; shown quantities stay as they are.
    void SetDiagram(const Diagram& diagram);
    const Diagram& diagram() const { return diagram_; }

    /// Shows or hides the series of each quantity; scales stay.
    void ShowQuantities(bool first, bool second);
    bool firstShown() const { return firstShown_; }
    bool secondShown() const { return secondShown_; }

    /// The diagram with the series that are to be seen.
    Diagram ShownDiagram() const;

    /// What the value at a place of the widget tells; empty when no point is near.
    QString ValueAt(const QPoint& place) const;

    /// The chart at its size, with twice as many pixels each way.
    QImage Picture();

    /// Draws the chart into a rectangle, laid out for its proportions; texts grow with its width.
    void DrawOn(QPainter& painter, const QRectF& target);

    void CopyPicture();
    void CopyCsv();
    bool SavePicture(const std::string& path);  // PNG; tells when it fails
    bool SaveCsv(const std::string& path);      // UTF-8; tells when it fails
    bool SavePdf(const std::string& path);      // a landscape page; tells when it fails
    void Print();                               // by the print dialog

signals:
    /// By double click, Enter or the context menu.
    void EnlargeWanted();

protected:
    void changeEvent(QEvent* event) override;
    void drawForeground(QPainter* painter, const QRectF& area) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Drawn {
        QLineSeries* line;
        QScatterSeries* marks;
    };
    struct PointPlace {
        std::size_t series;
        std::size_t point;
        friend bool operator==(const PointPlace&, const PointPlace&) = default;
    };

    void AddActions();
    PrintJob Page();
    void AddSeriesPool();
    void UseHorizontalAxis(bool months);
    void FillSeries();
    void FillAxes();
    void ShowSeries();
    void ApplyTheme(const QPalette& palette);
    void ArrangeTexts();
    void DrawTexts(QPainter& painter) const;
    void Tell();
    Drawn& DrawnOf(const DiagramSeries& series);
    bool IsShown(const DiagramSeries& series) const;
    QPointF PositionOf(const PointPlace& place) const;
    std::optional<PointPlace> NearestTo(const QPoint& place) const;
    void SetCurrent(const std::optional<PointPlace>& place, bool tell);
    void StepSeries(int step);
    void StepPoint(int step);
    void AskAndSave(int title, const char* ending, bool (DiagramChart::*save)(const std::string&));

    Diagram diagram_;
    bool firstShown_ = true;
    bool secondShown_ = true;
    std::array<Drawn, 2 * kMostMarkedCases> pool_{};  // two columns a case
    QValueAxis* vertical_ = nullptr;
    QAbstractAxis* months_ = nullptr;
    QValueAxis* values_ = nullptr;
    QAbstractAxis* horizontal_ = nullptr;  // one of the two; the other is hidden
    DiagramLegend legend_;
    QColor ground_;
    QColor text_;
    std::optional<PointPlace> current_;
};

}  // namespace verandis
