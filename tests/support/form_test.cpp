#include "support/form_test.h"

#include <QAbstractButton>
#include <QApplication>
#include <QStyle>
#include <QStyleOption>

namespace verandis::testing_support {

void Press(QWidget& control) {
    if (!control.isVisible()) throw std::runtime_error("an invisible control is pressed");
    // Boxes and options react on their mark and text, which stand at their left.
    const bool push = !qobject_cast<QAbstractButton*>(&control) ||
                      !static_cast<QAbstractButton&>(control).isCheckable();
    const QPoint at = push ? control.rect().center() : QPoint(8, control.height() / 2);
    QTest::mouseClick(&control, Qt::LeftButton, {}, at);
}

void Type(QWidget& field, const char* text) {
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, QString::fromUtf8(text));
}

}  // namespace verandis::testing_support

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    ::testing::InitGoogleTest(&count, arguments);
    QApplication application(count, arguments);
    return RUN_ALL_TESTS();
}
