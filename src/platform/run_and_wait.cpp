#include "platform/run_and_wait.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

#include "platform/files.h"
#include "platform/paths.h"

namespace verandis {
namespace {

using Words = std::vector<std::string>;

/// This program's environment with the call's variables in place of its own.
Words EnvironmentOf(const ProgramCall& call) {
    Words variables;
    for (char** each = environ; *each; ++each) {
        const std::string variable = *each;
        const std::string name = variable.substr(0, variable.find('='));
        bool replaced = false;
        for (const auto& [own, value] : call.environment) replaced = replaced || own == name;
        if (!replaced) variables.push_back(variable);
    }
    for (const auto& [name, value] : call.environment) variables.push_back(name + "=" + value);
    return variables;
}

/// The words as the system wants them; they must outlive the result.
std::vector<char*> Pointers(Words& words) {
    std::vector<char*> pointers;
    for (std::string& word : words) pointers.push_back(word.data());
    pointers.push_back(nullptr);
    return pointers;
}

ProgramResult EndOf(pid_t process) {
    int status = 0;
    while (::waitpid(process, &status, 0) < 0) {
        if (errno != EINTR) return {};
    }
    if (WIFSIGNALED(status)) return {ProgramEnd::Crashed, WTERMSIG(status)};
    return {ProgramEnd::Finished, WEXITSTATUS(status)};
}

}  // namespace

ProgramResult RunAndWait(const ProgramCall& call) {
    Words words = {call.program};
    words.insert(words.end(), call.arguments.begin(), call.arguments.end());
    Words variables = EnvironmentOf(call);
    pid_t process = 0;
    const int failure = ::posix_spawnp(&process, call.program.c_str(), nullptr, nullptr,
                                       Pointers(words).data(), Pointers(variables).data());
    return failure == 0 ? EndOf(process) : ProgramResult{};
}

std::string CompanionProgram(const std::string& name) {
    const std::string beside = JoinPath(FolderOf(ProgramPath()), name);
    return FileExists(beside) ? beside : name;
}

bool HasEnvironment(const char* variable) {
    const char* value = std::getenv(variable);
    return value && *value;
}

}  // namespace verandis
