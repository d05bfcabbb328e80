#pragma once

#include "cli/case_commands.h"

// Saved case sets.

namespace verandis {

int SaveCommand(const CommandCall& call);
int LoadCommand(const CommandCall& call);
int SetsCommand(const CommandCall& call);

}  // namespace verandis
