#include "app/help_form.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStackedWidget>
#include <QStyledItemDelegate>
#include <QToolButton>
#include <QVBoxLayout>

#include "platform/files.h"
#include "platform/paths.h"
#include "ui/controls.h"
#include "ui/help.h"
#include "ui/qt_text.h"
#include "ui/theme.h"

namespace verandis {
namespace {

enum : int {
    kHelpWord = 13,
    kContentsText = 940,
    kBackText,
    kForwardText,
    kSearchText,
    kLargerText,
    kSmallerText,
    kNoHitText,
    kNoPagesText,
    kHitsText,
    kNoPageText
};

constexpr int kPageRole = Qt::UserRole;  // place in the book; -1 for a heading
constexpr int kExcerptRole = kPageRole + 1;
constexpr const char* kScheme = "help";

QUrl UrlOf(const HelpBook& book, std::size_t page) {
    QUrl url;
    url.setScheme(kScheme);
    const std::string folder(NameOf(book.folder()));
    url.setPath("/" + Shown(folder) + "/" + Shown(book.pages()[page].file));
    return url;
}

/// A hit as two parts: the page's title, and below it the muted excerpt.
class HitRow : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& row) const override {
        QStyleOptionViewItem ground(option);
        initStyleOption(&ground, row);
        ground.text.clear();
        const QWidget& list = *option.widget;
        list.style()->drawControl(QStyle::CE_ItemViewItem, &ground, painter, &list);
        const bool chosen = option.state & QStyle::State_Selected;
        const QPalette::ColorRole role = chosen ? QPalette::HighlightedText : QPalette::Text;
        const QString title = row.data().toString();
        const QRect room = option.rect.adjusted(kGap, kTightGap, -kGap, -kTightGap);
        painter->save();
        painter->setFont(TitleFont(option.font));
        painter->setPen(option.palette.color(role));
        QRect taken;
        painter->drawText(room, Qt::TextWordWrap, title, &taken);
        painter->setFont(option.font);
        if (!chosen) painter->setPen(TintOf(Tint::Muted, list));
        painter->drawText(room.adjusted(0, taken.height(), 0, 0), Qt::TextWordWrap,
                          row.data(kExcerptRole).toString());
        painter->restore();
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& row) const override {
        const auto* list = qobject_cast<const QAbstractItemView*>(option.widget);
        const int width = list ? list->viewport()->width() : option.rect.width();
        const auto height = [&](const QFont& font, const QString& text) {
            const QRect room(0, 0, width - 2 * kGap, QWIDGETSIZE_MAX);
            return QFontMetrics(font).boundingRect(room, Qt::TextWordWrap, text).height();
        };
        return {width, height(TitleFont(option.font), row.data().toString()) +
                           height(option.font, row.data(kExcerptRole).toString()) + 2 * kTightGap};
    }

private:
    static QFont TitleFont(QFont font) {
        font.setBold(true);
        return font;
    }
};

/// A modal dialog lets only its own windows be used: while it is open the help is one of them.
void LendTo(HelpWindow& window, QWidget& modal, QWidget* owner) {
    window.setParent(&modal, Qt::Window);
    auto* dialog = qobject_cast<QDialog*>(&modal);
    if (!dialog) return;
    QObject::connect(dialog, &QDialog::finished, &window, [&window, owner] {
        const bool open = window.isVisible();
        window.setParent(owner, Qt::Window);
        window.setVisible(open);
    });
}

}  // namespace

HelpPageView::HelpPageView(QWidget* parent) : QTextBrowser(parent) {
    document()->setDocumentMargin(2 * kMargin);
    TakeColours();
}

void HelpPageView::UseFolder(const std::string& folder) {
    folder_ = folder;
}

QVariant HelpPageView::loadResource(int type, const QUrl& name) {
    const QUrl full = source().resolved(name);
    const auto bytes = ReadBytes(JoinPath(folder_, Typed(full.path().mid(1))));
    if (!bytes) return {};
    if (type == QTextDocument::ImageResource) {
        return QImage::fromData(QByteArray::fromStdString(*bytes));
    }
    return QString::fromUtf8(*bytes);
}

