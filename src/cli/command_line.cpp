#include "cli/command_line.h"

#include <algorithm>
#include <functional>

#include "platform/files.h"
#include "text/numbers.h"

namespace verandis {
namespace {

/// One option: `take` gets its value, or an empty text when it takes none, and is false for a value
/// that it refuses.
struct Option {
    const char* name;
    bool takesValue;
    bool (*take)(CommandLine&, const std::string&);
};

bool TakeNumberBetween(const std::string& text, int least, int most, int& target) {
    if (!IsDigitsOnly(text)) return false;
    target = WholeNumber(ToNumber(text));
    return target >= least && target <= most;
}

const Option kOptions[] = {
    {"--system", true,
     [](CommandLine& line, const std::string& value) {
         line.system = AbsolutePath(value);
         return !value.empty();
     }},
    {"--csv", true,
     [](CommandLine& line, const std::string& value) {
         line.csv = AbsolutePath(value);
         return !value.empty();
     }},
    {"--json", true,
     [](CommandLine& line, const std::string& value) {
         line.json = AbsolutePath(value);
         return !value.empty();
     }},
    {"--lang", true,
     [](CommandLine& line, const std::string& value) {
         return TakeNumberBetween(value, 1, 2, line.language);
     }},
    {"--kind", true,
     [](CommandLine& line, const std::string& value) {
         return TakeNumberBetween(value, 0, 32767, line.kind);
     }},
    {"--yes", false, [](CommandLine& line, const std::string&) { return line.yes = true; }},
    {"--no", false,
     [](CommandLine& line, const std::string&) {
         line.yes = false;
         return true;
     }},
    {"--help", false, [](CommandLine& line, const std::string&) { return line.help = true; }},
    {"--version", false, [](CommandLine& line, const std::string&) { return line.version = true; }},
};

}  // namespace

CommandLine ParseCommandLine(const std::vector<std::string>& arguments) {
    CommandLine line;
    const auto complain = [&](const std::string& text) {
        if (line.complaint.empty()) line.complaint = text;
    };
    for (std::size_t at = 0; at < arguments.size(); ++at) {
        const std::string& word = arguments[at];
        if (word == "--") {
            line.words.insert(line.words.end(), arguments.begin() + static_cast<std::ptrdiff_t>(at) + 1,
                              arguments.end());
            break;
        }
        if (!word.starts_with("--")) {
            line.words.push_back(word);
            continue;
        }
        const std::size_t sign = word.find('=');
        const std::string name = word.substr(0, sign);
        const auto* option = std::find_if(std::begin(kOptions), std::end(kOptions),
                                          [&](const Option& each) { return name == each.name; });
        if (option == std::end(kOptions)) {
            complain("there is no option " + name);
            continue;
        }
        std::string value = sign == std::string::npos ? "" : word.substr(sign + 1);
        if (option->takesValue && sign == std::string::npos) {
            if (++at >= arguments.size()) {
                complain("option " + name + " needs a value");
                break;
            }
            value = arguments[at];
        }
        if (!option->take(line, value)) complain("option " + name + " cannot be \"" + value + "\"");
    }
    return line;
}

}  // namespace verandis
