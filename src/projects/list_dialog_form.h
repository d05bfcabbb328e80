#pragma once

#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <string>
#include <vector>

namespace verandis::forms {

/// A row of either list: a project with its path, or a case with its title.
struct ListRow {
    std::string name;
    std::string detail;
};

enum class ListKind { Projects, Cases };

/// What a dialog wants from its list.
enum class RowUse {
    Shown,        // only to be seen
    Needed,       // Ok waits until a row is chosen
    OpenOne,      // the row, or what is open when the list is empty
    AskedAtOnce,  // choosing a row is already the question
};

/// What tells one dialog of the project and case lists from the others.
struct ListDialogFacts {
    const char* window;  // objectName
    int caption;         // catalogue text; the points of a menu entry are left out
    ListKind kind;
    RowUse use;
    int listTip;
    const char* nameField = nullptr;  // objectName of the typed name, null: nothing is typed
    int nameLabel = 0;
    int nameTip = 0;
    bool namePrefilled = false;  // with the name of the chosen row
    bool hasTitle = false;       // `CaseTitle` is typed as well
    int acceptText;              // on `Command1`
    bool (*accept)(const ListRow& row, const std::string& name, const std::string& title);
};

/// One dialog over `PROJECTS.LIB` or `CASES.LIB`: the list, what is typed, Ok (`Command1`) and
/// cancel (`Command2`). Closes with Accepted once its work is done; after a complaint it stays,
/// with the typed name selected.
class ListDialog : public QDialog {
    Q_OBJECT
public:
    void accept() override;

protected:
    ListDialog(const ListDialogFacts& facts, QWidget* parent);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void ReadRows();
    void Build();
    void Connect();
    void ChooseOpenRow();
    void TakeRow();
    bool MayAccept() const;
    ListRow ChosenRow() const;

    const ListDialogFacts& facts_;
    std::vector<ListRow> rows_;
    QListWidget* list_;
    QLineEdit* name_ = nullptr;
    QLineEdit* title_ = nullptr;
    QPushButton* Command1;
    QPushButton* Command2;
};

}  // namespace verandis::forms
