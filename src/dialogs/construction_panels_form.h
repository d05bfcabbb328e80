#pragma once

#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "dialogs/construction_groups.h"

// The parts that the glazing dialogs and the dialogs of opaque constructions share.

namespace verandis {

/// The groups as options, each with its present type beside it and its elements as a tool tip.
class GroupOptions : public QWidget {
    Q_OBJECT
public:
    explicit GroupOptions(QWidget* parent = nullptr);

    /// Adds options under a heading; an empty heading adds none.
    void AddGroups(const QString& heading, std::span<const ElementGroup> groups);

    /// Sets the mark at the option of this code, or at none.
    void Mark(std::uint16_t code);

    /// Asks anew what stands beside each option.
    void ShowPresent(const std::function<std::string(const ElementGroup&)>& present);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void Chosen(std::uint16_t code);

    /// The right mouse button on an option of a wall with a window.
    void CopyAsked();

private:
    struct Row {
        ElementGroup group;
        QRadioButton* option;
        QLabel* present;
    };

    void AddGroup(const ElementGroup& group);

    QGridLayout* grid_;
    QButtonGroup* options_;
    std::vector<Row> rows_;
};

/// Names of the controls of a library's list; the figures may be fewer.
struct TypeListNames {
    const char* heading;
    const char* list;
    int text;  // catalogue text of the heading
    struct Figure {
        const char* control;
        int text;
        const char* unit;
    };
    std::vector<Figure> figures;
};

/// A library's types to choose from, with read-only figures of the current one. Disabling it
/// disables the list, its figures and all their labels.
class TypeList : public QWidget {
    Q_OBJECT
public:
    explicit TypeList(const TypeListNames& names, QWidget* parent = nullptr);

    void Fill(const std::vector<std::string>& types);

    /// Moves to a row from 0 (-1: none); an unchanged row tells nothing.
    void SetRow(int row);
    void SetFigures(const std::vector<std::string>& figures);

signals:
    void RowChanged(int row);

private:
    QLayout* MakeFigures(const TypeListNames& names);

    QListWidget* list_;
    std::vector<QLineEdit*> figures_;
};

/// A label in the colour of remarks that breaks its lines.
QLabel* MakeRemark(const QString& text);

}  // namespace verandis
