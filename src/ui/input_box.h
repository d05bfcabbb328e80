#pragma once

#include <QDialog>
#include <QLabel>
#include <optional>
#include <string>

#include "ui/number_field.h"

namespace verandis {

/// What an input box asks for.
struct InputQuestion {
    std::string prompt;
    std::string title;
    std::string initial;
    std::optional<int> longest = std::nullopt;  // characters that can be typed
    bool numeric = false;                       // only a number is taken
    double least = 0;                           // bounds of a number, heeded when least < most
    double most = 0;
};

/// The shared input dialog: one line of text. Ok checks a numeric reply and keeps the box open when
/// it is none or lies outside its bounds.
class InpBox : public QDialog {
    Q_OBJECT
public:
    explicit InpBox(QWidget* parent = nullptr);

    void Ask(const InputQuestion& question);
    std::string reply() const;

    void accept() override;

private:
    InputQuestion question_;
    QLabel* Label1;
    NumberField* Text1;
};

}  // namespace verandis
