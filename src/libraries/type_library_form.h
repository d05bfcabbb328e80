#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QList>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include "libraries/type_editor.h"

namespace verandis {

struct TypeLibraryLayout;

/// A library of the simple side: its types in a list, the chosen one in fields. Closing in any way
/// neither stores nor restores; what was changed lasts until the library is read again.
class TypeLibraryForm : public QDialog {
    Q_OBJECT
protected:
    TypeLibraryForm(const TypeLibraryLayout& layout, QWidget* parent);

private:
    QLayout* MakeOptions();
    QLayout* MakeList();
    QLayout* MakeFields();
    QLayout* MakeButtons();
    void Connect();
    void Do(std::string (TypeEditor::*step)());
    void ChooseRow(int row);
    void TakeEntry();
    void Show(const std::string& focus);
    void ShowRows();
    QString Remark() const;

    const TypeLibraryLayout& layout_;
    TypeEditor editor_;
    QRadioButton* Option1 = nullptr;  // of the window library alone
    QRadioButton* Option2 = nullptr;
    QLabel* Label1;
    QListWidget* List1;
    QLabel* remark_;
    QList<QLineEdit*> fields_;  // in the order of the layout
    QPushButton* help_;
    QPushButton* contents_;
    QPushButton* close_;
    QPushButton* cancel_;
    QPushButton* add_;
    QPushButton* delete_;
};

/// The window types that cases choose from and the reference windows.
class ReferenceWindowsLib : public TypeLibraryForm {
    Q_OBJECT
public:
    explicit ReferenceWindowsLib(QWidget* parent = nullptr);
};

/// The wall types.
class OpaqueWallsLib : public TypeLibraryForm {
    Q_OBJECT
public:
    explicit OpaqueWallsLib(QWidget* parent = nullptr);
};

}  // namespace verandis
