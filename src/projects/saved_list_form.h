#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QString>
#include <QTreeWidget>
#include <string>

namespace verandis {

/// The title of a window from its menu entry (catalogue text), without the points behind it.
QString TitleFromEntry(int text);

/// What tells one list of saved cases from the others.
struct SavedListFacts {
    const char* window;  // objectName
    int title;           // catalogue text of the menu entry
    int listTip;         // 0: none
    const char* closeName;
    const char* helpName;
    int helpTopic;

    // What is done with the chosen case; null: the list is only to be seen. Gives the words that
    // tell what was done, empty when nothing was.
    std::string (*act)(const std::string& file) = nullptr;
    const char* actName = "";
    int actText = 0;
    bool actOnClick = false;   // a click in the list is already the wish
    bool actOnDelete = false;  // so is the Delete key
    std::string (*actElsewhere)(const std::string& file,
                                QWidget* parent) = nullptr;  // another slot
    int elsewhereText = 0;
};

/// A dialog over the saved cases of the open project: the list `File1` with one row a file (set,
/// slot, note), what can be done with the chosen one, and close. It stays open, tells in `Done`
/// what was done, and reads the list anew.
class SavedList : public QDialog {
    Q_OBJECT
public:
    /// The file name of the chosen row; empty without one.
    std::string ChosenFile() const;

protected:
    SavedList(const SavedListFacts& facts, QWidget* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Build();
    void Connect();
    void ReadRows();
    void ShowDone(const std::string& words);
    void Act();
    void ActElsewhere();

    const SavedListFacts& facts_;
    QTreeWidget* File1;
    QLabel* Done;
    QPushButton* act_ = nullptr;
    QPushButton* elsewhere_ = nullptr;
    QPushButton* close_;
    QPushButton* help_;
};

/// Puts a saved case into the slot of its name (`Command3`), or into another (`Command4`).
class LoadCases : public SavedList {
    Q_OBJECT
public:
    explicit LoadCases(QWidget* parent = nullptr);
};

/// Deletes saved cases (`Command2`), each after a question.
class DeleteCases : public SavedList {
    Q_OBJECT
public:
    explicit DeleteCases(QWidget* parent = nullptr);
};

/// Copies a saved case under another set name, by a click or `Command1`, or for another slot
/// (`Command4`).
class CopyCaseInLib : public SavedList {
    Q_OBJECT
public:
    explicit CopyCaseInLib(QWidget* parent = nullptr);
};

/// Shows the saved cases and nothing more.
class LIstOfSavedCases : public SavedList {
    Q_OBJECT
public:
    explicit LIstOfSavedCases(QWidget* parent = nullptr);
};

}  // namespace verandis
