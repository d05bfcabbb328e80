#pragma once

#include <QGridLayout>
#include <QHBoxLayout>
#include <QList>
#include <QPushButton>
#include <QString>
#include <QWidget>

// The small building blocks that give every window the same grid, names and keys.

namespace verandis {

inline constexpr int kMargin = 12;  // around the content of a window or frame
inline constexpr int kGap = 8;      // between neighbours
inline constexpr int kTightGap = 4;

/// The widget, with its objectName; a null or empty name is a fault of the caller.
template <class Widget>
Widget* Named(const char* name, Widget* widget) {
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

/// Name of an indexed control: "CommU1_0".
QString IndexedName(const char* name, int index);

/// A grid of one field a row: label (the field's buddy), field, unit.
class FieldGrid : public QGridLayout {
public:
    explicit FieldGrid(QWidget* parent = nullptr);

    /// Appends a row. The label's text also becomes the field's accessible name.
    void AddField(const QString& label, QWidget* field, const QString& unit = {});
};

/// The last row of a dialog: help (may be null) alone at the left, the others at the right with the
/// first of them, the accepting one, as the default button.
QHBoxLayout* MakeButtonRow(QPushButton* help, const QList<QPushButton*>& right);

/// Gives every labelled field, button, box and tab below `window` that has none a letter for Alt,
/// each letter once where the letters suffice. To be called when all texts stand.
void AssignMnemonics(QWidget& window);

}  // namespace verandis
