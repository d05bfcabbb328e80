// Shows one window without a screen and ends: the main window as a user gets it ("main"), or an
// empty one with as many charts ("empty"). The script around it takes the time of the whole
// process.

#include <QApplication>
#include <QChartView>
#include <QGridLayout>
#include <QMainWindow>
#include <QWindow>
#include <cstring>
#include <iostream>
#include <memory>

#include "app/start_form.h"

namespace {

constexpr int kCharts = 10;  // diagrams that a steady-state run fills

std::unique_ptr<QMainWindow> EmptyWindow() {
    auto window = std::make_unique<QMainWindow>();
    auto* content = new QWidget;
    auto* grid = new QGridLayout(content);
    for (int chart = 0; chart < kCharts; ++chart) {
        grid->addWidget(new QChartView(new QChart), chart / 4, chart % 4);
    }
    window->setCentralWidget(content);
    window->resize(1280, 820);
    return window;
}

}  // namespace

int main(int count, char** arguments) {
    const QApplication application(count, arguments);
    if (count != 2) {
        std::cerr << "start_window main|empty\n";
        return 1;
    }
    std::unique_ptr<QMainWindow> window;
    if (std::strcmp(arguments[1], "main") == 0) {
        window = std::make_unique<verandis::StartForm>();
    } else {
        window = EmptyWindow();
    }
    window->show();
    while (!window->windowHandle()->isExposed()) QApplication::processEvents();
    QApplication::processEvents();  // the first painting
    return 0;
}
