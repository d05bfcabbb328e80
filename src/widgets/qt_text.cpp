#include "widgets/qt_text.h"

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

std::string Typed(const QString& text) {
    return text.toStdString();
}

}  // namespace verandis
