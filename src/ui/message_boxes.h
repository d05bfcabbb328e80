#pragma once

#include "platform/prompts.h"

namespace verandis {

/// Messages and questions as modal boxes over the active window; texts are shown plain. A box that
/// is closed by its frame is a no or a cancel.
class MessageBoxes : public Prompts {
public:
    void Message(const std::string& text, const std::string& title, Icon icon) override;
    bool AskYesNo(const std::string& text, const std::string& title) override;
    Answer AskYesNoCancel(const std::string& text, const std::string& title) override;
    std::optional<std::string> AskText(const std::string& prompt, const std::string& title,
                                       const std::string& initial) override;
};

}  // namespace verandis
