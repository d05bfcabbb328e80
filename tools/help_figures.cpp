// Draws the figures of the help into the folders of its languages:
//   help_figures HELP_FOLDER
// HELP_FOLDER stands beside the text catalogue. Runs without a screen.

#include <QApplication>
#include <QStyleFactory>
#include <iostream>

#include "app/program_text.h"
#include "app/session.h"
#include "ui/plan_view.h"

namespace {

constexpr QSize kFigure(540, 320);

/// Plan and section of a shape at its default dimensions, with the letters of its dialog.
bool DrawShape(int shape, const QString& folder) {
    verandis::PlanView view;
    view.SetDetail(verandis::PlanView::Detail::Full);
    view.SetLetters(true);
    view.ShowFigures(shape, verandis::DefaultDimensions(shape));
    view.resize(kFigure);
    const QChar letter = QChar(verandis::WordsOf(shape).letter).toLower();
    const QString path = QString("%1/shape_%2.png").arg(folder, letter);
    if (view.grab().save(path)) return true;
    std::cerr << "cannot write " << path.toStdString() << "\n";
    return false;
}

}  // namespace

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(count, arguments);
    if (count != 2) {
        std::cerr << "usage: help_figures HELP_FOLDER\n";
        return 1;
    }
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setPalette(QPalette(Qt::white));
    const std::string help = arguments[1];
    verandis::session.SimulatorFolder = help + "/..";
    verandis::LoadProgramText();
    for (const auto& [language, folder] : {std::pair(1, "sv"), std::pair(2, "en")}) {
        verandis::session.Language = language;
        for (int shape = 1; shape <= verandis::kShapeCount; ++shape) {
            if (!DrawShape(shape, QString::fromStdString(help + "/" + folder))) return 2;
        }
    }
    return 0;
}
