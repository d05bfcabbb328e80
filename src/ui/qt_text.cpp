#include "ui/qt_text.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include "app/program_text.h"
#include "platform/prompts.h"

namespace verandis {

QString Shown(std::string_view text) {
    return QString::fromStdString(WithLineFeeds(std::string(text)));
}

QString ShownInCaption(std::string_view text) {
    return Shown(text).replace('&', "&&");
}

QString Label(int text, int role) {
    return Shown(TextFor(text, role));
}

void UseQtWordsOf(int language) {
    constexpr int kSwedish = 1;
    static QTranslator words;
    QCoreApplication::removeTranslator(&words);
    if (language != kSwedish) return;
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    if (words.load("qtbase_sv", folder)) QCoreApplication::installTranslator(&words);
}

std::string Typed(const QString& text) {
    return text.toStdString();
}

}  // namespace verandis
