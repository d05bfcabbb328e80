#pragma once

#include <QWidget>

#include "dialogs/site.h"

namespace verandis {

/// The building seen from above within a compass; north stands up and stays there while the plan
/// turns. The plan keeps its proportions and its scale at every angle.
class SitePicture : public QWidget {
    Q_OBJECT
public:
    explicit SitePicture(QWidget* parent = nullptr);

    void ShowPlan(const SitePlan& plan);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintCompass(QPainter& painter, double radius);

    SitePlan plan_;
};

}  // namespace verandis