/// The pages carry no colours: they follow the palette.
void HelpPageView::TakeColours() {
    document()->setDefaultStyleSheet(
        QString("a { color: %1; text-decoration: none; }").arg(TintOf(Tint::Accent, *this).name()));
}

void HelpPageView::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() != QEvent::PaletteChange) return;
    TakeColours();
    if (!source().isEmpty()) reload();
}

HelpWindow::HelpWindow(QWidget* parent) : QMainWindow(parent), book_("") {
    setObjectName("HelpWindow");
    setWindowTitle("Verandis - " + Label(kHelpWord));
    BuildWindow();
    ReadBook();
    resize(fontMetrics().averageCharWidth() * 160, fontMetrics().height() * 44);
}

void HelpWindow::BuildWindow() {
    auto* sides = new QSplitter;
    sides->setChildrenCollapsible(false);
    sides->addWidget(BuildIndex());
    sides->addWidget(BuildReader());
    sides->setStretchFactor(1, 1);
    sides->setSizes(
        {fontMetrics().averageCharWidth() * 46, fontMetrics().averageCharWidth() * 110});
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->addWidget(sides);
    setCentralWidget(content);
    connect(search_, &QLineEdit::textChanged, this, &HelpWindow::SearchFor);
    connect(hits_, &QListWidget::currentRowChanged, this, &HelpWindow::OpenHit);
    connect(contents_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        const int page = item ? item->data(0, kPageRole).toInt() : -1;
        if (page >= 0) OpenPage(static_cast<std::size_t>(page));
    });
    connect(view_, &QTextBrowser::sourceChanged, this, &HelpWindow::FollowPage);
}

QWidget* HelpWindow::BuildIndex() {
    search_ = Named("Search", new QLineEdit);
    search_->setPlaceholderText(Label(kSearchText));
    search_->setAccessibleName(Label(kSearchText));
    search_->setClearButtonEnabled(true);
    auto* find = MakeAction("Find", kSearchText, {QKeySequence::Find});
    connect(find, &QAction::triggered, search_, [this] { search_->setFocus(); });
    connect(search_, &QLineEdit::returnPressed, this, [this] {
        hits_->setFocus();
        if (hits_->currentRow() < 0) hits_->setCurrentRow(0);
    });

    contents_ = Named("Contents", new QTreeWidget);
    contents_->setHeaderHidden(true);
    contents_->setAccessibleName(Label(kContentsText));
    hits_ = Named("Hits", new QListWidget);
    hits_->setItemDelegate(new HitRow(hits_));
    hits_->setResizeMode(QListView::Adjust);
    hits_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    hits_->setAccessibleName(Label(kHitsText));
    index_ = new QStackedWidget;
    index_->addWidget(contents_);
    index_->addWidget(hits_);

    auto* side = new QWidget;
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kGap);
    column->addWidget(search_);
    column->addWidget(index_, 1);
    return side;
}

QAction* HelpWindow::MakeAction(const char* name, int text, const QList<QKeySequence>& keys) {
    // At the very first start there is no catalogue yet.
    const QString caption = Label(text).isEmpty() ? QString(name) : Label(text);
    auto* action = Named(name, new QAction(caption, this));
    action->setShortcuts(keys);
    addAction(action);
    return action;
}

