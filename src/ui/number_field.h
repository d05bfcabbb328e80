#pragma once

#include <QLineEdit>
#include <string>
#include <string_view>

namespace verandis {

/// A field for one number: what is typed passes `GuardedNumber`, what the program sets stands as it
/// is. A listener to `textChanged` reads `text()`, not the signal's argument, which may still hold
/// what was refused.
class NumberField : public QLineEdit {
    Q_OBJECT
public:
    explicit NumberField(QWidget* parent = nullptr);

    /// Shows a number as data hold it, with the session's decimal sign and without outer blanks.
    void SetNumber(std::string_view stored);

    /// The number of the text, read with either decimal sign; 0 when it holds none.
    double Number() const;

    /// Whether typing is guarded; it is at first. A field that takes words and numbers switches it.
    void SetGuarded(bool guarded) { guarded_ = guarded; }

private:
    void Guard();

    bool guarded_ = true;

    QString before_;  // the text in front of the user's last change
};

}  // namespace verandis
