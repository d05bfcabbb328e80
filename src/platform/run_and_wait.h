#pragma once

#include <string>
#include <utility>
#include <vector>

namespace verandis {

/// How a started program ended.
enum class ProgramEnd {
    Finished,    // by itself, with an exit code
    NotStarted,  // there is no such program, or it may not be run
    Crashed      // by a signal
};

struct ProgramResult {
    ProgramEnd end = ProgramEnd::NotStarted;
    int code = 0;  // exit code when it finished, the signal when it crashed
};

/// A program, its arguments as they are (no shell takes part) and what its environment has beside
/// or instead of this program's own.
struct ProgramCall {
    std::string program;  // a path, or a bare name that is searched in PATH
    std::vector<std::string> arguments;
    std::vector<std::pair<std::string, std::string>> environment;
};

/// Starts a program and waits for its end. It shares standard input and output.
ProgramResult RunAndWait(const ProgramCall& call);

/// A program that belongs to this one: beside it when it stands there, else by its bare name.
std::string CompanionProgram(const std::string& name);

/// True when a variable of the environment is set and not empty.
bool HasEnvironment(const char* variable);

}  // namespace verandis