QWidget* HelpWindow::BuildReader() {
    view_ = Named("Page", new HelpPageView);
    auto* row = new QHBoxLayout;
    row->setSpacing(kGap);
    const auto button = [&](const char* name, int text, const QList<QKeySequence>& keys) {
        QAction* action = MakeAction(name, text, keys);
        action->setToolTip(QString("%1 (%2)").arg(
            action->text(), action->shortcut().toString(QKeySequence::NativeText)));
        auto* made = new QToolButton;
        made->setDefaultAction(action);
        made->setFocusPolicy(Qt::TabFocus);
        row->addWidget(made);
        return action;
    };
    QAction* back = button("Back", kBackText, QKeySequence::keyBindings(QKeySequence::Back));
    QAction* forward =
        button("Forward", kForwardText, QKeySequence::keyBindings(QKeySequence::Forward));
    QAction* home = button("Home", kContentsText, {Qt::ALT | Qt::Key_Home});
    row->addStretch();
    QAction* smaller = button("Smaller", kSmallerText, {QKeySequence::ZoomOut});
    QAction* larger = button("Larger", kLargerText, {QKeySequence::ZoomIn});
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(back, &QAction::triggered, view_, &QTextBrowser::backward);
    connect(forward, &QAction::triggered, view_, &QTextBrowser::forward);
    connect(home, &QAction::triggered, this, [this] { ShowTopic(kHelpContentsTopic); });
    connect(smaller, &QAction::triggered, view_, [this] { view_->zoomOut(); });
    connect(larger, &QAction::triggered, view_, [this] { view_->zoomIn(); });
    connect(view_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(view_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);

    auto* side = new QWidget;
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kGap);
    column->addLayout(row);
    column->addWidget(view_, 1);
    return side;
}

/// Fills the contents; a folder without pages is told in the place of a page.
void HelpWindow::ReadBook() {
    book_ = HelpBook(HelpFolder());
    view_->UseFolder(std::string(FolderOf(book_.folder())));
    QList<QTreeWidgetItem*> above;  // the last item of each level
    for (std::size_t at = 0; at < book_.pages().size(); ++at) {
        const HelpPage& page = book_.pages()[at];
        const auto level = std::min(static_cast<qsizetype>(page.level), above.size());
        above.resize(level);
        auto* item = level > 0 ? new QTreeWidgetItem(above.back()) : new QTreeWidgetItem(contents_);
        item->setText(0, Shown(page.title));
        item->setData(0, kPageRole, page.file.empty() ? -1 : static_cast<int>(at));
        above.append(item);
        items_.append(item);
    }
    contents_->expandAll();
    if (book_.pages().empty()) ShowRemark(Label(kNoPagesText) + "\n" + Shown(book_.folder()));
}

void HelpWindow::ShowRemark(const QString& remark) {
    view_->setPlainText(remark);
}

void HelpWindow::ShowTopic(int topic) {
    search_->clear();
    if (const auto page = book_.PageOfTopic(topic)) OpenPage(*page);
    show();
    raise();
    activateWindow();
    view_->setFocus();
}

void HelpWindow::OpenPage(std::size_t page) {
    const HelpPage& entry = book_.pages()[page];
    if (!FileExists(JoinPath(book_.folder(), entry.file))) {
        return ShowRemark(Label(kNoPageText) + " " + Shown(entry.title));
    }
    const QUrl url = UrlOf(book_, page);
    if (view_->source() != url) view_->setSource(url);
}

/// Marks the shown page in the contents, whatever way led to it.
void HelpWindow::FollowPage(const QUrl& source) {
    const auto page = book_.PageOfFile(Typed(source.fileName()));
    if (!page) return;
    view_->setExtraSelections({});
    const QSignalBlocker quiet(contents_);
    contents_->setCurrentItem(items_[static_cast<qsizetype>(*page)]);
}

void HelpWindow::SearchFor(const QString& words) {
    index_->setCurrentWidget(words.trimmed().isEmpty() ? static_cast<QWidget*>(contents_) : hits_);
    const QSignalBlocker quiet(hits_);
    hits_->clear();
    for (const HelpHit& hit : book_.Search(Typed(words))) {
        const HelpPage& page = book_.pages()[hit.page];
        auto* row = new QListWidgetItem(Shown(page.title), hits_);
        row->setData(kExcerptRole, Shown(hit.excerpt));
        row->setData(Qt::AccessibleDescriptionRole, Shown(hit.excerpt));
        row->setData(kPageRole, static_cast<int>(hit.page));
    }
    if (hits_->count() > 0) return;
    auto* none = new QListWidgetItem(Label(kNoHitText), hits_);
    none->setFlags(Qt::NoItemFlags);
}

