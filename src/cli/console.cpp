#include "cli/console.h"

namespace verandis {
namespace {

/// How much of a run must be new before the line is written again, in percent.
constexpr int kStep = 5;

constexpr const char* kClearLine = "\r      \r";

}  // namespace

void ConsolePrompts::Message(const std::string& text, const std::string& title, Icon) {
    std::string shown = WithLineFeeds(text);
    while (shown.ends_with('\n')) shown.pop_back();
    if (terminal_) err_ << kClearLine;  // of the progress
    err_ << "[" << title << "] " << shown << "\n";
}

bool ConsolePrompts::AskYesNo(const std::string& text, const std::string& title) {
    Message(text, title, Icon::None);
    return yes_;
}

Answer ConsolePrompts::AskYesNoCancel(const std::string& text, const std::string& title) {
    Message(text, title, Icon::None);
    return yes_ ? Answer::Yes : Answer::No;
}

std::optional<std::string> ConsolePrompts::AskText(const std::string& prompt,
                                                   const std::string& title, const std::string&) {
    Message(prompt, title, Icon::None);
    return std::nullopt;
}

ConsoleProgress::~ConsoleProgress() {
    if (shownPercent_ >= 0) err_ << kClearLine << std::flush;
}

void ConsoleProgress::Show() {
    if (!terminal_ || maximum() <= 0) return;
    const int percent = 100 * value() / maximum();
    if (percent / kStep == shownPercent_ / kStep && shownPercent_ >= 0) return;
    shownPercent_ = percent;
    err_ << "\r" << percent << " % " << std::flush;
}

}  // namespace verandis
