#include "app/program_text.h"

#include "app/session.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "text/characters.h"

namespace verandis {
namespace {

constexpr int kNumbersPerLanguage = 10000;
constexpr int kSwedish = 1;

Catalogue ReadCatalogue() {
    const auto lines = ReadLines(JoinPath(session.SimulatorFolder, "ProgramText.Dat"));
    return lines ? Catalogue(*lines) : Catalogue();
}

}  // namespace

void LoadProgramText() {
    session.ProgramText = ReadCatalogue();
}

std::string ReadProgramText(int number) {
    return ReadCatalogue().Entry(number);
}

std::string GetText(int language, int number) {
    const std::string& entry = session.ProgramText.Entry(language * kNumbersPerLanguage + number);
    return std::string(TrimBlanks(entry));
}

std::string Text(int number) {
    return GetText(session.Language, number);
}

std::string TextFor(int number, int role) {
    return TextRole(Text(number), role);
}

std::string NumberOnScreen(double value) {
    return PointToDecimal(TrimmedNumberText(value), session.Decimals);
}

std::string FrequencyCaption(int number) {
    const std::string text = Text(number);
    if (text.empty()) return "";
    return text.substr(0, text.find(' ')) +
           (session.Language == kSwedish ? " frekvens" : " frequency");
}

}  // namespace verandis
