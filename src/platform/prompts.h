#pragma once

#include <optional>
#include <string>

namespace verandis {

enum class Icon { None, Information, Exclamation };
enum class Answer { Yes, No, Cancel };

/// Everything that the system says to the user or asks of him. One instance serves the process:
/// boxes on the desktop, standard error on the command line, a recorder in tests.
class Prompts {
public:
    virtual ~Prompts() = default;

    /// Shows a text with an OK. A text may hold CR as a line break: whoever shows it breaks the
    /// line.
    virtual void Message(const std::string& text, const std::string& title, Icon icon) = 0;
    virtual bool AskYesNo(const std::string& text, const std::string& title) = 0;
    virtual Answer AskYesNoCancel(const std::string& text, const std::string& title) = 0;

    /// The typed text, which may be empty; nothing after a Cancel.
    virtual std::optional<std::string> AskText(const std::string& prompt, const std::string& title,
                                               const std::string& initial) = 0;
};

/// Sets the instance; it must outlive its use. Until it is set, messages are lost and questions are
/// answered with no.
void UsePrompts(Prompts& prompts);

Prompts& CurrentPrompts();

/// The title of a message that has none of its own.
inline constexpr const char* kProgramTitle = "Verandis";

/// Shows a message through the current instance.
void ShowMessage(const std::string& text, const std::string& title = kProgramTitle,
                 Icon icon = Icon::None);

/// The text with one line feed for each CR, CR LF or LF: how a message is shown.
std::string WithLineFeeds(const std::string& text);

}  // namespace verandis
