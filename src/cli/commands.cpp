#include "cli/commands.h"

#include <algorithm>

#include "app/session.h"
#include "app/settings.h"
#include "app/start_up.h"
#include "calc/climate_file.h"
#include "calc/heat_balance.h"
#include "calc/results.h"
#include "cli/case_commands.h"
#include "cli/command_line.h"
#include "cli/console.h"
#include "cli/report_command.h"
#include "cli/run_commands.h"
#include "cli/set_commands.h"
#include "libraries/simple_libraries.h"
#include "platform/errors.h"
#include "platform/files.h"
#include "results/case_report.h"

namespace verandis {
namespace {

/// What a command needs before it runs.
enum class Needs { Nothing, Root, Project, Refused };

constexpr std::size_t kAnyCount = 99;

struct Command {
    const char* name;
    const char* arguments;
    const char* help;
    std::size_t least;  // count of arguments
    std::size_t most;
    Needs needs;
    CommandRoutine routine;
};

/// A command whose part of the system is not built yet.
constexpr Command NotYet(const char* name, const char* arguments) {
    return {name, arguments, "(not there yet)", 0, kAnyCount, Needs::Refused, nullptr};
}

const Command kCommands[] = {
    {"init", "DIR", "make a data root from the delivered data", 1, 1, Needs::Nothing, InitCommand},
    {"start", "", "rebuild the sixteen slots from their templates", 0, 0, Needs::Root,
     StartCommand},
    {"slots", "", "list the slots with shape, case, climate and note", 0, 0, Needs::Project,
     SlotsCommand},
    {"get", "SLOT SECTION KEY", "show a property", 3, 3, Needs::Project, GetCommand},
    {"set", "SLOT SECTION KEY VALUE", "store a property; --kind N marks a window (1) or wall (2)",
     4, 4, Needs::Project, SetCommand},
    {"run", "steady|dynamic SLOT...", "calculate; --csv FILE and --json FILE write the months too",
     2, kAnyCount, Needs::Project, RunCommand},
    {"explain", "SLOT", "show the terms of the steady-state balance", 1, 1, Needs::Project,
     ExplainCommand},
    {"save", "NAME SLOT...", "keep slots as a saved set, over an earlier one of that name", 2,
     kAnyCount, Needs::Project, SaveCommand},
    {"load", "FILE", "put a saved case into its slot; asks, so say --yes", 1, 1, Needs::Project,
     LoadCommand},
    {"sets", "", "list the saved cases: file, set, slot", 0, 0, Needs::Project, SetsCommand},
    {"report", "SLOT...",
     "the inputs of up to four slots; --differs adds a table of what differs,\n"
     "                                 --pdf FILE calculates and writes a report with diagrams",
     1, kMostReportCases, Needs::Project, ReportCommand},
    NotYet("generate", "SLOT"),
    NotYet("prepare", "SLOT"),
    NotYet("chain", "SLOT"),
    NotYet("export", "SLOT"),
};

void WriteHelp(std::ostream& out) {
    out << "verandis-cli [--system DIR] [--lang 1|2] [--yes|--no] COMMAND\n\n"
           "Calculates buildings with a glazed space. A slot is one of U1 to U4, O1 to O4,\n"
           "V1 to V4 and I1 to I4.\n\n";
    for (const Command& command : kCommands) {
        std::string left = std::string("  ") + command.name + " " + command.arguments;
        if (left.size() < 32) left.resize(32, ' ');
        out << left << " " << command.help << "\n";
    }
    out << "\n  --system DIR   the data root; without it the one of the settings\n"
           "  --lang 1|2     1 Swedish, 2 English\n"
           "  --yes, --no    the answer to every question; no without them\n"
           "  --help, --version\n\n"
           "Exit code: 0 done, 1 wrong usage, 2 stopped.\n";
}

int Usage(std::ostream& err, const std::string& complaint) {
    err << "verandis-cli: " << complaint << "\nTry verandis-cli --help.\n";
    return kExitUsage;
}

int Stopped(std::ostream& err, const std::string& sentence) {
    err << "[" << kProgramTitle << "] " << sentence << "\n";
    return kExitStopped;
}

/// Takes the settings and what the command line says against them.
bool UseSettings(const CommandLine& line) {
    const bool stored = ReadSystemSettings();
    if (line.language != 0) session.Language = line.language;
    if (line.system.empty()) return stored;
    UseSystemPath(line.system);
    session.ProjectRootAtStart = session.ProjectRoot;
    return true;
}

/// Empty when the command can run, else what is missing.
std::string Prepare(const CommandLine& line, Needs needs) {
    const bool rootNamed = UseSettings(line);
    if (needs == Needs::Nothing) return "";
    if (!rootNamed) return "No data root is known: use --system DIR, or init DIR first";
    if (!FolderExists(session.ProjectRoot)) {
        return "There is no data root in " + session.SystemFolder + ": use init DIR first";
    }
    if (needs == Needs::Root) return "";
    return OpenSession() ? "" : "The project of the slots is missing in " + session.ProjectRoot;
}

int RunCommandLine(const CommandLine& line, std::ostream& out, std::ostream& err) {
    if (line.words.empty()) return Usage(err, "a command is missing");
    const auto* command =
        std::find_if(std::begin(kCommands), std::end(kCommands),
                     [&](const Command& each) { return line.words[0] == each.name; });
    if (command == std::end(kCommands)) return Usage(err, "there is no command " + line.words[0]);
    const std::size_t count = line.words.size() - 1;
    if (count < command->least || count > command->most) {
        return Usage(err, std::string("usage: ") + command->name + " " + command->arguments);
    }
    if (command->needs == Needs::Refused) {
        return Stopped(err, "The command " + line.words[0] + " is not there yet");
    }
    const std::string missing = Prepare(line, command->needs);
    if (!missing.empty()) return Stopped(err, missing);
    return command->routine({line, {line.words.begin() + 1, line.words.end()}, out, err});
}

/// The console as the system's prompts and progress, for as long as this lives.
class ConsoleUse {
public:
    ConsoleUse(Prompts& prompts, Progress& progress)
        : promptsBefore_(CurrentPrompts()), progressBefore_(CurrentProgress()) {
        UsePrompts(prompts);
        UseProgress(progress);
    }
    ~ConsoleUse() {
        UsePrompts(promptsBefore_);
        UseProgress(progressBefore_);
    }
    ConsoleUse(const ConsoleUse&) = delete;
    ConsoleUse& operator=(const ConsoleUse&) = delete;

private:
    Prompts& promptsBefore_;
    Progress& progressBefore_;
};

void ResetState() {
    session = {};
    runResults = {};
    heatBalance = {};
    climateTables = {};
    simpleLibraries = {};
}

}  // namespace

int RunCli(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err,
           bool errIsTerminal) {
    ResetState();
    const CommandLine line = ParseCommandLine(arguments);
    if (!line.complaint.empty()) return Usage(err, line.complaint);
    if (line.version) {
        out << "verandis-cli " << VERANDIS_VERSION << "\n";
        return kExitDone;
    }
    if (line.help) {
        WriteHelp(out);
        return kExitDone;
    }
    ConsolePrompts prompts(err, line.yes, errIsTerminal);
    ConsoleProgress bar(err, errIsTerminal);
    const ConsoleUse use(prompts, bar);
    try {
        return RunCommandLine(line, out, err);
    } catch (const RunError& error) {
        return Stopped(err, std::string("Run-time error: ") + error.what());
    }
}

}  // namespace verandis
