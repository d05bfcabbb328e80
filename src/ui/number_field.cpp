#include "ui/number_field.h"

#include "app/session.h"
#include "text/characters.h"
#include "text/number_guard.h"
#include "text/numbers.h"
#include "ui/qt_text.h"

namespace verandis {

NumberField::NumberField(QWidget* parent) : QLineEdit(parent) {
    // The field tells of an edit before it tells of the change.
    connect(this, &QLineEdit::textEdited, this, &NumberField::Guard);
    connect(this, &QLineEdit::textChanged, this, [this] { before_ = text(); });
}

void NumberField::SetNumber(std::string_view stored) {
    setText(Shown(PointToDecimal(TrimBlanks(stored), session.Decimals)));
}

double NumberField::Number() const {
    return ToNumber(Typed(text()));
}

void NumberField::Guard() {
    if (!guarded_) return;
    const QString typed = text();
    const QString guarded = Shown(GuardedNumber(Typed(before_), Typed(typed)));
    if (guarded == typed) return;
    const auto behindCursor = typed.size() - cursorPosition();
    setText(guarded);
    setCursorPosition(static_cast<int>(guarded.size() - behindCursor));
}

}  // namespace verandis
