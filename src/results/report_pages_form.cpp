#include "results/report_pages_form.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <algorithm>
#include <numeric>

#include "results/diagram_chart_form.h"
#include "ui/qt_text.h"

namespace verandis {
namespace {

constexpr int kPageWord = 630;

constexpr qreal kTitlePoints = 18;
constexpr qreal kHeadingPoints = 12.5;
constexpr qreal kTextPoints = 9;
constexpr qreal kNarrowPoints = 7.5;  // of a table with many columns
constexpr qreal kListingPoints = 8.5;
constexpr qreal kFootPoints = 8;
constexpr int kManyColumns = 9;
constexpr qreal kFirstColumnWeight = 2;  // it holds the words that tell what a row is
constexpr std::size_t kRowsKeptTogether = 20;

constexpr qreal kCellGap = 1.5;   // mm beside a cell's text
constexpr qreal kLineGap = 0.8;   // mm above and below it
constexpr qreal kBlockGap = 2;    // mm below a text
constexpr qreal kSectionGap = 5;  // mm above a heading
constexpr qreal kFootRoom = 9;    // mm
constexpr qreal kKeepBelow = 25;  // mm that must be free below a heading
constexpr qreal kRule = 0.15;     // mm
constexpr QSize kDiagramSize(760, 470);

const QColor kSoftRule("#d7dbdf");
const QColor kHardRule("#6b757e");
const QColor kMuted("#59636b");

}  // namespace

ReportPages::ReportPages(QPagedPaintDevice& device, const QString& foot)
    : device_(device), foot_(foot) {
    if (!painter_.begin(&device)) return;
    width_ = device.width();
    bottom_ = device.height() - Millimetres(kFootRoom);
    painter_.setPen(Qt::black);
}

ReportPages::~ReportPages() {
    if (IsOpen()) DrawFoot();
}

qreal ReportPages::Millimetres(qreal count) const {
    return count * device_.logicalDpiY() / 25.4;
}

QFont ReportPages::Letters(qreal points, QFont::Weight weight) const {
    QFont font;
    font.setPointSizeF(points);
    font.setWeight(weight);
    return font;
}

QFont ReportPages::CellLetters(const ReportTable& table, QFont::Weight weight) const {
    return Letters(table.heads.size() >= kManyColumns ? kNarrowPoints : kTextPoints, weight);
}

qreal ReportPages::HeightOf(const QString& text, const QFont& font, qreal width) const {
    const QFontMetricsF metrics(font, &device_);
    const QRectF room(0, 0, width, 1e6);
    return std::max(metrics.boundingRect(room, Qt::TextWordWrap, text).height(), metrics.height());
}

void ReportPages::DrawFoot() {
    painter_.setFont(Letters(kFootPoints));
    painter_.setPen(kMuted);
    const QRectF line(0, bottom_, width_, device_.height() - bottom_);
    painter_.drawText(line, Qt::AlignLeft | Qt::AlignBottom, foot_);
    painter_.drawText(line, Qt::AlignRight | Qt::AlignBottom,
                      Label(kPageWord) + " " + QString::number(page_));
    painter_.setPen(Qt::black);
}

void ReportPages::NextPage() {
    if (y_ == 0) return;
    DrawFoot();
    device_.newPage();
    ++page_;
    y_ = 0;
}

void ReportPages::AddBlock(const QString& text, const QFont& font, qreal keepBelow) {
    const qreal height = HeightOf(text, font, width_);
    if (!Fits(height + keepBelow)) NextPage();
    painter_.setFont(font);
    painter_.drawText(QRectF(0, y_, width_, height), Qt::TextWordWrap, text);
    y_ += height + Millimetres(kBlockGap);
}

void ReportPages::AddTitle(const QString& text) {
    AddBlock(text, Letters(kTitlePoints, QFont::DemiBold), 0);
}

void ReportPages::AddHeading(const QString& text) {
    if (y_ > 0) y_ += Millimetres(kSectionGap);
    AddBlock(text, Letters(kHeadingPoints, QFont::DemiBold), Millimetres(kKeepBelow));
}

void ReportPages::AddText(const QString& text) {
    AddBlock(text, Letters(kTextPoints), 0);
}

void ReportPages::AddListing(const QStringList& lines) {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(kListingPoints);
    for (const QString& line : lines) {
        const qreal height = HeightOf(line, font, width_);
        if (!Fits(height)) NextPage();
        painter_.setFont(font);
        painter_.drawText(QRectF(0, y_, width_, height), Qt::TextWrapAnywhere, line);
        y_ += height;
    }
}

/// As wide as the texts want, the rest shared out; when they want too much, the widest give way.
QList<qreal> ReportPages::ColumnWidths(const ReportTable& table) const {
    const QFontMetricsF metrics(CellLetters(table, QFont::DemiBold), &device_);
    QList<qreal> widths(static_cast<qsizetype>(table.heads.size()), 0);
    const auto widen = [&](const std::vector<std::string>& cells) {
        for (qsizetype at = 0; at < widths.size(); ++at) {
            const QString text = Shown(cells[static_cast<std::size_t>(at)]);
            const qreal wanted = metrics.boundingRect(QRectF(), 0, text).width();
            widths[at] = std::max(widths[at], wanted + 2 * Millimetres(kCellGap));
        }
    };
    widen(table.heads);
    for (const auto& row : table.rows) widen(row);
    const auto sum = [&] { return std::accumulate(widths.begin(), widths.end(), 0.0); };
    while (sum() > width_ + 1) {
        qsizetype widest = 0;
        for (qsizetype at = 1; at < widths.size(); ++at) {
            const qreal first = widest == 0 ? kFirstColumnWeight : 1;
            if (widths[at] * first > widths[widest]) widest = at;
        }
        widths[widest] -= std::min(sum() - width_, widths[widest] * 0.1);
    }
    const qreal rest = (width_ - sum()) / static_cast<qreal>(widths.size());
    for (qreal& each : widths) each += rest;
    return widths;
}

qreal ReportPages::RowHeight(const std::vector<std::string>& cells, const QFont& font,
                             const QList<qreal>& widths) const {
    qreal height = 0;
    for (qsizetype at = 0; at < widths.size(); ++at) {
        const QString text = Shown(cells[static_cast<std::size_t>(at)]);
        height = std::max(height, HeightOf(text, font, widths[at] - 2 * Millimetres(kCellGap)));
    }
    return height + 2 * Millimetres(kLineGap);
}

void ReportPages::DrawRow(const std::vector<std::string>& cells, const QFont& font,
                          const QList<qreal>& widths, std::size_t firstFigure, qreal height) {
    painter_.setFont(font);
    qreal x = 0;
    for (qsizetype at = 0; at < widths.size(); ++at) {
        const QRectF cell(x, y_, widths[at], height);
        const qreal beside = Millimetres(kCellGap);
        const qreal above = Millimetres(kLineGap);
        const auto side = firstFigure > 0 && at >= static_cast<qsizetype>(firstFigure)
                              ? Qt::AlignRight
                              : Qt::AlignLeft;
        painter_.drawText(cell.adjusted(beside, above, -beside, -above),
                          Qt::TextWordWrap | Qt::AlignTop | side,
                          Shown(cells[static_cast<std::size_t>(at)]));
        x += widths[at];
    }
    y_ += height;
}

void ReportPages::DrawRule(const QColor& colour) {
    painter_.setPen(QPen(colour, Millimetres(kRule)));
    painter_.drawLine(QPointF(0, y_), QPointF(width_, y_));
    painter_.setPen(Qt::black);
}

void ReportPages::DrawHeads(const ReportTable& table, const QList<qreal>& widths) {
    const QFont font = CellLetters(table, QFont::DemiBold);
    DrawRow(table.heads, font, widths, table.firstFigure, RowHeight(table.heads, font, widths));
    DrawRule(kHardRule);
}

/// Height of a table with its titles, when it is short enough to stand on one page; else 0.
qreal ReportPages::KeptTogether(const ReportTable& table, const QList<qreal>& widths) const {
    if (table.rows.size() > kRowsKeptTogether) return 0;
    const QFont font = CellLetters(table);
    qreal height = RowHeight(table.heads, font, widths);
    for (const auto& row : table.rows) height += RowHeight(row, font, widths);
    if (!table.section.empty()) height += Millimetres(2 * kSectionGap);
    if (!table.title.empty()) height += Millimetres(kSectionGap);
    return height <= bottom_ ? height : 0;
}

void ReportPages::AddRows(const ReportTable& table, const QList<qreal>& widths) {
    const QFont font = CellLetters(table);
    DrawHeads(table, widths);
    for (const auto& row : table.rows) {
        const qreal height = RowHeight(row, font, widths);
        if (!Fits(height)) {
            NextPage();
            DrawHeads(table, widths);
        }
        DrawRow(row, font, widths, table.firstFigure, height);
        DrawRule(kSoftRule);
    }
    y_ += Millimetres(kBlockGap);
}

void ReportPages::AddTable(const ReportTable& table) {
    const QList<qreal> widths = ColumnWidths(table);
    if (!Fits(KeptTogether(table, widths))) NextPage();
    if (!table.section.empty()) AddHeading(Shown(table.section));
    if (!table.title.empty()) {
        AddBlock(Shown(table.title), Letters(kTextPoints, QFont::DemiBold),
                 Millimetres(kKeepBelow));
    }
    if (!table.rows.empty()) AddRows(table, widths);
    if (!table.remark.empty()) AddText(Shown(table.remark));
}

void ReportPages::AddDiagram(const Diagram& diagram) {
    const qreal height = std::min(width_ * kDiagramSize.height() / kDiagramSize.width(),
                                  bottom_ / 2 - Millimetres(kSectionGap));
    if (!Fits(height)) NextPage();
    DiagramChart chart;
    chart.resize(kDiagramSize);
    chart.SetDiagram(diagram);
    painter_.save();
    chart.DrawOn(painter_, QRectF(0, y_, width_, height));
    painter_.restore();
    y_ += height + Millimetres(kSectionGap);
}

}  // namespace verandis
