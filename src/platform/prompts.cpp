#include "platform/prompts.h"

namespace verandis {
namespace {

class SilentPrompts : public Prompts {
public:
    void Message(const std::string&, const std::string&, Icon) override {}
    bool AskYesNo(const std::string&, const std::string&) override { return false; }
    Answer AskYesNoCancel(const std::string&, const std::string&) override { return Answer::No; }
    std::optional<std::string> AskText(const std::string&, const std::string&,
                                       const std::string&) override {
        return std::nullopt;
    }
};

Prompts*& Instance() {
    static SilentPrompts silent;
    static Prompts* instance = &silent;
    return instance;
}

}  // namespace

void UsePrompts(Prompts& prompts) {
    Instance() = &prompts;
}

Prompts& CurrentPrompts() {
    return *Instance();
}

void ShowMessage(const std::string& text, const std::string& title, Icon icon) {
    CurrentPrompts().Message(text, title, icon);
}

std::string WithLineFeeds(const std::string& text) {
    std::string shown;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\r') {
            shown += '\n';
            if (at + 1 < text.size() && text[at + 1] == '\n') ++at;
        } else {
            shown += text[at];
        }
    }
    return shown;
}

}  // namespace verandis
