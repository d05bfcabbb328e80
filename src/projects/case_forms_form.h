#pragma once

#include "projects/list_dialog_form.h"

// The dialogs of the project and case lists. They share their names with the routines that do the
// work, and so have a namespace of their own.

namespace verandis::forms {

/// Makes a project of a typed name and opens it.
class NewProject : public ListDialog {
    Q_OBJECT
public:
    explicit NewProject(QWidget* parent = nullptr);
};

/// Opens the chosen project.
class OpenProject : public ListDialog {
    Q_OBJECT
public:
    explicit OpenProject(QWidget* parent = nullptr);
};

/// Copies the chosen project, without its results, to a new one that is then open.
class CopyProject : public ListDialog {
    Q_OBJECT
public:
    explicit CopyProject(QWidget* parent = nullptr);
};

/// Gives the chosen project another name; its folder stays.
class RenProject : public ListDialog {
    Q_OBJECT
public:
    explicit RenProject(QWidget* parent = nullptr);
};

/// Asks about the chosen project and deletes it with its folder.
class DelProject : public ListDialog {
    Q_OBJECT
public:
    explicit DelProject(QWidget* parent = nullptr);
};

/// Makes a case in the open project and opens it.
class NewCase : public ListDialog {
    Q_OBJECT
public:
    explicit NewCase(QWidget* parent = nullptr);
};

/// Opens the chosen case.
class OpenCase : public ListDialog {
    Q_OBJECT
public:
    explicit OpenCase(QWidget* parent = nullptr);
};

/// Copies the chosen case, without its results, to a new one that is then open.
class CopyCase : public ListDialog {
    Q_OBJECT
public:
    explicit CopyCase(QWidget* parent = nullptr);
};

/// Gives the chosen case another name, title or both.
class RenCase : public ListDialog {
    Q_OBJECT
public:
    explicit RenCase(QWidget* parent = nullptr);
};

}  // namespace verandis::forms
