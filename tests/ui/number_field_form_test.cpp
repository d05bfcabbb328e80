#include "ui/number_field.h"

#include "app/session.h"
#include "support/form_test.h"

namespace verandis {
namespace {

using NumberFields = testing_support::SessionTest;

TEST_F(NumberFields, GuardWhatIsTypedAndKeepTheCursorAtItsPlace) {
    session.Decimals = DecimalMode::Comma;
    NumberField field;
    field.show();
    field.SetNumber(" 12.5");
    EXPECT_EQ(field.text(), "12,5");
    field.setCursorPosition(1);
    QTest::keyClicks(&field, "x3.4");
    EXPECT_EQ(field.text(), "13*42,5");
    EXPECT_EQ(field.cursorPosition(), 4);
    QTest::keyClick(&field, Qt::Key_Backspace);
    QTest::keyClick(&field, Qt::Key_Backspace);
    EXPECT_EQ(field.text(), "132,5");
    EXPECT_EQ(field.Number(), 132.5);
    field.setText("twelve");
    EXPECT_EQ(field.text(), "twelve") << "what a file held is shown";
}

}  // namespace
}  // namespace verandis
