#pragma once

#include <QListWidget>
#include <QMainWindow>
#include <QTextBrowser>
#include <QTreeWidget>

#include "app/help_pages.h"

QT_BEGIN_NAMESPACE
class QAction;
class QLineEdit;
class QStackedWidget;
QT_END_NAMESPACE

namespace verandis {

/// Shows pages of a folder, read by the system's own file work.
class HelpPageView : public QTextBrowser {
    Q_OBJECT
public:
    explicit HelpPageView(QWidget* parent = nullptr);

    /// Folder above those of the languages: what the pages link to lies in it.
    void UseFolder(const std::string& folder);

    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void TakeColours();

    std::string folder_;
};

/// The help: contents and search at the left, the page at the right. Modeless; one window serves
/// all topics.
class HelpWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit HelpWindow(QWidget* parent = nullptr);

    /// Opens the page of a topic number (unknown: the first page) and comes to the front.
    void ShowTopic(int topic);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void BuildWindow();
    QWidget* BuildIndex();
    QWidget* BuildReader();
    QAction* MakeAction(const char* name, int text, const QList<QKeySequence>& keys);
    void ReadBook();
    void OpenPage(std::size_t page);
    void ShowRemark(const QString& remark);
    void FollowPage(const QUrl& source);
    void SearchFor(const QString& words);
    void OpenHit(int row);
    void MarkWords(const QString& words);

    HelpBook book_;
    QLineEdit* search_ = nullptr;
    QStackedWidget* index_ = nullptr;
    QTreeWidget* contents_ = nullptr;
    QListWidget* hits_ = nullptr;
    HelpPageView* view_ = nullptr;
    QList<QTreeWidgetItem*> items_;  // of the pages, in the order of the book
};

/// Makes the windows' Help buttons open a help window, which is made when it is first wanted and
/// belongs to `owner`, until the owner ends. It can be used beside an open modal dialog.
void UseHelpWindow(QWidget* owner);

}  // namespace verandis
