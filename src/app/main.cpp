#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <iostream>

#include "app/picture_run_form.h"
#include "app/start_form.h"
#include "cli/console.h"
#include "ui/message_boxes.h"

namespace {

/// Compiled in, so that a program that runs from its build folder shows it too.
QIcon WindowIcon() {
    QIcon icon;
    for (const char* size : {"16", "32", "48", "128", "256"}) {
        icon.addFile(QString(":/icons/verandis-%1.png").arg(size));
    }
    return icon;
}

int OpenWindow() {
    QApplication::setDesktopFileName("verandis");
    QApplication::setWindowIcon(WindowIcon());
    verandis::MessageBoxes boxes;
    verandis::UsePrompts(boxes);
    verandis::StartForm window;
    window.show();
    return QApplication::exec();
}

int RunWithoutWindow(const QCommandLineParser& options) {
    verandis::ConsolePrompts console(std::cerr, false, false);
    verandis::UsePrompts(console);
    verandis::WindowlessRun run;
    for (const QString& label : options.positionalArguments()) {
        run.labels.push_back(label.toStdString());
    }
    run.system = options.value("system").toStdString();
    run.language = options.value("language").toInt();
    run.pictures = options.value("pictures").toStdString();
    run.report = options.value("report").toStdString();
    if (run.language >= 0 && run.language <= 2) return verandis::RunWithoutWindow(run);
    std::cerr << "A language is 1 (Swedish) or 2 (English)\n";
    return 1;
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
    options.addOption(
        {"report", "Calculate the slots and write a report into the PDF <file>, without a window.",
         "file"});
    options.addOption({"system", "Without a window: the data root.", "folder"});
    options.addOption({"language", "Without a window: 1 Swedish, 2 English.", "number"});
    options.addPositionalArgument("slots", "Without a window: up to four of U1 to I4.",
                                  "[slot...]");
    options.process(application);
    if (options.isSet("pictures") || options.isSet("report")) return RunWithoutWindow(options);
    return OpenWindow();
}