void HelpWindow::OpenHit(int row) {
    const QListWidgetItem* hit = hits_->item(row);
    if (!hit || !hit->data(kPageRole).isValid()) return;
    OpenPage(static_cast<std::size_t>(hit->data(kPageRole).toInt()));
    MarkWords(search_->text());
}

/// Marks the searched words on the page and goes to the first of them.
void HelpWindow::MarkWords(const QString& words) {
    QTextCharFormat mark;
    mark.setBackground(palette().highlight());
    mark.setForeground(palette().highlightedText());
    QList<QTextEdit::ExtraSelection> marks;
    QTextCursor first;
    for (const QString& word : words.split(' ', Qt::SkipEmptyParts)) {
        for (QTextCursor at = view_->document()->find(word); !at.isNull();
             at = view_->document()->find(word, at)) {
            if (first.isNull() || at < first) first = at;
            marks.append({at, mark});
        }
    }
    view_->setExtraSelections(marks);
    if (first.isNull()) return;
    first.clearSelection();
    view_->setTextCursor(first);
}

/// Escape takes the search back first, then closes.
void HelpWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) return QMainWindow::keyPressEvent(event);
    if (search_->text().isEmpty()) {
        close();
    } else {
        search_->clear();
        contents_->setFocus();
    }
}

namespace {

struct DialogTopic {
    const char* dialog;  // objectName
    int topic;
};

/// Pages of the dialogs, for F1; the buttons of those that have one open the same.
constexpr DialogTopic kDialogTopics[] = {
    {"GeoUShape", 12133},
    {"GeoOShape", 12134},
    {"GeoVShape", 12135},
    {"GeoIShape", 12160},
    {"GlazingUShape", 12164},
    {"GlazingOShape", 12165},
    {"GlazingVShape", 12166},
    {"GlazingIShape", 12167},
    {"OpaqueConstrUShape", 12169},
    {"OPaqueConstrOShape", 12170},
    {"OpaqueConstrVShape", 12171},
    {"OpaqueConstrIShape", 12172},
    {"HVACForm", 12168},
    {"HVACformX", 13050},
    {"ShadeSite", 12136},
    {"EditBuildingData", 12137},
    {"ReferenceWindowsLib", 12112},
    {"OpaqueWallsLib", 12113},
    {"Ststcalcchart", 13012},
    {"MsgForm", 13012},
    {"SysInit", 13013},
    {"BuildingPicture", 13015},
    {"NewProject", 13020},
    {"OpenProject", 13020},
    {"CopyProject", 13020},
    {"RenProject", 13020},
    {"DelProject", 13020},
    {"NewCase", 13021},
    {"OpenCase", 13021},
    {"CopyCase", 13021},
    {"RenCase", 13021},
    {"SaveCases", 13030},
    {"LIstOfSavedCases", 13030},
    {"LoadCases", 13031},
    {"TargetFile", 13031},
    {"DeleteCases", 13032},
    {"CopyCaseInLib", 13033},
    {"BasRedef", 13034},
    {"ShowCases", 13040},
    {"BMinTemp", 13041},
    {"PrintDiagram", 13042},
};

/// F1 in a dialog opens its page.
class HelpKey : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override {
        if (event->type() != QEvent::KeyPress || !receiver->isWidgetType()) return false;
        if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_F1) return false;
        const QString name = static_cast<QWidget*>(receiver)->window()->objectName();
        for (const DialogTopic& each : kDialogTopics) {
            if (name != each.dialog) continue;
            ShowHelp(each.topic);
            return true;
        }
        return false;
    }
};

}  // namespace

void UseHelpWindow(QWidget* owner) {
    qApp->installEventFilter(new HelpKey(owner));
    UseHelpViewer([owner, window = QPointer<HelpWindow>()](int topic) mutable {
        QWidget* modal = QApplication::activeModalWidget();
        if (!window) window = new HelpWindow(owner);
        if (modal && window->parentWidget() != modal) LendTo(*window, *modal, owner);
        window->ShowTopic(topic);
    });
    QObject::connect(owner, &QObject::destroyed, [] { UseHelpViewer({}); });
}

}  // namespace verandis
