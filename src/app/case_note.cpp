#include "app/case_note.h"

#include <string>

#include "app/program_text.h"
#include "app/session.h"
#include "case/property_file.h"
#include "platform/prompts.h"
#include "text/characters.h"

namespace verandis {
namespace {

constexpr int kNoteTitle = 50;
constexpr int kTooLongText = 185;

std::string NotePrompt() {
    return Text(176) + " " + TextFor(57, 1) + " " + Text(108) + " " + std::to_string(kLongestNote) +
           " " + Text(107);
}

}  // namespace

bool EditCaseNote() {
    session.ElementKindMark = 0;  // a note is neither a window nor a wall
    std::string note;
    GetCaseProperty("CASE", "NOTE", note);
    if (note == kNotSet) note.clear();
    while (true) {
        const auto reply = CurrentPrompts().AskText(NotePrompt(), Text(kNoteTitle), note);
        if (!reply || reply->empty()) return false;
        if (Length(TrimBlanks(*reply)) <= kLongestNote) {
            return SetCaseProperty("CASE", "NOTE", *reply);
        }
        ShowMessage(Text(kTooLongText), Text(kNoteTitle), Icon::Exclamation);
        note = *reply;
    }
}

}  // namespace verandis
