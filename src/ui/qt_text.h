#pragma once

#include <QString>
#include <string>
#include <string_view>

// Between the system's UTF-8 text and the window system's.

namespace verandis {

/// Text as it is, with the system's line ends (CR) as line breaks.
QString Shown(std::string_view text);

/// Text from data as part of a caption: an "&" in it is no mnemonic.
QString ShownInCaption(std::string_view text);

/// A catalogue text in the session's language; `role` picks a wording of a text that serves two
/// places. For buttons, labels and menus.
QString Label(int text, int role = 1);

/// Takes the window system's own words (print and file dialogs, menus of fields) in the language
/// with this number where they are installed.
void UseQtWordsOf(int language);

/// The text of a control as the core takes it.
std::string Typed(const QString& text);

}  // namespace verandis
