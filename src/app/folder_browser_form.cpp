#include "app/folder_browser_form.h"

#include <QKeyEvent>
#include <QVBoxLayout>

#include "app/system_settings.h"
#include "platform/paths.h"
#include "ui/controls.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

constexpr Qt::ItemDataRole kPathRole = Qt::UserRole;
constexpr int kShownRows = 6;

}  // namespace

FolderBrowser::FolderBrowser(QLineEdit* field, const char* placesName, const char* foldersName)
    : field_(field),
      places_(Named(placesName, new QComboBox)),
      folders_(Named(foldersName, new QListWidget)) {
    places_->setAccessibleName(Shown(TextOr(670, "Place")));
    folders_->setAccessibleName(Shown(TextOr(671, "Folders")));
    folders_->setFixedHeight(fontMetrics().lineSpacing() * kShownRows + 2 * kTightGap);
    for (const std::string& place : BrowsePlaces()) places_->addItem(Shown(place));
    places_->setCurrentIndex(-1);
    places_->setPlaceholderText(Shown(TextOr(670, "Place")));
    connect(places_, &QComboBox::activated, this, [this] {
        Enter(Typed(places_->currentText()));
        field_->setText(Shown(folder_));
    });
    connect(folders_, &QListWidget::itemActivated, this,
            [this](const QListWidgetItem* item) { Enter(item); });
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kTightGap);
    column->addWidget(places_);
    column->addWidget(folders_);
}

void FolderBrowser::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    Enter(NearestFolder(Typed(field_->text())));
}

void FolderBrowser::keyPressEvent(QKeyEvent* event) {
    const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enters) QWidget::keyPressEvent(event);
}

void FolderBrowser::Enter(const QListWidgetItem* item) {
    Enter(Typed(item->data(kPathRole).toString()));
    field_->setText(Shown(folder_));
}

void FolderBrowser::Enter(const std::string& folder) {
    folder_ = folder;
    folders_->clear();
    const auto add = [&](const std::string& name, const std::string& path) {
        auto* item = new QListWidgetItem(Shown(name), folders_);
        item->setData(kPathRole, Shown(path));
    };
    const std::string base = folder == "/" ? "" : folder;
    if (!base.empty()) add("..", FolderOf(base).empty() ? "/" : std::string(FolderOf(base)));
    for (const std::string& name : FoldersIn(folder)) add(name, JoinPath(base, name));
}

}  // namespace verandis
