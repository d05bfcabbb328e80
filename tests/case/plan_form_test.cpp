#include <QPainter>

#include "app/data_root.h"
#include "app/program_text.h"
#include "app/session.h"
#include "support/form_test.h"
#include "ui/plan_view.h"
#include "ui/theme.h"

namespace verandis {
namespace {

using testing_support::SmallRootTest;

class PlanPicture : public SmallRootTest {
protected:
    PlanPicture() {
        session.SimulatorFolder = DeliveredFolder() + "/MWTHARM";
        LoadProgramText();
        view.SetDetail(PlanView::Detail::Thumbnail);
        view.resize(120, 100);
    }

    QImage Picture() {
        view.show();
        return view.grab().toImage().convertToFormat(QImage::Format_RGB32);
    }

    /// Middle of the pixels of a tint, in parts of the picture; (-1, -1) when there are none.
    QPointF MiddleOf(Tint tint) {
        const QImage image = Picture();
        QPointF sum;
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) != TintOf(tint, view)) continue;
                sum += QPointF(x, y);
                ++count;
            }
        }
        if (count == 0) return {-1, -1};
        return {sum.x() / count / image.width(), sum.y() / count / image.height()};
    }

    PlanView view;
};

struct Turn {
    double rotation;
    double dx;  // where the glass lies against the building, right and down
    double dy;
};

// The glazed court of shape U opens to the south: down on the sheet. A turn is anti-clockwise.
constexpr Turn kTurns[] = {{0, 0, 1}, {90, 1, 0}, {180, 0, -1}, {-90, -1, 0}};

TEST_F(PlanPicture, TurnsTheOpenSideWithTheBuilding) {
    for (const Turn& turn : kTurns) {
        PlanDimensions figures = DefaultDimensions(kShapeU);
        figures.rotation = turn.rotation;
        view.ShowFigures(kShapeU, figures);
        const QPointF way = MiddleOf(Tint::Glass) - MiddleOf(Tint::Building);
        EXPECT_GT(way.x() * turn.dx + way.y() * turn.dy, 0.1) << turn.rotation;
        EXPECT_LT(std::abs(way.x() * turn.dy) + std::abs(way.y() * turn.dx), 0.05) << turn.rotation;
        view.SetTurning(PlanView::Turning::Arrow);
        const QPointF still = MiddleOf(Tint::Glass) - MiddleOf(Tint::Building);
        EXPECT_GT(still.y(), 0.1) << turn.rotation;
        view.SetTurning(PlanView::Turning::Plan);
    }
}

TEST_F(PlanPicture, ReadsItsSlotAnewEachTime) {
    MakeSlot({kShapeU, 1}, "DIMENSION_WIDTHB\t 30\n");
    view.ShowSlot({kShapeU, 1});
    EXPECT_TRUE(view.accessibleDescription().contains("30 x 21 m")) << "see the description";
    MakeSlot({kShapeU, 1}, "DIMENSION_WIDTHB\t 8\n");
    view.ShowSlot({kShapeU, 1});
    EXPECT_EQ(view.accessibleDescription(), "The glazed space must be narrower than the building");
    EXPECT_EQ(MiddleOf(Tint::Glass), QPointF(-1, -1));
}

TEST_F(PlanPicture, StaysWithinEveryRoom) {
    for (const auto detail : {PlanView::Detail::Thumbnail, PlanView::Detail::Full}) {
        for (const QSize room : {QSize(1, 1), QSize(40, 30), QSize(900, 60), QSize(900, 500)}) {
            for (const int shape : {kShapeU, kShapeO, kShapeV, kShapeI}) {
                PlanDimensions figures = DefaultDimensions(shape);
                figures.rotation = 33;
                view.SetDetail(detail);
                view.resize(room);
                view.ShowFigures(shape, figures);
                const QImage image = Picture();
                // Nothing of the building is cut by the frame.
                for (int x = 0; x < image.width() && image.height() > 99; ++x) {
                    EXPECT_NE(image.pixelColor(x, 0), TintOf(Tint::Building, view)) << x;
                }
            }
        }
    }
    EXPECT_NE(MiddleOf(Tint::Glass), QPointF(-1, -1));
}

TEST_F(PlanPicture, MarksOneElementOnly) {
    PlanDimensions figures = DefaultDimensions(kShapeU);
    view.ShowFigures(kShapeU, figures);
    EXPECT_EQ(MiddleOf(Tint::Accent), QPointF(-1, -1));
    view.Highlight({"XU001-W"});
    EXPECT_LT(MiddleOf(Tint::Accent).x(), MiddleOf(Tint::Building).x() - 0.1);
    view.Highlight({"XU201"});
    EXPECT_GT(MiddleOf(Tint::Accent).y(), MiddleOf(Tint::Building).y() + 0.1);
}

}  // namespace
}  // namespace verandis
