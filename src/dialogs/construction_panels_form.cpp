#include "dialogs/construction_panels_form.h"

#include <QMouseEvent>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "app/session.h"
#include "ui/controls.h"
#include "ui/qt_text.h"
#include "ui/theme.h"

namespace verandis {
namespace {

constexpr int kFigureRows = 2;

void Mute(QLabel& label) {
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, TintOf(Tint::Muted, label));
    label.setPalette(palette);
}

/// A figure to read and copy, not to edit, and looking so.
QLineEdit* MakeFigure(const char* name) {
    auto* figure = Named(name, new QLineEdit);
    figure->setReadOnly(true);
    figure->setFrame(false);
    figure->setFocusPolicy(Qt::ClickFocus);
    QPalette palette = figure->palette();
    palette.setColor(QPalette::Base, Qt::transparent);
    figure->setPalette(palette);
    figure->setFixedWidth(figure->fontMetrics().horizontalAdvance("00.000") + 2 * kGap);
    return figure;
}

}  // namespace

QLabel* MakeRemark(const QString& text) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    Mute(*label);
    return label;
}

GroupOptions::GroupOptions(QWidget* parent)
    : QWidget(parent), grid_(new QGridLayout(this)), options_(new QButtonGroup(this)) {
    grid_->setContentsMargins(0, 0, 0, 0);
    grid_->setHorizontalSpacing(2 * kGap);
    grid_->setVerticalSpacing(kTightGap);
    grid_->setColumnStretch(1, 1);
    connect(options_, &QButtonGroup::idClicked, this,
            [this](int code) { emit Chosen(static_cast<std::uint16_t>(code)); });
}

void GroupOptions::AddGroups(const QString& heading, std::span<const ElementGroup> groups) {
    if (!heading.isEmpty()) {
        auto* label = new QLabel(heading);
        QFont bold = label->font();
        bold.setBold(true);
        label->setFont(bold);
        if (!rows_.empty()) label->setContentsMargins(0, kGap, 0, 0);
        grid_->addWidget(label, grid_->rowCount(), 0, 1, 2);
    }
    for (const ElementGroup& group : groups) AddGroup(group);
}

void GroupOptions::AddGroup(const ElementGroup& group) {
    auto* option = Named(group.option, new QRadioButton(Label(group.caption)));
    auto* present = MakeRemark({});
    present->setWordWrap(false);
    const QString elements = Shown(ElementList(group));
    option->setToolTip(elements);
    option->setAccessibleDescription(elements);
    present->setToolTip(elements);
    if (group.mode == GroupMode::Window) {
        option->setContextMenuPolicy(Qt::PreventContextMenu);
        option->installEventFilter(this);
    }
    options_->addButton(option, group.code);
    const int row = grid_->rowCount();
    grid_->addWidget(option, row, 0);
    grid_->addWidget(present, row, 1);
    rows_.push_back({group, option, present});
}

void GroupOptions::Mark(std::uint16_t code) {
    // An exclusive group never lets go of its last mark.
    options_->setExclusive(false);
    for (const Row& row : rows_) row.option->setChecked(row.group.code == code);
    options_->setExclusive(true);
}

void GroupOptions::ShowPresent(const std::function<std::string(const ElementGroup&)>& present) {
    for (const Row& row : rows_) {
        const QString text = Shown(present(row.group));
        row.present->setText(text);
        row.option->setAccessibleName(row.option->text().remove('&') + ": " + text);
    }
}

bool GroupOptions::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress &&
        static_cast<QMouseEvent*>(event)->button() == Qt::RightButton) {
        emit CopyAsked();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

TypeList::TypeList(const TypeListNames& names, QWidget* parent)
    : QWidget(parent), list_(Named(names.list, new QListWidget)) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kTightGap);
    auto* heading = Named(names.heading, new QLabel(Label(names.text)));
    heading->setBuddy(list_);
    list_->setAccessibleName(Label(names.text));
    column->addWidget(heading);
    column->addWidget(list_, 1);
    column->addLayout(MakeFigures(names));
    connect(list_, &QListWidget::currentRowChanged, this, &TypeList::RowChanged);
}

/// Their labels are nobody's buddy: a figure is not gone to, and takes no letter from a control.
QLayout* TypeList::MakeFigures(const TypeListNames& names) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(kGap);
    grid->setVerticalSpacing(kTightGap);
    grid->setColumnStretch(3, 1);  // units stand close to their figures
    int row = 0;
    for (const auto& figure : names.figures) {
        figures_.push_back(MakeFigure(figure.control));
        figures_.back()->setAccessibleName(Label(figure.text));
        grid->addWidget(new QLabel(Label(figure.text)), row, 0);
        grid->addWidget(figures_.back(), row, 1);
        grid->addWidget(new QLabel(QString::fromUtf8(figure.unit)), row++, 2);
    }
    // Lists that stand beside each other end at one height, however many figures they have.
    for (; row < kFigureRows; ++row) {
        auto* space = new QLabel;
        space->setMinimumHeight(figures_.front()->sizeHint().height());
        grid->addWidget(space, row, 0);
    }
    return grid;
}

void TypeList::Fill(const std::vector<std::string>& types) {
    const QSignalBlocker quiet(list_);
    list_->clear();
    int widest = 0;
    for (const std::string& type : types) {
        list_->addItem(Shown(type));
        widest = std::max(widest, list_->fontMetrics().horizontalAdvance(Shown(type)));
    }
    list_->setMinimumWidth(widest + 5 * list_->fontMetrics().height());
}

void TypeList::SetRow(int row) {
    list_->setCurrentRow(row);
}

void TypeList::SetFigures(const std::vector<std::string>& figures) {
    for (std::size_t at = 0; at < figures_.size() && at < figures.size(); ++at) {
        figures_[at]->setText(Shown(figures[at]));
    }
}

}  // namespace verandis
