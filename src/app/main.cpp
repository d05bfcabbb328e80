#include <QApplication>

int main(int count, char** arguments) {
    const QApplication application(count, arguments);
    return QApplication::exec();
}
