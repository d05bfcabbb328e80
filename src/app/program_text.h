#pragma once

#include <string>

namespace verandis {

/// Loads `ProgramText.Dat` of the simulator folder into the session. A missing file leaves all
/// texts empty, and the system runs without captions.
void LoadProgramText();

/// The text of a full catalogue number (language times 10000 plus text), read from the file with
/// its line breaks in place; empty when the file or the number is missing.
std::string ReadProgramText(int number);

/// The catalogue text of a language, trimmed; empty when unknown.
std::string GetText(int language, int number);

/// `GetText` in the session's language.
std::string Text(int number);

/// The part of an entry that serves two places (see `TextRole`), in the session's language.
std::string TextFor(int number, int role);

/// A number as a field shows it: without outer blanks, in the session's decimal form.
std::string NumberOnScreen(double value);

/// Name of a frequency diagram: the first word of the catalogue text and the language's word for
/// frequency.
std::string FrequencyCaption(int number);

}  // namespace verandis
