#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "case/shapes.h"
#include "cli/command_line.h"

namespace verandis {

/// What a command gets: the whole line, its own arguments, and where it writes.
struct CommandCall {
    const CommandLine& line;
    std::vector<std::string> arguments;
    std::ostream& out;
    std::ostream& err;
};

/// Runs a command and gives its exit code.
using CommandRoutine = int (*)(const CommandCall& call);

int InitCommand(const CommandCall& call);
int StartCommand(const CommandCall& call);
int SlotsCommand(const CommandCall& call);
int GetCommand(const CommandCall& call);
int SetCommand(const CommandCall& call);

/// Opens the slot of a label and puts it into `slot`. The exit code: done, wrong usage for a label
/// that no slot has, stopped when the case list lacks the slot; each but the first after a
/// complaint.
int OpenLabelledSlot(const CommandCall& call, const std::string& label, Slot& slot);

/// Tells on standard error why a command stops.
int StopCommand(const CommandCall& call, const std::string& sentence);

}  // namespace verandis
