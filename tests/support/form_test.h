#pragma once

#include <QTest>
#include <QWidget>
#include <stdexcept>
#include <string>

#include "support/session_test.h"

namespace verandis::testing_support {

/// The control of this objectName; a wrong name or kind fails the test.
template <class Widget = QWidget>
Widget& Control(QObject& window, const char* name) {
    auto* found = window.findChild<Widget*>(name);
    if (!found) throw std::runtime_error(std::string("no control named ") + name);
    return *found;
}

/// Clicks the middle of a visible control (a box or option at its mark) with the left button.
void Press(QWidget& control);

/// Replaces the text of a field by typing.
void Type(QWidget& field, const char* text);

}  // namespace verandis::testing_support
