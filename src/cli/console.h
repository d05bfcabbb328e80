#pragma once

#include <ostream>

#include "platform/progress.h"
#include "platform/prompts.h"

namespace verandis {

/// Messages as lines "[title] text"; every question is answered as the command line says.
class ConsolePrompts : public Prompts {
public:
    ConsolePrompts(std::ostream& err, bool yes, bool terminal)
        : err_(err), yes_(yes), terminal_(terminal) {}

    void Message(const std::string& text, const std::string& title, Icon icon) override;
    bool AskYesNo(const std::string& text, const std::string& title) override;
    Answer AskYesNoCancel(const std::string& text, const std::string& title) override;
    std::optional<std::string> AskText(const std::string& prompt, const std::string& title,
                                       const std::string& initial) override;

private:
    std::ostream& err_;
    bool yes_;
    bool terminal_;
};

/// One line that is written over as the run goes on; nothing when the stream is no terminal.
class ConsoleProgress : public Progress {
public:
    ConsoleProgress(std::ostream& err, bool terminal) : err_(err), terminal_(terminal) {}
    ~ConsoleProgress() override;
    ConsoleProgress(const ConsoleProgress&) = delete;
    ConsoleProgress& operator=(const ConsoleProgress&) = delete;

protected:
    void Show() override;

private:
    std::ostream& err_;
    bool terminal_;
    int shownPercent_ = -1;
};

}  // namespace verandis
