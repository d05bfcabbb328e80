#include <QApplication>
#include <QCommandLineParser>
#include <iostream>

#include "app/picture_run_form.h"
#include "app/start_form.h"
#include "cli/console.h"
#include "widgets/message_boxes.h"

namespace {

int OpenWindow() {
    verandis::MessageBoxes boxes;
    verandis::UsePrompts(boxes);
    verandis::StartForm window;
    window.show();
    return QApplication::exec();
}

int WritePictures(const QCommandLineParser& options) {
    verandis::ConsolePrompts console(std::cerr, false, false);
    verandis::UsePrompts(console);
    std::vector<std::string> labels;
    for (const QString& label : options.positionalArguments()) {
        labels.push_back(label.toStdString());
    }
    return verandis::WriteDiagramsOf(labels, options.value("pictures").toStdString(),
                                     options.value("system").toStdString());
}

}  // namespace

int main(int count, char** arguments) {
    const QApplication application(count, arguments);
    QApplication::setApplicationName("Verandis");
    QApplication::setApplicationVersion(VERANDIS_VERSION);
    QCommandLineParser options;
    options.setApplicationDescription("Design tool for buildings with a glazed space");
    options.addHelpOption();
    options.addVersionOption();
    options.addOption(
        {"pictures",
         "Calculate the slots and write their diagrams into <folder>, without a window.",
         "folder"});
    options.addOption({"system", "With --pictures: the data root.", "folder"});
    options.addPositionalArgument("slots", "With --pictures: up to four of U1 to I4.", "[slot...]");
    options.process(application);
    if (options.isSet("pictures")) return WritePictures(options);
    return OpenWindow();
}
