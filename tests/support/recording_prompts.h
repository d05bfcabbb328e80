#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "platform/prompts.h"

namespace verandis::testing_support {

/// Records everything that is shown, and plays back scripted answers in their order. Without a
/// script left, questions are answered with no and inputs are cancelled.
class RecordingPrompts : public Prompts {
public:
    struct Shown {
        std::string text;
        std::string title;
        Icon icon = Icon::None;
    };

    std::vector<Shown> shown;
    std::deque<bool> answers;
    std::deque<std::optional<std::string>> replies;

    void Message(const std::string& text, const std::string& title, Icon icon) override {
        shown.push_back({text, title, icon});
    }
    bool AskYesNo(const std::string& text, const std::string& title) override {
        shown.push_back({text, title, Icon::None});
        return TakeAnswer();
    }
    Answer AskYesNoCancel(const std::string& text, const std::string& title) override {
        shown.push_back({text, title, Icon::None});
        return TakeAnswer() ? Answer::Yes : Answer::No;
    }
    std::optional<std::string> AskText(const std::string& prompt, const std::string& title,
                                       const std::string&) override {
        shown.push_back({prompt, title, Icon::None});
        if (replies.empty()) return std::nullopt;
        const auto reply = replies.front();
        replies.pop_front();
        return reply;
    }

    /// The texts alone, in order.
    std::vector<std::string> Texts() const {
        std::vector<std::string> texts;
        for (const Shown& each : shown) texts.push_back(each.text);
        return texts;
    }

private:
    bool TakeAnswer() {
        if (answers.empty()) return false;
        const bool answer = answers.front();
        answers.pop_front();
        return answer;
    }
};

}  // namespace verandis::testing_support
