#include "results/guide_print_form.h"

#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>
#include <QWidget>

#include "ui/qt_text.h"
#include "ui/theme.h"

namespace verandis {
namespace {

enum : int { kDemandText = 650, kWorstText = 651, kOutcomeText = 653, kFigureText = 657 };

constexpr qreal kTextPoints = 10;
constexpr qreal kTitlePoints = 18;
constexpr qreal kConclusionPoints = 14;
constexpr int kColumns = 5;
constexpr qreal kCellPadding = 4;
constexpr qreal kAir = 12;  // above and below the table

/// A colour on white paper, whatever the palette of the screen.
QColor OnPaper(Tint tint) {
    QWidget paper;
    paper.setPalette(QPalette(Qt::white));
    return TintOf(tint, paper);
}

QTextCharFormat Letters(qreal points, QFont::Weight weight, const QColor& colour = Qt::black) {
    QTextCharFormat format;
    format.setFontPointSize(points);
    format.setFontWeight(weight);
    format.setForeground(colour);
    return format;
}

void AddLine(QTextCursor& cursor, const QString& text, const QTextCharFormat& letters) {
    cursor.insertText(text, letters);
    cursor.insertBlock();
}

void AddTable(QTextCursor& cursor, const GuideSheet& sheet) {
    QTextTableFormat format;
    format.setBorder(1);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderCollapse(true);
    format.setTopMargin(kAir);
    format.setBottomMargin(kAir);
    format.setBorderBrush(OnPaper(Tint::Muted));
    format.setCellPadding(kCellPadding);
    format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    format.setHeaderRowCount(1);
    QTextTable* table = cursor.insertTable(1 + kGuideFigureCount, kColumns, format);
    const auto put = [&](int row, const QStringList& cells, QFont::Weight weight) {
        for (int column = 0; column < cells.size(); ++column) {
            table->cellAt(row, column)
                .firstCursorPosition()
                .insertText(cells[column], Letters(kTextPoints, weight));
        }
    };
    put(0, {Label(kFigureText), "", Label(kDemandText), Label(kWorstText), Label(kOutcomeText)},
        QFont::DemiBold);
    for (int row = 0; row < kGuideFigureCount; ++row) {
        const FigureWords& words = sheet.figures[static_cast<std::size_t>(row)];
        const FigureState& state = sheet.state.figures[static_cast<std::size_t>(row)];
        put(row + 1,
            {Shown(words.label), Shown(words.symbol), Shown(words.demand), Shown(words.worst),
             Shown(state.result)},
            QFont::Normal);
    }
    cursor.movePosition(QTextCursor::End);
}

}  // namespace

void PrintGuide(QPagedPaintDevice& device, const GuideSheet& sheet) {
    QTextDocument document;
    QTextCursor cursor(&document);
    AddLine(cursor, kGuideCaption, Letters(kTitlePoints, QFont::DemiBold));
    AddLine(cursor, Shown(sheet.state.Identification), Letters(kConclusionPoints, QFont::Normal));
    AddLine(cursor, Shown(sheet.climate), Letters(kTextPoints, QFont::Normal));
    AddTable(cursor, sheet);
    cursor.insertBlock();
    const bool redesign = sheet.state.conclusion == Conclusion::Redesign;
    cursor.insertText(Shown(sheet.state.Redesign),
                      Letters(kConclusionPoints, QFont::DemiBold,
                              OnPaper(redesign ? Tint::Redesign : Tint::Accepted)));
    document.print(&device);
}

}  // namespace verandis
