#include "cli/command_line.h"

#include <algorithm>

#include "platform/files.h"
#include "text/numbers.h"

namespace verandis {
namespace {

/// One option; exactly one of its three targets is set.
struct Option {
    const char* name;
    std::string CommandLine::*path = nullptr;
    int CommandLine::*number = nullptr;
    bool CommandLine::*flag = nullptr;
    int least = 0;  // bounds of a number
    int most = 0;
    bool flagValue = true;

    bool TakesValue() const { return flag == nullptr; }
};

constexpr Option kOptions[] = {
    {.name = "--system", .path = &CommandLine::system},
    {.name = "--csv", .path = &CommandLine::csv},
    {.name = "--json", .path = &CommandLine::json},
    {.name = "--pdf", .path = &CommandLine::pdf},
    {.name = "--lang", .number = &CommandLine::language, .least = 1, .most = 2},
    {.name = "--kind", .number = &CommandLine::kind, .least = 0, .most = 32767},
    {.name = "--yes", .flag = &CommandLine::yes},
    {.name = "--no", .flag = &CommandLine::yes, .flagValue = false},
    {.name = "--differs", .flag = &CommandLine::differs},
    {.name = "--help", .flag = &CommandLine::help},
    {.name = "--version", .flag = &CommandLine::version},
};

/// False for a value that the option refuses.
bool Apply(const Option& option, const std::string& value, CommandLine& line) {
    if (option.flag) {
        line.*option.flag = option.flagValue;
        return value.empty();
    }
    if (option.path) {
        line.*option.path = AbsolutePath(value);
        return !value.empty();
    }
    if (!IsDigitsOnly(value)) return false;
    line.*option.number = WholeNumber(ToNumber(value));
    return line.*option.number >= option.least && line.*option.number <= option.most;
}

/// Takes the option at `at`, which moves on to its value when that stands in the next argument. The
/// complaint about it, empty when there is none.
std::string TakeOption(const std::vector<std::string>& arguments, std::size_t& at,
                       CommandLine& line) {
    const std::string& word = arguments[at];
    const std::size_t sign = word.find('=');
    const std::string name = word.substr(0, sign);
    const auto* option = std::find_if(std::begin(kOptions), std::end(kOptions),
                                      [&](const Option& each) { return name == each.name; });
    if (option == std::end(kOptions)) return "there is no option " + name;
    std::string value = sign == std::string::npos ? "" : word.substr(sign + 1);
    if (option->TakesValue() && sign == std::string::npos) {
        if (++at >= arguments.size()) return "option " + name + " needs a value";
        value = arguments[at];
    }
    if (Apply(*option, value, line)) return "";
    return "option " + name + " cannot be \"" + value + "\"";
}

}  // namespace

CommandLine ParseCommandLine(const std::vector<std::string>& arguments) {
    CommandLine line;
    for (std::size_t at = 0; at < arguments.size(); ++at) {
        const std::string& word = arguments[at];
        if (word == "--") {
            const auto rest = arguments.begin() + static_cast<std::ptrdiff_t>(at) + 1;
            line.words.insert(line.words.end(), rest, arguments.end());
            break;
        }
        if (!word.starts_with("--")) {
            line.words.push_back(word);
            continue;
        }
        const std::string complaint = TakeOption(arguments, at, line);
        if (line.complaint.empty()) line.complaint = complaint;
    }
    return line;
}

}  // namespace verandis
