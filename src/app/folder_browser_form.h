#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QWidget>
#include <string>

namespace verandis {

/// Browses through folders beneath the field of a path: a list of places to begin at and the
/// folders of where one is. Each folder that is entered stands in the field.
class FolderBrowser : public QWidget {
    Q_OBJECT
public:
    /// `placesName` and `foldersName` are the objectNames of the two lists.
    FolderBrowser(QLineEdit* field, const char* placesName, const char* foldersName);

protected:
    /// Begins at the folder of the field, or at the nearest one above it.
    void showEvent(QShowEvent* event) override;

    /// Enter goes into a folder and must not press the dialog's default button too.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Enter(const std::string& folder);
    void Enter(const QListWidgetItem* item);

    QLineEdit* field_;
    QComboBox* places_;
    QListWidget* folders_;
    std::string folder_;  // whose folders are listed
};

}  // namespace verandis
